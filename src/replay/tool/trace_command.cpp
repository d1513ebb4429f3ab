// vandrel-replay trace: what happens in a replay, frame by frame, for finding the first difference between two builds.
#include <fmt/format.h>

#include <array>
#include <fstream>
#include <iterator>
#include <limits>

#include "arena/arena.h"
#include "players/player.h"
#include "replay/tool/commands.h"
#include "replay/tool/headless_playback.h"
#include "shell/frame_counter.h"

namespace vandrel {

namespace {

constexpr std::array<const char*, 4> facingNames{"right", "up", "left", "down"};
constexpr std::array<const char*, 4> bombKindNames{"ticking", "steered", "armed", "rocket"};

struct Request {
    std::string path;
    int from = 0;
    int to = std::numeric_limits<int>::max();
};

int ownerNumber(const std::weak_ptr<Player>& owner) {
    const auto player = owner.lock();
    return player == nullptr ? -1 : player->num;
}

void printRecords(const std::string& bytes, long long begin, long long end) {
    if (begin < 0 || end < begin || end > static_cast<long long>(bytes.size())) {
        return;
    }
    fmt::print("  records {:#x}:", begin);
    for (long long i = begin; i < end; ++i) {
        fmt::print(" {:02x}", static_cast<unsigned char>(bytes[static_cast<std::size_t>(i)]));
    }
    fmt::print("\n");
}

void printPlayer(const Player& player) {
    fmt::print("  player {} x {} y {} {} speed {} range {} bombs {}/{}{}{}{}", player.num, player.x, player.y,
               facingNames[static_cast<std::size_t>(player.facing)], player.speed, player.range, player.bombsPlaced,
               player.maxBombs, player.dead ? " dead" : "", player.ghost ? " ghost" : "",
               player.crawling ? " crawling" : "");
    if (player.shield) {
        fmt::print(" shield {}", player.shieldTimer);
    }
    if (player.isSnake()) {
        fmt::print(" snake {}:", player.snakeLengthNow());
        for (const auto& [x, y, facing] : player.snakeParts) {
            fmt::print(" {} {}", x, y);
        }
    }
    fmt::print("\n");
}

void printBombs() {
    for (int x = 0; x < grid_squares_x; ++x) {
        for (int y = 0; y < grid_squares_y; ++y) {
            const Bomb& bomb = bombGrid.at(x, y);
            if (bomb.isLive()) {
                fmt::print("  bomb {} {} owner {} fuse {} {} {}\n", x, y, ownerNumber(bomb.owner), bomb.fuse,
                           bombKindNames[static_cast<std::size_t>(bomb.kind)],
                           facingNames[static_cast<std::size_t>(bomb.direction)]);
            }
        }
    }
}

void printFlames(const Game& game) {
    for (const Explosion& flame : game.explosions) {
        fmt::print("  flame {} {} direction {} {} layer {} timer {} steps {} wave {} owner {}\n", flame.x, flame.y,
                   flame.dx, flame.dy, flame.layer, flame.timer, flame.steps, flame.waveId, ownerNumber(flame.owner));
    }
}

Request readRequest(const Words& words) {
    Request request;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "--from") {
            request.from = optionNumber(words, i);
        } else if (words[i] == "--to") {
            request.to = optionNumber(words, i);
        } else if (request.path.empty()) {
            request.path = words[i];
        } else {
            throw UsageError(fmt::format("unknown word '{}'; see vandrel-replay trace --help", words[i]));
        }
    }
    if (request.path.empty()) {
        throw UsageError("trace needs a replay");
    }
    return request;
}

void traceRound(const Request& request) {
    std::ifstream file(requireRegularFile(request.path), std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    HeadlessPlayback playback(request.path);
    bool runs = true;
    while (runs && frameCounter <= request.to) {
        const int frame = frameCounter;
        const long long begin = playback.position();
        runs = playback.step();
        if (frame < request.from) {
            continue;
        }
        fmt::print("frame {}\n", frame);
        if (playback.end() != PlaybackEnd::CutShort) {
            printRecords(bytes, begin, playback.position());
        }
        for (const auto& player : players) {
            printPlayer(*player);
        }
        printBombs();
        printFlames(playback.game());
    }
}

int runTrace(const Words& words) {
    const Request request = readRequest(words);
    namingFile(request.path, [&] { traceRound(request); });
    return 0;
}

}  // namespace

const Command traceCommand{
    "trace", runTrace,
    "trace [--from A] [--to B] FILE    show positions, bombs, flames and records of each frame\n\n"
    "Frames count from 0. The state shown is the one after the update. Stops at the first difference\n"
    "from the verification file, with exit status 1.\n"};

}  // namespace vandrel
