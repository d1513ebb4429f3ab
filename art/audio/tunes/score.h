// A tune as it is after reading its score: voices with all their notes in the order of the form. Made by the parser,
// played by the renderer. How a score is written is told in the asset guide.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vandrel::art {

enum class Force { Soft, Plain, Accent };

struct ScoreNote {
    double start = 0.0;   // bars from the start of the tune
    double length = 0.0;  // bars
    int pitch = 0;        // semitones, 69 is 440 hertz; 0 for drums
    int slideFrom = 0;    // the pitch it slides from; 0 when it does not
    Force force = Force::Plain;
    bool clipped = false;   // played short
    double decibels = 0.0;  // the part's own level for this voice
};

struct ScoreVoice {
    std::string name;
    std::string instrument;
    bool drum = false;
    int low = 60;  // chords and degrees are set in the octave from this pitch up
    double decibels = 0.0;
    double pan = 0.0;    // -1 left to 1 right
    double room = 0.0;   // how much is sent to the room, 0 to 1
    double echo = 0.0;   // and to the echo
    double wide = 0.0;   // 0 to 1: two takes, left and right
    double loose = 0.0;  // seconds by which the hand is early or late at most
    double duck = 0.0;   // decibels by which the voice gives way to the kick
    std::vector<ScoreNote> notes{};
};

struct Score {
    std::string title;
    double tempo = 120.0;  // beats a minute
    int beats = 4;         // to a bar
    int bars = 0;
    int swingSteps = 8;  // which notes swing: 8 eighths, 16 sixteenths
    double swing = 0.0;  // how late every second one is, as a share of its length
    double echoBeats = 0.75;
    double echoFeedback = 0.35;
    double roomHalfLife = 0.12;  // seconds
    double roomBrightness = 5000.0;
    double loudness = -20.0;  // LUFS
    std::vector<ScoreVoice> voices;

    // The loop's exact length.
    std::size_t frames() const;
};

// Thrown by the parser; the text begins with the line, as in "line 12: ...".
class ScoreError : public std::runtime_error {
  public:
    ScoreError(int line, const std::string& what);
};

// Reads a score; throws ScoreError for the first thing that is wrong.
Score parseScore(std::string_view text);

// The same for a file; a ScoreError's text is led by the path. std::runtime_error when the file cannot be read.
Score readScore(const std::filesystem::path& path);

}  // namespace vandrel::art
