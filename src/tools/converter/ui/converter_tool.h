#pragma once

#include <QMenu>

#include "platform/object_store.h"
#include "shell/resources.h"
#include "tools/converter/converter_page.h"
#include "tools/converter/text_ids.h"
#include "tools/converter/ui/converter_form.h"
#include "tools/converter/unit_database.h"
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
    void resizeEvent(QResizeEvent* event) override;

private:
    void ConnectForm();
    void LoadUnits();
    void ShowUnits();
    void ShowResult();
    void Remember();
    void FillRecent();
    void EditUnits();

    const CResources& m_resources;
    IMessageBoxes& m_boxes;
    CUnitDatabase m_database;
    CConverterPage m_page;
    QMenu m_recentMenu;
    CConverterForm* m_form;
};

}  // namespace rlx
