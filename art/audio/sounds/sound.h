// The 18 sounds of the game. Each family is a file of recipes of its own and a program of its own, so that a changed
// recipe makes only its family's files anew.
#pragma once

#include <span>

#include "audio/synth/signal.h"

namespace vandrel::art {

struct Sound {
    const char* name;  // of the file, without ".wav"
    Signal (*make)();  // finished, ready to be written
};

// The usual peak, and that of the pickups that are played at full volume and must not top the explosions.
constexpr double soundPeak = -3.0;
constexpr double fullVolumePickupPeak = -6.0;

std::span<const Sound> bellSounds();
std::span<const Sound> drumSounds();
std::span<const Sound> gustSounds();
std::span<const Sound> blipSounds();
std::span<const Sound> mouthSounds();
std::span<const Sound> powerSounds();

}  // namespace vandrel::art
