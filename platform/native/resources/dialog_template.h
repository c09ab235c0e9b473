// Dialogs of the resources in their compiled form, the classic one:
//
//     style (4), extended style (4), count of items, x, y, width, height, menu, class, title,
//     with DS_SETFONT the font's points and its name; then, each at a multiple of 4, the items:
//     style (4), extended style (4), x, y, width, height, id, class, title, size of what follows
//
// Numbers take 2 bytes unless noted. Places are in dialog units: a fourth of the font's average width and an eighth of
// its height.
#ifndef PLATFORM_NATIVE_RESOURCES_DIALOG_TEMPLATE_H
#define PLATFORM_NATIVE_RESOURCES_DIALOG_TEMPLATE_H

#include <QRect>
#include <QString>
#include <optional>
#include <vector>

#include "platform/native/api/types.h"
#include "platform/native/resources/resource_bytes.h"

struct DialogItem {
    enum class Kind { button, text, other };

    Kind kind = Kind::other;
    DWORD style = 0;
    QRect place;  // in dialog units
    WORD id = 0;
    QString title;
    WORD titleId = 0;  // of an icon, in place of a title
};

struct DialogTemplate {
    DWORD style = 0;
    QRect place;  // in dialog units
    QString title;
    int points = 0;  // 0: the message font
    QString font;
    std::vector<DialogItem> items;
};

// Null if the bytes hold no complete template. Left out: the extended form.
std::optional<DialogTemplate> readDialogTemplate(ResourceBytes bytes);

#endif
