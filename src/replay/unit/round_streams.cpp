#include "replay/unit/round_streams.h"

#include "replay/unit/streams.h"
#include "replay/unit/verification.h"
#include "replay/unit/verify_files.h"
#include "shell/log.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

constexpr std::ios::iostate everyFailure = std::ios::badbit | std::ios::failbit | std::ios::eofbit;

// Exceptions would be raised at once on a file that could not be opened; that is for the first write to tell.
void createFile(std::ofstream& file, const std::string& path, std::ios::openmode mode) {
    file.open(path, mode);
    if (file.is_open()) {
        file.exceptions(everyFailure);
    }
}

}  // namespace

std::vector<PlayerSetup> RoundStreams::startPlayback(const std::string& path) {
    logText("Loading replay: " + path + "\n");
    data_.playback = true;
    data_.filename = path;
    data_.input = &input_;
    input_.open(path, std::ios::in | std::ios::binary);
    input_.exceptions(everyFailure);
    int version = 0;
    std::vector<PlayerSetup> setups = loadReplayHeader(input_, version);
    data_.version = version;
    logPrintf("Replay version: %d\n", version);
    data_.inputVerify = openVerifyInput(path);
    return setups;
}

void RoundStreams::startRecording(const std::string& path) {
    logText("Creating replay: " + path + "\n");
    data_.recording = true;
    data_.filename = path;
    data_.output = &output_;
    createFile(output_, path, std::ios::out | std::ios::binary);
    if (verifyEnabled) {
        data_.outputVerify = &outputVerify_;
        createFile(outputVerify_, plainVerifyPath(path), std::ios::out);
    }
}

void RoundStreams::finishPlayback(bool ranToItsEnd) {
    input_.close();
    if (ranToItsEnd) {
        verifyEnd(data_);
    }
}

void RoundStreams::finishRecording() {
    writeByte(&output_, replayEndMark);
    flushWritten(&output_);
    output_.close();
    if (data_.outputVerify != nullptr) {
        finishVerifyFile(data_.filename, outputVerify_);
    }
}

}  // namespace vandrel
