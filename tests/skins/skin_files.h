#pragma once

#include <string>

#include "platform/fake/memory_file_system.h"
#include "skins/skin_schema.h"

namespace rlx::test {

/// Replaces the first occurrence; the text must be there.
inline std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    const auto at = text.find(from);
    if (at == std::string::npos) ADD_FAILURE() << "not in the skin: " << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

inline std::string ValueOfKind(SkinKeyKind kind, const std::string& key) {
    switch (kind) {
        case SkinKeyKind::kText:
            return "Mine";
        case SkinKeyKind::kFolder:
            return "\\" + key;
        case SkinKeyKind::kColour:
        case SkinKeyKind::kUncheckedColour:
            return "255";
        case SkinKeyKind::kFolderOfImage:
            return "\\P\\any.jpg";
        case SkinKeyKind::kIconSet:
            return "default";
        default:
            return "\\pic.jpg";
    }
}

/// A complete skin whose pictures are all "pic.jpg", in the folders "P", "L" and "S".
inline std::string SoundSkin() {
    std::string text;
    std::u16string_view section;
    for (const SkinKeyRow& row : kSkinKeys) {
        if (NameOf(row.section) != section) {
            if (!section.empty()) text += ">\r\n";
            section = NameOf(row.section);
            text += "[" + std::string(section.begin(), section.end()) + "]\r\n";
        }
        const std::string key(row.name.begin(), row.name.end());
        text += key + "@" + ValueOfKind(row.kind, key) + "\r\n";
    }
    return text + ">\r\n*";
}

/// A folder "/skins" with `text` as "mine.skn" and the pictures of `SoundSkin`.
inline CMemoryFileSystem FilesWith(const std::string& text) {
    CMemoryFileSystem files;
    files.files["/skins/mine.skn"] = text;
    for (const char* folder : {"P", "L", "S"})
        files.files[std::filesystem::path("/skins") / folder / "pic.jpg"] = "picture";
    return files;
}

}  // namespace rlx::test
