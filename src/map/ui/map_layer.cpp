#include "map/ui/map_layer.h"

#include "map/map_picture.h"
#include "map/night_shadow.h"
#include "uikit/bitmap_image.h"

namespace rlx {

void CMapLayer::Resize(const QSize& size, int margin) {
    const bool same = size == QSize(m_plain.Width(), m_plain.Height()) && margin == m_geometry.margin;
    if (same && !m_plain.IsEmpty()) return;
    m_geometry = {size.width(), size.height(), margin};
    const auto image = m_look.Map(m_geometry.MapWidth());
    m_hasImage = image.has_value();
    m_plain = MapPicture(image.value_or(CBitmap()), m_geometry, m_look.Skin().Colour(SkinKey::kGeneralTBC));
}

void CMapLayer::Shade(const SolarInstant& instant) {
    m_shaded = m_plain;
    ShadeNight(m_shaded, m_geometry, instant, m_look.Skin().Colour(SkinKey::kMapSHADCLR));
    m_view = ViewOf(m_shaded);
}

}  // namespace rlx
