// Where a frame's input comes from: the replay, a device, or chance; and how it is recorded.
#include <map>

#include "base/random.h"
#include "players/player.h"
#include "players/version_gates.h"
#include "replay/unit/input_record.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

// A walk by chance: one direction for some frames.
struct RandomWalk {
    int xDir = 0;
    int yDir = 0;
    int frames = 0;
};

// By player number; it goes on over rounds.
std::map<int, RandomWalk> randomWalks;

FrameInput walkAtRandom(int num) {
    constexpr int longestLeg = 80;
    RandomWalk& walk = randomWalks[num];
    --walk.frames;
    if (walk.frames < 1) {
        walk.xDir = gameRand() % 3 - 1;
        walk.yDir = 0;
        if (walk.xDir == 0) {
            walk.yDir = gameRand() % 2 != 0 ? -1 : 1;
        }
        walk.frames = gameRand() % longestLeg + 1;
    }
    FrameInput input;
    input.xDir = walk.xDir;
    input.yDir = walk.yDir;
    return input;
}

}  // namespace

// Fills `input`; the result says whether this frame's record is still to be written. A snake of the computer decides
// later.
bool Player::readInput(const PackagedReplayData& replayData, FrameInput& input) {
    if (replayData.playback) {
        if (!dead || replayData.isOlderThan(livingOnlyFrom)) {
            playInput(replayData, input);
        }
        return false;
    }
    if (dead) {
        return false;
    }
    if (isAI) {
        return true;
    }
    if (autoRandomControls) {
        input = walkAtRandom(num);
    } else if (controls->isConnected()) {
        pollDevice(input);
    }
    recordInput(replayData, input);
    return false;
}

void Player::playInput(const PackagedReplayData& replayData, FrameInput& input) const {
    const InputRecord record = decodeInputRecord(replayData, num);
    input.xDir = record.xDir;
    input.yDir = record.yDir;
    input.fire = record.fire;
    input.button2 = record.button2;
}

// Left wins over right and up over down; the loser is not asked.
void Player::pollDevice(FrameInput& input) const {
    input.xDir = controls->leftPressed() ? -1 : (controls->rightPressed() ? 1 : 0);
    input.yDir = controls->upPressed() ? -1 : (controls->downPressed() ? 1 : 0);
    input.fire = controls->bombPressed();
    input.button2 = controls->button2Pressed();
    input.skinPressed = controls->skinPressed();
    input.colourPressed = controls->colourPressed();
}

void Player::recordInput(const PackagedReplayData& replayData, const FrameInput& input) const {
    if (replayData.writes()) {
        writeInputRecord(replayData, num, input.xDir, input.yDir, input.fire, input.button2);
    }
}

}  // namespace vandrel
