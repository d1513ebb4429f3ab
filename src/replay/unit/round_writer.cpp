#include "replay/unit/round_writer.h"

#include <algorithm>
#include <chrono>
#include <string_view>
#include <utility>

#include "replay/unit/streams.h"

namespace vandrel {

namespace {

constexpr std::size_t ringSize = 1U << 20U;  // bytes; far more than players write between two looks of the thread
constexpr std::chrono::milliseconds betweenLooks{1};
constexpr std::chrono::microseconds whileFull{100};

}  // namespace

HandOverBuffer::HandOverBuffer(std::ofstream& file) : file_(file), ring_(ringSize) {
    setp(ring_.data(), ring_.data() + ring_.size());
}

// How much of the ring is free from `begin` on. An update that fills all of it is handed over in pieces.
std::uint64_t HandOverBuffer::waitForRoom(std::uint64_t begin) {
    while (true) {
        const std::uint64_t held = begin - written_.load(std::memory_order_acquire);
        if (held < ring_.size()) {
            return ring_.size() - held;
        }
        requireOpen();
        if (begin - published_.load(std::memory_order_relaxed) == ring_.size()) {
            publish();
        }
        std::this_thread::sleep_for(whileFull);
    }
}

HandOverBuffer::int_type HandOverBuffer::overflow(int_type next) {
    const std::uint64_t begin = position();
    const std::uint64_t room = waitForRoom(begin);
    const std::size_t offset = begin % ring_.size();
    const std::size_t length = std::min<std::size_t>(room, ring_.size() - offset);
    windowBegin_ = begin;
    setp(ring_.data() + offset, ring_.data() + offset + length);
    return traits_type::eq_int_type(next, traits_type::eof()) ? traits_type::not_eof(next)
                                                              : sputc(traits_type::to_char_type(next));
}

void HandOverBuffer::writeOut(std::uint64_t end) {
    std::uint64_t begin = written_.load(std::memory_order_relaxed);
    if (begin == end) {
        return;
    }
    while (begin < end) {
        const std::size_t offset = begin % ring_.size();
        const std::size_t length = std::min<std::size_t>(end - begin, ring_.size() - offset);
        writeMarker(&file_, std::string_view(ring_.data() + offset, length));
        begin += length;
    }
    flushWritten(&file_);
    written_.store(end, std::memory_order_release);
}

void HandOverBuffer::close(std::exception_ptr failure) {
    failure_ = std::move(failure);
    closed_.store(true, std::memory_order_release);
}

RoundWriter::RoundWriter(std::ofstream& replay, std::ofstream& verify)
    : replay_(replay), verify_(verify), replayStream_(&replay_), verifyStream_(&verify_), thread_([this] { run(); }) {}

RoundWriter::~RoundWriter() {
    writeRest();
}

void RoundWriter::finish() {
    writeRest();
    replay_.requireOpen();
}

void RoundWriter::run() {
    try {
        while (!stop_.load(std::memory_order_acquire)) {
            writeOut();
            std::this_thread::sleep_for(betweenLooks);
        }
        writeOut();
    } catch (...) {
        verify_.close(std::current_exception());
        replay_.close(std::current_exception());
    }
}

void RoundWriter::writeOut() {
    const std::uint64_t replayEnd = replay_.published();
    verify_.writeOut(verify_.published());
    replay_.writeOut(replayEnd);
}

void RoundWriter::writeRest() {
    verify_.publish();
    replay_.publish();
    stop_.store(true, std::memory_order_release);
    if (thread_.joinable()) {
        thread_.join();
    }
}

}  // namespace vandrel
