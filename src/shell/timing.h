// The tick counters that the frame pump and the match share. A tick of the frame timer is one update; nothing else
// knows time.
#pragma once

namespace vandrel {

extern int pendingTicks;    // ticks received and not yet consumed by an update; the frame pump takes them over on entry
extern int totalTicks;      // ticks received since the last reset, which is on entry to the pump and at a round's start
extern int renderedFrames;  // frames presented since the same reset

// 60 when every tick was rendered, at any update rate; 30 when every second one was.
float frameRateFigure();

}  // namespace vandrel
