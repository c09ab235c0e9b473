// The directory in which the player's own files of this program lie.
#ifndef PLATFORM_OWN_DIRECTORY_H
#define PLATFORM_OWN_DIRECTORY_H

#include <string>

struct OwnDirectory {
    std::string path;   // absolute, without a separator at its end; empty if there is no such place
    std::string fault;  // why it can't be used, a sentence that names it; empty if it can
};

// The directory: natively `$XDG_DATA_HOME/NAME`, or `~/.local/share/NAME` if that variable has no absolute path, where
// NAME is `name` in lower case; on Windows `name` in the user's local application data. It is made if it is missing,
// and may be written into if there is no fault.
OwnDirectory ownDirectory(const std::string& name);

#endif
