// The heads and outfits that a Sim gets as it grows. "skinsets.cfg" says which head follows which.
//
// The file is text. A line that begins with "[" begins a skin set, one that begins with "#" is a comment, and any other
// is KEY=SKIN;MESH, with the key CHILD, TEENAGER or ADULT. Nothing is trimmed. The first skin set with the Sim's head
// under the key of its stage counts; its lines for the next stage are the candidates.
#ifndef LIFESTAGE_SKIN_SETS_H
#define LIFESTAGE_SKIN_SETS_H

#include <cstdint>

#include "platform/fixed_text.h"

using HeadText = FixedText<149>;
using OutfitText = FixedText<149>;

// Finds the head that follows `headSkin` at `stage`, teen or adult, in the file in `toolDirectory`. Upper and lower
// case don't differ. A draw picks one of the candidates. Returns 0 with both texts filled; or -1 with both untouched,
// if the file can't be read, no skin set has the head, or the first one with it has no candidate. At most 5 candidates
// and 99 characters of a field count. The file is read again at every call.
int findNextStageHead(std::int32_t stage, const char* headSkin, const char* toolDirectory, HeadText& newSkin,
                      HeadText& newMesh);

// A draw picks the name of a teen's outfit.
void pickTeenGirlOutfit(OutfitText& outfit);
void pickTeenBoyOutfit(OutfitText& outfit);

#endif
