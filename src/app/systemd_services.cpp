#include "app/systemd_services.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

namespace rlx {

namespace {

constexpr int kPatience = 5000;  // milliseconds

QString Program() {
    return QStandardPaths::findExecutable("systemctl");
}

}  // namespace

bool CSystemdServices::IsThere() {
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtime.isEmpty() && QDir(runtime + "/systemd").exists() && !Program().isEmpty();
}

bool CSystemdServices::Order(const std::vector<std::string>& words) {
    QStringList arguments{"--user", "--quiet"};
    for (const std::string& word : words)
        arguments << QString::fromStdString(word);
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(Program(), arguments);
    if (process.waitForFinished(kPatience)) {
        return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    }
    process.kill();
    process.waitForFinished();
    return false;
}

}  // namespace rlx
