#include "audio/tunes/harmony.h"

#include <array>
#include <cmath>
#include <string>

namespace vandrel::art {

namespace {

// c, d, e, f, g, a, b above c.
std::optional<int> letterPitch(char letter) {
    constexpr std::string_view letters = "c d ef g a b";
    const auto place = letters.find(letter);
    if (letter == ' ' || place == std::string_view::npos) {
        return std::nullopt;
    }
    return static_cast<int>(place);
}

struct ChordKind {
    std::string_view symbol;
    std::array<int, 5> intervals;
    std::size_t count;
};

constexpr std::array<ChordKind, 18> chordKinds{{{"", {0, 4, 7}, 3},
                                                {"m", {0, 3, 7}, 3},
                                                {"5", {0, 7}, 2},
                                                {"6", {0, 4, 7, 9}, 4},
                                                {"m6", {0, 3, 7, 9}, 4},
                                                {"7", {0, 4, 7, 10}, 4},
                                                {"m7", {0, 3, 7, 10}, 4},
                                                {"maj7", {0, 4, 7, 11}, 4},
                                                {"9", {0, 4, 7, 10, 14}, 5},
                                                {"m9", {0, 3, 7, 10, 14}, 5},
                                                {"maj9", {0, 4, 7, 11, 14}, 5},
                                                {"add9", {0, 4, 7, 14}, 4},
                                                {"sus2", {0, 2, 7}, 3},
                                                {"sus4", {0, 5, 7}, 3},
                                                {"7sus4", {0, 5, 7, 10}, 4},
                                                {"dim", {0, 3, 6}, 3},
                                                {"m7b5", {0, 3, 6, 10}, 4},
                                                {"aug", {0, 4, 8}, 3}}};

// A letter with its sharp or flat at the front of `text`, which loses it.
std::optional<int> takeRoot(std::string_view& text, bool capital) {
    if (text.empty()) {
        return std::nullopt;
    }
    const char letter = text.front();
    const auto pitch = letterPitch(capital && letter >= 'A' && letter <= 'G' ? static_cast<char>(letter - 'A' + 'a')
                                   : capital                                 ? ' '
                                                                             : letter);
    if (!pitch) {
        return std::nullopt;
    }
    text.remove_prefix(1);
    int shift = 0;
    if (!text.empty() && (text.front() == '#' || text.front() == 'b')) {
        shift = text.front() == '#' ? 1 : -1;
        text.remove_prefix(1);
    }
    return *pitch + shift;
}

}  // namespace

std::optional<int> pitchNamed(std::string_view name) {
    const auto root = takeRoot(name, false);
    if (!root || name.size() != 1 || name.front() < '0' || name.front() > '8') {
        return std::nullopt;
    }
    return *root + 12 * (name.front() - '0' + 1);
}

double hertzOf(double pitch) {
    return 440.0 * std::exp2((pitch - 69.0) / 12.0);
}

std::optional<int> Chord::degree(int number) const {
    const auto within = [this](int low, int high) -> std::optional<int> {
        for (const int interval : intervals) {
            if (interval >= low && interval <= high) {
                return interval;
            }
        }
        return std::nullopt;
    };
    switch (number) {
        case 1:
            return 0;
        case 3:
            return within(2, 5);  // a suspended fourth or second stands for the third
        case 5:
            return within(6, 8);
        case 6:
            return within(9, 9);
        case 7:
            return within(10, 11);
        case 9:
            return within(14, 14);
        case 8:
        case 10:
        case 12: {
            const auto lower = degree(number - 7);
            return lower ? std::optional(*lower + 12) : std::nullopt;
        }
        default:
            return std::nullopt;
    }
}

std::optional<Chord> chordNamed(std::string_view symbol) {
    const auto root = takeRoot(symbol, true);
    if (!root) {
        return std::nullopt;
    }
    Chord chord;
    chord.root = (*root + 12) % 12;
    chord.bass = chord.root;
    if (const auto stroke = symbol.find('/'); stroke != std::string_view::npos) {
        std::string_view behind = symbol.substr(stroke + 1);
        const auto bass = takeRoot(behind, true);
        if (!bass || !behind.empty()) {
            return std::nullopt;
        }
        chord.bass = (*bass + 12) % 12;
        symbol = symbol.substr(0, stroke);
    }
    for (const ChordKind& kind : chordKinds) {
        if (kind.symbol == symbol) {
            chord.intervals.assign(kind.intervals.begin(),
                                   kind.intervals.begin() + static_cast<std::ptrdiff_t>(kind.count));
            return chord;
        }
    }
    return std::nullopt;
}

}  // namespace vandrel::art
