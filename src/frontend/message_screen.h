// The page with one question or one piece of news: every confirmation of the menus, and what went wrong.
#pragma once

#include <string>
#include <vector>

namespace vandrel {

// The `cancelKey` of a page that can only be acknowledged.
inline constexpr int noCancelKey = -1;

// Shows the lines in the middle of a black screen until one of the two keys is pressed; true if it was `okKey`. The
// keys are keycodes of the menu queries, so controllers answer too. A line break inside a line begins a row of its own.
bool msgScreen(const std::vector<std::string>& lines, int okKey, int cancelKey);

}  // namespace vandrel
