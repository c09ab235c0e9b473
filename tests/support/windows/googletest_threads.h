// Included before each source that uses GoogleTest: the library of this compiler has none of the parts of which
// GoogleTest makes the signal for the threads of its own tests. Ours start none.
#ifndef TESTS_SUPPORT_WINDOWS_GOOGLETEST_THREADS_H
#define TESTS_SUPPORT_WINDOWS_GOOGLETEST_THREADS_H

#include <cstdlib>

namespace testing::internal {

class Notification {
 public:
    void WaitForNotification() { std::abort(); }
};

}  // namespace testing::internal

#endif
