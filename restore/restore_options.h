// The command line of tidewright-restore.
#ifndef RESTORE_RESTORE_OPTIONS_H
#define RESTORE_RESTORE_OPTIONS_H

#include <string>

struct RestoreOptions {
    bool help = false;
    bool version = false;
    bool list = false;
    bool make = false;
    bool askNothing = false;  // --yes
    std::string target;       // --to NAME
    std::string game;         // --game DIRECTORY; empty to search
    int neighborhood = 0;     // --neighborhood NUMBER; 0 for all
    std::string fault;        // what is wrong, a sentence; empty if all is right

    // Without anything to do on the command line, the window opens.
    bool opensWindow() const { return !list && !make && target.empty(); }
};

// The first argument is the program's name. An option's value may follow it or, with "=", be in the same argument.
RestoreOptions restoreOptionsOf(int count, const char* const* arguments);

// The list of the options, one a line, for --help and after a fault.
std::string restoreOptionList();

#endif
