// vandrel-replay digest: writes the state digest of a round, or lists the state after one update.
#include <fmt/format.h>

#include <filesystem>
#include <optional>
#include <vector>

#include "replay/tool/commands.h"
#include "replay/tool/headless_playback.h"
#include "replay/tool/state_digest.h"
#include "shell/replace_file.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

struct Request {
    std::string path;
    bool fields = false;
    std::optional<int> at;
};

Request readRequest(const Words& words) {
    Request request;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "--fields") {
            request.fields = true;
        } else if (words[i] == "--at") {
            request.at = optionNumber(words, i);
        } else if (request.path.empty()) {
            request.path = words[i];
        } else {
            throw UsageError(fmt::format("unknown word '{}'; see vandrel-replay digest --help", words[i]));
        }
    }
    if (request.path.empty()) {
        throw UsageError("digest needs a replay");
    }
    if (request.fields != request.at.has_value() || request.at.value_or(0) < 0) {
        throw UsageError("--fields needs --at UPDATE, a number of at least 0, and the reverse");
    }
    return request;
}

void listFields(const std::string& path, int at) {
    HeadlessPlayback playback(path);
    for (int update = 0; update < at; ++update) {
        if (!playback.step()) {
            throw std::runtime_error(fmt::format("the round has only {} updates", update + 1));
        }
    }
    playback.step();
    visitState(playback.game(), [](const StateField& field) {
        fmt::print("{}: {} {} {} {} = {}\n", stateGroupNames[static_cast<std::size_t>(field.group)], field.object,
                   field.first, field.second, field.name, field.value);
    });
}

// A digest that is there already is the proof of an older build and stays.
void writeDigest(const std::string& path) {
    const std::string target = digestPath(path);
    if (std::filesystem::exists(target)) {
        throw std::runtime_error("its digest is there already");
    }
    RoundDigest digest;
    digest.replayChecksum = checksumOf(requireRegularFile(path));
    HeadlessPlayback playback(path);
    bool runs = true;
    while (runs) {
        runs = playback.step();
        digest.updates.push_back(digestOf(playback.game()));
    }
    if (playback.end() == PlaybackEnd::CutShort) {
        throw std::runtime_error("the replay breaks off without its end mark");
    }
    playback.requireAllPlayed();
    playback.finish();
    replaceFile(target, packDigest(digest));
    fmt::print("{}: {} updates\n", printable(target), digest.updates.size());
}

int runDigest(const Words& words) {
    const Request request = readRequest(words);
    verifyEnabled = true;  // a round that plays differently has no digest
    namingFile(request.path, [&] {
        if (request.at.has_value()) {
            listFields(request.path, *request.at);
        } else {
            writeDigest(request.path);
        }
    });
    return 0;
}

}  // namespace

const Command digestCommand{
    "digest", runDigest,
    "digest FILE                       write the digest of the whole state beside the replay\n"
    "       vandrel-replay digest --fields --at UPDATE FILE\n\n"
    "FILE.digest holds two bytes for each update and each group of the state: players, snakes, squares, powerups,\n"
    "bombs, flames, flags and teams, walls, auction, counters, random sources. 'verify' compares with it and names "
    "the\n"
    "first update and the groups that differ. A digest that is there is never replaced.\n\n"
    "  --fields --at UPDATE    list every field of the state after that update, counted from 0, one a line, to be\n"
    "                          compared with the list of another build\n"};

}  // namespace vandrel
