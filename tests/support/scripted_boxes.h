#pragma once

#include <deque>
#include <vector>

#include "platform/message_boxes.h"

namespace rlx::test {

/// Keeps what was shown. Questions are answered in turn from `answers`, with no when none is left.
class CScriptedBoxes : public IMessageBoxes {
public:
    BoxAnswer Show(const MessageBox& box) override {
        shown.push_back(box);
        if (box.buttons == BoxButtons::kOk) return BoxAnswer::kOk;
        if (answers.empty()) return BoxAnswer::kNo;
        const BoxAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::deque<BoxAnswer> answers;
    std::vector<MessageBox> shown;
};

}  // namespace rlx::test
