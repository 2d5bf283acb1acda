#include "app/desktop_notifier.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QStringList>
#include <QVariantMap>

#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kPatience = 5000;  // milliseconds
constexpr int kNeverExpires = 0;
constexpr uchar kCritical = 2;  // others are gone after a few seconds, read or not

QDBusMessage Call(const char* method, const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        "org.freedesktop.Notifications", "/org/freedesktop/Notifications", "org.freedesktop.Notifications", method);
    message.setArguments(arguments);
    return QDBusConnection::sessionBus().call(message, QDBus::Block, kPatience);
}

/// A service that knows markup would take "<" and "&" of the text for it.
bool KnowsMarkup() {
    return Call("GetCapabilities", {}).arguments().value(0).toStringList().contains("body-markup");
}

}  // namespace

bool CDesktopNotifier::Notify(const Notification& notification) {
    if (!QDBusConnection::sessionBus().isConnected()) return false;
    const QString text = ToQString(notification.text);
    const QVariantMap hints{{"urgency", QVariant::fromValue(kCritical)},
                            {"desktop-entry", QGuiApplication::desktopFileName()},
                            {"sound-name", "alarm-clock-elapsed"}};
    const QDBusMessage reply =
        Call("Notify", {m_appName, QVariant::fromValue(uint{0}), QGuiApplication::desktopFileName(),
                        ToQString(notification.title), KnowsMarkup() ? text.toHtmlEscaped() : text, QStringList(),
                        hints, kNeverExpires});
    return reply.type() == QDBusMessage::ReplyMessage;
}

}  // namespace rlx
