#include "skins/ui/skin_key_model.h"

#include <QFont>

#include "platform/bitmap.h"
#include "skins/icon_set.h"
#include "skins/skin_file.h"
#include "skins/text_ids.h"
#include "skins/ui/skin_preview.h"
#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kKeyRole = Qt::UserRole + 1;
constexpr int kSwatch = 18;
constexpr QSize kRow(40, 28);

constexpr int TextOf(SkinKey key) {
    return kTextSkinKeyGeneralTBC + static_cast<int>(key) - static_cast<int>(SkinKey::kGeneralTBC);
}
static_assert(TextOf(SkinKey::kMapSHADCLR) == kTextSkinKeyMapSHADCLR);
static_assert(TextOf(SkinKey::kToolsPBCP) == kTextSkinKeyToolsPBCP);

constexpr int TextOf(SkinSection section) {
    return kTextSkinSectionGeneral + static_cast<int>(section) - static_cast<int>(SkinSection::kGeneral);
}
static_assert(TextOf(SkinSection::kTools) == kTextSkinSectionTools);

QString ValueText(SkinKey key, const CSkin& skin, const ITexts& texts) {
    if (IsColour(RowOf(key).kind)) return QColor::fromRgb(PixelOfColour(skin.Colour(key))).name().mid(1).toUpper();
    const auto name = skin.Name(key);
    if (key == SkinKey::kWeatherWICOF && IsDefaultIconSet(name)) return ToQString(texts.Text(kTextDefaultIconSet));
    return ToQString(name.substr(name.rfind(u'\\') + 1));
}

}  // namespace

QString NameOfKey(SkinKey key, const ITexts& texts) {
    return ToQString(texts.Text(TextOf(key)));
}

CSkinKeyModel::CSkinKeyModel(const CSkinDraft& draft, const ITexts& texts, QObject* parent)
    : QStandardItemModel(parent), m_draft(draft), m_texts(texts) {
    QStandardItem* section = nullptr;
    std::optional<SkinSection> shown;
    for (const SkinKeyRow& row : kSkinKeys) {
        if (!IsEditable(row.kind)) continue;
        if (shown != row.section) {
            shown = row.section;
            section = new QStandardItem(ToQString(texts.Text(TextOf(row.section))));
            section->setToolTip(section->text());
            section->setSizeHint(kRow);
            section->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            appendRow({section, new QStandardItem});
        }
        AddKey(section, row);
    }
}

void CSkinKeyModel::AddKey(QStandardItem* section, const SkinKeyRow& row) {
    auto* name = new QStandardItem(NameOfKey(row.key, m_texts));
    auto* value = new QStandardItem;
    for (QStandardItem* item : {name, value}) {
        item->setData(static_cast<int>(row.key), kKeyRole);
        const bool isThere = m_draft.Original().Value(row.key) != kSkinMissing;
        item->setFlags(isThere ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
    }
    name->setSizeHint(kRow);
    value->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    section->appendRow({name, value});
}

std::optional<SkinKey> CSkinKeyModel::KeyAt(const QModelIndex& index) {
    const QVariant key = index.data(kKeyRole);
    if (!key.isValid()) return std::nullopt;
    return static_cast<SkinKey>(key.toInt());
}

QModelIndex CSkinKeyModel::IndexOf(SkinKey key) const {
    const auto found = match(index(0, 0), kKeyRole, static_cast<int>(key), 1, Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? QModelIndex() : found.first();
}

void CSkinKeyModel::Refresh(const QPalette& palette, qreal pixelRatio) {
    const CSkin skin = m_draft.Skin();
    for (const SkinKeyRow& row : kSkinKeys) {
        if (IsEditable(row.kind)) RefreshKey(row.key, skin, palette, pixelRatio);
    }
}

void CSkinKeyModel::RefreshKey(SkinKey key, const CSkin& skin, const QPalette& palette, qreal pixelRatio) {
    const QModelIndex at = IndexOf(key);
    QStandardItem* name = itemFromIndex(at);
    QStandardItem* value = itemFromIndex(at.siblingAtColumn(1));
    if (name == nullptr || value == nullptr) return;
    const auto stored = skin.Value(key);
    if (stored == kSkinMissing) return value->setText(ToQString(m_texts.Text(kTextSkinNoLine)));
    value->setText(ValueText(key, skin, m_texts));
    name->setToolTip(name->text() + ": " + value->text());
    QFont font = name->font();
    font.setBold(stored != m_draft.Original().Value(key));
    name->setFont(font);
    if (!IsColour(RowOf(key).kind)) return;
    const QColor colour = QColor::fromRgb(PixelOfColour(skin.Colour(key)));
    name->setIcon(PlainIcon(ColourSwatch(colour, palette.color(QPalette::WindowText), kSwatch, pixelRatio)));
}

}  // namespace rlx
