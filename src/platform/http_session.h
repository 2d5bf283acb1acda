#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace rlx {

/// The platform's codes for a request that failed, as people see them in "Cannot connect to Server(code)".
enum HttpFailure : std::uint32_t {
    kHttpNoFailure = 0,
    kHttpOutOfMemory = 14,
    kHttpTimedOut = 12002,
    kHttpInternalError = 12004,
    kHttpInvalidUrl = 12005,
    kHttpNameNotResolved = 12007,
    kHttpCancelled = 12017,
    kHttpCannotConnect = 12029,
    kHttpConnectionAborted = 12030,
    kHttpConnectionReset = 12031,
    kHttpInvalidReply = 12152,
};

/// One POST. Plain HTTP: the protocol knows no encryption.
struct HttpPost {
    std::string host;         ///< name or address; an IPv6 address without its brackets
    std::uint16_t port = 80;  ///< 1 to 65535
    std::string objectPath;   ///< begins with "/", holds neither blanks nor control characters
    std::string agent;        ///< name of the program
    std::string headers;      ///< header block, each line ended by CR LF; sent in this order
    std::string body;         ///< any bytes
};

/// How long a request waits and how much it takes.
struct HttpLimits {
    std::chrono::milliseconds connect{15'000};  ///< until the connection stands, name look-up included
    std::chrono::milliseconds stall{30'000};    ///< without a byte in either direction
    std::chrono::milliseconds whole{300'000};   ///< from the first step to the last byte
    std::size_t headerBytes = 65'536;           ///< of one reply's status line and headers
    std::size_t bodyBytes = 1'048'576;          ///< of one reply's body
};

struct HttpProgress {
    std::size_t bodyBytesReceived = 0;
};

/// Told how a request goes on, about twenty times a second, on the thread that made it.
class IHttpObserver {
public:
    virtual ~IHttpObserver() = default;

    /// False ends the request at once with `kHttpCancelled`.
    virtual bool GoOn(const HttpProgress& progress) = 0;
};

/// A reply whose headers have arrived; destroying it closes the connection.
class IHttpReply {
public:
    virtual ~IHttpReply() = default;

    virtual int Status() const = 0;

    /// Status line and headers as they came over the wire, line ends included.
    virtual const std::string& RawHeaders() const = 0;

    /// The next bytes of the body, waiting for them; 0 at its end. Nothing when the transfer failed: see `Failure`.
    virtual std::optional<std::size_t> Read(char* buffer, std::size_t size) = 0;

    virtual HttpFailure Failure() const = 0;
};

/// Either a reply or the reason why there is none.
struct HttpAnswer {
    std::unique_ptr<IHttpReply> reply;
    HttpFailure failure = kHttpNoFailure;
};

/// The only way to another machine. Follows no redirect, keeps no cookie, never asks for credentials. One thread at a
/// time; a reply must not outlive its session.
class IHttpSession {
public:
    virtual ~IHttpSession() = default;

    /// Sends the request and waits for the reply's headers. `observer` may be null; it must outlive the reply.
    virtual HttpAnswer Post(const HttpPost& post, IHttpObserver* observer) = 0;
};

}  // namespace rlx
