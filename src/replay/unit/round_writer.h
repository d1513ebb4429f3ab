// The files of a round that is being recorded, written beside the game: what the game hands over costs it a copy, and a
// thread of this writer's own hands it to the system, in whole updates and every millisecond. A process that is killed
// or crashes leaves files that hold every update but those since the thread last looked, and each of them whole; one
// that ends by a failure leaves them all.
#pragma once

#include <atomic>
#include <cstdint>
#include <exception>
#include <fstream>
#include <ostream>
#include <streambuf>
#include <thread>
#include <vector>

namespace vandrel {

// One file's way from the game to the writer's thread: a ring, filled by the one and emptied by the other.
class HandOverBuffer final : public std::streambuf {
  public:
    explicit HandOverBuffer(std::ofstream& file);

    // The game's side: lets the thread have all that was written so far.
    void publish() { published_.store(position(), std::memory_order_release); }

    // The thread's side. How far the file may be written, in bytes from the first handed over.
    std::uint64_t published() const { return published_.load(std::memory_order_acquire); }
    // Writes up to there and hands it to the system. Throws what the file throws.
    void writeOut(std::uint64_t end);
    // Nothing more is written. Whoever waits for room, or asks, is thrown `failure`.
    void close(std::exception_ptr failure);

    // The game's side. Throws what the buffer was closed with.
    void requireOpen() const {
        if (closed_.load(std::memory_order_acquire)) [[unlikely]] {
            std::rethrow_exception(failure_);
        }
    }

  protected:
    int_type overflow(int_type next) override;
    // What is written is handed over at the end of an update.
    int sync() override { return 0; }

  private:
    std::uint64_t position() const { return windowBegin_ + static_cast<std::uint64_t>(pptr() - pbase()); }
    std::uint64_t waitForRoom(std::uint64_t begin);

    std::ofstream& file_;
    std::vector<char> ring_;
    std::uint64_t windowBegin_ = 0;  // where the part of the ring lies that is being filled
    std::atomic<std::uint64_t> published_{0};
    std::atomic<std::uint64_t> written_{0};
    std::exception_ptr failure_;  // set before `closed_`
    std::atomic<bool> closed_{false};
};

class RoundWriter {
  public:
    // `replay` and `verify` are open files that outlive the writer; `verify` may be one that is not open if nothing
    // goes there. From here on only the writer touches them.
    RoundWriter(std::ofstream& replay, std::ofstream& verify);
    // Writes what is left, in silence where that is not possible.
    ~RoundWriter();
    RoundWriter(const RoundWriter&) = delete;
    RoundWriter& operator=(const RoundWriter&) = delete;

    // Where the game writes. Full or broken files show in `endUpdate`, or where there is no room left in between.
    std::ostream& replay() { return replayStream_; }
    std::ostream& verify() { return verifyStream_; }

    // Hands over what the update has written. Throws what writing an earlier one has thrown.
    void endUpdate() {
        // The text first: a replay that is ahead of its text could not be proved, the other way round it can.
        verify_.publish();
        replay_.publish();
        replay_.requireOpen();
    }

    // Writes all there is, and leaves the files to the caller. Throws what that throws.
    void finish();

  private:
    void run();
    void writeOut();
    void writeRest();

    HandOverBuffer replay_;
    HandOverBuffer verify_;
    std::ostream replayStream_;
    std::ostream verifyStream_;
    std::atomic<bool> stop_{false};
    std::thread thread_;
};

}  // namespace vandrel
