// A sound server that plays into nothing, and recordings of what it plays, for tests that listen. It runs as long as
// the object lives; the programs and libraries of this process find it through the environment.
#pragma once

#include <sys/types.h>

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace vandrel::test {

inline constexpr int recordingRate = 44'100;  // frames a second

class NullSoundServer {
  public:
    // Throws std::runtime_error when the server does not come up.
    NullSoundServer();
    ~NullSoundServer();
    NullSoundServer(const NullSoundServer&) = delete;
    NullSoundServer& operator=(const NullSoundServer&) = delete;

  private:
    std::filesystem::path folder_;
    pid_t server_ = 0;
};

// What the server plays from the time of the making to `finish`.
class SoundRecording {
  public:
    // Returns when the first frames have been recorded.
    SoundRecording();
    ~SoundRecording();
    SoundRecording(const SoundRecording&) = delete;
    SoundRecording& operator=(const SoundRecording&) = delete;

    // Ends the recording; the levels can be asked for afterwards.
    void finish();

    // Waits until the tone has had this level, within 0.02, throughout the last `milliseconds` of what was recorded so
    // far: the gaps of a busy machine only make it wait longer. False when that does not come about.
    bool waitForLevel(int frequency, double level, std::size_t channel = 0, int milliseconds = 200);

    // How loud a tone of this many hertz is in each stretch of 10 ms, as the amplitude 0.0 to 1.0. Tones 100 Hz apart,
    // and multiples of it, do not disturb each other. `channel` is 0 for the left, 1 for the right.
    std::vector<double> levels(int frequency, std::size_t channel = 0) const;

  private:
    void readOn();

    std::filesystem::path file_;
    pid_t recorder_ = 0;
    std::vector<std::array<float, 2>> frames_;
};

// A file with one tone at nearly full amplitude, the same on both sides.
void writeTone(const std::filesystem::path& path, int frequency, double seconds);

}  // namespace vandrel::test
