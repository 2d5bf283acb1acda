#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace rlx {

/// One line of a menu: a command, a separator, or a popup with entries of its own. "&" in a text marks its mnemonic.
struct MenuEntry {
    enum class Kind { kCommand, kSeparator, kPopup };

    Kind kind = Kind::kCommand;
    int id = 0;  // a CommandId; 0 for separators and popups
    std::u16string text;
    std::vector<MenuEntry> entries;

    friend bool operator==(const MenuEntry&, const MenuEntry&) = default;
};

using MenuTemplate = std::vector<MenuEntry>;

/// Reads a menu resource. Nothing when it is cut off, of another version, nested deeper than 8 popups or longer than
/// 512 entries in all.
std::optional<MenuTemplate> ParseMenu(std::span<const std::byte> resource);

}  // namespace rlx
