#include "prepare/tree_calls.h"

#include <cstddef>

#include "platform/byte_order.h"

bool callsTree(std::span<const std::uint8_t> tree, std::uint32_t first, std::uint32_t end) {
    constexpr std::size_t instructionSize = 12;  // the header takes as much
    for (std::size_t at = instructionSize; at < tree.size() && tree.size() - at >= instructionSize;
         at += instructionSize) {
        const std::uint32_t operation = readU16Le(tree.subspan(at).first<2>());
        if (operation >= first && operation < end) return true;
    }
    return false;
}
