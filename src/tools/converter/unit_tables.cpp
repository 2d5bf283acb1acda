#include "tools/converter/unit_tables.h"

namespace rlx {

UnitTables TablesFromRows(const std::vector<UnitRecord>& rows) {
    UnitTables tables;
    if (rows.empty()) return tables;
    std::size_t at = 0;
    for (std::size_t category = 0; category < kCategoryCount; ++category) {
        std::vector<Unit>& table = tables[category];
        if (category == kTemperatures) {
            for (const SeedUnit& unit : SeedTemperatures())
                table.push_back({std::u16string(unit.name), std::u16string(unit.factor)});
            at += SeedTemperatures().size();
            continue;
        }
        for (const std::u16string code = CategoryCode(category); at < rows.size() && rows[at].code == code; ++at) {
            if (table.size() < kMaxUnits) table.push_back({rows[at].name, rows[at].factor});
        }
    }
    return tables;
}

}  // namespace rlx
