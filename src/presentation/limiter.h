// Keeps a mix within what a sound card can play: several bombs in one update add up to more, and cutting off what is
// over would crackle. Used on the main mixer.
#pragma once

#include <span>

namespace vandrel {

inline constexpr float loudestMix = 0.98f;  // of what a sound card can play; one sample at full volume stays below

// Makes loud passages of `stereo` (pairs of samples at 44,100 Hz) quieter, both sides alike, so that no sample lies
// beyond `loudestMix`; the rest stays as it is. It grows quieter over a millisecond before what is too loud, as far as
// that is known here, and comes back within a fifth of a second. `gain` is what the call before gave, 1 for the first
// one; gives what the next one needs.
float holdBack(std::span<float> stereo, float gain);

}  // namespace vandrel
