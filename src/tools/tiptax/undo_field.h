#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace rlx {

/// The text of an entry field with one step of undo, as the device's edit control has it: undoing twice brings the edit
/// back.
class CUndoField {
public:
    explicit CUndoField(std::u16string_view text) : m_text(text) {}

    const std::u16string& Text() const { return m_text; }

    /// What a person typed: can be undone.
    void Edit(std::u16string_view text) {
        m_before = std::exchange(m_text, std::u16string(text));
        m_canUndo = true;
    }

    /// What the program puts in: nothing is left to undo.
    void Set(std::u16string_view text) {
        m_text = text;
        m_canUndo = false;
    }

    bool CanUndo() const { return m_canUndo; }
    void Undo() {
        if (m_canUndo) std::swap(m_text, m_before);
    }

private:
    std::u16string m_text;
    std::u16string m_before;
    bool m_canUndo = false;
};

}  // namespace rlx
