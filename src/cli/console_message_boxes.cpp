#include "cli/console_message_boxes.h"

#include <unistd.h>

#include <iostream>
#include <string>

#include "base/text.h"

namespace rlx::cli {

CConsoleMessageBoxes::CConsoleMessageBoxes(GivenAnswer answer, bool quiet) : m_answer(answer), m_quiet(quiet) {}

BoxAnswer CConsoleMessageBoxes::Show(const MessageBox& box) {
    if (!m_quiet) std::cerr << '[' << ToUtf8(box.title) << "] " << ToUtf8(box.text) << '\n';
    const BoxAnswer answer = AnswerTo(box);
    m_shown.push_back({box, answer});
    return answer;
}

BoxAnswer CConsoleMessageBoxes::AnswerTo(const MessageBox& box) const {
    if (box.buttons == BoxButtons::kOk) return BoxAnswer::kOk;
    if (m_answer == GivenAnswer::kYes) return BoxAnswer::kYes;
    if (m_answer == GivenAnswer::kNo || isatty(STDIN_FILENO) == 0 || m_quiet) return BoxAnswer::kNo;
    std::cerr << "[y/N] " << std::flush;
    std::string line;
    std::getline(std::cin, line);
    return !line.empty() && (line.front() == 'y' || line.front() == 'Y') ? BoxAnswer::kYes : BoxAnswer::kNo;
}

}  // namespace rlx::cli
