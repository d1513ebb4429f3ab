// How loud a tune is to the ear, by the broadcasters' measure. Used when a tune is mastered, by the measuring tool and
// the tests.
#pragma once

#include "audio/synth/signal.h"

namespace vandrel::art {

// Integrated loudness in LUFS after ITU-R BS.1770-4: weighted as the ear hears, blocks of 400 ms every 100 ms, gated at
// -70 and then 10 below the mean of the rest. Minus infinity for silence or less than a block.
double integratedLoudness(const StereoSignal& signal);

}  // namespace vandrel::art
