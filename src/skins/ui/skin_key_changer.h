#pragma once

#include <functional>
#include <optional>

#include "skins/skin_draft.h"
#include "skins/ui/skin_file_picker.h"
#include "skins/ui/skin_ports.h"

namespace rlx {

/// Asks for another value of one key of a skin that is edited, in the dialog that fits the key's kind, and puts it into
/// the draft. User-interface thread; references must outlive it.
class CSkinKeyChanger {
public:
    /// `followed` is called while a colour is being tried out, with the draft holding it.
    CSkinKeyChanger(const SkinPorts& ports, CSkinDraft& draft, std::function<void()> followed, QWidget* parent);

    /// A key that has no pictures to choose from gets a message. A person who gives up leaves the draft as it was.
    void Change(SkinKey key);

private:
    void ChangeColour(SkinKey key);
    void ChangePicture(SkinKey key);
    void ChangeIcons(SkinKey key);
    std::optional<std::size_t> Pick(SkinKey key, const std::vector<SkinFileChoice>& choices, int current);

    const SkinPorts& m_ports;
    CSkinDraft& m_draft;
    std::function<void()> m_followed;
    QWidget* m_parent;
};

}  // namespace rlx
