#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/message_boxes.h"

namespace rlx {

/// Remembers the boxes that were shown. Questions are answered from the queue in order; one that was not foreseen gets
/// "no".
class CScriptedMessageBoxes : public IMessageBoxes {
public:
    BoxAnswer Show(const MessageBox& box) override {
        shown.push_back(box);
        if (box.buttons == BoxButtons::kOk) return BoxAnswer::kOk;
        if (answers.empty()) {
            unforeseen.push_back(box);
            return BoxAnswer::kNo;
        }
        const BoxAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::vector<MessageBox> shown;
    std::vector<MessageBox> unforeseen;  ///< questions for which no answer was queued
    std::deque<BoxAnswer> answers;
};

}  // namespace rlx
