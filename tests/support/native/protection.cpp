#include "tests/support/protection.h"

// The layer asks the file, whoever runs the program.
bool protectionHolds() {
    return true;
}
