// All 50 slots of a body as one line, to compare a whole body with what it must be.
#ifndef TESTS_SUPPORT_BODY_SLOTS_H
#define TESTS_SUPPORT_BODY_SLOTS_H

#include <string>

#include "world/body_strings.h"

// The slots, separated by blanks; an empty one is "-".
inline std::string slotsOf(const BodyStrings& body) {
    std::string all;
    for (std::size_t i = 0; i < bodySlot::count; ++i) {
        const std::string text = body.slot(static_cast<bodySlot::Index>(i));
        all += (i == 0 ? "" : " ") + (text.empty() ? "-" : text);
    }
    return all;
}

inline std::string replaced(std::string text, const std::string& what, const std::string& with) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size())
        text.replace(at, what.size(), with);
    return text;
}

// Runs of slots that many bodies share. "~" stands for the tone's word, "#" for the letters of sex and body.
const std::string anchorSlots = " HEAD Top R_HAND Palm - - - - - ";
const std::string handSlots =
    " HuLO,HAND huao~ HuRO,HAND huao~ HuLP,HAND huap~ HuRP,HAND huap~ HuLC,HAND huac~ HuRC,HAND huac~ - - - - ";
const std::string formalHandSlots = " HuLO,HAND huao~ HuRO,HAND huao~ ";
const std::string outfitSlots =
    "F100#_original,BODY F100#~_original S100#_original,BODY S100#~_original L100#_original,BODY L100#~_original ";
const std::string noOutfitSlots = "- - - - - - - -";

#endif
