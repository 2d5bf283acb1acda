#include "currency/ui/currency_screen.h"

#include <QPainter>
#include <algorithm>

#include "base/iso_day.h"
#include "currency/rate_card.h"
#include "currency/text_ids.h"
#include "currency/ui/currency_layout.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"
#include "skins/skin_file.h"
#include "uikit/icons.h"
#include "uikit/page_palette.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kSmallGap = 4;
constexpr int kLeastButtonWidth = 84;

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
      m_update(new QPushButton(this)),
      m_card(new CRateCardView(look, this)) {
    setObjectName("currencyScreen");
    for (std::size_t row = 0; row < kConverterPairs; ++row) {
        m_panels[row] = new CPairPanel(texts, look, this);
        m_panels[row]->setObjectName(QStringLiteral("pair%1").arg(row));
        connect(m_panels[row], &CPairPanel::PairChanged, this, [this, row] {
            m_pairs.Write(row, m_panels[row]->Pair());
            m_cardPair = row;
            ShowCard();
        });
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
    ShowCard();
}

void CCurrencyScreen::ShowCard() {
    if (m_currencies.empty()) return;
    const std::size_t base = m_panels[m_cardPair]->Pair().from;
    std::vector<std::size_t> chosen;
    for (const CPairPanel* panel : m_panels) {
        chosen.push_back(panel->Pair().to);
        chosen.push_back(panel->Pair().from);
    }
    const RatesOrigin origin = OriginOfRates(m_source.registry, m_source.shippedDate);
    m_card->Show(ToQString(FillText(m_texts.Text(kTextRateCard), {m_currencies[base].code})),
                 origin.date ? ToQString(ShownDay(*origin.date)) : QString(), RateCardOf(m_currencies, base, chosen));
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
        words =
            FillText(m_texts.Text(kTextRatesOf), {origin.date ? ShownDay(*origin.date) : m_texts.Text(kTextUnknown)}) +
            u", ";
    }
    words += shipped ? m_texts.Text(kTextRatesShipped) : FillText(m_texts.Text(kTextSource), {origin.source});
    if (AreRatesStale(origin.date, m_today)) words += u" (" + m_texts.Text(kTextStale) + u")";
    m_origin->setText(ToQString(words));
    m_origin->setToolTip(m_origin->text());
    m_origin->setVisible(!m_currencies.empty());
    Arrange();
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
    m_card->update();
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

/// The label's form depends on how the screen lies.
void CCurrencyScreen::resizeEvent(QResizeEvent* /*event*/) {
    ShowOrigin();
}

void CCurrencyScreen::Arrange() {
    const CurrencyLayout layout = LayOutCurrencies(size());
    int top = layout.top;
    for (CPairPanel* panel : m_panels) {
        panel->Arrange(layout.panel);
        panel->setGeometry(layout.left, top, layout.width, panel->height());
        top += panel->height() + layout.gap;
    }
    m_card->setGeometry(layout.card);
    m_card->setVisible(!layout.card.isEmpty() && !m_currencies.empty());
    m_empty->setGeometry(layout.left, layout.top, layout.width, top - 2 * layout.top);
    const QRect footer(layout.left, top, layout.width, layout.footerHeight);
    const int button = std::min(std::max(kLeastButtonWidth, m_update->sizeHint().width()), footer.width() / 2);
    m_update->setGeometry(footer.right() + 1 - button, footer.top() + (footer.height() - layout.buttonHeight) / 2,
                          button, layout.buttonHeight);
    QFont small = font();
    small.setPixelSize(layout.font);
    m_updateLabel->setFont(small);
    m_origin->setFont(small);
    ArrangeWords(footer.adjusted(0, 0, -button - kSmallGap, 0), layout.low);
}

/// The update label above the origin, or left of it.
void CCurrencyScreen::ArrangeWords(QRect words, bool sideBySide) {
    if (!m_updateLabel->text().isEmpty()) {
        const QFontMetrics metrics = m_updateLabel->fontMetrics();
        const QSize wanted = metrics.size(0, m_updateLabel->text());
        QRect label = words;
        if (sideBySide) {
            label.setWidth(wanted.width() + kSmallGap);
            words.setLeft(label.right() + kSmallGap);
        } else {
            label.setHeight(wanted.height());
            words.setTop(label.bottom() + 1);
        }
        m_updateLabel->setGeometry(label);
    }
    m_origin->setGeometry(words);
}

}  // namespace rlx
