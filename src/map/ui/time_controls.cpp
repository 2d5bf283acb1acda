#include "map/ui/time_controls.h"

#include "map/text_ids.h"
#include "uikit/qt_text.h"

namespace rlx {

CTimeControls::CTimeControls(const CLook& look, const ITexts& texts, QWidget* screen)
    : QObject(screen),
      m_texts(texts),
      m_scrubber(new CTimeScrubber(look, screen)),
      m_span(new QToolButton(screen)),
      m_now(new QToolButton(screen)) {
    m_scrubber->setObjectName("mapScrubber");
    m_scrubber->setAccessibleName(ToQString(texts.Text(kTextMapScrubber)));
    connect(m_scrubber, &CTimeScrubber::Moved, this, &CTimeControls::Moved);
    m_span->setObjectName("mapSpan");
    m_span->setText(ToQString(texts.Text(kTextMapYear)));
    connect(m_span, &QToolButton::clicked, this, &CTimeControls::ToggleSpan);
    m_now->setObjectName("mapNow");
    m_now->setText(ToQString(texts.Text(kTextMapNow)));
    connect(m_now, &QToolButton::clicked, this, &CTimeControls::Returned);
}

void CTimeControls::Place(const MapLayout& layout) {
    m_scrubber->setGeometry(layout.scrubber);
    m_span->setGeometry(layout.span);
    m_now->setGeometry(layout.now);
}

void CTimeControls::Show(const DateTime& time, bool moved) {
    m_scrubber->SetTime(time);
    m_now->setEnabled(moved);
}

/// The button names what it leads to.
void CTimeControls::ToggleSpan() {
    const bool year = m_scrubber->Shown() == CTimeScrubber::Span::kDay;
    m_scrubber->SetSpan(year ? CTimeScrubber::Span::kYear : CTimeScrubber::Span::kDay);
    m_span->setText(ToQString(m_texts.Text(year ? kTextMapDay : kTextMapYear)));
}

}  // namespace rlx
