#include "gamefiles/skin_file.h"

std::string_view packageSkin() {
    return "xskin-c601fa_amanda-HEAD-HEAD\n"  // mesh
           "c601falgt_amanda\n"               // texture
           "1\n"                              // bones
           "HEAD\n"
           "8\n"  // triangles, counter-clockwise from outside
           "0 2 4\n"
           "1 4 2\n"
           "0 4 3\n"
           "1 3 4\n"
           "0 5 2\n"
           "1 2 5\n"
           "0 3 5\n"
           "1 5 3\n"
           "1\n"  // bindings: bone, first vertex, count; no blended vertices
           "0 0 6 -1 0\n"
           "6\n"  // texture coordinates of the vertices
           "0.75 0.5\n"
           "0.25 0.5\n"
           "0.5 0\n"
           "0.5 1\n"
           "0.5 0.5\n"
           "1 0.5\n"
           "0\n"  // blended vertices
           "6\n"  // vertices: position in feet and normal
           "0.35 0 0 1 0 0\n"
           "-0.35 0 0 -1 0 0\n"
           "0 0.5 0 0 1 0\n"
           "0 -0.5 0 0 -1 0\n"
           "0 0 0.4 0 0 1\n"
           "0 0 -0.4 0 0 -1\n";
}
