#include "shell/store_message.h"

#include "base/text.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"

namespace rlx {

namespace {

/// 0 for outcomes that need no word.
int TextFor(StoreOutcome outcome) {
    switch (outcome) {
        case StoreOutcome::kReplaced:
            return kTextStoreDamaged;
        case StoreOutcome::kReadOnly:
            return kTextStoreReadOnly;
        case StoreOutcome::kUnreachable:
            return kTextStoreNotWritable;
        case StoreOutcome::kNewer:
            return kTextStoreNewer;
        case StoreOutcome::kForeign:
            return kTextStoreForeign;
        case StoreOutcome::kOpened:
        case StoreOutcome::kCreated:
            break;
    }
    return 0;
}

}  // namespace

std::optional<MessageBox> StoreMessage(StoreOutcome outcome, const std::filesystem::path& file,
                                       const std::optional<std::filesystem::path>& movedAside, const ITexts& texts) {
    const int text = TextFor(outcome);
    if (text == 0) return std::nullopt;
    const std::u16string name = FromUtf8(movedAside.value_or(file).string());
    return MessageBox{texts.Text(kTextError), FillText(texts.Text(text), {name}), BoxIcon::kExclamation,
                      BoxButtons::kOk};
}

}  // namespace rlx
