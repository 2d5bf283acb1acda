#include "app/toolkit_language.h"

#include <QTranslator>

#include "platform/posix/posix_file_system.h"
#include "shell/language_start.h"
#include "shell/text_ids.h"
#include "support/paths.h"
#include "uikit/qt_text.h"

namespace rlx {
namespace {

QString WordForCopying() {
    QLineEdit field("word");
    const std::unique_ptr<QMenu> menu(field.createStandardContextMenu());
    // Undo and redo, a line, cut, copy.
    const QAction* copy = menu->actions().value(4);
    return copy == nullptr ? QString() : copy->text().section('\t', 0, 0).section('(', 0, 0).remove('&');
}

TEST(ToolkitLanguage, FieldsAndCalendarsSpeakTheLanguageOfTheTexts) {
    struct Case {
        const char* module;
        const char* copying;
        const char* may;
    };
    const Case cases[] = {{"Pseudo", "Copy", "May"},      {"French", "Copier", "mai"},
                          {"German", "Kopieren", "Mai"},  {"Spanish", "Copiar", "mayo"},
                          {"Italian", "Copia", "maggio"}, {"Portuguese", "Copiar", "maio"},
                          {"Japanese", "コピー", "5月"}};
    CPosixFileSystem files;
    const QLocale before;
    for (const Case& one : cases) {
        const std::string name = std::string("Roamly") + one.module + ".dll";
        for (const auto& folder :
             {std::filesystem::path(test::kBinDir) / "LangsRes", std::filesystem::path(test::kTestModuleDir)}) {
            const auto texts = LoadLanguageModule(files, folder / name);
            if (!texts) continue;
            QLocale::setDefault(before);
            SetToolkitLanguage(ToQString(texts->Text(kTextToolkitLanguage)));
            EXPECT_EQ(WordForCopying().toStdString(), one.copying) << name;
            EXPECT_EQ(QLocale().standaloneMonthName(5).toStdString(), one.may) << name;
            qDeleteAll(qApp->findChildren<QTranslator*>());
        }
    }
    QLocale::setDefault(before);
}

}  // namespace
}  // namespace rlx
