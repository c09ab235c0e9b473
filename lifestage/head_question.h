// The choice of a new head, for Child to Teen and Teen to Adult.
#ifndef LIFESTAGE_HEAD_QUESTION_H
#define LIFESTAGE_HEAD_QUESTION_H

#include <cstdint>

#include "world/sim.h"

// Gives `body` the head that follows `oldHeadSkin` at `stage`. If there is none, asks the user `question`; on OK the
// body keeps the head that it has. False if the user cancelled.
bool chooseHead(const Sim& sim, std::int32_t stage, const char* oldHeadSkin, const char* question, BodyStrings& body);

#endif
