#include "shell/language_install.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "shell/fill_text.h"
#include "shell/language_start.h"
#include "shell/text_ids.h"

namespace rlx {
namespace {

constexpr std::u16string_view kPrefix = u"roamly";
constexpr std::u16string_view kExtension = u".dll";

bool IsModuleName(std::u16string_view name) {
    return name.size() >= kPrefix.size() + kExtension.size() && BeginsIgnoringCase(name, kPrefix) &&
           EqualIgnoringCase(name.substr(name.size() - kExtension.size()), kExtension);
}

/// The list parts its entries by these; a separator of folders would name another file.
bool MayBeListed(std::u16string_view name) {
    const auto unfit = [](char16_t unit) { return unit < u' ' || unit == u'\uFFFD'; };
    return IsModuleName(name) && !LanguageNameOf(name).empty() &&
           name.find_first_of(u",@>\\/") == std::u16string_view::npos && std::none_of(name.begin(), name.end(), unfit);
}

/// One installation: what it has to write, and the way back.
class CInstallation {
public:
    CInstallation(IFileSystem& files, const CApplicationFolder& folder, const InstallRequest& request)
        : m_files(files),
          m_folder(folder),
          m_request(request),
          m_source(request.folder / ToUtf8(request.module)),
          m_target(ModuleFolder(folder) / ToUtf8(request.module)),
          m_copies(m_source.lexically_normal() != m_target.lexically_normal()) {}

    bool IsInUse() const { return !m_copies && EqualIgnoringCase(m_request.module, m_request.inUse); }

    InstallOutcome ReadModule() {
        auto bytes = m_files.ReadFile(m_source, CResources::kMaxModuleSize);
        if (!bytes) return InstallOutcome::kNotReadable;
        m_bytes = *std::move(bytes);
        return CResources::FromModule(m_bytes) ? InstallOutcome::kInstalled : InstallOutcome::kNotAModule;
    }

    InstallOutcome Write(const CLanguageList& languages) {
        const bool removes = m_copies && m_request.remove;
        if (removes && !m_files.IsWritableFolder(m_request.folder)) return InstallOutcome::kNotRemovable;
        if (m_copies && !PutModule()) return InstallOutcome::kNotSaved;
        if (!m_files.WriteFile(LanguageListFile(m_folder), languages.Bytes())) {
            if (m_copies) TakeModuleBack();
            return InstallOutcome::kNotSaved;
        }
        return removes && !RemoveSource() ? InstallOutcome::kNotRemoved : InstallOutcome::kInstalled;
    }

private:
    bool PutModule() {
        if (m_files.IsFile(m_target)) m_before = m_files.ReadFile(m_target, CResources::kMaxModuleSize);
        return m_files.CreateFolder(m_target.parent_path()) && m_files.WriteFile(m_target, m_bytes);
    }

    void TakeModuleBack() {
        if (m_before) {
            m_files.WriteFile(m_target, *m_before);
        } else {
            m_files.RemoveFile(m_target);
        }
    }

    /// The chosen folder may be the module folder under another name: then the installed file went with it.
    bool RemoveSource() {
        const bool removed = m_files.RemoveFile(m_source);
        if (!m_files.IsFile(m_target)) m_files.WriteFile(m_target, m_bytes);
        return removed;
    }

    IFileSystem& m_files;
    const CApplicationFolder& m_folder;
    const InstallRequest& m_request;
    std::filesystem::path m_source;
    std::filesystem::path m_target;
    bool m_copies;
    std::string m_bytes;
    std::optional<std::string> m_before;  // a file of that name that no language of the list had
};

TextId TextOf(InstallOutcome outcome) {
    switch (outcome) {
        case InstallOutcome::kInstalled:
            return kTextLanguageInstalled;
        case InstallOutcome::kAlreadyInstalled:
            return kTextLanguageIsInstalled;
        case InstallOutcome::kNotAModule:
            return kTextNotALanguageModule;
        case InstallOutcome::kNameRefused:
            return kTextModuleNameRefused;
        case InstallOutcome::kListFull:
            return kTextLanguageListFull;
        case InstallOutcome::kNotReadable:
        case InstallOutcome::kListNotReadable:
            return kTextFileNotRead;
        case InstallOutcome::kNotSaved:
            return kTextModuleNotInstalled;
        case InstallOutcome::kNotRemovable:
            return kTextModuleNotRemovable;
        case InstallOutcome::kNotRemoved:
            return kTextModuleNotRemoved;
        case InstallOutcome::kInUse:
            break;
    }
    return 0;
}

}  // namespace

std::vector<ModuleFile> ListModules(IFileSystem& files, const std::filesystem::path& folder,
                                    const CLanguageList& languages) {
    std::vector<ModuleFile> modules;
    for (const auto& file : files.ListFiles(folder)) {
        const auto name = FromUtf8(file);
        if (IsModuleName(name)) modules.push_back({name, languages.Lists(name)});
    }
    return modules;
}

InstallOutcome InstallLanguage(IFileSystem& files, const CApplicationFolder& folder, const ITexts& texts,
                               const InstallRequest& request) {
    if (!MayBeListed(request.module)) return InstallOutcome::kNameRefused;
    const auto languages = ReadLanguageList(files, folder, texts);
    if (!languages) return InstallOutcome::kListNotReadable;
    if (languages->Lists(request.module)) return InstallOutcome::kAlreadyInstalled;
    CInstallation installation(files, folder, request);
    const auto read = installation.ReadModule();
    if (read != InstallOutcome::kInstalled) return read;
    if (installation.IsInUse()) return InstallOutcome::kInUse;
    const auto longer = languages->With(request.module);
    return longer ? installation.Write(*longer) : InstallOutcome::kListFull;
}

std::u16string InstallMessage(InstallOutcome outcome, const InstallRequest& request, const ITexts& texts) {
    const TextId text = TextOf(outcome);
    if (text == 0) return {};
    if (outcome == InstallOutcome::kInstalled) return FillText(texts.Text(text), {LanguageNameOf(request.module)});
    if (outcome == InstallOutcome::kListNotReadable) return FillText(texts.Text(text), {u"langs.dat"});
    return FillText(texts.Text(text), {request.module});
}

}  // namespace rlx
