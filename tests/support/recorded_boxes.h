#pragma once

#include <vector>

#include "platform/message_boxes.h"

namespace rlx::test {

/// Keeps every box that was shown; answers Yes/No boxes as told.
class CRecordedBoxes : public IMessageBoxes {
public:
    std::vector<MessageBox> shown;
    BoxAnswer answer = BoxAnswer::kYes;
    bool check = false;  ///< how check boxes are left
    std::u16string checkText;

    BoxAnswer Show(const MessageBox& box) override {
        shown.push_back(box);
        return box.buttons == BoxButtons::kOk ? BoxAnswer::kOk : answer;
    }

    BoxAnswer ShowWithCheck(const MessageBox& box, const std::u16string& text, bool& checked) override {
        checkText = text;
        checked = check;
        return Show(box);
    }
};

}  // namespace rlx::test
