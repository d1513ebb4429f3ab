// The symbols on the powerups' tiles, each drawn on the middle of a transparent 32x32 canvas. Used by powerups.cpp.
#pragma once

#include "painter/canvas.h"

namespace vandrel::art::symbol {

Canvas bombPlus();
Canvas angryBomb();
Canvas rangeArrows();
Canvas wingedBoot();
Canvas flexedArm();
Canvas shield();
Canvas sheetGhost();
Canvas handset();
Canvas plunger();
Canvas nozzle();
Canvas rocket();
Canvas burstBrick();
Canvas coin();
Canvas stopSign();
Canvas snailShell();
Canvas coiledSnake();
Canvas questionMark();

}  // namespace vandrel::art::symbol
