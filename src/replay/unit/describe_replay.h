// One line of text on a replay, for the list of the replay menu.
#pragma once

#include <filesystem>
#include <ostream>
#include <string>

#include "replay/unit/replay_names.h"

namespace vandrel {

// Number, time of recording (UTC), mode, players, version and size; for a file that cannot be played that there is an
// error to look at, in the place of what stands in the header.
void describeReplay(std::ostream& out, const ReplayInfo& info);

// A file's time as it is shown, in UTC: only hour and minute have leading zeros.
std::string fileTimeText(std::filesystem::file_time_type time);

}  // namespace vandrel
