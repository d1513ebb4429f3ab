// Background music as the rules and screens see it: at most one piece belongs to a screen or a match. `NoMusic` stands
// in wherever none should sound.
#pragma once

namespace vandrel {

class Music {
  public:
    Music() = default;
    Music(const Music&) = delete;
    Music& operator=(const Music&) = delete;
    virtual ~Music() = default;

    // `volume` is 0 to 255.
    virtual void setVolume(int volume) = 0;
    // Moves the volume in a straight line to `volume` (0 to 255) within `seconds`, more than 0.
    virtual void fadeTo(float seconds, int volume) = 0;
    virtual void stop() = 0;
};

class NoMusic final : public Music {
  public:
    void setVolume(int /*volume*/) override {}
    void fadeTo(float /*seconds*/, int /*volume*/) override {}
    void stop() override {}
};

}  // namespace vandrel
