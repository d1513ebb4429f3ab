// Where things stand on the score table of the trophy room. A longer table gets a taller screen and closer rows, a
// bigger team closer figures. Pixels of the game screen.
#pragma once

namespace vandrel {

// The game screen slot for a table of so many rows.
int trophyScreenSlot(int rows);

// The top of row `row`, from 0, of `rows`, on a screen of that height. A figure's head is there.
int trophyRowTop(int row, int rows, int screenHeight);

// The left edge of figure `index`, from 0, of the `figures` in one row.
int trophyFigureLeft(int index, int figures);

// The left edge of trophy `index`, from 0; and how far below the top of its row it hangs.
int trophyLeft(int index);
inline constexpr int trophyDrop = 8;

}  // namespace vandrel
