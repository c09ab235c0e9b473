#include "shell/window_texts.h"

#include "platform/fixed_text.h"
#include "shell/selection.h"
#include "ui/cursors.h"

namespace {

using LineText = FixedText<255>;

// Draws `text` in the client area, between the rows `top` and `bottom` and up to the column `right`.
void drawText(HDC dc, const RECT& client, const char* text, LONG top, LONG bottom, LONG right) {
    RECT rectangle{client.left + 10, client.top + top, right, client.top + bottom};
    DrawTextA(dc, text, -1, &rectangle, 0);
}

void drawLine(HDC dc, const RECT& client, const char* text, LONG top, LONG bottom) {
    drawText(dc, client, text, top, bottom, client.left + 460);
}

void drawLabels(HDC dc, const RECT& client) {
    const LONG right = client.right + 150;  // beyond the edge, so that only the window cuts a label
    drawText(dc, client, "Pick a Neighborhood: ", 10, 30, right);
    drawText(dc, client, "Pick a Family: ", 40, 60, right);
    drawText(dc, client, "Pick a Sim: ", 70, 90, right);
}

void drawSim(HDC dc, const RECT& client, Sim& sim, const Family& family) {
    const auto name = joined<LineText>("Name: ", sim.name(), ' ', family.name());
    drawLine(dc, client, name.c_str(), 130, 160);
    const auto stage = joined<LineText>("Stage: ", stageWord(sim.stage()));
    drawLine(dc, client, stage.c_str(), 160, 190);
}

}  // namespace

const char* stageWord(std::int32_t stage) {
    switch (stage) {
        case stageNumber::baby:
            return "baby";
        case stageNumber::toddler:
            return "toddler";
        case stageNumber::child:
            return "child";
        case stageNumber::preteen:
            return "preteen";
        case stageNumber::teen:
            return "teenager";
        case stageNumber::adult:
            return "adult";
        case stageNumber::pet:
            return "not applicable (pet)";
        default:
            return "unknown";
    }
}

void paintMainWindow(HWND window) {
    PAINTSTRUCT paint{};
    const HDC dc = BeginPaint(window, &paint);
    showWaitCursor();
    RECT client{};
    GetClientRect(window, &client);
    drawLabels(dc, client);
    const Selection& picked = selection();
    // An unreadable member has no Sim, and nothing is known of it.
    if (picked.simIndex >= 0 && picked.currentSim != nullptr && picked.currentFamily != nullptr) {
        drawSim(dc, client, *picked.currentSim, *picked.currentFamily);
    }
    EndPaint(window, &paint);
    showArrowCursor();
}
