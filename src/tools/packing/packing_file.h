#pragma once

#include <string>
#include <string_view>

#include "tools/packing/packing_lists.h"

/// The bytes of "pack.dat"; docs/formats/pack-dat.md describes them. Pure functions, any thread.
namespace rlx {

struct PackingFile {
    CPackingLists lists;

    /// True when the bytes held something that `lists` does not: the file was malformed (the lists are then the default
    /// ones), had more categories, lists or text than fit, or line ends that cost a name its last letter. Saving would
    /// lose it.
    bool lossy = false;
};

/// Takes any bytes: UTF-8, or Windows-1252 when they are no UTF-8. No bytes at all give the default lists.
PackingFile ReadPackingFile(std::string_view bytes);

/// UTF-8. What is written here reads back the same.
std::string WritePackingFile(const CPackingLists& lists);

}  // namespace rlx
