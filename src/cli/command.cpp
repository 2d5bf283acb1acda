#include "cli/command.h"

#include "base/number.h"
#include "base/text.h"

namespace rlx::cli {

CLI::App* DeclareSub(CLI::App& app, const char* name, const char* help, const SetAction& setAction, Action action) {
    CLI::App* sub = app.add_subcommand(name, help);
    sub->fallthrough();
    sub->callback([setAction, action = std::move(action)] { setAction(action); });
    return sub;
}

CLI::Option* AddInteger(CLI::App& app, const std::string& name, IntegerRange range,
                        std::function<void(std::int64_t)> take, const std::string& help) {
    const auto read = [name, range, take = std::move(take)](const std::string& word) {
        const auto number = ParseWholeInteger(FromUtf8(word), range.low, range.high);
        if (!number) {
            throw CLI::ValidationError(name, "\"" + word + "\" is not a whole number from " +
                                                 std::to_string(range.low) + " to " + std::to_string(range.high));
        }
        take(*number);
    };
    return app.add_option_function<std::string>(name, read, help)->type_name("NUMBER");
}

CLI::Option* AddInstant(CLI::App& app, const std::string& name, std::function<void(const DateTime&)> take,
                        const std::string& help) {
    const auto read = [name, take = std::move(take)](const std::string& word) {
        const auto time = ParseInstant(word);
        if (!time) throw CLI::ValidationError(name, "\"" + word + "\" is not YYYY-MM-DDTHH:MM:SS");
        take(*time);
    };
    return app.add_option_function<std::string>(name, read, help)->type_name("TIME");
}

}  // namespace rlx::cli
