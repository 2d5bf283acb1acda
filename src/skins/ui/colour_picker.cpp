#include "skins/ui/colour_picker.h"

#include <QBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpressionValidator>

#include "shell/control_ids.h"
#include "skins/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr QSize kSwatch(64, 28);

QString NumberOf(const QColor& colour) {
    return colour.name(QColor::HexRgb).mid(1).toUpper();
}

QPixmap OldAndNew(const QColor& old, const QColor& colour, qreal ratio) {
    QPixmap pixmap((QSizeF(kSwatch) * ratio).toSize());
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(colour);
    QPainter(&pixmap).fillRect(0, 0, kSwatch.width() / 2, kSwatch.height(), old);
    return pixmap;
}

}  // namespace

CColourPicker::CColourPicker(const CResources& resources, const QString& title, const QColor& colour,
                             std::function<void(const QColor&)> follow, QWidget* parent)
    : CTemplateDialog(resources.Dialog(kDialogPickColour).value_or(DialogTemplate{}), parent),
      m_old(colour),
      m_colour(colour),
      m_follow(std::move(follow)),
      m_field(new CColourField(colour, this)),
      m_swatch(new QLabel(this)),
      m_text(Control<QLineEdit>(kControlColourText)) {
    setObjectName("colourPicker");
    setWindowTitle(title);
    resize(320, 310);
    AddField(resources);
    if (m_text != nullptr) {
        m_text->setClearButtonEnabled(false);
        m_text->setValidator(new QRegularExpressionValidator(QRegularExpression("#?[0-9A-Fa-f]{6}"), m_text));
        connect(m_text, &QLineEdit::textEdited, this, &CColourPicker::TakeText);
    }
    connect(m_field, &CColourField::Picked, this, [this](const QColor& picked) {
        Show(picked);
        m_follow(picked);
    });
    Show(colour);
    m_field->setFocus();
}

/// The name of what is coloured, the old and the new colour, the field.
void CColourPicker::AddField(const CResources& resources) {
    auto* column = qobject_cast<QBoxLayout*>(layout());
    if (column == nullptr) return;
    auto* heading = new QHBoxLayout;
    auto* name = new QLabel(windowTitle(), this);
    name->setWordWrap(true);
    name->setTextFormat(Qt::PlainText);
    m_swatch->setFrameStyle(QFrame::Box | QFrame::Plain);  // a colour may be that of the dialog itself
    m_swatch->setFixedSize(kSwatch + 2 * QSize(m_swatch->frameWidth(), m_swatch->frameWidth()));
    m_swatch->setObjectName("oldAndNew");
    heading->addWidget(name, 1);
    heading->addWidget(m_swatch);
    column->insertLayout(0, heading);
    column->insertWidget(1, m_field, 1);
    column->setStretch(column->count() - 2, 0);  // the field takes the room above the buttons
    m_field->setAccessibleName(ToQString(resources.Text(kTextColourPlane)));
}

void CColourPicker::Show(const QColor& colour) {
    m_colour = colour;
    m_swatch->setPixmap(OldAndNew(m_old, colour, devicePixelRatioF()));
    if (m_text != nullptr && !m_text->hasFocus()) m_text->setText(NumberOf(colour));
    if (auto* ok = Control<QPushButton>(kControlOk)) ok->setEnabled(true);
}

void CColourPicker::TakeText(const QString& text) {
    const QColor typed(text.startsWith('#') ? text : '#' + text);
    const bool whole = m_text->hasAcceptableInput() && typed.isValid();
    if (auto* ok = Control<QPushButton>(kControlOk)) ok->setEnabled(whole);
    if (!whole) return;
    m_field->SetColour(typed);
    Show(typed);
    m_follow(typed);
}

}  // namespace rlx
