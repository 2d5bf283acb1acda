#pragma once

#include <iosfwd>
#include <vector>

#include "cli/options.h"
#include "platform/message_boxes.h"

namespace rlx::cli {

/// A box that was shown, with what it answered.
struct AnsweredBox {
    MessageBox box;
    BoxAnswer answer = BoxAnswer::kOk;
};

/// Message boxes of a terminal: as "[title] text" on standard error, or kept for the JSON answer. A question is
/// answered by `--yes` or `--no`, else asked on the terminal, else with no.
class CConsoleMessageBoxes : public IMessageBoxes {
public:
    CConsoleMessageBoxes(GivenAnswer answer, bool quiet);

    BoxAnswer Show(const MessageBox& box) override;

    const std::vector<AnsweredBox>& Shown() const { return m_shown; }

private:
    BoxAnswer AnswerTo(const MessageBox& box) const;

    GivenAnswer m_answer;
    bool m_quiet;
    std::vector<AnsweredBox> m_shown;
};

}  // namespace rlx::cli
