#pragma once

/// The numbers of menus and menu entries. The resource compiler reads them from here, so each stands once:
/// "kName = number," on a line of its own.
namespace rlx {

enum MenuId : int {
    kMenuMain = 100,
};

}  // namespace rlx
