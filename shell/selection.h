// The neighborhood, the family and the Sim that the user has picked.
#ifndef SHELL_SELECTION_H
#define SHELL_SELECTION_H

#include "world/neighborhoods.h"

// The indexes are those of the picked entries, or -1. The pointers are to what was picked, or null; the entry of an
// unreadable member has no Sim.
struct Selection {
    int neighborhoodIndex = -1;
    int familyIndex = -1;
    int simIndex = -1;
    Neighborhood* currentNeighborhood = nullptr;
    Family* currentFamily = nullptr;
    Sim* currentSim = nullptr;
};

// The one selection of the program.
Selection& selection();

// To be called when an entry was picked in the combo box. They refill the boxes below it and set the buttons.
void neighborhoodPicked();
void familyPicked();
void simPicked();

#endif
