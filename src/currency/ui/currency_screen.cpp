#include "currency/ui/currency_screen.h"

#include <QPainter>
#include <algorithm>

#include "shell/fill_text.h"
#include "skins/skin_file.h"
#include "uikit/icons.h"
#include "uikit/page_palette.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kMargin = 4;
constexpr int kGap = 4;
constexpr int kLeastRow = 22;
constexpr int kMostRow = 44;
constexpr int kRowForRate = 34;
constexpr int kWidest = 640;
constexpr int kButtonHeight = 32;
constexpr int kButtonWidth = 84;
constexpr int kLowScreen = 244;
constexpr int kFooterFont = 11;
constexpr int kTallFooterFont = 13;
constexpr int kTallScreen = 420;

/// Where things stand on a screen of a size. A low one has its labels side by side.
struct ScreenLayout {
    int left = 0;
    int width = 0;
    int rowHeight = 0;
    int footerHeight = 0;
    bool withRate = false;
    bool low = false;
};

ScreenLayout LayOutScreen(const QSize& size) {
    ScreenLayout layout;
    layout.low = size.height() < kLowScreen && size.width() > size.height();
    layout.width = std::min(size.width() - 2 * kMargin, kWidest);
    layout.left = (size.width() - layout.width) / 2;
    layout.footerHeight = layout.low ? kButtonHeight : (size.height() < kTallScreen ? 44 : 62);
    const int pairs = static_cast<int>(kConverterPairs);
    const int room = size.height() - layout.footerHeight - 2 * kMargin - pairs * kGap;
    const int withoutFrames = room / pairs - CPairPanel::HeightFor(0, false);
    const int withRate = room / pairs - CPairPanel::HeightFor(0, true);
    layout.withRate = withRate / 2 >= kRowForRate;
    layout.rowHeight = std::clamp((layout.withRate ? withRate : withoutFrames) / 2, kLeastRow, kMostRow);
    return layout;
}

}  // namespace

CCurrencyScreen::CCurrencyScreen(const Source& source, const IClock& clock, const ITexts& texts, const CLook& look)
    : m_source(source),
      m_clock(clock),
      m_texts(texts),
      m_look(look),
      m_pairs(source.registry),
      m_empty(new QLabel(this)),
      m_updateLabel(new QLabel(this)),
      m_origin(new QLabel(this)),
      m_update(new QPushButton(this)) {
    setObjectName("currencyScreen");
    for (std::size_t row = 0; row < kConverterPairs; ++row) {
        m_panels[row] = new CPairPanel(texts, look, this);
        m_panels[row]->setObjectName(QStringLiteral("pair%1").arg(row));
        connect(m_panels[row], &CPairPanel::PairChanged, this,
                [this, row] { m_pairs.Write(row, m_panels[row]->Pair()); });
    }
    setFocusProxy(m_panels[0]->findChild<QLineEdit*>("amount0"));
    MakeFooter();
    connect(&m_look, &CLook::Changed, this, &CCurrencyScreen::TakeColours);
    TakeColours();
    Refresh();
}

