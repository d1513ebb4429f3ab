// Named stopwatches, from which the timing overlays of the frame pump and of the match get their figures.
#pragma once

#include <chrono>
#include <optional>
#include <queue>
#include <string>
#include <unordered_map>
#include <utility>

namespace vandrel {

class Profiler {
  public:
    // Starts the watch of that name, or starts it again.
    void start(const std::string& name);

    // The seconds since `start`; the watch no longer runs. 0 for a watch that does not run: screens nest, and an inner
    // screen has stopped the watches of the same names in the middle of the outer one's update.
    double stop(const std::string& name);

    // Begins the average of `name` over its last `window` samples, or begins it again.
    void addAverage(const std::string& name, int window);

    // Stops the watch and gives its seconds and the average, this sample included. Throws std::out_of_range
    // "invalid unordered_map<K, T> key" for a name without an average.
    std::pair<double, float> stopAveraged(const std::string& name);

  private:
    struct Average {
        float total = 0.0f;  // seconds
        std::queue<float> samples;
        int window = 0;
    };

    // A watch that stands is kept, so that a frame that starts it again allocates nothing.
    std::unordered_map<std::string, std::optional<std::chrono::steady_clock::time_point>> starts;
    std::unordered_map<std::string, Average> averages;
};

extern Profiler theProfiler;

}  // namespace vandrel
