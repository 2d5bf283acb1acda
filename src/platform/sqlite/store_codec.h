#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/object_store.h"

/// How texts and records lie in the device store. Pure functions.
namespace rlx {

/// UTF-16 units, big-endian: comparing the bytes compares the units, and any unit survives (unpaired surrogates, zero,
/// a byte-order mark).
std::string EncodeText(std::u16string_view text);

/// The inverse; an odd last byte is dropped.
std::u16string DecodeText(std::string_view bytes);

/// One stretch for each property, in order: number and count of units (each 4 bytes, big-endian), then the units.
std::string EncodeRecord(const Record& record);

/// Nothing when the bytes are not a record.
std::optional<Record> DecodeRecord(std::string_view bytes);

/// The bytes of one property's text, as `EncodeText` made them; empty when there is none. Points into `bytes`.
std::string_view EncodedProperty(std::string_view bytes, PropertyId id);

/// The property numbers of a database's sort orders, 4 bytes each, big-endian, the primary one first.
std::string EncodeSortOrders(const std::vector<PropertyId>& sortOrders);
std::vector<PropertyId> DecodeSortOrders(std::string_view bytes);

}  // namespace rlx
