// A player's life: its making, the start of a life and of a round, and what it may do in which form.
#include "players/player.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "arena/game.h"
#include "base/version.h"
#include "match/options/game_options.h"
#include "match/options/name_tables.h"
#include "players/bomb_timing.h"
#include "players/version_gates.h"
#include "presentation/play_sample.h"
#include "shell/log.h"

namespace vandrel {

// The tables of names know nothing of the rooms in which these enumerations stand.
static_assert(ControlInputNames.size() == controlInputCount);
static_assert(DeathReasonNames.size() == static_cast<std::size_t>(DeathReason::SnakeBodyPushedWall) + 1);

Reaches reaches;

namespace {

int snakeCount = 0;  // players now in snake form

constexpr int humanSnakeLength = 4;
constexpr int shieldFrames = 120;
constexpr int firstRange = 2;
constexpr int humanSnakeSpeed = 3;
constexpr int stunnedSnakeSpeed = 2;
constexpr int crawlingSpeed = 1;  // pixels a frame at every rate
constexpr int crawlersMayNotBidFrom = replayVersion(1, 0, 11);

}  // namespace

Player::Player(int playerNum, int startCash, int teamIndex, const PlayerLook& playerLook,
               std::shared_ptr<Controls> device)
    : num(playerNum), look(playerLook), team(teamIndex), cash(startCash), controls(std::move(device)) {
    logText(fmt::format("New player: {}, controls: {}\n", num, controls->description()));
}

Player::~Player() {
    logPrintf("Destruct player %d\n", num);
    setSnakeLength(0);
    if (team >= 0 && static_cast<std::size_t>(team) < teams.size()) {
        teams[static_cast<std::size_t>(team)].dropExpiredMembers();
    }
}

void Player::setSnakeLength(int length) {
    snakeCount += (length > 0 ? 1 : 0) - (snakeLength > 0 ? 1 : 0);
    snakeLength = length;
}

int Player::snakesInPlay() {
    return snakeCount;
}

int Player::runningShield() {
    return scaledFrames(shieldFrames);
}

int Player::lastingShield() {
    return runningShield() + 1;
}

void Player::takeLastingShield() {
    shield = true;
    ghost = false;
    shieldTimer = lastingShield();
}

void Player::takeRunningShield() {
    shield = true;
    shieldTimer = runningShield();
}

void Player::useShield() {
    if (shieldTimer == lastingShield()) {
        --shieldTimer;
    }
}

void Player::becomeSnake() {
    playSample(SampleIds::Snake, fullVolume);
    setSnakeLength(isAI ? gameOptions.snakeStartLength : humanSnakeLength);
    shield = false;
}

bool Player::hasBodyOn(Square square) const {
    return isSnake() && std::any_of(snakeParts.begin(), snakeParts.end(),
                                    [&](const SnakePart& part) { return squareOf(part) == square; });
}

void Player::reset() {
    dead = false;
    bombsPlaced = 0;
    maxBombs = 1;
    range = firstRange;
    speed = gameOptions.initialSpeed;
    facing = Facing::Down;
    animFrame = 1;
    animCounter = scaledFrames(walkFramePixels);
    animStep = 1;
    framesSinceRocket = 0;
    flameCounter = flameSoundPeriod;
    bombType = BombType::Normal;
    ultraBomb = false;
    remoteActive = false;
    fireHandled = false;
    fireBlockedByGhost = false;
    remoteBombX = 0;
    remoteBombY = 0;
    shield = false;
    ghost = false;
    slowTimer = 0;
    strength = false;
    fastIgnition = false;
    annihilator = false;
    stopTimer = 0;
    crawling = false;
    reviveProgress = 0;
    setSnakeLength(0);
    snakeHistory.clear();
    snakeParts.clear();
    crawlTimer = 0;
}

void Player::startRound() {
    kills = 0;
    particles.clear();
    reset();
    if (gameOptions.startAsSnake) {
        becomeSnake();
        if (y > arenaHeightPixels() / 2) {
            facing = Facing::Up;
        }
    }
    if (gameOptions.startWithShield) {
        takeLastingShield();
    }
    fireLocked = true;
}

bool Player::canUsePowerups() const {
    const Game* round = Game::current();
    const bool crawlersMay = round != nullptr && round->replay.isOlderThan(crawlersMayNotBidFrom);
    return !dead && !ghost && snakeLength == 0 && (!crawling || crawlersMay);
}

int Player::getSpeed(const PackagedReplayData& replayData) const {
    const auto perFrame = [](int pixelsAt60) { return std::max(pixelsAt60 / gameOptions.frameMultiplier, 1); };
    if (snakeLength > 0) {
        if (slowTimer > 0 && !replayData.isOlderThan(majorStunFrom)) {
            return crawlingSpeed;
        }
        if (!isAI) {
            return perFrame(humanSnakeSpeed);
        }
        return perFrame(minorStunTimer > 0 && gameOptions.minorStunEnabled ? stunnedSnakeSpeed : speed);
    }
    if (crawling) {
        return crawlingSpeed;
    }
    return perFrame(slowTimer > 0 ? speed / 2 : speed);
}

void Player::releaseBombs(bool restartFuse) {
    const Player* self = this;
    activeSquares.forEach([&](int bombX, int bombY) {
        if (bombGrid.at(bombX, bombY).owner.lock().get() != self) {
            return;
        }
        Bomb& bomb = bombGrid.edit(bombX, bombY);
        bomb.kind = BombKind::Ticking;
        if (restartFuse) {
            bomb.fuse = scaledFrames(fullFuse);
        }
    });
}

bool isRespawningAllowed() {
    return gameOptions.gameMode == GameMode::Everything || isModeActive(GameMode::CaptureTheFlag) ||
           isModeActive(GameMode::KingOfTheHill) || isModeActive(GameMode::Deathmatch) ||
           (isModeActive(GameMode::SnakeHunter) && gameOptions.snakeHunterRespawn);
}

}  // namespace vandrel
