#include <span>

#include "fuzz/target.h"
#include "shell/dialog_template.h"
#include "shell/menu_template.h"
#include "shell/pe_image.h"
#include "shell/string_table.h"

namespace {

using rlx::ResourceType;

// The checker has no use for what is read; it must not be optimised away either.
volatile std::size_t g_sink = 0;

void Read(const rlx::CPeImage& image, ResourceType type, int id) {
    constexpr int kTextsInBlock = 16;
    const auto resource = image.Find(type, id);
    if (!resource) return;
    if (type == ResourceType::kMenu) g_sink = rlx::ParseMenu(*resource).has_value() ? 1 : 0;
    if (type == ResourceType::kDialog) g_sink = rlx::ParseDialog(*resource).has_value() ? 1 : 0;
    for (int text = 0; type == ResourceType::kString && text < kTextsInBlock; ++text) {
        g_sink = rlx::FindText(image, (id - 1) * kTextsInBlock + text).size();
    }
}

}  // namespace

void Try(std::string_view bytes) {
    const auto input = std::as_bytes(std::span(bytes));
    // The bare templates first: few inputs get through the headers of a library.
    g_sink = rlx::ParseMenu(input).has_value() ? 1 : 0;
    g_sink = rlx::ParseDialog(input).has_value() ? 1 : 0;
    const auto image = rlx::CPeImage::Open(input);
    if (!image) return;
    constexpr std::size_t kMostIds = 64;
    for (const auto type : {ResourceType::kMenu, ResourceType::kDialog, ResourceType::kString}) {
        auto ids = image->Ids(type);
        if (ids.size() > kMostIds) ids.resize(kMostIds);
        for (const int id : ids)
            Read(*image, type, id);
    }
}
