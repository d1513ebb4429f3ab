// Flags and the players who touch them: recovery, taking, carrying, capture.
#include <algorithm>

#include "arena/game.h"
#include "arena/sparks.h"
#include "base/distance.h"
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
            continue;
        }
        flag.moveTo(position());
        if (ghost && shieldTimer > runningShield()) {
            shieldTimer = runningShield();
        }
    }
}

void Player::touchLooseFlag(Flag& flag, const PackagedReplayData& replayData) {
    const bool own = flag.team >= 0 && flag.team == team && !replayData.isOlderThan(ownFlagStaysFrom);
    if (!own) {
        flag.carrier = weak_from_this();
        flag.inBase = false;
        return;
    }
    if (flag.inBase) {
        return;
    }
    playSample(SampleIds::Gong2, normalVolume, centrePan, recoverySpeed);
    game->tell("Flag recovered", flag.position());
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
    addSparks(centreOf(own.base()));
    verifyCapture(replayData, team, own.getScore());
}

}  // namespace vandrel
