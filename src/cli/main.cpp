#include <algorithm>
#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "cli/command.h"
#include "cli/commands.h"
#include "cli/standard_streams.h"
#include "cli/words.h"

namespace rlx::cli {

namespace {

/// The subcommand that the words name, so that only it needs to be declared: the first word that is neither a
/// global option nor its value.
const Command* Named(const CLI::App& app, const std::vector<std::string>& words) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        const CLI::Option* option = app.get_option_no_throw(words[i]);
        if (option != nullptr && option->get_items_expected_max() > 0) {
            ++i;
        } else if (!words[i].starts_with('-')) {
            const auto isNamed = [&](const Command& command) { return words[i] == command.name; };
            const auto found = std::find_if(Commands().begin(), Commands().end(), isNamed);
            return found == Commands().end() ? nullptr : &*found;
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
    AddInteger(
        app, "--bias", {-100000, 100000},
        [&options](std::int64_t minutes) { options.bias = static_cast<int>(minutes); },
        "standard time-zone bias: UTC = local + bias")
        ->type_name("MINUTES");
    auto* yes = app.add_flag_callback(
        "--yes", [&options] { options.answer = GivenAnswer::kYes; }, "answer yes to every question");
    auto* no = app.add_flag_callback(
        "--no", [&options] { options.answer = GivenAnswer::kNo; }, "answer no to every question");
    yes->excludes(no);
    app.add_flag("--offline", options.offline, "behave as with no connection at all");
    app.add_flag("--json", options.json, "machine-readable output");
    // As with most programs: said twice, the last one counts.
    for (const char* name : {"--home", "--store", "--now", "--bias"})
        app.get_option(name)->take_last();
}

/// "--dword NUMBER | --text TEXT" of a group of options of which one must be given.
std::string Choices(const CLI::App& group) {
    std::string words;
    for (const CLI::Option* option :
         group.get_options([](const CLI::Option* o) { return o->get_items_expected() > 0; }))
        words += (words.empty() ? "" : " | ") + option->get_name() + " " + option->get_type_name();
    return words;
}

/// " --ut TIME" of the options that a command must have, " [--date DATE]" of those that it may have.
std::string OwnOptions(const CLI::App& command) {
    std::string words;
    for (const CLI::Option* option : command.get_options()) {
        if (option->get_positional() || option == command.get_help_ptr()) continue;
        const bool isFlag = option->get_items_expected_max() == 0;
        const std::string name = option->get_name() + (isFlag ? "" : " " + option->get_type_name());
        words += option->get_required() ? " " + name : " [" + name + "]";
    }
    return words;
}

/// One line that says how the command that was meant is used.
std::string Usage(const CLI::App& app) {
    const CLI::App* at = &app;
    std::string words = "rlx";
    while (!at->get_subcommands().empty()) {
        at = at->get_subcommands().front();
        words += " " + at->get_name();
    }
    const std::string path = words;
    for (const CLI::Option* option : at->get_options([](const CLI::Option* o) { return o->get_positional(); })) {
        const std::string name = option->get_name(true);
        words += option->get_required() ? " " + name : " [" + name + "]";
    }
    if (at != &app) words += OwnOptions(*at);
    bool hasCommands = false;
    for (const CLI::App* sub : at->get_subcommands([](const CLI::App*) { return true; })) {
        hasCommands = hasCommands || !sub->get_name().empty();
        if (sub->get_name().empty()) words += " (" + Choices(*sub) + ")";
    }
    if (hasCommands) words += at->get_require_subcommand_min() > 0 ? " COMMAND" : " [COMMAND]";
    return "usage: " + words + " (" + path + " --help tells more)";
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
    std::string what = WithoutMarks(unknown.empty() ? error.what() : "\"" + unknown.front() + "\" is not understood");
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

int Run(int count, char** arguments) {
    CLI::App app("The travel companion on the command line.", "rlx");
    GlobalOptions options;
    Action action;
    DeclareGlobals(app, options);
    app.fallthrough();
    app.require_subcommand(1);
    std::vector<std::string> words = WordsOf(count, arguments);
    const Command* named = Named(app, words);
    // What stands behind a wrong word may never be read, but the answer must have the form that was asked for.
    const bool json = std::find(words.begin(), words.end(), "--json") != words.end();
    for (const Command& command : Commands()) {
        if (named != nullptr && named != &command) continue;
        CLI::App* sub = app.add_subcommand(command.name, command.help);
        command.declare(*sub, [&action](Action given) { action = std::move(given); });
    }
    TakeMarksOff(app);
    try {
        std::reverse(words.begin(), words.end());  // the parser takes them from the back
        app.parse(std::move(words));
    } catch (const CLI::Success& success) {
        return app.exit(success);
    } catch (const CLI::ParseError& error) {
        return WrongUsage(app, error, json);
    }
    CSession session(options);
    CAnswer answer;
    const int status = action(session, answer);
    answer.Write(options.json, session.Boxes().Shown());
    return FlushStandardOutput() ? status : kFailed;
}

}  // namespace

}  // namespace rlx::cli

int main(int count, char** words) {
    // What is thrown here has no better place to be told: no memory, a file system that fails.
    try {
        rlx::cli::HoldStandardStreams();
        // A write beyond the caller's limit of file sizes fails as on a full disk.
        std::signal(SIGXFSZ, SIG_IGN);
        return rlx::cli::Run(count, words);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "rlx: %s\n", error.what());
        return rlx::cli::kFailed;
    }
}
