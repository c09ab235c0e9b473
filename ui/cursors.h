// The two cursors of the program: the wait cursor during long work, else the arrow.
#ifndef UI_CURSORS_H
#define UI_CURSORS_H

// Loads both cursors. The entry calls this before anything else.
void loadCursors();

void showWaitCursor();
void showArrowCursor();

#endif
