#include "frontend/menu_audio.h"

#include <allegro5/keycodes.h>

#include <algorithm>

#include "input/menu_input.h"
#include "presentation/drawing.h"
#include "presentation/sound.h"
#include "shell/config.h"
#include "shell/frame_pump.h"
#include "shell/game_screen.h"

namespace vandrel {

namespace {

constexpr int mostVolume = 100;
constexpr int volumeStep = 10;

// A row's copy of a volume.
struct EditedVolume {
    AudioType type;
    const char* key;
    int value;

    EditedVolume(AudioType edited, const char* configKey) : type(edited), key(configKey), value(getVolume(edited)) {}

    void storeChange() const {
        if (value != getVolume(type)) {
            setConfigInt("sound", key, value);
            setVolume(type, value);
        }
    }
};

}  // namespace

void menuAudio(const std::shared_ptr<BitmapWrapper>& background, const VandrelMenuLayoutOptions* layout,
               std::optional<int> x) {
    EditedVolume music(AudioType::Music, "musicVolume");
    EditedVolume effects(AudioType::Effects, "soundEffectsVolume");
    bool done = false;
    VandrelMenu menu(layout != nullptr ? layout : &layoutDefault);
    const int left = x.value_or(usualRowX(screen->width()));
    menu.addHeading(std::max(left - headingsLeftOfRows, 0), "Audio settings");
    menu.addInt(left, "Music volume", &music.value, 0, mostVolume, volumeStep);
    menu.addInt(left, "Sound effects volume", &effects.value, 0, mostVolume, volumeStep);
    menu.addAction(left, "Back", [&done] { done = true; });
    const auto update = [&] {
        done = done || menuKeyPressed(ALLEGRO_KEY_ESCAPE, menuControlMode, false);
        menu.update(screen->height() - 1);
        music.storeChange();
        effects.storeChange();
    };
    const auto draw = [&] {
        if (background != nullptr) {
            drawWrapper(*background, *screen, 0, 0);
        } else {
            clearToBlack(*screen);
        }
        menu.draw(*screen);
    };
    framePump(update, draw, [&] { return done; });
}

}  // namespace vandrel
