#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

/// The words of the command line in a form in which the parser takes them for what they are.
namespace rlx::cli {

/// "--text=" becomes two words, so that a value may be empty. "-.5" is marked as a value, or the parser would take it
/// for an option; it knows only those negative numbers that begin with a digit.
std::vector<std::string> WordsOf(int count, char** words);

/// Lets every option and positional of `app` and of its subcommands take its values without the mark.
void TakeMarksOff(CLI::App& app);

/// A text of the parser with the words in it as they were given.
std::string WithoutMarks(std::string text);

}  // namespace rlx::cli
