// The per-square layers of the arena, and the set of squares on which something counts down. All are range-checked: a
// bad index throws std::out_of_range "invalid vector subscript", which is fatal.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <vector>

#include "arena/bomb.h"
#include "arena/square_kind.h"
#include "base/vector2.h"

namespace vandrel {

// Columns, x first, in one block of memory.
template <class T>
class Layer {
  public:
    // Throws away what was there.
    void resize(int width, int height) {
        width_ = width;
        height_ = height;
        values_.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), T{});
    }
    std::size_t index(int x, int y) const {
        if (static_cast<unsigned>(x) >= static_cast<unsigned>(width_) ||
            static_cast<unsigned>(y) >= static_cast<unsigned>(height_)) {
            throw std::out_of_range("invalid vector subscript");
        }
        return static_cast<std::size_t>(x) * static_cast<std::size_t>(height_) + static_cast<std::size_t>(y);
    }
    T& at(int x, int y) { return values_[index(x, y)]; }
    const T& at(int x, int y) const { return values_[index(x, y)]; }
    T& at(Square square) { return at(square.x, square.y); }
    const T& at(Square square) const { return at(square.x, square.y); }
    int width() const { return width_; }
    int height() const { return height_; }

  private:
    int width_ = 0;
    int height_ = 0;
    std::vector<T> values_;
};

// The squares on which the bomb pass has anything to do: those with a bomb record in use and those that crumble. The
// pass visits them in the order of a scan over all squares, x outer, y inner, and spares the rest: on the largest arena
// eight thousand.
class ActiveSquares {
  public:
    void resize(int width, int height);
    void mark(int x, int y) {
        const std::size_t bit = bitOf(x, y);
        words_[bit / 64] |= std::uint64_t{1} << (bit % 64);
    }
    void clear(int x, int y) {
        const std::size_t bit = bitOf(x, y);
        words_[bit / 64] &= ~(std::uint64_t{1} << (bit % 64));
    }

    // Calls `visit(x, y)` for each marked square in order. A square marked meanwhile is visited too if it lies behind
    // the present one, as a scan would find it.
    template <class Visit>
    void forEach(Visit&& visit) const {
        for (std::size_t word = 0; word < words_.size(); ++word) {
            std::uint64_t done = 0;
            while (const std::uint64_t left = words_[word] & ~done) {
                const auto low = static_cast<unsigned>(std::countr_zero(left));
                done |= (std::uint64_t{2} << low) - 1U;
                const std::size_t bit = word * 64 + low;
                visit(static_cast<int>(bit / height_), static_cast<int>(bit % height_));
            }
        }
    }

  private:
    std::size_t bitOf(int x, int y) const {
        return static_cast<std::size_t>(x) * height_ + static_cast<std::size_t>(y);
    }

    std::size_t height_ = 1;
    std::vector<std::uint64_t> words_;
};

// The kinds of the squares. Setting one that crumbles marks its square as active.
class SquareGrid {
  public:
    explicit SquareGrid(ActiveSquares& active) : active_(active) {}
    void resize(int width, int height) { kinds_.resize(width, height); }
    int at(int x, int y) const { return kinds_.at(x, y); }
    int at(Square square) const { return kinds_.at(square); }
    void set(int x, int y, int kind) {
        kinds_.at(x, y) = kind;
        if (isCrumbling(kind)) {
            active_.mark(x, y);
        }
    }
    void set(Square square, int kind) { set(square.x, square.y, kind); }

  private:
    ActiveSquares& active_;
    Layer<int> kinds_;
};

// The bombs. Asking for a record that may be written marks its square as active.
class BombGrid {
  public:
    explicit BombGrid(ActiveSquares& active) : active_(active) {}
    void resize(int width, int height) { bombs_.resize(width, height); }
    const Bomb& at(int x, int y) const { return bombs_.at(x, y); }
    const Bomb& at(Square square) const { return bombs_.at(square); }
    Bomb& edit(int x, int y) {
        Bomb& bomb = bombs_.at(x, y);
        active_.mark(x, y);
        return bomb;
    }
    Bomb& edit(Square square) { return edit(square.x, square.y); }

  private:
    ActiveSquares& active_;
    Layer<Bomb> bombs_;
};

}  // namespace vandrel
