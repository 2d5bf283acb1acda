#include <set>

#include "doctor/checks.h"
#include "shell/setting_names.h"
#include "skins/skin_list.h"
#include "skins/skin_loader.h"
#include "skins/skin_validator.h"

namespace rlx {

void CheckSkins(const DoctorPorts& ports, CRegistryStore& settings, CDoctorReport& report) {
    const auto chosen = settings.ReadString(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kSkin);
    std::set<std::filesystem::path> skins{SkinFileOfSetting(ports.folder, kDefaultSkinSetting),
                                          SkinFileOfSetting(ports.folder, chosen)};
    for (const SkinEntry& skin : ListSkins(ports.files, ports.folder / "skins", ports.texts)) {
        if (!skin.file.empty()) skins.insert(skin.file);
    }
    for (const auto& file : skins) {
        for (const SkinFault& fault : ValidateSkin(ports.files, file))
            report.Add(file, 0, FaultText(fault, ports.texts));
    }
}

}  // namespace rlx
