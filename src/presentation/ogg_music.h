// Music streamed from a file in a loop, and the factories that choose the track. The main menu, the match driver and
// the screen at the end of a match each hold one piece; replacing it starts the new track from its beginning.
#pragma once

#include <allegro5/allegro.h>
#include <allegro5/allegro_audio.h>

#include <atomic>
#include <exception>
#include <memory>
#include <string>
#include <thread>

#include "presentation/music.h"

namespace vandrel {

class OggMusic final : public Music {
  public:
    class Failure : public std::exception {};

    // Starts playing at once. Throws `Failure` when the file cannot be opened as a stream.
    OggMusic(const std::string& path, ALLEGRO_MIXER* mixer);
    // Ends a running fade first.
    ~OggMusic() override;

    void setVolume(int volume) override;
    // A fade that runs already ends where it is, and the new one goes on from there. A fade to silence stays there; any
    // other goes on along its line until it is replaced or stopped.
    void fadeTo(float seconds, int volume) override;
    // At once, in the middle of a fade too.
    void stop() override;

  private:
    void endFade();

    std::shared_ptr<ALLEGRO_AUDIO_STREAM> stream;
    std::thread fadeThread;
    std::atomic<bool> stopFade = false;
};

// These play on the music mixer, so `initSound` must have run. The first and the last let `OggMusic::Failure` pass.
std::shared_ptr<Music> makeMenuMusic();
// One of two tracks, by a draw of `gameRand`. A match goes on without music when its track is missing.
std::shared_ptr<Music> makeMatchMusic();
std::shared_ptr<Music> makeVictoryMusic();

}  // namespace vandrel
