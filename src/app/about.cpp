#include "app/about.h"

#include <QPlainTextEdit>

#include "app/text_ids.h"
#include "base/text.h"
#include "shell/control_ids.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"
#include "uikit/qt_text.h"
#include "uikit/template_dialog.h"

namespace rlx {

namespace {

constexpr std::size_t kCreditsLimit = 1U << 20U;
constexpr const char* kVersion = RLX_VERSION;

}  // namespace

void ShowAbout(const CResources& resources, IMessageBoxes& boxes) {
    boxes.Show({resources.Text(kTextAppName), FillText(resources.Text(kTextVersion), {Widen(kVersion)}),
                BoxIcon::kInformation, BoxButtons::kOk});
}

void ShowCredits(const CResources& resources, IFileSystem& files, const CApplicationFolder& folder, QWidget* window) {
    CTemplateDialog dialog(resources.Dialog(kDialogCredits).value_or(DialogTemplate{}), window);
    dialog.setObjectName("credits");
    dialog.resize(560, 480);
    const auto file = folder.Path(u"\\SOURCES.md");
    const auto text = file ? files.ReadFile(*file, kCreditsLimit) : std::nullopt;
    if (auto* field = dialog.Control<QPlainTextEdit>(kControlCreditsText)) {
        field->setPlainText(
            ToQString(text ? FromUtf8(*text) : FillText(resources.Text(kTextFileNotRead), {u"SOURCES.md"})));
    }
    dialog.exec();
}

}  // namespace rlx
