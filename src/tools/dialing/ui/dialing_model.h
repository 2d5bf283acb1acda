#pragma once

#include <QAbstractTableModel>

#include "shell/texts.h"
#include "tools/dialing/dialing.h"

namespace rlx {

/// One of the two tables, a cell read when it is seen. The texts must outlive the model.
class CDialingModel : public QAbstractTableModel {
    Q_OBJECT

public:
    CDialingModel(DialingTable table, const ITexts& texts, QObject* parent);

    DialingTable Table() const { return m_table; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const DialingTable m_table;
    const ITexts& m_texts;
};

}  // namespace rlx
