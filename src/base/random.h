// The random sources. They are not interchangeable: which one a rule draws from, and in which order, decides whether a
// replay plays as it was recorded. `Game` holds two more twisters of its own, of the same kind.
#pragma once

#include <cstdint>
#include <random>

namespace vandrel {

// The program's `rand()`: a linear congruential generator on 32 bits (state x 214013 + 2531011) that yields bits 16 to
// 30 of the new state, 0 to 32767. The C library's function differs from system to system and is never called. Level
// generation, powerup picks and looks draw from it; what it decides that matters is recorded.
int gameRand();

// Sets the state of `gameRand`. Before the first call it is 1.
void seedGameRand(std::uint32_t seed);

// The automatic options, the rise of the randomness and the flights of winners draw from this one. The game never seeds
// it beyond its default 5489, so its sequence is the same from run to run of the same actions; only a round that is
// recorded by chance does.
extern std::mt19937 globalGenerator;

// Sparks and other things that are only looked at. Seed 0.
extern std::mt19937 particleGenerator;

// One value of the inclusive range `low` to `high`. One value in the range takes no output. Otherwise an output r of
// the twister is taken until r / n is below 0xFFFFFFFF / n, or 0xFFFFFFFF modulo n is n - 1 (n values in the range),
// and the result is `low` plus r modulo n. The rejection rule is part of what replays rest on; the standard
// distributions differ from library to library and are not used.
int uniformInt(std::mt19937& generator, int low, int high);

// One output of the twister as a float in 0.0 to 1.0, 1.0 excluded.
float canonicalFloat(std::mt19937& generator);

// One float of `low` to `high`, from one `canonicalFloat`.
float uniformFloat(std::mt19937& generator, float low, float high);

}  // namespace vandrel
