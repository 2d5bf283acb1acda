#include <cctype>
#include <charconv>
#include <memory>

#include "base/number.h"
#include "base/text.h"
#include "cli/commands.h"
#include "cli/text_ids.h"
#include "platform/registry_value.h"
#include "shell/setting_names.h"

namespace rlx::cli {

namespace {

struct SettingsWords {
    std::string key;
    std::string name;
    std::optional<std::uint32_t> dword;
    std::optional<std::string> text;
    std::optional<std::string> binary;
};

/// "0AFF" to two bytes; nothing when it is not pairs of hexadecimal digits.
std::optional<std::string> BytesOf(const std::string& hex) {
    if (hex.size() % 2 != 0) return std::nullopt;
    std::string bytes;
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        unsigned value = 0;
        const auto [stop, error] = std::from_chars(hex.data() + i, hex.data() + i + 2, value, 16);
        if (error != std::errc{} || stop != hex.data() + i + 2) return std::nullopt;
        bytes.push_back(static_cast<char>(value));
    }
    return bytes;
}

std::string HexOf(const std::string& bytes) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::string hex;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        hex.push_back(kDigits[value >> 4U]);
        hex.push_back(kDigits[value & 15U]);
    }
    return hex;
}

const char* NameOf(RegistryType type) {
    switch (type) {
        case RegistryType::kString:
            return "string";
        case RegistryType::kDword:
            return "dword";
        case RegistryType::kBinary:
            break;
    }
    return "binary";
}

Json ValueOf(const RegistryValue& value) {
    switch (value.type) {
        case RegistryType::kString:
            return ToJson(TextOf(value).value_or(u""));
        case RegistryType::kDword:
            return DwordOf(value).value_or(0);
        case RegistryType::kBinary:
            break;
    }
    return HexOf(value.bytes);
}

std::string Shown(const Json& value) {
    return value.is_string() ? value.get<std::string>() : value.dump();
}

struct ReadValue {
    std::optional<RegistryValue> value;
    ReadStatus status = ReadStatus::kRead;
};

/// The value as the program itself would read it, so that the status is the program's own. It has no reader for bytes:
/// they count as read when they are there.
ReadValue Read(CSession& session, const std::u16string& key, const std::u16string& name) {
    const RegistryRoot root = RootOf(key);
    auto value = session.Registry().Query(root, key, name);
    if (value && value->type == RegistryType::kBinary) return {value, ReadStatus::kRead};
    CRegistryStore& settings = session.Settings();
    if (value && value->type == RegistryType::kString) {
        settings.ReadString(root, key, name);
    } else {
        settings.ReadDword(root, key, name);
    }
    if (settings.Status() != ReadStatus::kRead) value.reset();
    return {value, settings.Status()};
}

int Get(CSession& session, CAnswer& answer, const SettingsWords& words) {
    const std::u16string key = FromUtf8(words.key);
    const std::u16string name = FromUtf8(words.name);
    const auto [value, readStatus] = Read(session, key, name);
    const int status = static_cast<int>(readStatus);
    answer.Set("status", status);
    answer.Set("type", value ? Json(NameOf(value->type)) : Json(nullptr));
    answer.Set("value", value ? ValueOf(*value) : Json(nullptr));
    if (value) {
        answer.Line(Shown(ValueOf(*value)));
        return kDone;
    }
    answer.Line("status " + std::to_string(status));
    return kDone;
}

int Set(CSession& session, const SettingsWords& words) {
    const std::u16string key = FromUtf8(words.key);
    const std::u16string name = FromUtf8(words.name);
    CRegistryStore& settings = session.Settings();
    bool written = false;
    if (words.dword) {
        written = settings.WriteDword(RootOf(key), key, name, *words.dword);
    } else if (words.text) {
        written = settings.WriteString(RootOf(key), key, name, FromUtf8(*words.text));
    } else {
        const std::string bytes = BytesOf(words.binary.value_or("")).value_or("");
        written = settings.WriteBinary(RootOf(key), key, name, bytes.data(), bytes.size());
    }
    return written && session.KeepsChanges() ? kDone : session.Fail(session.Text(kTextSettingNotWritten, key, name));
}

int List(CSession& session, CAnswer& answer) {
    Json values = Json::array();
    std::vector<std::vector<std::u16string>> rows;
    for (const RegistryEntry& entry : session.Registry().List()) {
        const Json value = ValueOf(entry.value);
        values.push_back({{"key", ToUtf8(entry.key)},
                          {"name", ToUtf8(entry.name)},
                          {"type", NameOf(entry.value.type)},
                          {"value", value}});
        rows.push_back({entry.key, entry.name, FromUtf8(NameOf(entry.value.type)), FromUtf8(Shown(value))});
    }
    answer.Set("values", std::move(values));
    answer.Table(rows);
    return kDone;
}

void AddKeyAndName(CLI::App& sub, const std::shared_ptr<SettingsWords>& words) {
    sub.add_option("KEY", words->key, "key, levels separated by a backslash")->required();
    sub.add_option("NAME", words->name, "name of the value")->required();
}

}  // namespace

void DeclareSettings(CLI::App& app, const SetAction& setAction) {
    auto words = std::make_shared<SettingsWords>();
    app.require_subcommand(1);
    CLI::App* get = DeclareSub(app, "get", "read one value", setAction,
                               [words](CSession& s, CAnswer& a) { return Get(s, a, *words); });
    AddKeyAndName(*get, words);
    CLI::App* set =
        DeclareSub(app, "set", "write one value", setAction, [words](CSession& s, CAnswer&) { return Set(s, *words); });
    AddKeyAndName(*set, words);
    auto* group = set->add_option_group("value");
    const auto takeDword = [words](std::int64_t number) { words->dword = static_cast<std::uint32_t>(number); };
    AddInteger(*group, "--dword", {0, 0xFFFFFFFF}, takeDword, "a number")->type_name("N");
    group->add_option("--text", words->text, "a text")->type_name("T");
    group->add_option("--binary", words->binary, "bytes in hexadecimal")
        ->type_name("HEX")
        ->check([](const std::string& hex) {
            return BytesOf(hex) ? std::string() : "\"" + hex + "\" is not pairs of hexadecimal digits";
        });
    group->require_option(1);
    DeclareSub(app, "list", "every value", setAction, [](CSession& s, CAnswer& a) { return List(s, a); });
}

}  // namespace rlx::cli
