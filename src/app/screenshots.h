#pragma once

#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "app/main_window.h"

namespace rlx {

/// "240x320,1280x800" to sizes; nothing when a word is no size from 100x100 to 8192x8192.
std::optional<std::vector<QSize>> ParseSizes(const QString& text);

/// Renders every view of every screen of the window in every size to "<screen>-<width>x<height>.png" or
/// "<screen>-<view>-<width>x<height>.png" in `folder`. Returns the paths, or nothing when one could not be written.
std::optional<QStringList> RenderScreens(CMainWindow& window, const QString& folder, const std::vector<QSize>& sizes);

}  // namespace rlx
