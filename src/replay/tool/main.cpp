#include "replay/tool/commands.h"

int main(int argc, char** argv) {
    return vandrel::runReplayTool(vandrel::Words(argv + 1, argv + argc));
}
