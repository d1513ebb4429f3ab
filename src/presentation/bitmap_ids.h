// The images by name. The position in this one list is the number of the image everywhere, and the name is that of its
// file without the extension: the enumeration and the table of names cannot drift apart.
#pragma once

#include <array>

namespace vandrel {

// clang-format off
#define VANDREL_BITMAPS(X)                                                                                             \
    X(MKR) X(Pilsbry) X(Trophy) X(Bomb1) X(Bomb2) X(Bomb3) X(Bomb4) X(Bomb5) X(Bomb6) X(Bomb7) X(Bomb8) X(Bomb9)       \
    X(Bomb10) X(Bomb11) X(Bomb12) X(Bomb13) X(Bomb14) X(Bomb15) X(Bomb16) X(Bomb17) X(Bomb18) X(Bomb19) X(Bomb20)      \
    X(Bomb21) X(Explo1) X(Explo2) X(Explo3) X(Explo1A) X(Explo2A) X(Explo3A) X(R_Left) X(R_Right) X(R_Up) X(R_Down)    \
    X(VLogo3) X(Snail) X(SnailDown) X(B_Anhil) X(B_Bomb) X(B_BombAngry) X(B_Cash) X(B_Ctrl) X(B_Flame) X(B_Ghost)      \
    X(B_Quest) X(B_Range) X(B_Rocket) X(B_ShieldNew) X(B_Snail) X(B_Speed) X(B_Stop) X(B_Tbomb) X(B_SuperNew)          \
    X(B_Snake) X(Flag0) X(Flag1) X(Flag2) X(Flag3) X(Flag4) X(Flag5) X(Block1) X(Block2) X(Block3) X(Block4)           \
    X(Wall3) X(W3NDth1) X(W3NDth2) X(Wall3CrumbleNew) X(Wall3CrumbleNew2) X(Wall3CrumbleNewDeath)                      \
    X(Wall3CrumbleNewDeath2) X(Wall3CrumbleNewDeath3) X(Wall3CrumbleNewDeath4) X(Body0_D_0) X(Body0_D_1)               \
    X(Body0_D_2) X(Body0_D_3) X(Body0_D_4) X(Body0_D_5) X(Body0_D_6) X(Body0_U_0) X(Body0_U_1) X(Body0_U_2)            \
    X(Body0_U_3) X(Body0_U_4) X(Body0_U_5) X(Body0_U_6) X(Body0_R_0) X(Body0_R_1) X(Body0_R_2) X(Body0_R_3)            \
    X(Body0_R_4) X(Body0_R_5) X(Body0_R_6) X(Body0_Ctrl) X(Body0_Crawl_R_0) X(Body0_Crawl_R_1) X(Head0_D_014)          \
    X(Head0_D_23) X(Head0_D_56) X(Head0_U_014) X(Head0_U_23) X(Head0_U_56) X(Head0_R_0) X(Head0_R_14) X(Head0_R_23)    \
    X(Head0_R_56) X(Head0_Crawl_R) X(Head1_D_014) X(Head1_D_23) X(Head1_D_56) X(Head1_R_0) X(Head1_R_14)               \
    X(Head1_R_23) X(Head1_R_56) X(Head1_Crawl_R) X(Head2_D_014) X(Head2_D_23) X(Head2_D_56) X(Head2_U_014)             \
    X(Head2_U_23) X(Head2_U_56) X(Head2_R_0) X(Head2_R_14) X(Head2_R_23) X(Head2_R_56) X(Head2_Crawl_R)                \
    X(Head3_D_014) X(Head3_D_23) X(Head3_D_56) X(Head3_U_014) X(Head3_U_23) X(Head3_U_56) X(Head3_R_0) X(Head3_R_14)   \
    X(Head3_R_23) X(Head3_R_56) X(Head3_Crawl_R) X(Head4_D_014) X(Head4_D_23) X(Head4_D_56) X(Head4_R_0)               \
    X(Head4_R_14) X(Head4_R_23) X(Head4_R_56) X(Head4_Crawl_R) X(Head5_D_014) X(Head5_D_23) X(Head5_D_56)              \
    X(Head5_R_0) X(Head5_R_14) X(Head5_R_23) X(Head5_R_56) X(Head5_Crawl_R) X(Head6_D_014) X(Head6_D_23)               \
    X(Head6_D_56) X(Head6_R_0) X(Head6_R_14) X(Head6_R_23) X(Head6_R_56) X(Head6_L_0) X(Head6_L_14) X(Head6_L_23)      \
    X(Head6_L_56) X(Head6_Crawl_R) X(Head6_Crawl_L) X(Head7_D_014) X(Head7_D_23) X(Head7_D_56) X(Head7_R_0)            \
    X(Head7_R_14) X(Head7_R_23) X(Head7_R_56) X(Head7_L_0) X(Head7_L_14) X(Head7_L_23) X(Head7_L_56)                   \
    X(Head7_Crawl_R) X(Head7_Crawl_L) X(Head8_D_014) X(Head8_D_23) X(Head8_D_56) X(Head8_R_0) X(Head8_R_14)            \
    X(Head8_R_23) X(Head8_R_56) X(Head8_Crawl_R) X(Head9_D_014) X(Head9_D_23) X(Head9_D_56) X(Head9_U_014)             \
    X(Head9_U_23) X(Head9_U_56) X(Head9_R_0) X(Head9_R_14) X(Head9_R_23) X(Head9_R_56) X(Head9_Crawl_R)                \
    X(Head10_D_014) X(Head10_D_23) X(Head10_D_56) X(Head10_U_014) X(Head10_U_23) X(Head10_U_56) X(Head10_R_0)          \
    X(Head10_R_14) X(Head10_R_23) X(Head10_R_56) X(Head10_Crawl_R) X(Head11_D_014) X(Head11_D_23) X(Head11_D_56)       \
    X(Head11_U_014) X(Head11_U_23) X(Head11_U_56) X(Head11_R_0) X(Head11_R_14) X(Head11_R_23) X(Head11_R_56)           \
    X(Head11_Crawl_R) X(Head12_D_014) X(Head12_D_23) X(Head12_D_56) X(Head12_R_0) X(Head12_R_14) X(Head12_R_23)        \
    X(Head12_R_56) X(Head12_Crawl_R) X(Alien1) X(Santa) X(Squirrel) X(CatInBin1) X(Cat1) X(Cat2) X(Cat3) X(Marmite)    \
    X(SashaFloor) X(Kittens2_7) X(Sasha2004082811) X(Narwhals) X(JanusBird) X(CatrickPiano) X(Django) X(CatFerret)     \
    X(Platypus) X(Ralph) X(Timothy) X(Yuffy) X(Owl1) X(Owl2) X(Owl3) X(Isolde) X(ArtWall1) X(ArtWall2) X(Hamster1)     \
    X(Hamster2) X(Hamster3) X(Django_01)
// clang-format on

enum class BitmapIds : int {
#define VANDREL_BITMAP_ID(name) name,
    VANDREL_BITMAPS(VANDREL_BITMAP_ID)
#undef VANDREL_BITMAP_ID
};

inline constexpr int bitmapCount = static_cast<int>(BitmapIds::Django_01) + 1;
static_assert(bitmapCount == 259);

// The size is written out: clang cannot deduce it from more than 256 names.
inline constexpr std::array<const char*, bitmapCount> bitmapNames{
#define VANDREL_BITMAP_NAME(name) #name,
    VANDREL_BITMAPS(VANDREL_BITMAP_NAME)
#undef VANDREL_BITMAP_NAME
};

constexpr int bitmapIndex(BitmapIds id) {
    return static_cast<int>(id);
}

// The image `steps` places behind `id`: the frames of an animation and the heads of a skin stand in a row.
constexpr BitmapIds operator+(BitmapIds id, int steps) {
    return static_cast<BitmapIds>(static_cast<int>(id) + steps);
}

// The prize pictures are big and most sessions show none of them: they are loaded at first use.
constexpr bool isLazyBitmap(BitmapIds id) {
    return id >= BitmapIds::Alien1;
}

}  // namespace vandrel
