// Sets an environment variable, and restores it at the end of the object's life.
#ifndef TESTS_SUPPORT_SCOPED_VARIABLE_H
#define TESTS_SUPPORT_SCOPED_VARIABLE_H

#include <cstdlib>
#include <optional>
#include <string>

class ScopedVariable {
 public:
    ScopedVariable(const char* name, const std::string& value) : name_(name) {
        if (const char* before = std::getenv(name)) before_ = before;
        set(value);
    }
    ~ScopedVariable() { before_ ? set(*before_) : static_cast<void>(unsetenv(name_)); }
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

    void set(const std::string& value) { setenv(name_, value.c_str(), 1); }

 private:
    const char* name_;
    std::optional<std::string> before_;
};

#endif
