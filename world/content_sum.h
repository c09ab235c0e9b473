// Size and checksum of a file's bytes, by which a file that another program has written in the meantime is noticed.
#ifndef WORLD_CONTENT_SUM_H
#define WORLD_CONTENT_SUM_H

#include <cstdint>
#include <span>

struct ContentSum {
    std::int64_t size = 0;       // in bytes
    std::uint32_t checksum = 0;  // CRC-32, as in zip files

    void add(std::span<const std::uint8_t> bytes);

    friend bool operator==(const ContentSum&, const ContentSum&) = default;
};

#endif
