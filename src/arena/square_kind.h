// What stands on a square. The layer holds plain ints, since a crumbling wall counts its frames through the values.
#pragma once

namespace vandrel {

namespace SquareKind {
inline constexpr int Empty = 0;
inline constexpr int GridBlock = 1;  // indestructible pillar
inline constexpr int EdgeWall = 2;   // the outer ring and what the closing walls lay
inline constexpr int Wall = 3;       // breaks at one hit
inline constexpr int HardWall = 4;   // breaks at three; looks like `Wall` until hit
inline constexpr int HardWallHitOnce = 5;
inline constexpr int HardWallHitTwice = 6;
inline constexpr int WallCrumbling = 10;      // 10 to 29, one value an update
inline constexpr int WallCrumbled = 30;       // never stored: the step that reaches it stores `Empty`
inline constexpr int HardWallCrumbling = 40;  // 40 to 59
inline constexpr int HardWallCrumbled = 60;   // never stored
}  // namespace SquareKind

constexpr bool isBreakableWall(int kind) {
    return kind >= SquareKind::Wall && kind <= SquareKind::HardWallHitTwice;
}
constexpr bool isIndestructible(int kind) {
    return kind == SquareKind::GridBlock || kind == SquareKind::EdgeWall;
}
constexpr bool isCrumbling(int kind) {
    return kind >= SquareKind::WallCrumbling && kind <= SquareKind::HardWallCrumbled;
}

// What a flame's head makes of a square: one hit on a wall, or the start of its crumbling once more.
constexpr int damagedKind(int kind) {
    switch (kind) {
        case SquareKind::Wall:
            return SquareKind::WallCrumbling;
        case SquareKind::HardWall:
            return SquareKind::HardWallHitOnce;
        case SquareKind::HardWallHitOnce:
            return SquareKind::HardWallHitTwice;
        case SquareKind::HardWallHitTwice:
            return SquareKind::HardWallCrumbling;
        default:
            break;
    }
    if (kind >= SquareKind::WallCrumbling && kind <= SquareKind::WallCrumbled) {
        return SquareKind::WallCrumbling;
    }
    if (kind >= SquareKind::HardWallCrumbling && kind <= SquareKind::HardWallCrumbled) {
        return SquareKind::HardWallCrumbling;
    }
    return kind;
}

}  // namespace vandrel
