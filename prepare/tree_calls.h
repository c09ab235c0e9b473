// Which trees a tree of behavior calls.
#ifndef PREPARE_TREE_CALLS_H
#define PREPARE_TREE_CALLS_H

#include <cstdint>
#include <span>

// Numbers of trees: those of the file's own come first, then those that all Sims share.
constexpr std::uint32_t firstOwnTree = 4096;
constexpr std::uint32_t firstSharedTree = 8192;
constexpr std::uint32_t endOfTrees = 65536;

// Whether an instruction of the tree, the content of a "BHAV", calls a tree from `first` up to, but not including,
// `end`.
bool callsTree(std::span<const std::uint8_t> tree, std::uint32_t first, std::uint32_t end);

#endif
