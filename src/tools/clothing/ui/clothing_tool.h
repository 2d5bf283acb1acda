#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <array>

#include "shell/texts.h"
#include "tools/clothing/clothing_page.h"
#include "tools/clothing/text_ids.h"
#include "tools/clothing/ui/size_table_view.h"
#include "uikit/tool_page.h"

namespace rlx {

/// Clothing sizes as a page of the Tools screen: a selector of garments, three buttons for whom, and the table.
class CClothingTool : public CToolPage {
    Q_OBJECT

public:
    /// Both references must outlive the page.
    CClothingTool(const ITexts& texts, const CLook& look);

    int TitleText() const override { return kTextToolClothing; }
    QString IconName() const override { return QStringLiteral("clothing"); }
    LookPicture Picture() const override { return LookPicture::kClothing; }
    void Entered() override;
    void Refresh() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void MakeControls();
    void LayOut();
    void ShowTable();

    const ITexts& m_texts;
    const CLook& m_look;
    CClothingPage m_page;
    QVBoxLayout* m_column = nullptr;
    QVBoxLayout* m_choices = nullptr;
    QComboBox* m_garment = nullptr;
    QButtonGroup m_audience;
    QLabel* m_title = nullptr;
    CSizeTableView* m_table = nullptr;
    QLabel* m_note = nullptr;
};

}  // namespace rlx
