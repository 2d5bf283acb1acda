#include "tools/clothing/size_tables.h"

#include <algorithm>

namespace rlx {

std::size_t ColumnsOf(const SizeTable& table) {
    std::size_t columns = 0;
    for (const SizeLine& line : table.lines) {
        for (std::size_t column = 0; column < line.cells.size(); ++column) {
            if (!line.cells[column].empty()) columns = std::max(columns, column + 1);
        }
    }
    return columns;
}

std::u16string LineText(const SizeLine& line) {
    std::u16string text(line.country);
    const auto append = [&text](std::u16string_view cell) {
        if (!cell.empty()) text.append(u" ").append(cell);
    };
    std::ranges::for_each(line.cells, append);
    append(line.note);
    return text;
}

std::u16string TitleText(std::u16string_view label) {
    std::u16string text;
    for (std::size_t i = 0; i < label.size(); ++i) {
        if (label[i] == u'&' && i + 1 < label.size() && label[i + 1] == u'&') ++i;
        text.push_back(label[i]);
    }
    return text;
}

}  // namespace rlx
