#include "base/text.h"
#include "cli/commands.h"
#include "shell/text_ids.h"

namespace rlx::cli {

namespace {

constexpr std::size_t kLimit = 1U << 20U;

/// The shipped list of sources is the one list of credits.
int Show(CSession& session, CAnswer& answer) {
    const auto file = session.Folder().Path(u"\\SOURCES.md");
    const auto text = file ? session.Files().ReadFile(*file, kLimit) : std::nullopt;
    if (!text) return session.Fail(session.Text(kTextFileNotRead, u"SOURCES.md"));
    answer.Set("credits", ToJson(FromUtf8(*text)));
    answer.Line(*text);
    return kDone;
}

}  // namespace

void DeclareCredits(CLI::App& app, const SetAction& setAction) {
    app.callback([setAction] { setAction(Show); });
}

}  // namespace rlx::cli
