// The audio system: it loads the sample effects at start-up and plays them, three of each at full volume at most.
// Start-up brings it up, the rules reach it through `playSample`, the settings screen changes the volumes, and music
// sounds on a mixer of it.
#pragma once

#include <allegro5/allegro.h>
#include <allegro5/allegro_audio.h>

#include <map>

#include "presentation/play_sample.h"

namespace vandrel {

enum class AudioType : int { Effects = 0, Music = 1 };

// What effects and music are attached to. Empty before `initSound`; the mixers live until the process ends.
extern std::map<AudioType, ALLEGRO_MIXER*> mixers;

// Opens the audio system, loads every sample from "newSound" under the working directory, and from then on `playSample`
// is heard. The volumes are 0 to 100. Called once. Throws std::runtime_error with a text for the player: the game does
// not run without sound, and a missing sample is told before the display comes up.
void initSound(int effectsVolume, int musicVolume);

// Stores the volume, 0 to 100, and applies it to what sounds now.
void setVolume(AudioType type, int volume);

// The stored volume. Throws std::out_of_range where none was ever set.
int getVolume(AudioType type);

// Ends the thread that fades samples, and silences all samples; `playSample` is unheard again. Harmless after an
// `initSound` that failed on its way, or without one.
void shutdownSound();

}  // namespace vandrel
