// What a file's protection is worth. Each system has its own implementation in a folder beside this file.
#ifndef TESTS_SUPPORT_PROTECTION_H
#define TESTS_SUPPORT_PROTECTION_H

// Whether a write-protected file keeps this process from writing. Under Wine the system beneath decides, and lets root
// write.
bool protectionHolds();

#endif
