#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rlx {

using PropertyId = std::uint32_t;

struct Property {
    PropertyId id = 0;
    std::u16string text;

    friend bool operator==(const Property&, const Property&) = default;
};

/// Numbered string properties in the order in which they were written; each number at most once.
using Record = std::vector<Property>;

/// True when no number comes twice.
bool IsRecord(const std::vector<Property>& properties);

/// The text of one property; empty when the record has none of that number.
std::u16string PropertyText(const Record& record, PropertyId id);

/// Identity of a record in its store; never used again after the record is deleted.
using RecordId = std::int64_t;

/// An open record database. Sort orders are ascending by UTF-16 units, without case folding; records with equal values
/// stand in the order in which they were added. A record without the property sorts as an empty text. A handle sees
/// what other handles and other processes wrote since its last call. Used from one thread; the handle must not outlive
/// its store.
class IRecordDatabase {
public:
    virtual ~IRecordDatabase() = default;

    virtual std::size_t Count() = 0;

    /// The record at a zero-based position of the sort order on `sortProperty`, in constant time after the first call.
    /// Nothing past the end, or when the database has no such sort order.
    virtual std::optional<RecordId> SeekPosition(PropertyId sortProperty, std::size_t position) = 0;

    /// The first record of the sort order whose property equals `value`.
    virtual std::optional<RecordId> SeekValue(PropertyId sortProperty, std::u16string_view value) = 0;

    /// The zero-based position of a record in the sort order on `sortProperty`.
    virtual std::optional<std::size_t> PositionOf(PropertyId sortProperty, RecordId record) = 0;

    virtual std::optional<Record> Read(RecordId record) = 0;

    /// All records in that sort order, in one pass; empty when the database has no such sort order.
    virtual std::vector<Record> Records(PropertyId sortProperty);

    /// That property of all records in its sort order, in one pass; empty when the database has no such sort order.
    virtual std::vector<std::u16string> Texts(PropertyId sortProperty);

    /// Nothing when the device refuses the write or a property number comes twice; the database is then unchanged. So
    /// with the other two writes, which also fail when there is no such record.
    virtual std::optional<RecordId> Add(const Record& record) = 0;

    /// The record then has these properties and no others. It keeps its place among records with equal values.
    virtual bool Overwrite(RecordId record, const Record& properties) = 0;
    virtual bool Delete(RecordId record) = 0;

    /// When records were last added, changed or deleted, else when the database was made: seconds since 1970 on the
    /// device's local clock (as `SecondNumber` counts).
    virtual std::optional<std::int64_t> LastModified() = 0;
};

/// The device's store of record databases. Used from one thread; other processes may use the same store.
class IObjectStore {
public:
    static constexpr std::size_t kMaxSortOrders = 4;

    virtual ~IObjectStore() = default;

    /// Makes an empty database with up to `kMaxSortOrders` sort orders; the first is the primary one. An existing
    /// database of that name is left as it is. True when a database of that name is there afterwards.
    virtual bool Create(std::u16string_view name, std::uint32_t typeId, const std::vector<PropertyId>& sortOrders) = 0;

    /// Null when there is no database of that name.
    virtual std::unique_ptr<IRecordDatabase> Open(std::u16string_view name) = 0;

    /// Deletes a database with its records; true when none of that name is left.
    virtual bool Remove(std::u16string_view name) = 0;

    /// Runs `work` as one step: when it returns true all its writes are there, else none. Nobody else sees a part of
    /// them, and of two processes that try at once the second waits for the first and then sees what it wrote. A call
    /// inside another joins it: its writes are there when the outer one's are; when it fails only its own are taken
    /// back. On a device the writes of its registry join in too. Returns whether the writes are there.
    virtual bool Transact(const std::function<bool()>& work) = 0;
};

}  // namespace rlx
