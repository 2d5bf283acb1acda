#include "doctor/checks.h"

#include <functional>

#include "base/number.h"
#include "base/text.h"
#include "platform/fake/fixed_time_zones.h"
#include "platform/fake/memory_file_system.h"
#include "platform/fake/memory_registry.h"
#include "shell/resources.h"
#include "shell/setting_names.h"

namespace rlx {
namespace {

/// No picture but the word "picture".
class CWordCodec : public IImageCodec {
public:
    std::optional<CBitmap> Load(std::string_view bytes) const override {
        return bytes == "picture" ? std::optional<CBitmap>(CBitmap(1, 1)) : std::nullopt;
    }
    std::optional<std::string> SavePng(const CBitmap&) const override { return std::nullopt; }
};

class Doctor : public ::testing::Test {
protected:
    void SetUp() override {
        zones.zones["Z"] = {{0, 0}};
        files.files["/app/cities.lst"] = "2\n" + Line("A") + Line("B");
        files.files["/app/cities.wet"] = "2\nA;L;a_l\nB;L;b_l\n";
        files.files["/app/cities.date"] = "2026-11-22\n";
        files.files["/app/currs.lst"] = "2\nEUR_Euro_0.86#USD_US Dollar_1#";
        files.files["/app/adrs.cfg"] = "http://127.0.0.1:8765/feed*";
        files.files["/app/Portrait/a.JPG"] = "picture";
    }
    static std::string Line(const std::string& name, const std::string& rest = "1;2;3;0;0;0;0;0") {
        return "Z;" + name + ";L;" + rest + "\n";
    }
    /// Each fault as file:line text.
    std::string Faults() {
        CDoctorReport report("/app", texts);
        const DoctorPorts ports{files, texts, "/app", {2026, 12, 1}};
        CheckCities(ports, zones, report);
        CheckRulesDate(ports, report);
        CheckRates(ports, report);
        CheckWeatherPlaces(ports, report);
        CheckFeedAddress(ports, report);
        CheckLanguages(ports, settings, report);
        CheckPictures(ports, CWordCodec(), report);
        CheckPackingList(ports, report);
        std::string all;
        for (const DoctorFault& fault : report.Faults())
            all += ToUtf8(fault.file) + ":" + std::to_string(fault.line) + " " + ToUtf8(fault.text) + "\n";
        return all;
    }

    CMemoryFileSystem files;
    CFixedTimeZones zones;
    CMemoryRegistry registry;
    CRegistryStore settings{registry};
    const CResources texts;
};

TEST_F(Doctor, NamesFileAndLineOfEachFault) {
    const std::string a = Line("A");
    const std::string b = Line("B");
    const struct {
        const char* file;
        std::string bytes;
        const char* faults;
    } rows[] = {
        {"cities.lst", "", "cities.lst:1 The first line is not the number of entries.\n"},
        {"cities.lst", "1\n" + a + b,
         "cities.lst:1 The first line says 1 entries, 2 are there.\n"
         "cities.wet:3 \"B:L\" is not in the list of cities.\n"},
        {"cities.lst", "3\n" + a + b + b, "cities.lst:4 \"B:L\" is there twice.\n"},
        {"cities.lst", "3\n" + a + b + "Z;C;L;1;2;3;0;0;0;0\n", "cities.lst:4 11 fields expected, 10 found.\n"},
        {"cities.lst", "3\n" + a + b + "Z;C;L;;2;3;0;0;0;0;0\n", "cities.lst:4 Field 4 is empty.\n"},
        {"cities.lst", "3\n" + a + b + Line("C", "1;2;3h;0;0;0;0;0"), "cities.lst:4 \"3h\" is not a whole number.\n"},
        {"cities.lst", "3\n" + a + b + Line("C", "1;91;3;0;0;0;0;0"),
         "cities.lst:4 The latitude is a number of degrees from -90 (south) to 90 (north).\n"},
        {"cities.lst", "3\n" + a + "Y;B;L;1;2;575;0;0;0;0;0\n" + Line("C", "1;2;3;1;0;0;0;0"),
         "cities.lst:3 The system knows no time zone \"Y\".\n"
         "cities.lst:4 The days of change are days of the year from 1 to 366.\n"},
        {"cities.date", "2025-11-22\n",
         "cities.date:1 The daylight-saving rules are those of 2025. Refresh them from the menu.\n"},
        {"cities.date", "soon", "cities.date:1 There is no date in it.\n"},
        {"cities.wet", "2\nA;L;a&l\nB;L;a&l\n",
         "cities.wet:2 The feed name \"a&l\" cannot travel in a request.\n"
         "cities.wet:3 \"a&l\" is there twice.\n"
         "cities.wet:3 The feed name \"a&l\" cannot travel in a request.\n"},
        {"currs.lst", "3\nEUR_Euro_0#EUR_US Dollar_1#",
         "currs.lst:2 The rate of \"Euro\" is not a number above 0.\n"
         "currs.lst:2 \"EUR\" is there twice.\n"
         "currs.lst:1 The first line says 3 entries, 2 are there.\n"},
        {"adrs.cfg", "ftp://host",
         "adrs.cfg:1 The address does not end with \"*\".\n"
         "adrs.cfg:1 \"ftp://host\" is not an http address.\n"},
        {"langs.dat", "0,English,none@1,French,RoamlyFrench.dll@>",
         "LangsRes/RoamlyFrench.dll:0 \"RoamlyFrench.dll\" is not a language module.\n"},
        {"langs.dat", "0,English,none@",
         "langs.dat:1 Something in it is not an entry of the form: index,name,module@\n"},
        {"Portrait/b.png", "word", "Portrait/b.png:0 This is not a picture that can be shown.\n"},
        {"pack.dat", "nonsense",
         "pack.dat:0 Something in it is not a packing list and would be lost when the list is saved.\n"},
    };
    EXPECT_EQ(Faults(), "");
    for (const auto& row : rows) {
        const auto before = files.files;
        files.files[std::string("/app/") + row.file] = row.bytes;
        EXPECT_EQ(Faults(), row.faults) << row.bytes;
        files.files = before;
    }
}

TEST_F(Doctor, GoesOnWithoutFiles) {
    files.files.clear();
    EXPECT_EQ(
        Faults(),
        "cities.lst:0 The file is missing or cannot be read.\ncurrs.lst:0 The file is missing or cannot be read.\n"
        "cities.wet:0 The file is missing or cannot be read.\nadrs.cfg:0 The file is missing or cannot be read.\n");
}

}  // namespace
}  // namespace rlx
