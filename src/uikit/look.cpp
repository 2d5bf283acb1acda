#include "uikit/look.h"

#include "skins/skin_map.h"
#include "uikit/bitmap_image.h"

namespace rlx {

namespace {

constexpr int kCardOpacity = 208;     // of 255
constexpr double kSquareUpTo = 1.25;  // sides that differ by less count as equal

/// The key of a picture of Tools; nothing for the pictures of screens.
std::optional<SkinKey> ToolKeyOf(LookPicture which) {
    switch (which) {
        case LookPicture::kConverter:
            return SkinKey::kToolsBC;
        case LookPicture::kDialing:
            return SkinKey::kToolsBD;
        case LookPicture::kClothing:
            return SkinKey::kToolsBS;
        case LookPicture::kPacking:
            return SkinKey::kToolsBP;
        default:
            return std::nullopt;
    }
}

int KeyOf(LookPicture which, SkinLayout layout) {
    return static_cast<int>(which) * 4 + static_cast<int>(layout);
}

/// The middle of the picture, as large as the pixels ask.
QImage Cover(const QImage& source, const QSize& pixels) {
    const QImage cover = source.scaled(pixels, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    const QPoint corner((cover.width() - pixels.width()) / 2, (cover.height() - pixels.height()) / 2);
    return cover.copy(QRect(corner, pixels));
}

SkinSection ScreenOf(LookPicture which) {
    if (which == LookPicture::kWeather) return SkinSection::kWeather;
    return which == LookPicture::kMap ? SkinSection::kMap : SkinSection::kClocks;
}

}  // namespace

CLook::CLook(IFileSystem& files, const IImageCodec& codec, QObject* parent)
    : QObject(parent), m_files(files), m_codec(codec) {}

void CLook::SetSkin(CSkin skin) {
    m_skin = std::move(skin);
    m_ahead.reset();
    m_pictures.clear();
    emit Changed();
}

QColor CLook::Colour(SkinKey key) const {
    return QColor::fromRgb(PixelOfColour(m_skin.Colour(key)));
}

QColor CLook::Card() const {
    QColor card = Panel();
    card.setAlpha(kCardOpacity);
    return card;
}

QColor CLook::Accent() const {
    return Colour(SkinKey::kMapRSTBC);
}

QColor CLook::AccentText() const {
    return Colour(SkinKey::kMapRSTTC);
}

QPalette CLook::Palette() const {
    QPalette palette(Bar(), Bar());
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, PanelText());
        QColor faded = PanelText();
        faded.setAlpha(110);
        palette.setColor(QPalette::Disabled, role, faded);
    }
    QColor hint = PanelText();
    hint.setAlpha(165);
    palette.setColor(QPalette::PlaceholderText, hint);
    palette.setColor(QPalette::Base, Panel());
    palette.setColor(QPalette::AlternateBase, Bar());
    palette.setColor(QPalette::ToolTipBase, Panel());
    palette.setColor(QPalette::Highlight, Accent());
    palette.setColor(QPalette::HighlightedText, AccentText());
    palette.setColor(QPalette::Link, Accent());
    return palette;
}

SkinLayout CLook::LayoutOf(const QSize& area) {
    if (area.height() > area.width() * kSquareUpTo) return SkinLayout::kPortrait;
    return area.width() > area.height() * kSquareUpTo ? SkinLayout::kLandscape : SkinLayout::kSquare;
}

std::optional<std::filesystem::path> CLook::FileOf(LookPicture which, SkinLayout layout) const {
    if (which == LookPicture::kCommon) return m_skin.CommonPicture(m_files, layout);
    if (const auto key = ToolKeyOf(which)) return m_skin.Picture(m_files, *key, layout);
    return m_skin.Background(m_files, ScreenOf(which), layout);
}

/// In any thread.
std::optional<QImage> CLook::Load(const std::filesystem::path& file) const {
    const auto bytes = m_files.ReadFile(file, IImageCodec::kMaxFileSize);
    auto bitmap = bytes ? m_codec.Load(*bytes) : std::nullopt;
    if (!bitmap) return std::nullopt;
    return ImageOf(*std::move(bitmap));
}

void CLook::FetchAhead(LookPicture which, const QSize& area, qreal ratio) {
    const SkinLayout layout = LayoutOf(area);
    const auto file = FileOf(which, layout);
    if (!file) return;
    const QSize pixels = (QSizeF(area) * ratio).toSize();
    auto read = [this, file = *file, pixels] {
        std::optional<QImage> source = Load(file);
        QImage cover = source ? Cover(*source, pixels) : QImage();
        return Ahead::Images{std::move(source), std::move(cover)};
    };
    m_ahead = {KeyOf(which, layout), QString::fromStdString(file->string()),
               std::async(std::launch::async, std::move(read))};
}

void CLook::TakeAhead(int picture, qreal ratio) const {
    if (!m_ahead || m_ahead->picture != picture) return;
    Ahead ahead = *std::exchange(m_ahead, std::nullopt);
    Ahead::Images images = ahead.images.get();
    if (!images.source) emit PictureBroken(ahead.file);
    Picture& taken = m_pictures[picture];
    taken.source = std::move(images.source).value_or(QImage());
    taken.scaled = QPixmap::fromImage(std::move(images.cover));
    taken.scaled.setDevicePixelRatio(ratio);
}

const QImage& CLook::Source(LookPicture which, SkinLayout layout) const {
    Picture& picture = m_pictures[KeyOf(which, layout)];
    if (!picture.source) {
        const auto file = FileOf(which, layout);
        picture.source = file ? Load(*file) : QImage();
        if (!picture.source) emit PictureBroken(QString::fromStdString(file->string()));
        if (!picture.source) picture.source = QImage();
    }
    return *picture.source;
}

const QPixmap& CLook::Scaled(LookPicture which, const QSize& size, qreal ratio) const {
    const SkinLayout layout = LayoutOf(size);
    TakeAhead(KeyOf(which, layout), ratio);
    const QImage& source = Source(which, layout);
    Picture& picture = m_pictures[KeyOf(which, layout)];
    const QSize pixels = (QSizeF(size) * ratio).toSize();
    if (picture.scaled.size() == pixels || source.isNull()) return picture.scaled;
    picture.scaled = QPixmap::fromImage(Cover(source, pixels));
    picture.scaled.setDevicePixelRatio(ratio);
    return picture.scaled;
}

void CLook::PaintBackground(QPainter& painter, const QRect& area, LookPicture which) const {
    const QPixmap& pixmap = Scaled(which, area.size(), painter.device()->devicePixelRatioF());
    if (pixmap.isNull()) {
        painter.fillRect(area, Bar());
    } else {
        painter.drawPixmap(area.topLeft(), pixmap);
    }
}

std::optional<CBitmap> CLook::Map(int width) const {
    return LoadSkinMap(m_files, m_codec, m_skin, width, [this](const std::filesystem::path& file) {
        emit PictureBroken(QString::fromStdString(file.string()));
    });
}

}  // namespace rlx
