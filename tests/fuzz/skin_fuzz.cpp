#include "fuzz/target.h"
#include "platform/fake/memory_file_system.h"
#include "skins/skin.h"
#include "skins/skin_file.h"
#include "skins/skin_validator.h"
#include "skins/skin_writer.h"

// Any bytes as a skin: every lookup answers, no path leaves the folder, and an edit that was written reads back.
void Try(std::string_view bytes) {
    using namespace rlx;
    const std::filesystem::path file = "/skins/any.skn";
    CMemoryFileSystem files;
    files.files[file] = std::string(bytes);
    files.files["/outside.jpg"] = files.files["/skins/P/pic.jpg"] = "picture";
    ValidateSkin(files, file);
    const CSkin skin(*ReadSkinText(files, file), file.parent_path());
    for (const SkinKeyRow& row : kSkinKeys) {
        skin.Colour(row.key);
        const auto picture = skin.Picture(files, row.key, SkinLayout::kPortrait);
        FailIf(picture && picture->string().find("/skins/") != 0);
    }
    CSkinEdit edit;
    edit.SetColour(SkinKey::kMapSHADCLR, 0x123456);
    const auto result = WriteSkin(files, file, edit, false);
    const bool written = result.status == SkinWriteStatus::kWritten && result.linesMissing.empty();
    FailIf(written && files.files[file].find("SHADCLR@1193046") == std::string::npos);
}
