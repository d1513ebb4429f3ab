#include "replay/unit/input_record.h"

#include <cstdlib>

#include "base/version.h"
#include "replay/unit/proof.h"
#include "replay/unit/streams.h"
#include "shell/assertion.h"

namespace vandrel {

namespace {

constexpr int button2From = replayVersion(1, 0, 2);
constexpr unsigned directionMask = 3;
constexpr unsigned yShift = 2;
constexpr unsigned fireBit = 1U << 4;
constexpr unsigned button2Bit = 1U << 5;

unsigned encodeDirection(int direction) {
    return static_cast<unsigned>(direction) & directionMask;
}

// 2 stands for no direction and is kept for the check to find.
int decodeDirection(unsigned bits) {
    return (bits & directionMask) == 3 ? -1 : static_cast<int>(bits & directionMask);
}

}  // namespace

void writeInputRecord(const PackagedReplayData& replayData, int num, int xDir, int yDir, bool fire, bool button2) {
    const unsigned bits =
        encodeDirection(xDir) | encodeDirection(yDir) << yShift | (fire ? fireBit : 0U) | (button2 ? button2Bit : 0U);
    writeByte(replayData.output, num);
    writeByte(replayData.output, static_cast<int>(bits));
    flushWritten(replayData.output);
}

InputRecord decodeInputRecord(const PackagedReplayData& replayData, int num) {
    const int dummyCurPlayer = readByte(replayData.input);
    if (dummyCurPlayer == replayEndMark) {
        throw replayEndMark;
    }
    // The byte holds the low eight bits of the number: a snake's may pass 255 in a very long round.
    VANDREL_CHECK_AT(provesEqual(num, dummyCurPlayer, num & 0xFF), "dummyCurPlayer == num", replayInputPos(replayData));
    const unsigned bits = readByte(replayData.input);
    InputRecord record;
    record.xDir = decodeDirection(bits);
    record.yDir = decodeDirection(bits >> yShift);
    VANDREL_CHECK_AT(std::abs(record.xDir) < 2, "abs(xDir) < 2", replayInputPos(replayData));
    VANDREL_CHECK_AT(std::abs(record.yDir) < 2, "abs(yDir) < 2", replayInputPos(replayData));
    record.fire = (bits & fireBit) != 0;
    record.button2 = (bits & button2Bit) != 0 && !replayData.isOlderThan(button2From);
    ++proof.inputs;
    return record;
}

}  // namespace vandrel
