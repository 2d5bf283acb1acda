#include "cli/standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <iostream>

namespace rlx::cli {

void HoldStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) >= 0) continue;
        // The lowest free number is this one; the other direction makes every use of it fail.
        if (open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY) < 0) return;
    }
}

bool FlushStandardOutput() {
    if (std::cout.flush()) return true;
    std::perror("rlx");
    return false;
}

}  // namespace rlx::cli
