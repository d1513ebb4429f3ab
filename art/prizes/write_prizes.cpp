// The main of a prize recipe's program: framed photographs.
#include "images/write_family.h"
#include "prizes/photo.h"

int main(int argc, char** argv) {
    return vandrel::art::writeFamily(argc, argv, vandrel::art::writePhoto);
}
