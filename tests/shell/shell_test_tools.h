// What the tests of the process share: a folder of their own, environment variables that are put back, and the log and
// the message boxes caught instead of shown.
#pragma once

#include <allegro5/allegro.h>

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "shell/log.h"
#include "shell/message_box.h"

namespace vandrel::test {

// Sets a variable, or unsets it, for the length of the object.
class ScopedEnvironment {
  public:
    ScopedEnvironment(std::string variable, const std::optional<std::string>& value) : name(std::move(variable)) {
        if (const char* text = std::getenv(name.c_str()); text != nullptr) {
            before = text;
        }
        set(value);
    }
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;
    ~ScopedEnvironment() { set(before); }

  private:
    void set(const std::optional<std::string>& value) {
        if (value) {
            setenv(name.c_str(), value->c_str(), 1);
        } else {
            unsetenv(name.c_str());
        }
    }

    std::string name;
    std::optional<std::string> before;
};

// An empty folder, gone with the object, that holds the application data meanwhile.
class ScratchDirectory {
  public:
    ScratchDirectory() : path(make()), dataHome("XDG_DATA_HOME", path) {}
    ScratchDirectory(const ScratchDirectory&) = delete;
    ScratchDirectory& operator=(const ScratchDirectory&) = delete;
    ~ScratchDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }

    const std::string path;

  private:
    static std::string make() {
        std::string pattern = (std::filesystem::temp_directory_path() / "vandrel-test-XXXXXX").string();
        return mkdtemp(pattern.data());
    }

    ScopedEnvironment dataHome;
};

inline std::string fileText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void writeFile(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

// Catches the debugger output, so every line of the log.
class CapturedLog {
  public:
    CapturedLog() : before(setDebugOutput(append)) { lines().clear(); }
    CapturedLog(const CapturedLog&) = delete;
    CapturedLog& operator=(const CapturedLog&) = delete;
    ~CapturedLog() { setDebugOutput(before); }

    const std::string& text() const { return lines(); }

  private:
    static std::string& lines() {
        static std::string text;
        return text;
    }
    static void append(const char* line, std::size_t length) { lines().append(line, length); }

    DebugOutput before;
};

// Catches message boxes, as pairs of text and heading.
class CapturedBoxes {
  public:
    CapturedBoxes() {
        setMessageBox(
            [this](const std::string& text, const std::string& heading) { shown.emplace_back(text, heading); });
    }
    CapturedBoxes(const CapturedBoxes&) = delete;
    CapturedBoxes& operator=(const CapturedBoxes&) = delete;
    ~CapturedBoxes() { setMessageBox({}); }

    std::vector<std::pair<std::string, std::string>> shown;
};

// Brings the platform library up as on a machine without a display server.
inline void installAllegroHeadless() {
    unsetenv("DISPLAY");
    unsetenv("WAYLAND_DISPLAY");
    if (!al_is_system_installed()) {
        al_install_system(ALLEGRO_VERSION_INT, std::atexit);
    }
}

}  // namespace vandrel::test
