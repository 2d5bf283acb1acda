#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/texts.h"

namespace rlx {

/// A ready list for a kind of trip, offered when a category is made.
struct PackingTemplate {
    std::u16string name;
    std::vector<std::u16string> items;
};

/// All templates in the language in force.
std::vector<PackingTemplate> PackingTemplates(const ITexts& texts);

/// The items of a text that was pasted: one for each line that is not blank, without the bullet in front.
std::vector<std::u16string> PastedItems(std::u16string_view text);

}  // namespace rlx
