#pragma once

#include <QString>

#include "platform/notifier.h"

namespace rlx {

/// The desktop's notification service, org.freedesktop.Notifications on the session's bus. A notification stays until
/// the person has dealt with it. Waits for the service a few seconds at most.
class CDesktopNotifier : public INotifier {
public:
    /// `appName` stands on the notifications.
    explicit CDesktopNotifier(QString appName) : m_appName(std::move(appName)) {}

    bool Notify(const Notification& notification) override;

private:
    const QString m_appName;
};

}  // namespace rlx
