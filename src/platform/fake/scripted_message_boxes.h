#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/message_boxes.h"

namespace rlx {

/// Remembers the boxes that were shown. Questions are answered from the queue in order, all behind it with `always`.
class CScriptedMessageBoxes : public IMessageBoxes {
public:
    BoxAnswer Show(const MessageBox& box) override {
        shown.push_back(box);
        if (box.buttons == BoxButtons::kOk) return BoxAnswer::kOk;
        if (answers.empty()) return always;
        const BoxAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    BoxAnswer ShowWithCheck(const MessageBox& box, const std::u16string& text, bool& checked) override {
        checkText = text;
        checked = check;
        return Show(box);
    }

    std::vector<MessageBox> shown;
    std::deque<BoxAnswer> answers;
    BoxAnswer always = BoxAnswer::kNo;
    bool check = false;        ///< how check boxes are left
    std::u16string checkText;  ///< of the last one
};

}  // namespace rlx
