// A device that presses at random, as somebody would who has never seen the game: for corpora, soaks and benchmarks.
#pragma once

#include <random>

#include "input/controls.h"

namespace vandrel {

class RandomControls final : public Controls {
  public:
    // The same seed presses the same keys, on any machine. The fire control is pressed once in `onePressIn` frames on
    // average; 0 for never.
    explicit RandomControls(unsigned seed, int onePressIn) : generator_(seed), onePressIn_(onePressIn) {}

    // To be called once before each update.
    void advance();

    bool isConnected() const override { return true; }
    bool leftPressed() const override { return x_ < 0; }
    bool rightPressed() const override { return x_ > 0; }
    bool upPressed() const override { return y_ < 0; }
    bool downPressed() const override { return y_ > 0; }
    bool bombPressed() const override { return bombFrames_ > 0; }
    bool button2Pressed() const override { return button2_; }
    bool pausePressed() const override { return false; }
    std::string description() const override { return "Random"; }
    std::string buttonText(ControlInput) const override { return "Random"; }

  private:
    int draw(int count);

    std::mt19937 generator_;
    int onePressIn_;
    int x_ = 0;
    int y_ = 0;
    int legFrames_ = 0;
    int bombFrames_ = 0;
    bool button2_ = false;
};

}  // namespace vandrel
