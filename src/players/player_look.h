// What a player looks like: a skin and a colour, and who picks them.
#pragma once

#include <vector>

#include "base/colour.h"

namespace vandrel {

struct PlayerLook {
    int skin = 0;
    int reserved = 0;  // a word that replays carry; kept as read, 0 in all looks made here
    ALLEGRO_COLOR colour{};
};

inline constexpr int skinCount = 13;

// The hundred colours of players, far enough from the background in use; the same on every run for that background.
std::vector<RGB> playerColours();

// The list itself, for whoever edits single colours. They stay until the palette is built anew.
std::vector<RGB>& editablePlayerColours();

// Has the palette built anew at its next use.
void invalidatePlayerColours();

// The look of a new player on spot `index` (0 or more).
PlayerLook defaultPlayerLook(int index);

// Steps to the next skin.
void nextSkin(PlayerLook& look);

// Picks any colour of the palette, from a source that no rule draws from.
void randomColour(PlayerLook& look);

// A look for a computer player: a skin open to them and a colour, both ones that no human has if that can be had.
void randomPlayerLook(PlayerLook& look);

}  // namespace vandrel
