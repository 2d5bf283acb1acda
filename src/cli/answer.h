#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "cli/console_message_boxes.h"

// Compiled once, in answer.cpp: it is large, and every command uses it.
extern template class nlohmann::basic_json<nlohmann::ordered_map>;

namespace rlx::cli {

/// Keeps the order in which members were set.
using Json = nlohmann::ordered_json;

Json ToJson(std::u16string_view text);
Json ToJson(const std::vector<std::u16string>& texts);

/// A number, or null when it is not finite.
Json ToJson(double number);

/// What a command has to say: members of one JSON object, and the same as text for a person.
class CAnswer {
public:
    /// Adds a member of the JSON object.
    void Set(const char* name, Json value) { m_members[name] = std::move(value); }

    /// Adds one line of human text.
    void Line(std::u16string_view text);
    void Line(std::string_view utf8);

    /// Adds lines whose columns are padded to line up; the last column is not padded.
    void Table(const std::vector<std::vector<std::u16string>>& rows);

    /// Writes the JSON object with its "messages", or the text, to standard output.
    void Write(bool json, const std::vector<AnsweredBox>& messages) const;

private:
    Json m_members = Json::object();
    std::string m_text;
};

}  // namespace rlx::cli
