#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

#include "base/text.h"
#include "shell/dialog_template.h"
#include "shell/english_image.h"
#include "shell/menu_template.h"
#include "shell/string_table.h"
#include "support/numbered_names.h"
#include "support/paths.h"

namespace rlx {
namespace {

namespace fs = std::filesystem;

/// What a text must share with its English original, whatever the language.
struct Bones {
    std::multiset<std::u16string> placeholders;
    std::multiset<char16_t> digits;
    std::u16string before;
    std::u16string after;
};

std::u16string Outer(std::u16string text) {
    const auto end = text.find_first_not_of(u" \n\t");
    return text.substr(0, std::min(end, text.size()));
}

Bones BonesOf(const std::u16string& text) {
    Bones bones;
    bones.before = Outer(text);
    bones.after = Outer({text.rbegin(), text.rend()});
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto ends = text.find_first_of(u"0123456789sdf%", i + 1);
        const bool placeholder = text[i] == u'%' && ends == i + 1;
        const bool digit = text[i] >= u'0' && text[i] <= u'9';
        if (placeholder) bones.placeholders.insert(text.substr(i++, 2));
        if (!placeholder && digit) bones.digits.insert(text[i]);
    }
    return bones;
}

/// The letter behind a single "&", in lower case; nothing when there is none.
std::u16string Mnemonic(const std::u16string& text) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] == u'&' && text[++i] != u'&') return FoldCase(text.substr(i, 1));
    }
    return {};
}

/// Compares one library with the English one; each difference is a line.
class CComparison {
public:
    explicit CComparison(const CPeImage& module) : m_english(*CPeImage::Open(EnglishImage())), m_module(module) {}

    std::vector<std::string> Faults() {
        Texts();
        Each(ResourceType::kMenu, "menu ", ParseMenu, &CComparison::Level);
        Each(ResourceType::kDialog, "dialog ", ParseDialog, &CComparison::Dialog);
        return m_faults;
    }

private:
    void Say(const std::string& what, const std::string& where) { m_faults.push_back(where + ": " + what); }

    void Texts() {
        std::map<int, std::string> names;
        for (const auto& [name, number] : test::NumberedNames("text_ids.h", "kText"))
            names[number] = name;
        for (const int block : m_module.Ids(ResourceType::kString)) {
            for (int id = (block - 1) * 16; id < block * 16; ++id) {
                if (FindText(m_english, id).empty() && !FindText(m_module, id).empty())
                    Say("is no text of the English set", std::to_string(id));
            }
        }
        for (const auto& [number, name] : names)
            Text(name, FindText(m_english, number), FindText(m_module, number));
    }

    void Text(const std::string& name, const std::u16string& english, const std::u16string& text) {
        if (text.empty()) return Say("is missing", name);
        const Bones is = BonesOf(text);
        const Bones must = BonesOf(english);
        const std::string both = " \"" + ToUtf8(english) + "\" and \"" + ToUtf8(text) + "\"";
        if (is.placeholders != must.placeholders) Say("placeholders differ:" + both, name);
        // A language may say "1 to 50" for "at most 50", and write months with numbers; it may not lose one.
        const bool keeps = std::includes(is.digits.begin(), is.digits.end(), must.digits.begin(), must.digits.end());
        if (!keeps) Say("numbers differ:" + both, name);
        if (is.before != must.before) Say("leading blanks or line feeds differ:" + both, name);
        if (is.after != must.after) Say("trailing blanks or line feeds differ:" + both, name);
    }

    template <typename Parse, typename Compare>
    void Each(ResourceType type, const std::string& what, Parse parse, Compare compare) {
        for (const int id : m_english.Ids(type)) {
            const auto resource = m_module.Find(type, id);
            const auto parsed = resource ? parse(*resource) : std::nullopt;
            if (parsed) {
                (this->*compare)(*parse(*m_english.Find(type, id)), *parsed, what + std::to_string(id));
            } else {
                Say("is missing", what + std::to_string(id));
            }
        }
    }

    void Level(const MenuTemplate& english, const MenuTemplate& menu, const std::string& where) {
        if (menu.size() != english.size()) return Say("has another number of entries", where);
        std::vector<std::u16string> texts;
        for (std::size_t i = 0; i < menu.size(); ++i) {
            const std::string entry = where + ", \"" + ToUtf8(english[i].text) + "\"";
            if (menu[i].kind != english[i].kind || menu[i].id != english[i].id) Say("is another command", entry);
            if (menu[i].text.empty() != english[i].text.empty()) Say("has no text", entry);
            texts.push_back(menu[i].text);
            Level(english[i].entries, menu[i].entries, entry);
        }
        Mnemonics(texts, where);
    }

    void Mnemonics(const std::vector<std::u16string>& texts, const std::string& where) {
        std::map<std::u16string, std::u16string> seen;
        for (const auto& text : texts) {
            const auto letter = Mnemonic(text);
            const auto [at, first] = seen.emplace(letter, text);
            if (!letter.empty() && !first)
                Say("one mnemonic in \"" + ToUtf8(at->second) + "\" and \"" + ToUtf8(text) + "\"", where);
        }
    }

    void Dialog(const DialogTemplate& english, const DialogTemplate& dialog, const std::string& where) {
        if (dialog.controls.size() != english.controls.size()) return Say("has another number of controls", where);
        if (dialog.title.empty() != english.title.empty()) Say("has no title", where);
        std::vector<std::u16string> texts;
        for (std::size_t i = 0; i < dialog.controls.size(); ++i) {
            const DialogControl& must = english.controls[i];
            const DialogControl& is = dialog.controls[i];
            const std::string control = where + ", control " + std::to_string(must.id);
            if (is.id != must.id) Say("has another number", control);
            if (is.kind != must.kind || is.className != must.className) Say("is of another kind", control);
            if (is.text.empty() != must.text.empty()) Say("has a text in one language alone", control);
            texts.push_back(is.text);
        }
        Mnemonics(texts, where);
    }

    CPeImage m_english;
    const CPeImage& m_module;
    std::vector<std::string> m_faults;
};

std::vector<std::string> FaultsOf(std::span<const std::byte> bytes) {
    const auto module = CPeImage::Open(bytes);
    return module ? CComparison(*module).Faults() : std::vector<std::string>{"not a library"};
}

TEST(LanguageModulesTest, EachHoldsWhatTheEnglishSetHolds) {
    int modules = 0;
    for (const auto& folder : {fs::path(test::kBinDir) / "LangsRes", fs::path(test::kTestModuleDir)}) {
        if (!fs::is_directory(folder)) continue;
        for (const auto& file : fs::directory_iterator(folder)) {
            std::ifstream stream(file.path(), std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
            for (const auto& fault : FaultsOf(std::as_bytes(std::span(bytes))))
                ADD_FAILURE() << file.path().filename().string() << ": " << fault;
            ++modules;
        }
    }
    EXPECT_GT(modules, 0);
    EXPECT_EQ(FaultsOf(EnglishImage()), std::vector<std::string>()) << "mnemonics of the English set";
}

}  // namespace
}  // namespace rlx
