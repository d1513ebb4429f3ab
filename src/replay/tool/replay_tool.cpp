#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "replay/tool/commands.h"
#include "shell/log.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

constexpr std::array<const Command*, 5> commands{&infoCommand, &verifyCommand, &playRandomCommand, &traceCommand,
                                                 &digestCommand};

void printOverview() {
    fmt::print("Usage: vandrel-replay COMMAND [--help] ...\n\nCommands:\n");
    for (const Command* command : commands) {
        const std::string help = command->help;
        fmt::print("  {}\n", help.substr(0, help.find('\n')));
    }
}

int run(const Words& words) {
    if (words.empty()) {
        throw UsageError("no command; see vandrel-replay --help");
    }
    if (words.front() == "--help" || words.front() == "-h") {
        printOverview();
        return 0;
    }
    const auto found = std::find_if(commands.begin(), commands.end(),
                                    [&](const Command* command) { return words.front() == command->name; });
    if (found == commands.end()) {
        throw UsageError(fmt::format("unknown command '{}'; see vandrel-replay --help", words.front()));
    }
    const Words rest(words.begin() + 1, words.end());
    if (std::find(rest.begin(), rest.end(), "--help") != rest.end()) {
        fmt::print("Usage: vandrel-replay {}", (*found)->help);
        return 0;
    }
    return (*found)->run(rest);
}

// 12.1.1.2.replay stands behind 2.1.1.2.replay.
bool comesBefore(const std::filesystem::path& a, const std::filesystem::path& b) {
    const auto key = [](const std::filesystem::path& path) {
        return std::make_pair(std::strtol(path.filename().c_str(), nullptr, 10), path.string());
    };
    return key(a) < key(b);
}

void collectReplays(const std::filesystem::path& folder, std::vector<std::filesystem::path>& found) {
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code unknown;
        if (entry->path().extension() == ".replay") {
            found.push_back(entry->path());
        } else if (entry->is_directory(unknown) && !entry->is_symlink(unknown)) {
            collectReplays(entry->path(), found);
        }
    }
    if (error) {
        fmt::print(stderr, "vandrel-replay: {}: {}\n", printable(folder.string()), error.message());
    }
}

}  // namespace

int runReplayTool(const Words& words) {
    setDebugOutput(nullptr);
    fillTeamPalettes();
    try {
        const int status = run(words);
        if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
            throw std::system_error(errno, std::generic_category(), "standard output cannot be written");
        }
        return status;
    } catch (const UsageError& failure) {
        fmt::print(stderr, "vandrel-replay: {}\n", printable(failure.what()));
        return 2;
    } catch (const std::exception& failure) {
        fmt::print(stderr, "vandrel-replay: {}\n", failureText(failure));
        return 1;
    }
}

std::vector<std::string> findReplays(const Words& words) {
    std::vector<std::string> paths;
    for (const std::string& word : words) {
        if (!std::filesystem::is_directory(word)) {
            paths.push_back(word);
            continue;
        }
        std::vector<std::filesystem::path> found;
        collectReplays(word, found);
        std::sort(found.begin(), found.end(), comesBefore);
        paths.insert(paths.end(), found.begin(), found.end());
    }
    if (paths.empty()) {
        throw UsageError("no replays to look at");
    }
    return paths;
}

const std::string& optionValue(const Words& words, std::size_t& index) {
    if (index + 1 >= words.size()) {
        throw UsageError(fmt::format("{} needs a value", words[index]));
    }
    return words[++index];
}

int parseWholeNumber(const std::string& name, const std::string& text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) {
        throw UsageError(fmt::format("{} needs a whole number, not '{}'", name, text));
    }
    return number;
}

int optionNumber(const Words& words, std::size_t& index) {
    const std::string& name = words[index];
    return parseWholeNumber(name, optionValue(words, index));
}

}  // namespace vandrel
