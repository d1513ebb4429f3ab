// Whole screens without a display: each pass of the frame pump brings one tick, pictures lie in memory, and the test
// says which keys are held at which tick. The tests of the frontend stand on it.
#pragma once

#include <allegro5/allegro_font.h>
#include <allegro5/allegro_ttf.h>
#include <allegro5/keycodes.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <set>
#include <stdexcept>

#include "input/controls_manager.h"
#include "input/keyboard.h"
#include "input/menu_input.h"
#include "presentation/drawing.h"
#include "presentation/text.h"
#include "shell/display.h"
#include "shell/frame_counter.h"
#include "shell/timing.h"
#include "support/drawing_stage.h"
#include "support/key_latches.h"

namespace vandrel {

class ScreenStage : public DrawingTest {
  protected:
    ScreenStage() {
        al_init_font_addon();
        al_init_ttf_addon();
        std::filesystem::create_directory_symlink(std::filesystem::path(VANDREL_SOURCE_DIR) / "game" / "fonts",
                                                  "fonts");
        loadFonts();
        eventQueue = al_create_event_queue();
        al_init_user_event_source(&ticks_);
        al_register_event_source(eventQueue, &ticks_);
        theControlsManager = std::make_unique<ControlsManager>();
        displayBitmap = std::make_shared<BitmapWrapper>(16, 9, false);
        setScreenSize(1920, 1080);
        pendingTicks = 0;
        setKeyState([this](int keycode) { return isHeld(keycode); });
    }

    ~ScreenStage() override {
        test::letGoOfAllKeys();
        theControlsManager.reset();
        screen.reset();
        displayBitmap.reset();
        al_destroy_event_queue(eventQueue);
        eventQueue = nullptr;
        al_destroy_user_event_source(&ticks_);
    }

    static void setScreenSize(int width, int height) {
        gameScreenWidth = width;
        gameScreenHeight = height;
        renewGameScreen();
        clearToBlack(*screen);
    }

    // The keys held down at a tick of the screen that runs, counted from 0 at its opening.
    std::function<std::set<int>(int tick)> keysAt;

  private:
    static constexpr int mostTicks = 5000;

    // Every pass of the pump asks for keys, so this is where its time comes from.
    bool isHeld(int keycode) {
        if (al_is_event_queue_empty(eventQueue)) {
            ALLEGRO_EVENT tick{};
            tick.type = ALLEGRO_EVENT_TIMER;
            al_emit_user_event(&ticks_, &tick, nullptr);
        }
        if (totalTicks > mostTicks) {
            throw std::runtime_error("the screen does not end");
        }
        return keysAt && keysAt(totalTicks).contains(keycode);
    }

    ALLEGRO_EVENT_SOURCE ticks_{};
};

}  // namespace vandrel
