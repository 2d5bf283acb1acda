#include "platform/object_store.h"

#include <algorithm>

namespace rlx {

std::u16string PropertyText(const Record& record, PropertyId id) {
    const auto found = std::find_if(record.begin(), record.end(), [id](const Property& p) { return p.id == id; });
    return found == record.end() ? std::u16string() : found->text;
}

}  // namespace rlx
