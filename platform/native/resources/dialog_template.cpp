#include "platform/native/resources/dialog_template.h"

namespace {

constexpr DWORD setFont = 0x40;
constexpr DWORD extendedForm = 0xFFFF0001;  // in place of the style
constexpr WORD buttonClass = 0x80;
constexpr WORD staticClass = 0x82;

QRect readPlace(ResourceBytes& bytes) {
    const int x = bytes.i16();
    const int y = bytes.i16();
    const int width = bytes.i16();
    return {x, y, width, bytes.i16()};
}

bool isClass(const ResourceName& name, WORD id, const char* text) {
    return name.isId(id) || QString::fromStdU16String(name.text).compare(QLatin1String(text), Qt::CaseInsensitive) == 0;
}

DialogItem readItem(ResourceBytes& bytes) {
    DialogItem item;
    bytes.align4();
    item.style = bytes.u32();
    bytes.u32();
    item.place = readPlace(bytes);
    item.id = bytes.u16();
    const ResourceName itemClass = bytes.name();
    if (isClass(itemClass, buttonClass, "Button")) item.kind = DialogItem::Kind::button;
    if (isClass(itemClass, staticClass, "Static")) item.kind = DialogItem::Kind::text;
    const ResourceName title = bytes.name();
    item.title = QString::fromStdU16String(title.text);
    item.titleId = title.id;
    bytes.take(bytes.u16());
    return item;
}

}  // namespace

std::optional<DialogTemplate> readDialogTemplate(ResourceBytes bytes) {
    DialogTemplate dialog;
    dialog.style = bytes.u32();
    bytes.u32();
    const WORD itemCount = bytes.u16();
    dialog.place = readPlace(bytes);
    bytes.name();  // menu
    bytes.name();  // class
    dialog.title = QString::fromStdU16String(bytes.text());
    if ((dialog.style & setFont) != 0) {
        dialog.points = bytes.u16();
        dialog.font = QString::fromStdU16String(bytes.text());
    }
    for (WORD i = 0; i < itemCount && !bytes.failed(); ++i) {
        dialog.items.push_back(readItem(bytes));
    }
    if (bytes.failed() || dialog.style == extendedForm) return std::nullopt;
    return dialog;
}
