#include "shell/boxes.h"

#include "shell/text_ids.h"

namespace rlx {

MessageBox ErrorBox(const ITexts& texts, std::u16string_view text) {
    return {texts.Text(kTextError), std::u16string(text), BoxIcon::kExclamation, BoxButtons::kOk};
}

MessageBox NoteBox(const ITexts& texts, std::u16string_view text) {
    return {texts.Text(kTextAppName), std::u16string(text), BoxIcon::kInformation, BoxButtons::kOk};
}

MessageBox QuestionBox(const ITexts& texts, std::u16string_view text, BoxIcon icon) {
    return {texts.Text(kTextConfirmation), std::u16string(text), icon, BoxButtons::kYesNo};
}

}  // namespace rlx
