#include "weather/ui/update_progress.h"

#include <QCoreApplication>

#include "base/number.h"
#include "shell/fill_text.h"
#include "shell/text_ids.h"
#include "uikit/qt_text.h"
#include "weather/text_ids.h"

namespace rlx {

CUpdateProgress::CUpdateProgress(QWidget* owner, const ITexts& texts) : m_texts(texts), m_dialog(owner) {
    m_dialog.setObjectName("weatherProgress");
    m_dialog.setWindowTitle(ToQString(texts.Text(kTextUpdate)));
    m_dialog.setCancelButtonText(ToQString(texts.Text(kTextCancel)));
    m_dialog.setWindowModality(Qt::WindowModal);
    m_dialog.setAutoReset(false);
    m_dialog.setMinimumDuration(0);
}

void CUpdateProgress::OnPlace(std::u16string_view place, std::size_t number, std::size_t total) {
    m_dialog.setMaximum(static_cast<int>(total));
    m_dialog.setLabelText(ToQString(FillText(m_texts.Text(kTextUpdatingPlace),
                                             {FallbackFeedName(place), FormatInteger(static_cast<std::int64_t>(number)),
                                              FormatInteger(static_cast<std::int64_t>(total))})));
    m_dialog.setValue(static_cast<int>(number) - 1);
    m_dialog.show();
}

bool CUpdateProgress::Cancelled() {
    QCoreApplication::processEvents();
    return m_dialog.wasCanceled();
}

}  // namespace rlx
