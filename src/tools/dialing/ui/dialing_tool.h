#pragma once

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QTreeView>
#include <array>

#include "shell/texts.h"
#include "tools/dialing/text_ids.h"
#include "tools/dialing/ui/dialing_model.h"
#include "uikit/tool_page.h"

namespace rlx {

/// Dialing and area codes as a page of the Tools screen: a selector, a list for each table of which one is seen, and a
/// field that finds a row by its beginning.
class CDialingTool : public CToolPage {
    Q_OBJECT

public:
    /// Both references must outlive the page.
    CDialingTool(const ITexts& texts, const CLook& look);

    int TitleText() const override { return kTextToolDialing; }
    QString IconName() const override { return QStringLiteral("dialing"); }
    LookPicture Picture() const override { return LookPicture::kDialing; }
    void Entered() override;
    void Refresh() override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeControls();
    QTreeView* MakeList(DialingTable table);
    QTreeView* Shown() const;
    void ShowTable(int table);
    void Find(const QString& text);
    void SelectRow(QTreeView* list, int row);
    void SizeColumns(QTreeView* list);
    void Arrange();

    const ITexts& m_texts;
    const CLook& m_look;
    QGridLayout* m_layout;
    QComboBox* m_selector = nullptr;
    QLineEdit* m_field = nullptr;
    std::array<QTreeView*, kDialingTables> m_lists{};
};

}  // namespace rlx
