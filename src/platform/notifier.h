#pragma once

#include <string>

namespace rlx {

struct Notification {
    std::u16string title;
    std::u16string text;  ///< plain text, lines separated by "\n"

    friend bool operator==(const Notification&, const Notification&) = default;
};

/// The desktop's way to tell a person something while another program is in front. Used from one thread.
class INotifier {
public:
    virtual ~INotifier() = default;

    /// True when the desktop has taken it; false when there is nobody to take it.
    virtual bool Notify(const Notification& notification) = 0;
};

}  // namespace rlx
