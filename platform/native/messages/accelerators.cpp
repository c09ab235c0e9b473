// Accelerator tables, which map characters to commands.
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/native/api/system.h"
#include "platform/native/api/windowing.h"
#include "platform/native/base/handle_table.h"
#include "platform/native/resources/resource_file.h"

namespace {

// A table entry has 8 bytes: flags, character, command, and 2 bytes of padding.
constexpr WORD byVirtualKey = 0x01;
constexpr WORD withAlt = 0x10;
constexpr WORD lastEntry = 0x80;

struct Accelerator {
    bool alt;
    WORD character;
    WORD command;
};

using AcceleratorTable = std::vector<Accelerator>;

HandleTable<AcceleratorTable> tables;

AcceleratorTable readTable(ResourceBytes bytes) {
    AcceleratorTable table;
    for (WORD flags = 0; (flags & lastEntry) == 0;) {
        flags = bytes.u16();
        const Accelerator entry{(flags & withAlt) != 0, bytes.u16(), bytes.u16()};
        bytes.u16();
        if (bytes.failed()) break;
        if ((flags & byVirtualKey) == 0) table.push_back(entry);
    }
    return table;
}

}  // namespace

HACCEL LoadAcceleratorsA(HINSTANCE, LPCSTR tableName) {
    const auto resource = programResources().find(resourceType::accelerators, resourceId(tableName));
    if (!resource.has_value()) {
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
        return nullptr;
    }
    return static_cast<HACCEL>(tables.add(std::make_unique<AcceleratorTable>(readTable(ResourceBytes(*resource)))));
}

int TranslateAcceleratorA(HWND window, HACCEL table, MSG* message) {
    const AcceleratorTable* const entries = tables.find(table);
    if (entries == nullptr || (message->message != WM_CHAR && message->message != WM_SYSCHAR)) return 0;
    for (const Accelerator& entry : *entries) {
        if (entry.character != message->wParam || entry.alt != (message->message == WM_SYSCHAR)) continue;
        SendMessageA(window, WM_COMMAND, MAKEWPARAM(entry.command, 1), 0);
        return 1;
    }
    return 0;
}
