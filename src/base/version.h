// Versions of the software and of the replays it writes, as one integer: major << 24 | minor << 12 | patch. The oldest
// replays counted 1, 2 ... 10, which reads as 0.0.1 to 0.0.10.
#pragma once

#include <string>

namespace vandrel {

constexpr int replayVersion(int major, int minor, int patch) {
    return (major << 24) | (minor << 12) | patch;
}

inline constexpr int replayOutputVersion = replayVersion(1, 1, 2);

// "major.minor.patch", all decimal.
std::string versionText(int version);

}  // namespace vandrel
