#include "skins/ui/skin_chooser.h"

#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "base/text.h"
#include "shell/control_ids.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"
#include "skins/skin_file.h"
#include "skins/skin_loader.h"
#include "skins/text_ids.h"
#include "skins/ui/skin_preview.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr QSize kPreview(96, 72);

}  // namespace

CSkinChooser::CSkinChooser(const SkinPorts& ports, SkinPlaces places, SkinActions actions, QWidget* parent)
    : CTemplateDialog(ports.resources.Dialog(kDialogChooseSkin).value_or(DialogTemplate{}), parent),
      m_ports(ports),
      m_places(std::move(places)),
      m_actions(std::move(actions)),
      m_list(Control<QListWidget>(kControlSkinList)) {
    setObjectName("skinChooser");
    resize(420, 480);
    if (m_list == nullptr) return;
    SetUpList();
    if (auto* browse = Control<QPushButton>(kControlSkinBrowse))
        connect(browse, &QPushButton::clicked, this, &CSkinChooser::Browse);
    Fill();
}

void CSkinChooser::SetUpList() {
    m_list->setIconSize(kPreview);
    m_list->setWordWrap(true);
    m_list->setSpacing(2);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setTextElideMode(Qt::ElideRight);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &CSkinChooser::accept);
}

/// The default skin, those that came with the program, those of the folder that was picked.
void CSkinChooser::Fill() {
    m_list->clear();
    m_skins.clear();
    const auto& root = m_places.applicationFolder;
    SkinEntry standard = SkinEntryOf(m_ports.files, SkinFileOfSetting(root, kDefaultSkinSetting));
    AddSkins({std::move(standard)});
    AddSkins(ListSkins(m_ports.files, root / "skins", m_ports.resources));
    if (!m_places.otherFolder.empty()) AddSkins(ListSkins(m_ports.files, m_places.otherFolder, m_ports.resources));
    const auto& shown = m_places.otherFolder.empty() ? root / "skins" : m_places.otherFolder;
    if (auto* folder = Control<QLineEdit>(kControlSkinFolder)) {
        folder->setText(QString::fromStdString(shown.string()));
        folder->setToolTip(folder->text());
    }
    const auto current = SkinFileOfSetting(root, m_places.setting);
    const auto found = std::find_if(m_skins.begin(), m_skins.end(), [&](const auto& s) { return s.file == current; });
    m_list->setCurrentRow(found == m_skins.end() ? 0 : static_cast<int>(found - m_skins.begin()));
}

/// A skin that is listed already is not listed again.
void CSkinChooser::AddSkins(std::vector<SkinEntry> skins) {
    for (SkinEntry& skin : skins) {
        const auto same = [&](const SkinEntry& other) { return other.file == skin.file; };
        if (!skin.file.empty() && std::any_of(m_skins.begin(), m_skins.end(), same)) continue;
        AddRow(skin);
        m_skins.push_back(std::move(skin));
    }
}

void CSkinChooser::AddRow(const SkinEntry& skin) {
    auto* item = new QListWidgetItem(ToQString(skin.text), m_list);
    if (skin.file.empty()) {
        item->setFlags(Qt::NoItemFlags);
        return;
    }
    QStringList reasons;
    for (const SkinFault& fault : skin.faults)
        reasons << ToQString(FaultText(fault, m_ports.resources));
    if (!reasons.isEmpty()) {
        item->setText(item->text() + ToQString(m_ports.resources.Text(kTextInvalidMark)) + '\n' + reasons.first());
    }
    item->setToolTip((reasons << QString::fromStdString(skin.file.string())).join('\n'));
    if (auto text = ReadSkinText(m_ports.files, skin.file)) {
        const CSkin look(*std::move(text), skin.file.parent_path());
        item->setIcon(PlainIcon(SkinPreview(m_ports.files, m_ports.codec, look, kPreview, devicePixelRatioF())));
    }
}

void CSkinChooser::Browse() {
    const auto folder =
        m_actions.browse(this, m_places.otherFolder.empty() ? m_places.applicationFolder : m_places.otherFolder);
    if (folder.empty()) return;
    m_places.otherFolder = folder;
    m_actions.keepFolder(folder);
    Fill();
    m_list->scrollToBottom();
}

void CSkinChooser::accept() {
    const int row = m_list == nullptr ? -1 : m_list->currentRow();
    if (row < 0 || row >= static_cast<int>(m_skins.size())) return;
    const auto& file = m_skins[static_cast<std::size_t>(row)].file;
    if (file.empty()) return;
    if (!ValidateSkin(m_ports.files, file).empty()) return Say(kTextSkinInvalid);
    const auto setting = SettingOfSkinFile(m_places.applicationFolder, file);
    if (!setting) return Say(kTextSkinPathRefused, FromUtf8(file.string()));
    m_actions.choose(*setting);
    CTemplateDialog::accept();
}

void CSkinChooser::Say(int text, const std::u16string& filling) {
    const auto& texts = m_ports.resources;
    m_ports.boxes.Show(
        {texts.Text(kTextError), FillText(texts.Text(text), {filling}), BoxIcon::kExclamation, BoxButtons::kOk});
}

}  // namespace rlx
