#include "audio/tunes/instruments.h"

namespace vandrel::art {

const Instrument* findInstrument(std::string_view name) {
    for (const auto shelf : {struckInstruments(), heldInstruments(), drumInstruments()}) {
        for (const Instrument& instrument : shelf) {
            if (instrument.name == name) {
                return &instrument;
            }
        }
    }
    return nullptr;
}

}  // namespace vandrel::art
