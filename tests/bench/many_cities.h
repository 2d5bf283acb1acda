#pragma once

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "places/city_database.h"
#include "platform/fake/fixed_clock.h"
#include "platform/fake/scripted_message_boxes.h"
#include "platform/posix/posix_file_system.h"
#include "platform/sqlite/device_store.h"
#include "shell/resources.h"

namespace rlx {

/// A temporary folder with a list of this many cities and the device store that is made of it.
class CManyCities {
public:
    explicit CManyCities(int count) : m_folder(MakeFolder()) {
        std::string list = std::to_string(count) + "\n";
        for (int i = 0; i < count; ++i)
            list += "Europe/Paris;Ville-sur-Arc " + std::to_string(i * 7919 % count) +
                    ";C\xF4te;2.35;48.85;1;1;88;2;298;3\n";
        m_files.WriteFile(m_folder / "cities.lst", list);
        OpenStore();
    }
    ~CManyCities() {
        m_store.reset();
        std::error_code error;
        std::filesystem::remove_all(m_folder, error);
    }
    CManyCities(const CManyCities&) = delete;
    CManyCities& operator=(const CManyCities&) = delete;

    const std::filesystem::path& Folder() const { return m_folder; }
    std::filesystem::path CityFile() const { return m_folder / "cities.lst"; }
    CPosixFileSystem& Files() { return m_files; }
    IObjectStore& Objects() { return m_store->Objects(); }

    CCityDatabase Cities() { return {m_store->Objects(), m_files, m_boxes, m_texts, CityFile()}; }

    /// A store without cities in the place of the one before.
    void OpenStore() {
        m_store.reset();
        for (const char* name : {"d.db", "d.db-wal", "d.db-shm"})
            std::filesystem::remove(m_folder / name);
        m_store = OpenDeviceStore(m_folder / "d.db", m_clock).store;
    }

private:
    static std::filesystem::path MakeFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "rlx-bench-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) std::abort();
        return name;
    }

    std::filesystem::path m_folder;
    CFixedClock m_clock;
    CPosixFileSystem m_files;
    CScriptedMessageBoxes m_boxes;
    const CResources m_texts;
    std::unique_ptr<CDeviceStore> m_store;
};

}  // namespace rlx
