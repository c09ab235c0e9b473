#include "lifestage/head_question.h"

#include "lifestage/skin_sets.h"
#include "platform/win32.h"
#include "ui/controls.h"
#include "world/neighborhood.h"

bool chooseHead(const Sim& sim, std::int32_t stage, const char* oldHeadSkin, const char* question, BodyStrings& body) {
    HeadText skin, mesh;
    if (findNextStageHead(stage, oldHeadSkin, sim.neighborhood().toolDirectory(), skin, mesh) == 0) {
        body.setHeadMesh(mesh.c_str());
        body.setHeadSkin(skin.c_str());
        return true;
    }
    return MessageBoxA(controls().mainWindow, question, "Proceed?", MB_OKCANCEL) == IDOK;
}
