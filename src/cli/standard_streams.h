#pragma once

namespace rlx::cli {

/// Fills the places of standard streams that the caller has closed, so that no file that is opened later stands there
/// and takes what was meant for a person. Reading and writing them fails as it did. Call before anything is opened.
void HoldStandardStreams();

/// True when everything printed has arrived; else says on standard error why not.
bool FlushStandardOutput();

}  // namespace rlx::cli
