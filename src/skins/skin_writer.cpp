#include "skins/skin_writer.h"

#include <algorithm>

#include "base/number.h"
#include "base/read_token.h"
#include "base/text.h"
#include "skins/icon_set.h"

namespace rlx {
namespace {

constexpr std::u16string_view kMarks = u"<>*[\r\n";

/// One line of `text` with its line end.
std::string_view TakeLine(std::string_view& text) {
    const auto end = text.find('\n');
    const auto line = text.substr(0, end == std::string_view::npos ? text.size() : end + 1);
    text.remove_prefix(line.size());
    return line;
}

bool Holds(std::string_view line, std::u16string_view key, std::string_view after) {
    return line.find(ToUtf8(key) + std::string(after)) != std::string_view::npos;
}

/// Which of the changed sections a line holding "[" opens, as the reader would find it; none clears the flag.
const SkinKeyRow* ReplacedRow(std::string_view line, std::u16string_view section,
                              const std::map<SkinKey, std::u16string>& lines) {
    for (const auto& [key, value] : lines) {
        const SkinKeyRow& row = RowOf(key);
        if (NameOf(row.section) == section && Holds(line, row.name, "@")) return &row;
    }
    return nullptr;
}

std::u16string_view SectionOpenedBy(std::string_view line) {
    for (const auto name : kSkinSectionNames) {
        if (line.find("[" + ToUtf8(name) + "]") != std::string_view::npos) return name;
    }
    return {};
}

/// What readers take of a text: everything up to the first "<", one at the very beginning apart.
std::size_t LengthRead(std::string_view text) {
    const auto end = text.find('<', text.starts_with('<') ? 1 : 0);
    return end == std::string_view::npos ? text.size() : end;
}

std::vector<SkinKey> Without(const std::map<SkinKey, std::u16string>& lines, const std::vector<SkinKey>& found) {
    std::vector<SkinKey> missing;
    for (const auto& [key, line] : lines) {
        if (std::find(found.begin(), found.end(), key) == found.end()) missing.push_back(key);
    }
    return missing;
}

std::filesystem::path BackupOf(std::filesystem::path file) {
    file += ".bak";
    return file;
}

}  // namespace

void CSkinEdit::SetColour(SkinKey key, std::uint32_t colour) {
    if (IsColour(RowOf(key).kind)) m_values[key] = FormatInteger(colour);
}

void CSkinEdit::SetPicture(SkinKey key, std::u16string_view path) {
    const SkinKeyKind kind = RowOf(key).kind;
    if (kind == SkinKeyKind::kFolderOfImage) {
        m_values[key] = path;
    } else if (kind == SkinKeyKind::kImageP || kind == SkinKeyKind::kImageL || kind == SkinKeyKind::kImageS) {
        const auto separator = path.find_last_of(u"\\/");
        m_values[key] =
            u"\\" + std::u16string(separator == std::u16string_view::npos ? path : path.substr(separator + 1));
    }
}

void CSkinEdit::SetIconSet(std::u16string_view chosen) {
    m_values[SkinKey::kWeatherWICOF] = chosen;
}

std::map<SkinKey, std::u16string> CSkinEdit::Lines(bool defaultSkin) const {
    std::map<SkinKey, std::u16string> lines;
    for (const auto& [key, value] : m_values) {
        const bool byName = key == SkinKey::kWeatherWICOF && !defaultSkin && IsDefaultIconSet(value);
        lines[key] = std::u16string(RowOf(key).name) + u"@" + (byName ? std::u16string(kDefaultIconSetValue) : value);
    }
    return lines;
}

std::string RewriteSkin(std::string_view text, const std::map<SkinKey, std::u16string>& lines,
                        std::vector<SkinKey>& found) {
    std::string result;
    std::u16string_view section;
    while (!text.empty()) {
        const auto line = TakeLine(text);
        if (line.find('[') != std::string_view::npos) section = SectionOpenedBy(line);
        const SkinKeyRow* row = section.empty() ? nullptr : ReplacedRow(line, section, lines);
        if (row == nullptr) {
            result += line;
            continue;
        }
        result += ToUtf8(lines.at(row->key));
        if (line.ends_with('\n')) result += "\r\n";
        found.push_back(row->key);
    }
    return result;
}

SkinWriteResult WriteSkin(IFileSystem& files, const std::filesystem::path& skinFile, const CSkinEdit& edit,
                          bool defaultSkin) {
    const auto old = files.ReadFile(skinFile, kMostSkinBytes);
    if (!old) return {SkinWriteStatus::kNotRead, {}};
    const auto lines = edit.Lines(defaultSkin);
    for (const auto& [key, line] : lines) {
        if (line.find_first_of(kMarks) != std::u16string::npos) return {SkinWriteStatus::kBadValue, {}};
    }
    std::vector<SkinKey> found;
    const std::string text = RewriteSkin(*old, lines, found);
    if (LengthRead(text) > kMaxTokenLength) return {SkinWriteStatus::kTooLong, {}};
    auto missing = Without(lines, found);
    if (!missing.empty() && !files.CopyFile(skinFile, BackupOf(skinFile))) return {SkinWriteStatus::kNotSaved, {}};
    if (!files.WriteFile(skinFile, text)) return {SkinWriteStatus::kNotSaved, {}};
    return {SkinWriteStatus::kWritten, std::move(missing)};
}

}  // namespace rlx
