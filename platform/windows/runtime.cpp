// Our own versions of the parts of the C++ runtime that throw, for programs that catch nothing: what the originals
// throw would end such a program, too. The linker finds these first. It then leaves out the exceptions of every kind,
// their texts, and what unwinds the stack.
#include <cstdlib>
#include <new>
#include <string>

void* operator new(std::size_t size) {
    void* const memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) std::abort();
    return memory;
}

// Standard algorithms ask it for their temporary buffers.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return std::malloc(size == 0 ? 1 : size);
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

// The library calls these where an argument is out of range or memory runs out.
// NOLINTBEGIN(bugprone-reserved-identifier): they are the library's
namespace std {

void __throw_bad_alloc() {
    abort();
}

void __throw_bad_array_new_length() {
    abort();
}

void __throw_length_error(const char*) {
    abort();
}

void __throw_logic_error(const char*) {
    abort();
}

void __throw_out_of_range_fmt(const char*, ...) {
    abort();
}

}  // namespace std
// NOLINTEND(bugprone-reserved-identifier)
