#include <algorithm>
#include <filesystem>
#include <memory>

#include "base/number.h"
#include "base/text.h"
#include "cli/commands.h"
#include "map/map_picture.h"
#include "map/night_shadow.h"
#include "map/text_ids.h"
#include "shell/setting_names.h"
#include "shell/text_ids.h"
#include "skins/skin_file.h"
#include "skins/skin_loader.h"
#include "skins/skin_map.h"

namespace rlx::cli {

namespace {

struct MapSize {
    int width = 0;
    int height = 0;
};

struct MapWords {
    std::optional<MapSize> size;  ///< nothing: that of the map image
    int margin = 0;
    std::optional<DateTime> universalTime;  ///< nothing: the device clock's
    std::string skin;                       ///< a skin file; empty: the one in force
    std::string output;                     ///< a PNG file; empty: none
};

/// "512x256", both sides in decimal; nothing for any other text and for a picture that is too large or has no pixels.
std::optional<MapSize> ParseSize(const std::string& text) {
    const std::size_t cross = text.find('x');
    if (cross == std::string::npos) return std::nullopt;
    const auto side = [](const std::string& word) {
        return ParseWholeInteger(FromUtf8(word), 1, IImageCodec::kMaxSide);
    };
    const auto width = side(text.substr(0, cross));
    const auto height = side(text.substr(cross + 1));
    if (!width || !height || !IImageCodec::IsSizeAllowed(*width, *height)) return std::nullopt;
    return MapSize{static_cast<int>(*width), static_cast<int>(*height)};
}

std::optional<CSkin> SkinOf(CSession& session, const std::string& file) {
    if (!file.empty()) {
        const std::filesystem::path path = std::filesystem::absolute(file);
        auto text = ReadSkinText(session.Files(), path);
        if (text) return CSkin(*std::move(text), path.parent_path());
        session.Fail(session.Text(kTextFileNotRead, FromUtf8(file)));
        return std::nullopt;
    }
    const auto write = [&session](std::u16string_view setting) {
        session.Settings().WriteString(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kSkin, setting);
    };
    CSkinLoader loader(session.Files(), session.Folder().Root(), session.Texts(), session.Boxes(), write);
    return loader.Load(session.Settings().ReadString(RootOf(keys::kRoamlytix), keys::kRoamlytix, names::kSkin));
}

DateTime InstantOf(CSession& session, const MapWords& words) {
    if (words.universalTime) return *words.universalTime;
    const DateTime now = session.Clock().Now();
    const ClockOffset reference = session.Times().Reference(now);
    return UniversalTime(now, reference.hours, reference.minutes);
}

/// The image that becomes the picture; an empty one, once the person was told of the file, leaves it plain.
CBitmap ImageOf(CSession& session, const CSkin& skin, const MapWords& words) {
    const int width = words.size ? words.size->width - 2 * words.margin : 1;
    bool told = false;
    const auto tell = [&session, &told](const std::u16string& file) {
        session.Fail(session.Text(kTextMapImageMissing, file));
        told = true;
    };
    auto image = LoadSkinMap(session.Files(), session.Images(), skin, width,
                             [&tell](const std::filesystem::path& file) { tell(FromUtf8(file.string())); });
    if (!image && !told) tell(skin.Name(SkinKey::kMapMI));
    return std::move(image).value_or(CBitmap());
}

bool WritePicture(CSession& session, const CBitmap& picture, const std::string& output) {
    const auto bytes = session.Images().SavePng(picture);
    if (bytes && session.Files().WriteFile(std::filesystem::absolute(output), *bytes)) return true;
    session.Fail(session.Text(kTextFileNotSaved, FromUtf8(output)));
    return false;
}

void Tell(CAnswer& answer, int step, const std::vector<NightBand>& bands, const std::string& output) {
    Json list = Json::array();
    std::vector<std::vector<std::u16string>> rows;
    for (std::size_t i = 0; i < bands.size(); ++i) {
        list.push_back({bands[i].top, bands[i].bottom});
        rows.push_back({FormatInteger(static_cast<std::int64_t>(i) * step), FormatInteger(bands[i].top),
                        FormatInteger(bands[i].bottom)});
    }
    answer.Set("step", step);
    answer.Set("bands", std::move(list));
    if (output.empty()) {
        answer.Table(rows);
    } else {
        answer.Line(output);
    }
}

int Show(CSession& session, CAnswer& answer, const MapWords& words) {
    const SolarInstant instant = SolarInstantAt(InstantOf(session, words));
    CBitmap image;
    CSkin skin;
    const bool usesImage = !words.size || !words.output.empty();
    if (usesImage || !words.skin.empty()) {
        auto chosen = SkinOf(session, words.skin);
        if (!chosen) return kFailed;
        skin = *std::move(chosen);
    }
    if (usesImage) image = ImageOf(session, skin, words);
    const MapSize size = words.size.value_or(MapSize{image.Width(), image.Height()});
    if (size.width == 0) return kFailed;
    const MapGeometry geometry{size.width, size.height, words.margin};
    if (geometry.MapWidth() < 1)
        return session.Fail(
            session.Text(kTextMapMarginTooWide, FormatInteger(words.margin), FormatInteger(size.width)));
    const std::vector<NightBand> bands = ComputeBands(geometry, instant);
    const int step = ColumnStep(instant);
    if (!words.output.empty()) {
        CBitmap picture = MapPicture(image, geometry, skin.Colour(SkinKey::kGeneralTBC));
        Shade(picture, geometry, bands, step, skin.Colour(SkinKey::kMapSHADCLR));
        if (!WritePicture(session, picture, words.output)) return kFailed;
    }
    Tell(answer, step, bands, words.output);
    return kDone;
}

void AddSize(CLI::App& app, const std::shared_ptr<MapWords>& words) {
    const auto read = [words](const std::string& text) {
        words->size = ParseSize(text);
        if (!words->size) throw CLI::ValidationError("--size", "\"" + text + "\" is not a size as in 512x256");
    };
    app.add_option_function<std::string>("--size", read, "whole picture, margins included")->type_name("WxH");
}

void CheckMargin(const MapWords& words) {
    if (words.size && words.size->width - 2 * words.margin < 1) {
        throw CLI::ValidationError("--margin", "\"" + std::to_string(words.margin) + "\" leaves no room for the map");
    }
}

}  // namespace

void DeclareMap(CLI::App& app, const SetAction& setAction) {
    auto words = std::make_shared<MapWords>();
    AddSize(app, words);
    AddInteger(
        app, "--margin", {0, IImageCodec::kMaxSide},
        [words](std::int64_t margin) { words->margin = static_cast<int>(margin); }, "pixels left and right of the map");
    AddInstant(
        app, "--ut", [words](const DateTime& time) { words->universalTime = time; }, "instant in Universal Time");
    app.add_option("--skin", words->skin, "skin file")->type_name("FILE");
    app.add_option("-o", words->output, "PNG file to write")->type_name("FILE");
    app.callback([setAction, words] {
        CheckMargin(*words);
        setAction([words](CSession& s, CAnswer& a) { return Show(s, a, *words); });
    });
}

}  // namespace rlx::cli
