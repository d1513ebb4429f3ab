// Short texts that drift over the arena. `Game` owns the list; the rules add to it. Drawing them is `toasts_drawing`'s.
#pragma once

#include <string>

#include "base/vector2.h"
#include "presentation/font_id.h"

namespace vandrel {

struct Team;

// A toast that never ends by itself. `x`, `y`: pixels of the arena, top centre of the text. `vx`, `vy`: pixels an
// update.
class Toast {
  public:
    Toast(std::string text, Vector2Base<float> position, Vector2Base<float> velocity, FontId font);
    Toast(const Toast&) = delete;
    Toast& operator=(const Toast&) = delete;

    // One update; true when the toast has ended.
    virtual bool update();
    virtual ~Toast() = default;

    std::string text;
    float x;
    float y;
    float vx;
    float vy;
    FontId font;
};

// A toast that ends after `frames` updates.
class TimedToast : public Toast {
  public:
    TimedToast(std::string text, Vector2Base<float> position, Vector2Base<float> velocity, int frames, FontId font);

    bool update() override;

    int frames;
};

// Points on their way to a team's base. They reach the number shown there when the toast goes, by whatever cause, so
// these toasts are never dropped in bulk during a round.
class DisplayScoreToast final : public TimedToast {
  public:
    DisplayScoreToast(int points, Team* team, Vector2Base<float> position, Vector2Base<float> velocity, int frames,
                      FontId font);
    ~DisplayScoreToast() override;

    Team* team;
    int points;
};

}  // namespace vandrel
