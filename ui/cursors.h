// The two cursors of the program: the wait cursor during long work, the arrow for the rest.
#ifndef UI_CURSORS_H
#define UI_CURSORS_H

// Loads both from the system. The entry calls it before anything else.
void loadCursors();

void showWaitCursor();
void showArrowCursor();

#endif
