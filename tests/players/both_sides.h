// Plays a scene by the rules of before and after a change between releases. The tests of version gates use it.
#pragma once

#include <gtest/gtest.h>

#include "base/version.h"
#include "support/round_fixture.h"

namespace vandrel {

// The release before `gate`. No gate stands at patch 0.
inline int before(int gate) {
    return gate - 1;
}

// Runs `scene` with a round setup of the release before the change (`old` true) and of the change.
template <class Scene>
void playBothSides(int gate, Scene scene, RoundSetup setup = {}) {
    for (const bool old : {true, false}) {
        SCOPED_TRACE(versionText(old ? before(gate) : gate));
        setup.version = old ? before(gate) : gate;
        TestRound round(setup);
        scene(round, old);
    }
}

}  // namespace vandrel
