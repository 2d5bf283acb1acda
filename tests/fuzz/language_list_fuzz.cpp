#include <algorithm>

#include "base/read_token.h"
#include "fuzz/target.h"
#include "shell/language_list.h"

namespace {

rlx::CLanguageList Read(std::string bytes) {
    rlx::CMemoryStream stream(std::move(bytes));
    rlx::CByteReader reader(stream);
    return rlx::CLanguageList(rlx::ReadToken(reader, '>'));
}

}  // namespace

void Try(std::string_view bytes) {
    const rlx::CLanguageList list = Read(std::string(bytes));
    for (const std::uint32_t lang : {0U, 1U, 10U, 0xFFFFFFFFU})
        static_cast<void>(list.ModuleAtStart(lang));
    const auto longer = list.With(u"RoamlyNew.dll");
    if (!longer) return;
    // What is written reads back: all languages that were there, and the new one.
    const auto before = list.Languages();
    const auto after = Read(longer->Bytes()).Languages();
    FailIf(after.size() != before.size() + 1 || after.back().module != u"RoamlyNew.dll");
    FailIf(!std::equal(before.begin(), before.end(), after.begin()));
}
