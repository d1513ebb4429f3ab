// How the process holds its largest blocks of memory: the pictures of screens and arenas, the buffers of a tune, the
// rings of a recording. They come and go with screens and rounds.
#pragma once

namespace vandrel {

// Gives each large block a mapping of its own, which goes back to the system when the block is freed. To be called
// before the first of them is made.
void keepLargeBlocksApart();

}  // namespace vandrel
