#pragma once

#include <QColor>
#include <QFont>
#include <QWidget>
#include <array>
#include <vector>

#include "tools/clothing/size_tables.h"

namespace rlx {

/// How a table of sizes fits a width.
struct SizeGrid {
    int font = 0;              ///< pixels
    int label = 0;             ///< width of the column with the countries
    std::vector<int> columns;  ///< widths of the columns of sizes
    bool fits = false;         ///< false: cut off on the right even in the smallest font
};

/// The largest font from 9 to 18 pixels in which the table fits `width`; what is left over goes to the columns alike.
SizeGrid LayOutSizes(const SizeTable& table, int width, const QFont& font);

/// Draws a table of sizes with columns that line up: four lines in two colours in turn, the country in front.
class CSizeTableView : public QWidget {
    Q_OBJECT

public:
    explicit CSizeTableView(QWidget* parent = nullptr);

    /// The table is not owned and must outlive the view.
    void SetTable(const SizeTable& table);
    void SetColours(const QColor& first, const QColor& second);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const SizeTable* m_table = nullptr;
    QColor m_first;
    QColor m_second;
};

}  // namespace rlx
