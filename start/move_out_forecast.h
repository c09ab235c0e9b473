// What a Move Out would drop: a save of a new family cuts the neighborhood file at its first free chunk, or else at its
// map, and in some files neighbors and families lie behind that.
#ifndef START_MOVE_OUT_FORECAST_H
#define START_MOVE_OUT_FORECAST_H

#include <string>

#include "gamefiles/byte_writer.h"
#include "world/neighborhood.h"

// The end of a sentence, with the number of Sims and the names of the families that the editor wouldn't find any more:
// "drop 12 Sims and the families Thistlewood and Larkspur". Empty if all neighbors and families end in front of the
// cut. `file` has the bytes that the neighborhood was read from.
std::string moveOutLoss(const Bytes& file, const Neighborhood& neighborhood);

#endif
