// The verification text on disk: plain beside a replay that is being recorded, compressed and proved once it is done.
// The match driver and the replay tool use these.
#pragma once

#include <fstream>
#include <memory>
#include <string>

#include "replay/unit/gzip.h"

namespace vandrel {

// The text that belongs to a replay, from its start; the compressed form wins over the plain one. Null, so unchecked,
// where neither exists or verification is off. Throws std::filesystem::filesystem_error with the operation "exists",
// and what a damaged file has the decompressor throw.
std::shared_ptr<std::istream> openVerifyInput(const std::string& replayPath);

struct VerifyInput {
    std::shared_ptr<std::istream> text;  // as `openVerifyInput` gives it
    std::string note;  // names a compressed form that was passed over, and says why; empty if none was
    std::string flaw;  // what is wrong round a text that can be read: a member cut short, bytes behind it
};

// The same with what was found on the way. A compressed form that is empty or damaged is passed over if the plain form
// is there, whole, with its last line. Throws what `openVerifyInput` throws, and std::runtime_error above `limit` bytes
// of text.
VerifyInput readVerifyInput(const std::string& replayPath, std::size_t limit = largestDecompressed);

// Ends and closes the text of a round that was recorded, writes the compressed form in one step, reads that again, and
// removes the plain form once both are the same. Throws a failed assertion where they are not, std::runtime_error where
// a file cannot be read or written, and std::filesystem::filesystem_error with the operation "remove".
void finishVerifyFile(const std::string& replayPath, std::ofstream& outputVerify);

// Where the two forms lie.
std::string plainVerifyPath(const std::string& replayPath);
std::string compressedVerifyPath(const std::string& replayPath);

}  // namespace vandrel
