// One bar of one voice: the steps between two bar lines, turned into notes. Used by the score parser only.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "audio/tunes/harmony.h"
#include "audio/tunes/score.h"

namespace vandrel::art {

// The chords of a part, each with the place where it begins, in bars from the part's start.
struct PlacedChord {
    double start;
    Chord chord;
};

// The chord that sounds at `bars`; nothing before the first.
const Chord* chordAt(const std::vector<PlacedChord>& chords, double bars);

// Appends the notes of `bar` (the text between two bar lines), which begins `start` bars into the part. A hold at the
// front lengthens the last of `notes`. Throws ScoreError with `line`.
void appendBar(std::vector<ScoreNote>& notes, std::string_view bar, double start, const ScoreVoice& voice,
               const std::vector<PlacedChord>& chords, int line);

}  // namespace vandrel::art
