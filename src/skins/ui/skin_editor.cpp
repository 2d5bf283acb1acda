#include "skins/ui/skin_editor.h"

#include <QHeaderView>
#include <QPushButton>

#include "base/text.h"
#include "shell/control_ids.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"
#include "skins/text_ids.h"
#include "skins/ui/skin_key_changer.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kSideBySide = 400;  // from this width on the panel stands beside the keys
constexpr int kPanelHeight = 84;  // below the keys
constexpr int kSettleMs = 40;     // between two views of a colour that is being dragged

int TextOf(SkinWriteStatus status) {
    switch (status) {
        case SkinWriteStatus::kNotRead:
            return kTextFileNotRead;
        case SkinWriteStatus::kBadValue:
            return kTextSkinBadValue;
        case SkinWriteStatus::kTooLong:
            return kTextSkinTooLong;
        case SkinWriteStatus::kNotSaved:
        case SkinWriteStatus::kWritten:
            break;
    }
    return kTextFileNotSaved;
}

QBoxLayout* RowOfWidget(QLayout* layout, QWidget* widget) {
    for (int i = 0; layout != nullptr && i < layout->count(); ++i) {
        auto* row = qobject_cast<QBoxLayout*>(layout->itemAt(i)->layout());
        if (row != nullptr && row->indexOf(widget) >= 0) return row;
    }
    return nullptr;
}

}  // namespace

CSkinEditor::CSkinEditor(const SkinPorts& ports, CSkinDraft draft, SkinStage stage, QWidget* parent)
    : CTemplateDialog(ports.resources.Dialog(kDialogEditSkin).value_or(DialogTemplate{}), parent),
      m_ports(ports),
      m_draft(std::move(draft)),
      m_stage(std::move(stage)),
      m_model(m_draft, ports.resources),
      m_keys(Control<QTreeView>(kControlSkinKeys)),
      m_panel(new CPicturePanel(ToQString(ports.resources.Text(kTextPreview)), this)) {
    setObjectName("skinEditor");
    const std::u16string name = Trim(m_draft.Original().Name(SkinKey::kDescriptionN));
    setWindowTitle(ToQString(FillText(ports.resources.Text(kTextSkinEditTitle), {name})));
    resize(560, 480);
    m_soon.setSingleShot(true);
    m_soon.setInterval(kSettleMs);
    connect(&m_soon, &QTimer::timeout, this, &CSkinEditor::ShowDraft);
    if (m_keys == nullptr) return;
    SetUpKeys();
    AddPanel();
    ConnectButtons();
    m_model.Refresh(palette(), devicePixelRatioF());
    m_keys->setCurrentIndex(m_model.IndexOf(SkinKey::kGeneralTBC));
    UpdateButtons();
}

void CSkinEditor::SetUpKeys() {
    m_keys->setModel(&m_model);
    m_keys->setHeaderHidden(true);
    m_keys->setRootIsDecorated(true);
    m_keys->setIndentation(12);
    m_keys->setIconSize({18, 18});
    m_keys->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_keys->setExpandsOnDoubleClick(true);
    m_keys->setTextElideMode(Qt::ElideRight);
    m_keys->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_keys->expand(m_model.index(0, 0));
    m_keys->header()->setStretchLastSection(false);
    m_keys->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_keys->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    connect(m_keys, &QTreeView::activated, this, &CSkinEditor::Change);
    connect(m_keys->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        UpdateButtons();
        UpdatePanel();
    });
}

void CSkinEditor::AddPanel() {
    m_panel->setObjectName("skinPanel");
    m_row = RowOfWidget(layout(), m_keys);
    if (m_row != nullptr) m_row->addWidget(m_panel, 100);
}

void CSkinEditor::ConnectButtons() {
    if (auto* change = Control<QPushButton>(kControlSkinChange))
        connect(change, &QPushButton::clicked, this, &CSkinEditor::Change);
    if (auto* reset = Control<QPushButton>(kControlSkinReset))
        connect(reset, &QPushButton::clicked, this, &CSkinEditor::Reset);
}

std::optional<SkinKey> CSkinEditor::Selected() const {
    return m_keys == nullptr ? std::nullopt : CSkinKeyModel::KeyAt(m_keys->currentIndex());
}

/// On a narrow screen the panel moves below the keys, and names come before values.
void CSkinEditor::resizeEvent(QResizeEvent* event) {
    CTemplateDialog::resizeEvent(event);
    if (m_row == nullptr) return;
    const bool beside = width() >= kSideBySide || width() > height();
    m_row->setDirection(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_row->setStretch(1, beside ? 90 : 0);
    m_panel->setMinimumHeight(beside ? 64 : kPanelHeight);
    m_panel->setMaximumHeight(beside ? QWIDGETSIZE_MAX : kPanelHeight);
    m_panel->setMaximumWidth(width() >= kSideBySide || !beside ? QWIDGETSIZE_MAX : width() / 4);
    m_keys->setColumnHidden(1, width() < kSideBySide);
}

void CSkinEditor::showEvent(QShowEvent* event) {
    CTemplateDialog::showEvent(event);
    UpdatePanel();
}

void CSkinEditor::Change() {
    const auto key = Selected();
    if (!key || !m_keys->currentIndex().flags().testFlag(Qt::ItemIsEnabled)) return;
    CSkinKeyChanger(
        m_ports, m_draft, [this] { m_soon.start(); }, this)
        .Change(*key);
    ShowDraft();
}

void CSkinEditor::Reset() {
    const auto key = Selected();
    if (!key) return;
    m_draft.Edit().Reset(*key);
    ShowDraft();
}

void CSkinEditor::ShowDraft() {
    m_soon.stop();
    m_stage.show(m_draft.Skin());
    m_model.Refresh(palette(), devicePixelRatioF());
    UpdateButtons();
    UpdatePanel();
}

void CSkinEditor::UpdateButtons() {
    const auto key = Selected();
    const bool enabled = key && m_keys->currentIndex().flags().testFlag(Qt::ItemIsEnabled);
    if (auto* change = Control<QPushButton>(kControlSkinChange)) change->setEnabled(enabled);
    if (auto* reset = Control<QPushButton>(kControlSkinReset)) reset->setEnabled(enabled && m_draft.IsChanged(*key));
}

/// The screen of the section that is selected, or of the one around the key selected.
void CSkinEditor::UpdatePanel() {
    if (!isVisible()) return;
    const QModelIndex current = m_keys->currentIndex();
    const QModelIndex any = current.parent().isValid() || !current.isValid() ? current : m_model.index(0, 0, current);
    const auto key = CSkinKeyModel::KeyAt(any);
    if (key) m_panel->SetPicture(m_stage.pictureOf(RowOf(*key).section));
}

void CSkinEditor::accept() {
    m_soon.stop();
    if (!m_draft.Edit().IsEmpty()) {
        const SkinWriteResult result = m_draft.Save();
        if (result.status != SkinWriteStatus::kWritten)
            return Say(TextOf(result.status), FromUtf8(m_draft.File().filename().string()));
        if (!result.linesMissing.empty()) Say(kTextSkinLinesMissing);
    }
    m_stage.show(m_draft.Original());
    CTemplateDialog::accept();
}

void CSkinEditor::reject() {
    m_soon.stop();
    m_stage.show(m_draft.Original());
    CTemplateDialog::reject();
}

void CSkinEditor::Say(int text, const std::u16string& filling) {
    const auto& texts = m_ports.resources;
    m_ports.boxes.Show(
        {texts.Text(kTextError), FillText(texts.Text(text), {filling}), BoxIcon::kExclamation, BoxButtons::kOk});
}

}  // namespace rlx
