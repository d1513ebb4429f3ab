#include "audio/tunes/steps.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <cmath>

namespace vandrel::art {

namespace {

constexpr double hair = 1e-9;  // bars; far below a frame

// Reads the steps of one bar. A group in square brackets shares one step evenly, and may hold groups itself.
class BarReader {
  public:
    BarReader(std::vector<ScoreNote>& notes, const ScoreVoice& voice, const std::vector<PlacedChord>& chords, int line)
        : notes_(notes), voice_(voice), chords_(chords), line_(line) {}

    void read(std::string_view text, double start, double length) {
        const auto steps = split(text);
        const double step = length / static_cast<double>(steps.size());
        for (std::size_t i = 0; i < steps.size(); ++i) {
            const double place = start + step * static_cast<double>(i);
            if (steps[i].front() == '[') {
                read(steps[i].substr(1, steps[i].size() - 2), place, step);
            } else if (voice_.drum) {
                drumStep(steps[i].front(), place, step);
            } else {
                noteStep(steps[i], place, step);
            }
        }
    }

  private:
    // Drums are written without spaces, one character a step; spaces only group them for the eye.
    std::vector<std::string_view> split(std::string_view text) const {
        std::vector<std::string_view> steps;
        for (std::size_t i = 0; i < text.size();) {
            if (std::isspace(static_cast<unsigned char>(text[i])) != 0) {
                ++i;
                continue;
            }
            std::size_t end = i + 1;
            if (text[i] == '[') {
                int depth = 1;
                for (; end < text.size() && depth > 0; ++end) {
                    depth += text[end] == '[' ? 1 : text[end] == ']' ? -1 : 0;
                }
                if (depth > 0) {
                    throw ScoreError(line_, "a group is not closed");
                }
            } else if (!voice_.drum) {
                while (end < text.size() && text[end] != '[' &&
                       std::isspace(static_cast<unsigned char>(text[end])) == 0) {
                    ++end;
                }
            }
            steps.push_back(text.substr(i, end - i));
            i = end;
        }
        if (steps.empty()) {
            throw ScoreError(line_, "a bar is empty");
        }
        return steps;
    }

    void drumStep(char step, double place, double length) {
        if (step == '.') {
            return;
        }
        if (step != 'X' && step != 'x' && step != 'o') {
            throw ScoreError(line_, fmt::format("\"{}\" is not a drum step", step));
        }
        const Force force = step == 'X' ? Force::Accent : step == 'x' ? Force::Plain : Force::Soft;
        notes_.push_back({.start = place, .length = length, .force = force});
    }

    void noteStep(std::string_view step, double place, double length) {
        if (step == ".") {
            return;
        }
        if (step == "-") {
            hold(place, length);
            return;
        }
        ScoreNote note{.start = place, .length = length};
        bool slides = false;
        std::string_view names = step;
        for (; !names.empty() && std::string_view("!?^/").find(names.back()) != std::string_view::npos;
             names.remove_suffix(1)) {
            switch (names.back()) {
                case '!':
                    note.force = Force::Accent;
                    break;
                case '?':
                    note.force = Force::Soft;
                    break;
                case '^':
                    note.clipped = true;
                    break;
                default:
                    slides = true;
            }
        }
        if (slides) {
            if (notes_.empty()) {
                throw ScoreError(line_, fmt::format("\"{}\" has no note to slide from", step));
            }
            note.slideFrom = notes_.back().pitch;
        }
        for (const int pitch : pitches(names, place)) {
            note.pitch = pitch;
            notes_.push_back(note);
        }
    }

    // Every note that ends here sounds on.
    void hold(double place, double length) {
        bool held = false;
        for (auto note = notes_.rbegin(); note != notes_.rend(); ++note) {
            if (std::abs(note->start + note->length - place) < hair) {
                note->length += length;
                held = true;
            } else if (held) {
                break;
            }
        }
        if (!held) {
            throw ScoreError(line_, "there is no note to hold");
        }
    }

    std::vector<int> pitches(std::string_view names, double place) const {
        std::vector<int> result;
        while (true) {
            const auto plus = names.find('+');
            const std::string_view name = names.substr(0, plus);
            if (name == "*") {
                for (const int interval : chord(place).intervals) {
                    result.push_back(set(chord(place).root + interval));
                }
                std::sort(result.begin(), result.end());
            } else if (const auto pitch = pitchNamed(name)) {
                result.push_back(*pitch);
            } else {
                result.push_back(degreePitch(name, place));
            }
            if (plus == std::string_view::npos) {
                return result;
            }
            names.remove_prefix(plus + 1);
        }
    }

    // The pitch of that name in the octave from the voice's low note up.
    int set(int semitones) const { return voice_.low + ((semitones - voice_.low) % 12 + 12) % 12; }

    const Chord& chord(double place) const {
        const Chord* result = chordAt(chords_, place);
        if (result == nullptr) {
            throw ScoreError(line_, "there is no chord here; the line \"chords\" must stand above");
        }
        return *result;
    }

    // "1", "3", "5'" (an octave up), "7,," (two down), "0" the bass note.
    int degreePitch(std::string_view name, double place) const {
        std::string_view rest = name;
        int number = 0;
        while (!rest.empty() && std::isdigit(static_cast<unsigned char>(rest.front())) != 0) {
            number = std::min(99, number * 10 + (rest.front() - '0'));
            rest.remove_prefix(1);
        }
        const bool digits = rest.size() < name.size();
        int octaves = 0;
        for (; !rest.empty() && (rest.front() == '\'' || rest.front() == ','); rest.remove_prefix(1)) {
            octaves += rest.front() == '\'' ? 1 : -1;
        }
        if (!digits || !rest.empty()) {
            throw ScoreError(line_, fmt::format("\"{}\" is not a note", name));
        }
        if (number == 0) {
            return set(chord(place).bass) + 12 * octaves;
        }
        const auto interval = chord(place).degree(number);
        if (!interval) {
            throw ScoreError(line_, fmt::format("the chord has no degree {}", number));
        }
        return set(chord(place).root) + *interval + 12 * octaves;
    }

    std::vector<ScoreNote>& notes_;
    const ScoreVoice& voice_;
    const std::vector<PlacedChord>& chords_;
    int line_;
};

}  // namespace

const Chord* chordAt(const std::vector<PlacedChord>& chords, double bars) {
    const Chord* result = nullptr;
    for (const PlacedChord& placed : chords) {
        if (placed.start <= bars + hair) {
            result = &placed.chord;
        }
    }
    return result;
}

void appendBar(std::vector<ScoreNote>& notes, std::string_view bar, double start, const ScoreVoice& voice,
               const std::vector<PlacedChord>& chords, int line) {
    BarReader(notes, voice, chords, line).read(bar, start, 1.0);
}

}  // namespace vandrel::art
