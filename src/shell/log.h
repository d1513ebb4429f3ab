// The log: one text file, rewritten at each start of the process, in which every line begins with the frame on which it
// was written. Every line also goes to the debugger output, with or without a file. Any thread may write.
#pragma once

#include <cstddef>
#include <cstdio>
#include <sstream>
#include <string>

namespace vandrel {

// Characters of a message, and of a line with its prefix, each with the terminating null.
inline constexpr std::size_t logBufferSize = 20'000;

// Writes "<frameCounter>: " and the message. The message brings its own newline. A message or a line that is too long
// for its buffer is cut. The line stays in the file's buffer until it is flushed.
[[gnu::format(printf, 1, 2)]] void logPrintf(const char* format, ...);

// The text as it stands, per cent signs included.
void logText(const std::string& text);
void logStream(const std::ostringstream& stream);

// The library's own trace text; the form that the library wants of a handler.
void logTrace(const char* text);

// What reports a failure uses these: a crash behind them loses nothing.
void logAndFlush(const std::string& text);
void flushLog();

// The file that lines go to from now on, or null for none. The log owns it until closeLog.
void setLogFile(std::FILE* file);

// The descriptor of that file, -1 while there is none. Safe in a signal handler.
int logFileDescriptor();

// Flushes and closes the file, if there is one; lines then reach the debugger output only.
void closeLog();

// Receives every line, `length` characters with a terminating null behind them, while the log is locked: it must not
// log.
using DebugOutput = void (*)(const char* line, std::size_t length);

// Replaces the receiver, which is standard error at first; null drops the lines. Gives the one before.
DebugOutput setDebugOutput(DebugOutput output);

// Writes to standard error at once, unbuffered.
void debugOutputToStandardError(const char* line, std::size_t length);

}  // namespace vandrel
