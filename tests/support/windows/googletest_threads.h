// Included before each source that uses GoogleTest: the library of this compiler has none of the parts of which
// GoogleTest makes the signal for the threads of its own tests. Ours start none.
namespace testing::internal {

struct Notification {
    void WaitForNotification() {}
};

}  // namespace testing::internal
