#include "presentation/toasts.h"

#include <fmt/format.h>

#include <utility>

#include "arena/team.h"

namespace vandrel {

Toast::Toast(std::string toastText, Vector2Base<float> position, Vector2Base<float> velocity, FontId toastFont)
    : text(std::move(toastText)), x(position.x), y(position.y), vx(velocity.x), vy(velocity.y), font(toastFont) {}

bool Toast::update() {
    x += vx;
    y += vy;
    return false;
}

TimedToast::TimedToast(std::string toastText, Vector2Base<float> position, Vector2Base<float> velocity,
                       int lifetimeFrames, FontId toastFont)
    : Toast(std::move(toastText), position, velocity, toastFont), frames(lifetimeFrames) {}

bool TimedToast::update() {
    Toast::update();
    --frames;
    return frames < 1;
}

DisplayScoreToast::DisplayScoreToast(int scored, Team* scoringTeam, Vector2Base<float> position,
                                     Vector2Base<float> velocity, int lifetimeFrames, FontId toastFont)
    : TimedToast(fmt::format("{}", scored), position, velocity, lifetimeFrames, toastFont),
      team(scoringTeam),
      points(scored) {}

DisplayScoreToast::~DisplayScoreToast() {
    team->displayedScore += points;
}

}  // namespace vandrel
