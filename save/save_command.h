// The Save command.
#ifndef SAVE_SAVE_COMMAND_H
#define SAVE_SAVE_COMMAND_H

// Saves each listed neighborhood that has changed. A failure in one doesn't stop the next; nothing is reported but by
// the wait cursor. Leaves the current directory in the last neighborhood's.
void saveAll();

#endif
