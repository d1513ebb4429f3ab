// What is added after the source: drive, echo, a small room, and the gentle level keeper at the end of a tune.
#pragma once

#include "audio/synth/signal.h"

namespace vandrel::art {

// Rounded peaks: quiet parts pass times `drive`, loud ones press against 1.
Signal softClipped(Signal source, double drive);

// `source` and its echoes every `seconds`, each `feedback` (below 1) of the one before and duller.
Signal echoed(Signal source, double seconds, double feedback);

// A room of eight damped delay lines that feed each other. `halfLife` in seconds; `brightness` (hertz) is where the
// walls begin to swallow. Gives the room alone. The signal is taken round and round: what still rings at its end sounds
// at its start, as in a loop that has always been playing.
StereoSignal loopedRoom(const Signal& source, double halfLife, double brightness);

// The same room for a sound that is heard once: nothing wraps round, mono.
Signal withRoom(Signal source, double halfLife, double brightness, double share);

// An echo that goes left and right by turns, every `seconds`, looped like the room; gives the echoes alone.
StereoSignal loopedPingPong(const Signal& source, double seconds, double feedback);

// Presses together what rises above `threshold` (decibels) by `ratio`, with a slow hand; looped: the level at the start
// is the one at the end.
void levelLoop(StereoSignal& signal, double threshold, double ratio);

// No peak above `ceiling` (a factor): the level dips ahead of a peak and comes back in some 80 ms. Looped.
void limitLoop(StereoSignal& signal, double ceiling);

}  // namespace vandrel::art
