#include "shell/paths.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace vandrel {
namespace {

namespace fs = std::filesystem;

// The variable's text; empty when it is not set.
std::string environmentText(const char* name) {
    const char* text = std::getenv(name);
    return text == nullptr ? std::string() : std::string(text);
}

std::string homeDir() {
    std::string home = environmentText("HOME");
    if (home.empty()) {
        if (const passwd* user = getpwuid(getuid()); user != nullptr && user->pw_dir != nullptr) {
            home = user->pw_dir;
        }
    }
    return home;
}

// A relative XDG_DATA_HOME counts as unset, as the convention behind it asks.
std::string localApplicationDataDir() {
    std::string dir = environmentText("XDG_DATA_HOME");
    if (!fs::path(dir).is_absolute()) {
        dir = homeDir() + "/.local/share";
    }
    return dir;
}

// Creates one directory for the user alone, unless it is there. Not std::filesystem, which cannot be told a mode.
void createDirectory(const fs::path& path) {
    if (mkdir(path.c_str(), S_IRWXU) == 0) {
        return;
    }
    std::error_code error(errno, std::generic_category());
    std::error_code ignored;
    if (error == std::errc::file_exists) {
        if (fs::is_directory(path, ignored)) {
            return;
        }
        error = std::make_error_code(std::errc::not_a_directory);
    }
    throw fs::filesystem_error("create_directory", path, error);
}

void createDirectories(const fs::path& path) {
    std::error_code ignored;
    if (fs::is_directory(path, ignored)) {
        return;
    }
    if (path.has_relative_path()) {
        createDirectories(path.parent_path());
    }
    createDirectory(path);
}

}  // namespace

std::string appDataPath() {
    return localApplicationDataDir() + "/vandrel";
}

std::string appDataDir() {
    std::string dir = appDataPath();
    createDirectories(dir);
    return dir;
}

std::string replaysDir() {
    std::string dir = appDataDir() + "/replays";
    createDirectory(dir);
    return dir;
}

}  // namespace vandrel
