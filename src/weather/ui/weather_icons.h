#pragma once

#include <QHash>
#include <QImage>
#include <QPainter>
#include <filesystem>
#include <string_view>

#include "platform/file_system.h"

namespace rlx {

/// The pictures of one icon set, each read when it is first drawn. User-interface thread; does not own the files.
class CWeatherIcons {
public:
    explicit CWeatherIcons(IFileSystem& files) : m_files(files) {}

    /// Draws from another folder from now on.
    void SetFolder(const std::filesystem::path& folder);

    /// Draws the picture named `icon` (`WeatherCondition::icon`), as large as fits, in the middle of `room`; nothing
    /// when the set has neither it nor the one for unknown weather.
    void Paint(QPainter& painter, const QRectF& room, std::string_view icon) const;

private:
    const QImage& Picture(std::string_view icon) const;

    IFileSystem& m_files;
    std::filesystem::path m_folder;
    mutable QHash<QByteArray, QImage> m_pictures;
};

}  // namespace rlx
