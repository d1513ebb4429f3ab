// Stands before the platform library when the game loads it first: the joysticks are then those that a test plugs in,
// pulls and holds. VANDREL_TEST_PADS_PLUGGED of them are there from the start. Each line that comes through the pipe
// named by VANDREL_TEST_PADS is one act:
//   plug PAD | pull PAD | axis PAD STICK AXIS POSITION | button PAD BUTTON 0|1
// The pads look as drivers that number by event codes show one with eleven buttons. A pad that is plugged in or pulled
// sends the library's event, and is there or gone once the game has the joysticks reconfigured.
#include <allegro5/allegro.h>

#include <array>
#include <atomic>
#include <cstdlib>
#include <fstream>
#include <mutex>
#include <sstream>
#include <string>
#include <thread>

namespace {

constexpr int padCount = 8;
constexpr int sticks = 4;
constexpr int digitalStick = 3;
constexpr int buttons = 11;

struct Pad {
    ALLEGRO_JOYSTICK_STATE state{};
    bool plugged = false;
    bool active = false;
};

std::mutex mutex;
std::array<Pad, padCount> pads;
ALLEGRO_EVENT_SOURCE source;

Pad& of(ALLEGRO_JOYSTICK* handle) {
    return *reinterpret_cast<Pad*>(handle);
}

void act(const std::string& line) {
    std::istringstream words(line);
    std::string verb;
    std::size_t number = 0;
    words >> verb >> number;
    Pad& pad = pads.at(number);
    bool isNews = false;
    {
        const std::lock_guard lock(mutex);
        if (verb == "plug" || verb == "pull") {
            pad.plugged = verb == "plug";
            isNews = true;
        } else if (verb == "axis") {
            int stick = 0;
            int axis = 0;
            words >> stick >> axis;
            words >> pad.state.stick[stick].axis[axis];
        } else if (verb == "button") {
            int button = 0;
            words >> button;
            words >> pad.state.button[button];
        }
    }
    if (isNews) {
        ALLEGRO_EVENT event{};
        event.type = ALLEGRO_EVENT_JOYSTICK_CONFIGURATION;
        al_emit_user_event(&source, &event, nullptr);
    }
}

void listen() {
    std::ifstream pipe(std::getenv("VANDREL_TEST_PADS"));
    for (std::string line; std::getline(pipe, line);) {
        act(line);
    }
}

}  // namespace

extern "C" {

bool al_reconfigure_joysticks() {
    const std::lock_guard lock(mutex);
    for (Pad& pad : pads) {
        pad.active = pad.plugged;
    }
    return true;
}

bool al_install_joystick() {
    al_init_user_event_source(&source);
    const char* const plugged = std::getenv("VANDREL_TEST_PADS_PLUGGED");
    for (int i = 0; plugged != nullptr && i < std::atoi(plugged); ++i) {
        pads.at(static_cast<std::size_t>(i)).plugged = true;
    }
    al_reconfigure_joysticks();
    std::thread(listen).detach();
    return true;
}

ALLEGRO_EVENT_SOURCE* al_get_joystick_event_source() {
    return &source;
}

int al_get_num_joysticks() {
    int count = 0;
    for (const Pad& pad : pads) {
        count += pad.active ? 1 : 0;
    }
    return count;
}

ALLEGRO_JOYSTICK* al_get_joystick(int index) {
    for (Pad& pad : pads) {
        if (pad.active && index-- == 0) {
            return reinterpret_cast<ALLEGRO_JOYSTICK*>(&pad);
        }
    }
    return nullptr;
}

bool al_get_joystick_active(ALLEGRO_JOYSTICK* handle) {
    return of(handle).active;
}

const char* al_get_joystick_name(ALLEGRO_JOYSTICK* /*handle*/) {
    return "Test pad";
}

int al_get_joystick_num_sticks(ALLEGRO_JOYSTICK* handle) {
    return of(handle).active ? sticks : 0;
}

int al_get_joystick_stick_flags(ALLEGRO_JOYSTICK* /*handle*/, int stick) {
    return stick == digitalStick ? ALLEGRO_JOYFLAG_DIGITAL : ALLEGRO_JOYFLAG_ANALOGUE;
}

const char* al_get_joystick_stick_name(ALLEGRO_JOYSTICK* /*handle*/, int /*stick*/) {
    return "Stick";
}

int al_get_joystick_num_axes(ALLEGRO_JOYSTICK* /*handle*/, int /*stick*/) {
    return 2;
}

const char* al_get_joystick_axis_name(ALLEGRO_JOYSTICK* /*handle*/, int /*stick*/, int axis) {
    return axis == 0 ? "X" : "Y";
}

int al_get_joystick_num_buttons(ALLEGRO_JOYSTICK* handle) {
    return of(handle).active ? buttons : 0;
}

const char* al_get_joystick_button_name(ALLEGRO_JOYSTICK* /*handle*/, int button) {
    static constexpr const char* names[buttons] = {"B1", "B2", "B3", "B4", "B5", "B6", "B7", "B8", "B9", "B10", "B11"};
    return button < buttons ? names[button] : nullptr;
}

void al_get_joystick_state(ALLEGRO_JOYSTICK* handle, ALLEGRO_JOYSTICK_STATE* state) {
    const std::lock_guard lock(mutex);
    *state = of(handle).state;
}

}  // extern "C"
