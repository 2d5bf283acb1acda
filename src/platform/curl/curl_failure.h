#pragma once

#include <curl/curl.h>

#include "platform/http_session.h"

namespace rlx {

/// The platform's code for one of curl's.
HttpFailure FailureOf(CURLcode code);

}  // namespace rlx
