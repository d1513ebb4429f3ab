// Note names and chord symbols as musicians write them, turned into pitches. Used by the score parser.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace vandrel::art {

// "c4" (60), "f#3", "bb5": a letter, a sharp or flat if any, an octave of 0 to 8. Empty for anything else. The pitch
// counts semitones; 69 is the a of 440 hertz.
std::optional<int> pitchNamed(std::string_view name);

double hertzOf(double pitch);

struct Chord {
    int root = 0;                // semitones above c, 0 to 11
    int bass = 0;                // what the bass plays: the root, or what stands behind the stroke as in "F/A"
    std::vector<int> intervals;  // semitones above the root, rising, 0 first
    // The semitones above the root of its third, fifth, seventh ... (1, 3, 5, 7, 9; 6 for a sixth chord; 8, 10 and 12
    // are 1, 3 and 5 an octave up). Empty when the chord has no such tone.
    std::optional<int> degree(int number) const;
};

// "F", "Dm", "C7", "Bbmaj7", "Am7/G" ... Empty when it is not one of the known kinds.
std::optional<Chord> chordNamed(std::string_view symbol);

}  // namespace vandrel::art
