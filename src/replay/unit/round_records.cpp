#include "replay/unit/round_records.h"

#include "arena/arena.h"
#include "arena/game.h"
#include "base/version.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "replay/unit/field_check.h"
#include "replay/unit/streams.h"

namespace vandrel {

namespace {

constexpr int roundSectionFrom = replayVersion(0, 0, 5);
constexpr int hillFrom = replayVersion(0, 95, 8);
constexpr int positionsFrom = replayVersion(0, 0, 5);
constexpr std::string_view gridMarker = "ENDGRID";
constexpr std::string_view positionsMarker = "ENDPP";

bool isStoredKind(int kind) {
    return (kind >= SquareKind::Empty && kind <= SquareKind::HardWallHitTwice) ||
           (isCrumbling(kind) && (kind < SquareKind::WallCrumbled ||
                                  (kind >= SquareKind::HardWallCrumbling && kind < SquareKind::HardWallCrumbled)));
}

void readSquare(std::istream* input, int x, int y) {
    const int kind = readSignedByte(input);
    const int bonus = readSignedByte(input);
    if (!isStoredKind(kind)) {
        refuseField("square kind", kind);
    }
    squareGrid.set(x, y, kind);
    bonusGrid.at(x, y) = checkedField("square bonus", bonus, 0, bonusCount - 1);
}

}  // namespace

void writeRoundRecords(const PackagedReplayData& replayData, const Game& game) {
    std::ostream* output = replayData.output;
    writeInt(output, gameOptions.timeBeforeShrinkingFrames.value());
    writeBool(output, game.shrinkAllowed);
    writeInt(output, game.hillLeft);
    writeInt(output, game.hillTop);
    writeInt(output, game.hillRight);
    writeInt(output, game.hillBottom);
}

void readRoundRecords(const PackagedReplayData& replayData, Game& game) {
    std::istream* input = replayData.input;
    if (!replayData.isOlderThan(roundSectionFrom)) {
        gameOptions.timeBeforeShrinkingFrames = checkedFrames("timeBeforeShrinkingFrames", readInt(input));
    }
    game.shrinkAllowed = true;
    if (replayData.isOlderThan(hillFrom)) {
        return;
    }
    game.shrinkAllowed = readBool(input);
    game.hillLeft = checkedField("hillLeft", readInt(input), 0, grid_squares_x - 1);
    game.hillTop = checkedField("hillTop", readInt(input), 0, grid_squares_y - 1);
    game.hillRight = checkedField("hillRight", readInt(input), 0, grid_squares_x - 1);
    game.hillBottom = checkedField("hillBottom", readInt(input), 0, grid_squares_y - 1);
}

void writeGrid(const PackagedReplayData& replayData) {
    std::ostream* output = replayData.output;
    for (int x = 0; x < grid_squares_x; ++x) {
        for (int y = 0; y < grid_squares_y; ++y) {
            writeByte(output, squareGrid.at(x, y));
            writeByte(output, bonusGrid.at(x, y));
        }
    }
    writeMarker(output, gridMarker);
    for (const auto& player : players) {
        writeInt(output, player->x);
        writeInt(output, player->y);
    }
    writeMarker(output, positionsMarker);
}

void readGrid(const PackagedReplayData& replayData) {
    std::istream* input = replayData.input;
    for (int x = 0; x < grid_squares_x; ++x) {
        for (int y = 0; y < grid_squares_y; ++y) {
            readSquare(input, x, y);
        }
    }
    readMarker(input, gridMarker);
    if (replayData.isOlderThan(positionsFrom)) {
        return;
    }
    for (const auto& player : players) {
        player->x = checkedField("player x", readInt(input), 0, arenaWidthPixels() - squareSize);
        player->y = checkedField("player y", readInt(input), 0, arenaHeightPixels() - squareSize);
    }
    readMarker(input, positionsMarker);
}

}  // namespace vandrel
