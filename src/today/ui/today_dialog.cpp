#include "today/ui/today_dialog.h"

#include <QLabel>

#include "shell/control_ids.h"
#include "today/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kHeadingSize = 18;
constexpr int kBodySize = 14;

QFont FontOf(int pixels, QFont::Weight weight) {
    QFont font("Arial");
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

}  // namespace

CTodayDialog::CTodayDialog(CRegistryStore& settings, const CResources& resources, QWidget* parent)
    : CTemplateDialog(resources.Dialog(kDialogTodayOptions).value_or(DialogTemplate{}), parent),
      m_settings(settings),
      m_cities(Control<QComboBox>(kControlTodayCities)),
      m_rates(Control<QCheckBox>(kControlTodayRates)) {
    setObjectName("todayOptions");
    for (QWidget* child : findChildren<QWidget*>())
        child->setFont(FontOf(kBodySize, QFont::Normal));
    if (auto* heading = Control<QLabel>(kControlTodayHeading)) heading->setFont(FontOf(kHeadingSize, QFont::Bold));
    const TodayOptions options = ReadTodayOptions(m_settings);
    for (int count = 1; m_cities != nullptr && count <= kMostTodayCities; ++count)
        m_cities->addItem(QString::number(count));
    if (m_cities != nullptr) m_cities->setCurrentIndex(options.cities - 1);
    if (m_rates == nullptr) return;
    m_rates->setText(ToQString(resources.Text(kTextShowCurrencyRates)));
    m_rates->setChecked(options.rates);
}

void CTodayDialog::done(int result) {
    TodayOptions options = ReadTodayOptions(m_settings);
    if (m_cities != nullptr) options.cities = m_cities->currentIndex() + 1;
    if (m_rates != nullptr) options.rates = m_rates->isChecked();
    WriteTodayOptions(m_settings, options);
    QDialog::done(result);
}

}  // namespace rlx
