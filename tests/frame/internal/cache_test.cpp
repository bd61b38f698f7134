// How the size of the last-level cache is read, on made-up processors.
#include "frame/cache.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>

#include "frame/cache_tables.h"

namespace {

using tav::cpuid_words;

std::map<std::pair<uint32_t, uint32_t>, cpuid_words> processor;

cpuid_words answer(uint32_t leaf, uint32_t subleaf) {
  const auto it = processor.find({leaf, subleaf});
  return it == processor.end() ? cpuid_words{} : it->second;
}

// One cache in the layout of leaf 4.
cpuid_words cache(uint32_t type, uint32_t level, uint32_t line, uint32_t ways, uint32_t sets) {
  return {type | level << 5, (line - 1) | (ways - 1) << 22, sets - 1, 0};
}

constexpr uint32_t mib          = 1 << 20;
const char* const  their_vendor = tav::descriptor_vendor;

cpuid_words vendor_words(const char* text, uint32_t highest_leaf) {
  cpuid_words r{highest_leaf, 0, 0, 0};
  memcpy(&r.ebx, text, 4), memcpy(&r.edx, text + 4, 4), memcpy(&r.ecx, text + 8, 4);
  return r;
}

TEST(CacheSize, HighestLevelOfLeaf4) {
  processor = {{{0, 0}, {4, 0, 0, 0}},
               {{4, 0}, cache(1, 1, 64, 8, 64)},
               {{4, 1}, cache(2, 1, 64, 8, 64)},
               {{4, 2}, cache(3, 2, 64, 16, 1024)},
               {{4, 3}, cache(3, 3, 64, 16, 16384)}};
  EXPECT_EQ(tav::last_level_cache_bytes(answer), 16 * mib);
}

TEST(CacheSize, InstructionCachesDoNotCount) {
  processor = {{{0, 0}, {4, 0, 0, 0}}, {{4, 0}, cache(1, 1, 64, 8, 64)}, {{4, 1}, cache(2, 3, 64, 16, 16384)}};
  EXPECT_EQ(tav::last_level_cache_bytes(answer), 32u * 1024);
}

TEST(CacheSize, ExtendedLeafWhereLeaf4IsEmpty) {
  processor = {{{0, 0}, {16, 0, 0, 0}},
               {{0x80000000, 0}, {0x8000001E, 0, 0, 0}},
               {{0x8000001D, 0}, cache(1, 1, 64, 8, 64)},
               {{0x8000001D, 1}, cache(3, 3, 64, 16, 32768)}};
  EXPECT_EQ(tav::last_level_cache_bytes(answer), 32 * mib);
}

TEST(CacheSize, DescriptorsWhereNoLeafTellsParameters) {
  processor = {{{0, 0}, vendor_words(their_vendor, 2)}, {{2, 0}, {0x665B5001, 0, 0, 0x007A7040 | 0x45u << 24}}};
  EXPECT_EQ(tav::last_level_cache_bytes(answer), 2 * mib);
  processor[{0, 0}].eax = 1;
  EXPECT_EQ(tav::last_level_cache_bytes(answer), 0u) << "leaf 2 is not there";
}

TEST(CacheSize, NothingKnown) {
  processor.clear();
  EXPECT_EQ(tav::last_level_cache_bytes(answer), 0u);
}

TEST(CacheDescriptors, EveryRowDecodes) {
  uint32_t before = ~0u;
  for (const auto& row : tav::cache_descriptors) {
    const uint32_t size = tav::cache_bytes_by_descriptors(their_vendor, {1, uint32_t(row.descriptor) << 8, 0, 0});
    EXPECT_EQ(size, row.bytes());
    EXPECT_LE(size, before) << "larger caches come first";
    before = size;
  }
  EXPECT_EQ(tav::cache_descriptors[0].bytes(), 24 * mib);
  EXPECT_EQ(tav::cache_bytes_by_descriptors(their_vendor, {1, 0x43, 0, 0}), mib / 2);
  EXPECT_EQ(tav::cache_bytes_by_descriptors(their_vendor, {1, 0xEB, 0, 0}), 18 * mib);
  EXPECT_EQ(tav::cache_bytes_by_descriptors(their_vendor, {1, 0x48, 0, 0}), 3 * mib);
}

TEST(CacheDescriptors, TheFirstRowFoundCounts) {
  EXPECT_EQ(tav::cache_bytes_by_descriptors(their_vendor, {0x43440001, 0x4A, 0x4E, 0}), 6 * mib);
  EXPECT_EQ(tav::cache_bytes_by_descriptors(their_vendor, {0x43000001, 0, 0, 0x44000000}), mib);
}

TEST(CacheDescriptors, WhatIsLeftOut) {
  EXPECT_EQ(tav::cache_bytes_by_descriptors("AnotherMaker", {1, 0x43, 0, 0}), 0u) << "another vendor";
  EXPECT_EQ(tav::cache_bytes_by_descriptors(their_vendor, {2, 0x43, 0, 0}), 0u) << "a count other than 1";
  EXPECT_EQ(tav::cache_bytes_by_descriptors(their_vendor, {1, 0x80000043, 0, 0}), 0u) << "a register that is not valid";
  EXPECT_EQ(tav::cache_bytes_by_descriptors(their_vendor, {0x80004301, 0, 0x44, 0}), mib) << "the others still count";
  EXPECT_EQ(tav::cache_bytes_by_descriptors(their_vendor, {1, 0x0142, 0, 0}), 0u) << "no match";
}

}  // namespace
