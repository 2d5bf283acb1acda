#include "shell/resources.h"

#include <cstdlib>
#include <span>
#include <utility>

#include "shell/control_ids.h"
#include "shell/english_image.h"
#include "shell/string_table.h"

namespace rlx {
namespace {

CPeImage English() {
    const auto image = CPeImage::Open(EnglishImage());
    if (!image) std::abort();  // The program itself is damaged.
    return *image;
}

/// The resource of `module` if it is there and sound, else that of `english`.
template <typename Template>
std::optional<Template> Lookup(const std::optional<CPeImage>& module, const CPeImage& english, ResourceType type,
                               int id, std::optional<Template> (*parse)(std::span<const std::byte>)) {
    if (module) {
        const auto resource = module->Find(type, id);
        auto value = resource ? parse(*resource) : std::nullopt;
        if (value) return value;
    }
    const auto resource = english.Find(type, id);
    return resource ? parse(*resource) : std::nullopt;
}

}  // namespace

CResources::CResources() : m_english(English()) {}

std::optional<CResources> CResources::FromModule(std::string file) {
    if (file.size() > kMaxModuleSize) return std::nullopt;
    CResources resources;
    resources.m_file = std::make_shared<const std::string>(std::move(file));
    resources.m_module = CPeImage::Open(std::as_bytes(std::span(*resources.m_file)));
    if (!resources.m_module || !resources.m_module->Find(ResourceType::kDialog, kDialogLanguage)) return std::nullopt;
    return resources;
}

std::u16string CResources::Text(int id) const {
    if (m_module) {
        auto text = FindText(*m_module, id);
        if (!text.empty()) return text;
    }
    return FindText(m_english, id);
}

std::optional<MenuTemplate> CResources::Menu(int id) const {
    return Lookup(m_module, m_english, ResourceType::kMenu, id, &ParseMenu);
}

std::optional<DialogTemplate> CResources::Dialog(int id) const {
    return Lookup(m_module, m_english, ResourceType::kDialog, id, &ParseDialog);
}

}  // namespace rlx
