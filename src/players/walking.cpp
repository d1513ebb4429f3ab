// The walking step: straight on, drawn to the middle of the lane, back to the line before what blocks, round corners.
#include "arena/game.h"
#include "base/numeric.h"
#include "match/options/game_options.h"
#include "players/player.h"

namespace vandrel {

namespace {

constexpr int lastWalkFrame = 6;
constexpr int crawlFrameEnd = 3;

}  // namespace

void Player::advanceWalk(int pixels) {
    animCounter -= pixels;
    if (animCounter >= 1) {
        return;
    }
    animCounter = walkFramePixels;
    animFrame += animStep;
    if (animFrame > lastWalkFrame || (crawling && animFrame >= crawlFrameEnd)) {
        animFrame = 1;
    }
}

// A ghost passes walls, blocks, bombs and bodies, but not the arena's frame nor what the closing walls laid.
bool Player::isFreeToWalk(Square ahead) const {
    if (squareGrid.at(ahead) == SquareKind::Empty && !hasBomb(ahead) &&
        !game->isSquareBlocked(ahead, Blocked::SnakeBody)) {
        return true;
    }
    return ghost && squareGrid.at(ahead) != SquareKind::EdgeWall;
}

void Player::move(int xDir, int yDir, bool& remoteSteered, const PackagedReplayData& replayData) {
    const int pixels = getSpeed(replayData);
    if (bombType == BombType::RemoteControl && remoteActive) {
        const Bomb& bomb = bombGrid.at(remoteBombX, remoteBombY);
        if (bomb.kind == BombKind::Steered && bomb.owner.lock().get() == this) {
            remoteSteered = true;
            steerBomb(xDir, yDir);
            return;
        }
    }
    if (!crawling || yDir == 0) {
        facing = facingOf({xDir, yDir});
    }
    advanceWalk(pixels);
    const Square here = square();
    const Square ahead = squareAtPixel(centre() + Pixel{squareSize * xDir, squareSize * yDir});
    const Pixel lane = squareToPixel(here);
    if (isFreeToWalk(ahead)) {
        x += pixels * xDir;
        y += pixels * yDir;
        if (xDir != 0) {
            y = approach(y, lane.y, pixels);
        } else {
            x = approach(x, lane.x, pixels);
        }
        return;
    }
    int& along = xDir != 0 ? x : y;
    if (along % squareSize != 0) {
        along = approach(along, xDir != 0 ? lane.x : lane.y, pixels);
        return;
    }
    if (strength && push(xDir, yDir, ahead, replayData)) {
        return;
    }
    assistCorner(xDir, pixels, ahead);
}

// Who presses against a block with part of the body past its corner slides round it.
void Player::assistCorner(int xDir, int pixels, Square ahead) {
    const int offset = (xDir != 0 ? centre().y : centre().x) % squareSize;  // halfway in the middle of the lane
    if (offset == halfSquare) {
        return;
    }
    const int side = offset < halfSquare ? -1 : 1;
    const Square step = xDir != 0 ? Square{0, side} : Square{side, 0};
    const Square around = ahead + step;
    if (squareGrid.at(around) != SquareKind::Empty || hasBomb(around)) {
        return;
    }
    const int cornerKind = squareGrid.at(squareAtPixel({x, y}));
    if (cornerKind == SquareKind::Empty || (ghost && cornerKind != SquareKind::EdgeWall)) {
        x += pixels * step.x;
        y += pixels * step.y;
    }
}

}  // namespace vandrel
