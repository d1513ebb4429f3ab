#include "shell/timing.h"

namespace vandrel {

int pendingTicks = 0;
int totalTicks = 0;
int renderedFrames = 0;

float frameRateFigure() {
    return static_cast<float>(renderedFrames) / static_cast<float>(totalTicks) * 60.0f;
}

}  // namespace vandrel
