#include "weather/ui/weather_icons.h"

#include <algorithm>

#include "weather/icon_set.h"

namespace rlx {

namespace {

constexpr std::size_t kLargestFile = 4U << 20U;

}  // namespace

void CWeatherIcons::SetFolder(const std::filesystem::path& folder) {
    if (folder == m_folder) return;
    m_folder = folder;
    m_pictures.clear();
}

/// With their transparency, which the codec of the backgrounds does not keep.
const QImage& CWeatherIcons::Picture(std::string_view icon) const {
    const QByteArray name(icon.data(), static_cast<qsizetype>(icon.size()));
    auto found = m_pictures.find(name);
    if (found == m_pictures.end()) {
        const auto bytes = m_files.ReadFile(IconFile(m_files, m_folder, icon), kLargestFile);
        found = m_pictures.insert(name, bytes ? QImage::fromData(QByteArray::fromStdString(*bytes), "PNG") : QImage());
    }
    return *found;
}

void CWeatherIcons::Paint(QPainter& painter, const QRectF& room, std::string_view icon) const {
    const QImage& picture = Picture(icon);
    if (picture.isNull() || room.isEmpty()) return;
    const QSizeF size = QSizeF(picture.size()).scaled(room.size(), Qt::KeepAspectRatio);
    const QRectF target(room.center() - QPointF(size.width() / 2, size.height() / 2), size);
    const double ratio = painter.device()->devicePixelRatioF();
    const QImage scaled =
        picture.scaled((size * ratio).toSize().expandedTo({1, 1}), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    painter.drawImage(target, scaled);
}

}  // namespace rlx
