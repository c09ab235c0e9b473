// The command line of the program that players start.
#ifndef START_OPTIONS_H
#define START_OPTIONS_H

#include <string>

// Whether a game of a later edition is opened as one.
enum class EditionsWish { unsaid, ask, later, base };

struct Options {
    bool help = false;                             // --help
    bool version = false;                          // --version
    bool prepareOnly = false;                      // --prepare: ready the game and end
    bool newTemplate = false;                      // --new-template: replace a template that is there
    bool askNothing = false;                       // --yes
    std::string game;                              // --game DIRECTORY
    EditionsWish editions = EditionsWish::unsaid;  // --editions later|base|ask
    std::string fault;                             // what is wrong, a sentence; empty if all is right
};

// The first argument is the program's name. An option's value may follow it or, with "=", be in the same argument.
Options optionsOf(int count, const char* const* arguments);

// The list of the options, one a line, for --help and after a fault.
std::string optionList();

#endif
