#include "tools/clothing/ui/clothing_tool.h"

#include <QPainter>
#include <algorithm>

#include "tools/clothing/text_ids.h"
#include "uikit/page_palette.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kMargin = 5;
constexpr int kSmallGap = 3;
constexpr int kPanelInset = 4;
constexpr double kPanelRadius = 10;
constexpr int kPanelOpacity = 208;  // of 255
constexpr int kWidest = 720;
constexpr int kControlHeight = 28;
constexpr int kLowControlHeight = 24;
constexpr int kSmallestTable = 68;
constexpr int kLargestTable = 220;
constexpr int kLowPage = 200;   // below it everything moves closer
constexpr int kSmallFont = 11;  // pixels
constexpr int kUsualFont = 14;
constexpr int kSideForUsualFont = 400;

}  // namespace

CClothingTool::CClothingTool(const ITexts& texts, const CLook& look) : m_texts(texts), m_look(look) {
    setObjectName("clothingPage");
    MakeControls();
    LayOut();
    connect(m_garment, &QComboBox::currentIndexChanged, this, [this](int index) {
        m_page.Select(static_cast<Garment>(index));
        ShowTable();
    });
    connect(&m_audience, &QButtonGroup::idClicked, this, [this](int id) {
        m_page.Press(static_cast<Audience>(id));
        ShowTable();
    });
    Refresh();
    ShowTable();
}

void CClothingTool::MakeControls() {
    m_garment = new QComboBox(this);
    m_garment->setObjectName("garment");
    m_garment->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_garment->setAccessibleName(ToQString(m_texts.Text(kTextToolClothing)));
    for (std::size_t i = 0; i < kGarmentCount; ++i)
        m_garment->addItem(ToQString(m_texts.Text(GarmentName(static_cast<Garment>(i)))));
    m_garment->setCurrentIndex(static_cast<int>(m_page.Selected()));
    static constexpr std::array kNames = {"men", "women", "children"};
    for (std::size_t i = 0; i < kAudienceCount; ++i) {
        auto* button = new QPushButton(ToQString(m_texts.Text(AudienceName(static_cast<Audience>(i)))), this);
        button->setObjectName(QLatin1String(kNames[i]));
        button->setCheckable(true);
        button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        m_audience.addButton(button, static_cast<int>(i));
    }
    m_title = new QLabel(this);
    m_title->setObjectName("sizesTitle");
    m_title->setAlignment(Qt::AlignCenter);
    m_title->setTextFormat(Qt::PlainText);
    m_table = new CSizeTableView(this);
    m_note = new QLabel(ToQString(m_texts.Text(kTextSizesGuideline)), this);
    m_note->setObjectName("sizesNote");
    m_note->setAlignment(Qt::AlignCenter);
    m_note->setWordWrap(true);
}

void CClothingTool::LayOut() {
    m_column = new QVBoxLayout(this);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(kMargin);
    for (QAbstractButton* button : m_audience.buttons())
        buttons->addWidget(button, 1);
    m_column->setSpacing(kMargin);
    m_choices = new QVBoxLayout;
    m_choices->addWidget(m_garment);
    m_choices->addLayout(buttons);
    m_column->addLayout(m_choices);
    m_column->addWidget(m_title);
    m_column->addWidget(m_table, 1);
    m_column->addWidget(m_note);
    m_column->addStretch(0);
    m_table->setMinimumHeight(kSmallestTable);
    m_table->setMaximumHeight(kLargestTable);
}

/// The button pressed is drawn pressed; where there is no choice all are released and out of use.
void CClothingTool::ShowTable() {
    const std::optional<Audience> pressed = m_page.Pressed();
    m_audience.setExclusive(false);
    for (QAbstractButton* button : m_audience.buttons()) {
        const bool isPressed = pressed && m_audience.id(button) == static_cast<int>(*pressed);
        button->setChecked(isPressed);
        button->setEnabled(pressed.has_value());
    }
    m_audience.setExclusive(pressed.has_value());
    m_title->setText(ToQString(rlx::TitleText(m_texts.Text(m_page.Table().title))));
    m_table->SetTable(m_page.Table());
}

void CClothingTool::Entered() {
    m_garment->setFocus(Qt::OtherFocusReason);
}

void CClothingTool::Refresh() {
    const auto colour = [this](SkinKey key) { return m_look.Colour(key); };
    setPalette(PagePalette(m_look, {colour(SkinKey::kToolsPCS), colour(SkinKey::kToolsTC1S),
                                    colour(SkinKey::kToolsPBCS), colour(SkinKey::kToolsTTCS)}));
    m_table->SetColours(colour(SkinKey::kToolsTC1S), colour(SkinKey::kToolsTC2S));
    update();
}

void CClothingTool::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor panel = palette().color(QPalette::Base);
    panel.setAlpha(kPanelOpacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(panel);
    const QRect inner = m_title->geometry() | m_table->geometry() | m_note->geometry();
    painter.drawRoundedRect(inner.adjusted(-kPanelInset, -kPanelInset, kPanelInset, kPanelInset) & rect(), kPanelRadius,
                            kPanelRadius);
}

void CClothingTool::resizeEvent(QResizeEvent* /*event*/) {
    QFont sized = font();
    sized.setPixelSize(std::min(width(), height()) >= kSideForUsualFont ? kUsualFont : kSmallFont);
    setFont(sized);
    QFont bold = sized;
    bold.setPixelSize(sized.pixelSize() + 2);
    bold.setBold(true);
    m_title->setFont(bold);
    const int side = std::max(kMargin + kPanelInset, (width() - kWidest) / 2);
    const bool low = height() < kLowPage;
    m_column->setSpacing(low ? kSmallGap : kMargin);
    m_choices->setSpacing(low ? kSmallGap : kMargin);
    const int controlHeight = low ? kLowControlHeight : kControlHeight;
    m_garment->setFixedHeight(controlHeight);
    for (QAbstractButton* button : m_audience.buttons())
        button->setFixedHeight(controlHeight);
    m_column->setContentsMargins(side, kMargin, side, kMargin + kPanelInset);
}

}  // namespace rlx
