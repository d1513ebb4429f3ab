#include "shell/open_log.h"

#include <cstdio>
#include <filesystem>

#include "shell/log.h"
#include "shell/message_box.h"
#include "shell/paths.h"

namespace vandrel {
namespace {

// Null also when the directory cannot be created: nobody stands guard yet, and start-up will meet the same error when
// it asks for the configuration.
std::FILE* createLogFile() {
    try {
        return std::fopen((appDataDir() + "/vandrel.log").c_str(), "w");
    } catch (const std::filesystem::filesystem_error&) {
        return nullptr;
    }
}

}  // namespace

void openLog() {
    std::FILE* file = createLogFile();
    if (file == nullptr) {
        showMessageBox("Warning: couldn't create log file");
    }
    if (file != nullptr) {
        // Each line reaches the system at once, so a process that dies suddenly loses none.
        std::setvbuf(file, nullptr, _IOLBF, BUFSIZ);
    }
    setLogFile(file);
}

}  // namespace vandrel
