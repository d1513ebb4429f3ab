// The pause and the editors as whole screens, by a player who presses the next key when the screen asks for it.
#include "frontend/pause_menu.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <memory>
#include <stdexcept>
#include <tuple>

#include "arena/arena.h"
#include "frontend/menu_audio.h"
#include "frontend/menu_edit_colour.h"
#include "frontend/screen_stage.h"
#include "frontend/vandrel_menu.h"
#include "players/player.h"
#include "presentation/sound.h"
#include "shell/config.h"

namespace vandrel {
namespace {

constexpr RGB white{255, 255, 255};
constexpr RGB highlight{64, 64, 64};

class WholeScreens : public ScreenStage {
  protected:
    WholeScreens() {
        openConfig("vandrel.cfg");
        timer_ = al_create_timer(1.0 / 250);
        al_register_event_source(eventQueue, al_get_timer_event_source(timer_));
        al_start_timer(timer_);
        setKeyState([this](int keycode) { return isDown(keycode); });
    }

    ~WholeScreens() override {
        al_destroy_timer(timer_);
        players.clear();
    }

    std::deque<int> keys;  // each is down for one question about it, in an update of its own
    int held = 0;          // a key that is down until `letGo` says so
    std::function<bool()> letGo;

  private:
    static constexpr int mostQuestions = 2'000'000;

    bool isDown(int keycode) {
        if (++questions_ > mostQuestions) {
            throw std::runtime_error("the screen does not end");
        }
        if (keycode == held && keycode != 0) {
            held = letGo() ? 0 : held;
            return held != 0;
        }
        armed_ = armed_ || keycode == ALLEGRO_KEY_DELETE;  // a menu's last question of an update
        if (!armed_ || keys.empty() || keycode != keys.front()) {
            return false;
        }
        keys.pop_front();
        armed_ = false;
        return true;
    }

    ALLEGRO_TIMER* timer_;
    int questions_ = 0;
    bool armed_ = false;
};

TEST_F(WholeScreens, AColourIsStoredByBackAloneAndResetToWhatItWas) {
    RGB colour{10, 0, 200};
    keys = {ALLEGRO_KEY_RIGHT, ALLEGRO_KEY_DOWN, ALLEGRO_KEY_LEFT,
            ALLEGRO_KEY_DOWN,  ALLEGRO_KEY_DOWN, ALLEGRO_KEY_ENTER};
    menuEditColour(colour);
    EXPECT_EQ(colour, (RGB{11, 255, 200}));
    ALLEGRO_COLOR seeThrough = toColour(colour);
    seeThrough.a = 0.5f;
    keys = {ALLEGRO_KEY_RIGHT, ALLEGRO_KEY_UP, ALLEGRO_KEY_ENTER, ALLEGRO_KEY_UP, ALLEGRO_KEY_ENTER};
    menuEditColour(seeThrough);
    EXPECT_TRUE(sameColour(seeThrough, toColour(colour))) << "reset, and opaque";
}

TEST_F(WholeScreens, AVolumeIsStoredAtOnce) {
    setVolume(AudioType::Music, 100);
    setVolume(AudioType::Effects, 55);
    keys = {ALLEGRO_KEY_LEFT, ALLEGRO_KEY_DOWN, ALLEGRO_KEY_RIGHT, ALLEGRO_KEY_ESCAPE};
    menuAudio(nullptr, &layoutPause, 40);
    EXPECT_EQ(getVolume(AudioType::Music), 90);
    EXPECT_EQ(getVolume(AudioType::Effects), 65);
    EXPECT_EQ(getConfigInt("sound", "musicVolume", -1), 90);
    EXPECT_EQ(getConfigInt("sound", "soundEffectsVolume", -1), 65);
}

TEST_F(WholeScreens, EscapeDoesNothingAtTheRootOfAPause) {
    keys = {ALLEGRO_KEY_ESCAPE, ALLEGRO_KEY_UP, ALLEGRO_KEY_ENTER};
    EXPECT_TRUE(pauseMenu(nullptr, false)) << "the last row quits";
    keys = {ALLEGRO_KEY_ESCAPE, ALLEGRO_KEY_ENTER};
    EXPECT_FALSE(pauseMenu(nullptr, false)) << "the first row goes on";
}

TEST_F(WholeScreens, APauseGoesOnOnceNobodyHoldsTheBombButton) {
    players.push_back(std::make_shared<Player>(0, 0, -1, PlayerLook{}, theControlsManager->devices.front()));
    bool prompted = false;
    held = ALLEGRO_KEY_RCTRL;
    letGo = [&prompted] {
        for (int x = 900; x < 1020 && !prompted; ++x) {
            prompted = pixelAt(*screen, x, 540 + 15) == white;
        }
        return prompted;
    };
    keys = {ALLEGRO_KEY_ENTER};
    EXPECT_FALSE(pauseMenu(nullptr, false));
    EXPECT_TRUE(prompted);
}

TEST_F(WholeScreens, APauseShowsWhatLiesBehindAndFitsASmallArena) {
    const std::tuple<int, int, bool, int, int> cases[] = {
        {864, 480, false, 100, 255}, {864, 480, true, 100, 31}, {416, 300, true, 20, 31}};
    for (const auto& [width, height, dim, firstRow, brightness] : cases) {
        setScreenSize(width, height);
        clearTo(*screen, toColour(white));
        keys = {ALLEGRO_KEY_DOWN, ALLEGRO_KEY_UP, ALLEGRO_KEY_ENTER};
        EXPECT_FALSE(pauseMenu(nullptr, dim));
        EXPECT_NEAR(pixelAt(*screen, 2, 2).red, brightness, 1);
        EXPECT_EQ(pixelAt(*screen, 2, firstRow + 2), highlight) << width;
        EXPECT_NE(pixelAt(*screen, 2, firstRow - 2), highlight) << width;
    }
}

}  // namespace
}  // namespace vandrel
