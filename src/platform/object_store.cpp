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

std::vector<Record> IRecordDatabase::Records(PropertyId sortProperty) {
    std::vector<Record> records;
    for (std::size_t at = 0; const auto id = SeekPosition(sortProperty, at); ++at) {
        if (auto record = Read(*id)) records.push_back(*std::move(record));
    }
    return records;
}

std::vector<std::u16string> IRecordDatabase::Texts(PropertyId sortProperty) {
    std::vector<std::u16string> texts;
    while (const auto id = SeekPosition(sortProperty, texts.size())) {
        const auto record = Read(*id);
        texts.push_back(record ? PropertyText(*record, sortProperty) : std::u16string());
    }
    return texts;
}

}  // namespace rlx
