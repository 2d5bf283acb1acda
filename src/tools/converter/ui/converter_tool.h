#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

#include "platform/object_store.h"
#include "shell/resources.h"
#include "tools/converter/converter_page.h"
#include "tools/converter/text_ids.h"
#include "tools/converter/ui/converter_layout.h"
#include "tools/converter/unit_database.h"
#include "uikit/search_combo.h"
#include "uikit/tool_page.h"

namespace rlx {

/// The unit converter as a page of the Tools screen. It converts while one types and after each choice.
class CConverterTool : public CToolPage {
    Q_OBJECT

public:
    /// All references must outlive the page.
    CConverterTool(IObjectStore& store, CRegistryStore& settings, const CResources& resources, IMessageBoxes& boxes,
                   const CLook& look);

    int TitleText() const override { return kTextToolConverter; }
    QString IconName() const override { return QStringLiteral("converter"); }
    LookPicture Picture() const override { return LookPicture::kConverter; }
    void Entered() override;
    bool MayLeave() override;
    void Refresh() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void MakeSelectors();
    void MakeFields();
    void MakeButtons();
    QPushButton* MakeButton(const char* name, int text);
    QToolButton* MakeIconButton(const char* name, int text);
    void ConnectAll();
    void ApplyLook();
    void LoadUnits();
    void ShowUnits();
    void ShowResult();
    void Remember();
    void FillRecent();
    void CopyResult();
    void EditUnits();

    const CResources& m_resources;
    IMessageBoxes& m_boxes;
    const CLook& m_look;
    CUnitDatabase m_database;
    CConverterPage m_page;
    ConverterLayout m_layout;
    QComboBox* m_category = nullptr;
    QLabel* m_fromCaption = nullptr;
    QLabel* m_toCaption = nullptr;
    CSearchCombo* m_from = nullptr;
    CSearchCombo* m_to = nullptr;
    QLineEdit* m_value = nullptr;
    QLineEdit* m_result = nullptr;
    QToolButton* m_swap = nullptr;
    QToolButton* m_copy = nullptr;
    QPushButton* m_reset = nullptr;
    QPushButton* m_recent = nullptr;
    QPushButton* m_edit = nullptr;
    QMenu m_recentMenu;
};

}  // namespace rlx
