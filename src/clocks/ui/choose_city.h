#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <optional>

#include "places/city_record.h"

namespace rlx {

/// Lets the user choose a city; nothing when the choice was called off. The arguments are the window to stand in front
/// of, the title, and the city chosen so far.
using CityChooser = std::function<std::optional<CityIndex>(QWidget*, const QString&, CityIndex)>;

}  // namespace rlx
