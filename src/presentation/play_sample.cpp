#include "presentation/play_sample.h"

namespace vandrel {

namespace {

SamplePlayer samplePlayer = nullptr;

}  // namespace

void setSamplePlayer(SamplePlayer player) {
    samplePlayer = player;
}

void playSample(SampleIds id, int volume, int pan, int speed) {
    if (samplePlayer != nullptr) {
        samplePlayer(id, volume, pan, speed);
    }
}

}  // namespace vandrel
