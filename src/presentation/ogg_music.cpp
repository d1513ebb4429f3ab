#include "presentation/ogg_music.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <functional>
#include <mutex>
#include <sstream>

#include "base/random.h"
#include "presentation/sound.h"
#include "shell/log.h"

namespace vandrel {

namespace {

constexpr std::size_t streamBuffers = 8;
constexpr unsigned samplesPerBuffer = 65'536;
constexpr std::chrono::milliseconds fadePeriod{4};

constexpr const char* menuTrack = "music/Zoo.ogg";
constexpr std::array<const char*, 2> matchTracks{"music/Breakdown.ogg", "music/If Not Now When.ogg"};
constexpr const char* victoryTrack = "music/Who Likes To Party.ogg";

// Guards every call into any stream. Fade threads only try it, so whoever holds it may join one.
std::mutex streamMutex;

float gainOf(int volume) {
    return static_cast<float>(volume) / 255.0f;
}

// Where a fade is heading and what it works on. The stream outlives the thread, since its owner joins the thread first.
struct Fade {
    ALLEGRO_AUDIO_STREAM* stream;
    float startGain;
    float targetGain;
    float seconds;
};

void runFadeThread(const std::atomic<bool>& stop, Fade fade) {
    std::ostringstream line;
    line << "ogg volume thread begin" << std::this_thread::get_id() << "\n";
    logStream(line);
    const auto start = std::chrono::steady_clock::now();
    while (!stop.load(std::memory_order_relaxed)) {
        if (std::unique_lock lock(streamMutex, std::try_to_lock); lock.owns_lock()) {
            if (!stop.load(std::memory_order_relaxed)) {
                const std::chrono::duration<float, std::milli> elapsed = std::chrono::steady_clock::now() - start;
                const float t = elapsed.count() / (fade.seconds * 1000.0f);
                // Past the end of a fade to silence the line goes on below zero, where the stream would be loud again,
                // inverted.
                al_set_audio_stream_gain(fade.stream, std::max(0.0f, std::lerp(fade.startGain, fade.targetGain, t)));
            }
        } else {
            if (stop.load(std::memory_order_relaxed)) {
                break;
            }
            std::this_thread::yield();
        }
        std::this_thread::sleep_for(fadePeriod);
    }
}

void destroyStream(ALLEGRO_AUDIO_STREAM* stream) {
    const std::lock_guard lock(streamMutex);
    al_destroy_audio_stream(stream);
}

std::shared_ptr<Music> playTrack(const char* path) {
    return std::make_shared<OggMusic>(path, mixers.at(AudioType::Music));
}

}  // namespace

OggMusic::OggMusic(const std::string& path, ALLEGRO_MIXER* mixer) {
    const std::lock_guard lock(streamMutex);
    ALLEGRO_AUDIO_STREAM* opened = al_load_audio_stream(path.c_str(), streamBuffers, samplesPerBuffer);
    if (opened == nullptr) {
        logText("Could not play " + path + "\n");
        throw Failure();
    }
    stream.reset(opened, destroyStream);
    al_attach_audio_stream_to_mixer(opened, mixer);
    al_set_audio_stream_playmode(opened, ALLEGRO_PLAYMODE_LOOP);
    al_set_audio_stream_playing(opened, true);
}

OggMusic::~OggMusic() {
    stopFade.store(true, std::memory_order_relaxed);
    const std::lock_guard lock(streamMutex);
    if (fadeThread.joinable()) {
        fadeThread.join();
    }
    // The stream goes with the members, after the mutex was released: its deleter takes it again.
}

void OggMusic::setVolume(int volume) {
    const std::lock_guard lock(streamMutex);
    al_set_audio_stream_gain(stream.get(), gainOf(volume));
}

void OggMusic::endFade() {
    if (fadeThread.joinable()) {
        stopFade.store(true, std::memory_order_relaxed);
        fadeThread.join();
        stopFade.store(false, std::memory_order_relaxed);
    }
}

void OggMusic::fadeTo(float seconds, int volume) {
    endFade();
    // Read here, where the lock may be waited for: the thread itself could not.
    const float startGain = [this] {
        const std::lock_guard lock(streamMutex);
        return al_get_audio_stream_gain(stream.get());
    }();
    fadeThread =
        std::thread(runFadeThread, std::cref(stopFade), Fade{stream.get(), startGain, gainOf(volume), seconds});
}

void OggMusic::stop() {
    stopFade.store(true, std::memory_order_relaxed);
    const std::lock_guard lock(streamMutex);
    al_set_audio_stream_playing(stream.get(), false);
}

std::shared_ptr<Music> makeMenuMusic() {
    return playTrack(menuTrack);
}

std::shared_ptr<Music> makeMatchMusic() {
    const char* track = matchTracks[static_cast<unsigned>(gameRand() & 1)];
    try {
        return playTrack(track);
    } catch (const OggMusic::Failure&) {
        return std::make_shared<NoMusic>();
    }
}

std::shared_ptr<Music> makeVictoryMusic() {
    return playTrack(victoryTrack);
}

}  // namespace vandrel
