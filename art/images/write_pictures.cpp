// The main of a sprite recipe's program: PNG files as they were painted.
#include "images/write_family.h"
#include "painter/png_file.h"

int main(int argc, char** argv) {
    return vandrel::art::writeFamily(argc, argv, vandrel::art::writePng);
}
