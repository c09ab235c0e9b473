// The program tidewright-restore.
#ifndef RESTORE_PROGRAM_H
#define RESTORE_PROGRAM_H

// Does what the command line says, or shows the window. Returns the process's exit code: 0 if it is done, 1 if it was
// refused or failed, after words that say why.
int runRestore(int argumentCount, char** arguments);

#endif
