// The size of the last-level cache, which decides when fills and copies bypass it.
#pragma once
#include <stdint.h>

#pragma GCC visibility push(hidden)
namespace tav {

// Read once at start-up, because asking the processor costs microseconds under a hypervisor. 0: not known, never
// bypass. Fills and copies compare with it through exceeds_half_cache and fills_cache.
extern "C" uint32_t tav_cache_bytes;

struct cpuid_words {
  uint32_t eax, ebx, ecx, edx;
};

// Where the answers come from: the processor, or made-up registers in a test.
using cpuid_source = cpuid_words (*)(uint32_t leaf, uint32_t subleaf);

// The largest cache of the highest level that the deterministic cache parameters tell; failing those, the
// descriptors of leaf 2; failing those, 0.
uint32_t last_level_cache_bytes(cpuid_source cpuid);
uint32_t last_level_cache_bytes();

// The descriptors' road alone: the vendor's text as registers ebx, edx, ecx of leaf 0 spell it, and leaf 2.
uint32_t cache_bytes_by_descriptors(const char vendor[12], const cpuid_words& leaf2);

}  // namespace tav
#pragma GCC visibility pop
