// libtavcore: the four operations that the signal-processing library imports.
#include "tavcore.h"

#include <cpuid.h>
#include <stdlib.h>

#define TAVCORE_EXPORT extern "C" __attribute__((visibility("default")))

namespace {

constexpr size_t   block_alignment = 64;
constexpr uint32_t feature_ssse3   = 0x10;

[[maybe_unused]] uint32_t processor_features() {
  unsigned eax, ebx, ecx, edx;
  return __get_cpuid(1, &eax, &ebx, &ecx, &edx) && (ecx & bit_SSSE3) ? feature_ssse3 : 0;
}

}  // namespace

TAVCORE_EXPORT uint32_t tavGetEnabledCpuFeatures() {
#ifdef TAVCORE_FEATURES
  return TAVCORE_FEATURES;
#else
  return processor_features();
#endif
}

TAVCORE_EXPORT void* tavMalloc(int32_t size) {
  if (size < 1) return nullptr;
  const size_t rounded = (size_t(size) + block_alignment - 1) & ~(block_alignment - 1);
  return aligned_alloc(block_alignment, rounded);
}

TAVCORE_EXPORT void tavFree(void* ptr) { free(ptr); }

TAVCORE_EXPORT void* tavAlignPtr(void* ptr, int32_t alignment) {
  const uintptr_t mask = uintptr_t(alignment) - 1;
  return reinterpret_cast<void*>((reinterpret_cast<uintptr_t>(ptr) + mask) & ~mask);
}
