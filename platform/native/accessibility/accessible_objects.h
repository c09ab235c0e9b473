// What screen readers are told about this layer's windows beyond what Qt tells them.
#ifndef PLATFORM_NATIVE_ACCESSIBILITY_ACCESSIBLE_OBJECTS_H
#define PLATFORM_NATIVE_ACCESSIBILITY_ACCESSIBLE_OBJECTS_H

class QString;
class QWidget;

// From now on a top-level window has the role of one. A combo box keeps its name, and its pick is its value and text;
// Qt's own would be called by the pick.
void describeWindowsToScreenReaders();

// Has `text` spoken once, wherever the keyboard is. Does nothing if it is empty.
void announce(QWidget& window, const QString& text);

#endif
