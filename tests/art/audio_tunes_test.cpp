// The four tunes as they lie in the game's folder: exact length, seamless, equally loud; and how they come about.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>

#include "art/signal_measures.h"
#include "audio/synth/oscillators.h"
#include "audio/tunes/loudness.h"
#include "audio/tunes/ogg_file.h"
#include "audio/tunes/render.h"
#include "audio/tunes/score.h"

namespace vandrel::art {
namespace {

const std::filesystem::path source = VANDREL_SOURCE_DIR;

double steepest(const Signal& signal, std::size_t from, std::size_t count) {
    double step = 0.0;
    for (std::size_t i = from; i < from + count; ++i) {
        step = std::max(step, std::abs(signal[(i + 1) % signal.size()] - signal[i % signal.size()]));
    }
    return step;
}

std::string bytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST(Loudness, AgreesWithTheBroadcastersReferenceTone) {
    // A sine of 997 hertz on one channel at full scale is -3.01 LUFS; on both, 3 more; 20 decibels below, 20 less.
    const Signal tone = oscillate(Wave::Sine, steady(5.0, 997.0));
    EXPECT_NEAR(integratedLoudness({tone, silence(5.0)}), -3.01, 0.05);
    EXPECT_NEAR(integratedLoudness({tone, tone}), 0.0, 0.05);
    EXPECT_NEAR(integratedLoudness({scaled(tone, 0.1), silence(5.0)}), -23.01, 0.05);
    // Silence before and after does not count.
    Signal late = silence(15.0);
    add(late, tone, 1.0, 5.0);
    EXPECT_NEAR(integratedLoudness({late, late}), 0.0, 0.3);
    EXPECT_TRUE(std::isinf(integratedLoudness({silence(2.0), silence(2.0)})));
}

TEST(Tunes, HaveTheirExactLengthLoudnessAndPeak) {
    for (const auto& [name, frames] : {std::pair{"Zoo", 3024000U},
                                       {"Breakdown", 3628800U},
                                       {"If Not Now When", 4032000U},
                                       {"Who Likes To Party", 2822400U}}) {
        SCOPED_TRACE(name);
        const StereoSignal sound = readOgg(source / "game" / "music" / (std::string(name) + ".ogg"));
        ASSERT_EQ(sound.left.size(), frames);
        EXPECT_NEAR(integratedLoudness(sound), -20.0, 0.5);
        EXPECT_LT(std::max(peakOf(sound.left), peakOf(sound.right)), gainOf(-1.0));

        // It is stereo: the sides differ, by less than they have in common.
        Signal apart = sound.left;
        add(apart, sound.right, -1.0);
        Signal together = sound.left;
        add(together, sound.right);
        EXPECT_GT(rms(apart), 0.1 * rms(together));
        EXPECT_LT(rms(apart), rms(together));

        // The seam: no step steeper than the music's own around it, and no fade or gap on either side of it.
        for (const Signal* side : {&sound.left, &sound.right}) {
            const std::size_t size = side->size();
            EXPECT_LE(steepest(*side, size - 1, 1), steepest(*side, 0, sampleRate / 4));
            EXPECT_GT(rms(*side, size - sampleRate / 5, sampleRate / 5), 0.002);
            EXPECT_GT(rms(*side, 0, sampleRate / 5), 0.01);
        }

        // No hole: every half second is heard.
        for (std::size_t from = 0; from + sampleRate / 2 <= sound.left.size(); from += sampleRate / 2) {
            ASSERT_GT(rms(sound.left, from, sampleRate / 2), 0.004) << static_cast<double>(from) / sampleRate;
        }
    }
}

TEST(Tunes, EveryVoiceOfEveryScoreHasNotesWithinReason) {
    for (const char* name : {"zoo", "breakdown", "if_not_now_when", "who_likes_to_party"}) {
        const Score score = readScore(source / "art" / "audio" / "scores" / (std::string(name) + ".score"));
        for (const ScoreVoice& voice : score.voices) {
            EXPECT_FALSE(voice.notes.empty()) << name << ": " << voice.name;
            for (const ScoreNote& note : voice.notes) {
                ASSERT_LT(note.start, score.bars) << name << ": " << voice.name;
                ASSERT_TRUE(voice.drum || (note.pitch >= 28 && note.pitch <= 103))
                    << name << ": " << voice.name << " " << note.pitch;
            }
        }
    }
}

// The second match track lives from this: every eight bars one more line joins, and nobody leaves.
TEST(Tunes, TheWaitingTuneAddsAVoiceEveryEightBars) {
    const Score score = readScore(source / "art" / "audio" / "scores" / "if_not_now_when.score");
    ASSERT_EQ(score.bars, 48);
    int before = 0;
    for (int part = 0; part < 6; ++part) {
        int playing = 0;
        for (const ScoreVoice& voice : score.voices) {
            playing += std::any_of(voice.notes.begin(), voice.notes.end(), [&](const ScoreNote& note) {
                return !voice.drum && note.start >= 8 * part && note.start < 8 * part + 7;
            });
        }
        EXPECT_GT(playing, before) << "part " << part + 1;
        before = playing;
    }
}

// A short tune with everything that rings: room, echo, a note over the end.
Score ringingScore() {
    return parseScore(
        "tempo 120\necho 0.75 0.4\nroom 0.2 5000\n"
        "voice lead brass gain -6 pan -40 room 30 echo 30 wide 40 loose 5\n"
        "voice keys keys gain -6 pan 40 room 30\n"
        "drum kick kick duck 0\n"
        "part A 2\nlead | . . . . | . . c5 - |\nkeys | e4 g4 c5 e5 |\nkick | x.x. |\nform A\n");
}

TEST(Tunes, WhatRingsOverTheEndSoundsAtTheStart) {
    Score score = ringingScore();
    score.voices[1].notes.clear();
    score.voices[2].notes.clear();
    const StereoSignal sound = renderScore(score);
    // The lead alone is held to the end of the loop; its release and echoes lie in the first beat.
    EXPECT_GT(rms(sound.left, 0, sampleRate / 2),
              0.05 * rms(sound.left, sound.left.size() - sampleRate / 2, sampleRate / 2));
    // A long silence stands before it.
    EXPECT_LT(rms(sound.left, sound.left.size() / 2, sampleRate / 2), 0.05 * rms(sound.left, 0, sampleRate / 2));
    EXPECT_LT(steepest(sound.left, sound.left.size() - 1, 1),
              steepest(sound.left, sound.left.size() - sampleRate, sampleRate));
}

TEST(Tunes, NotesSoundWhenTheyAreWritten) {
    const StereoSignal sound =
        renderScore(parseScore("tempo 120\ndrum kick rim\npart A 2\nkick | X... ..x. | .... X... |\nform A\n"));
    const auto heardAt = [&](double seconds) {
        const auto frame = framesIn(seconds);
        return rms(sound.left, frame, 441) > 10.0 * rms(sound.left, frame + sound.left.size() - 882, 441);
    };
    for (const double onset : {0.0, 1.5, 3.0}) {
        EXPECT_TRUE(heardAt(onset)) << onset;
    }
    for (const double rest : {0.5, 1.0, 2.0, 2.5, 3.5}) {
        EXPECT_FALSE(heardAt(rest)) << rest;
    }
}

TEST(Tunes, TheSameScoreGivesTheSameBytesAndReadsBack) {
    const auto folder = std::filesystem::temp_directory_path() / "vandrel_ogg_test";
    const StereoSignal sound = renderScore(ringingScore());
    writeOgg(folder / "one.ogg", sound, "One");
    writeOgg(folder / "two.ogg", renderScore(ringingScore()), "One");
    EXPECT_EQ(bytesOf(folder / "one.ogg"), bytesOf(folder / "two.ogg"));

    const StereoSignal back = readOgg(folder / "one.ogg");
    ASSERT_EQ(back.left.size(), sound.left.size());
    Signal error = back.left;
    add(error, sound.left, -1.0);
    EXPECT_LT(rms(error), 0.2 * rms(sound.left));

    EXPECT_THROW(readOgg(folder / "none.ogg"), std::runtime_error);
    std::ofstream(folder / "text.ogg") << "not a stream at all";
    EXPECT_THROW(readOgg(folder / "text.ogg"), std::runtime_error);
    EXPECT_THROW(writeOgg(folder / "one.ogg" / "below.ogg", sound, "One"), std::exception);
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace vandrel::art