void CCurrencyScreen::MakeFooter() {
    m_empty->setObjectName("noCurrencies");
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setText(ToQString(m_texts.Text(kTextNoRates)));
    m_updateLabel->setObjectName("updateLabel");
    m_origin->setObjectName("ratesOrigin");
    for (QLabel* label : {m_empty, m_updateLabel, m_origin}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    m_update->setObjectName("update");
    m_update->setText(ToQString(m_texts.Text(kTextUpdate)));
    connect(m_update, &QPushButton::clicked, this, &CCurrencyScreen::UpdateChosen);
}

void CCurrencyScreen::Refresh() {
    m_currencies = m_source.database.All();
    for (std::size_t row = 0; row < kConverterPairs; ++row) {
        m_panels[row]->SetCurrencies(m_currencies, m_pairs.Read(row, m_currencies));
        m_panels[row]->setVisible(!m_currencies.empty());
    }
    m_empty->setVisible(m_currencies.empty());
    ShowOrigin();
}

/// At midnight rates may go out of date.
void CCurrencyScreen::Tick() {
    if (m_clock.Now().date != m_today) ShowOrigin();
}

RatesLayout CCurrencyScreen::Layout() const {
    const QSize area = window()->size();
    return {{area.width(), area.height()}, height()};
}

void CCurrencyScreen::TakeUpdate(const RatesUpdateResult& result) {
    if (result.label) m_label = result.label;
    Refresh();
}

void CCurrencyScreen::ShowOrigin() {
    m_today = m_clock.Now().date;
    const RatesOrigin origin = OriginOfRates(m_source.registry, m_source.shippedDate);
    const bool shipped = origin.source.empty();
    std::u16string label;
    if (m_label) {
        label = *m_label;
    } else if (!shipped && origin.date) {
        label = RatesUpdateLabel(m_texts, Layout(), *origin.date);
    }
    m_updateLabel->setText(ToQString(label));
    m_updateLabel->setVisible(!label.empty());
    std::u16string words;
    if (shipped) {
        words = FillText(m_texts.Text(kTextRatesOf),
                         {origin.date ? RatesDateText(*origin.date) : m_texts.Text(kTextUnknown)}) +
                u", ";
    }
    words += shipped ? m_texts.Text(kTextRatesShipped) : FillText(m_texts.Text(kTextSource), {origin.source});
    if (AreRatesStale(origin.date, m_today)) words += u" (" + m_texts.Text(kTextStale) + u")";
    m_origin->setText(ToQString(words));
    m_origin->setToolTip(m_origin->text());
    m_origin->setVisible(!m_currencies.empty());
    resizeEvent(nullptr);
}

void CCurrencyScreen::TakeColours() {
    const QColor text = m_look.Colour(SkinKey::kCurrencySTC);
    const QColor ground = m_look.Colour(SkinKey::kCurrencyBKC);
    QPalette palette =
        PagePalette(m_look, {m_look.Colour(SkinKey::kCurrencyPanC), text, m_look.Colour(SkinKey::kCurrencyPBC), text});
    palette.setColor(QPalette::Window, ground);
    setPalette(palette);
    palette.setColor(QPalette::WindowText, m_look.Colour(SkinKey::kCurrencyUPDC));
    m_updateLabel->setPalette(palette);
    m_origin->setPalette(palette);
    m_update->setIcon(TintedIcon("update", text));
    for (CPairPanel* panel : m_panels)
        panel->TakeColours();
    update();
}

void CCurrencyScreen::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (m_look.Skin().Value(SkinKey::kCurrencyBKC) == kSkinMissing) {
        m_look.PaintBackground(painter, rect(), LookPicture::kCommon);
    } else {
        painter.fillRect(rect(), m_look.Colour(SkinKey::kCurrencyBKC));
    }
}

void CCurrencyScreen::resizeEvent(QResizeEvent* /*event*/) {
    const ScreenLayout layout = LayOutScreen(size());
    int top = kMargin;
    for (CPairPanel* panel : m_panels) {
        panel->Arrange(layout.rowHeight, layout.withRate);
        panel->setGeometry(layout.left, top, layout.width, panel->height());
        top += panel->height() + kGap;
    }
    m_empty->setGeometry(layout.left, kMargin, layout.width, std::max(0, top - 2 * kGap));
    QFont footerFont = font();
    footerFont.setPixelSize(height() < kTallScreen ? kFooterFont : kTallFooterFont);
    m_updateLabel->setFont(footerFont);
    m_origin->setFont(footerFont);
    const QRect footer(layout.left, top, layout.width, layout.footerHeight);
    m_update->setGeometry(footer.right() + 1 - kButtonWidth, footer.top() + (footer.height() - kButtonHeight) / 2,
                          kButtonWidth, kButtonHeight);
    QRect words = footer.adjusted(0, 0, -kButtonWidth - kGap, 0);
    if (!m_updateLabel->text().isEmpty()) {
        QRect label = words;
        if (layout.low) {
            label.setWidth(m_updateLabel->fontMetrics().horizontalAdvance(m_updateLabel->text()) + kGap);
            words.setLeft(label.right() + kGap);
        } else {
            const auto lines = static_cast<int>(m_updateLabel->text().count('\n')) + 1;
            label.setHeight(m_updateLabel->fontMetrics().height() * lines);
            words.setTop(label.bottom() + 1);
        }
        m_updateLabel->setGeometry(label);
    }
    m_origin->setGeometry(words);
}

}  // namespace rlx
