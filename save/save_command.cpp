#include "save/save_command.h"

#include "ui/cursors.h"
#include "world/neighborhoods.h"

void saveAll() {
    showWaitCursor();
    for (int slot = 0; slot < listedNeighborhoodCount(); ++slot) {
        Neighborhood& neighborhood = *neighborhoods[static_cast<std::size_t>(slot)];
        neighborhood.save(neighborhood.toolDirectory());
    }
    showArrowCursor();
}
