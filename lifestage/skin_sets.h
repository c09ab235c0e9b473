// "skinsets.cfg": which head follows which as a Sim grows, and the outfits of new teens.
//
// The file is text. A line that begins with "[" begins a skin set, one that begins with "#" is a comment, and any other
// is KEY=SKIN;MESH, with the key CHILD, TEENAGER or ADULT. Nothing is trimmed. The first skin set that holds the Sim's
// head under the key of its stage decides; its lines of the next stage are the candidates.
#ifndef LIFESTAGE_SKIN_SETS_H
#define LIFESTAGE_SKIN_SETS_H

#include <cstdint>

#include "platform/fixed_text.h"

using HeadText = FixedText<149>;
using OutfitText = FixedText<149>;

// Finds the head that follows `headSkin` (compared without regard to the case of ASCII letters) at `stage`, teen or
// adult, in the file of `toolDirectory`, and picks one of several candidates by one draw. 0 with both texts filled, or
// -1 with both untouched: the file can't be read, no skin set holds the head, or the first one that does has no
// candidate. A skin set has at most 5 candidates, a field at most 99 characters: what is more is cut. The file is read
// afresh at every call.
int findNextStageHead(std::int32_t stage, const char* headSkin, const char* toolDirectory, HeadText& newSkin,
                      HeadText& newMesh);

// The name of a teen's outfit, by one draw.
void pickTeenGirlOutfit(OutfitText& outfit);
void pickTeenBoyOutfit(OutfitText& outfit);

#endif
