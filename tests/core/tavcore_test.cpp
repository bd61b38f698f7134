// The real libtavcore.
#include "tavcore.h"

#include <cpuid.h>
#include <gtest/gtest.h>
#include <string.h>

TEST(Core, MallocAlignsAndRefuses) {
  EXPECT_EQ(tavMalloc(0), nullptr);
  EXPECT_EQ(tavMalloc(-1), nullptr);
  EXPECT_EQ(tavMalloc(INT32_MIN), nullptr);
  for (int32_t size : {1, 63, 64, 65, 1000, 1 << 20}) {
    void* const p = tavMalloc(size);
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(p) % 64, 0u);
    memset(p, 1, size_t(size));
    tavFree(p);
  }
  tavFree(nullptr);
}

TEST(Core, AlignPtrRoundsUp) {
  alignas(64) char block[256];
  for (int32_t alignment : {1, 2, 16, 32, 64})
    for (int k = 0; k <= 64; ++k) {
      const auto at = reinterpret_cast<uintptr_t>(tavAlignPtr(block + k, alignment));
      EXPECT_EQ(at % unsigned(alignment), 0u);
      EXPECT_GE(at, reinterpret_cast<uintptr_t>(block + k));
      EXPECT_LT(at, reinterpret_cast<uintptr_t>(block + k) + unsigned(alignment));
    }
}

TEST(Core, MaskTellsOfSsse3AndNothingMore) {
  unsigned a, b, c = 0, d;
  __get_cpuid(1, &a, &b, &c, &d);
  EXPECT_EQ(tavGetEnabledCpuFeatures(), c & bit_SSSE3 ? 0x10u : 0u);
}
