#include "players/sprite_key.h"

#include "match/options/game_options.h"
#include "players/player.h"
#include "shell/frame_counter.h"

namespace vandrel {

namespace {

constexpr int blinkFrames = 10;
constexpr int blinkOnFrames = 5;  // not scaled by the rate
constexpr float smallestScale = 0.01f;
constexpr float shrinkPerSecond = 0.5f;  // taken from the growth of a flying sprite

// A steady shield is a white outline, on a snake a white figure; while it runs out it blinks with the next stronger or
// weaker look.
int flashOf(const Player& player) {
    if (!player.shield || player.dead) {
        return Flash::None;
    }
    const bool blinks = blinksOut(player);
    if (player.isSnake()) {
        return blinks ? Flash::None : Flash::WhiteFigure;
    }
    return blinks ? Flash::WhiteFigure : Flash::WhiteOutline;
}

}  // namespace

bool operator==(const SpriteKey& a, const SpriteKey& b) {
    return a.look.skin == b.look.skin && sameColour(a.look.colour, b.look.colour) && a.facing == b.facing &&
           a.flash == b.flash && a.frame == b.frame && a.slowed == b.slowed && a.snake == b.snake && a.isAI == b.isAI &&
           a.crawling == b.crawling && a.dead == b.dead && a.steering == b.steering;
}

SpriteKey makeKey(const Player& player, std::optional<int> frame, std::optional<Facing> facing) {
    SpriteKey key;
    key.look = player.look;
    key.facing = facing.value_or(player.facing);
    key.flash = flashOf(player);
    key.frame = frame.value_or(player.animFrame);
    key.slowed = player.slowTimer > 0;
    key.snake = player.isSnake();
    key.isAI = player.isAI;
    key.crawling = player.crawling;
    key.dead = player.dead;
    key.steering = player.bombType == BombType::RemoteControl && player.remoteActive;
    return key;
}

bool blinksOut(const Player& player) {
    const bool runningOut = player.shieldTimer <= Player::runningShield();
    return runningOut && frameCounter % scaledFrames(blinkFrames) >= blinkOnFrames;
}

bool PlayerParticle::advance(int updaterate) {
    --delay;
    if (delay <= 0) {
        scaleVelocity -= shrinkPerSecond / static_cast<float>(updaterate);
        scale += scaleVelocity;
        angle += spinVelocity / static_cast<float>(updaterate);
    }
    return scale >= smallestScale;
}

}  // namespace vandrel
