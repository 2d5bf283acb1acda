#pragma once

#include <string>

namespace rlx {

enum class BoxIcon { kNone, kInformation, kQuestion, kExclamation, kStop };
enum class BoxButtons { kOk, kYesNo };
enum class BoxAnswer { kOk, kYes, kNo };

struct MessageBox {
    std::u16string title;
    std::u16string text;
    BoxIcon icon = BoxIcon::kNone;
    BoxButtons buttons = BoxButtons::kOk;
    BoxAnswer onEnter = BoxAnswer::kNo;  ///< which of two buttons the Enter key presses
    std::u16string question = {};  ///< stands below the text in the window, where the buttons alone say too little

    friend bool operator==(const MessageBox&, const MessageBox&) = default;
};

/// Shows a message and waits for the answer. Called on the user-interface thread.
class IMessageBoxes {
public:
    virtual ~IMessageBoxes() = default;

    /// `kOk` for a box with an OK button, else `kYes` or `kNo`; a box that is closed answers `kNo`.
    virtual BoxAnswer Show(const MessageBox& box) = 0;

    /// As `Show`, with a check box of that text under the message; `checked` tells how it was left. Where there is no
    /// way to show one it stays unchecked.
    virtual BoxAnswer ShowWithCheck(const MessageBox& box, const std::u16string& checkText, bool& checked) {
        static_cast<void>(checkText);
        checked = false;
        return Show(box);
    }
};

}  // namespace rlx
