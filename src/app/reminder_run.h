#pragma once

#include "app/application.h"

namespace rlx {

/// Tells of the reminders that are due, without a window, and sets the session's timer for those that wait. What the
/// desktop does not take stays for the window's next start. The process's exit status.
int TellReminders(const WindowOptions& options);

}  // namespace rlx
