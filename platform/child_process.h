// Runs another program and waits for its end.
#ifndef PLATFORM_CHILD_PROCESS_H
#define PLATFORM_CHILD_PROCESS_H

#include <string>

class DirectoryLock;

// The path of the program `name` (without ".exe") in the directory of the running one. Empty on failure.
std::string programBeside(const std::string& name);

// Runs `program`, without arguments, in `directory`, and waits. It inherits the environment. Returns whether it could
// be started, with the reason in GetLastError if not. `exitCode` is as the system has it: natively 0 to 255, and 128
// plus the signal's number if a signal ended it.
//
// Natively the program has the lock `shared` together with this one, without knowing it: the lock ends with the last of
// both, so it outlives this process if only that is killed. On Windows it ends with this process.
bool runAndWait(const std::string& program, const std::string& directory, const DirectoryLock& shared, int& exitCode);

#endif
