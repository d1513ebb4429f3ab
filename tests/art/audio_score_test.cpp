// The notation of the tunes: what musicians write, what it means, and what they are told when it is wrong.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "audio/tunes/harmony.h"
#include "audio/tunes/render.h"
#include "audio/tunes/score.h"

namespace vandrel::art {
namespace {

const std::string head =
    "title  A Test\n"
    "tempo  120\n"
    "voice  lead marimba low c4\n"
    "voice  bass upright low e2\n"
    "drum   kick kick\n";

// One part of `bars` with these lines.
Score scoreOf(const std::string& lines, int bars = 1) {
    return parseScore(head + "part A " + std::to_string(bars) + "\n" + lines + "\nform A\n");
}

std::vector<int> pitchesOf(const ScoreVoice& voice) {
    std::vector<int> result;
    for (const ScoreNote& note : voice.notes) {
        result.push_back(note.pitch);
    }
    return result;
}

TEST(Harmony, NotesAndChordsAreReadAsMusiciansWriteThem) {
    for (const auto& [name, pitch] : {std::pair{"a4", 69}, {"c4", 60}, {"bb3", 58}, {"b3", 59}, {"f#5", 78}}) {
        EXPECT_EQ(pitchNamed(name), pitch) << name;
    }
    for (const char* wrong : {"", "h4", "c", "c9", "C4", "c##4", "c4x"}) {
        EXPECT_EQ(pitchNamed(wrong), std::nullopt) << wrong;
    }
    EXPECT_DOUBLE_EQ(hertzOf(69), 440.0);
    EXPECT_NEAR(hertzOf(60), 261.626, 0.001);

    const auto chord = chordNamed("Bbmaj7/D");
    ASSERT_TRUE(chord);
    EXPECT_EQ(chord->root, 10);
    EXPECT_EQ(chord->bass, 2);
    EXPECT_EQ(chord->intervals, (std::vector<int>{0, 4, 7, 11}));
    EXPECT_EQ(chord->degree(7), 11);
    EXPECT_EQ(chord->degree(10), 16);
    EXPECT_EQ(chord->degree(9), std::nullopt);
    EXPECT_EQ(chordNamed("Am7b5")->degree(5), 6);
    EXPECT_EQ(chordNamed("E7sus4")->degree(3), 5);
    for (const char* wrong : {"", "H", "Cfoo", "c", "C/", "C/E7"}) {
        EXPECT_FALSE(chordNamed(wrong)) << wrong;
    }
}

TEST(ScoreNotation, ABarIsDividedEvenlyByItsSteps) {
    const Score score = scoreOf("lead | c5 . e5 - | [g5 a5] b5! |\nkick | X.x. ..o. |", 2);
    const auto& lead = score.voices[0].notes;
    ASSERT_EQ(pitchesOf(score.voices[0]), (std::vector<int>{72, 76, 79, 81, 83}));
    EXPECT_DOUBLE_EQ(lead[1].start, 0.5);
    EXPECT_DOUBLE_EQ(lead[1].length, 0.5);  // held for a second step
    EXPECT_DOUBLE_EQ(lead[2].start, 1.0);
    EXPECT_DOUBLE_EQ(lead[3].start, 1.25);  // the group shares one step
    EXPECT_EQ(lead[4].force, Force::Accent);

    // The kick's one bar fills both.
    const auto& kick = score.voices[2].notes;
    ASSERT_EQ(kick.size(), 6U);
    EXPECT_DOUBLE_EQ(kick[1].start, 0.25);
    EXPECT_EQ(kick[2].force, Force::Soft);
    EXPECT_DOUBLE_EQ(kick[3].start, 1.0);
    EXPECT_EQ(score.frames(), 4U * sampleRate);
}

TEST(ScoreNotation, DegreesAndChordsFollowTheHarmony) {
    const Score score = scoreOf("chords | Am F/C | G7 |\nbass | 1 5, 0 8 | 7 . . . |\nlead | *^ * | 3' . |", 2);
    EXPECT_EQ(pitchesOf(score.voices[1]), (std::vector<int>{45, 40, 48, 53, 53}));
    // The chords stand in the octave from c4 up: c e a, then c f a.
    EXPECT_EQ(pitchesOf(score.voices[0]), (std::vector<int>{60, 64, 69, 60, 65, 69, 83}));
    EXPECT_TRUE(score.voices[0].notes[0].clipped);
}

TEST(ScoreNotation, SlidesHoldsAndRepeatsReachOverTheBarLine) {
    const Score score = scoreOf("lead | c5+e5 - | - g5/ | % |", 3);
    const auto& lead = score.voices[0].notes;
    ASSERT_EQ(pitchesOf(score.voices[0]), (std::vector<int>{72, 76, 79, 79}));
    EXPECT_DOUBLE_EQ(lead[0].length, 1.5);
    EXPECT_DOUBLE_EQ(lead[1].length, 1.5);
    EXPECT_EQ(lead[2].slideFrom, 76);
    EXPECT_DOUBLE_EQ(lead[2].length, 1.0);  // the repeated bar begins with its hold
    EXPECT_DOUBLE_EQ(lead[3].start, 2.5);
}

TEST(ScoreNotation, PartsFollowTheFormAndMayBorrow) {
    const Score score = parseScore(head +
                                   "part A 2  # a remark\n"
                                   "lead | c5 | d5 |\nbass | e2 | f2 |\n"
                                   "part B like A\nlead | g5 | a5 |\nbass silent\nlevel lead -6\n"
                                   "form A B A\n");
    EXPECT_EQ(score.title, "A Test");
    EXPECT_EQ(score.bars, 6);
    EXPECT_EQ(pitchesOf(score.voices[0]), (std::vector<int>{72, 74, 79, 81, 72, 74}));
    EXPECT_EQ(pitchesOf(score.voices[1]), (std::vector<int>{40, 41, 40, 41}));
    EXPECT_DOUBLE_EQ(score.voices[0].notes[2].decibels, -6.0);
    EXPECT_DOUBLE_EQ(score.voices[0].notes[4].decibels, 0.0);
    EXPECT_DOUBLE_EQ(score.voices[1].notes[2].start, 4.0);
}

TEST(ScoreNotation, SwingMovesTheSecondNoteOfAPairOnly) {
    Score score = scoreOf("lead | c5 |");
    score.swing = 0.2;
    EXPECT_DOUBLE_EQ(swungFrame(score, 0.0), 0.0);
    EXPECT_NEAR(swungFrame(score, 0.25), 0.5 * sampleRate, 1e-6);
    EXPECT_NEAR(swungFrame(score, 0.125), 0.6 * 0.5 * sampleRate, 1e-6);
    score.swingSteps = 16;
    EXPECT_NEAR(swungFrame(score, 0.125), 0.25 * sampleRate, 1e-6);
    EXPECT_NEAR(swungFrame(score, 0.0625), 0.6 * 0.25 * sampleRate, 1e-6);
}

TEST(ScoreNotation, FaultsAreNamedWithTheirLine) {
    const std::string part = head + "part A 2\n";  // the next line is the seventh
    const std::pair<std::string, std::string> faults[] = {
        {head, "line 5: the score has no form"},
        {head + "form A\n", "line 6: there is no part \"A\""},
        {"tempo fast\n", "line 1: \"tempo\" needs a number from 30 to 300"},
        {"tempo 120 \nvolume 3\n", "line 2: \"volume\" is not known here"},
        {"voice lead\n", "line 1: a voice needs a name and an instrument"},
        {"voice lead kazoo\n", "line 1: there is no instrument \"kazoo\""},
        {"voice lead marimba loud 3\n", "line 1: a voice has no setting \"loud\""},
        {"voice lead marimba low x\n", "line 1: \"low\" needs a note"},
        {head + "drum lead hat\n", "line 6: the name \"lead\" is taken"},
        {head + "part A\n", "line 6: a part needs a name and its number of bars"},
        {head + "part A like Z\n", "line 6: \"like\" needs the name of a part above"},
        {part + "part A 1\n", "line 7: there are two parts \"A\""},
        {part + "flute | c5 |\n", "line 7: there is no voice \"flute\""},
        {part + "lead c5 d5\n", "line 7: bars stand between bar lines, after the name of a voice"},
        {part + "lead | c5 | d5\n", "line 7: bars stand between bar lines, after the name of a voice"},
        {part + "lead | % |\n", "line 7: there is no bar to repeat"},
        {part + "level lead\n", "line 7: \"level\" needs a voice and decibels"},
        {part + "lead | c5 | d5 | e5 |\nform A\n", "line 7: 3 bars do not fill a part of 2"},
        {part + "lead | c5 | x5 |\nform A\n", "line 7: \"x5\" is not a note"},
        {part + "lead | c5 |  |\nform A\n", "line 7: a bar is empty"},
        {part + "lead | [c5 d5 |\nform A\n", "line 7: a group is not closed"},
        {part + "lead | - c5 |\nform A\n", "line 7: there is no note to hold"},
        {part + "lead | c5/ |\nform A\n", "line 7: \"c5/\" has no note to slide from"},
        {part + "lead | 1 |\nform A\n", "line 7: there is no chord here; the line \"chords\" must stand above"},
        {part + "chords | Am |\nlead | 7 |\nform A\n", "line 8: the chord has no degree 7"},
        {part + "chords | Hm |\nlead | c5 |\nform A\n", "line 7: \"Hm\" is not a chord"},
        {part + "kick | X..q |\nform A\n", "line 7: \"q\" is not a drum step"},
    };
    for (const auto& fault : faults) {
        EXPECT_THAT([&fault] { parseScore(fault.first); }, testing::ThrowsMessage<ScoreError>(fault.second))
            << fault.first;
    }
    EXPECT_THROW(readScore("no/such/file.score"), std::runtime_error);
}

}  // namespace
}  // namespace vandrel::art
