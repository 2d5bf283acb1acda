#include "platform/object_store.h"

#include <algorithm>

namespace rlx {

bool IsRecord(const std::vector<Property>& properties) {
    for (auto it = properties.begin(); it != properties.end(); ++it) {
        if (std::any_of(properties.begin(), it, [it](const Property& p) { return p.id == it->id; })) return false;
    }
    return true;
}

std::u16string PropertyText(const Record& record, PropertyId id) {
    const auto found = std::find_if(record.begin(), record.end(), [id](const Property& p) { return p.id == id; });
    return found == record.end() ? std::u16string() : found->text;
}

}  // namespace rlx
