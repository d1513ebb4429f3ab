#include "support/null_sound_server.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <complex>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <numbers>
#include <stdexcept>
#include <system_error>
#include <thread>

namespace vandrel::test {

namespace {

using namespace std::chrono_literals;

constexpr auto patience = 20s;
constexpr int framesPerStretch = recordingRate / 100;
constexpr double tolerance = 0.02;  // of a level

// Starts a program that ends with this process; its output goes to the file.
pid_t start(const std::vector<std::string>& command, const std::filesystem::path& output) {
    std::vector<char*> arguments;
    for (const std::string& argument : command) {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        const int file = open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        const int errors = open("/dev/null", O_WRONLY);
        dup2(file, STDOUT_FILENO);
        dup2(errors, STDERR_FILENO);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    if (child < 0) {
        throw std::system_error(errno, std::generic_category(), "fork");
    }
    return child;
}

void end(pid_t& child) {
    if (child > 0) {
        kill(child, SIGTERM);
        waitpid(child, nullptr, 0);
        child = 0;
    }
}

// Throws when the child has gone or patience is at its end.
void waitFor(pid_t child, const std::string& what, const auto& reached) {
    const auto limit = std::chrono::steady_clock::now() + patience;
    while (!reached()) {
        if (waitpid(child, nullptr, WNOHANG) != 0 || std::chrono::steady_clock::now() > limit) {
            throw std::runtime_error(what + " does not come up");
        }
        std::this_thread::sleep_for(10ms);
    }
}

bool canConnect(const std::filesystem::path& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string text = path.string();
    text.copy(address.sun_path, sizeof(address.sun_path) - 1);
    const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
    const bool connected = connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
    close(descriptor);
    return connected;
}

std::filesystem::path makeTemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "vandrel-sound-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::system_error(errno, std::generic_category(), "mkdtemp");
    }
    return pattern;
}

}  // namespace

NullSoundServer::NullSoundServer() : folder_(makeTemporaryFolder()) {
    const std::filesystem::path socket = folder_ / "native";
    setenv("XDG_RUNTIME_DIR", folder_.c_str(), 1);
    setenv("PULSE_COOKIE", (folder_ / "cookie").c_str(), 1);
    setenv("PULSE_SERVER", ("unix:" + socket.string()).c_str(), 1);
    server_ = start({"pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
                     "--disable-shm=yes", "-L", "module-null-sink sink_name=unheard rate=44100", "-L",
                     "module-native-protocol-unix auth-anonymous=1 socket=" + socket.string()},
                    folder_ / "log");
    waitFor(server_, "the sound server", [&] { return canConnect(socket); });
}

NullSoundServer::~NullSoundServer() {
    end(server_);
    unsetenv("PULSE_SERVER");
    unsetenv("PULSE_COOKIE");
    unsetenv("XDG_RUNTIME_DIR");
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

SoundRecording::SoundRecording() : file_(makeTemporaryFolder() / "recording.raw") {
    recorder_ = start({"parec", "--device=unheard.monitor", "--format=s16le", "--rate=44100", "--channels=2",
                       "--latency-msec=20", "--raw"},
                      file_);
    waitFor(recorder_, "the recorder", [this] {
        std::error_code missing;
        const std::uintmax_t size = std::filesystem::file_size(file_, missing);
        return !missing && size > 0;
    });
}

SoundRecording::~SoundRecording() {
    end(recorder_);
    std::error_code ignored;
    std::filesystem::remove_all(file_.parent_path(), ignored);
}

void SoundRecording::readOn() {
    std::ifstream stream(file_, std::ios::binary);
    stream.seekg(static_cast<std::streamoff>(frames_.size() * 2 * sizeof(std::int16_t)));
    std::array<std::int16_t, 2> frame{};
    while (stream.read(reinterpret_cast<char*>(frame.data()), sizeof(frame))) {
        frames_.push_back({static_cast<float>(frame[0]) / 32768.0f, static_cast<float>(frame[1]) / 32768.0f});
    }
}

void SoundRecording::finish() {
    end(recorder_);
    readOn();
}

bool SoundRecording::waitForLevel(int frequency, double level, std::size_t channel, int milliseconds) {
    const auto limit = std::chrono::steady_clock::now() + patience;
    const auto wanted = static_cast<std::size_t>(milliseconds / 10);
    while (std::chrono::steady_clock::now() < limit) {
        readOn();
        const std::vector<double> all = levels(frequency, channel);
        if (all.size() >= wanted && std::all_of(all.end() - static_cast<std::ptrdiff_t>(wanted), all.end(),
                                                [&](double one) { return std::abs(one - level) < tolerance; })) {
            return true;
        }
        std::this_thread::sleep_for(30ms);
    }
    return false;
}

std::vector<double> SoundRecording::levels(int frequency, std::size_t channel) const {
    std::vector<double> result;
    const double step = 2 * std::numbers::pi * frequency / recordingRate;
    std::array<std::complex<double>, framesPerStretch> wave;
    for (std::size_t i = 0; i < wave.size(); ++i) {
        wave[i] = std::polar(1.0, step * static_cast<double>(i));
    }
    for (std::size_t begin = 0; begin + framesPerStretch <= frames_.size(); begin += framesPerStretch) {
        std::complex<double> sum;
        for (std::size_t i = 0; i < wave.size(); ++i) {
            sum += static_cast<double>(frames_[begin + i][channel]) * wave[i];
        }
        result.push_back(2 * std::abs(sum) / framesPerStretch);
    }
    return result;
}

void writeTone(const std::filesystem::path& path, int frequency, double seconds) {
    const auto frames = static_cast<std::uint32_t>(seconds * recordingRate);
    std::ofstream stream(path, std::ios::binary);
    const auto writeNumber = [&stream](std::uint32_t value, int bytes) {
        for (int i = 0; i < bytes; ++i) {
            stream.put(static_cast<char>((value >> (8 * i)) & 0xffU));
        }
    };
    stream << "RIFF";
    writeNumber(36 + frames * 4, 4);
    stream << "WAVEfmt ";
    writeNumber(16, 4);
    writeNumber(1, 2);  // PCM
    writeNumber(2, 2);  // channels
    writeNumber(recordingRate, 4);
    writeNumber(recordingRate * 4, 4);
    writeNumber(4, 2);
    writeNumber(16, 2);
    stream << "data";
    writeNumber(frames * 4, 4);
    const double step = 2 * std::numbers::pi * frequency / recordingRate;
    for (std::uint32_t i = 0; i < frames; ++i) {
        const auto sample = static_cast<std::int16_t>(std::lround(32'000 * std::sin(step * i)));
        writeNumber(static_cast<std::uint16_t>(sample), 2);
        writeNumber(static_cast<std::uint16_t>(sample), 2);
    }
}

}  // namespace vandrel::test
