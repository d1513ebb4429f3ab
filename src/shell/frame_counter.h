// The number of updates that the current round has run. The match driver writes it, the rules read it, and every log
// line begins with it, which is why other threads may read it too.
#pragma once

#include <atomic>

namespace vandrel {

// An int with one writer, the main thread, and any number of readers. Reading and counting cost no more than for a
// plain int.
class FrameCounter {
  public:
    operator int() const { return count.load(std::memory_order_relaxed); }
    FrameCounter& operator=(int value) {
        count.store(value, std::memory_order_relaxed);
        return *this;
    }
    FrameCounter& operator++() { return *this = static_cast<int>(*this) + 1; }

  private:
    std::atomic<int> count{0};
};

// 0 until the first round; between rounds it stays at the last round's count.
extern FrameCounter frameCounter;

}  // namespace vandrel
