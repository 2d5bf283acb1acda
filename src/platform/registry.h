#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace rlx {

enum class RegistryRoot { kLocalMachine, kCurrentUser };

/// The numbers are those that the device store keeps.
enum class RegistryType { kString = 1, kBinary = 3, kDword = 4 };

/// One value as it lies in the registry. `kString`: UTF-16 units, little-endian, without a terminator. `kDword`: 4
/// bytes, little-endian.
struct RegistryValue {
    RegistryType type = RegistryType::kBinary;
    std::string bytes;

    friend bool operator==(const RegistryValue&, const RegistryValue&) = default;
};

/// What a value of a key is to be, or is expected to be; without `value`: not there.
struct RegistryAssignment {
    std::u16string_view name;
    std::optional<RegistryValue> value;
};

/// A value with its place, for listings.
struct RegistryEntry {
    RegistryRoot root = RegistryRoot::kLocalMachine;
    std::u16string key;
    std::u16string name;
    RegistryValue value;
};

/// The device's settings: a tree of keys below two roots, each key holding named values. A key path has its levels
/// separated by a backslash ("Roamlytix\map"); key and value names are compared exactly. Calls are atomic and what a
/// call returned as written survives a crash. Used from one thread; other processes may change the same registry at any
/// time.
class IRegistry {
public:
    /// The most characters of a key path that can be created.
    static constexpr std::size_t kMaxKeyLength = 1024;

    virtual ~IRegistry() = default;

    /// True when the key can be opened: it was created, or a key below it was. The empty path is the root itself and
    /// always there. When the device cannot be read the answer is true, so that nobody takes a key for missing and
    /// writes defaults over values that could not be seen.
    virtual bool KeyExists(RegistryRoot root, std::u16string_view key) = 0;

    /// The names of the key's values in the order in which they were first written; empty when the key cannot be
    /// opened.
    virtual std::vector<std::u16string> ValueNames(RegistryRoot root, std::u16string_view key) = 0;

    virtual std::optional<RegistryValue> Query(RegistryRoot root, std::u16string_view key,
                                               std::u16string_view name) = 0;

    /// Creates the key and those above it when missing and sets the value. False when the device refuses.
    virtual bool Set(RegistryRoot root, std::u16string_view key, std::u16string_view name,
                     const RegistryValue& value) = 0;

    /// Removes one value; true when it is not there afterwards.
    virtual bool Remove(RegistryRoot root, std::u16string_view key, std::u16string_view name) = 0;

    /// Makes all `changes` of one key, creating it when missing, provided that every value that `expected` names is as
    /// it says. One step: no other process comes in between, and a crash leaves all or nothing. False when a value was
    /// not as expected or the device refuses; nothing is changed then.
    virtual bool Exchange(RegistryRoot root, std::u16string_view key, std::span<const RegistryAssignment> expected,
                          std::span<const RegistryAssignment> changes) = 0;

    /// Every value, ordered by root, key and name.
    virtual std::vector<RegistryEntry> List() = 0;
};

}  // namespace rlx
