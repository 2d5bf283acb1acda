#include "platform/sqlite/sqlite_registry.h"

#include <algorithm>

#include "platform/sqlite/store_codec.h"

namespace rlx {

namespace {

constexpr char16_t kSeparator = u'\\';

RegistryType TypeOf(std::int64_t number) {
    switch (number) {
        case static_cast<int>(RegistryType::kString):
            return RegistryType::kString;
        case static_cast<int>(RegistryType::kDword):
            return RegistryType::kDword;
        default:
            return RegistryType::kBinary;
    }
}

}  // namespace

CSqliteRegistry::CSqliteRegistry(CConnection& connection) : m_connection(connection) {}

bool CSqliteRegistry::KeyExists(RegistryRoot root, std::u16string_view key) {
    if (key.empty()) return true;
    const std::string path = EncodeText(key);
    CStatement statement = m_connection.Prepare("SELECT 1 FROM registry_key WHERE root = ? AND path = ?");
    statement.Bind(1, static_cast<int>(root)).BindBytes(2, path);
    // A failed read counts as "there", so that nobody writes a default over a value that could not be seen.
    return statement.Step() != StoreResult::kDone;
}

std::vector<std::u16string> CSqliteRegistry::ValueNames(RegistryRoot root, std::u16string_view key) {
    const std::string path = EncodeText(key);
    CStatement statement = m_connection.Prepare(
        "SELECT name FROM registry_value WHERE key = "
        "(SELECT number FROM registry_key WHERE root = ? AND path = ?) ORDER BY number");
    statement.Bind(1, static_cast<int>(root)).BindBytes(2, path);
    std::vector<std::u16string> names;
    while (statement.NextRow())
        names.push_back(DecodeText(statement.Bytes(0)));
    return names;
}

std::optional<RegistryValue> CSqliteRegistry::Query(RegistryRoot root, std::u16string_view key,
                                                    std::u16string_view name) {
    const std::string path = EncodeText(key);
    const std::string valueName = EncodeText(name);
    CStatement statement = m_connection.Prepare(
        "SELECT type, data FROM registry_value WHERE key = "
        "(SELECT number FROM registry_key WHERE root = ? AND path = ?) AND name = ?");
    statement.Bind(1, static_cast<int>(root)).BindBytes(2, path).BindBytes(3, valueName);
    if (!statement.NextRow()) return std::nullopt;
    return RegistryValue{TypeOf(statement.Integer(0)), std::string(statement.Bytes(1))};
}

bool CSqliteRegistry::Set(RegistryRoot root, std::u16string_view key, std::u16string_view name,
                          const RegistryValue& value) {
    if (key.size() > kMaxKeyLength) return false;
    return m_connection.Transact([&] { return CreateKey(root, key) && Store(root, key, name, value); });
}

bool CSqliteRegistry::CreateKey(RegistryRoot root, std::u16string_view key) {
    for (std::size_t end = key.find(kSeparator);; end = key.find(kSeparator, end + 1)) {
        const std::string path = EncodeText(key.substr(0, end));
        CStatement statement =
            m_connection.Prepare("INSERT INTO registry_key(root, path) VALUES(?, ?) ON CONFLICT DO NOTHING");
        if (!statement.Bind(1, static_cast<int>(root)).BindBytes(2, path).Run()) return false;
        if (end == std::u16string_view::npos) return true;
    }
}

bool CSqliteRegistry::Store(RegistryRoot root, std::u16string_view key, std::u16string_view name,
                            const RegistryValue& value) {
    const std::string path = EncodeText(key);
    const std::string valueName = EncodeText(name);
    CStatement statement = m_connection.Prepare(
        "INSERT INTO registry_value(key, name, type, data) "
        "SELECT number, ?3, ?4, ?5 FROM registry_key WHERE root = ?1 AND path = ?2 "
        "ON CONFLICT(key, name) DO UPDATE SET type = excluded.type, data = excluded.data");
    statement.Bind(1, static_cast<int>(root)).BindBytes(2, path).BindBytes(3, valueName);
    return statement.Bind(4, static_cast<int>(value.type)).BindBytes(5, value.bytes).Run();
}

bool CSqliteRegistry::Remove(RegistryRoot root, std::u16string_view key, std::u16string_view name) {
    const std::string path = EncodeText(key);
    const std::string valueName = EncodeText(name);
    return m_connection.Write([&] {
        CStatement statement = m_connection.Prepare(
            "DELETE FROM registry_value WHERE key = "
            "(SELECT number FROM registry_key WHERE root = ? AND path = ?) AND name = ?");
        return statement.Bind(1, static_cast<int>(root)).BindBytes(2, path).BindBytes(3, valueName).Run();
    });
}

bool CSqliteRegistry::Exchange(RegistryRoot root, std::u16string_view key, std::span<const RegistryAssignment> expected,
                               std::span<const RegistryAssignment> changes) {
    const auto isAsExpected = [&](const RegistryAssignment& value) {
        return Query(root, key, value.name) == value.value;
    };
    const auto make = [&](const RegistryAssignment& change) {
        return change.value ? Set(root, key, change.name, *change.value) : Remove(root, key, change.name);
    };
    return m_connection.Transact([&] {
        return std::all_of(expected.begin(), expected.end(), isAsExpected) &&
               std::all_of(changes.begin(), changes.end(), make);
    });
}

std::vector<RegistryEntry> CSqliteRegistry::List() {
    CStatement statement = m_connection.Prepare(
        "SELECT k.root, k.path, v.name, v.type, v.data FROM registry_value v "
        "JOIN registry_key k ON k.number = v.key ORDER BY k.root, k.path, v.name");
    std::vector<RegistryEntry> entries;
    while (statement.NextRow()) {
        entries.push_back({statement.Integer(0) == 0 ? RegistryRoot::kLocalMachine : RegistryRoot::kCurrentUser,
                           DecodeText(statement.Bytes(1)),
                           DecodeText(statement.Bytes(2)),
                           {TypeOf(statement.Integer(3)), std::string(statement.Bytes(4))}});
    }
    return entries;
}

}  // namespace rlx
