#pragma once

#include "platform/user_services.h"

namespace rlx {

/// systemd's manager of the person's session, by its program systemctl.
class CSystemdServices : public IUserServices {
public:
    bool IsThere() override;
    bool Order(const std::vector<std::string>& words) override;
};

}  // namespace rlx
