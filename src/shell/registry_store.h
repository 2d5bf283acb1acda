#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/registry.h"

namespace rlx {

/// What became of the last read.
enum class ReadStatus : int {
    kRead = 0,
    kValueMissing = -1,  ///< the key opened but holds no such value (of the type asked for)
    kKeyMissing = -2     ///< the key cannot be opened
};

/// A number setting and what it counts as when it is not there.
struct DwordSetting {
    std::u16string_view name;
    std::uint32_t fallback = 0;
    bool writeWhenMissing = false;  ///< the default is also written when only the value is missing
};

/// The way to the device's settings. Each screen has one of its own; it remembers the status of its last read and
/// nothing else, so every read shows what is stored now. A failed read counts as missing. Does not own the registry.
class CRegistryStore {
public:
    /// The room for a value's name in the enumeration that `ReadDword` makes, the terminator included.
    static constexpr std::size_t kNameBuffer = 20;

    explicit CRegistryStore(IRegistry& registry);

    /// The number; 0 when it was not read. It is looked for among the names of the key's values, so a name of
    /// `kNameBuffer` characters or more is never found.
    std::uint32_t ReadDword(RegistryRoot root, std::u16string_view key, std::u16string_view name);

    /// The text as stored; empty when it was not read.
    std::u16string ReadString(RegistryRoot root, std::u16string_view key, std::u16string_view name);

    ReadStatus Status() const { return m_status; }

    /// The writes create the key when it is missing. False when the device refuses.
    bool WriteDword(RegistryRoot root, std::u16string_view key, std::u16string_view name, std::uint32_t value);

    /// Stores two bytes for each character and no terminator.
    bool WriteString(RegistryRoot root, std::u16string_view key, std::u16string_view name, std::u16string_view text);

    bool WriteBinary(RegistryRoot root, std::u16string_view key, std::u16string_view name, const void* bytes,
                     std::size_t count);

    /// The default rule of every number setting: a missing value counts as `fallback`; when the whole key is missing
    /// the fallback is also written at once. `key` lies below `RootOf(key)`.
    std::uint32_t ReadDwordOr(std::u16string_view key, std::u16string_view name, std::uint32_t fallback);

    /// The same for settings of one key that are read together: all are read before the first default is written, so
    /// that a missing key is missing for each of them.
    std::vector<std::uint32_t> ReadDwordsOr(std::u16string_view key, std::span<const DwordSetting> settings);

private:
    bool FindName(RegistryRoot root, std::u16string_view key, std::u16string_view name);

    IRegistry& m_registry;
    ReadStatus m_status = ReadStatus::kRead;
};

}  // namespace rlx
