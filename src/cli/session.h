#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "cli/console_message_boxes.h"
#include "cli/options.h"
#include "cli/session_texts.h"
#include "places/city_database.h"
#include "places/city_list_store.h"
#include "places/city_times.h"
#include "platform/clock.h"
#include "platform/file_system.h"
#include "platform/image_codec.h"
#include "platform/object_store.h"
#include "platform/registry.h"
#include "platform/sqlite/device_store.h"
#include "shell/application_folder.h"
#include "shell/clock_settings.h"
#include "shell/registry_store.h"

namespace rlx::cli {

/// Everything that a command may need, made when it is first asked for, so that a command pays only for what it uses.
class CSession {
public:
    explicit CSession(GlobalOptions options);
    ~CSession();

    const GlobalOptions& Options() const { return m_options; }
    CConsoleMessageBoxes& Boxes() { return m_boxes; }
    const ITexts& Texts() const { return m_texts; }

    /// The file name of the language module in force; empty for the built-in texts.
    const std::u16string& LanguageModule();

    IFileSystem& Files();
    const IImageCodec& Images();
    const IClock& Clock();
    const CApplicationFolder& Folder();
    IRegistry& Registry();
    IObjectStore& ObjectStore();
    CRegistryStore& Settings();

    /// False when nothing that is written now will be there at the next start; the store has said so when it was
    /// opened.
    bool KeepsChanges();

    /// What was wrong with the store when it was opened; nothing when all was well.
    std::optional<std::u16string> StoreTrouble();

    /// Reads the whole store.
    bool IsStoreSound();

    /// The cities, built from "cities.lst" when the store has none yet.
    CCityDatabase& Cities();

    /// The same without building them.
    CCityDatabase& CitiesAsTheyAre();

    /// The list of the cities, for commands that change it.
    CCityListStore& CityLists();
    CCityTimes& Times();
    const ClockSettings& ClockChoices();

    /// Shows `text` under the title "Error!" and returns `kFailed`.
    int Fail(const std::u16string& text);

    /// The string-table text with "%1" and "%2" filled in.
    std::u16string Text(int id, const std::u16string& first = {}, const std::u16string& second = {}) const;

private:
    struct Parts;

    CDeviceStore& Store();
    CResources LoadLanguage();

    GlobalOptions m_options;
    CConsoleMessageBoxes m_boxes;
    CSessionTexts m_texts;
    std::u16string m_languageModule;
    std::unique_ptr<Parts> m_parts;
};

/// The city that a word on the command line names: an index, or the beginning of a name, case ignored.
/// Nothing when none or several fit; the session has then said why.
std::optional<CityIndex> FindCity(CSession& session, const std::string& word);

}  // namespace rlx::cli
