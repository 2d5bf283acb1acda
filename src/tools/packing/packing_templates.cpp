#include "tools/packing/packing_templates.h"

#include <algorithm>

#include "base/text.h"
#include "tools/packing/text_ids.h"

namespace rlx {

namespace {

constexpr TextId kTemplates[] = {kTextTemplateCityBreak, kTextTemplateBeach,  kTextTemplateHiking,
                                 kTextTemplateBusiness,  kTextTemplateWinter, kTextTemplateCamping};

constexpr std::u16string_view kBullets = u"-*+•–>";

std::u16string WithoutBullet(std::u16string_view line) {
    const bool hasBullet =
        line.size() > 1 && kBullets.find(line[0]) != std::u16string_view::npos && (line[1] == u' ' || line[1] == u'\t');
    return hasBullet ? Trim(line.substr(2)) : std::u16string(line);
}

}  // namespace

std::vector<PackingTemplate> PackingTemplates(const ITexts& texts) {
    std::vector<PackingTemplate> templates;
    for (const TextId name : kTemplates)
        templates.push_back({texts.Text(name), Split(texts.Text(name + 1), u';')});
    return templates;
}

std::vector<std::u16string> PastedItems(std::u16string_view text) {
    std::u16string lines(text);
    std::ranges::replace(lines, u'\r', u'\n');
    std::vector<std::u16string> items;
    for (const std::u16string& line : Split(lines, u'\n')) {
        std::u16string item = WithoutBullet(Trim(line));
        if (!item.empty()) items.push_back(std::move(item));
    }
    return items;
}

}  // namespace rlx
