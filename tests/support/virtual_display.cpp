#include "support/virtual_display.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace vandrel {

namespace {

// The server picks a free number and writes it, with a line end, when it is ready.
std::string readDisplayNumber(int stream) {
    std::string number;
    char character = 0;
    while (read(stream, &character, 1) == 1 && character != '\n') {
        number += character;
    }
    return number;
}

}  // namespace

VirtualDisplay::VirtualDisplay() {
    const char* present = std::getenv("DISPLAY");
    if (present != nullptr && *present != '\0') {
        return;
    }
    int ends[2];
    if (pipe(ends) != 0) {
        throw std::runtime_error("no pipe for the virtual display");
    }
    server_ = fork();
    if (server_ == 0) {
        close(ends[0]);
        const std::string stream = std::to_string(ends[1]);
        execlp("Xvfb", "Xvfb", "-displayfd", stream.c_str(), "-screen", "0", "1920x1080x24", "-nolisten", "tcp",
               static_cast<char*>(nullptr));
        _exit(127);
    }
    close(ends[1]);
    const std::string number = readDisplayNumber(ends[0]);
    close(ends[0]);
    if (number.empty()) {
        throw std::runtime_error("the virtual display did not start");
    }
    setenv("DISPLAY", (":" + number).c_str(), 1);
}

VirtualDisplay::~VirtualDisplay() {
    if (server_ > 0) {
        kill(server_, SIGTERM);
        waitpid(server_, nullptr, 0);
    }
}

}  // namespace vandrel
