#pragma once

#include <string>
#include <string_view>

#include "platform/message_boxes.h"
#include "shell/texts.h"

/// The usual message boxes with the titles that all screens share.
namespace rlx {

/// A refusal or failure: title "Error!", exclamation mark, OK.
MessageBox ErrorBox(const ITexts& texts, std::u16string_view text);

/// A note on what was done: title of the application, information mark, OK.
MessageBox NoteBox(const ITexts& texts, std::u16string_view text);

/// A question: title "Confirmation", Yes and No.
MessageBox QuestionBox(const ITexts& texts, std::u16string_view text, BoxIcon icon = BoxIcon::kQuestion);

}  // namespace rlx
