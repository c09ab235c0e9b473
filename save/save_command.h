// The Save command.
#ifndef SAVE_SAVE_COMMAND_H
#define SAVE_SAVE_COMMAND_H

// Saves each listed neighborhood that has changed, under the wait cursor. One that fails doesn't stop the others, and
// nothing is reported. The last neighborhood's directory becomes the current one.
void saveAll();

#endif
