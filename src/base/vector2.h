// A pair x, y: every square, pixel position, direction and velocity of the game.
#pragma once

namespace vandrel {

template <class T>
struct Vector2Base {
    T x{};
    T y{};

    friend constexpr bool operator==(const Vector2Base&, const Vector2Base&) = default;
    friend constexpr Vector2Base operator+(Vector2Base a, Vector2Base b) { return {a.x + b.x, a.y + b.y}; }
    friend constexpr Vector2Base operator-(Vector2Base a, Vector2Base b) { return {a.x - b.x, a.y - b.y}; }
};

using Square = Vector2Base<int>;  // in squares, (0, 0) at the top left
using Pixel = Vector2Base<int>;   // in pixels of the arena

}  // namespace vandrel
