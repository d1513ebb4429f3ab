// The bytes of records, the texts where there are none, and what the file system can do to a recording.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "arena/arena.h"
#include "base/version.h"
#include "replay/unit/input_record.h"
#include "replay/unit/streams.h"
#include "replay/unit/verification.h"
#include "replay_bytes.h"
#include "shell/log.h"

namespace vandrel {
namespace {

template <class Action>
std::string failureOf(Action&& action) {
    try {
        action();
        return "";
    } catch (const std::exception& failure) {
        return failure.what();
    }
}

TEST(Streams, keepIntegersInOneByteOrderAndSignOfTheirOwn) {
    std::ostringstream out;
    writeInt(&out, -2);
    writeInt(&out, 0x01020304);
    writeByte(&out, 200);
    writeBool(&out, true);
    EXPECT_EQ(out.str(), std::string("\xFE\xFF\xFF\xFF\x04\x03\x02\x01\xC8\x01"));
    std::istringstream in(out.str());
    EXPECT_EQ(readInt(&in), -2);
    EXPECT_EQ(readInt(&in), 0x01020304);
    EXPECT_EQ(readByte(&in), 200);
    in.seekg(-1, std::ios::cur);
    EXPECT_EQ(readSignedByte(&in), -56);
    EXPECT_TRUE(readBool(&in));
}

TEST(Streams, sayWhatIsNotOpen) {
    std::ifstream closedInput;
    std::ofstream closedOutput;
    std::ofstream failedOutput("/no/such/folder/file");
    EXPECT_EQ(failureOf([] { readByte(nullptr); }), "File not open for reading");
    EXPECT_EQ(failureOf([&] { readInt(&closedInput); }), "File not open for reading");
    EXPECT_EQ(failureOf([] { writeInt(nullptr, -7); }), "File not open for writing - data: -7");
    EXPECT_EQ(failureOf([&] { writeByte(&closedOutput, 65); }), "File not open for writing - data: 65");
    EXPECT_EQ(failureOf([&] { writeMarker(&failedOutput, "@@@"); }), "File not open for writing - data: @@@");
}

TEST(Streams, tellAnEndFromAFaultAndReportAFullDiskAtOnce) {
    std::istringstream in("ab");
    in.exceptions(std::ios::badbit | std::ios::failbit | std::ios::eofbit);
    EXPECT_THROW(readInt(&in), std::ios_base::failure);
    EXPECT_TRUE(in.eof());
    std::ofstream full("/dev/full", std::ios::binary);
    PackagedReplayData data;
    data.recording = true;
    data.output = &full;
    data.outputVerify = &full;
    EXPECT_THROW(writeInputRecord(data, 1, 0, 0, false, false), std::ios_base::failure);
    EXPECT_THROW(verifyCapture(data, 0, 1), std::ios_base::failure);
}

TEST(InputRecord, isCheckedAndTellsItsPlace) {
    setDebugOutput(nullptr);
    const auto decode = [](const std::string& bytes, int version) {
        std::istringstream stream("......" + bytes);
        stream.seekg(6);
        PackagedReplayData data;
        data.input = &stream;
        data.playback = true;
        data.version = version;
        return decodeInputRecord(data, 3);
    };
    const auto failure = [&](const std::string& bytes) {
        return failureOf([&] { decode(bytes, replayOutputVersion); });
    };
    EXPECT_THAT(failure(byte(4) + byte(0)),
                testing::MatchesRegex("Assertion failed: 'dummyCurPlayer == num' at line [0-9]+\n"
                                      "replayInput pos 7\n"));
    EXPECT_THAT(failure(byte(3) + byte(2)), testing::MatchesRegex("Assertion failed: 'abs.xDir. < 2' at line [0-9]+\n"
                                                                  "replayInput pos 8\n"));
    EXPECT_THAT(failure(byte(3) + byte(8)), testing::HasSubstr("'abs(yDir) < 2'"));
    EXPECT_THROW(decode(byte(119), replayOutputVersion), int);
    EXPECT_TRUE(decode(byte(3) + byte(32), replayVersion(1, 0, 2)).button2);
    EXPECT_FALSE(decode(byte(3) + byte(32), replayVersion(1, 0, 1)).button2);
}

// Plays a capture of score 300 by team 1 against these records, of which nothing may be left; the failed expression, or
// nothing.
std::string captureFailure(int version, const std::string& bytes, const std::string& text) {
    std::istringstream stream(bytes);
    stream.exceptions(std::ios::badbit | std::ios::failbit | std::ios::eofbit);
    PackagedReplayData data;
    data.input = &stream;
    data.playback = true;
    data.version = version;
    data.inputVerify = std::make_shared<std::istringstream>(text);
    const std::string failure = failureOf([&] { verifyCapture(data, 1, 300); });
    if (failure.empty()) {
        EXPECT_EQ(stream.rdbuf()->in_avail(), 0) << versionText(version);
    }
    const std::size_t begin = failure.find('\'') + 1;
    return failure.empty() ? "" : failure.substr(begin, failure.rfind('\'') - begin);
}

TEST(Capture, isComparedAsEachReleaseRecordedIt) {
    setDebugOutput(nullptr);
    const std::string good = "CTFSCORE\n1\n300\n";
    const std::string score = "score == teamObj.getScore()";
    constexpr int now = replayOutputVersion;
    EXPECT_EQ(captureFailure(now, int32(300), good), "");
    EXPECT_EQ(captureFailure(now, int32(301), good), score);
    EXPECT_EQ(captureFailure(now, int32(300), "CTFSCORE 1 299"), score);
    EXPECT_EQ(captureFailure(now, int32(300), "CTFSCORE 0 300"), "teamNum == team");
    EXPECT_EQ(captureFailure(now, int32(300), "1 300 300"), "txt == \"CTFSCORE\"");
    EXPECT_EQ(captureFailure(1, "", ""), "") << "no record at all";
    EXPECT_EQ(captureFailure(2, byte(44), good), score);
    EXPECT_EQ(captureFailure(replayVersion(1, 0, 8), byte(44), good), score) << "one byte cannot hold 300";
    EXPECT_EQ(captureFailure(replayVersion(1, 0, 9), byte(44), "CTFSCORE 1 44"), "")
        << "not compared in three releases";
    EXPECT_EQ(captureFailure(replayVersion(1, 0, 10), int32(7), "CTFSCORE 1 7"), "");
    EXPECT_EQ(captureFailure(replayVersion(1, 0, 11), int32(7), "CTFSCORE 1 7"), "");
    EXPECT_EQ(captureFailure(replayVersion(1, 0, 12), int32(7), good), score);
}

}  // namespace
}  // namespace vandrel
