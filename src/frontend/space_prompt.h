// How the screens that close a round and a match are left: by the space bar or a controller's bomb button.
#pragma once

namespace vandrel {

inline constexpr const char* spacePrompt = "Press SPACE or bomb button";

// True once for each press.
bool spacePressed();

}  // namespace vandrel
