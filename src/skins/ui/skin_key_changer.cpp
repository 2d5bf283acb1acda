#include "skins/ui/skin_key_changer.h"

#include "platform/bitmap.h"
#include "shell/device_path.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"
#include "skins/icon_set.h"
#include "skins/text_ids.h"
#include "skins/ui/colour_picker.h"
#include "skins/ui/skin_key_model.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

std::uint32_t ColourOf(const QColor& colour) {
    return static_cast<std::uint32_t>(colour.red() + colour.green() * 256 + colour.blue() * 65536);
}

}  // namespace

CSkinKeyChanger::CSkinKeyChanger(const SkinPorts& ports, CSkinDraft& draft, std::function<void()> followed,
                                 QWidget* parent)
    : m_ports(ports), m_draft(draft), m_followed(std::move(followed)), m_parent(parent) {}

void CSkinKeyChanger::Change(SkinKey key) {
    const SkinKeyKind kind = RowOf(key).kind;
    if (IsColour(kind)) {
        ChangeColour(key);
    } else if (kind == SkinKeyKind::kIconSet) {
        ChangeIcons(key);
    } else {
        ChangePicture(key);
    }
}

void CSkinKeyChanger::ChangeColour(SkinKey key) {
    const CSkinEdit before = m_draft.Edit();
    const QColor old = QColor::fromRgb(PixelOfColour(m_draft.Skin().Colour(key)));
    const auto follow = [this, key](const QColor& colour) {
        m_draft.Edit().SetColour(key, ColourOf(colour));
        m_followed();
    };
    CColourPicker picker(m_ports.resources, NameOfKey(key, m_ports.resources), old, follow, m_parent);
    const bool taken = picker.exec() == QDialog::Accepted && picker.Colour().rgb() != old.rgb();
    if (taken) {
        m_draft.Edit().SetColour(key, ColourOf(picker.Colour()));
    } else {
        m_draft.Edit() = before;
    }
}

void CSkinKeyChanger::ChangePicture(SkinKey key) {
    const auto pictures = m_draft.PicturesFor(key);
    if (pictures.names.empty()) {
        const auto& texts = m_ports.resources;
        m_ports.boxes.Show({texts.Text(kTextError), FillText(texts.Text(kTextSkinNoPictures), {pictures.path}),
                            BoxIcon::kExclamation, BoxButtons::kOk});
        return;
    }
    const QString current = ToQString(m_draft.Skin().Name(key)).section('\\', -1);
    std::vector<SkinFileChoice> choices;
    int at = -1;
    for (const std::string& name : pictures.names) {
        choices.push_back({QString::fromStdString(name), pictures.folder / name});
        if (choices.back().name.compare(current, Qt::CaseInsensitive) == 0) at = static_cast<int>(choices.size()) - 1;
    }
    const auto picked = Pick(key, choices, at);
    if (picked) m_draft.Edit().SetPicture(key, pictures.path + u"\\" + FromQString(choices[*picked].name));
}

void CSkinKeyChanger::ChangeIcons(SkinKey key) {
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
    const auto picked = Pick(key, choices, at);
    if (picked) m_draft.Edit().SetIconSet(*picked == 0 ? std::u16string(kDefaultIconSetValue) : sets[*picked - 1]);
}

std::optional<std::size_t> CSkinKeyChanger::Pick(SkinKey key, const std::vector<SkinFileChoice>& choices, int current) {
    CSkinFilePicker picker(m_ports, NameOfKey(key, m_ports.resources), choices, current, m_parent);
    if (picker.exec() != QDialog::Accepted || picker.Picked() < 0) return std::nullopt;
    return static_cast<std::size_t>(picker.Picked());
}

}  // namespace rlx
