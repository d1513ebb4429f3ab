#include "presentation/sound.h"

#include <allegro5/allegro_acodec.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <span>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <unordered_set>
#include <utility>

#include "base/checked.h"
#include "base/numeric.h"
#include "presentation/limiter.h"
#include "shell/log.h"

namespace vandrel {

std::map<AudioType, ALLEGRO_MIXER*> mixers;

namespace {

struct InstanceDeleter {
    void operator()(ALLEGRO_SAMPLE_INSTANCE* instance) const { al_destroy_sample_instance(instance); }
};
using SampleInstance = std::unique_ptr<ALLEGRO_SAMPLE_INSTANCE, InstanceDeleter>;

constexpr unsigned sampleRate = 44'100;  // Hz
constexpr std::size_t instancesPerSample = 3;
constexpr float fadeFactor = 0.9f;  // of the gain, each `fadePeriod`: a tenth of it is left after some 44 ms
constexpr std::chrono::milliseconds fadePeriod{2};

ALLEGRO_VOICE* voice = nullptr;
ALLEGRO_MIXER* mainMixer = nullptr;
std::atomic<float> mixGain = 1;  // of `holdBack`; the audio thread's
std::map<AudioType, int> volumes;
std::array<ALLEGRO_SAMPLE*, sampleNames.size()> samples{};

// The mutex guards the two below: the main thread pushes instances out of the queues, the sample thread fades them.
std::mutex sampleMutex;
std::array<std::deque<SampleInstance>, sampleNames.size()> playingSamples;  // the newest of each, oldest first
std::unordered_set<SampleInstance> fadingInstances;

std::atomic<bool> stopSampleThread = false;
std::thread sampleThread;

void fadeInstances() {
    for (const SampleInstance& instance : fadingInstances) {
        al_set_sample_instance_gain(instance.get(), al_get_sample_instance_gain(instance.get()) * fadeFactor);
    }
    std::erase_if(fadingInstances,
                  [](const SampleInstance& instance) { return !al_get_sample_instance_playing(instance.get()); });
}

// The lock is only tried, so that the main thread never waits for more than one pass over the few instances that fade.
void runSampleThread(const std::atomic<bool>& stop) {
    std::ostringstream line;
    line << "sample update thread begin " << std::this_thread::get_id() << "\n";
    logStream(line);
    while (!stop.load(std::memory_order_relaxed)) {
        if (std::unique_lock lock(sampleMutex, std::try_to_lock); lock.owns_lock()) {
            if (!stop.load(std::memory_order_relaxed)) {
                fadeInstances();
            }
        } else {
            if (stop.load(std::memory_order_relaxed)) {
                break;
            }
            std::this_thread::yield();
        }
        std::this_thread::sleep_until(std::chrono::steady_clock::now() + fadePeriod);
    }
}

float panOf(int pan) {
    return pan == centrePan ? ALLEGRO_AUDIO_PAN_NONE : mapRange(static_cast<float>(pan), 0, 255, -1, 1);
}

void startSample(SampleIds id, int volume, int pan, int speed) {
    const std::lock_guard lock(sampleMutex);
    SampleInstance instance(al_create_sample_instance(checkedAt(samples, static_cast<int>(id))));
    if (instance == nullptr) {
        logText("al_create_sample_instance failed: a sample is not heard\n");
        return;
    }
    al_set_sample_instance_speed(instance.get(), static_cast<float>(speed) / normalSampleSpeed);
    al_set_sample_instance_gain(instance.get(), static_cast<float>(volume) / fullVolume);
    al_set_sample_instance_pan(instance.get(), panOf(pan));
    std::deque<SampleInstance>& queue = checkedAt(playingSamples, static_cast<int>(id));
    while (queue.size() >= instancesPerSample) {
        fadingInstances.insert(std::move(queue.front()));
        queue.pop_front();
    }
    al_attach_sample_instance_to_mixer(instance.get(), mixers.at(AudioType::Effects));
    al_play_sample_instance(instance.get());
    queue.push_back(std::move(instance));
}

void require(bool succeeded, const std::string& failure) {
    if (!succeeded) {
        throw std::runtime_error(failure);
    }
}

ALLEGRO_MIXER* makeMixer() {
    ALLEGRO_MIXER* mixer = al_create_mixer(sampleRate, ALLEGRO_AUDIO_DEPTH_FLOAT32, ALLEGRO_CHANNEL_CONF_2);
    require(mixer != nullptr, "al_create_mixer failed");
    return mixer;
}

// The library calls it on the audio thread with so many pairs of the main mixer's samples.
void holdMixBack(void* samplePairs, unsigned pairs, void* /*data*/) {
    const std::span<float> stereo(static_cast<float*>(samplePairs), std::size_t{2} * pairs);
    mixGain.store(holdBack(stereo, mixGain.load(std::memory_order_relaxed)), std::memory_order_relaxed);
}

void makeMixers() {
    mixGain = 1;
    voice = al_create_voice(sampleRate, ALLEGRO_AUDIO_DEPTH_INT16, ALLEGRO_CHANNEL_CONF_2);
    require(voice != nullptr, "al_create_voice failed");
    mainMixer = makeMixer();
    require(al_set_mixer_postprocess_callback(mainMixer, holdMixBack, nullptr),
            "al_set_mixer_postprocess_callback failed");
    require(al_attach_mixer_to_voice(mainMixer, voice), "al_attach_mixer_to_voice failed");
    mixers[AudioType::Effects] = makeMixer();
    mixers[AudioType::Music] = makeMixer();
    require(al_attach_mixer_to_mixer(mixers[AudioType::Effects], mainMixer),
            "al_attach_mixer_to_mixer (sfxMixer) failed");
    require(al_attach_mixer_to_mixer(mixers[AudioType::Music], mainMixer),
            "al_attach_mixer_to_mixer (musicMixer) failed");
}

void loadSamples() {
    for (std::size_t id = 0; id < sampleNames.size(); ++id) {
        const std::string path = std::string("newSound/") + sampleNames[id] + ".wav";
        require(al_filename_exists(path.c_str()), "File not found: " + path);
        samples[id] = al_load_sample(path.c_str());
        require(samples[id] != nullptr, "Error loading " + path);
    }
}

}  // namespace

void initSound(int effectsVolume, int musicVolume) {
    logText("Installing sound\n");
    require(al_install_audio(), "Error initialising sound system");
    require(al_init_acodec_addon(), "Error initialising audio codecs");
    makeMixers();
    setVolume(AudioType::Effects, effectsVolume);
    setVolume(AudioType::Music, musicVolume);
    loadSamples();
    stopSampleThread.store(false, std::memory_order_relaxed);
    sampleThread = std::thread(runSampleThread, std::cref(stopSampleThread));
    setSamplePlayer(startSample);
}

void setVolume(AudioType type, int volume) {
    volumes[type] = volume;
    if (const auto mixer = mixers.find(type); mixer != mixers.end()) {
        al_set_mixer_gain(mixer->second, static_cast<float>(volume) / 100.0f);
    }
}

int getVolume(AudioType type) {
    return checkedKey(volumes, type);
}

void shutdownSound() {
    setSamplePlayer(nullptr);
    stopSampleThread.store(true, std::memory_order_relaxed);
    if (sampleThread.joinable()) {
        sampleThread.join();
    }
    fadingInstances.clear();
    for (std::deque<SampleInstance>& queue : playingSamples) {
        queue.clear();
    }
}

}  // namespace vandrel
