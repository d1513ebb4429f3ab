// Flags and the players who touch them: recovery, taking, carrying, capture.
#include <algorithm>
#include <cmath>

#include "arena/game.h"
#include "arena/sparks.h"
#include "base/version.h"
#include "match/options/game_options.h"
#include "players/player.h"
#include "presentation/play_sample.h"
#include "replay/unit/verification.h"
#include "shell/assertion.h"

namespace vandrel {

namespace {

constexpr int recoverySpeed = 2000;  // of its gong
constexpr int ownFlagStaysFrom = replayVersion(0, 0, 7);
constexpr int sharedBasesRefuseFrom = replayVersion(0, 96, 6);

double distance(Pixel a, Pixel b) {
    const int dx = a.x - b.x;
    const int dy = a.y - b.y;
    return std::sqrt(static_cast<double>(dx * dx + dy * dy));
}

void sendHome(Flag& flag) {
    flag.moveTo(squareToPixel(flagHome(flag)));
    flag.inBase = true;
}

}  // namespace

void Player::updateFlagsTouched(const PackagedReplayData& replayData) {
    for (Flag& flag : game->flags) {
        VANDREL_CHECK(!(flag.inBase && !flag.carrier.expired()), "!(flag.inBase && !flag.carrier.expired())");
        if (flag.carrier.expired() && !ghost &&
            distance(position(), flag.position()) < static_cast<double>(reaches.flag)) {
            touchLooseFlag(flag, replayData);
        }
        if (flag.carrier.lock().get() != this) {
            continue;
        }
        if (canCapture(replayData)) {
            capture(flag, replayData);
        } else {
            flag.moveTo(position());
        }
        if (ghost && shieldTimer > runningShield()) {
            shieldTimer = runningShield();
        }
    }
}

void Player::touchLooseFlag(Flag& flag, const PackagedReplayData& replayData) {
    const bool own = flag.team == team && !replayData.isOlderThan(ownFlagStaysFrom);
    if (!own) {
        flag.carrier = weak_from_this();
        flag.inBase = false;
        return;
    }
    if (flag.inBase) {
        return;
    }
    playSample(SampleIds::Gong2, normalVolume, centrePan, recoverySpeed);
    game->addToast(std::make_unique<TimedToast>(
        "Flag recovered", Vector2Base<float>{static_cast<float>(flag.x), static_cast<float>(flag.y)},
        playerToastVelocity, playerToastFrames, FontId::Builtin));
    sendHome(flag);
}

bool Player::canCapture(const PackagedReplayData& replayData) const {
    if (team < 0) {
        return false;
    }
    const auto own = static_cast<std::size_t>(team);
    const Square base = teams.at(own).base();
    if (distance(position(), squareToPixel(base)) > static_cast<double>(reaches.flag)) {
        return false;
    }
    if (!gameOptions.singleFlag && !game->flags.at(own).inBase) {
        return false;
    }
    if (replayData.isOlderThan(sharedBasesRefuseFrom)) {
        return true;
    }
    return std::count_if(teams.begin(), teams.end(), [&](const Team& other) { return other.base() == base; }) == 1;
}

void Player::capture(Flag& flag, const PackagedReplayData& replayData) {
    Team& own = teams.at(static_cast<std::size_t>(team));
    own.addScoreAtOnce(gameOptions.gameMode == GameMode::Everything ? gameOptions.flagCapturePoints : 1);
    sendHome(flag);
    flag.carrier.reset();
    playSample(SampleIds::Gong2);
    const Pixel base = squareToPixel(own.base());
    addSparks({base.x + halfSquare, base.y + halfSquare});
    verifyCapture(replayData, team, own.getScore());
}

}  // namespace vandrel
