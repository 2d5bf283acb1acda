#pragma once

/// The numbers of dialogs and their controls. The resource compiler reads them from here, so each stands once:
/// "kName = number," on a line of its own.
namespace rlx {

enum DialogId : int {
    kDialogLanguage = 318,  // The dialog that makes a library a language module.
};

}  // namespace rlx
