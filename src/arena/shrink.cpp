// The closing walls: a wait, a warning, and a spiral of walls from the corners inward that ends every round in time.
#include <array>
#include <vector>

#include "arena/game.h"
#include "base/numeric.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "presentation/play_sample.h"

namespace vandrel {

namespace {

constexpr int warningEnd = -500;  // of the countdown; not scaled by the rate
constexpr int layVolume = normalVolume / 3;
constexpr int laySpeed = 3000;

std::vector<ShrinkCursor> startingCursors(int style) {
    const int right = grid_squares_x - 2;
    const int bottom = grid_squares_y - 2;
    const ShrinkCursor topLeft{1, 1, 1, 0};
    const ShrinkCursor bottomRight{right, bottom, -1, 0};
    switch (style) {
        case 1:
            return {topLeft};
        case 2:
            return {bottomRight, topLeft};
        case 3:
            return {{1, bottom, 0, -1}, {right, 1, 0, 1}, bottomRight, topLeft};
        default:
            return {};
    }
}

int panOf(int squareX) {
    return static_cast<int>(
        mapRange(static_cast<float>(squareX), 0.0f, static_cast<float>(grid_squares_x), 0.0f, 255.0f));
}

}  // namespace

std::pair<ShrinkCursor, bool> nextShrinkStep(const ShrinkCursor& cursor) {
    ShrinkCursor next{cursor.x + cursor.dx, cursor.y + cursor.dy, cursor.dx, cursor.dy};
    if (squareGrid.at(next.square()) != SquareKind::EdgeWall) {
        return {next, false};
    }
    // A clockwise turn, y growing downward.
    next.dx = -cursor.dy;
    next.dy = cursor.dx;
    next.x = cursor.x + next.dx;
    next.y = cursor.y + next.dy;
    return {next, true};
}

void Game::updateShrink() {
    switch (shrinkState) {
        case ShrinkState::Waiting:
            --shrinkCountdown;
            if (shrinkCountdown <= 0) {
                shrinkState = ShrinkState::Warning;
            }
            break;
        case ShrinkState::Warning:
            if (!shrinkAllowed) {
                break;
            }
            --shrinkCountdown;
            if (shrinkCountdown <= warningEnd) {
                startShrinking();
            }
            break;
        case ShrinkState::Shrinking:
            if (!gameOptions.shrinkingOn) {
                break;
            }
            --shrinkStepCountdown;
            if (shrinkStepCountdown <= 0) {
                layShrinkWalls();
            }
            break;
        case ShrinkState::Finished:
            break;
    }
}

void Game::startShrinking() {
    if (gameOptions.shrinkingOn) {
        // A lasting ghost starts to run out here.
        for (const auto& player : players) {
            if (player->ghost) {
                --player->shieldTimer;
            }
        }
        shrinkStepCountdown = gameOptions.shrinkSpeedFrames.value();
        for (const ShrinkCursor& cursor : startingCursors(gameOptions.shrinkStyleResolved.value())) {
            shrinkCursors.push_back(cursor);
        }
    }
    shrinkState = ShrinkState::Shrinking;
}

void Game::layShrinkWalls() {
    if (shrinkCursors.empty()) {
        return;
    }
    playSample(SampleIds::Splurge, layVolume, panOf(shrinkCursors.front().x), laySpeed);
    for (ShrinkCursor& cursor : shrinkCursors) {
        layShrinkWall(cursor);
    }
}

void Game::layShrinkWall(ShrinkCursor& cursor) {
    squareGrid.set(cursor.square(), SquareKind::EdgeWall);
    for (Team& team : teams) {
        if (team.base() == cursor.square()) {
            team.baseX += team.pushX;
            team.baseY += team.pushY;
        }
    }
    shrinkStepCountdown = gameOptions.shrinkSpeedFrames.value();
    const auto [next, turned] = nextShrinkStep(cursor);
    cursor = next;
    if (turned && squareGrid.at(cursor.square()) == SquareKind::EdgeWall) {
        shrinkState = ShrinkState::Finished;
        cursor.y -= cursor.dy;
    }
}

}  // namespace vandrel
