// What takes away: one-pole and resonant filters for sounds and instruments, and the second-order section of which the
// loudness meter and the fixed tone controls are made.
#pragma once

#include "audio/synth/signal.h"

namespace vandrel::art {

// Six decibels an octave, cutoff in hertz.
Signal gentleLowPass(Signal source, double hertz);
Signal gentleHighPass(Signal source, double hertz);

enum class Pass { Low, Band, High };

// Twelve decibels an octave round a moving cutoff. `resonance` is the quality: 0.7 is flat, 5 whistles. The filter
// lasts as long as the shorter of the two signals.
Signal resonantFilter(Pass pass, const Signal& source, const Signal& cutoff, double resonance);
Signal resonantFilter(Pass pass, const Signal& source, double cutoff, double resonance);

// A second-order section; the coefficients are those of the transfer function with the leading one of the
// denominator 1.
class Biquad {
  public:
    Biquad(double b0, double b1, double b2, double a1, double a2) : b0_(b0), b1_(b1), b2_(b2), a1_(a1), a2_(a2) {}
    // A shelf above `hertz` by `decibels`, and a cut below `hertz`, both as the loudness measure prescribes them. What
    // the cut passes is a little louder than before: by less than a tenth of a decibel for cuts below 100 hertz.
    static Biquad highShelf(double hertz, double decibels, double quality);
    static Biquad highPass(double hertz, double quality);
    double process(double in) {
        const double out = b0_ * in + first_;
        first_ = b1_ * in - a1_ * out + second_;
        second_ = b2_ * in - a2_ * out;
        return out;
    }

  private:
    double b0_, b1_, b2_, a1_, a2_;
    double first_ = 0.0;
    double second_ = 0.0;
};

}  // namespace vandrel::art
