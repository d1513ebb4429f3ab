// What the fire control does: bombs, rockets, flames, and the bombs that are steered or wait for a second press.
#include "arena/game.h"
#include "match/options/game_options.h"
#include "players/bomb_timing.h"
#include "players/player.h"
#include "presentation/play_sample.h"

namespace vandrel {

namespace {

constexpr int flameSoundSpeed = 3000;
constexpr int rocketThrottle = 47;  // frames, less some for each bomb that may be out
constexpr int rocketThrottlePerBomb = 3;

}  // namespace

int normalFuse(const Player& player) {
    return scaledFrames(player.fastIgnition ? fastFuse : fullFuse);
}

int rocketFuse(const Player& player) {
    return gameOptions.rocketExplosionDelay ? scaledFrames(detonationFuse) : normalFuse(player);
}

int remoteFuse(const Player& player) {
    return gameOptions.remoteExplosionDelay ? scaledFrames(detonationFuse) : normalFuse(player);
}

int detonatorFuse() {
    return scaledFrames(detonationFuse);
}

void Player::updateFire(bool fire) {
    if (!fire) {
        releaseFire();
        return;
    }
    if (crawling || snakeLength > 0 || fireLocked) {
        return;
    }
    const Square here = square();
    if (ghost) {
        if (squareGrid.at(here) == SquareKind::Empty) {
            ghost = false;
            fireBlockedByGhost = true;
        }
    } else if (!fireBlockedByGhost) {
        switch (bombType) {
            case BombType::RemoteControl:
            case BombType::Detonator:
                if (!fireHandled) {
                    fireRemote(here);
                }
                break;
            case BombType::RocketLauncher:
                fireRocket(here);
                break;
            case BombType::Flamethrower:
                fireFlamethrower(here);
                break;
            case BombType::Normal:
                layBomb(here);
                break;
        }
    }
    fireHandled = true;
}

void Player::releaseFire() {
    fireHandled = false;
    fireBlockedByGhost = false;
    fireLocked = false;
    flameCounter = flameSoundPeriod;
    if (gameOptions.remoteHoldToArm && remoteActive) {
        remoteActive = false;
        releaseBombs(false);
    }
}

void Player::fireRemote(Square square) {
    if (remoteActive) {
        if (!gameOptions.remoteHoldToArm) {
            remoteActive = false;
            releaseBombs(false);
        }
        return;
    }
    // No test of the square nor of `maxBombs`. A bomb that is replaced counts as gone, and this one as laid, so that
    // its explosion brings the count back.
    Bomb& bomb = bombGrid.edit(square);
    if (const auto replaced = bomb.owner.lock()) {
        --replaced->bombsPlaced;
    }
    bomb.owner = weak_from_this();
    ++bombsPlaced;
    remoteActive = true;
    if (bombType == BombType::RemoteControl) {
        bomb.kind = BombKind::Steered;
        bomb.fuse = remoteFuse(*this);
        remoteBombX = square.x;
        remoteBombY = square.y;
        remoteStepDelay = scaledFrames(remoteStepFrames);
    } else {
        bomb.kind = BombKind::Armed;
        bomb.fuse = detonatorFuse();
    }
}

// `xDir`, `yDir`: the frame's input, one of them not 0. The player does not walk meanwhile.
void Player::steerBomb(int xDir, int yDir) {
    if (remoteStepDelay > 0) {
        --remoteStepDelay;
        if (remoteStepDelay != 0) {
            return;
        }
    }
    const Square from{remoteBombX, remoteBombY};
    const Square to = from + Square{xDir, yDir};
    if (squareGrid.at(to) != SquareKind::Empty || bonusGrid.at(to) != 0 || hasBomb(to)) {
        return;
    }
    bombGrid.edit(from).owner.reset();
    Bomb& bomb = bombGrid.edit(to);
    bomb.owner = weak_from_this();
    bomb.kind = BombKind::Steered;
    bomb.fuse = remoteFuse(*this);
    remoteStepDelay = scaledFrames(remoteStepFrames);
    remoteBombX = to.x;
    remoteBombY = to.y;
}

void Player::fireRocket(Square square) {
    if (hasBomb(square) || maxBombs <= bombsPlaced ||
        framesSinceRocket <= rocketThrottle - rocketThrottlePerBomb * maxBombs) {
        return;
    }
    framesSinceRocket = 0;
    Bomb& rocket = bombGrid.edit(square);
    rocket.owner = weak_from_this();
    rocket.kind = BombKind::Rocket;
    rocket.direction = facing;
    rocket.rocketStep = 0;
    rocket.fuse = rocketFuse(*this);
    ++bombsPlaced;
}

void Player::fireFlamethrower(Square square) {
    if (flameCounter == flameSoundPeriod) {
        playSample(SampleIds::Fire, normalVolume, centrePan, flameSoundSpeed);
    }
    --flameCounter;
    if (flameCounter < 1) {
        flameCounter = flameSoundPeriod;
    }
    game->fireFlame(square, directionOf(facing), shared_from_this());
}

void Player::layBomb(Square square) {
    if (hasBomb(square) || bonusGrid.at(square) != 0 || bombsPlaced >= maxBombs || remoteActive) {
        return;
    }
    Bomb& bomb = bombGrid.edit(square);
    bomb.owner = weak_from_this();
    bomb.kind = BombKind::Ticking;
    bomb.fuse = normalFuse(*this);
    ++bombsPlaced;
}

}  // namespace vandrel
