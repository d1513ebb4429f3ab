#include "replay/tool/process_pool.h"

#include <fmt/format.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <map>
#include <sstream>
#include <system_error>

#include "replay/tool/printable.h"

namespace vandrel {

namespace {

struct Worker {
    int pipe;
    std::string path;
};

void sendResult(int pipe, const JobResult& result) {
    const std::string text =
        fmt::format("{} {} {} {}", result.good ? 1 : 0, result.frames, result.records, result.line);
    std::size_t sent = 0;
    while (sent < text.size()) {
        const ssize_t count = write(pipe, text.data() + sent, text.size() - sent);
        if (count <= 0) {
            return;
        }
        sent += static_cast<std::size_t>(count);
    }
}

JobResult receiveResult(const Worker& worker) {
    std::string text;
    std::array<char, 4096> buffer{};
    ssize_t count = 0;
    while ((count = read(worker.pipe, buffer.data(), buffer.size())) > 0) {
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
    close(worker.pipe);
    std::istringstream stream(text);
    JobResult result;
    if (!(stream >> result.good >> result.frames >> result.records) || stream.get() != ' ') {
        return {false, 0, 0, fmt::format("{}: FAILED: its process died", printable(worker.path))};
    }
    std::getline(stream, result.line);
    return result;
}

class Pool {
  public:
    // False where the system has no room for one more; then one has to finish first. Throws std::system_error where
    // none runs that could.
    bool start(const std::string& path, const std::function<JobResult(const std::string&)>& job) {
        std::array<int, 2> ends{};
        if (pipe(ends.data()) != 0) {
            return noRoom("pipe");
        }
        std::fflush(stdout);
        const pid_t process = fork();
        if (process < 0) {
            close(ends[0]);
            close(ends[1]);
            return noRoom("fork");
        }
        if (process == 0) {
            close(ends[0]);
            for (const auto& [_, worker] : workers_) {
                close(worker.pipe);  // it needs all files that it may open
            }
            sendResult(ends[1], job(path));
            _exit(0);
        }
        close(ends[1]);
        workers_[process] = {ends[0], path};
        return true;
    }

    // A line is shorter than a pipe holds, so a worker never waits for its reader.
    JobResult finishOne() {
        for (;;) {
            const pid_t process = waitpid(-1, nullptr, 0);
            if (process < 0 && errno != EINTR) {
                throw std::system_error(errno, std::generic_category(), "waitpid");
            }
            const auto found = workers_.find(process);
            if (found != workers_.end()) {
                const Worker worker = found->second;
                workers_.erase(found);
                return receiveResult(worker);
            }
        }
    }

    std::size_t running() const { return workers_.size(); }

  private:
    bool noRoom(const char* call) const {
        if (workers_.empty()) {
            throw std::system_error(errno, std::generic_category(), call);
        }
        return false;
    }

    std::map<pid_t, Worker> workers_;
};

}  // namespace

void runJobs(const std::vector<std::string>& paths, int atOnce, const std::function<JobResult(const std::string&)>& job,
             const std::function<void(const JobResult&)>& report) {
    if (atOnce == 1) {
        for (const std::string& path : paths) {
            report(job(path));
        }
        return;
    }
    Pool pool;
    for (const std::string& path : paths) {
        if (pool.running() == static_cast<std::size_t>(atOnce)) {
            report(pool.finishOne());
        }
        while (!pool.start(path, job)) {
            report(pool.finishOne());
        }
    }
    while (pool.running() > 0) {
        report(pool.finishOne());
    }
}

}  // namespace vandrel
