#include "shell/shutdown.h"

#include "presentation/bitmaps.h"
#include "presentation/plain_shader.h"
#include "presentation/recolour_shader.h"
#include "presentation/sound.h"
#include "shell/game_screen.h"
#include "shell/log.h"

namespace vandrel {

void shutDown() {
    logText("Shut down sound\n");
    shutdownSound();
    logText("Destroying shaders\n");
    destroyRecolourShader();
    destroyPlainShader();
    logText("Destroying bitmaps\n");
    releaseBitmapCaches();
    screen.reset();
    displayBitmap.reset();
    logText("Closing log file\n");
    flushLog();
    closeLog();
}

}  // namespace vandrel
