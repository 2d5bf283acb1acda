#include "news/news_elements.h"

#include <algorithm>
#include <array>

namespace rlx {

namespace {

constexpr std::array kElements = std::to_array<NewsElement>({
    {u"a", NewsForm::kInline, u"a"},          {u"b", NewsForm::kInline, u"b"},
    {u"big", NewsForm::kInline, u"big"},      {u"cite", NewsForm::kInline, u"i"},
    {u"code", NewsForm::kInline, u"tt"},      {u"del", NewsForm::kInline, u"s"},
    {u"dfn", NewsForm::kInline, u"i"},        {u"em", NewsForm::kInline, u"i"},
    {u"font", NewsForm::kInline, u"font"},    {u"i", NewsForm::kInline, u"i"},
    {u"ins", NewsForm::kInline, u"u"},        {u"kbd", NewsForm::kInline, u"tt"},
    {u"s", NewsForm::kInline, u"s"},          {u"samp", NewsForm::kInline, u"tt"},
    {u"small", NewsForm::kInline, u"small"},  {u"strike", NewsForm::kInline, u"s"},
    {u"strong", NewsForm::kInline, u"b"},     {u"sub", NewsForm::kInline, u"sub"},
    {u"sup", NewsForm::kInline, u"sup"},      {u"tt", NewsForm::kInline, u"tt"},
    {u"u", NewsForm::kInline, u"u"},          {u"var", NewsForm::kInline, u"i"},
    {u"address", NewsForm::kBlock, u"div"},   {u"article", NewsForm::kBlock, u"div"},
    {u"aside", NewsForm::kBlock, u"div"},     {u"blockquote", NewsForm::kBlock, u"blockquote"},
    {u"center", NewsForm::kBlock, u"center"}, {u"div", NewsForm::kBlock, u"div"},
    {u"figure", NewsForm::kBlock, u"div"},    {u"footer", NewsForm::kBlock, u"div"},
    {u"form", NewsForm::kBlock, u"div"},      {u"h1", NewsForm::kBlock, u"h1"},
    {u"h2", NewsForm::kBlock, u"h2"},         {u"h3", NewsForm::kBlock, u"h3"},
    {u"h4", NewsForm::kBlock, u"h4"},         {u"h5", NewsForm::kBlock, u"h5"},
    {u"h6", NewsForm::kBlock, u"h6"},         {u"header", NewsForm::kBlock, u"div"},
    {u"main", NewsForm::kBlock, u"div"},      {u"nav", NewsForm::kBlock, u"div"},
    {u"p", NewsForm::kBlock, u"p"},           {u"pre", NewsForm::kBlock, u"pre"},
    {u"section", NewsForm::kBlock, u"div"},   {u"dl", NewsForm::kList, u"dl"},
    {u"ol", NewsForm::kList, u"ol"},          {u"ul", NewsForm::kList, u"ul"},
    {u"dd", NewsForm::kItem, u"dd"},          {u"dt", NewsForm::kItem, u"dt"},
    {u"li", NewsForm::kItem, u"li"},          {u"table", NewsForm::kTable, u"table"},
    {u"tbody", NewsForm::kRows, u"tbody"},    {u"tfoot", NewsForm::kRows, u"tfoot"},
    {u"thead", NewsForm::kRows, u"thead"},    {u"tr", NewsForm::kRow, u"tr"},
    {u"td", NewsForm::kCell, u"td"},          {u"th", NewsForm::kCell, u"th"},
    {u"br", NewsForm::kBreak, u"br"},         {u"hr", NewsForm::kRule, u"hr"},
});

/// A small number, perhaps with a sign.
bool IsNumber(std::u16string_view value) {
    if (value.starts_with(u'+') || value.starts_with(u'-')) value.remove_prefix(1);
    return !value.empty() && value.size() <= 3 &&
           std::ranges::all_of(value, [](char16_t unit) { return unit >= u'0' && unit <= u'9'; });
}

/// Up to "100%": a width in pixels would suit one screen alone.
bool IsPercentage(std::u16string_view value) {
    return value.ends_with(u'%') && value.size() <= 4 && IsNumber(value.substr(0, value.size() - 1));
}

bool IsWord(std::u16string_view value) {
    return !value.empty() && value.size() <= 10 && std::ranges::all_of(value, [](char16_t unit) {
        return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') || unit == u'1';
    });
}

bool IsAddress(std::u16string_view value) {
    return value.size() <= 2'048;
}

struct AttributeRule {
    std::u16string_view element;  ///< as written; empty for all
    std::u16string_view name;
    bool (*accepts)(std::u16string_view value);
};

constexpr std::array kAttributes = std::to_array<AttributeRule>({
    {u"", u"align", IsWord},
    {u"", u"dir", IsWord},
    {u"", u"id", IsAddress},
    {u"a", u"href", IsAddress},
    {u"a", u"name", IsAddress},
    {u"font", u"size", IsNumber},
    {u"ol", u"start", IsNumber},
    {u"ol", u"type", IsWord},
    {u"ul", u"type", IsWord},
    {u"table", u"border", IsNumber},
    {u"table", u"cellpadding", IsNumber},
    {u"table", u"cellspacing", IsNumber},
    {u"table", u"width", IsPercentage},
    {u"td", u"width", IsPercentage},
    {u"th", u"width", IsPercentage},
    {u"td", u"valign", IsWord},
    {u"th", u"valign", IsWord},
});

}  // namespace

const NewsElement* FindNewsElement(std::u16string_view name) {
    const auto* found = std::ranges::find(kElements, name, &NewsElement::name);
    return found == kElements.end() ? nullptr : found;
}

bool MayHave(const NewsElement& element, std::u16string_view attribute, std::u16string_view value) {
    return std::ranges::any_of(kAttributes, [&](const AttributeRule& rule) {
        return rule.name == attribute && (rule.element.empty() || rule.element == element.writtenAs) &&
               rule.accepts(value);
    });
}

}  // namespace rlx
