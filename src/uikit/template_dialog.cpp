#include "uikit/template_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTimeEdit>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "shell/control_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

/// Below this width or height a dialog takes the whole of its window, or of the screen where there is none.
constexpr int kSmallScreen = 400;

constexpr int kLeastWidth = 300;  // elsewhere, so that titles can be read

constexpr int kSelectorHeight = 12;  // template units

constexpr int kWidthForClearing = 60;  // template units: narrower fields are for a number, and need the room for it

/// Controls that share a row of the template, in reading order.
using Row = std::vector<const DialogControl*>;

/// The height of a selector in a template is that of its opened list.
int ClosedHeight(const DialogControl& control) {
    const bool opens = control.kind == ControlKind::kDropDownList || control.kind == ControlKind::kComboBox;
    return opens ? std::min(control.height, kSelectorHeight) : control.height;
}

std::vector<Row> RowsOf(const DialogTemplate& dialog) {
    std::vector<const DialogControl*> ordered;
    for (const DialogControl& control : dialog.controls) {
        if (control.kind != ControlKind::kGroupBox && control.visible) ordered.push_back(&control);
    }
    std::stable_sort(ordered.begin(), ordered.end(), [](const auto* a, const auto* b) { return a->y < b->y; });
    std::vector<Row> rows;
    int bottom = 0;
    for (const DialogControl* control : ordered) {
        const int middle = control->y + ClosedHeight(*control) / 2;
        if (rows.empty() || middle >= bottom) {
            rows.emplace_back();
            bottom = control->y + ClosedHeight(*control);
        }
        rows.back().push_back(control);
    }
    for (Row& row : rows) {
        std::stable_sort(row.begin(), row.end(), [](const auto* a, const auto* b) { return a->x < b->x; });
    }
    return rows;
}

bool TakesRoom(const DialogControl& control) {
    return control.kind == ControlKind::kListBox || control.kind == ControlKind::kListView ||
           (control.kind == ControlKind::kEdit && control.multiline);
}

bool Stretches(const Row& row) {
    return std::any_of(row.begin(), row.end(), [](const DialogControl* control) { return TakesRoom(*control); });
}

/// A button without a text of its own shows a value and opens what changes it.
bool IsField(const DialogControl& control) {
    const bool shows = control.kind == ControlKind::kPushButton && control.text.empty();
    return control.kind != ControlKind::kStatic && (control.kind != ControlKind::kPushButton || shows);
}

QWidget* MakeEdit(const DialogControl& control) {
    if (control.multiline) {
        auto* edit = new QPlainTextEdit(ToQString(control.text));
        edit->setReadOnly(control.readOnly);
        edit->setTabChangesFocus(true);
        return edit;
    }
    auto* edit = new QLineEdit(ToQString(control.text));
    edit->setReadOnly(control.readOnly);
    edit->setClearButtonEnabled(!control.readOnly && control.width >= kWidthForClearing);
    if (control.password) edit->setEchoMode(QLineEdit::Password);
    return edit;
}

QWidget* MakeLabel(const DialogControl& control) {
    auto* label = new QLabel(ToQString(control.text));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    if (control.centred) label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    if (control.right) label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

QWidget* MakeListView() {
    auto* view = new QTreeView;
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setAllColumnsShowFocus(true);
    return view;
}

/// The window behind all dialogs that led to this one; null when there is none.
const QWidget* ProgramWindow(const QWidget& dialog) {
    const QWidget* window = nullptr;
    for (const QWidget* parent = dialog.parentWidget(); parent != nullptr; parent = window->parentWidget())
        window = parent->window();
    return window;
}

}  // namespace

CTemplateDialog::CTemplateDialog(const DialogTemplate& dialog, QWidget* parent) : QDialog(parent) {
    setWindowTitle(ToQString(dialog.title));
    LayOut(dialog);
    ConnectButtons();
}

QWidget* CTemplateDialog::MakeControl(const DialogControl& control) {
    const QString text = ToQString(control.text);
    switch (control.kind) {
        case ControlKind::kPushButton: {
            auto* button = new QPushButton(text);
            button->setDefault(control.defaultButton);
            button->setAutoDefault(control.defaultButton);
            return button;
        }
        case ControlKind::kCheckBox:
            return new QCheckBox(text);
        case ControlKind::kRadioButton:
            return new QRadioButton(text);
        case ControlKind::kEdit:
            return MakeEdit(control);
        case ControlKind::kListBox:
            return new QListWidget;
        case ControlKind::kListView:
            return MakeListView();
        case ControlKind::kDatePicker: {
            auto* picker = new QDateEdit;
            picker->setCalendarPopup(true);
            return picker;
        }
        case ControlKind::kTimePicker:
            return new QTimeEdit;
        case ControlKind::kDropDownList:
            return new QComboBox;
        case ControlKind::kComboBox: {
            auto* combo = new QComboBox;
            combo->setEditable(true);
            return combo;
        }
        default:
            return MakeLabel(control);
    }
}

void CTemplateDialog::LayOut(const DialogTemplate& dialog) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(8, 8, 8, 8);
    column->setSpacing(6);
    const std::vector<Row> rows = RowsOf(dialog);
    const bool anyStretches = std::any_of(rows.begin(), rows.end(), Stretches);
    QLabel* label = nullptr;
    for (const Row& row : rows) {
        // Room that nothing wants stands above the buttons.
        if (!anyStretches && &row == &rows.back()) column->addStretch(1);
        auto* line = new QHBoxLayout;
        line->setSpacing(6);
        for (const DialogControl* control : row) {
            QWidget* widget = MakeControl(*control);
            widget->setObjectName(QStringLiteral("control_%1").arg(control->id));
            widget->setEnabled(control->enabled);
            // A label names the field behind or below it, on screen and for screen readers.
            if (label != nullptr && label->buddy() == nullptr && IsField(*control)) label->setBuddy(widget);
            label = control->kind == ControlKind::kStatic ? qobject_cast<QLabel*>(widget) : label;
            if (control->id > 0) m_controls[control->id] = widget;
            line->addWidget(widget, control->width);
        }
        column->addLayout(line, Stretches(row) ? 1 : 0);
    }
}

void CTemplateDialog::ConnectButtons() {
    if (auto* ok = Control<QPushButton>(kControlOk)) connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    if (auto* cancel = Control<QPushButton>(kControlCancel))
        connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

/// Rows of which nothing is shown leave their share of the room to the others.
void CTemplateDialog::GiveRoomToWhatIsSeen() {
    auto* column = qobject_cast<QVBoxLayout*>(layout());
    for (int row = 0; column != nullptr && row < column->count(); ++row) {
        const QLayout* line = column->itemAt(row)->layout();
        if (line != nullptr && line->isEmpty()) column->setStretch(row, 0);
    }
}

void CTemplateDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    GiveRoomToWhatIsSeen();
    const QWidget* window = ProgramWindow(*this);
    const QRect room = window != nullptr ? window->geometry() : screen()->availableGeometry();
    if (room.width() < kSmallScreen || room.height() < kSmallScreen) {
        setGeometry(room);
        // A title bar would push the buttons off a screen that the window has for itself.
        if (window != nullptr && window->isFullScreen()) setWindowState(windowState() | Qt::WindowFullScreen);
    } else if (width() < kLeastWidth) {
        resize(kLeastWidth, height());
    }
}

}  // namespace rlx
