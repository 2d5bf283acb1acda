#include "shell/language_list.h"

#include <algorithm>
#include <utility>

#include "base/number.h"
#include "base/read_token.h"
#include "base/text.h"
#include "shell/text_ids.h"

namespace rlx {
namespace {

constexpr char16_t kEntryEnd = u'@';
constexpr char kListEnd = '>';
constexpr std::size_t kPrefixLength = 6;  // "Roamly"
constexpr std::size_t kExtensionLength = 4;
constexpr std::int64_t kMostIndex = 0xFFFFFFFF;

std::u16string Decoded(std::u16string_view units) {
    const std::string bytes = Narrow(units);
    return IsUtf8(bytes) ? FromUtf8(bytes) : std::u16string(units);
}

std::optional<Language> ParseEntry(std::u16string_view piece) {
    const auto first = piece.find(u',');
    const auto last = piece.rfind(u',');
    if (first == std::u16string_view::npos || first == last) return std::nullopt;
    const auto index = ParseWholeInteger(Trim(piece.substr(0, first)), 0, kMostIndex);
    if (!index) return std::nullopt;
    return Language{static_cast<std::uint32_t>(*index), Decoded(piece.substr(first + 1, last - first - 1)),
                    Decoded(piece.substr(last + 1))};
}

}  // namespace

std::vector<Language> CLanguageList::Languages() const {
    std::vector<Language> languages;
    for (const auto& piece : Split(m_text, kEntryEnd)) {
        if (auto language = ParseEntry(piece)) languages.push_back(*std::move(language));
    }
    return languages;
}

std::u16string CLanguageList::ModuleAtStart(std::uint32_t lang) const {
    const std::u16string_view text = m_text;
    const auto at = text.find(FormatInteger(lang));
    if (at == std::u16string_view::npos) return {};
    const auto piece = text.substr(at, text.find(kEntryEnd, at) - at);
    return Decoded(piece.substr(piece.rfind(u',') + 1));
}

bool CLanguageList::Lists(std::u16string_view module) const {
    const auto languages = Languages();
    return std::any_of(languages.begin(), languages.end(),
                       [&](const Language& language) { return EqualIgnoringCase(language.module, module); });
}

std::optional<CLanguageList> CLanguageList::With(std::u16string_view module) const {
    std::u16string text = m_text;
    if (!text.empty() && text.find_last_of(kEntryEnd) != text.find_last_not_of(u" \t\r\n")) text += kEntryEnd;
    text += FormatInteger(static_cast<std::int64_t>(Languages().size()));
    text += u',';
    text += Widen(ToUtf8(LanguageNameOf(module)));
    text += u',';
    text += Widen(ToUtf8(module));
    text += kEntryEnd;
    if (text.size() > kMaxTokenLength) return std::nullopt;
    return CLanguageList(std::move(text));
}

std::string CLanguageList::Bytes() const {
    return Narrow(m_text) + kListEnd;
}

std::u16string LanguageNameOf(std::u16string_view module) {
    if (module.size() < kPrefixLength + kExtensionLength) return {};
    return std::u16string(module.substr(kPrefixLength, module.size() - kPrefixLength - kExtensionLength));
}

std::filesystem::path LanguageListFile(const CApplicationFolder& folder) {
    return folder.Path(u"\\langs.dat").value_or(folder.Root() / "langs.dat");
}

CLanguageList BuiltInLanguageList(const ITexts& texts) {
    std::u16string text = u"0,";
    text.append(Widen(ToUtf8(texts.Text(kTextBuiltInLanguage)))).append(u",").append(kBuiltInModule).append(u"@");
    return CLanguageList(std::move(text));
}

CLanguageList ReadLanguageListAsItIs(IFileSystem& files, const CApplicationFolder& folder) {
    const auto stream = files.OpenRead(LanguageListFile(folder));
    if (!stream) return CLanguageList({});
    CByteReader reader(*stream);
    return CLanguageList(ReadToken(reader, kListEnd));
}

std::optional<CLanguageList> ReadLanguageList(IFileSystem& files, const CApplicationFolder& folder,
                                              const ITexts& texts) {
    const auto file = LanguageListFile(folder);
    if (files.IsFolder(file) || (files.IsFile(file) && !files.OpenRead(file))) return std::nullopt;
    CLanguageList list = ReadLanguageListAsItIs(files, folder);
    return list.Languages().empty() ? BuiltInLanguageList(texts) : list;
}

}  // namespace rlx
