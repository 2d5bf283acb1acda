#pragma once

#include <QStringList>
#include <QTreeView>
#include <vector>

namespace rlx {

/// Fills a list of a dialog with texts to check; none is checked at first.
void FillCheckList(QTreeView& view, const QStringList& texts);

/// The rows that are checked, in order.
std::vector<std::size_t> CheckedRows(const QTreeView& view);

}  // namespace rlx
