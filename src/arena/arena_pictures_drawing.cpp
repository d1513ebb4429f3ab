#include "arena/arena_pictures_drawing.h"

#include "arena/game.h"

namespace vandrel {

ArenaPictures& picturesOf(Game& game) {
    if (!game.pictures) {
        game.pictures = std::make_shared<ArenaPictures>();
    }
    return *game.pictures;
}

}  // namespace vandrel
