#include "shell/menu_template.h"

#include <utility>

#include "shell/byte_cursor.h"

namespace rlx {
namespace {

constexpr int kMaxDepth = 8;
constexpr int kMaxEntries = 512;

constexpr unsigned kPopupFlag = 0x0010;
constexpr unsigned kLastFlag = 0x0080;  // the last entry of its level
constexpr unsigned kSeparatorFlag = 0x0800;

class CMenuParser {
public:
    explicit CMenuParser(std::span<const std::byte> resource) : m_cursor(resource) {}

    std::optional<MenuTemplate> Parse() {
        const auto version = m_cursor.U16();
        const std::size_t extra = m_cursor.U16();
        m_cursor.Skip(extra);
        if (!m_cursor.Ok() || version != 0) return std::nullopt;
        MenuTemplate menu;
        if (!Level(menu, 0)) return std::nullopt;
        return menu;
    }

private:
    bool Level(MenuTemplate& entries, int depth) {
        if (depth > kMaxDepth) return false;
        unsigned flags = 0;
        while ((flags & kLastFlag) == 0) {
            MenuEntry entry;
            flags = m_cursor.U16();
            const bool popup = (flags & kPopupFlag) != 0;
            if (!popup) entry.id = m_cursor.U16();
            entry.text = m_cursor.ZeroEnded();
            if (!m_cursor.Ok() || ++m_count > kMaxEntries) return false;
            if (popup) {
                entry.kind = MenuEntry::Kind::kPopup;
                if (!Level(entry.entries, depth + 1)) return false;
            } else if ((flags & kSeparatorFlag) != 0 || (entry.id == 0 && entry.text.empty())) {
                entry.kind = MenuEntry::Kind::kSeparator;
            }
            entries.push_back(std::move(entry));
        }
        return true;
    }

    CByteCursor m_cursor;
    int m_count = 0;
};

}  // namespace

std::optional<MenuTemplate> ParseMenu(std::span<const std::byte> resource) {
    return CMenuParser(resource).Parse();
}

}  // namespace rlx
