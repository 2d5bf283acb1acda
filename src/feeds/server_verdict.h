#pragma once

#include <string>
#include <string_view>

#include "shell/texts.h"

namespace rlx {

/// What a reply's status and server code mean.
struct ServerVerdict {
    std::u16string message;  ///< for the user; empty when there is nothing to say
    bool readBody = false;   ///< false: the reply's body is of no use
};

ServerVerdict JudgeReply(int status, std::u16string_view serverCode, const ITexts& texts);

}  // namespace rlx
