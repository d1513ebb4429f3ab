// A winner of the match who flies about the trophy room: thrown up from the table, falling, bouncing off the floor and
// the sides, with one full turn a jump. Pixels, updates and radians; a flight knows no clock.
#pragma once

namespace vandrel {

struct WinnerFlight {
    float x = 0.0f;  // of the figure's pivot; both are 0 until the figure was seen on the table
    float y = 0.0f;
    float velocityX = 0.0f;  // an update
    float velocityY = 0.0f;
    float rotation = 0.0f;
    float spin = 0.0f;  // radians an update; 0 between two turns

    bool hasLeft() const { return x != 0.0f || y != 0.0f; }
    // Where the figure stands on the table, told by who draws it; counts while the flight has no place.
    void leaveFrom(int pivotX, int pivotY);
    // One update on a screen of this size. Draws from `globalGenerator` for a jump and from `gameRand` for a turn.
    void advance(int width, int height);
};

// A flight with no place yet, thrown up at random: two draws from `globalGenerator`, the sideways one first.
WinnerFlight throwUp();

}  // namespace vandrel
