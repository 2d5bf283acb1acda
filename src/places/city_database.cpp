#include "places/city_database.h"

#include <utility>

#include "base/number.h"
#include "places/city_file.h"
#include "places/text_ids.h"
#include "shell/text_ids.h"

namespace rlx {

namespace {

std::u16string BeforeColon(std::u16string_view text) {
    return std::u16string(text.substr(0, text.find(u':')));
}

std::u16string AfterColon(std::u16string_view text) {
    const std::size_t colon = text.find(u':');
    return colon == std::u16string_view::npos ? std::u16string() : std::u16string(text.substr(colon + 1));
}

CityRecord ToCity(CityIndex index, const Record& record) {
    const std::u16string place = PropertyText(record, PROP_PLACE);
    const std::u16string position = PropertyText(record, PROP_POSITION);
    CityRecord city;
    city.index = index;
    city.name = BeforeColon(place);
    city.country = AfterColon(place);
    city.longitude = BeforeColon(position);
    city.latitude = AfterColon(position);
    city.gmtText = PropertyText(record, PROP_GMT);
    city.gmt = ParseInteger(city.gmtText);
    city.dstRule = ParseDstRule(PropertyText(record, PROP_DSTRULE));
    return city;
}

}  // namespace

CCityDatabase::CCityDatabase(IObjectStore& store, IFileSystem& files, IMessageBoxes& boxes, const ITexts& texts,
                             std::filesystem::path cityFile)
    : m_store(store), m_files(files), m_boxes(boxes), m_texts(texts), m_cityFile(std::move(cityFile)) {}

CityListState CCityDatabase::EnsureCreated() {
    if (Count() > 0) return CityListState::kReady;
    bool missingFile = false;
    const bool written = m_store.Transact([&] {
        // Another process may have built it while this one waited for its turn.
        if (Count() > 0) return true;
        if (!m_store.Create(kCitiesDatabase, kCitiesType, {PROP_PLACE, PROP_POSITION, PROP_GMT, PROP_DSTRULE})) {
            return false;
        }
        const auto file = m_files.OpenRead(m_cityFile);
        missingFile = file == nullptr;
        return missingFile || Build(*file);
    });
    if (!written) return CityListState::kNotWritten;
    // The box waits for the person: not while the store is locked.
    return missingFile ? ReportMissingFile() : CityListState::kReady;
}

CityListState CCityDatabase::Rebuild() {
    const auto file = m_files.OpenRead(m_cityFile);
    if (file == nullptr) return ReportMissingFile();
    const bool written = m_store.Transact([&] {
        return m_store.Remove(kCitiesDatabase) &&
               m_store.Create(kCitiesDatabase, kCitiesType, {PROP_PLACE, PROP_POSITION, PROP_GMT, PROP_DSTRULE}) &&
               Build(*file);
    });
    return written ? CityListState::kReady : CityListState::kNotWritten;
}

bool CCityDatabase::Build(IByteStream& file) {
    return ReadCityFile(
        file, [this](const CityLine& line) { return AddCity(line.place, line.position, line.dstRule, line.gmt); });
}

CityListState CCityDatabase::ReportMissingFile() {
    m_boxes.Show(
        {m_texts.Text(kTextError), m_texts.Text(kTextCitiesFileNotFound), BoxIcon::kExclamation, BoxButtons::kOk});
    return CityListState::kNoFile;
}

bool CCityDatabase::AddCity(std::u16string_view place, std::u16string_view position, std::u16string_view dstRule,
                            std::u16string_view gmt) {
    IRecordDatabase* database = Handle();
    if (database == nullptr) return false;
    return database
        ->Add({{PROP_PLACE, std::u16string(place)},
               {PROP_POSITION, std::u16string(position)},
               {PROP_GMT, std::u16string(gmt)},
               {PROP_DSTRULE, std::u16string(dstRule)}})
        .has_value();
}

IRecordDatabase* CCityDatabase::Handle() {
    if (m_database == nullptr) m_database = m_store.Open(kCitiesDatabase);
    return m_database.get();
}

std::size_t CCityDatabase::Count() {
    IRecordDatabase* database = Handle();
    return database == nullptr ? 0 : database->Count();
}

std::optional<Record> CCityDatabase::ReadAt(CityIndex index) {
    IRecordDatabase* database = Handle();
    if (database == nullptr) return std::nullopt;
    const auto id = database->SeekPosition(PROP_PLACE, index);
    return id ? database->Read(*id) : std::nullopt;
}

std::u16string CCityDatabase::Text(CityIndex index, PropertyId id) {
    const auto record = ReadAt(index);
    return record ? PropertyText(*record, id) : std::u16string();
}

std::u16string CCityDatabase::GetPlace(CityIndex index) {
    return Text(index, PROP_PLACE);
}

std::u16string CCityDatabase::GetName(CityIndex index) {
    return BeforeColon(GetPlace(index));
}

std::u16string CCityDatabase::GetCountry(CityIndex index) {
    return AfterColon(GetPlace(index));
}

std::u16string CCityDatabase::GetLongitude(CityIndex index) {
    return BeforeColon(Text(index, PROP_POSITION));
}

std::u16string CCityDatabase::GetLatitude(CityIndex index) {
    return AfterColon(Text(index, PROP_POSITION));
}

std::u16string CCityDatabase::GetGmt(CityIndex index) {
    return Text(index, PROP_GMT);
}

std::u16string CCityDatabase::GetDstRule(CityIndex index) {
    return Text(index, PROP_DSTRULE);
}

std::optional<CityRecord> CCityDatabase::Record(CityIndex index) {
    const auto record = ReadAt(index);
    if (!record) return std::nullopt;
    return ToCity(index, *record);
}

std::vector<std::u16string> CCityDatabase::Places() {
    IRecordDatabase* database = Handle();
    return database == nullptr ? std::vector<std::u16string>() : database->Texts(PROP_PLACE);
}

std::optional<CityIndex> CCityDatabase::IndexOf(std::u16string_view place) {
    IRecordDatabase* database = Handle();
    const auto id = database == nullptr ? std::nullopt : database->SeekValue(PROP_PLACE, place);
    const auto position = id ? database->PositionOf(PROP_PLACE, *id) : std::nullopt;
    return position ? std::optional(static_cast<CityIndex>(*position)) : std::nullopt;
}

}  // namespace rlx
