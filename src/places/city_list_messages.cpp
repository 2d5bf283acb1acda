#include "places/city_list_messages.h"

#include "base/number.h"
#include "places/text_ids.h"
#include "shell/boxes.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"

namespace rlx {

namespace {

constexpr std::u16string_view kFile = u"cities.lst";

std::optional<TextId> FailureText(CityListChange state) {
    switch (state) {
        case CityListChange::kNotRead:
            return kTextFileNotRead;
        case CityListChange::kNotWritable:
            return kTextCityListFaulty;
        case CityListChange::kNotSaved:
            return kTextFileNotSaved;
        default:
            return std::nullopt;
    }
}

std::u16string Count(std::size_t number) {
    return FormatInteger(static_cast<std::int64_t>(number));
}

}  // namespace

void ReportCityList(const CityListResult& result, IMessageBoxes& boxes, const ITexts& texts) {
    if (const auto id = FailureText(result.state)) boxes.Show(ErrorBox(texts, FillText(texts.Text(*id), {kFile})));
    for (const std::u16string& city : result.gone)
        boxes.Show(NoteBox(texts, FillText(texts.Text(kTextCityGone), {city})));
}

bool ReportRefresh(const RulesRefresh& refresh, IMessageBoxes& boxes, const ITexts& texts) {
    if (refresh.state == RulesRefresh::State::kNoZones) boxes.Show(ErrorBox(texts, texts.Text(kTextNoZoneData)));
    ReportCityList(refresh.list, boxes, texts);
    return refresh.state == RulesRefresh::State::kDone;
}

std::u16string RefreshText(const RulesRefresh& refresh, int year, const ITexts& texts) {
    std::u16string text = FillText(texts.Text(kTextRulesRefreshed), {FormatInteger(year), Count(refresh.changed)});
    if (refresh.kept == 0) return text;
    return text.append(u"\n").append(FillText(texts.Text(kTextRulesKept), {Count(refresh.kept)}));
}

}  // namespace rlx
