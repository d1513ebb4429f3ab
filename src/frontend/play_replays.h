// Playing replays from the menus: one for somebody to watch, or all of them as a test that they still come out as they
// were recorded. The replay menu uses both.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "match/frame_loop.h"
#include "presentation/music.h"

namespace vandrel {

// Plays a replay; true if that was quit. The real one is below; tests look on instead.
using ReplayPlayer =
    std::function<bool(const std::string& path, ReplayTestOptions testOptions, std::shared_ptr<Music>& music)>;

// Plays the replay in the place of the menus' music, and brings menus and music back. Throws whatever a replay throws
// that no longer comes out as it was recorded.
bool playReplay(const std::string& path, ReplayTestOptions testOptions, std::shared_ptr<Music>& music);

// Plays every replay that has no errors, newest first, as fast as it goes and with every comparison, until all are
// played or one is quit. The log's line with the time it took is the whole result.
void testAllReplays(std::shared_ptr<Music>& music, const ReplayPlayer& play = playReplay);

}  // namespace vandrel
