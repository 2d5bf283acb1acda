#pragma once

#include <QImage>
#include <QSize>

#include "map/night_bands.h"
#include "platform/bitmap.h"
#include "uikit/look.h"

namespace rlx {

/// The picture of the map as the screen paints it: the skin's image scaled once for a size, and a copy of it with the
/// night side darkened, made anew for each instant. User-interface thread.
class CMapLayer {
public:
    explicit CMapLayer(const CLook& look) : m_look(look) {}

    /// Scales the skin's image to a picture of `size` with `margin` on both sides, all in device pixels. Does nothing
    /// when the picture has this form and the skin is the same.
    void Resize(const QSize& size, int margin);

    /// The skin or its image has changed.
    void Forget() { m_plain = CBitmap(); }

    /// Darkens the night side of that instant.
    void Shade(const SolarInstant& instant);

    const QImage& Picture() const { return m_view; }
    const MapGeometry& Geometry() const { return m_geometry; }

    /// False when the skin's image is missing or broken; the picture is plain then.
    bool HasImage() const { return m_hasImage; }

private:
    const CLook& m_look;
    MapGeometry m_geometry;
    CBitmap m_plain;
    CBitmap m_shaded;
    QImage m_view;  ///< the pixels of `m_shaded`
    bool m_hasImage = false;
};

}  // namespace rlx
