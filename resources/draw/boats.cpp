#include "resources/draw/boats.h"

#include "resources/draw/path.h"

void drawSailingBoat(Canvas& canvas) {
    constexpr Color hull = rgb(0x4A2F55);
    constexpr Color sail = rgb(0x7A4A66);
    fill(canvas, Path().add({{88, 258}, {106, 258}, {103, 262.5}, {91, 262.5}}), hull);
    fill(canvas, Path().add({{97, 234}, {97, 256.5}, {88, 256.5}}), sail);
    fill(canvas, Path().add({{98, 238}, {106, 256.5}, {98, 256.5}}), sail);
    fill(canvas, Path().rectangle(97, 232, 98, 259), hull);
}

void drawRowingBoat(Canvas& canvas) {
    const Polygon sheer = Line({292, 303}).curveTo({304, 309.5}, {334, 310.5}, {350, 304.5}).points();
    Polygon hull = sheer;
    hull.push_back({345.5, 318});
    hull.push_back({302, 318});
    fill(canvas, Path().add(hull), vertical(304, rgb(0x57384F), 317, rgb(0x1E1732)));
    fill(canvas, Path().stroke(sheer, 1.8), rgb(0xD89A80), 0.9);
    fill(canvas, Path().stroke(Line({296, 308}).curveTo({308, 313.5}, {334, 314}, {348, 309}).points(), 0.9),
         rgb(0x241B38), 0.8);
    // A bench, an oar over the side, and the rope to the jetty's second post.
    fill(canvas, Path().rectangle(318, 306.6, 326, 308.4), rgb(0x8A5E60));
    fill(canvas, Path().stroke({{312, 303}, {338, 313.5}}, 1.2), rgb(0xB98672));
    fill(canvas, Path().stroke(Line({293, 303}).curveTo({290, 305}, {287.5, 300}, {287, 293}).points(), 0.8),
         rgb(0x1F1934), 0.9);
}
