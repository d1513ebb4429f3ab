#include "match/round_files.h"

#include "arena/arena.h"
#include "base/checked.h"
#include "match/options/game_options.h"
#include "match/options/name_tables.h"
#include "replay/unit/replay_names.h"
#include "replay/unit/streams.h"
#include "replay/unit/verification.h"
#include "replay/unit/verify_files.h"
#include "shell/log.h"
#include "shell/switches.h"

namespace vandrel {

ReplayBeingPlayed::ReplayBeingPlayed(const std::string& name) : name_(name) {
    logText("Loading replay: " + name_ + "\n");
    file_.open(name_, std::ios::binary);
    file_.exceptions(std::ios::eofbit | std::ios::failbit | std::ios::badbit);
    playerSetups_ = loadReplayHeader(file_, version_);
    logPrintf("Replay version: %d\n", version_);
    if (verifyEnabled) {
        verify_ = openVerifyInput(name_);
    }
}

PackagedReplayData ReplayBeingPlayed::data(bool record) {
    PackagedReplayData data;
    data.input = &file_;
    data.playback = true;
    data.version = version_;
    data.recording = record;
    data.inputVerify = verify_;
    data.filename = name_;
    return data;
}

void ReplayBeingPlayed::finish(bool cameToItsEnd) {
    file_.close();
    if (cameToItsEnd) {
        PackagedReplayData data;
        data.playback = true;
        data.version = version_;
        data.inputVerify = verify_;
        verifyEnd(data);
    }
}

RoundBeingRecorded::RoundBeingRecorded(bool record) : record_(record) {
    if (!record_) {
        return;
    }
    name_ = newReplayName();
    logText("Creating replay: " + name_ + "\n");
    file_.open(name_, std::ios::binary | std::ios::out);
    file_.exceptions(std::ios::eofbit | std::ios::failbit | std::ios::badbit);
    if (verifyEnabled) {
        verify_.open(name_ + ".verify");
    }
    const ArenaSize& size = checkedAt(arenaSizes, gameOptions.arenaSizeResolved.value());
    grid_squares_x = size.width;
    grid_squares_y = size.height;
    writeReplayHeader(file_);
}

PackagedReplayData RoundBeingRecorded::data() {
    PackagedReplayData data;
    data.recording = record_;
    data.filename = name_;
    if (record_) {
        data.output = &file_;
        data.outputVerify = verifyEnabled ? &verify_ : nullptr;
    }
    return data;
}

void RoundBeingRecorded::finish() {
    if (!record_) {
        return;
    }
    writeByte(&file_, replayEndMark);
    file_.close();
    if (verifyEnabled) {
        finishVerifyFile(name_, verify_);
    }
}

}  // namespace vandrel
