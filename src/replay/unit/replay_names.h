// The replays on disk: which there are, what their headers say, and the name of the next one. The match driver asks for
// names, the replay menu for the list.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace vandrel {

struct ReplayInfo {
    int number = 0;    // the first part of the file's name
    int version = -1;  // from the header; -1 if that was not asked for
    int gameMode = 0;  // from the header, as are the players
    int numPlayers = 0;
    std::string path;
    std::optional<std::filesystem::directory_entry> entry;
    std::uint64_t size = 0;           // bytes, verification files included
    std::vector<std::string> errors;  // the lines to show; none for a file that can be played
};

// Every regular file under `replaysDir()` whose name ends in ".replay", newest first and of equal times the higher
// number; with `readHeaders` each with what its header says or why it cannot be played. Folders that may not be read
// are passed over; any other failure ends the list early. Both are logged. Throws std::invalid_argument or
// std::out_of_range for a name that does not begin with a number.
std::vector<ReplayInfo> getAllReplays(bool readHeaders);

// The path of the next recording: the highest number in use plus one, and this build's version. The highest number that
// there is does not count once it is taken, since nothing comes behind it. Throws what `getAllReplays` throws, and
// std::out_of_range where no number is left.
std::string newReplayName();

// The same for a round that is to be recorded: makes an empty file of that name, so that no other process takes it, and
// counts on where there is one already. A folder in which no file can be made is left for the recording to tell of.
// Throws what `newReplayName` throws.
std::string claimReplayName();

}  // namespace vandrel
