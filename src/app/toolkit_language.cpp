#include "app/toolkit_language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

namespace rlx {

namespace {

/// The language as it is written where the system is, or where the language says.
QLocale PlacedLocale(const QLocale& wanted) {
    const QLocale here(wanted.language(), QLocale::system().territory());
    return here.territory() == QLocale::system().territory() ? here : wanted;
}

}  // namespace

void SetToolkitLanguage(const QString& language) {
    const QLocale wanted(language);
    if (wanted.language() == QLocale::C) return;
    QLocale::setDefault(PlacedLocale(wanted));
    if (wanted.language() == QLocale::English) return;
    auto words = std::make_unique<QTranslator>(QCoreApplication::instance());
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    for (const char* catalogue : {"qtbase", "qt"}) {
        if (!words->load(wanted, catalogue, "_", folder)) continue;
        QCoreApplication::installTranslator(words.release());
        return;
    }
}

}  // namespace rlx
