#include "skins/ui/skin_editor.h"

#include <QHeaderView>
#include <QPushButton>
#include <algorithm>

#include "base/text.h"
#include "platform/bitmap.h"
#include "shell/control_ids.h"
#include "shell/device_path.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"
#include "skins/icon_set.h"
#include "skins/text_ids.h"
#include "skins/ui/colour_picker.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kSideBySide = 400;  // from this width on the panel stands beside the keys
constexpr int kPanelHeight = 84;  // below the keys
constexpr int kSettleMs = 40;     // between two views of a colour that is being dragged

std::uint32_t ColourOf(const QColor& colour) {
    return static_cast<std::uint32_t>(colour.red() + colour.green() * 256 + colour.blue() * 65536);
}

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
    const SkinKeyKind kind = RowOf(*key).kind;
    if (IsColour(kind)) {
        ChangeColour(*key);
    } else if (kind == SkinKeyKind::kIconSet) {
        ChangeIcons(*key);
    } else {
        ChangePicture(*key);
    }
}

void CSkinEditor::ChangeColour(SkinKey key) {
    const CSkinEdit before = m_draft.Edit();
    const QColor old = QColor::fromRgb(PixelOfColour(m_draft.Skin().Colour(key)));
    const auto follow = [this, key](const QColor& colour) {
        m_draft.Edit().SetColour(key, ColourOf(colour));
        m_soon.start();
    };
    CColourPicker picker(m_ports.resources, NameOfKey(key, m_ports.resources), old, follow, this);
    const bool taken = picker.exec() == QDialog::Accepted && picker.Colour().rgb() != old.rgb();
    if (taken) {
        m_draft.Edit().SetColour(key, ColourOf(picker.Colour()));
    } else {
        m_draft.Edit() = before;
    }
    ShowDraft();
}

void CSkinEditor::ChangePicture(SkinKey key) {
    const auto pictures = m_draft.PicturesFor(key);
    if (pictures.names.empty()) return Say(kTextSkinNoPictures, pictures.path);
    const QString current = ToQString(m_draft.Skin().Name(key)).section('\\', -1);
    std::vector<SkinFileChoice> choices;
    int at = -1;
    for (const std::string& name : pictures.names) {
        choices.push_back({QString::fromStdString(name), pictures.folder / name});
        if (choices.back().name.compare(current, Qt::CaseInsensitive) == 0) at = static_cast<int>(choices.size()) - 1;
    }
    const auto picked = Pick(NameOfKey(key, m_ports.resources), choices, at);
    if (!picked) return;
    m_draft.Edit().SetPicture(key,
                              pictures.path + u"\\" + FromQString(choices[static_cast<std::size_t>(*picked)].name));
    ShowDraft();
}

void CSkinEditor::ChangeIcons(SkinKey key) {
    const auto sets = m_draft.IconSets();
    const auto& folder = m_draft.Original().Folder();
    constexpr const char* kShown = "partly-cloudy-day.png";
    std::vector<SkinFileChoice> choices = {{ToQString(m_ports.resources.Text(kTextDefaultIconSet)), {}}};
    if (const auto own = ResolveBelow(m_ports.files, folder, kDefaultIconSetFolder)) choices[0].picture = *own / kShown;
    int at = 0;
    for (const auto& set : sets) {
        const auto path = ResolveBelow(m_ports.files, folder, set).value_or("") / kShown;
        choices.push_back({ToQString(set).section('\\', -1), path});
        if (m_draft.Skin().Name(key) == set) at = static_cast<int>(choices.size()) - 1;
    }
    const auto picked = Pick(NameOfKey(key, m_ports.resources), choices, at);
    if (!picked) return;
    const auto index = static_cast<std::size_t>(*picked);
    m_draft.Edit().SetIconSet(index == 0 ? std::u16string(kDefaultIconSetValue) : sets[index - 1]);
    ShowDraft();
}

std::optional<int> CSkinEditor::Pick(const QString& title, const std::vector<SkinFileChoice>& choices, int current) {
    CSkinFilePicker picker(m_ports, title, choices, current, this);
    if (picker.exec() != QDialog::Accepted || picker.Picked() < 0) return std::nullopt;
    return picker.Picked();
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
