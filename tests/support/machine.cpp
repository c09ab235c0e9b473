#include "tests/support/machine.h"

std::filesystem::path buildDirectory() {
    static const std::filesystem::path startedIn = std::filesystem::current_path();
    return startedIn;
}
