// The slots of a Sim's body as the builders have them, to compare the two.
#ifndef TESTS_SUPPORT_BODY_SLOTS_H
#define TESTS_SUPPORT_BODY_SLOTS_H

#include "sample/bodies.h"
#include "world/body_strings.h"

inline BodySlots slotsOf(const BodyStrings& body) {
    BodySlots slots;
    for (std::size_t i = 0; i < slots.size(); ++i)
        slots[i] = body.slot(static_cast<bodySlot::Index>(i));
    return slots;
}

#endif
