#include "fuzz/fuzz_files.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <system_error>

#include "platform/win32.h"

namespace fs = std::filesystem;

namespace {

struct Directory {
    Directory() { fs::create_directories(path); }
    ~Directory() {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }

    fs::path path = fs::temp_directory_path() / ("tidewright-fuzz-" + std::to_string(getpid()));
};

}  // namespace

// Takes the place of the layer's box, which would wait for an answer.
int MessageBoxA(HWND, LPCSTR, LPCSTR, UINT) {
    return IDOK;
}

const fs::path& fuzzDirectory() {
    static const Directory directory;
    return directory.path;
}

void writeFuzzFile(const std::string& name, FuzzInput bytes) {
    const fs::path path = fuzzDirectory() / name;
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (file == nullptr) {
        fs::create_directories(path.parent_path());
        file = std::fopen(path.c_str(), "wb");
    }
    promise(file != nullptr && std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size(), "room for the input");
    std::fclose(file);
}

Bytes readFuzzFile(const fs::path& path) {
    std::error_code error;
    const auto size = fs::file_size(path, error);
    promise(!error, "a file to read");
    Bytes bytes(size);
    std::FILE* file = std::fopen(path.c_str(), "rb");
    promise(file != nullptr && std::fread(bytes.data(), 1, bytes.size(), file) == bytes.size(), "a file to read");
    std::fclose(file);
    return bytes;
}

void promise(bool isKept, const char* what) {
    if (isKept) return;
    std::fprintf(stderr, "Broken: %s\n", what);
    std::abort();
}
