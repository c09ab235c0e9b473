// What the window "Go Back" and its command line do: each asks and says what it needs to, in a box or on standard
// output.
#ifndef RESTORE_ACTIONS_H
#define RESTORE_ACTIONS_H

#include <string>

#include "restore/going_back.h"
#include "restore/restore_points.h"

// The game whose points these are, and the directory of points.
struct PointsOfGame {
    std::string pointsDirectory;
    std::string simsDirectory;  // with a trailing backslash
    bool onConsole = false;     // asks nothing
};

// Each returns whether it was done; false also if the player didn't want it.

// Goes back after a question in the words of comparisonLines.
bool goBackAfterQuestion(const PointsOfGame& game, const RestorePoint& point, int neighborhood);

bool makePoint(const PointsOfGame& game);
bool deleteAfterQuestion(const PointsOfGame& game, const RestorePoint& point);

// The name by which the player knows the point: that of the window's list, or on the console the one that --to takes.
std::string titleOf(const std::string& name, const PointsOfGame& game);

// Whether a going back in this game was cut off, and nothing else may be done before finishEarlier.
bool isCutOff(const PointsOfGame& game);

// For the player: why a point wasn't made, and why going back failed, with what it has left.
std::string sentenceOf(const MadePoint& made);
std::string sentenceOf(const GoneBack& gone);

// If an earlier going back in this game was cut off, asks whether to complete or to undo it, and does it. True as well
// if there is nothing to finish, or nothing to finish it with any more.
bool finishEarlier(const PointsOfGame& game);

#endif
