#include "shell/pe_image.h"

#include <fstream>
#include <iterator>

#include "shell/control_ids.h"
#include "shell/english_image.h"
#include "shell/resources.h"
#include "shell/string_table.h"
#include "shell/text_ids.h"
#include "support/paths.h"

namespace rlx {
namespace {

/// A copy of the English module to break, and where its parts lie.
struct Image {
    Image() {
        const auto english = EnglishImage();
        bytes.assign(reinterpret_cast<const char*>(english.data()), english.size());
        pe = U32(0x3C);
        optional = pe + 24;
        sections = optional + (U32(pe + 20) & 0xFFFF);
        for (section = sections; bytes.compare(section, 5, ".rsrc") != 0;)
            section += 40;
        root = U32(section + 20);
        // The directories of dialogs and texts, and the first text's way down.
        dialogs = root + (U32(Entry(root, 5) + 4) & 0x7FFFFFFF);
        texts = root + (U32(Entry(root, 6) + 4) & 0x7FFFFFFF);
        languages = root + (U32(texts + 20) & 0x7FFFFFFF);
        data = root + U32(languages + 20);
    }

    std::uint32_t U32(std::size_t at) const {
        std::uint32_t value = 0;
        for (std::size_t i = 4; i-- > 0;)
            value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
        return value;
    }
    void Put(std::size_t at, std::uint32_t value) {
        for (std::size_t i = 0; i < 4; ++i)
            bytes[at + i] = static_cast<char>(value >> (8 * i));
    }
    std::size_t Entry(std::size_t directory, std::uint32_t id) const {
        std::size_t at = directory + 16;
        while (U32(at) != id)
            at += 8;
        return at;
    }
    std::span<const std::byte> Bytes() const { return std::as_bytes(std::span(bytes)); }

    std::string bytes;
    std::size_t pe = 0, optional = 0, sections = 0, section = 0, root = 0;
    std::size_t dialogs = 0, texts = 0, languages = 0, data = 0;
};

/// Looks up everything there is; what is found must lie within the bytes.
std::size_t Walk(std::span<const std::byte> bytes) {
    const auto image = CPeImage::Open(bytes);
    if (!image) return 0;
    std::size_t found = 0;
    for (const auto type : {ResourceType::kMenu, ResourceType::kDialog, ResourceType::kString}) {
        for (const int id : image->Ids(type)) {
            const auto resource = image->Find(type, id);
            if (!resource) continue;
            EXPECT_GE(resource->data(), bytes.data());
            EXPECT_LE(resource->data() + resource->size(), bytes.data() + bytes.size());
            if (type == ResourceType::kMenu) ParseMenu(*resource);
            if (type == ResourceType::kDialog) ParseDialog(*resource);
            if (type == ResourceType::kString) FindText(*image, id * 16 - 1);
            ++found;
        }
    }
    return found;
}

TEST(PeImageTest, WhatIsNoLibraryIsRefused) {
    std::ifstream file(std::string(test::kBinDir) + "/test_shell", std::ios::binary);
    const std::string program((std::istreambuf_iterator<char>(file)), {});
    ASSERT_GT(program.size(), 10000U);
    const struct {
        const char* name;
        std::string bytes;
    } rows[] = {
        {"empty", ""},
        {"script", "#!/bin/sh\nexit 0\n" + std::string(2000, '#')},
        {"ELF program", program},
        {"MZ and ones", "MZ" + std::string(5000, '\xFF')},
    };
    for (const auto& row : rows) {
        EXPECT_FALSE(CPeImage::Open(std::as_bytes(std::span(row.bytes)))) << row.name;
        EXPECT_FALSE(CResources::FromModule(row.bytes)) << row.name;
    }
}

TEST(PeImageTest, CutOffAnywhereIsRefused) {
    const Image image;
    for (std::size_t size = 0; size < image.bytes.size(); size += size < 2048 ? 1 : 61) {
        EXPECT_FALSE(CPeImage::Open(image.Bytes().first(size))) << size << " bytes";
    }
    EXPECT_GT(Walk(image.Bytes()), 20U);
}

TEST(PeImageTest, LiesAreFoundOut) {
    const Image good;
    enum class Effect { kRefused, kNoDialog, kNoText };
    const struct {
        const char* name;
        std::size_t at;
        std::uint32_t value;
        Effect effect;
    } rows[] = {
        {"header past the end", 0x3C, 0xFFFFFFF0, Effect::kRefused},
        {"optional header of 65535 bytes", good.pe + 20, 0xFFFF, Effect::kRefused},
        {"no resources", good.optional + 128, 0, Effect::kRefused},
        {"resources outside all sections", good.optional + 128, 0x7FFFFFFF, Effect::kRefused},
        {"section past the end", good.section + 20, 0xFFFFFE00, Effect::kRefused},
        {"root with 65535 names", good.root + 12, 0xFFFF, Effect::kRefused},
        {"type leads to the root", good.Entry(good.root, 5) + 4, 0x80000000, Effect::kNoDialog},
        {"type is no directory", good.Entry(good.root, 5) + 4, 0x00000010, Effect::kNoDialog},
        {"dialog under another number", good.Entry(good.dialogs, 318), 317, Effect::kNoDialog},
        {"language leads to the root", good.languages + 20, 0x80000000, Effect::kNoText},
        {"data past the section", good.data, 0xFFFFFFF0, Effect::kNoText},
    };
    const int firstBlock = CPeImage::Open(good.Bytes())->Ids(ResourceType::kString).front();
    for (const auto& row : rows) {
        Image image;
        image.Put(row.at, row.value);
        const auto opened = CPeImage::Open(image.Bytes());
        ASSERT_EQ(opened.has_value(), row.effect != Effect::kRefused) << row.name;
        Walk(image.Bytes());
        if (!opened) continue;
        const bool dialog = row.effect != Effect::kNoDialog;
        EXPECT_EQ(opened->Find(ResourceType::kDialog, kDialogLanguage).has_value(), dialog) << row.name;
        EXPECT_EQ(CResources::FromModule(image.bytes).has_value(), dialog) << row.name;
        if (row.effect == Effect::kNoText) {
            EXPECT_FALSE(opened->Find(ResourceType::kString, firstBlock)) << row.name;
        }
    }
}

TEST(PeImageTest, ModuleReplacesEnglishWhereItCan) {
    Image image;
    const std::string error("E\0r\0r\0o\0r\0!\0", 12);
    const std::string translated("F\0e\0h\0l\0e\0r\0", 12);
    image.bytes.replace(image.bytes.find(error), error.size(), translated);
    auto module = CResources::FromModule(image.bytes);
    ASSERT_TRUE(module);
    EXPECT_EQ(module->Text(kTextError), u"Fehler");

    image.Put(image.Entry(image.root, 6), 7);  // no texts any more
    image.Put(image.Entry(image.root, 4), 3);  // no menus
    module = CResources::FromModule(image.bytes);
    ASSERT_TRUE(module);
    EXPECT_EQ(module->Text(kTextError), u"Error!");
    EXPECT_EQ(module->Menu(100), CResources().Menu(100));
    EXPECT_TRUE(module->Menu(100));

    EXPECT_FALSE(CResources::FromModule(image.bytes + std::string(CResources::kMaxModuleSize, ' ')));
}

}  // namespace
}  // namespace rlx
