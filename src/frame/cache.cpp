#include "frame/cache.h"

#include <cpuid.h>
#include <string.h>

#include "frame/cache_tables.h"

namespace tav {
namespace {

cpuid_words ask_processor(uint32_t leaf, uint32_t subleaf) {
  cpuid_words r;
  __cpuid_count(leaf, subleaf, r.eax, r.ebx, r.ecx, r.edx);
  return r;
}

constexpr uint32_t field(uint32_t word, int low, int bits) { return (word >> low) & ((1u << bits) - 1); }

// Leaf 4 and leaf 0x8000001D describe one cache per subleaf, in the same layout.
uint32_t by_parameters(cpuid_source cpuid, uint32_t leaf) {
  constexpr uint32_t no_more = 0, instructions = 2, most_caches = 16;
  uint64_t           size  = 0;
  uint32_t           level = 0;
  for (uint32_t i = 0; i < most_caches; ++i) {
    const cpuid_words r    = cpuid(leaf, i);
    const uint32_t    type = field(r.eax, 0, 5);
    if (type == no_more) break;
    if (type == instructions || field(r.eax, 5, 3) < level) continue;
    const uint64_t line = field(r.ebx, 0, 12) + 1, partitions = field(r.ebx, 12, 10) + 1,
                   ways = field(r.ebx, 22, 10) + 1, sets = uint64_t(r.ecx) + 1;
    level = field(r.eax, 5, 3);
    size  = line * partitions * ways * sets;
  }
  return size > UINT32_MAX ? UINT32_MAX : uint32_t(size);
}

bool lists(const uint32_t (&registers)[4], uint8_t descriptor) {
  for (int i = 0; i < 4; ++i) {
    if (registers[i] >> 31) continue;                  // bit 31: this register holds no descriptors
    for (int byte = i == 0 ? 1 : 0; byte < 4; ++byte)  // the first byte of all is a count
      if (uint8_t(registers[i] >> (8 * byte)) == descriptor) return true;
  }
  return false;
}

}  // namespace

uint32_t cache_bytes_by_descriptors(const char vendor[12], const cpuid_words& leaf2) {
  if (memcmp(vendor, descriptor_vendor, 12) != 0) return 0;
  if ((leaf2.eax & 0xFF) != 1) return 0;
  const uint32_t registers[4] = {leaf2.eax, leaf2.ebx, leaf2.ecx, leaf2.edx};
  for (const cache_descriptor& row : cache_descriptors)
    if (lists(registers, row.descriptor)) return row.bytes();
  return 0;
}

uint32_t last_level_cache_bytes(cpuid_source cpuid) {
  constexpr uint32_t parameters = 4, extended = 0x80000000, extended_parameters = 0x8000001D;
  const cpuid_words  vendor = cpuid(0, 0);
  uint32_t           size   = vendor.eax >= parameters ? by_parameters(cpuid, parameters) : 0;
  if (size == 0 && cpuid(extended, 0).eax >= extended_parameters) size = by_parameters(cpuid, extended_parameters);
  if (size != 0 || vendor.eax < 2) return size;
  const uint32_t text[3] = {vendor.ebx, vendor.edx, vendor.ecx};
  return cache_bytes_by_descriptors(reinterpret_cast<const char*>(text), cpuid(2, 0));
}

uint32_t last_level_cache_bytes() { return last_level_cache_bytes(ask_processor); }

}  // namespace tav
