// The powerups. A value lies in `bonusGrid`, 0 for none; names are in the tables of the options.
#pragma once

namespace vandrel {

namespace Bonus {
inline constexpr int None = 0;
inline constexpr int Bomb = 1;
inline constexpr int Range = 2;
inline constexpr int Speed = 3;
inline constexpr int Controller = 4;
inline constexpr int Timebomb = 5;
inline constexpr int Ghost = 6;
inline constexpr int Shield = 7;
inline constexpr int Cash = 8;
inline constexpr int Death = 9;  // has its rule, but nothing places it
inline constexpr int Superman = 10;
inline constexpr int Stop = 11;
inline constexpr int Snail = 12;
inline constexpr int Snake = 13;
inline constexpr int Annhiliator = 14;
inline constexpr int Flamethrower = 15;
inline constexpr int RocketLauncher = 16;
inline constexpr int QuestionShield = 17;
inline constexpr int QuestionGhost = 18;
inline constexpr int QuestionStop = 19;
inline constexpr int QuestionFastIgnition = 20;
inline constexpr int UltraBomb = 21;
}  // namespace Bonus

// The weighted draw of a powerup, from `gameRand`: from the auction's table or the level's, less what is disabled and,
// where cash would be of no use, less cash. 0, and no draw, when nothing can be drawn.
int chooseBonus(bool forAuction);

}  // namespace vandrel
