#include "match/round_files.h"

#include "arena/arena.h"
#include "base/checked.h"
#include "match/options/game_options.h"
#include "match/options/name_tables.h"
#include "replay/unit/streams.h"
#include "replay/unit/verification.h"
#include "replay/unit/verify_files.h"
#include "shell/log.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

// Exceptions would be raised at once on a file that could not be opened; that is for the first read or write to tell.
template <class File>
void openFile(File& file, const std::string& path, std::ios::openmode mode) {
    file.open(path, mode);
    if (file.is_open()) {
        file.exceptions(std::ios::eofbit | std::ios::failbit | std::ios::badbit);
    }
}

}  // namespace

ReplayBeingPlayed::ReplayBeingPlayed(const std::string& name, std::size_t mostVerifyText) : name_(name) {
    logText("Loading replay: " + name_ + "\n");
    openFile(file_, name_, std::ios::in | std::ios::binary);
    playerSetups_ = loadReplayHeader(file_, version_);
    logPrintf("Replay version: %d\n", version_);
    if (verifyEnabled) {
        verify_ = readVerifyInput(name_, mostVerifyText);
    }
}

PackagedReplayData ReplayBeingPlayed::data(bool record) {
    PackagedReplayData data;
    data.input = &file_;
    data.playback = true;
    data.version = version_;
    data.recording = record;
    data.inputVerify = verify_.text;
    data.filename = name_;
    return data;
}

void ReplayBeingPlayed::finish(bool cameToItsEnd) {
    file_.close();
    if (cameToItsEnd) {
        verifyEnd(data(false));
    }
}

RoundBeingRecorded::RoundBeingRecorded(const std::string& name) : record_(!name.empty()), name_(name) {
    if (!record_) {
        return;
    }
    logText("Creating replay: " + name_ + "\n");
    openFile(file_, name_, std::ios::binary | std::ios::out);
    if (verifyEnabled) {
        openFile(verify_, plainVerifyPath(name_), std::ios::out);
    }
    const ArenaSize& size = checkedAt(arenaSizes, gameOptions.arenaSizeResolved.value());
    grid_squares_x = size.width;
    grid_squares_y = size.height;
    writeReplayHeader(file_);
    flushWritten(&file_);
    writer_.emplace(file_, verify_);
}

PackagedReplayData RoundBeingRecorded::data() {
    PackagedReplayData data;
    data.recording = record_;
    data.filename = name_;
    if (record_) {
        data.output = &writer_->replay();
        data.writer = &*writer_;
    }
    if (record_ && verifyEnabled) {
        // One that could not be opened says so itself.
        data.outputVerify = verify_.is_open() ? &writer_->verify() : &verify_;
    }
    return data;
}

void RoundBeingRecorded::finish() {
    if (!record_) {
        return;
    }
    writeByte(&writer_->replay(), replayEndMark);
    writer_->finish();
    file_.close();
    if (verifyEnabled) {
        finishVerifyFile(name_, verify_);
    }
}

}  // namespace vandrel
