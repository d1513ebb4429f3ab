// How long the fuses of bombs burn.
#pragma once

namespace vandrel {

class Player;

inline constexpr int fullFuse = 90;          // frames at 60 Hz
inline constexpr int fastFuse = 40;          // with fast ignition
inline constexpr int detonationFuse = 3;     // rockets that have landed, released bombs, bombs that a flame has reached
inline constexpr int remoteStepFrames = 10;  // between two steps of a steered bomb

// Frames of an ordinary bomb of this player.
int normalFuse(const Player& player);
// Frames of a rocket, a Remote Control bomb, by the options of the match, and of a Detonator bomb.
int rocketFuse(const Player& player);
int remoteFuse(const Player& player);
int detonatorFuse();

}  // namespace vandrel
