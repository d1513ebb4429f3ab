// Several replays at once, each in a process of its own: there is one arena in a process, and a replay that brings its
// process down does not take the others with it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vandrel {

struct JobResult {
    bool good = false;
    std::int64_t frames = 0;
    std::int64_t records = 0;
    std::string line;  // for the user, without a newline
};

// Runs `job` on every path and hands each result to `report` as it comes, in order of the paths if `atOnce` is 1. With
// 1 all run in this process, one after the other. A process that dies gives a result that says so. Throws
// std::system_error if no process can be made.
void runJobs(const std::vector<std::string>& paths, int atOnce, const std::function<JobResult(const std::string&)>& job,
             const std::function<void(const JobResult&)>& report);

}  // namespace vandrel
