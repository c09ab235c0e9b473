// A whole body as one line: its 50 slots with a blank in front of each, "-" for an empty one.
#ifndef TESTS_LIFESTAGE_BODY_SLOTS_H
#define TESTS_LIFESTAGE_BODY_SLOTS_H

#include <string>

#include "world/body_strings.h"

inline std::string slotsOf(const BodyStrings& body) {
    std::string all;
    for (std::size_t i = 0; i < bodySlot::count; ++i) {
        const std::string text = body.slot(static_cast<bodySlot::Index>(i));
        all += " " + (text.empty() ? "-" : text);
    }
    return all;
}

// The names of an outfit, such as "S100fafit".
inline std::string outfit(const std::string& name, const std::string& tone) {
    return " " + name + "_original,BODY " + name + tone + "_original";
}

// A body with the hands and anchors that all of its tone share; the slots from 42 on are `outfits`.
inline std::string wholeBody(const std::string& everyday, const std::string& facts, const std::string& tone,
                             const std::string& night, const std::string& formal, const std::string& outfits) {
    const auto hand = [&](const std::string& mesh, const std::string& skin) {
        return " " + mesh + ",HAND " + skin + tone;
    };
    const std::string openHands = hand("HuLO", "huao") + hand("HuRO", "huao");
    return " " + everyday + " HEAD Top R_HAND Palm - - - - - " + facts + " " + tone + " " + night + openHands +
           hand("HuLP", "huap") + hand("HuRP", "huap") + hand("HuLC", "huac") + hand("HuRC", "huac") + " - - - - " +
           formal + openHands + outfits;
}

#endif
