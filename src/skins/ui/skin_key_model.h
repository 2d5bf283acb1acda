#pragma once

#include <QPalette>
#include <QStandardItemModel>
#include <optional>

#include "shell/texts.h"
#include "skins/skin_draft.h"

namespace rlx {

/// The keys of a skin that can be changed, below the names of their sections: what each is for, and its value. Those
/// changed are set in bold; those that the file has no line for cannot be selected. User-interface thread.
class CSkinKeyModel : public QStandardItemModel {
    Q_OBJECT

public:
    CSkinKeyModel(const CSkinDraft& draft, const ITexts& texts, QObject* parent = nullptr);

    /// Nothing for the row of a section.
    static std::optional<SkinKey> KeyAt(const QModelIndex& index);
    QModelIndex IndexOf(SkinKey key) const;

    /// Shows the values as they are now.
    void Refresh(const QPalette& palette, qreal pixelRatio);

private:
    void AddKey(QStandardItem* section, const SkinKeyRow& row);
    void RefreshKey(SkinKey key, const CSkin& skin, const QPalette& palette, qreal pixelRatio);

    const CSkinDraft& m_draft;
    const ITexts& m_texts;
};

/// What a person calls a key.
QString NameOfKey(SkinKey key, const ITexts& texts);

}  // namespace rlx
