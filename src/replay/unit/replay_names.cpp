#include "replay/unit/replay_names.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <boost/algorithm/string.hpp>
#include <cerrno>
#include <charconv>
#include <fstream>
#include <functional>
#include <limits>
#include <stdexcept>
#include <string_view>
#include <system_error>
#include <tuple>

#include "base/version.h"
#include "replay/unit/option_record.h"
#include "replay/unit/verify_files.h"
#include "shell/log.h"
#include "shell/paths.h"

namespace vandrel {

namespace {

constexpr int lastReplayNumber = std::numeric_limits<int>::max();
constexpr const char* noNumberLeft = "No number is left for a new replay";

// Whether the file goes on as far as the end of the grid. One that does not was left by a round that never began.
bool holdsGrid(std::istream& stream) {
    constexpr std::string_view gridMarker = "ENDGRID";
    constexpr std::size_t longestStart = 64 * 1024;  // header and grid of the largest arena, and some to spare
    std::string start(longestStart, '\0');
    stream.exceptions(std::ios::badbit);
    stream.read(start.data(), static_cast<std::streamsize>(start.size()));
    return std::string_view(start).substr(0, static_cast<std::size_t>(stream.gcount())).find(gridMarker) !=
           std::string_view::npos;
}

// As `std::stoi` reads: blanks, a sign, digits, and then whatever there is; with texts of our own.
int parseNumber(const std::string& text) {
    const std::string trimmed = boost::trim_left_copy(text);
    const bool plus = boost::starts_with(trimmed, "+") && !boost::starts_with(trimmed, "+-");
    const std::string_view digits = std::string_view(trimmed).substr(plus ? 1 : 0);
    int number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error == std::errc::result_out_of_range) {
        throw std::out_of_range("stoi argument out of range");
    }
    if (error != std::errc()) {
        throw std::invalid_argument("invalid stoi argument");
    }
    return number;
}

std::uint64_t sizeOf(const std::string& path) {
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    return error ? 0 : static_cast<std::uint64_t>(size);
}

void readHeader(ReplayInfo& info) {
    int version = -1;
    try {
        std::ifstream stream(info.path, std::ios::in | std::ios::binary);
        if (stream.is_open()) {  // the first read tells of one that is not
            stream.exceptions(std::ios::badbit | std::ios::failbit | std::ios::eofbit);
        }
        const auto options = readGameOptions(stream, version);
        if (!options) {
            info.errors.push_back(versionRefusal(version));
        } else if (!holdsGrid(stream)) {
            throw std::runtime_error("The replay ends before its round begins");
        } else {
            info.version = version;
            info.gameMode = static_cast<int>(options->gameMode);
            info.numPlayers = options->numPlayers;
        }
    } catch (const std::exception& failure) {
        info.errors = {failure.what(), "One possible cause is a crash while starting a game",
                       "You can safely delete this file"};
    }
}

void addReplay(std::vector<ReplayInfo>& replays, const std::filesystem::directory_entry& entry, bool readHeaders) {
    const std::string name = entry.path().filename().string();
    std::vector<std::string> parts;
    boost::split(parts, name, [](char c) { return c == '.'; });
    std::error_code error;
    if (parts.size() < 2 || parts.back() != "replay" || !entry.is_regular_file(error)) {
        return;
    }
    ReplayInfo info;
    try {
        info.number = parseNumber(parts.front());
    } catch (const std::exception&) {
        logText("This replay's name does not begin with a number: " + entry.path().string() + "\n");
        throw;
    }
    info.path = entry.path().string();
    info.entry = entry;
    info.size = sizeOf(info.path) + sizeOf(plainVerifyPath(info.path)) + sizeOf(compressedVerifyPath(info.path));
    if (readHeaders) {
        readHeader(info);
    }
    replays.push_back(std::move(info));
}

}  // namespace

std::vector<ReplayInfo> getAllReplays(bool readHeaders) {
    std::vector<ReplayInfo> replays;
    try {
        using std::filesystem::directory_options;
        for (const auto& entry :
             std::filesystem::recursive_directory_iterator(replaysDir(), directory_options::skip_permission_denied)) {
            if (access(entry.path().c_str(), R_OK) != 0) {
                logText(fmt::format("{} cannot be read and is passed over: {}\n", entry.path().string(),
                                    std::generic_category().message(errno)));
            }
            addReplay(replays, entry, readHeaders);
        }
    } catch (const std::filesystem::filesystem_error& failure) {
        // The list of what could be walked is what there is.
        logText(fmt::format("The list of replays ends early: {}\n", failure.what()));
    }
    // Times are asked for once: a file that is written meanwhile must not upset the order.
    std::vector<std::tuple<std::filesystem::file_time_type, int, std::size_t>> order;
    order.reserve(replays.size());
    for (std::size_t i = 0; i < replays.size(); ++i) {
        std::error_code error;
        order.emplace_back(replays[i].entry->last_write_time(error), replays[i].number, i);
    }
    std::sort(order.begin(), order.end(), std::greater<>());
    std::vector<ReplayInfo> sorted;
    sorted.reserve(replays.size());
    for (const auto& [time, number, index] : order) {
        sorted.push_back(std::move(replays[index]));
    }
    return sorted;
}

namespace {

int nextReplayNumber() {
    int highest = -1;
    bool lastTaken = false;
    for (const ReplayInfo& info : getAllReplays(false)) {
        if (info.number == lastReplayNumber) {
            lastTaken = true;
        } else {
            highest = std::max(highest, info.number);
        }
    }
    if (lastTaken && highest + 1 == lastReplayNumber) {
        throw std::out_of_range(noNumberLeft);
    }
    return highest + 1;
}

std::string replayPath(int number) {
    return fmt::format("{}/{}.{}.replay", replaysDir(), number, versionText(replayOutputVersion));
}

// Makes an empty file, unless there is one. False only where there is.
bool isOursToWrite(const std::string& path) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file >= 0) {
        close(file);
    }
    return file >= 0 || errno != EEXIST;
}

}  // namespace

std::string newReplayName() {
    return replayPath(nextReplayNumber());
}

std::string claimReplayName() {
    for (int number = nextReplayNumber();; ++number) {
        std::string path = replayPath(number);
        if (isOursToWrite(path)) {
            return path;
        }
        if (number == lastReplayNumber) {
            throw std::out_of_range(noNumberLeft);
        }
    }
}

}  // namespace vandrel
