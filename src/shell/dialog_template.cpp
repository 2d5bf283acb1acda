#include "shell/dialog_template.h"

#include <cstdint>
#include <utility>

#include "base/text.h"
#include "shell/byte_cursor.h"

namespace rlx {
namespace {

constexpr unsigned kMaxControls = 255;
constexpr std::uint16_t kOrdinalMark = 0xFFFF;

constexpr std::uint32_t kDialogHasFont = 0x40;
constexpr std::uint32_t kDisabled = 0x08000000;
constexpr std::uint32_t kVisible = 0x10000000;
constexpr std::uint32_t kTabStop = 0x00010000;

enum ClassAtom : std::uint16_t {
    kButtonAtom = 0x80,
    kEditAtom = 0x81,
    kStaticAtom = 0x82,
    kListBoxAtom = 0x83,
    kScrollBarAtom = 0x84,
    kComboBoxAtom = 0x85,
};

/// A name or a number; both are empty when the field is not there.
struct NameOrNumber {
    std::u16string name;
    std::uint16_t number = 0;
};

NameOrNumber ReadNameOrNumber(CByteCursor& cursor) {
    CByteCursor ahead = cursor;
    NameOrNumber value;
    if (ahead.U16() == kOrdinalMark) {
        cursor.Skip(2);
        value.number = cursor.U16();
    } else {
        value.name = cursor.ZeroEnded();
    }
    return value;
}

std::uint16_t AtomOf(const NameOrNumber& windowClass) {
    static constexpr struct {
        const char16_t* name;
        ClassAtom atom;
    } kNames[] = {{u"button", kButtonAtom},   {u"edit", kEditAtom},           {u"static", kStaticAtom},
                  {u"listbox", kListBoxAtom}, {u"scrollbar", kScrollBarAtom}, {u"combobox", kComboBoxAtom}};
    for (const auto& row : kNames) {
        if (EqualIgnoringCase(windowClass.name, row.name)) return row.atom;
    }
    return windowClass.number;
}

ControlKind ButtonKind(std::uint32_t style) {
    switch (style & 0x0F) {
        case 2:  // check box
        case 3:  // automatic check box
        case 5:  // check box of three states
        case 6:
            return ControlKind::kCheckBox;
        case 4:
        case 9:
            return ControlKind::kRadioButton;
        case 7:
            return ControlKind::kGroupBox;
        default:
            return ControlKind::kPushButton;
    }
}

ControlKind NamedKind(std::u16string_view windowClass, std::uint32_t style) {
    constexpr std::uint32_t kTimeFormat = 0x0008;
    if (EqualIgnoringCase(windowClass, u"SysListView32")) return ControlKind::kListView;
    if (!EqualIgnoringCase(windowClass, u"SysDateTimePick32")) return ControlKind::kOther;
    return (style & kTimeFormat) != 0 ? ControlKind::kTimePicker : ControlKind::kDatePicker;
}

/// Sets the kind and what the style says for controls of that class alone.
void Decode(DialogControl& control, const NameOrNumber& windowClass, std::uint32_t style) {
    switch (AtomOf(windowClass)) {
        case kButtonAtom:
            control.kind = ButtonKind(style);
            control.defaultButton = (style & 0x0F) == 1;
            break;
        case kEditAtom:
            control.kind = ControlKind::kEdit;
            control.centred = (style & 0x0003) == 1;
            control.right = (style & 0x0003) == 2;
            control.multiline = (style & 0x0004) != 0;
            control.password = (style & 0x0020) != 0;
            control.readOnly = (style & 0x0800) != 0;
            control.number = (style & 0x2000) != 0;
            break;
        case kStaticAtom:
            control.kind = ControlKind::kStatic;
            control.centred = (style & 0x1F) == 1;
            control.right = (style & 0x1F) == 2;
            break;
        case kListBoxAtom:
            control.kind = ControlKind::kListBox;
            break;
        case kScrollBarAtom:
            control.kind = ControlKind::kScrollBar;
            break;
        case kComboBoxAtom:
            control.kind = (style & 0x0003) == 3 ? ControlKind::kDropDownList : ControlKind::kComboBox;
            break;
        default:
            control.kind = NamedKind(windowClass.name, style);
            control.className = windowClass.name;
    }
}

class CDialogParser {
public:
    explicit CDialogParser(std::span<const std::byte> resource) : m_cursor(resource) {}

    std::optional<DialogTemplate> Parse() {
        DialogTemplate dialog;
        const auto count = Header(dialog);
        if (!m_cursor.Ok() || count > kMaxControls) return std::nullopt;
        while (dialog.controls.size() < count) {
            dialog.controls.push_back(Control());
            if (!m_cursor.Ok()) return std::nullopt;
        }
        return dialog;
    }

private:
    /// Reads up to the first control; the result is how many there are.
    unsigned Header(DialogTemplate& dialog) {
        CByteCursor ahead = m_cursor;
        const auto version = ahead.U16();
        m_extended = ahead.U16() == kOrdinalMark && version == 1;
        if (m_extended) m_cursor.Skip(12);
        const auto style = m_cursor.U32();
        if (!m_extended) m_cursor.Skip(4);
        const unsigned count = m_cursor.U16();
        m_cursor.Skip(4);
        dialog.width = m_cursor.I16();
        dialog.height = m_cursor.I16();
        ReadNameOrNumber(m_cursor);  // menu
        ReadNameOrNumber(m_cursor);  // window class
        dialog.title = m_cursor.ZeroEnded();
        if ((style & kDialogHasFont) != 0) {
            dialog.fontSize = m_cursor.U16();
            if (m_extended) m_cursor.Skip(4);  // weight, italic, character set
            dialog.font = m_cursor.ZeroEnded();
        }
        return count;
    }

    DialogControl Control() {
        DialogControl control;
        m_cursor.Align(4);
        if (m_extended) m_cursor.Skip(8);
        const auto style = m_cursor.U32();
        if (!m_extended) m_cursor.Skip(4);
        control.x = m_cursor.I16();
        control.y = m_cursor.I16();
        control.width = m_cursor.I16();
        control.height = m_cursor.I16();
        control.id = m_extended ? static_cast<std::int32_t>(m_cursor.U32()) : m_cursor.I16();
        const auto windowClass = ReadNameOrNumber(m_cursor);
        control.text = ReadNameOrNumber(m_cursor).name;
        SkipCreationData();
        control.visible = (style & kVisible) != 0;
        control.enabled = (style & kDisabled) == 0;
        control.tabStop = (style & kTabStop) != 0;
        Decode(control, windowClass, style);
        return control;
    }

    void SkipCreationData() {
        const std::size_t size = m_cursor.U16();
        // The plain form counts the two bytes of the size itself.
        if (m_extended) m_cursor.Skip(size);
        if (!m_extended && size > 2) m_cursor.Skip(size - 2);
    }

    CByteCursor m_cursor;
    bool m_extended = false;
};

}  // namespace

std::optional<DialogTemplate> ParseDialog(std::span<const std::byte> resource) {
    return CDialogParser(resource).Parse();
}

}  // namespace rlx
