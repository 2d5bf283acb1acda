#pragma once

#include <string>
#include <vector>

namespace rlx {

/// The service manager of the person's session. Used from one thread.
class IUserServices {
public:
    virtual ~IUserServices() = default;

    /// True where one runs.
    virtual bool IsThere() = 0;

    /// Gives it an order, such as "enable", "name.timer", and waits a few seconds at most. False when it was not
    /// carried out.
    virtual bool Order(const std::vector<std::string>& words) = 0;
};

}  // namespace rlx
