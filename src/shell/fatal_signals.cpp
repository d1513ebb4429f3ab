#include "shell/fatal_signals.h"

#include <unistd.h>

#include <array>
#include <csignal>
#include <cstddef>
#include <string_view>

#include "shell/log.h"

namespace vandrel {
namespace {

struct FatalSignal {
    int number;
    std::string_view line;
};

constexpr std::array<FatalSignal, 5> fatalSignals{{
    {SIGABRT, "The process is ended by SIGABRT\n"},
    {SIGBUS, "The process is ended by SIGBUS\n"},
    {SIGFPE, "The process is ended by SIGFPE\n"},
    {SIGILL, "The process is ended by SIGILL\n"},
    {SIGSEGV, "The process is ended by SIGSEGV\n"},
}};

std::array<struct sigaction, fatalSignals.size()> before;

// Does only what a signal handler may do: no memory, no locks, no buffered output.
void tellAndGo(int number) {
    for (std::size_t i = 0; i < fatalSignals.size(); ++i) {
        const auto& [candidate, line] = fatalSignals[i];
        if (candidate == number) {
            if (const int file = logFileDescriptor(); file >= 0) {
                [[maybe_unused]] const ssize_t written = write(file, line.data(), line.size());
            }
            sigaction(number, &before[i], nullptr);
        }
    }
    raise(number);
}

}  // namespace

void logFatalSignals() {
    for (std::size_t i = 0; i < fatalSignals.size(); ++i) {
        struct sigaction action {};
        action.sa_handler = tellAndGo;
        sigaction(fatalSignals[i].number, &action, &before[i]);
    }
}

}  // namespace vandrel
