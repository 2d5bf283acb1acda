#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/registry.h"

/// Numbers and texts as the registry holds them. Pure functions, any thread.
namespace rlx {

RegistryValue DwordValue(std::uint32_t number);

/// Two bytes for each character, no terminator.
RegistryValue TextValue(std::u16string_view text);

/// Nothing when the value is no DWORD of four bytes.
std::optional<std::uint32_t> DwordOf(const RegistryValue& value);

/// Nothing when the value is no text; an odd last byte is dropped.
std::optional<std::u16string> TextOf(const RegistryValue& value);

}  // namespace rlx
