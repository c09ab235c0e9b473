// Two boats: one far out before the sunset, one tied to the jetty.
#ifndef RESOURCES_DRAW_BOATS_H
#define RESOURCES_DRAW_BOATS_H

#include "resources/draw/canvas.h"

void drawSailingBoat(Canvas& canvas);
void drawRowingBoat(Canvas& canvas);

#endif
