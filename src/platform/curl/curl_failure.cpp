#include "platform/curl/curl_failure.h"

namespace rlx {

HttpFailure FailureOf(CURLcode code) {
    switch (code) {
        case CURLE_OK:
            return kHttpNoFailure;
        case CURLE_OUT_OF_MEMORY:
            return kHttpOutOfMemory;
        case CURLE_OPERATION_TIMEDOUT:
            return kHttpTimedOut;
        case CURLE_URL_MALFORMAT:
            return kHttpInvalidUrl;
        case CURLE_COULDNT_RESOLVE_HOST:
        case CURLE_COULDNT_RESOLVE_PROXY:
            return kHttpNameNotResolved;
        case CURLE_COULDNT_CONNECT:
        case CURLE_INTERFACE_FAILED:
        case CURLE_PROXY:
            return kHttpCannotConnect;
        case CURLE_ABORTED_BY_CALLBACK:
            return kHttpCancelled;
        case CURLE_SEND_ERROR:
        case CURLE_PARTIAL_FILE:
        case CURLE_GOT_NOTHING:
            return kHttpConnectionAborted;
        case CURLE_RECV_ERROR:
            return kHttpConnectionReset;
        // The first is what curl says of a reply without a status line.
        case CURLE_UNSUPPORTED_PROTOCOL:
        case CURLE_WEIRD_SERVER_REPLY:
        case CURLE_BAD_CONTENT_ENCODING:
            return kHttpInvalidReply;
        default:
            return kHttpInternalError;
    }
}

}  // namespace rlx
