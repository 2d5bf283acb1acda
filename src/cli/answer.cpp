#include "cli/answer.h"

#include <algorithm>
#include <cmath>
#include <iostream>

#include "base/text.h"

template class nlohmann::basic_json<nlohmann::ordered_map>;

namespace rlx::cli {

namespace {

const char* NameOf(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::kInformation:
            return "information";
        case BoxIcon::kQuestion:
            return "question";
        case BoxIcon::kExclamation:
            return "exclamation";
        case BoxIcon::kStop:
            return "stop";
        case BoxIcon::kNone:
            break;
    }
    return "none";
}

const char* NameOf(BoxAnswer answer) {
    switch (answer) {
        case BoxAnswer::kYes:
            return "yes";
        case BoxAnswer::kNo:
            return "no";
        case BoxAnswer::kOk:
            break;
    }
    return "ok";
}

Json ToJson(const AnsweredBox& shown) {
    return {{"title", ToUtf8(shown.box.title)},
            {"text", ToUtf8(shown.box.text)},
            {"icon", NameOf(shown.box.icon)},
            {"buttons", shown.box.buttons == BoxButtons::kYesNo ? "yesno" : "ok"},
            {"answer", NameOf(shown.answer)}};
}

}  // namespace

Json ToJson(std::u16string_view text) {
    return ToUtf8(text);
}

Json ToJson(const std::vector<std::u16string>& texts) {
    Json list = Json::array();
    for (const std::u16string& text : texts)
        list.push_back(ToUtf8(text));
    return list;
}

Json ToJson(double number) {
    return std::isfinite(number) ? Json(number) : Json(nullptr);
}

void CAnswer::Line(std::u16string_view text) {
    Line(ToUtf8(text));
}

void CAnswer::Line(std::string_view utf8) {
    m_text += utf8;
    m_text += '\n';
}

void CAnswer::Table(const std::vector<std::vector<std::u16string>>& rows) {
    std::vector<std::size_t> widths;
    for (const auto& row : rows) {
        if (widths.size() < row.size()) widths.resize(row.size());
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], row[i].size());
    }
    for (const auto& row : rows) {
        std::u16string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += row[i];
            if (i + 1 < row.size()) line.append(widths[i] - row[i].size() + 2, u' ');
        }
        Line(line);
    }
}

void CAnswer::Write(bool json, const std::vector<AnsweredBox>& messages) const {
    if (!json) {
        std::cout << m_text;
        return;
    }
    Json object = m_members;
    object["messages"] = Json::array();
    for (const AnsweredBox& shown : messages)
        object["messages"].push_back(ToJson(shown));
    std::cout << object.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace rlx::cli
