// What screen readers get of this layer's windows beyond what Qt gives them.
#ifndef PLATFORM_NATIVE_ACCESSIBILITY_ACCESSIBLE_OBJECTS_H
#define PLATFORM_NATIVE_ACCESSIBILITY_ACCESSIBLE_OBJECTS_H

class QString;
class QWidget;

// From now on top-level windows have the role of a window, and a combo box has its pick as value and text. With Qt's
// own description, the pick would take the place of the combo box's name.
void describeWindowsToScreenReaders();

// Has `text` spoken once, wherever the focus is. Does nothing if it is empty.
void announce(QWidget& window, const QString& text);

#endif
