// Menus of the resources in their compiled form, the classic one:
//
//     header: version 0, bytes to skip behind these 4
//     item:   flags, for all but popups the id, the text in UTF-16 up to a zero
//
// All numbers take 2 bytes. A popup's items follow it, and a flag marks the last item of each list.
#ifndef PLATFORM_NATIVE_RESOURCES_MENU_TEMPLATE_H
#define PLATFORM_NATIVE_RESOURCES_MENU_TEMPLATE_H

#include <QString>
#include <optional>
#include <vector>

#include "platform/native/api/types.h"
#include "platform/native/resources/resource_bytes.h"

struct MenuItem {
    bool isPopup = false;
    bool grayed = false;
    WORD id = 0;                  // unused for a popup
    QString text;                 // with "&"; empty for a separator
    std::vector<MenuItem> items;  // of a popup
};

// Null if the bytes hold no complete menu, or one of more than 8 levels.
std::optional<std::vector<MenuItem>> readMenuTemplate(ResourceBytes bytes);

// Null also if the resources have no menu of that name.
std::optional<std::vector<MenuItem>> loadMenuTemplate(LPCSTR name);

#endif
