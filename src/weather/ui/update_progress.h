#pragma once

#include <QProgressDialog>

#include "shell/texts.h"
#include "weather/weather_update.h"

namespace rlx {

/// Shows in front of `owner` how an update goes on, with a button that ends it. While it waits, the window keeps
/// painting but takes no other input.
class CUpdateProgress : public IWeatherUpdateObserver {
public:
    CUpdateProgress(QWidget* owner, const ITexts& texts);

    void OnPlace(std::u16string_view place, std::size_t number, std::size_t total) override;
    bool Cancelled() override;

private:
    const ITexts& m_texts;
    QProgressDialog m_dialog;
};

}  // namespace rlx
