#include "places/ui/city_list_model.h"

#include <algorithm>

#include "places/home_distance.h"
#include "uikit/qt_text.h"

namespace rlx {

CCityListModel::CCityListModel(CCityDatabase& cities, CCityTimes& times, const ITexts& texts, ClockForm form,
                               QObject* parent)
    : QAbstractTableModel(parent),
      m_cities(cities),
      m_times(times),
      m_texts(texts),
      m_form(form),
      m_now(times.Now()),
      m_home(times.HomeClock(m_now)) {}

void CCityListModel::SetCities(std::vector<CityIndex> cities) {
    beginResetModel();
    m_rows = std::move(cities);
    endResetModel();
}

std::optional<CityIndex> CCityListModel::CityAt(const QModelIndex& index) const {
    if (!index.isValid() || index.row() >= rowCount()) return std::nullopt;
    return m_rows[static_cast<std::size_t>(index.row())];
}

std::optional<int> CCityListModel::RowOf(CityIndex city) const {
    const auto found = std::find(m_rows.begin(), m_rows.end(), city);
    if (found == m_rows.end()) return std::nullopt;
    return static_cast<int>(found - m_rows.begin());
}

int CCityListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int CCityListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumns;
}

/// Two lines each, so that both columns fit a narrow screen.
QString CCityListModel::TextOf(CityIndex city, int column) const {
    if (column == kPlace) return ToQString(m_cities.GetName(city) + u"\n" + m_cities.GetCountry(city));
    const ClockReading clock = m_times.WorldClock(city, m_now);
    const ClockTextPieces time = ClockText(static_cast<int>(clock.hour), clock.minute, std::nullopt, m_form, m_texts);
    return ToQString(time.time + time.half + u"\n" + HomeNote(m_home, clock, m_texts));
}

/// The same in words and in full.
QString CCityListModel::WordsOf(CityIndex city) const {
    const std::int64_t ahead = MinutesAhead(m_home, m_times.WorldClock(city, m_now));
    return ToQString(m_cities.GetName(city) + u", " + m_cities.GetCountry(city) + u", " + DistanceText(ahead, m_texts));
}

QVariant CCityListModel::data(const QModelIndex& index, int role) const {
    const auto city = CityAt(index);
    if (!city) return {};
    if (role == Qt::DisplayRole) return TextOf(*city, index.column());
    if (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole) return WordsOf(*city);
    if (role == Qt::TextAlignmentRole && index.column() == kTime) {
        return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
    }
    return {};
}

}  // namespace rlx
