#include "gamefiles/file_writing.h"

#include <fstream>

bool writeFile(const std::filesystem::path& path, std::string_view text) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    file.close();
    return file.good();
}

bool writeFile(const std::filesystem::path& path, const Bytes& bytes) {
    return writeFile(path, std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
}
