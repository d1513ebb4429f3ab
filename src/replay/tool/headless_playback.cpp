#include "replay/tool/headless_playback.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "arena/arena.h"
#include "arena/level_generation.h"
#include "arena/sparks.h"
#include "input/controls.h"
#include "match/match_players.h"
#include "match/round_start.h"
#include "players/player.h"
#include "replay/unit/streams.h"
#include "replay/unit/verification.h"
#include "shell/frame_counter.h"

namespace vandrel {

namespace {

constexpr int mostUpdatesBehindRecords = 20'000;  // more than the longest wait for a return

// No more text than this belongs to a replay of that size: a record of two or three bytes makes one line of a player,
// with hundreds of parts for the longest snakes. It keeps a forged file from eating the memory.
std::size_t mostVerifyText(const std::string& path) {
    constexpr std::size_t spare = 1'000'000;
    constexpr std::size_t textPerByte = 2048;
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    return error ? 0 : std::min<std::uintmax_t>(largestDecompressed, spare + textPerByte * size);
}

}  // namespace

const std::string& requireRegularFile(const std::string& path) {
    std::error_code error;
    const auto type = std::filesystem::status(path, error).type();
    if (type == std::filesystem::file_type::directory) {
        throw std::runtime_error("is a folder");
    }
    // Opening a pipe would wait for a writer.
    if (!error && type != std::filesystem::file_type::regular) {
        throw std::runtime_error("is no regular file");
    }
    if (!std::ifstream(path).is_open()) {
        throw std::runtime_error("cannot be opened for reading");
    }
    return path;
}

HeadlessPlayback::HeadlessPlayback(const std::string& path)
    : replay_(requireRegularFile(path), mostVerifyText(path)), data_(replay_.data(false)) {
    const Square arenaSize{grid_squares_x, grid_squares_y};
    players.clear();
    makeReplayPlayers(replay_.playerSetups(), replay_.version(), {std::make_shared<NoControls>()});
    makeSnakeHunterTeams();
    game_ = std::make_unique<Game>(data_);
    setUpRound(arenaSize, data_, *game_, false);
    startRound(*game_);
}

HeadlessPlayback::~HeadlessPlayback() {
    game_.reset();
    clearMatch();
    sparks.clear();
}

bool HeadlessPlayback::step() {
    if (end_ != PlaybackEnd::Running) {
        return false;
    }
    bool roundOver = false;
    bool replayEnded = false;
    game_->update(roundOver, replayEnded, nullptr);
    ++frameCounter;
    if (replayEnded) {
        if (data_.input->eof()) {
            end_ = PlaybackEnd::CutShort;
        } else if (!mayGoOnBehindRecords()) {
            end_ = PlaybackEnd::EndMark;
        }
    } else if (roundOver) {
        end_ = PlaybackEnd::RoundOver;
    }
    return end_ == PlaybackEnd::Running;
}

// A round may be quit while everybody is dead. Its last updates left no records, and a playback that ended at the mark
// would leave a return of which the text tells unproved.
bool HeadlessPlayback::mayGoOnBehindRecords() {
    const bool markIsUnread = data_.input->rdbuf()->sgetc() == replayEndMark;
    return markIsUnread && ++updatesBehindRecords_ < mostUpdatesBehindRecords && !hasVerifyTextEnded(data_);
}

void HeadlessPlayback::requireAllPlayed() {
    std::istream& input = *data_.input;
    // A playback that met the end mark may have taken it or only seen it; no record ends with such a byte.
    input.seekg(-1, std::ios::cur);
    const int last = readByte(&input);
    if (last != replayEndMark && readByte(&input) != replayEndMark) {
        throw std::runtime_error("the round ended where the replay has no end mark");
    }
    const std::streamoff end = input.tellg();
    input.seekg(0, std::ios::end);
    const std::streamoff left = input.tellg() - end;
    if (left > 0) {
        throw std::runtime_error(fmt::format("{} bytes of the replay are left over", left));
    }
}

void HeadlessPlayback::finish() {
    const bool cameToItsEnd = end_ == PlaybackEnd::RoundOver || end_ == PlaybackEnd::EndMark;
    replay_.finish(cameToItsEnd);
    const VerifyInput& verify = replay_.verifyInput();
    if (!cameToItsEnd || verify.text == nullptr) {
        return;
    }
    if (!(*verify.text >> std::ws).eof()) {
        throw std::runtime_error("the verification file has text behind END");
    }
    if (!verify.flaw.empty()) {
        throw std::runtime_error(verify.flaw);
    }
}

long long HeadlessPlayback::position() const {
    return replayInputPos(data_);
}

}  // namespace vandrel
