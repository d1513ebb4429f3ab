// The verification text on disk: plain beside a replay that is being recorded, compressed and proved once it is done.
// The match driver and the replay tool use these.
#pragma once

#include <fstream>
#include <memory>
#include <string>

namespace vandrel {

// The text that belongs to a replay, from its start; the compressed form wins over the plain one. Null, so unchecked,
// where neither exists or verification is off. Throws std::filesystem::filesystem_error with the operation "exists",
// and what a damaged file has the decompressor throw.
std::shared_ptr<std::istream> openVerifyInput(const std::string& replayPath);

// Ends and closes the text of a round that was recorded, writes the compressed form, reads that again, and removes the
// plain form once both are the same. Throws a failed assertion where they are not, std::runtime_error where a file
// cannot be written, and std::filesystem::filesystem_error with the operation "remove".
void finishVerifyFile(const std::string& replayPath, std::ofstream& outputVerify);

// Where the two forms lie.
std::string plainVerifyPath(const std::string& replayPath);
std::string compressedVerifyPath(const std::string& replayPath);

}  // namespace vandrel
