#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "shell/registry_store.h"
#include "tools/converter/unit_tables.h"

/// The pairs of units that were converted lately, kept in the device's settings.
namespace rlx {

struct RecentPair {
    std::size_t category = 0;
    std::u16string from;
    std::u16string to;

    friend bool operator==(const RecentPair&, const RecentPair&) = default;
};

inline constexpr std::size_t kMaxRecentPairs = 8;

/// What the settings hold, newest first, at most `kMaxRecentPairs`. Lines that name no category or no two units are
/// left out; whether the units still exist is not looked at.
std::vector<RecentPair> LoadRecentPairs(CRegistryStore& settings);

/// False when the device refuses.
bool SaveRecentPairs(CRegistryStore& settings, const std::vector<RecentPair>& pairs);

/// Whether the category holds both units.
bool HasPair(const UnitTables& tables, const RecentPair& pair);

}  // namespace rlx
