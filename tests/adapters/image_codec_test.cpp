#include "platform/image/image_codec.h"

#include <fstream>
#include <iterator>

#include "platform/bitmap_scale.h"
#include "support/paths.h"

namespace rlx {
namespace {

std::string FileBytes(const std::string& name) {
    std::ifstream file(std::string(test::kDataDir) + "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Number(std::uint32_t value, int bytes) {
    std::string text;
    for (; bytes > 0; --bytes, value >>= 8U)
        text += static_cast<char>(value & 0xFFU);
    return text;
}

struct Bmp {
    std::uint32_t width = 2;
    std::uint32_t height = 2;
    std::uint32_t bits = 24;
    std::uint32_t compression = 0;
    std::uint32_t colours = 0;
    std::string palette;
    std::string pixels;
};

std::string BmpBytes(const Bmp& bmp) {
    const auto offset = static_cast<std::uint32_t>(54 + bmp.palette.size());
    return "BM" + Number(offset + static_cast<std::uint32_t>(bmp.pixels.size()), 4) + Number(0, 4) + Number(offset, 4) +
           Number(40, 4) + Number(bmp.width, 4) + Number(bmp.height, 4) + Number(1, 2) + Number(bmp.bits, 2) +
           Number(bmp.compression, 4) + Number(0, 12) + Number(bmp.colours, 4) + Number(0, 4) + bmp.palette +
           bmp.pixels;
}

/// Red, green above blue, white.
CBitmap FourPixels() {
    CBitmap bitmap(2, 2);
    bitmap.Row(0)[0] = 0xFFFF0000U;
    bitmap.Row(0)[1] = 0xFF00FF00U;
    bitmap.Row(1)[0] = 0xFF0000FFU;
    bitmap.Row(1)[1] = 0xFFFFFFFFU;
    return bitmap;
}

const std::string kRedGreen("\x00\x00\xFF\x00\xFF\x00", 6);
const std::string kBlueWhite("\xFF\x00\x00\xFF\xFF\xFF", 6);
const std::string kPad(2, '\0');

TEST(ImageCodec, ReadsBmpOfEveryKind) {
    const CImageCodec codec;
    const std::string palette = Number(0xFF0000, 4) + Number(0x00FF00, 4) + Number(0x0000FF, 4) + Number(0xFFFFFF, 4);
    const std::string wide = Number(0x0000FF, 4) + Number(0xFFFFFF, 4) + Number(0xFF0000, 4) + Number(0x00FF00, 4);
    const struct {
        const char* name;
        Bmp bmp;
    } rows[] = {
        {"24 bits, from the bottom", {2, 2, 24, 0, 0, "", kBlueWhite + kPad + kRedGreen + kPad}},
        {"24 bits, from the top",
         {2, static_cast<std::uint32_t>(-2), 24, 0, 0, "", kRedGreen + kPad + kBlueWhite + kPad}},
        {"32 bits", {2, 2, 32, 0, 0, "", wide}},
        {"32 bits with masks", {2, 2, 32, 3, 0, Number(0xFF0000, 4) + Number(0xFF00, 4) + Number(0xFF, 4), wide}},
        {"8 bits", {2, 2, 8, 0, 4, palette, std::string("\x02\x03\0\0\x00\x01\0\0", 8)}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(codec.Load(BmpBytes(row.bmp)), FourPixels()) << row.name;
}

TEST(ImageCodec, RefusesBrokenBmp) {
    const CImageCodec codec;
    const std::string pixels = kBlueWhite + kPad + kRedGreen + kPad;
    const struct {
        const char* name;
        Bmp bmp;
    } rows[] = {
        {"too few pixels", {2, 2, 24, 0, 0, "", pixels.substr(1)}},
        {"enormous", {0x7FFFFFFF, 0x7FFFFFFF, 32, 0, 0, "", pixels}},
        {"highest negative", {2, 0x80000000U, 24, 0, 0, "", pixels}},
        {"too many sides, few pixels", {16385, 1, 8, 0, 0, "", std::string(20000, 'x')}},
        {"compressed", {2, 2, 8, 1, 0, "", pixels}},
        {"too many colours", {2, 2, 8, 0, 257, "", std::string(8, 0)}},
    };
    for (const auto& row : rows)
        EXPECT_FALSE(codec.Load(BmpBytes(row.bmp))) << row.name;
    const std::string sound = BmpBytes({2, 2, 24, 0, 0, "", pixels});
    ASSERT_TRUE(codec.Load(sound));
    for (std::size_t size = 0; size < sound.size(); ++size)
        EXPECT_FALSE(codec.Load(sound.substr(0, size))) << size;
    std::string pixelsFromHeader = sound;
    pixelsFromHeader[10] = 2;
    EXPECT_FALSE(codec.Load(pixelsFromHeader));
}

TEST(ImageCodec, ShippedPicturesHaveTheColoursTheyWereDrawnWith) {
    const CImageCodec codec;
    const auto jpeg = codec.Load(FileBytes("map.jpg"));
    ASSERT_TRUE(jpeg);
    EXPECT_EQ(jpeg->Width(), 480);
    EXPECT_EQ(jpeg->Height(), 240);
    const std::uint32_t pacific = jpeg->Row(120)[40];
    EXPECT_GT(pacific & 0xFFU, pacific >> 16U & 0xFFU) << "blue above red";
    EXPECT_EQ(pacific >> 24U, 255U);
    const auto png = codec.Load(FileBytes("skins/Night/map.png"));
    ASSERT_TRUE(png);
    EXPECT_EQ(png->Width(), 480);
    for (int y = 0; y < png->Height(); ++y) {
        for (int x = 0; x < png->Width(); ++x) {
            const std::uint32_t pixel = png->Row(y)[x];
            ASSERT_TRUE((pixel & 0xFFE0C0C0U) == 0xFF204040U) << std::hex << pixel;
        }
    }
}

TEST(ImageCodec, BrokenFilesGiveNoPicture) {
    const CImageCodec codec;
    for (const char* name : {"map.jpg", "skins/Night/map.png"}) {
        const std::string sound = FileBytes(name);
        ASSERT_GT(sound.size(), 1000U);
        for (std::size_t size = 0; size + 100 < sound.size(); size += size < 700 ? 1 : 997)
            EXPECT_FALSE(codec.Load(sound.substr(0, size))) << name << " cut to " << size;
    }
    for (const char* bytes : {"", "B", "BM", "\xFF\xD8\xFF", "\x89PNG\r\n\x1A\n", "GIF89a", "<svg/>"})
        EXPECT_FALSE(codec.Load(bytes));
}

/// A PNG file whose header tells another size, with the checksum that goes with it.
std::string PngOfSize(std::string file, std::uint32_t width, std::uint32_t height) {
    const auto bigEndian = [](std::uint32_t value) {
        const std::string text = Number(value, 4);
        return std::string(text.rbegin(), text.rend());
    };
    file.replace(16, 8, bigEndian(width) + bigEndian(height));
    std::uint32_t sum = 0xFFFFFFFFU;
    for (std::size_t i = 12; i < 29; ++i) {
        sum ^= static_cast<unsigned char>(file[i]);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1U ^ ((sum & 1U) != 0 ? 0xEDB88320U : 0U);
    }
    return file.replace(29, 4, bigEndian(~sum));
}

TEST(ImageCodec, LyingSizesAreRefused) {
    const CImageCodec codec;
    const std::string png = *codec.SavePng(CBitmap(2, 2));
    EXPECT_TRUE(codec.Load(PngOfSize(png, 2, 2)));
    EXPECT_FALSE(codec.Load(PngOfSize(png, 16384, 4096)));
    EXPECT_FALSE(codec.Load(PngOfSize(png, 16385, 1)));
    EXPECT_FALSE(codec.Load(PngOfSize(png, 0, 2)));
    std::string jpeg = FileBytes("map.jpg");
    const auto frame = jpeg.find("\xFF\xC0") != std::string::npos ? jpeg.find("\xFF\xC0") : jpeg.find("\xFF\xC2");
    ASSERT_NE(frame, std::string::npos);
    jpeg.replace(frame + 5, 4, "\xFF\xFF\xFF\xFF");
    EXPECT_FALSE(codec.Load(jpeg));
    jpeg.replace(frame + 5, 4, std::string("\x40\x00\x00\x10", 4));  // 16384 rows that are not there
    EXPECT_FALSE(codec.Load(jpeg));
}

TEST(BitmapScale, MixesWithinTheRangeOfItsPixels) {
    const CBitmap four = FourPixels();
    EXPECT_EQ(Scale(four, 2, 2), four);
    EXPECT_EQ(Scale(four, 1, 1), CBitmap(1, 1, 0xFF808080U));
    EXPECT_EQ(Scale(CBitmap(1, 1, 0xFF123456U), 5, 3), CBitmap(5, 3, 0xFF123456U));
    EXPECT_EQ(Scale(CBitmap(7, 11, 0xFFFF3F80U), 3, 40), CBitmap(3, 40, 0xFFFF3F80U));
    EXPECT_TRUE(Scale(CBitmap(), 3, 3).IsEmpty());
    EXPECT_TRUE(Scale(four, 0, 3).IsEmpty());
    CBitmap steps(3, 1, 0xFF000000U);
    steps.Row(0)[1] = 0xFF640000U;
    const CBitmap wide = Scale(steps, 6, 1);
    const std::uint32_t reds[] = {0, 25, 75, 75, 25, 0};
    for (int x = 0; x < 6; ++x)
        EXPECT_EQ(wide.Row(0)[x] >> 16U & 0xFFU, reds[x]) << x;
    EXPECT_EQ(Scale(steps, 2, 1).Row(0)[0], 0xFF210000U);  // a third of the middle pixel: 33.3
    EXPECT_EQ(Cropped(four, 1, 0, 1, 2).Row(1)[0], 0xFFFFFFFFU);
}

}  // namespace
}  // namespace rlx
