#pragma once

#include <QAbstractTableModel>
#include <optional>
#include <vector>

#include "places/city_database.h"
#include "places/city_times.h"
#include "shell/clock_text.h"

namespace rlx {

/// Cities as rows of a list: name and country, and the time that its clock shows now with its day and distance as seen
/// from home. A row is read when it is seen, so that a long list costs nothing. References must outlive the model.
/// User-interface thread.
class CCityListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { kPlace, kTime, kColumns };

    CCityListModel(CCityDatabase& cities, CCityTimes& times, const ITexts& texts, ClockForm form,
                   QObject* parent = nullptr);

    void SetCities(std::vector<CityIndex> cities);
    std::optional<CityIndex> CityAt(const QModelIndex& index) const;

    /// The row of a city; nothing when it is not among them.
    std::optional<int> RowOf(CityIndex city) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QString TextOf(CityIndex city, int column) const;
    QString WordsOf(CityIndex city) const;

    CCityDatabase& m_cities;
    CCityTimes& m_times;
    const ITexts& m_texts;
    const ClockForm m_form;
    const DateTime m_now;
    const ClockReading m_home;
    std::vector<CityIndex> m_rows;
};

}  // namespace rlx
