#include "tools/dialing/ui/dialing_model.h"

#include <QSize>

#include "uikit/qt_text.h"

namespace rlx {

namespace {

constexpr int kRowHeight = 28;  // two lines of a small font, and enough for a finger

}  // namespace

CDialingModel::CDialingModel(DialingTable table, const ITexts& texts, QObject* parent)
    : QAbstractTableModel(parent), m_table(table), m_texts(texts) {}

int CDialingModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(DialingRowCount(m_table));
}

int CDialingModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(kDialingColumns);
}

QVariant CDialingModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::SizeHintRole) return QSize(0, kRowHeight);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
    const auto cells = DialingCells(m_table, static_cast<std::size_t>(index.row()));
    return ToQString(cells[static_cast<std::size_t>(index.column())]);
}

QVariant CDialingModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return ToQString(m_texts.Text(DialingColumns(m_table)[static_cast<std::size_t>(section)]));
}

}  // namespace rlx
