#include "replay/unit/verification.h"

#include <fmt/format.h>

#include <array>
#include <cctype>
#include <charconv>
#include <istream>
#include <string>
#include <string_view>

#include "base/version.h"
#include "replay/unit/proof.h"
#include "replay/unit/streams.h"
#include "shell/assertion.h"

namespace vandrel {

namespace {

constexpr int captureRecordsFrom = replayVersion(0, 0, 2);
constexpr int wideCaptureScoresFrom = replayVersion(1, 0, 10);
constexpr int snakeLinesFrom = replayVersion(0, 95, 4);
constexpr int unprovedScoresFrom = replayVersion(1, 0, 9);
constexpr int unprovedScoresBelow = replayVersion(1, 0, 12);

// No other line begins with its letter.
constexpr std::string_view endLine = "END";

// A number that is missing or no number reads as 0, and then differs or fails the test of the stream.
int readNumber(std::istream& text) {
    int number = 0;
    text >> number;
    return number;
}

void comparePosition(const PackagedReplayData& replayData, const VerifiedPlayer& player) {
    std::istream& text = *replayData.inputVerify;
    const int verifyPlayer = readNumber(text);
    VANDREL_CHECK(text.good(), "replayData.inputVerify->good()");
    VANDREL_CHECK_AT(provesEqual(player.num, verifyPlayer, player.num), "verifyPlayer == num",
                     replayInputPos(replayData));
    const int verifyX = readNumber(text);
    VANDREL_CHECK_AT(provesEqual(player.num, verifyX, player.x), "verifyX == x", replayInputPos(replayData));
    const int verifyY = readNumber(text);
    VANDREL_CHECK_AT(provesEqual(player.num, verifyY, player.y), "verifyY == y", replayInputPos(replayData));
    ++proof.positions;
    if (player.snakeLength < 1 || replayData.isOlderThan(snakeLinesFrom)) {
        return;
    }
    const int verifyLength = readNumber(text);
    VANDREL_CHECK_AT(provesEqual(player.num, verifyLength, player.snakeLength), "snakeLength == verifyLength",
                     replayInputPos(replayData));
    for (const auto& part : player.parts) {
        const int partX = readNumber(text);
        VANDREL_CHECK_AT(provesEqual(player.num, partX, std::get<0>(part)), "verifyX == get<0>(part)",
                         replayInputPos(replayData));
        const int partY = readNumber(text);
        VANDREL_CHECK_AT(provesEqual(player.num, partY, std::get<1>(part)), "verifyY == get<1>(part)",
                         replayInputPos(replayData));
    }
}

// The lines of one player, put together without a call for each number: this is half of what recording
// costs. The longest snakes are handed over in pieces.
class Lines {
  public:
    explicit Lines(std::ostream* text) : text_(text) {}

    void add(int number, char separator) {
        if (end_ + longestNumber > bytes_.data() + bytes_.size()) {
            handOver();
        }
        end_ = std::to_chars(end_, bytes_.data() + bytes_.size(), number).ptr;
        *end_++ = separator;
    }
    void endSnake() { *(end_ - 1) = '\n'; }
    void handOver() {
        writeMarker(text_, std::string_view(bytes_.data(), static_cast<std::size_t>(end_ - bytes_.data())));
        end_ = bytes_.data();
    }

  private:
    static constexpr std::ptrdiff_t longestNumber = 12;  // with its sign and what stands behind it

    std::ostream* text_;
    std::array<char, 256> bytes_;
    char* end_ = bytes_.data();
};

void writePosition(std::ostream* text, const VerifiedPlayer& player) {
    Lines lines(text);
    lines.add(player.num, '\n');
    lines.add(player.x, '\n');
    lines.add(player.y, '\n');
    if (player.snakeLength > 0) {
        lines.add(player.snakeLength, ' ');
        for (const auto& part : player.parts) {
            lines.add(std::get<0>(part), ' ');
            lines.add(std::get<1>(part), ' ');
        }
        lines.endSnake();
    }
    lines.handOver();
    flushWritten(text);
}

void compareCapture(const PackagedReplayData& replayData, int team, int teamScore) {
    if (replayData.isOlderThan(captureRecordsFrom)) {
        return;
    }
    const bool proved = replayData.isOlderThan(unprovedScoresFrom) || !replayData.isOlderThan(unprovedScoresBelow);
    const int score =
        replayData.isOlderThan(wideCaptureScoresFrom) ? readByte(replayData.input) : readInt(replayData.input);
    VANDREL_CHECK(!proved || score == teamScore, "score == teamObj.getScore()");
    if (replayData.inputVerify == nullptr) {
        return;
    }
    std::string txt;
    *replayData.inputVerify >> txt;
    const int teamNum = readNumber(*replayData.inputVerify);
    const int verifyScore = readNumber(*replayData.inputVerify);
    VANDREL_CHECK(txt == "CTFSCORE", "txt == \"CTFSCORE\"");
    VANDREL_CHECK(teamNum == team, "teamNum == team");
    VANDREL_CHECK(!proved || verifyScore == teamScore, "score == teamObj.getScore()");
    ++proof.captures;
}

}  // namespace

void verifyPosition(const PackagedReplayData& replayData, const VerifiedPlayer& player) {
    if (replayData.playback) {
        if (replayData.inputVerify != nullptr) {
            comparePosition(replayData, player);
        }
    } else if (replayData.recording && replayData.outputVerify != nullptr) {
        writePosition(replayData.outputVerify, player);
    }
}

void verifyCapture(const PackagedReplayData& replayData, int team, int score) {
    if (replayData.playback) {
        compareCapture(replayData, team, score);
    } else if (replayData.recording) {
        writeInt(replayData.output, score);
        if (replayData.outputVerify != nullptr) {
            writeMarker(replayData.outputVerify, fmt::format("CTFSCORE\n{}\n{}\n", team, score));
            flushWritten(replayData.outputVerify);
        }
    }
}

bool hasVerifyTextEnded(const PackagedReplayData& replayData) {
    if (replayData.inputVerify == nullptr) {
        return true;
    }
    std::istream& text = *replayData.inputVerify;
    while (std::isspace(text.rdbuf()->sgetc()) != 0) {
        text.rdbuf()->sbumpc();
    }
    const int next = text.rdbuf()->sgetc();
    return next == std::istream::traits_type::eof() || next == endLine.front();
}

void verifyEnd(const PackagedReplayData& replayData) {
    if (replayData.inputVerify == nullptr) {
        return;
    }
    std::string end;
    *replayData.inputVerify >> end;
    VANDREL_CHECK(end == endLine, "end == \"END\"");
}

}  // namespace vandrel
