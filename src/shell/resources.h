#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "shell/dialog_template.h"
#include "shell/menu_template.h"
#include "shell/pe_image.h"
#include "shell/texts.h"

namespace rlx {

/// The texts, menus and dialogs in force: those of a language module, and the built-in English ones wherever the module
/// lacks a number. Each lookup reads just what it needs. Copies share the module's bytes. Safe to read from any thread.
class CResources : public ITexts {
public:
    /// A module file larger than this is refused; give it to `IFileSystem::ReadFile` as the limit.
    static constexpr std::size_t kMaxModuleSize = std::size_t{4} * 1024 * 1024;

    /// The built-in English set.
    CResources();

    /// The set of a module, given the bytes of its file. Nothing when they are no resource library or it holds no
    /// dialog 318, which is what makes a library a language module.
    static std::optional<CResources> FromModule(std::string file);

    /// `id` is a `TextId`. Empty when not even the English set has that number.
    std::u16string Text(int id) const override;

    /// `id` is a `MenuId`. Nothing when no set has a sound menu of that number.
    std::optional<MenuTemplate> Menu(int id) const;

    /// `id` is a `DialogId`. Nothing when no set has a sound dialog of that number.
    std::optional<DialogTemplate> Dialog(int id) const;

private:
    std::shared_ptr<const std::string> m_file;  // the module's bytes; null for English
    std::optional<CPeImage> m_module;           // into m_file
    CPeImage m_english;
};

}  // namespace rlx
