#pragma once

#include <QColor>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QRect>
#include <future>
#include <optional>

#include "platform/bitmap.h"
#include "platform/file_system.h"
#include "platform/image_codec.h"
#include "skins/skin.h"

namespace rlx {

/// The pictures of a skin that lie behind screens and pages.
enum class LookPicture { kClocks, kWeather, kMap, kConverter, kDialing, kClothing, kPacking, kCommon };

/// What every screen asks for its colours and pictures: the skin in force, as Qt needs it. Widgets connect to `Changed`
/// and paint anew. User-interface thread; references must outlive it.
class CLook : public QObject {
    Q_OBJECT

public:
    CLook(IFileSystem& files, const IImageCodec& codec, QObject* parent = nullptr);

    /// Puts another skin in force on every screen at once.
    void SetSkin(CSkin skin);
    const CSkin& Skin() const { return m_skin; }

    QColor Colour(SkinKey key) const;

    QColor Bar() const { return Colour(SkinKey::kGeneralTBC); }        ///< ground of title bar and screen row
    QColor Panel() const { return Colour(SkinKey::kGeneralPC); }       ///< ground of dialogs and cards
    QColor PanelText() const { return Colour(SkinKey::kGeneralPTC); }  ///< on bars, panels and the common picture
    QColor Card() const;                                               ///< ground of a card, translucent over a picture
    QColor Accent() const;  ///< marks what is chosen or focused; text on it is `AccentText`
    QColor AccentText() const;

    /// For dialogs and the widgets in them.
    QPalette Palette() const;

    /// Fills `area` with the picture, scaled to cover it and centred, or with the bar's colour when the skin has no
    /// such picture or it is broken.
    void PaintBackground(QPainter& painter, const QRect& area, LookPicture which) const;

    /// Reads the picture for an area of that size, in pixels of `ratio` to the unit, in a thread of its own. Who paints
    /// it next finds it there, or waits for the rest of the work.
    void FetchAhead(LookPicture which, const QSize& area, qreal ratio);

    /// The world map of the skin, the smallest of its files that is at least `width` pixels wide, else the largest;
    /// nothing when none can be read.
    std::optional<CBitmap> Map(int width) const;

    /// The layout whose pictures fit an area best.
    static SkinLayout LayoutOf(const QSize& area);

signals:
    /// Another skin is in force.
    void Changed();

    /// A picture of the skin is there but cannot be read; said once for each.
    void PictureBroken(const QString& file) const;

private:
    std::optional<std::filesystem::path> FileOf(LookPicture which, SkinLayout layout) const;
    const QImage& Source(LookPicture which, SkinLayout layout) const;
    const QPixmap& Scaled(LookPicture which, const QSize& size, qreal ratio) const;

    std::optional<QImage> Load(const std::filesystem::path& file) const;

    /// A picture as read, and the last scaling of it.
    struct Picture {
        std::optional<QImage> source;
        QPixmap scaled;
    };

    /// A picture that another thread reads: what is in the file, nothing where it is broken, and that made to cover an
    /// area.
    struct Ahead {
        struct Images {
            std::optional<QImage> source;
            QImage cover;
        };
        int picture;  ///< key in `m_pictures`
        QString file;
        std::future<Images> images;
    };

    void TakeAhead(int picture, qreal ratio) const;

    IFileSystem& m_files;
    const IImageCodec& m_codec;
    CSkin m_skin;
    mutable QHash<int, Picture> m_pictures;
    mutable std::optional<Ahead> m_ahead;
};

}  // namespace rlx
