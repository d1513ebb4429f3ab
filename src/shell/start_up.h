// Brings everything up, in the one order that works: the configuration before sound and display, the display before
// pictures and fonts, the frame timer last, so that no tick is counted before the first screen runs.
#pragma once

namespace vandrel {

// Once per process, after the log is open. Any failure is an exception, with a text for the player.
void init(int argc, const char* const* argv);

}  // namespace vandrel
