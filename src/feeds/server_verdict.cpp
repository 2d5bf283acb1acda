#include "feeds/server_verdict.h"

#include "feeds/text_ids.h"

namespace rlx {

ServerVerdict JudgeReply(int status, std::u16string_view serverCode, const ITexts& texts) {
    const std::u16string code = u"(" + std::u16string(serverCode) + u").";
    const auto message = [&texts, &code](int what, int advice) {
        return texts.Text(what) + code + u"\n\n" + texts.Text(advice);
    };
    if (status == 500) return {message(kTextServerError, kTextTryAgainLater), true};
    if (serverCode == u"1001") return {message(kTextInvalidRequest, kTextTryAgainLater), true};
    if (serverCode == u"1004") return {message(kTextServerError, kTextTryAgainLater), true};
    if (serverCode == u"1005") return {{}, true};
    if (serverCode == u"1006") return {message(kTextCityNotAvailable, kTextContactSupport), true};
    if (serverCode == u"1007") return {texts.Text(kTextNoUpdates) + code, true};
    return {};
}

}  // namespace rlx
