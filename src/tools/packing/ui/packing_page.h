#pragma once

#include <QActionGroup>
#include <QGridLayout>
#include <filesystem>

#include "platform/file_system.h"
#include "platform/message_boxes.h"
#include "shell/resources.h"
#include "tools/packing/packing_organizer.h"
#include "tools/packing/text_ids.h"
#include "tools/packing/ui/packing_bar.h"
#include "tools/packing/ui/packing_list_view.h"
#include "tools/packing/ui/packing_prompts.h"
#include "tools/packing/ui/packing_selectors.h"
#include "tools/packing/ui/packing_status.h"
#include "uikit/look.h"
#include "uikit/template_menu.h"
#include "uikit/tool_page.h"

namespace rlx {

/// The packing lists: what is to be packed, ticked off by a tap on its row. Insert adds, Delete deletes, F2 and a
/// double click edit, Ctrl+Z takes the last delete back. The file is read when the page is first entered and written
/// when a person who leaves it agrees.
class CPackingPage : public CToolPage {
    Q_OBJECT

public:
    /// All references must outlive the page.
    CPackingPage(IFileSystem& files, const std::filesystem::path& folder, const CResources& resources,
                 IMessageBoxes& boxes, const CLook& look);

    int TitleText() const override { return kTextToolPacking; }
    QString IconName() const override { return QStringLiteral("packing"); }
    LookPicture Picture() const override { return LookPicture::kPacking; }
    void Entered() override;
    bool MayLeave() override;
    void Refresh() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void LayOut();
    void MakeCommands();
    void MakeItemMenu();
    void MakeFilter(int command, PackingFilter filter);
    void ApplyLook();

    void Show();
    void ShowStatus();

    void AddItems();
    void EditItem(std::size_t item);
    void DeleteSelected();

    const CResources& m_resources;
    const CLook& m_look;
    CPackingOrganizer m_organizer;
    CCommandTable m_commands;
    bool m_loaded = false;
    CPackingPrompts m_prompts;
    CPackingSelectors* m_selectors;
    CPackingListView* m_view;
    CPackingStatus* m_status;
    QActionGroup* m_filters;
    QAction* m_undo;
    CPackingBar* m_bar = nullptr;
    QGridLayout* m_layout;
};

}  // namespace rlx
