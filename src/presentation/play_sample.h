// How the rules ask for a sound. Until a player is installed (`initSound` does so) a sample that is played is not
// heard, so the simulation runs with no sound device.
#pragma once

#include "presentation/sample_ids.h"

namespace vandrel {

inline constexpr int fullVolume = 255;
inline constexpr int normalVolume = 200;
inline constexpr int centrePan = 128;
inline constexpr int normalSampleSpeed = 1000;

using SamplePlayer = void (*)(SampleIds id, int volume, int pan, int speed);

// Whoever is to hear the samples; null for nobody.
void setSamplePlayer(SamplePlayer player);

// Starts one effect. `volume` is 0 to 255, `pan` 0 to 255 with 128 as the centre, `speed` in thousandths of normal.
void playSample(SampleIds id, int volume = normalVolume, int pan = centrePan, int speed = normalSampleSpeed);

}  // namespace vandrel
