#include "data/skin_file.h"

std::string_view packageSkin() {
    // In order: mesh, texture, bones, triangles (counter-clockwise from outside), bindings (bone, first vertex, count,
    // no blended ones), texture vertices, blends, vertices with position in feet and normal.
    static constexpr std::string_view lines =
        "xskin-c601fa_amanda-HEAD-HEAD\n"
        "c601falgt_amanda\n"
        "1\n"
        "HEAD\n"
        "8\n"
        "0 2 4\n"
        "1 4 2\n"
        "0 4 3\n"
        "1 3 4\n"
        "0 5 2\n"
        "1 2 5\n"
        "0 3 5\n"
        "1 5 3\n"
        "1\n"
        "0 0 6 -1 0\n"
        "6\n"
        "0.75 0.5\n"
        "0.25 0.5\n"
        "0.5 0\n"
        "0.5 1\n"
        "0.5 0.5\n"
        "1 0.5\n"
        "0\n"
        "6\n"
        "0.35 0 0 1 0 0\n"
        "-0.35 0 0 -1 0 0\n"
        "0 0.5 0 0 1 0\n"
        "0 -0.5 0 0 -1 0\n"
        "0 0 0.4 0 0 1\n"
        "0 0 -0.4 0 0 -1\n";
    return lines;
}
