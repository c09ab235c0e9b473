// What Child to Teen and Teen to Adult share about the new head.
#ifndef LIFESTAGE_HEAD_QUESTION_H
#define LIFESTAGE_HEAD_QUESTION_H

#include <cstdint>

#include "world/sim.h"

// Gives `body` the head that follows `oldHeadSkin` at `stage`. If none is registered, asks `question`: on OK the body
// keeps the head that it has. False if the user cancelled.
bool chooseHead(const Sim& sim, std::int32_t stage, const char* oldHeadSkin, const char* question, BodyStrings& body);

#endif
