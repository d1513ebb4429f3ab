#include "shell/frame_counter.h"

namespace vandrel {

FrameCounter frameCounter;

}  // namespace vandrel
