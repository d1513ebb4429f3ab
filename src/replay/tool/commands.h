// The commands of vandrel-replay, a file each. Each takes the words behind its name and gives the exit status: 0 if all
// is well, 1 if a replay fails. All throw `UsageError` for words they do not understand.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "replay/tool/printable.h"

namespace vandrel {

using Words = std::vector<std::string>;

// The words make no sense; the text says why.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct Command {
    const char* name;
    int (*run)(const Words& words);
    const char* help;
};

extern const Command infoCommand;
extern const Command verifyCommand;
extern const Command playRandomCommand;
extern const Command traceCommand;
extern const Command digestCommand;

// Runs vandrel-replay: finds the command, shows help, and turns failures into one line on standard error. Exit status
// 0, 1 for a failure, 2 for wrong usage.
int runReplayTool(const Words& words);

// The replays that the words name: files as they stand, folders as all "*.replay" files below them, by number and then
// by name. A folder that cannot be read is named on standard error and passed over.
std::vector<std::string> findReplays(const Words& words);

// The value behind the option at `index`, which moves on to it. Throws UsageError if there is none.
const std::string& optionValue(const Words& words, std::size_t& index);
int optionNumber(const Words& words, std::size_t& index);
// A whole number; `name` says what it is for.
int parseWholeNumber(const std::string& name, const std::string& text);

// Runs `work` on the file. A failure gets the path in front of its text, unless it is a `UsageError`.
template <class Work>
auto namingFile(const std::string& path, Work work) {
    try {
        return work();
    } catch (const UsageError&) {
        throw;
    } catch (const std::exception& failure) {
        throw std::runtime_error(printable(path) + ": " + failureText(failure));
    }
}

}  // namespace vandrel
