#include "shell/log.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdarg>
#include <cstring>
#include <mutex>
#include <utility>

#include "shell/frame_counter.h"

namespace vandrel {
namespace {

// Fixed buffers, so that a line written from within a frame allocates nothing. All of these are guarded by logMutex.
std::mutex logMutex;
std::array<char, logBufferSize> logMessageBuffer;
std::array<char, logBufferSize> logLineBuffer;
std::FILE* logFile = nullptr;
std::atomic<int> logDescriptor = -1;  // for signal handlers, which may not wait for the mutex
DebugOutput debugOutput = debugOutputToStandardError;

}  // namespace

void logPrintf(const char* format, ...) {
    const std::lock_guard lock(logMutex);
    if (debugOutput == nullptr && logFile == nullptr) {
        return;
    }
    std::va_list arguments;
    va_start(arguments, format);
    const int formatted = std::vsnprintf(logMessageBuffer.data(), logMessageBuffer.size(), format, arguments);
    va_end(arguments);
    if (formatted < 0) {
        logMessageBuffer[0] = '\0';
    }
    const int prefix =
        std::snprintf(logLineBuffer.data(), logLineBuffer.size(), "%d: ", static_cast<int>(frameCounter));
    const auto prefixLength = static_cast<std::size_t>(std::max(prefix, 0));
    const std::size_t messageLength =
        std::min(std::strlen(logMessageBuffer.data()), logLineBuffer.size() - 1 - prefixLength);
    std::memcpy(logLineBuffer.data() + prefixLength, logMessageBuffer.data(), messageLength);
    const std::size_t length = prefixLength + messageLength;
    logLineBuffer[length] = '\0';
    if (debugOutput != nullptr) {
        debugOutput(logLineBuffer.data(), length);
    }
    if (logFile != nullptr) {
        std::fwrite(logLineBuffer.data(), 1, length, logFile);
    }
}

void logText(const std::string& text) {
    logPrintf("%s", text.c_str());
}

void logStream(const std::ostringstream& stream) {
    logText(stream.str());
}

void logTrace(const char* text) {
    logPrintf("%s", text);
}

void logAndFlush(const std::string& text) {
    logText(text);
    flushLog();
}

void flushLog() {
    const std::lock_guard lock(logMutex);
    if (logFile != nullptr) {
        std::fflush(logFile);
    }
}

void setLogFile(std::FILE* file) {
    const std::lock_guard lock(logMutex);
    logFile = file;
    logDescriptor = file != nullptr ? fileno(file) : -1;
}

int logFileDescriptor() {
    return logDescriptor;
}

void closeLog() {
    const std::lock_guard lock(logMutex);
    if (logFile != nullptr) {
        logDescriptor = -1;
        std::fclose(logFile);
        logFile = nullptr;
    }
}

DebugOutput setDebugOutput(DebugOutput output) {
    const std::lock_guard lock(logMutex);
    return std::exchange(debugOutput, output);
}

void debugOutputToStandardError(const char* line, std::size_t length) {
    std::fwrite(line, 1, length, stderr);
}

}  // namespace vandrel
