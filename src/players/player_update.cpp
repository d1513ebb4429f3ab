// One frame of one player. The order of the steps, and of what they write to the replay, is what replays rest on.
#include <fmt/format.h>

#include <algorithm>

#include "arena/game.h"
#include "base/distance.h"
#include "match/options/game_options.h"
#include "players/bomb_timing.h"
#include "players/player.h"
#include "players/version_gates.h"
#include "presentation/play_sample.h"
#include "replay/unit/verification.h"
#include "shell/frame_counter.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

constexpr std::size_t longestTrail = 20;
constexpr int spinFrames = 5;
constexpr int pingFrames = 60;  // not scaled by the rate

Facing nextSpin(Facing facing) {
    switch (facing) {
        case Facing::Down:
            return Facing::Left;
        case Facing::Left:
            return Facing::Up;
        case Facing::Up:
            return Facing::Right;
        case Facing::Right:
            break;
    }
    return Facing::Down;
}

}  // namespace

void Player::update(const PackagedReplayData& replayData, Game* currentGame, bool inJoinScreen) {
    game = currentGame;
    updateTrail();
    FrameInput input;
    bool needRecord = readInput(replayData, input);
    if (inJoinScreen) {
        changeLook(input);
    }
    updateTimers();
    updateParticles();
    if (dead) {
        updateDead(replayData);
    } else if (stopTimer != 0) {
        spinWhileStopped();
    } else {
        actAlive(replayData, input, inJoinScreen, needRecord);
    }
    if (needRecord) {
        recordInput(replayData, {});
    }
    // Updates in which nobody lives leave no records, so only the text tells whether one that begins at the end mark
    // was recorded. In one that was not somebody may still come back, of which no line was written.
    const bool beyondRecords = game != nullptr && game->endMarkSeen && hasVerifyTextEnded(replayData);
    if (verifyEnabled && !beyondRecords && (!dead || replayData.isOlderThan(livingOnlyFrom))) {
        verifyPosition(replayData);
    }
}

void Player::updateTrail() {
    --trailTimer;
    if (trailTimer < 1) {
        trail.clear();
        return;
    }
    trail.push_back({x, y, facing});
    if (trail.size() > longestTrail) {
        trail.erase(trail.begin());
    }
}

void Player::changeLook(const FrameInput& input) {
    if (input.skinPressed && !skinPrev) {
        nextSkin(look);
    }
    if (input.colourPressed && !colourPrev) {
        randomColour(look);
    }
    skinPrev = input.skinPressed;
    colourPrev = input.colourPressed;
}

// The shield's timer runs for the stopped and the dead too, and on below zero.
void Player::updateTimers() {
    if (shieldTimer <= runningShield()) {
        const int before = shieldTimer--;
        if (before < 1) {
            shield = false;
            ghost = false;
        }
    }
    slowTimer -= slowTimer > 0 ? 1 : 0;
    minorStunTimer -= minorStunTimer > 0 ? 1 : 0;
}

void Player::updateParticles() {
    std::erase_if(particles, [](PlayerParticle& particle) { return !particle.advance(gameOptions.updaterate); });
}

void Player::spinWhileStopped() {
    --stopTimer;
    if (snakeLength == 0 && !crawling && frameCounter % scaledFrames(spinFrames) == 0) {
        animFrame = 1;
        facing = nextSpin(facing);
    }
}

void Player::actAlive(const PackagedReplayData& replayData, FrameInput& input, bool inJoinScreen, bool& needRecord) {
    const int yMove = input.xDir != 0 ? 0 : input.yDir;  // a diagonal press moves along x
    bool remoteSteered = false;
    if (snakeLength > 0) {
        moveSnake(input.xDir, yMove, replayData, [&](int xDir, int yDir, bool fire, bool button2) {
            recordInput(replayData, {xDir, yDir, fire, button2, false, false});
            needRecord = false;
        });
    } else if (input.xDir != 0 || yMove != 0) {
        move(input.xDir, yMove, remoteSteered, replayData);
    }
    if (!inJoinScreen && !isAI && isModeActive(GameMode::CaptureTheFlag)) {
        updateFlagsTouched(replayData);
    }
    ++framesSinceRocket;
    updateFire(input.fire);
    if (remoteSteered && remoteStepDelay == scaledFrames(remoteStepFrames)) {
        playSample(SampleIds::Slide);
    }
    if (!ghost && !crawling && !inJoinScreen) {
        pickUp();
    }
    if (crawling) {
        updateCrawling();
    }
    updateButton2(input);
}

void Player::updateCrawling() {
    if (crawlTimer > 0) {
        --crawlTimer;
        if (crawlTimer < 1) {
            crawling = false;
        }
        return;
    }
    if (!isModeActive(GameMode::BattleRoyale) || team < 0) {
        return;
    }
    const auto& members = teams.at(static_cast<std::size_t>(team)).members;
    const bool rescued = std::any_of(members.begin(), members.end(), [&](const auto& member) {
        const auto mate = member.lock();
        return mate != nullptr && mate.get() != this && !mate->dead && !mate->crawling &&
               distance(mate->position(), position()) <= static_cast<double>(reaches.rescue);
    });
    if (!rescued) {
        reviveProgress = 0;
        return;
    }
    ++reviveProgress;
    if (reviveProgress >= reaches.rescueFrames) {
        crawling = false;
        reviveProgress = 0;
    }
}

void Player::updateButton2(const FrameInput& input) {
    pingTimer -= pingTimer > 0 ? 1 : 0;
    const bool pressed = input.button2 && !button2Prev;
    button2Prev = input.button2;
    if (!pressed) {
        return;
    }
    pingTimer = pingFrames;
    Auction* auction = game->auction.get();
    if (auction == nullptr || !canUsePowerups() || cash < auction->price + 1) {
        return;
    }
    ++auction->price;
    auction->bidder = shared_from_this();
    playSample(SampleIds::Cash2);
    game->tell(fmt::format("Bid: {}", auction->price), centre());
}

void Player::verifyPosition(const PackagedReplayData& replayData) const {
    vandrel::verifyPosition(replayData, {num, x, y, snakeLength, snakeParts});
}

}  // namespace vandrel
