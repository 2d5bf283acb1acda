#pragma once

#include <thread>

namespace rlx {

/// Reads the system's list of fonts in a thread of its own, from the making of this on: Qt needs it for its first text,
/// and meanwhile the connection to the display is made. A second reader of the list waits for the first. The destructor
/// waits for the end.
class CFontsAhead {
public:
    CFontsAhead();

private:
    std::jthread m_thread;
};

}  // namespace rlx
