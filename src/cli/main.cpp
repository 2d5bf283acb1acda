#include <cstring>
#include <iostream>
#include <string>
#include <vector>

#include "cli/command.h"
#include "cli/commands.h"

namespace rlx::cli {

namespace {

/// The subcommand among the words, so that only its options need to be declared.
const Command* Named(int count, char** words) {
    for (int i = 1; i < count; ++i) {
        for (const Command& command : Commands()) {
            if (std::strcmp(words[i], command.name) == 0) return &command;
        }
    }
    return nullptr;
}

void DeclareGlobals(CLI::App& app, GlobalOptions& options) {
    app.add_option("--home", options.home, "application folder")->type_name("DIR");
    app.add_option("--store", options.store, "device store")->type_name("FILE");
    app.add_option_function<std::string>(
           "--now",
           [&options](const std::string& text) {
               options.now = ParseDateTime(text);
               if (!options.now) throw CLI::ValidationError("--now", "\"" + text + "\" is not YYYY-MM-DDTHH:MM:SS");
           },
           "the device's local clock, frozen")
        ->type_name("TIME");
    app.add_option("--bias", options.bias, "standard time-zone bias: UTC = local + bias")
        ->type_name("MINUTES")
        ->check(CLI::Range(-100000, 100000));
    auto* yes = app.add_flag_callback(
        "--yes", [&options] { options.answer = GivenAnswer::kYes; }, "answer yes to every question");
    auto* no = app.add_flag_callback(
        "--no", [&options] { options.answer = GivenAnswer::kNo; }, "answer no to every question");
    yes->excludes(no);
    app.add_flag("--offline", options.offline, "behave as with no connection at all");
    app.add_flag("--json", options.json, "machine-readable output");
}

/// One line that says how the command that was meant is used.
std::string Usage(const CLI::App& app) {
    const CLI::App* at = &app;
    std::string words = "rlx";
    while (!at->get_subcommands().empty()) {
        at = at->get_subcommands().front();
        words += " " + at->get_name();
    }
    for (const CLI::Option* option : at->get_options([](const CLI::Option* o) { return o->get_positional(); })) {
        const std::string name = option->get_name(true);
        words += option->get_required() ? " " + name : " [" + name + "]";
    }
    const auto named = [](const CLI::App* sub) { return !sub->get_name().empty(); };
    if (!at->get_subcommands(named).empty()) words += " COMMAND";
    return "usage: " + words + " (rlx --help lists more)";
}

/// The words that no option and no command took, the innermost first.
std::vector<std::string> UnknownWords(const CLI::App& app) {
    std::vector<std::string> words = app.remaining(true);
    for (const CLI::App* sub : app.get_subcommands()) {
        const std::vector<std::string> inner = UnknownWords(*sub);
        words.insert(words.begin(), inner.begin(), inner.end());
    }
    return words;
}

int WrongUsage(const CLI::App& app, const CLI::ParseError& error, bool json) {
    const std::vector<std::string> unknown = UnknownWords(app);
    std::string what = unknown.empty() ? error.what() : "\"" + unknown.front() + "\" is not understood";
    for (char& c : what) {
        if (c == '\n') c = ' ';
    }
    std::cerr << "rlx: " << what << '\n' << Usage(app) << '\n';
    if (json) {
        const Json object = {{"error", what}, {"messages", Json::array()}};
        std::cout << object.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
    }
    return kWrongUsage;
}

int Run(int count, char** words) {
    CLI::App app("The travel companion on the command line.", "rlx");
    GlobalOptions options;
    Action action;
    DeclareGlobals(app, options);
    app.fallthrough();
    app.require_subcommand(1);
    const Command* named = Named(count, words);
    for (const Command& command : Commands()) {
        CLI::App* sub = app.add_subcommand(command.name, command.help);
        if (named == nullptr || named == &command)
            command.declare(*sub, [&action](Action given) { action = std::move(given); });
    }
    try {
        app.parse(count, words);
    } catch (const CLI::Success& success) {
        return app.exit(success);
    } catch (const CLI::ParseError& error) {
        return WrongUsage(app, error, options.json);
    }
    CSession session(options);
    CAnswer answer;
    const int status = action(session, answer);
    answer.Write(options.json, session.Boxes().Shown());
    return status;
}

}  // namespace

CLI::App* DeclareSub(CLI::App& app, const char* name, const char* help, const SetAction& setAction, Action action) {
    CLI::App* sub = app.add_subcommand(name, help);
    sub->fallthrough();
    sub->callback([setAction, action = std::move(action)] { setAction(action); });
    return sub;
}

}  // namespace rlx::cli

int main(int count, char** words) {
    return rlx::cli::Run(count, words);
}
