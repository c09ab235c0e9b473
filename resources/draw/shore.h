// The near shore around the house: trees, the bank with its stones, the jetty, and the reeds at the viewer's feet.
#ifndef RESOURCES_DRAW_SHORE_H
#define RESOURCES_DRAW_SHORE_H

#include "resources/draw/canvas.h"

void drawTrees(Canvas& canvas);
void drawBank(Canvas& canvas);
void drawJetty(Canvas& canvas);
void drawReeds(Canvas& canvas);

#endif
