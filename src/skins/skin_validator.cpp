#include "skins/skin_validator.h"

#include <optional>
#include <utility>

#include "shell/device_path.h"
#include "shell/fill_text.h"
#include "skins/icon_set.h"
#include "skins/skin_file.h"
#include "skins/text_ids.h"

namespace rlx {
namespace {

/// The checks of one skin; gathers their faults.
class CSkinChecker {
public:
    CSkinChecker(IFileSystem& files, std::filesystem::path folder, std::u16string text)
        : m_files(files), m_folder(std::move(folder)), m_text(std::move(text)) {
        m_common = SectionText(m_text, NameOf(SkinSection::kCommonFolders));
    }

    std::vector<SkinFault> Run() {
        std::optional<SkinSection> section;
        std::u16string body;
        for (const SkinKeyRow& row : kSkinKeys) {
            if (section != row.section) {
                section = row.section;
                body = SectionText(m_text, NameOf(row.section));
                if (body == kSkinMissing)
                    m_faults.push_back({SkinFaultKind::kSectionMissing, NameOf(row.section), {}, {}});
            }
            if (body != kSkinMissing) CheckKey(row, KeyValue(body, row.name));
        }
        return std::move(m_faults);
    }

private:
    void CheckKey(const SkinKeyRow& row, const std::u16string& value) {
        if (row.kind == SkinKeyKind::kUncheckedColour) return;
        if (value == kSkinMissing) return Fault(SkinFaultKind::kKeyMissing, row, {});
        if (row.kind == SkinKeyKind::kText) return;
        if (row.kind == SkinKeyKind::kColour) {
            if (!IsSkinColour(value)) Fault(SkinFaultKind::kNotAColour, row, value);
            return;
        }
        CheckPath(row, value);
    }

    void CheckPath(const SkinKeyRow& row, const std::u16string& value) {
        if (row.kind == SkinKeyKind::kIconSet && IsDefaultIconSet(value)) return;
        const std::u16string name = DecodedSkinValue(value);
        if (!name.starts_with(u'\\')) return Fault(SkinFaultKind::kNoBackslash, row, value);
        switch (row.kind) {
            case SkinKeyKind::kImageP:
                return CheckFile(row, SkinLayout::kPortrait, name);
            case SkinKeyKind::kImageL:
                return CheckFile(row, SkinLayout::kLandscape, name);
            case SkinKeyKind::kImageS:
                return CheckFile(row, SkinLayout::kSquare, name);
            case SkinKeyKind::kImageAny: {
                const auto file = ResolveBelow(m_files, m_folder, name);
                if (!file || !m_files.IsFile(*file)) CheckFile(row, SkinLayout::kPortrait, name);
                return;
            }
            case SkinKeyKind::kFolderOfImage:
                return CheckFolder(row, name.substr(0, name.rfind(u'\\')));
            default:
                return CheckFolder(row, name);
        }
    }

    /// A missing layout folder is a fault of its own; what would lie in it cannot be looked for.
    void CheckFile(const SkinKeyRow& row, SkinLayout layout, const std::u16string& name) {
        const auto folder = KeyValue(m_common, RowOf(FolderKeyOf(layout)).name);
        if (folder == kSkinMissing) return;
        const std::u16string path = DecodedSkinValue(folder) + name;
        const auto file = ResolveBelow(m_files, m_folder, path);
        if (!file) return Fault(SkinFaultKind::kLeavesFolder, row, path);
        if (!m_files.IsFile(*file)) Fault(SkinFaultKind::kFileMissing, row, path);
    }

    void CheckFolder(const SkinKeyRow& row, const std::u16string& name) {
        const auto folder = ResolveBelow(m_files, m_folder, name);
        if (!folder) return Fault(SkinFaultKind::kLeavesFolder, row, name);
        if (!m_files.IsFolder(*folder)) Fault(SkinFaultKind::kFolderMissing, row, name);
    }

    void Fault(SkinFaultKind kind, const SkinKeyRow& row, const std::u16string& value) {
        m_faults.push_back({kind, NameOf(row.section), row.name, value});
    }

    IFileSystem& m_files;
    std::filesystem::path m_folder;
    std::u16string m_text;
    std::u16string m_common;
    std::vector<SkinFault> m_faults;
};

TextId TextOf(SkinFaultKind kind) {
    switch (kind) {
        case SkinFaultKind::kFileNotOpened:
            return kTextSkinFileNotOpened;
        case SkinFaultKind::kSectionMissing:
            return kTextSkinSectionMissing;
        case SkinFaultKind::kKeyMissing:
            return kTextSkinKeyMissing;
        case SkinFaultKind::kNotAColour:
            return kTextSkinNotAColour;
        case SkinFaultKind::kNoBackslash:
            return kTextSkinNoBackslash;
        case SkinFaultKind::kLeavesFolder:
            return kTextSkinLeavesFolder;
        case SkinFaultKind::kFolderMissing:
            return kTextSkinFolderMissing;
        case SkinFaultKind::kFileMissing:
            return kTextSkinFileMissing;
    }
    return kTextSkinInvalid;
}

/// A value of a file on one line, whatever it holds.
std::u16string OnOneLine(std::u16string text) {
    for (char16_t& unit : text) {
        if (unit < u' ') unit = u' ';
    }
    return text;
}

}  // namespace

std::vector<SkinFault> ValidateSkin(IFileSystem& files, const std::filesystem::path& skinFile) {
    auto text = ReadSkinText(files, skinFile);
    if (!text) return {{SkinFaultKind::kFileNotOpened, {}, {}, {}}};
    return CSkinChecker(files, skinFile.parent_path(), *std::move(text)).Run();
}

std::u16string FaultText(const SkinFault& fault, const ITexts& texts) {
    return OnOneLine(FillText(texts.Text(TextOf(fault.kind)), {fault.section, fault.key, fault.value}));
}

}  // namespace rlx
