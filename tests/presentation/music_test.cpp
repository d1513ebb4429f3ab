#include "presentation/music.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "base/random.h"
#include "heard_sound.h"
#include "presentation/ogg_music.h"
#include "presentation/sound.h"

namespace vandrel {

namespace {

using test::firstStretch;
using test::middle;
using test::SoundRecording;
using test::wait;
using test::writeTone;

constexpr int trackTone = 500;
constexpr double full = 32'000.0 / 32'768 * 0.7071;  // the library mixes a stream as centred between two sides

// The tracks hold plain tones: the library goes by what is in a file, not by its name.
class HeardMusic : public test::HeardSound {
  protected:
    void SetUp() override {
        HeardSound::SetUp();
        std::filesystem::create_directory("music");
        writeTone("music/Zoo.ogg", trackTone, 0.7);
        writeTone("music/Breakdown.ogg", 600, 2);
        writeTone("music/If Not Now When.ogg", 700, 2);
        writeTone("music/Who Likes To Party.ogg", 800, 2);
        initSound(100, 100);
    }
};

TEST_F(HeardMusic, EachFactoryPlaysItsTrack) {
    struct Case {
        const char* what;
        std::shared_ptr<Music> (*make)();
        int coin;
        int tone;
    };
    const Case cases[] = {
        {"menu", makeMenuMusic, 0, 500},
        {"match, first", makeMatchMusic, 0, 600},
        {"match, second", makeMatchMusic, 1, 700},
        {"victory", makeVictoryMusic, 0, 800},
    };
    for (const Case& row : cases) {
        for (std::uint32_t seed = 0;; ++seed) {
            seedGameRand(seed);
            if ((gameRand() & 1) == row.coin) {
                seedGameRand(seed);
                break;
            }
        }
        SoundRecording recording;
        const auto music = row.make();
        wait(500);
        recording.finish();
        for (const int tone : {500, 600, 700, 800}) {
            const auto levels = recording.levels(tone);
            const double heard = middle(levels, levels.size() - 15, levels.size());
            EXPECT_NEAR(heard, tone == row.tone ? full : 0, 0.02) << row.what << ", " << tone << " Hz";
        }
    }
}

TEST_F(HeardMusic, ATrackGoesOnOverItsEnd) {
    SoundRecording recording;
    const auto music = makeMenuMusic();
    wait(2500);
    recording.finish();
    const auto levels = recording.levels(trackTone);
    const std::size_t begin = firstStretch(levels, 0, [](double level) { return level > 0.5; });
    ASSERT_LT(begin + 160, levels.size());
    for (std::size_t from = begin + 5; from + 15 < levels.size(); from += 10) {
        EXPECT_NEAR(middle(levels, from, from + 10), full, 0.02) << (from - begin) * 10 << " ms";
    }
}

TEST_F(HeardMusic, AFadeFallsAlongALineAndStaysSilent) {
    SoundRecording recording;
    const auto music = makeMenuMusic();
    wait(300);
    music->fadeTo(2.0f, 0);
    wait(3000);
    recording.finish();
    const auto levels = recording.levels(trackTone);
    const auto below = [&](double part) {
        return static_cast<int>(firstStretch(levels,
                                             firstStretch(levels, 0, [](double level) { return level > 0.9 * full; }),
                                             [part](double level) { return level < part * full; })) *
               10;
    };
    // A gap of a busy machine reads as a fall: the last moment above counts as well as the first below.
    const auto lastAbove = [&](double part) {
        std::size_t last = levels.size();
        while (last > 0 && levels[last - 1] < part * full) {
            --last;
        }
        return static_cast<int>(last) * 10;
    };
    EXPECT_NEAR(lastAbove(0.25) - lastAbove(0.75), 1000, 150);
    EXPECT_NEAR(lastAbove(0.5) - lastAbove(0.75), 500, 150);
    EXPECT_NEAR(lastAbove(0.05) - lastAbove(0.9), 1700, 150);
    EXPECT_LE(below(0.5), lastAbove(0.5) + 10);
    const auto end = static_cast<std::size_t>(lastAbove(0.02) / 10);
    ASSERT_LT(end + 20, levels.size()) << "no silence";
    EXPECT_LT(*std::max_element(levels.begin() + static_cast<std::ptrdiff_t>(end), levels.end()), 0.021);
}

TEST_F(HeardMusic, AVolumeAndANewFadeFromTheLevelReached) {
    SoundRecording recording;
    const auto music = makeMenuMusic();
    music->setVolume(204);
    wait(400);
    music->fadeTo(2.0f, 0);
    wait(1000);
    music->fadeTo(4.0f, 255);
    wait(1500);
    recording.finish();
    const auto levels = recording.levels(trackTone);
    const std::size_t begin = firstStretch(levels, 0, [](double level) { return level > 0.7 * full; });
    EXPECT_NEAR(middle(levels, begin + 5, begin + 30), 0.8 * full, 0.03);
    // Down to half and up again, with no step on the way; the lowest is where the new fade took over.
    double lowest = 1;
    double before = middle(levels, begin + 5, begin + 15);
    for (std::size_t from = begin + 15; from + 10 < levels.size(); from += 10) {
        const double now = middle(levels, from, from + 10);
        EXPECT_NEAR(now, before, 0.1) << from * 10 << " ms";
        lowest = std::min(lowest, now);
        before = now;
    }
    EXPECT_NEAR(lowest, 0.4 * full, 0.1);
    EXPECT_GT(before, lowest + 0.06);
}

TEST_F(HeardMusic, StoppingAndDestroyingInAFadeSilenceAtOnce) {
    for (const bool destroy : {false, true}) {
        SoundRecording recording;
        auto music = makeMenuMusic();
        wait(300);
        music->fadeTo(30.0f, 0);
        wait(300);
        if (destroy) {
            music.reset();
        } else {
            music->stop();
        }
        wait(800);
        recording.finish();
        const auto levels = recording.levels(trackTone);
        const std::size_t begin = firstStretch(levels, 0, [](double level) { return level > 0.9 * full; });
        ASSERT_LT(begin + 20, levels.size());
        EXPECT_GT(middle(levels, begin + 20, begin + 40), 0.9 * full) << "a slow fade has hardly begun";
        EXPECT_LT(middle(levels, levels.size() - 40, levels.size()), 0.001) << (destroy ? "destroyed" : "stopped");
    }
}

TEST_F(HeardMusic, AMatchGoesOnWithoutItsTrack) {
    std::filesystem::remove_all("music");
    for (int i = 0; i < 8; ++i) {
        const auto music = makeMatchMusic();
        ASSERT_NE(dynamic_cast<NoMusic*>(music.get()), nullptr);
        const auto start = std::chrono::steady_clock::now();
        music->setVolume(255);
        music->fadeTo(4.0f, 0);
        music->stop();
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    }
    EXPECT_THROW(makeMenuMusic(), OggMusic::Failure);
    EXPECT_THROW(makeVictoryMusic(), OggMusic::Failure);
}

// Whatever comes in whatever order, with samples beside it, ends cleanly.
TEST_F(HeardMusic, FiveHundredFadesStopsAndDestructions) {
    setVolume(AudioType::Music, 0);
    setVolume(AudioType::Effects, 0);
    std::mt19937 generator(12);
    std::shared_ptr<Music> music[2];
    int left = 500;
    while (left > 0) {
        std::shared_ptr<Music>& one = music[generator() % 2];
        if (!one) {
            one = makeMatchMusic();
            continue;
        }
        --left;
        switch (generator() % 6) {
            case 0:
                one->stop();
                break;
            case 1:
                one.reset();
                break;
            case 2:
                one->setVolume(static_cast<int>(generator() % 256));
                break;
            default:
                one->fadeTo(static_cast<float>(generator() % 50) / 100.0f, static_cast<int>(generator() % 256));
                break;
        }
        playSample(SampleIds::Beat2);
        wait(static_cast<int>(generator() % 8));
    }
    for (auto& one : music) {
        if (one) {
            one->fadeTo(1.0f, 0);
        }
        one.reset();
    }
    SUCCEED();
}

}  // namespace

}  // namespace vandrel
