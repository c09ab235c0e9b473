// The two cursors of the program: the wait cursor during long work, else the arrow.
#ifndef UI_CURSORS_H
#define UI_CURSORS_H

// Loads both cursors. The entry calls this before anything else.
void loadCursors();

// An operation that returns early, because it is refused or cancelled, leaves the wait cursor. The window repaints
// after each command, and that brings the arrow back (shell/window_texts.cpp).
void showWaitCursor();
void showArrowCursor();

#endif
