#pragma once

#include "shell/texts.h"
#include "weather/ui/forecast_server.h"
#include "weather/weather_update.h"

namespace rlx {

/// Names in the server's progress box the place that is asked for. References must outlive it.
class CUpdateProgress : public IWeatherUpdateObserver {
public:
    CUpdateProgress(IForecastServer& server, const ITexts& texts) : m_server(server), m_texts(texts) {}

    void OnPlace(std::u16string_view place, std::size_t number, std::size_t total) override;
    bool Cancelled() override { return m_server.Cancelled(); }

private:
    IForecastServer& m_server;
    const ITexts& m_texts;
};

}  // namespace rlx
