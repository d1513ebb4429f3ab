// vandrel-replay verify: plays replays and proves that they still come out as they were recorded.
#include <fmt/format.h>

#include <chrono>

#include "replay/tool/commands.h"
#include "replay/tool/headless_playback.h"
#include "replay/tool/process_pool.h"
#include "replay/tool/state_digest.h"
#include "replay/unit/proof.h"
#include "shell/frame_counter.h"
#include "shell/switches.h"

namespace vandrel {

namespace {

std::string endText(PlaybackEnd end) {
    return end == PlaybackEnd::RoundOver ? "round over" : "end mark";
}

struct ProvedRound {
    PlaybackEnd end;
    int rate;          // updates a second
    std::string note;  // names a verification file that was passed over; empty if none was
};

// Plays the whole file; throws at the first difference, and where the proof is not one of the whole round.
ProvedRound playAndProve(const std::string& path) {
    DigestCheck digest(path);
    HeadlessPlayback playback(path);
    const int rate = gameOptions.updaterate;
    bool runs = true;
    while (runs) {
        runs = playback.step();
        digest.compare(playback.game());
    }
    if (playback.end() == PlaybackEnd::CutShort) {
        throw std::runtime_error("the replay breaks off without its end mark");
    }
    playback.requireAllPlayed();
    digest.requireAllCompared();
    playback.finish();
    if (!playback.isVerified()) {
        throw std::runtime_error("there is no verification file: nothing was compared");
    }
    if (proof.positions == 0) {
        throw std::runtime_error("nothing was compared");
    }
    return {playback.end(), rate, playback.verifyNote()};
}

std::string failureLine(const std::string& path, const std::exception& failure) {
    const std::string difference =
        proof.player == -1 ? ""
                           : fmt::format(", player {}: file {}, played {}", proof.player, proof.stored, proof.played);
    return fmt::format("{}: FAILED at frame {}{}: {}", printable(path), static_cast<int>(frameCounter), difference,
                       failureText(failure));
}

JobResult verifyOne(const std::string& path) {
    proof = Proof{};
    frameCounter = 0;
    const auto start = std::chrono::steady_clock::now();
    try {
        const ProvedRound round = playAndProve(path);
        const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
        const double realTime = static_cast<double>(static_cast<int>(frameCounter)) / round.rate;
        const std::string note = round.note.empty() ? "" : "; " + printable(round.note);
        return {true, frameCounter, proof.positions,
                fmt::format("{}: ok, {} frames, {} records, {} captures, {}, {:.0f} times real time{}", printable(path),
                            static_cast<int>(frameCounter), proof.positions, proof.captures, endText(round.end),
                            realTime / seconds.count(), note)};
    } catch (const std::exception& failure) {
        return {false, frameCounter, proof.positions, failureLine(path, failure)};
    }
}

int runVerify(const Words& words) {
    int jobs = 1;
    Words names;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "-j") {
            jobs = optionNumber(words, i);
        } else {
            names.push_back(words[i]);
        }
    }
    if (jobs < 1) {
        throw UsageError("-j needs a number of at least 1");
    }
    verifyEnabled = true;
    const std::vector<std::string> paths = findReplays(names);
    std::int64_t frames = 0;
    std::int64_t records = 0;
    std::size_t failures = 0;
    runJobs(paths, jobs, verifyOne, [&](const JobResult& result) {
        fmt::print("{}\n", result.line);
        std::fflush(stdout);
        frames += result.frames;
        records += result.records;
        failures += result.good ? 0U : 1U;
    });
    fmt::print("{} of {} replays hold; {} frames, {} records compared\n", paths.size() - failures, paths.size(), frames,
               records);
    return failures == 0 ? 0 : 1;
}

}  // namespace

const Command verifyCommand{
    "verify", runVerify,
    "verify [-j N] FILE-or-DIR...      play and compare with the verification files\n\n"
    "Plays each replay with no screen as fast as it can and compares every position with the verification file\n"
    "beside it, and the whole state with the digest beside it, if there is one. A replay fails at its first\n"
    "difference, where it breaks off, where something of either file is left over, and where there is nothing to\n"
    "compare with.\n\n"
    "  -j N    N replays at once, each in a process of its own\n\n"
    "Exit status 0 only if all hold.\n"};

}  // namespace vandrel
