#include "audio/tunes/render.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numbers>
#include <tuple>
#include <utility>

#include "audio/synth/effects.h"
#include "audio/synth/filters.h"
#include "audio/synth/oscillators.h"
#include "audio/tunes/harmony.h"
#include "audio/tunes/instruments.h"
#include "audio/tunes/loudness.h"

namespace vandrel::art {

namespace {

constexpr std::uint32_t takesPerNote = 3;
constexpr double clippedSeconds = 0.09;

struct ForceShape {
    double colour;  // what the instrument is told
    double gain;
};

ForceShape shapeOf(Force force) {
    switch (force) {
        case Force::Soft:
            return {0.35, gainOf(-7.0)};
        case Force::Plain:
            return {0.65, 1.0};
        case Force::Accent:
            return {0.95, gainOf(2.5)};
    }
    return {0.65, 1.0};
}

// The buses of the mixing desk, each a whole loop.
struct Desk {
    explicit Desk(std::size_t frames)
        : dry{Signal(frames, 0.0), Signal(frames, 0.0)}, room(frames, 0.0), echo(frames, 0.0), ducking(frames, 0.0) {}
    StereoSignal dry;
    Signal room;
    Signal echo;
    Signal ducking;  // 1 where the kick has just been struck, 0 where a voice has its own level
};

class Player {
  public:
    Player(const Score& score, Desk& desk) : score_(score), desk_(desk) {}

    void play(const ScoreVoice& voice, std::uint32_t seed) {
        const Instrument& instrument = *findInstrument(voice.instrument);
        std::map<std::tuple<int, int, std::size_t, Force, std::uint32_t>, Signal> played;
        NoiseSource hand(seed);
        std::uint32_t count = 0;
        for (const ScoreNote& note : voice.notes) {
            const double late = hand.next() * voice.loose * sampleRate;
            const double weight = 1.0 + 0.08 * hand.next();
            const double start = swungFrame(score_, note.start);
            const double end = swungFrame(score_, note.start + note.length);
            // Held lengths are rounded to a hundredth of a second, so that equal notes are played once and kept.
            double seconds = std::max(0.02, std::round((end - start) / sampleRate * 100.0) / 100.0);
            if (note.clipped) {
                seconds = std::min(seconds, clippedSeconds);
            }
            const ForceShape force = shapeOf(note.force);
            const double gain = gainOf(voice.decibels + note.decibels) * force.gain * weight;
            // A wide voice is played twice, for the left and the right.
            for (std::uint32_t side = 0; side < (voice.wide > 0.0 ? 2U : 1U); ++side) {
                const std::uint32_t take = voice.wide > 0.0 ? side : count % takesPerNote;
                const auto key = std::make_tuple(note.pitch, note.slideFrom, framesIn(seconds), note.force, take);
                auto found = played.find(key);
                if (found == played.end()) {
                    const Tone tone{.hertz = hertzOf(note.pitch),
                                    .slideFrom = note.slideFrom == 0 ? 0.0 : hertzOf(note.slideFrom),
                                    .seconds = seconds,
                                    .force = force.colour,
                                    .take = take};
                    found = played.emplace(key, instrument.play(tone)).first;
                }
                const double pan = voice.wide > 0.0
                                       ? std::clamp(voice.pan + (side == 0 ? -voice.wide : voice.wide), -1.0, 1.0)
                                       : voice.pan;
                mix(found->second, start + late, voice.wide > 0.0 ? gain * 0.75 : gain, pan, voice);
            }
            ++count;
        }
    }

