// The instruments that scores call by name. Each plays one note into a signal of its own; the renderer places it.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "audio/synth/signal.h"

namespace vandrel::art {

// What is asked of an instrument for one note.
struct Tone {
    double hertz = 440.0;    // drums have a pitch of their own and do not look
    double slideFrom = 0.0;  // hertz; 0 for a note that starts where it is
    double seconds = 0.5;    // how long it is held; it may ring on
    double force = 0.7;      // 0 to 1, soft to hard: how bright the note is. How loud it is, is the renderer's business
    std::uint32_t take = 0;  // another take of the same note differs by a little, as from a hand
};

struct Instrument {
    std::string_view name;
    Signal (*play)(const Tone& tone);
};

// The three shelves of instruments.
std::span<const Instrument> struckInstruments();
std::span<const Instrument> heldInstruments();
std::span<const Instrument> drumInstruments();

// Null when nothing has that name.
const Instrument* findInstrument(std::string_view name);

}  // namespace vandrel::art
