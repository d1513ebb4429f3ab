// The bodies that all skins share: seven walk frames from the front (they serve the back too), the same with a back
// seam, seven from the side, one with a handset, two crawling. Tunic, trousers and shoes are the player's colour.
//
// A body is a jointed doll: limbs between hip, knee, foot, shoulder, elbow and hand, outlined and laid over each other.
// The gloves sit where a carried flag's pole will stand: the game's table of hand points, less the frame's bob and 4.
#include <array>
#include <cmath>
#include <string>

#include "images/recipe.h"
#include "painter/shapes.h"

namespace vandrel::art {
namespace {

constexpr int size = 32;
constexpr std::array<int, 7> bob{0, -2, 0, -1, -2, 0, -1};
constexpr std::array<Point, 7> handFromFront{{{28, 6}, {28, 8}, {26, 7}, {28, 8}, {28, 8}, {26, 4}, {28, 6}}};
constexpr std::array<Point, 7> handFromSide{{{13, 6}, {13, 8}, {7, 4}, {8, 6}, {12, 8}, {21, 4}, {19, 6}}};

// Row of the lowest pixel of a standing foot: the cell's last row, whatever the bob.
int soleRow(int frame) {
    return 27 - bob[static_cast<std::size_t>(frame)];
}

// Lays a part over the figure with an outline of its own, so that crossing limbs stay apart.
void layPart(Canvas& figure, const Shape& shape, const Ramp& ramp, float roundness) {
    Canvas part(size, size);
    fillLit(part, shape, ramp, roundness);
    part.outline();
    figure.draw(part);
}

constexpr Ramp cloth{palette::playerLit, palette::playerLit, palette::playerShade};
constexpr Ramp farCloth{palette::playerLit, palette::playerShade, palette::playerShade};
constexpr Ramp shoe{palette::playerLit, palette::playerLit, palette::playerFold};

void layLimb(Canvas& figure, Point from, Point joint, Point to, float radius, const Ramp& ramp) {
    layPart(figure,
            polyline({{from.x + 0.5f, from.y + 0.5f}, {joint.x + 0.5f, joint.y + 0.5f}, {to.x + 0.5f, to.y + 0.5f}},
                     radius),
            ramp, 1.3f);
}

// An arm ends just short of the hand, so that the glove closes it.
void layArm(Canvas& figure, Point shoulder, Point elbow, Point hand, float radius, const Ramp& ramp) {
    const float length = std::hypot(hand.x - elbow.x, hand.y - elbow.y);
    const float share = length > 2.0f ? (length - 2.0f) / length : 0.0f;
    layLimb(figure, shoulder, elbow, {elbow.x + (hand.x - elbow.x) * share, elbow.y + (hand.y - elbow.y) * share},
            radius, ramp);
}

// A glove of 3 x 3 pixels around the hand point.
void layGlove(Canvas& figure, Point hand) {
    const int x = static_cast<int>(hand.x), y = static_cast<int>(hand.y);
    figure.fillRect(x - 2, y - 1, 5, 3, palette::ink);
    figure.fillRect(x - 1, y - 2, 3, 5, palette::ink);
    figure.fillRect(x - 1, y - 1, 3, 3, palette::bone);
}

// A shoe whose sole is in row `sole`, `length` pixels long, its heel at column `x`.
void layShoe(Canvas& figure, int x, int sole, int length) {
    layPart(figure,
            rectangle(static_cast<float>(x), static_cast<float>(sole - 3), static_cast<float>(length), 3.0f, 1.2f),
            shoe, 2);
}

void layCollar(Canvas& figure) {
    figure.fillRect(11, 0, 10, 3, palette::ink);
    figure.fillRect(12, 0, 8, 3, palette::playerLit);
    figure.fillRect(12, 2, 8, 1, palette::playerFold);
}

void layBelt(Canvas& figure, int left, int width, int row) {
    figure.fillRect(left, row, width, 2, palette::skinDark);
    figure.fillRect(left, row + 1, width, 1, {96, 56, 40});
}

void layTunic(Canvas& figure, const Shape& tunic, int beltLeft, int beltWidth) {
    layPart(figure, tunic, cloth, 1.8f);
    layBelt(figure, beltLeft, beltWidth, 14);
    layCollar(figure);
}

struct Stride {
    int left;  // how far a foot is put forward; from the front that is how far it is lifted, in pixels
    int right;
};

Canvas frontBody(int frame, bool seam) {
    // Still, together, one stride in two steps, together, the other stride.
    static constexpr std::array<Stride, 7> lift{{{0, 0}, {0, 1}, {0, 5}, {0, 3}, {1, 0}, {5, 0}, {3, 0}}};
    static constexpr std::array<Point, 7> otherHand{{{4, 13}, {4, 13}, {6, 9}, {5, 11}, {4, 13}, {3, 15}, {4, 14}}};
    Canvas figure(size, size);
    const auto index = static_cast<std::size_t>(frame);
    const int sole = soleRow(frame);
    for (const bool left : {true, false}) {
        const int up = left ? lift[index].left : lift[index].right;
        const float hip = left ? 12.5f : 18.5f;
        const float foot = left ? 11.5f : 19.5f;
        const float ground = static_cast<float>(sole - 3 - up);
        layLimb(figure, {hip, 17}, {foot, (17 + ground) / 2}, {foot, ground}, 2.6f, up > 1 ? farCloth : cloth);
        layShoe(figure, left ? 8 : 17, sole - up, 7);
    }
    layArm(figure, {10, 5}, {6, 10}, otherHand[index], 2.1f, cloth);
    layGlove(figure, otherHand[index]);
    layTunic(figure, polygon({{11, 2}, {21, 2}, {24, 5}, {23.5f, 13}, {24, 19}, {8, 19}, {8.5f, 13}, {8, 5}}), 9, 14);
    if (seam) {
        figure.fillRect(15, 4, 1, 9, palette::playerFold);
        figure.fillRect(15, 17, 1, 2, palette::playerFold);
    }
    layArm(figure, {21, 5}, {24, 10}, handFromFront[index], 2.1f, cloth);
    layGlove(figure, handFromFront[index]);
    return figure;
}

Canvas sideBody(int frame) {
    struct Legs {
        Point nearKnee;
        int nearHeel, nearLift;
        Point farKnee;
        int farHeel, farLift;
    };
    static constexpr std::array<Legs, 7> legs{{{{15, 21}, 12, 0, {17, 21}, 15, 0},
                                               {{15, 22}, 12, 0, {19, 20}, 13, 3},
                                               {{20, 20}, 21, 0, {12, 21}, 4, 3},
                                               {{18, 21}, 17, 0, {13, 21}, 7, 2},
                                               {{19, 20}, 13, 3, {15, 22}, 13, 0},
                                               {{12, 21}, 4, 3, {20, 20}, 21, 0},
                                               {{13, 21}, 7, 2, {18, 21}, 17, 0}}};
    Canvas figure(size, size);
    const auto index = static_cast<std::size_t>(frame);
    const Legs& pose = legs[index];
    const Point hand = handFromSide[index];
    const auto layLeg = [&](Point knee, int heel, int up, const Ramp& ramp) {
        const int sole = soleRow(frame) - up;
        layLimb(figure, {15.5f, 17}, knee, {static_cast<float>(heel) + 2.5f, static_cast<float>(sole - 3)}, 2.5f, ramp);
        layShoe(figure, heel, sole, 8);
    };
    // The far hand swings against the near one.
    const Point farHand{31.0f - hand.x - (hand.x < 10 ? 1.0f : 3.0f), 13};
    layArm(figure, {16, 6}, {(16 + farHand.x) / 2, 11}, farHand, 1.9f, cloth);
    layGlove(figure, farHand);
    layLeg(pose.farKnee, pose.farHeel, pose.farLift, cloth);
    layLeg(pose.nearKnee, pose.nearHeel, pose.nearLift, cloth);
    layTunic(figure, polygon({{11, 2}, {20, 2}, {22, 5}, {22, 19}, {10, 19}, {10, 5}}), 11, 10);
    const Point elbow{(15 + hand.x) / 2 + (hand.x > 16 ? 1.0f : -1.0f), 12};
    layArm(figure, {15, 5}, elbow, hand, 2.0f, cloth);
    layGlove(figure, hand);
    return figure;
}

Canvas handsetBody() {
    Canvas figure = Canvas(size, size);
    const int sole = soleRow(0);
    for (const bool left : {true, false}) {
        const float foot = left ? 11.5f : 19.5f;
        layLimb(figure, {left ? 12.5f : 18.5f, 17}, {foot, 20}, {foot, static_cast<float>(sole - 3)}, 2.6f, cloth);
        layShoe(figure, left ? 8 : 17, sole, 7);
    }
    layTunic(figure, polygon({{11, 2}, {21, 2}, {24, 5}, {23.5f, 13}, {24, 19}, {8, 19}, {8.5f, 13}, {8, 5}}), 9, 14);
    layArm(figure, {9, 5}, {6, 11}, {10, 12}, 2.1f, cloth);
    layArm(figure, {22, 5}, {25, 11}, {21, 12}, 2.1f, cloth);
    Canvas box(size, size);
    box.fillRect(12, 8, 8, 7, palette::steelMiddle);
    box.fillRect(12, 8, 7, 2, palette::steelLight);
    box.fillRect(18, 3, 1, 5, palette::steelLight);
    box.outline();
    box.fillRect(17, 2, 3, 2, palette::fireRed);
    box.fillRect(13, 11, 2, 2, palette::fireRed);
    box.fillRect(17, 11, 2, 2, palette::iceLight);
    figure.draw(box);
    layGlove(figure, {10, 12});
    layGlove(figure, {21, 12});
    return figure;
}

// On all fours, the shoulder at the right edge in rows 14 to 26, where the crawling head goes on.
Canvas crawlingBody(int frame) {
    Canvas figure(size, size);
    const bool reaching = frame == 0;
    layLimb(figure, {11, 22}, {reaching ? 8.0f : 13.0f, 28}, {reaching ? 3.5f : 6.5f, 28}, 2.3f, farCloth);
    const Point farHand{reaching ? 18.0f : 27.0f, 29};
    layArm(figure, {23, 21}, {reaching ? 19.0f : 26.0f, 25}, farHand, 2.0f, farCloth);
    layGlove(figure, farHand);
    Canvas trunk(size, size);
    fillLit(trunk, unite(ellipse(12, 20.5f, 8.5f, 6.2f), rectangle(12, 15, 22, 11)), cloth, 3);
    trunk.outline();
    figure.draw(trunk);
    figure.fillRect(11, 15, 2, 11, palette::skinDark);
    figure.fillRect(29, 15, 3, 11, palette::playerShade);
    const Point nearKnee{reaching ? 15.0f : 11.0f, 28};
    layLimb(figure, {11, 22}, nearKnee, {nearKnee.x - 5, 28}, 2.4f, cloth);
    layPart(figure, rectangle(nearKnee.x - 8, 26, 4, 5, 1.2f), shoe, 2);
    const Point nearHand{reaching ? 27.0f : 19.0f, 29};
    layArm(figure, {24, 19}, {reaching ? 25.0f : 20.0f, 24}, nearHand, 2.1f, cloth);
    layGlove(figure, nearHand);
    return figure;
}

}  // namespace

Pictures paintFamily() {
    Pictures pictures;
    for (int frame = 0; frame < 7; ++frame) {
        const std::string number = std::to_string(frame);
        pictures.push_back({"Body0_D_" + number, frontBody(frame, false)});
        pictures.push_back({"Body0_U_" + number, frontBody(frame, true)});
        pictures.push_back({"Body0_R_" + number, sideBody(frame)});
    }
    pictures.push_back({"Body0_Ctrl", handsetBody()});
    pictures.push_back({"Body0_Crawl_R_0", crawlingBody(0)});
    pictures.push_back({"Body0_Crawl_R_1", crawlingBody(1)});
    return pictures;
}

}  // namespace vandrel::art
