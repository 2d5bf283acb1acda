#pragma once

namespace rlx {

/// How a device store came to be open. Everything but the first two is worth telling the user, once.
enum class StoreOutcome {
    kOpened,
    kCreated,
    kReplaced,     ///< the file was damaged: it was moved aside and a new store made in its place
    kReadOnly,     ///< the store can be read; a copy in memory serves this run and refuses new settings
    kUnreachable,  ///< the file cannot be opened or made; a store in memory serves this run
    kNewer,        ///< made by a later version of the program, left as it is; a store in memory serves this run
    kForeign       ///< a database of another program, left as it is; a store in memory serves this run
};

}  // namespace rlx
