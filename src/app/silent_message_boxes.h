#pragma once

#include "platform/message_boxes.h"

namespace rlx {

/// Shows nothing and answers no, for runs that nobody watches.
class CSilentMessageBoxes : public IMessageBoxes {
public:
    BoxAnswer Show(const MessageBox& box) override {
        return box.buttons == BoxButtons::kOk ? BoxAnswer::kOk : BoxAnswer::kNo;
    }
};

}  // namespace rlx
