#include "shell/update_rate.h"

#include "match/options/game_options.h"
#include "shell/display.h"

namespace vandrel {

void setUpdateRate(int rate, GameOptions& options) {
    options.updaterate = rate;
    options.frameMultiplier = frameMultiplierOf(rate);
    if (frameTimer != nullptr) {
        al_destroy_timer(frameTimer);
    }
    frameTimer = al_create_timer(1.0 / rate);
    al_register_event_source(eventQueue, al_get_timer_event_source(frameTimer));
    al_start_timer(frameTimer);
}

}  // namespace vandrel
