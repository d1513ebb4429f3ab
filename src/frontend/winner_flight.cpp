#include "frontend/winner_flight.h"

#include "base/random.h"

namespace vandrel {

namespace {

constexpr float fastestSideways = 2.0f;
constexpr float fastestUp = -6.0f;
constexpr float slowestUp = -3.0f;
constexpr float gravity = 0.1f;
constexpr float turningSpeed = 0.06f;
constexpr float fullTurn = 6.283185f;
constexpr float weakestJump = -5.0f;
constexpr float jumpBoost = 1.5f;  // of a jump that would not carry the figure up again

float randomUp() {
    return uniformFloat(globalGenerator, fastestUp, slowestUp);
}

}  // namespace

WinnerFlight throwUp() {
    WinnerFlight flight;
    flight.velocityX = uniformFloat(globalGenerator, -fastestSideways, fastestSideways);
    flight.velocityY = randomUp();
    return flight;
}

void WinnerFlight::leaveFrom(int pivotX, int pivotY) {
    if (!hasLeft()) {
        x = static_cast<float>(pivotX);
        y = static_cast<float>(pivotY);
    }
}

void WinnerFlight::advance(int width, int height) {
    const bool wasRising = velocityY < 0.0f;
    velocityY += gravity;
    if (wasRising && velocityY >= 0.0f && spin == 0.0f) {
        spin = (gameRand() & 1) != 0 ? turningSpeed : -turningSpeed;
    }
    x += velocityX;
    y += velocityY;
    rotation += spin;
    if ((spin > 0.0f && rotation >= fullTurn) || (spin < 0.0f && rotation <= -fullTurn)) {
        rotation = 0.0f;
        spin = 0.0f;
    }
    if (y >= static_cast<float>(height)) {
        velocityY = -velocityY;
        if (velocityY > weakestJump) {
            velocityY = randomUp() * jumpBoost;
        }
    }
    if (x < 0.0f || x > static_cast<float>(width)) {
        velocityX = -velocityX;
    }
}

}  // namespace vandrel
