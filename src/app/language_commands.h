#pragma once

#include <QWidget>
#include <filesystem>
#include <string>

#include "shell/language_list.h"
#include "shell/registry_store.h"
#include "shell/ui/install_languages.h"

namespace rlx {

/// What the window does with languages: puts the one of the setting in force before there is a window, lets a person
/// choose another one, and installs new ones. References must outlive it. User-interface thread.
class CLanguageCommands {
public:
    /// `mayAsk`: somebody is there to answer.
    CLanguageCommands(const LanguagePorts& ports, CRegistryStore& settings, bool mayAsk);

    /// Loads the language of the setting into `resources`; a person who has never chosen one is asked first. False when
    /// its module could not be loaded: the person has been told and has chosen anew, and the run is to end.
    bool Start(CResources& resources);

    /// The Language dialog.
    void Choose(QWidget* parent);

    /// The page of new languages.
    void Install(QWidget* parent);

private:
    void Ask(QWidget* parent, const CLanguageList& list, std::uint32_t current);
    bool Keep(std::uint32_t index);
    CLanguageList List();

    LanguagePorts m_ports;
    CRegistryStore& m_settings;
    bool m_mayAsk;
    std::u16string m_module;         ///< the one in force; empty for the built-in texts
    std::filesystem::path m_folder;  ///< listed last on the page of new languages
};

}  // namespace rlx
