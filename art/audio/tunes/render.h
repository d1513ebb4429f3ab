// Plays a score into a finished stereo loop.
#pragma once

#include "audio/synth/signal.h"
#include "audio/tunes/score.h"

namespace vandrel::art {

// The whole loop, as it sounds when it has been playing for ever: what rings over the end sounds at the start. Mastered
// to the score's loudness, no peak above -1.5 decibels. The same score gives the same frames.
StereoSignal renderScore(const Score& score);

// Where a place in bars falls in the loop, in frames, with the score's swing.
double swungFrame(const Score& score, double bars);

}  // namespace vandrel::art
