#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTemporaryDir>
#include <QTextStream>
#include <csignal>
#include <cstdio>
#include <cstring>

#include "app/application.h"
#include "app/fonts_ahead.h"
#include "app/reminder_run.h"
#include "app/screenshots.h"
#include "base/text.h"
#include "shell/fill_text.h"
#include "uikit/enter_presses.h"
#include "uikit/qt_text.h"
#include "uikit/window_style.h"

namespace {

constexpr const char* kUsualSizes = "240x320,320x240,480x640,1280x800";
constexpr int kLanguageNotLoaded = 1;
constexpr int kWrongUsage = 2;

bool HasWord(int count, char** words, const char* word) {
    for (int i = 1; i < count; ++i) {
        if (std::strncmp(words[i], word, std::strlen(word)) == 0) return true;
    }
    return false;
}

int Complain(const QString& what) {
    QTextStream(stderr) << "roamlytix: " << what << '\n';
    return kWrongUsage;
}

/// Without a display Qt's drawing plugin complains of what it cannot do; nobody needs to read that beside the pictures.
void DropPluginChatter(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
    if (type == QtCriticalMsg || type == QtFatalMsg) QTextStream(stderr) << message << '\n';
}

/// Options of pictures and of a frozen device, shared with `rlx`.
struct CommandLine {
    rlx::WindowOptions window;
    QString screenshots;
    std::vector<QSize> sizes;
};

void Declare(QCommandLineParser& parser) {
    parser.setApplicationDescription("The travel companion.");
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({{"home", "Application folder with the data files.", "folder"},
                       {"store", "Device store with settings and databases.", "file"},
                       {"now", "Freezes the device clock at YYYY-MM-DDTHH:MM:SS.", "time"},
                       {"bias", "Standard time-zone bias in minutes: UTC = local + bias.", "minutes"},
                       {"fullscreen", "Fills the whole screen."},
                       {"remind", "Tells of the reminders that are due and ends; the session's timer runs this."},
                       {"screenshots", "Renders every screen to PNG files in a folder and ends.", "folder"},
                       {"sizes", "Sizes of the pictures.", "WxH,WxH...", kUsualSizes}});
}

/// Nothing when a value is wrong; `wrong` then names it.
std::optional<CommandLine> Read(const QCommandLineParser& parser, QString& wrong) {
    CommandLine line;
    line.window.home = parser.value("home").toStdString();
    line.window.store = parser.value("store").toStdString();
    line.window.fullScreen = parser.isSet("fullscreen");
    line.screenshots = parser.value("screenshots");
    line.window.quiet = parser.isSet("screenshots");
    if (parser.isSet("now")) {
        const QDateTime now = QDateTime::fromString(parser.value("now"), Qt::ISODate);
        wrong = parser.value("now");
        if (!now.isValid()) return std::nullopt;
        line.window.now = {{now.date().year(), now.date().month(), now.date().day()},
                           now.time().hour(),
                           now.time().minute(),
                           now.time().second(),
                           0};
    }
    if (parser.isSet("bias")) {
        bool ok = false;
        line.window.bias = parser.value("bias").toInt(&ok);
        wrong = parser.value("bias");
        if (!ok) return std::nullopt;
    }
    const auto sizes = rlx::ParseSizes(parser.value("sizes"));
    wrong = parser.value("sizes");
    if (!sizes) return std::nullopt;
    line.sizes = *sizes;
    return line;
}

int WritePictures(const CommandLine& line) {
    if (!QDir().mkpath(line.screenshots)) return Complain(line.screenshots);
    // Pictures show a device as it is after the first start, and leave this user's settings alone.
    QTemporaryDir scratch;
    rlx::WindowOptions options = line.window;
    if (options.store.empty()) options.store = scratch.filePath("device.db").toStdString();
    rlx::CApplication application(options);
    const auto written = rlx::RenderScreens(application.Window(), line.screenshots, line.sizes);
    if (!written) return 1;
    QTextStream(stdout) << written->join('\n') << '\n';
    return 0;
}

/// Reads the options; ends the process when they ask for help or are not understood.
std::optional<CommandLine> ReadOptions(QCoreApplication& qt) {
    QCoreApplication::setApplicationName("roamlytix");
    QCoreApplication::setApplicationVersion(RLX_VERSION);
    QGuiApplication::setDesktopFileName("org.roamlytix.Roamlytix");
    QCommandLineParser parser;
    Declare(parser);
    parser.process(qt);
    QString wrong;
    auto line = Read(parser, wrong);
    if (!line) Complain("\"" + wrong + "\" is not understood; see --help");
    return line;
}

/// Needs no display.
int Remind(int count, char** words) {
    QCoreApplication qt(count, words);
    const auto line = ReadOptions(qt);
    return line ? rlx::TellReminders(line->window) : kWrongUsage;
}

}  // namespace

int main(int count, char** words) {
    // A write beyond the caller's limit of file sizes fails as on a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    if (HasWord(count, words, "--remind")) return Remind(count, words);
    if (HasWord(count, words, "--screenshots") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qInstallMessageHandler(DropPluginChatter);
    }
    const rlx::CFontsAhead fonts;
    QApplication::setStyle(new rlx::CWindowStyle);
    QApplication qt(count, words);
    rlx::CEnterPresses enter;
    qt.installEventFilter(&enter);
    const auto line = ReadOptions(qt);
    if (!line) return kWrongUsage;
    if (!line->screenshots.isEmpty()) return WritePictures(*line);
    rlx::CApplication application(line->window);
    if (!application.HasWindow()) return kLanguageNotLoaded;
    application.Show();
    return QApplication::exec();
}
