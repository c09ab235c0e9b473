// Handles are numbers that no two objects ever share, so an old handle, or one of another kind, is recognized as
// invalid.
#ifndef PLATFORM_NATIVE_BASE_HANDLE_TABLE_H
#define PLATFORM_NATIVE_BASE_HANDLE_TABLE_H

#include <cstdint>
#include <map>
#include <memory>

#include "platform/native/api/types.h"

// Ascending, from well above any id that a program might pass.
inline HANDLE newHandle() {
    static std::uintptr_t last = 0x10000;
    return reinterpret_cast<HANDLE>(++last);  // NOLINT(performance-no-int-to-ptr): never dereferenced
}

// Objects by handle, in the order of creation.
template <typename T>
class HandleTable {
 public:
    T* add(HANDLE handle, std::unique_ptr<T> object) {
        return (objects_[reinterpret_cast<std::uintptr_t>(handle)] = std::move(object)).get();
    }

    HANDLE add(std::unique_ptr<T> object) {
        const HANDLE handle = newHandle();
        add(handle, std::move(object));
        return handle;
    }

    T* find(const void* handle) const {
        const auto found = objects_.find(reinterpret_cast<std::uintptr_t>(handle));
        return found == objects_.end() ? nullptr : found->second.get();
    }

    // Removes and returns the object, so that its destructor no longer finds it here. Null if there is none.
    std::unique_ptr<T> take(const void* handle) {
        const auto found = objects_.find(reinterpret_cast<std::uintptr_t>(handle));
        if (found == objects_.end()) return nullptr;
        std::unique_ptr<T> object = std::move(found->second);
        objects_.erase(found);
        return object;
    }

    auto begin() const { return objects_.begin(); }
    auto end() const { return objects_.end(); }
    void clear() { objects_.clear(); }

 private:
    std::map<std::uintptr_t, std::unique_ptr<T>> objects_;
};

#endif