  private:
    // Adds `sound` to the buses, round the end of the loop to its start.
    void mix(const Signal& sound, double start, double gain, double pan, const ScoreVoice& voice) {
        const auto size = static_cast<std::int64_t>(desk_.dry.left.size());
        std::int64_t place = (std::llround(start) % size + size) % size;
        const double angle = (pan + 1.0) * std::numbers::pi / 4.0;
        const double left = std::cos(angle) * std::numbers::sqrt2 * gain;
        const double right = std::sin(angle) * std::numbers::sqrt2 * gain;
        const double duck = 1.0 - gainOf(-voice.duck);
        for (const double value : sound) {
            const auto frame = static_cast<std::size_t>(place);
            const double ducked = value * (1.0 - duck * desk_.ducking[frame]);
            desk_.dry.left[frame] += ducked * left;
            desk_.dry.right[frame] += ducked * right;
            desk_.room[frame] += ducked * gain * voice.room;
            desk_.echo[frame] += ducked * gain * voice.echo;
            place = place + 1 == size ? 0 : place + 1;
        }
    }

    const Score& score_;
    Desk& desk_;
};

// The voices named "kick" push the ducked voices down for a fifth of a second.
void fillDucking(const Score& score, Signal& ducking) {
    for (const ScoreVoice& voice : score.voices) {
        if (voice.name != "kick") {
            continue;
        }
        const Signal dip = struckLevel(0.35, 0.004, 0.07);
        for (const ScoreNote& note : voice.notes) {
            auto place = static_cast<std::size_t>(swungFrame(score, note.start)) % ducking.size();
            for (const double value : dip) {
                ducking[place] = std::max(ducking[place], value);
                place = place + 1 == ducking.size() ? 0 : place + 1;
            }
        }
    }
}

// A cut of the lowest rumble; run twice, so that the filter is in full swing at the loop's start.
void cutRumble(Signal& channel) {
    Biquad cut = Biquad::highPass(30.0, 0.7);
    for (const double value : channel) {
        cut.process(value);
    }
    for (double& value : channel) {
        value = cut.process(value);
    }
}

void scaleBoth(StereoSignal& signal, double factor) {
    signal.left = scaled(std::move(signal.left), factor);
    signal.right = scaled(std::move(signal.right), factor);
}

void master(StereoSignal& signal, double loudness) {
    cutRumble(signal.left);
    cutRumble(signal.right);
    scaleBoth(signal, gainOf(loudness - integratedLoudness(signal)));
    levelLoop(signal, loudness + 8.0, 1.8);
    limitLoop(signal, gainOf(-1.5));
    scaleBoth(signal, gainOf(loudness - integratedLoudness(signal)));
    limitLoop(signal, gainOf(-1.5));
}

}  // namespace

double swungFrame(const Score& score, double bars) {
    const double pairs = score.swingSteps / 8.0 * score.beats;  // pairs of swinging notes in a bar
    const double place = bars * pairs;
    const double whole = std::floor(place + 1e-9);
    const double within = std::max(0.0, place - whole);
    const double middle = 0.5 + 0.5 * score.swing;
    const double swung = within < 0.5 ? within * 2.0 * middle : middle + (within - 0.5) * 2.0 * (1.0 - middle);
    return (whole + swung) / pairs * score.beats * 60.0 / score.tempo * sampleRate;
}

StereoSignal renderScore(const Score& score) {
    Desk desk(score.frames());
    fillDucking(score, desk.ducking);
    Player player(score, desk);
    std::uint32_t seed = 1;
    for (const ScoreVoice& voice : score.voices) {
        player.play(voice, seed++);
    }
    const StereoSignal room = loopedRoom(gentleHighPass(desk.room, 180.0), score.roomHalfLife, score.roomBrightness);
    add(desk.dry.left, room.left);
    add(desk.dry.right, room.right);
    const double beat = 60.0 / score.tempo;
    const StereoSignal echo =
        loopedPingPong(gentleHighPass(desk.echo, 250.0), score.echoBeats * beat, score.echoFeedback);
    add(desk.dry.left, echo.left);
    add(desk.dry.right, echo.right);
    master(desk.dry, score.loudness);
    return std::move(desk.dry);
}

}  // namespace vandrel::art
