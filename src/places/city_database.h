#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "places/city_record.h"
#include "platform/file_system.h"
#include "platform/message_boxes.h"
#include "platform/object_store.h"
#include "shell/texts.h"

namespace rlx {

/// The record database of the cities. Type and property numbers are part of the device store's format.
inline constexpr std::u16string_view kCitiesDatabase = u"rlxCities";
inline constexpr std::uint32_t kCitiesType = 12345;
inline constexpr PropertyId PROP_PLACE = 101;     ///< name:country; the order of the city indexes
inline constexpr PropertyId PROP_POSITION = 103;  ///< longitude:latitude
inline constexpr PropertyId PROP_DSTRULE = 104;   ///< hours:startDay:startHour:endDay:endHour
inline constexpr PropertyId PROP_GMT = 108;       ///< a `GmtOffset`

enum class CityListState {
    kReady,       ///< the database is there; after a build it holds what the file gave, which may be nothing
    kNoFile,      ///< the city file cannot be opened; the person has been told
    kNotWritten,  ///< the device store refused; it is as it was
};

/// The cities of the device store, built from the city file when there are none. Each screen holds its own; what
/// others write is seen at the next call. References must outlive the object. Used from one thread.
class CCityDatabase {
public:
    /// `cityFile`: the path of "cities.lst" in the application folder.
    CCityDatabase(IObjectStore& store, IFileSystem& files, IMessageBoxes& boxes, const ITexts& texts,
                  std::filesystem::path cityFile);

    /// Builds the database when it is missing or empty, in one step: of two processes that do so at once the second
    /// finds the cities of the first. Without a city file the database is there afterwards, but empty.
    CityListState EnsureCreated();

    /// Drops all cities and builds the database from the city file in one step. Without a city file it stays as it was.
    CityListState Rebuild();

    /// Adds one city; false when the device store refuses or the database is missing.
    bool AddCity(std::u16string_view place, std::u16string_view position, std::u16string_view dstRule,
                 std::u16string_view gmt);

    std::size_t Count();

    /// Texts of a city; an index past the last city gives an empty text. A name ends before the first ":" of the place
    /// and the country begins behind it; so with longitude and latitude.
    std::u16string GetPlace(CityIndex index);
    std::u16string GetName(CityIndex index);
    std::u16string GetCountry(CityIndex index);
    std::u16string GetLongitude(CityIndex index);
    std::u16string GetLatitude(CityIndex index);
    std::u16string GetGmt(CityIndex index);
    std::u16string GetDstRule(CityIndex index);

    /// All of a city at the cost of one getter; nothing past the last city.
    std::optional<CityRecord> Record(CityIndex index);

    /// The places of all cities in index order, in one pass.
    std::vector<std::u16string> Places();

    /// The first city of that place (name:country); nothing when there is none.
    std::optional<CityIndex> IndexOf(std::u16string_view place);

private:
    IRecordDatabase* Handle();
    std::optional<rlx::Record> ReadAt(CityIndex index);
    std::u16string Text(CityIndex index, PropertyId id);
    bool Build(IByteStream& file);
    CityListState ReportMissingFile();

    IObjectStore& m_store;
    IFileSystem& m_files;
    IMessageBoxes& m_boxes;
    const ITexts& m_texts;
    const std::filesystem::path m_cityFile;
    std::unique_ptr<IRecordDatabase> m_database;  ///< null until the database could be opened
};

}  // namespace rlx
