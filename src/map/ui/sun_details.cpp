#include "map/ui/sun_details.h"

#include <QLabel>

#include "base/number.h"
#include "map/city_sun.h"
#include "shell/control_ids.h"
#include "uikit/qt_text.h"
#include "uikit/template_dialog.h"

namespace rlx {
namespace {

constexpr int kWidth = 340;

void MakeBold(const CTemplateDialog& dialog, int control) {
    auto* label = dialog.Control<QLabel>(control);
    if (label == nullptr) return;
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
}

}  // namespace

void ShowSunDetails(const CitySunDetails& details, const Date& date, ClockForm form, const CResources& resources,
                    QWidget* parent) {
    const RiseSetPlace place = RiseSetPlaceOf(details.latitude, details.longitude, ParseInteger(details.effectiveGmt));
    const SunTexts sun = SunTextsOf(SunRiseAndSet(date, place), form, resources);
    CTemplateDialog dialog(resources.Dialog(kDialogSunDetails).value_or(DialogTemplate{}), parent);
    dialog.setObjectName("sunDetails");
    const auto set = [&dialog](int control, const std::u16string& text) {
        if (auto* label = dialog.Control<QLabel>(control)) label->setText(ToQString(text));
    };
    set(kControlSunCity, details.name + u", " + details.country);
    set(kControlSunPosition, u"Long: " + details.longitude + u" Lat: " + details.latitude);
    set(kControlSunDaylightSaving, details.dstStatus);
    set(kControlSunPeriod, details.dstStartEnd);
    set(kControlSunGmt, details.gmtText);
    set(kControlSunrise, sun.sunrise);
    set(kControlSunset, sun.sunset);
    set(kControlDayLength, sun.dayLength);
    set(kControlSunNote, sun.note);
    MakeBold(dialog, kControlSunCity);
    MakeBold(dialog, kControlSunNote);
    dialog.resize(kWidth, dialog.heightForWidth(kWidth));
    dialog.exec();
}

}  // namespace rlx
