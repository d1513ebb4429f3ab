// The main of the small programs that make the game's files.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace vandrel::art {

// Calls `run` with the words behind the program's name. With fewer than `least` or more than `most` of them prints the
// name and `usage` instead; the exit status is then 2. What `run` throws is a line on standard error and a status of 1.
int runProgram(int argc, char** argv, std::size_t least, std::size_t most, const char* usage,
               const std::function<void(const std::vector<std::string>& words)>& run);

}  // namespace vandrel::art
