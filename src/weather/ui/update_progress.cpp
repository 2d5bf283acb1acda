#include "weather/ui/update_progress.h"

#include "base/number.h"
#include "shell/fill_text.h"
#include "uikit/qt_text.h"
#include "weather/text_ids.h"

namespace rlx {

void CUpdateProgress::OnPlace(std::u16string_view place, std::size_t number, std::size_t total) {
    m_server.SetSubject(ToQString(FillText(m_texts.Text(kTextUpdatingPlace),
                                           {FallbackFeedName(place), FormatInteger(static_cast<std::int64_t>(number)),
                                            FormatInteger(static_cast<std::int64_t>(total))})));
}

}  // namespace rlx
