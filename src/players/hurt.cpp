// Hits and their consequences: shields, crawling, the halving and the end of a snake, death, and who is credited.
#include <fmt/format.h>

#include <algorithm>
#include <random>

#include "arena/game.h"
#include "base/random.h"
#include "base/version.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "players/version_gates.h"
#include "presentation/play_sample.h"
#include "shell/log.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

constexpr int shortestSnake = 4;  // a halving below this ends the snake
constexpr int crawlFrames = 240;
constexpr int endOfSnakeSpeed = 2000;  // of its sound

constexpr int releasedWhenCrawlingFrom = replayVersion(0, 95, 9);
constexpr int stunHalvesFrom = replayVersion(0, 95, 17);

bool halvesThroughShield(DeathReason reason) {
    return reason == DeathReason::SnakeBodyHitByAppearingWall || reason == DeathReason::SnakeHeadPushedWall ||
           reason == DeathReason::SnakeBodyPushedWall;
}

bool hitsBody(DeathReason reason) {
    return reason == DeathReason::SnakeBodyHitByExplosion || reason == DeathReason::SnakeBodyHitByAppearingWall ||
           reason == DeathReason::SnakeBodyPushedWall;
}

// Sprites that fly off only look like something: their numbers come from sources that no rule draws from.
constexpr float flyingGrowth = 0.2f;    // the least there is
constexpr float spinFromPart = 8.0f;    // of each scattered part more than of the one before it
constexpr int delayFromPart = 2;        // frames, likewise
constexpr int strongestDeathSpin = 45;  // either way

float drawScaleVelocity() {
    std::normal_distribution<float> distribution(flyingGrowth, 0.1f);
    return std::max(distribution(particleGenerator), flyingGrowth);
}

}  // namespace

void Player::hurt(DeathReason reason, const PackagedReplayData& replayData, const std::shared_ptr<Player>& killer) {
    if (dead) {
        return;
    }
    if (shield) {
        if (halvesThroughShield(reason) && snakeLength > 0) {
            halveSnake(killer);
        }
        useShield();
        return;
    }
    if (snakeLength > 0) {
        hurtSnake(reason, replayData, killer);
        return;
    }
    if (isModeActive(GameMode::BattleRoyale) && !crawling) {
        startCrawling(replayData);
        return;
    }
    die();
    if (killer != nullptr) {
        killer->creditKill(shared_from_this(), false);
    }
}

void Player::startCrawling(const PackagedReplayData& replayData) {
    crawling = true;
    animFrame = 1;
    facing = Facing::Right;
    if (remoteActive && !replayData.isOlderThan(releasedWhenCrawlingFrom)) {
        remoteActive = false;
        releaseBombs(false);
    }
    takeRunningShield();
}

void Player::hurtSnake(DeathReason reason, const PackagedReplayData& replayData,
                       const std::shared_ptr<Player>& killer) {
    const bool pushedOrWalled = reason == DeathReason::PushedWall || reason == DeathReason::Wall;
    if (pushedOrWalled && replayData.isOlderThan(snakesCrushedFrom)) {
        return;
    }
    if (isAI && reason == DeathReason::Explosion && !replayData.isOlderThan(majorStunFrom)) {
        slowTimer = gameOptions.majorStunTime;
        if (!replayData.isOlderThan(stunHalvesFrom)) {
            halveSnake(killer);
        }
        return;
    }
    if (hitsBody(reason)) {
        halveSnake(killer);
        return;
    }
    becomeHuman();
    if (dead && killer != nullptr) {
        killer->creditKill(shared_from_this(), false);
    }
}

void Player::halveSnake(const std::shared_ptr<Player>& killer) {
    const int halved = snakeLength / 2;
    if (halved >= shortestSnake) {
        setSnakeLength(halved);
        scatterParts(static_cast<std::size_t>(halved));
        if (isAI && killer != nullptr) {
            killer->creditKill(shared_from_this(), true);
        }
    } else {
        becomeHuman();
        if (dead && killer != nullptr) {
            killer->creditKill(shared_from_this(), false);
        }
    }
    takeRunningShield();
    if (gameOptions.minorStunEnabled) {
        minorStunTimer = gameOptions.minorStunTime;
    }
}

void Player::scatterParts(std::size_t firstPart) {
    float spin = 1.0f;
    int delay = 0;
    for (std::size_t i = firstPart; i < snakeParts.size(); ++i) {
        const auto& [partX, partY, partFacing] = snakeParts[i];
        PlayerParticle particle;
        particle.sprite = makeKey(*this, std::nullopt, partFacing);
        particle.x = partX;
        particle.y = partY;
        particle.scaleVelocity = flyingGrowth;
        particle.spinVelocity = spin;
        particle.delay = delay;
        particles.push_back(particle);
        spin += spinFromPart;
        delay += delayFromPart;
    }
}

void Player::becomeHuman() {
    if (diagnostic) {
        logPrintf("%d: becomeHuman\n", num);
    }
    playSample(SampleIds::Wimbaah, normalVolume, centrePan, endOfSnakeSpeed);
    scatterParts(0);
    snakeParts.clear();
    snakeHistory.clear();
    setSnakeLength(0);
    if (isAI) {
        die();
        return;
    }
    crawling = true;
    animFrame = 1;
    facing = Facing::Right;
    crawlTimer = scaledFrames(crawlFrames);
    takeRunningShield();
}

void Player::die() {
    dead = true;
    releaseBombs(false);
    if (isRespawningAllowed()) {
        respawnTimer = gameOptions.frameMultiplier * gameOptions.respawnTime * 60;
    }
    playSample(SampleIds::Wimbaah);
    if (snakeLength > 0) {
        snakeParts.clear();
    }
    PlayerParticle particle;
    particle.sprite = makeKey(*this, 1);
    particle.x = x;
    particle.y = y;
    particle.scaleVelocity = drawScaleVelocity();
    particle.spinVelocity = static_cast<float>(gameRand() % (2 * strongestDeathSpin + 1) - strongestDeathSpin);
    particles.push_back(particle);
}

void Player::creditKill(const std::shared_ptr<Player>& victim, bool survived) {
    if (gameOptions.gameMode != GameMode::Everything || !gameOptions.everythingDeathmatch) {
        kills += victim.get() == this ? -1 : 1;
        return;
    }
    if (team == -1) {
        return;
    }
    int points = gameOptions.playerKillPoints;
    if (victim->isAI) {
        points = survived ? gameOptions.snakeHurtPoints : gameOptions.snakeKillPoints;
    } else if (victim->team == team) {
        points = -points;
    }
    teams.at(static_cast<std::size_t>(team)).addScore(points, *game, *this);
}

}  // namespace vandrel
