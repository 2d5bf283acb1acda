#include "app/reminder_run.h"

#include "app/reminder_duty.h"
#include "shell/language_start.h"
#include "shell/program_paths.h"

namespace rlx {

int TellReminders(const WindowOptions& options) {
    const CSystemClock systemClock;
    const CFrozenClock clock(systemClock, options.now, options.bias);
    CPosixFileSystem files;
    CSilentMessageBoxes boxes;
    const std::filesystem::path file = DeviceStoreFile(options.store);
    const OpenedStore opened = OpenDeviceStore(file, clock);
    const FolderSources sources = ProgramFolders(options.home);
    const CApplicationFolder folder(files, PrepareApplicationFolder(files, sources).value_or(sources.executableFolder));
    CRegistryStore settings(opened.store->Registry());
    const CResources resources = StartLanguage(files, folder, settings).resources;
    CCityDatabase cities(opened.store->Objects(), files, boxes, resources,
                         folder.Path(u"\\cities.lst").value_or(folder.Root() / "cities.lst"));
    cities.EnsureCreated();
    CReminderDuty duty({files, opened.store->Registry(), cities, clock, resources},
                       {options.store, options.home, options.now || options.bias});
    duty.Post().TellDue(nullptr);
    duty.ArmTimer();
    return 0;
}

}  // namespace rlx
