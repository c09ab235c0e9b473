// What the user has picked, from a neighborhood down to a Sim.
#ifndef SHELL_SELECTION_H
#define SHELL_SELECTION_H

#include "world/neighborhoods.h"

// The indexes are those of the combo boxes' entries, -1 for none; the links are what stands behind them, null for none.
// There is no Sim behind the entry of an unreadable member.
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

// The answers to a pick in each combo box: the levels below are emptied and filled anew, the buttons follow the Sim.
void neighborhoodPicked();
void familyPicked();
void simPicked();

#endif
