// The bytes of a replay: the few operations through which every record goes, in both directions. Integers are
// little-endian on any machine. The header, the round records, `Game` and `Player` use them.
#pragma once

#include <cstdint>
#include <istream>
#include <ostream>
#include <string_view>

#include "replay/unit/packaged_replay_data.h"

namespace vandrel {

// The byte behind the last frame. It is never a player number.
inline constexpr int replayEndMark = 119;

// Reading. All throw std::runtime_error "File not open for reading" for a null stream or a file stream that is not
// open, and std::ios_base::failure, with the stream's end-of-file state set, where the bytes run out.
std::uint8_t readByte(std::istream* stream);
bool readBool(std::istream* stream);
int readInt(std::istream* stream);
// A byte as the number -128 to 127.
int readSignedByte(std::istream* stream);
// Takes as many bytes as `text` has. Throws std::runtime_error "matchedMarker <text> failed:", a newline and the bytes
// found.
void readMarker(std::istream* stream, std::string_view text);

// Writing, without a flush. All throw std::runtime_error "File not open for writing - data: " and the value for a null
// stream or one that is not open, and std::ios_base::failure where the bytes cannot be taken, as on a full disk.
void writeByte(std::ostream* stream, int value);
void writeBool(std::ostream* stream, bool value);
void writeInt(std::ostream* stream, int value);
void writeMarker(std::ostream* stream, std::string_view text);
// Hands all that was written to the system, so that nothing is lost if the process dies; what goes to a `RoundWriter`
// waits for the end of the update. Throws std::ios_base::failure.
void flushWritten(std::ostream* stream);

// Where the replay being played stands, in bytes, for the texts of failures; -1 if there is none.
long long replayInputPos(const PackagedReplayData& replayData);

}  // namespace vandrel
