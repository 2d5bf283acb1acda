#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/read_token.h"
#include "shell/language_list.h"

namespace {

rlx::CLanguageList Read(std::string bytes) {
    rlx::CMemoryStream stream(std::move(bytes));
    rlx::CByteReader reader(stream);
    return rlx::CLanguageList(rlx::ReadToken(reader, '>'));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const rlx::CLanguageList list = Read({reinterpret_cast<const char*>(data), size});
    for (const std::uint32_t lang : {0U, 1U, 10U, 0xFFFFFFFFU})
        static_cast<void>(list.ModuleAtStart(lang));
    const auto longer = list.With(u"RoamlyNew.dll");
    if (!longer) return 0;
    // What is written reads back: all languages that were there, and the new one.
    const auto before = list.Languages();
    const auto after = Read(longer->Bytes()).Languages();
    if (after.size() != before.size() + 1 || after.back().module != u"RoamlyNew.dll") std::abort();
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (!(after[i] == before[i])) std::abort();
    }
    return 0;
}
