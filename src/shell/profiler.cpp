#include "shell/profiler.h"

#include <cstddef>

#include "base/checked.h"

namespace vandrel {

Profiler theProfiler;

void Profiler::start(const std::string& name) {
    starts[name] = std::chrono::steady_clock::now();
}

double Profiler::stop(const std::string& name) {
    const auto now = std::chrono::steady_clock::now();
    const auto watch = starts.find(name);
    if (watch == starts.end() || !watch->second) {
        return 0.0;
    }
    const std::chrono::duration<double> seconds = now - *watch->second;
    watch->second.reset();
    return seconds.count();
}

void Profiler::addAverage(const std::string& name, int window) {
    averages[name] = Average{.total = 0.0f, .samples = {}, .window = window};
}

std::pair<double, float> Profiler::stopAveraged(const std::string& name) {
    const double seconds = stop(name);
    Average& average = checkedHashKey(averages, name);
    average.total += static_cast<float>(seconds);
    average.samples.push(static_cast<float>(seconds));
    if (average.samples.size() > static_cast<std::size_t>(average.window)) {
        average.total -= average.samples.front();
        average.samples.pop();
    }
    return {seconds, average.total / static_cast<float>(average.samples.size())};
}

}  // namespace vandrel
