#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/application_folder.h"
#include "shell/texts.h"

namespace rlx {

/// The module name that stands for the built-in texts.
inline constexpr std::u16string_view kBuiltInModule = u"none";

/// One language of "langs.dat".
struct Language {
    std::uint32_t index = 0;  // what the setting `lang` holds when it is chosen
    std::u16string name;      // as shown
    std::u16string module;    // file in `LangsRes`, or `kBuiltInModule`

    friend bool operator==(const Language&, const Language&) = default;
};

/// The text of "langs.dat" up to its first ">", as it was read: index "," name "," module "@" for each language.
/// What a hand has written between the entries stays as it is. A value; any text will do.
class CLanguageList {
public:
    /// `text` holds one unit for each byte of the file, as `ReadToken` gives them.
    explicit CLanguageList(std::u16string text) : m_text(std::move(text)) {}

    /// The well-formed entries in their order. Names are UTF-8 in the file; those that are not count as ISO 8859-1.
    std::vector<Language> Languages() const;

    /// The file name that a start with this setting takes. The decimal text of `lang` is looked for anywhere in the
    /// list, so a digit in an earlier entry is taken for the index, and the name is then that of the wrong entry.
    /// Empty when the text is not in the list.
    std::u16string ModuleAtStart(std::uint32_t lang) const;

    /// True when a language of the list lies in a file of that name, letter case ignored.
    bool Lists(std::u16string_view module) const;

    /// The list with one language more. Its index is the number of languages so far, its name the file name without
    /// prefix and extension. Nothing when it would be longer than a token can hold (1,499 bytes).
    std::optional<CLanguageList> With(std::u16string_view module) const;

    /// What to write to the file.
    std::string Bytes() const;

private:
    std::u16string m_text;
};

/// The display name of a module: "French" for "RoamlyFrench.dll".
std::u16string LanguageNameOf(std::u16string_view module);

/// Reads "langs.dat" of the application folder. A file that is missing or holds no entry counts as one that lists the
/// built-in language. Nothing when it is there and cannot be read.
std::optional<CLanguageList> ReadLanguageList(IFileSystem& files, const CApplicationFolder& folder,
                                              const ITexts& texts);

/// The list of a device that has no other language.
CLanguageList BuiltInLanguageList(const ITexts& texts);

/// The same without a word for the built-in language: an empty list when there is nothing to read.
CLanguageList ReadLanguageListAsItIs(IFileSystem& files, const CApplicationFolder& folder);

/// Where "langs.dat" lies.
std::filesystem::path LanguageListFile(const CApplicationFolder& folder);

}  // namespace rlx
