// The building blocks of the body-string text. An entry is 0x01, its characters and two zero bytes. Room that the
// entries don't need is filled up.
#ifndef WORLD_BODY_TEXT_LAYOUT_H
#define WORLD_BODY_TEXT_LAYOUT_H

#include <array>
#include <cstdint>
#include <string_view>

#include "world/body_strings.h"

namespace bodyText {
using namespace std::string_view_literals;

constexpr std::uint8_t entryMarker = 0x01;
constexpr std::uint8_t fill = 0xA3;
constexpr char pairMark = '=';
constexpr auto separator = "\x00\x00\x01"sv;  // ends an entry and begins the next
constexpr auto halfSeparator = "\x00\x00"sv;
constexpr auto trailer =
    "\x00\x00\xA3\x00\x00\x00\xA3\x00\x00\x00\xA3\x00\x00\x00\xA3\x00\x00\x00\xA3\x00\x00\x00\xA3\x00\x00\x00\xA3\x00"
    "\x00\x00"sv;
static_assert(trailer.size() == 30);

// From this version on, that of the later expansions, the text goes on behind entry 29.
constexpr std::int16_t extendedVersion = 7;

// Entry 33 is left out when one of its slots has fewer characters.
constexpr std::size_t shortestExpansionOutfit = 2;

struct Entry {
    bodySlot::Index slot;  // the first of two, for a pair
    bool pair;
};

// Entries 1 to 29. Every text has these.
constexpr std::array<Entry, 29> commonEntries = {{
    {bodySlot::bodyMesh, true},      {bodySlot::headMesh, true},     {bodySlot::anchorBoneA, false},
    {bodySlot::anchorPointA, false}, {bodySlot::anchorBoneB, false}, {bodySlot::anchorPointB, false},
    {bodySlot::spare8, false},       {bodySlot::spare9, false},      {bodySlot::spare10, false},
    {bodySlot::spare11, false},      {bodySlot::spare12, false},     {bodySlot::gender, false},
    {bodySlot::ageText, false},      {bodySlot::skinTone, false},    {bodySlot::nBodyMesh, true},
    {bodySlot::uBodyMesh, true},     {bodySlot::handLOMesh, true},   {bodySlot::handROMesh, true},
    {bodySlot::handLPMesh, true},    {bodySlot::handRPMesh, true},   {bodySlot::handLCMesh, true},
    {bodySlot::handRCMesh, true},    {bodySlot::spare32, false},     {bodySlot::spare33, false},
    {bodySlot::spare34, false},      {bodySlot::spare35, false},     {bodySlot::fBodyMesh, true},
    {bodySlot::fHandLOMesh, true},   {bodySlot::fHandROMesh, true},
}};

// The second slot of a pair.
constexpr bodySlot::Index secondOf(bodySlot::Index first) {
    return static_cast<bodySlot::Index>(first + 1);
}
}  // namespace bodyText

#endif
