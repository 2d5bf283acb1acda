#pragma once

#include <QPainter>
#include <QPixmap>
#include <optional>
#include <utility>

namespace rlx {

/// What is seen where nothing was painted.
enum class StillGround { kCovered, kClear };

/// The part of a widget that stays the same from second to second, painted once. `State` is all that it depends on and
/// can be compared. User-interface thread.
template <typename State>
class CStillPicture {
public:
    /// To be called when something else than the state has changed.
    void Forget() { m_state.reset(); }

    /// The picture of `state`, of `size` in the units of the widget; `paint(painter)` is called when it is not at hand.
    /// It covers all of the picture unless `ground` is clear.
    template <typename Paint>
    const QPixmap& Of(const State& state, const QSize& size, qreal ratio, const Paint& paint,
                      StillGround ground = StillGround::kCovered) {
        const QSize pixels = (QSizeF(size) * ratio).toSize();
        if (m_state == state && m_picture.size() == pixels) return m_picture;
        m_picture = QPixmap(pixels);
        m_picture.setDevicePixelRatio(ratio);
        if (ground == StillGround::kClear) m_picture.fill(Qt::transparent);
        QPainter painter(&m_picture);
        paint(painter);
        m_state = state;
        return m_picture;
    }

private:
    std::optional<State> m_state;
    QPixmap m_picture;
};

}  // namespace rlx
