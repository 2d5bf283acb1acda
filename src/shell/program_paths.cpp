#include "shell/program_paths.h"

#include <cstdlib>
#include <string_view>
#include <system_error>

namespace rlx {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kProgram = "roamlytix";

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

fs::path UserDataFolder() {
    const fs::path data = Environment("XDG_DATA_HOME");
    if (data.is_absolute()) return data / kProgram;
    const std::string home = Environment("HOME");
    return home.empty() ? fs::path() : fs::path(home) / ".local" / "share" / kProgram;
}

fs::path ExecutableFolder() {
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error).parent_path();
}

}  // namespace

FolderSources ProgramFolders(const std::string& option) {
    FolderSources sources;
    sources.option = option;
    sources.environment = Environment("ROAMLYTIX_HOME");
    sources.executableFolder = ExecutableFolder();
    sources.userDataFolder = UserDataFolder();
    sources.installedData = sources.executableFolder.parent_path() / "share" / kProgram;
    return sources;
}

fs::path DeviceStoreFile(const std::string& option) {
    if (!option.empty()) return option;
    const std::string environment = Environment("ROAMLYTIX_STORE");
    if (!environment.empty()) return environment;
    return UserDataFolder() / "device.db";
}

}  // namespace rlx
