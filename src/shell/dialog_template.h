#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace rlx {

enum class ControlKind {
    kPushButton,
    kCheckBox,
    kRadioButton,
    kGroupBox,
    kEdit,
    kStatic,
    kListBox,
    kComboBox,  // with a field to type in
    kDropDownList,
    kScrollBar,
    kListView,
    kDatePicker,
    kTimePicker,
    kOther,  // see DialogControl::className
};

/// One control of a dialog, in the order of the keyboard focus. Places and sizes are dialog units (a quarter of the
/// average character's width, an eighth of its height).
struct DialogControl {
    int id = 0;  // a ControlId; -1 for controls that the program never names
    ControlKind kind = ControlKind::kOther;
    std::u16string className;  // as given, for `kListView`, the pickers and `kOther`
    std::u16string text;       // "&" marks the mnemonic
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool visible = true;
    bool enabled = true;
    bool tabStop = false;
    bool defaultButton = false;
    bool readOnly = false;
    bool multiline = false;
    bool password = false;
    bool number = false;   // takes digits alone
    bool centred = false;  // statics and edit fields
    bool right = false;
};

struct DialogTemplate {
    std::u16string title;
    std::u16string font;  // empty when the dialog leaves it to the program
    int fontSize = 0;     // points; 0 likewise
    int width = 0;
    int height = 0;
    std::vector<DialogControl> controls;
};

/// Reads a dialog resource of either form (plain and extended). Nothing when it is cut off or has more than 255
/// controls.
std::optional<DialogTemplate> ParseDialog(std::span<const std::byte> resource);

}  // namespace rlx
