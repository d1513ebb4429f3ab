#include <cstdio>
#include <exception>
#include <string>
#include "replay/tool/headless_playback.h"
#include "shell/log.h"
#include "shell/frame_counter.h"
#include "replay/unit/verification.h"
int main(int argc, char** argv) {
    vandrel::setDebugOutput(nullptr);
    for (int i = 1; i < argc; ++i) {
        try {
            vandrel::HeadlessPlayback p(argv[i]);
            while (p.step()) {}
            p.finish();
            std::printf("%s ok frames %d end %d proof %ld\n", argv[i], (int)vandrel::frameCounter, (int)p.end(), (long)vandrel::proofCounts().positions);
        } catch (const std::exception& e) {
            std::printf("%s FAILED at frame %d: %s\n", argv[i], (int)vandrel::frameCounter, e.what());
        }
    }
}
