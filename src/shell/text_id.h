#pragma once

namespace rlx {

/// The number of a text in the string table, resources/English.rc. The numbers stand in the text_ids.h of each room,
/// one "inline constexpr TextId kTextName = number;" a line; the resource compiler reads them from there, so each
/// stands once. A number is never used for another text: language modules out in the world hold them.
using TextId = int;

}  // namespace rlx
