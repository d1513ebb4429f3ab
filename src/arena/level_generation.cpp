#include "arena/level_generation.h"

#include <algorithm>
#include <array>

#include "arena/bonus.h"
#include "arena/game.h"
#include "base/random.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "replay/unit/round_records.h"
#include "shell/log.h"

namespace vandrel {

namespace {

constexpr int hardWallOneIn = 12;
constexpr int startRoomRadius = 2;  // squares opened each way from a start
constexpr Square hillReach{3, 2};   // squares of the hill each way from the middle

void fillSquare(int x, int y) {
    const bool pillars = gameOptions.gridBlocksResolved.value();
    if (pillars && x % 2 == 0 && y % 2 == 0) {
        squareGrid.set(x, y, SquareKind::GridBlock);
        return;
    }
    if (gameRand() % 100 >= gameOptions.wallPercent.value()) {
        return;
    }
    squareGrid.set(x, y, gameRand() % hardWallOneIn == 0 ? SquareKind::HardWall : SquareKind::Wall);
    if (gameRand() % 100 < gameOptions.powerupPercent.value()) {
        bonusGrid.at(x, y) = chooseBonus(false);
    }
}

// x outer, y inner: the draws come in this order.
void fillArena(bool forJoinScreen) {
    for (int x = 0; x < grid_squares_x; ++x) {
        for (int y = 0; y < grid_squares_y; ++y) {
            if (!isInnerSquare({x, y})) {
                squareGrid.set(x, y, SquareKind::EdgeWall);
            } else if (!forJoinScreen) {
                fillSquare(x, y);
            }
        }
    }
}

struct BaseRecord {
    Square base;
    Square push;
};

void placeBases() {
    const Square middle = middleSquare();
    const std::array<BaseRecord, 4> records{{{{1, middle.y}, {1, 0}},
                                             {{grid_squares_x - 2, middle.y}, {-1, 0}},
                                             {{middle.x, 1}, {0, 1}},
                                             {{middle.x, grid_squares_y - 2}, {0, -1}}}};
    const std::size_t count = std::min(teams.size(), records.size());
    for (std::size_t i = 0; i < count; ++i) {
        Team& team = teams[i];
        team.score = 0;
        team.displayedScore = 0;
        team.baseX = records[i].base.x;
        team.baseY = records[i].base.y;
        team.pushX = records[i].push.x;
        team.pushY = records[i].push.y;
    }
}

Flag makeFlag(int team) {
    Flag flag;
    flag.team = team;
    flag.moveTo(squareToPixel(flagHome(flag)));
    return flag;
}

void placeFlags(Game& game) {
    game.flags.clear();
    if (gameOptions.singleFlag) {
        game.flags.push_back(makeFlag(-1));
        return;
    }
    for (std::size_t i = 0; i < teams.size(); ++i) {
        game.flags.push_back(makeFlag(static_cast<int>(i)));
    }
}

void placeHill(Game& game) {
    const Square middle = middleSquare();
    game.hillLeft = middle.x - hillReach.x;
    game.hillRight = middle.x + hillReach.x;
    game.hillTop = middle.y - hillReach.y;
    game.hillBottom = middle.y + hillReach.y;
}

void placePlayers() {
    const std::vector<Square> positions = Game::getInitialPlayerPositions();
    for (std::size_t i = 0; i < players.size(); ++i) {
        Player& player = *players[i];
        const Square start = positions.at(i);
        const Pixel corner = squareToPixel(start);
        player.startX = start.x;
        player.startY = start.y;
        player.x = corner.x;
        player.y = corner.y;
        clearAround(start, startRoomRadius, false);
    }
}

void takeStartsFromPositions() {
    for (const auto& player : players) {
        const Square start = squareAtPixel(player->position());
        player->startX = start.x;
        player->startY = start.y;
    }
}

}  // namespace

void setUpRound(Square gridSize, const PackagedReplayData& replayData, Game& game, bool forJoinScreen) {
    resizeArena(gridSize);
    if (onArenaResized != nullptr) {
        onArenaResized(arenaWidthPixels(), arenaHeightPixels());
    }
    logPrintf("%dx%d; %dx%d\n", grid_squares_x, grid_squares_y, arenaWidthPixels(), arenaHeightPixels());
    if (!replayData.playback) {
        fillArena(forJoinScreen);
    }
    if (forJoinScreen) {
        return;
    }
    for (const auto& player : players) {
        player->game = &game;
    }
    if (hasBases()) {
        placeBases();
    }
    if (isModeActive(GameMode::CaptureTheFlag)) {
        placeFlags(game);
    }
    if (isModeActive(GameMode::KingOfTheHill)) {
        placeHill(game);
    }
    if (replayData.playback) {
        readRoundRecords(replayData, game);
        readGrid(replayData);
        takeStartsFromPositions();
        return;
    }
    placePlayers();
    if (replayData.writes()) {
        writeRoundRecords(replayData, game);
        writeGrid(replayData);
    }
}

}  // namespace vandrel
