// The choice of the variant, the table behind the stubs, and the fake libtavcore that stands in here.
#include "frame/attach.h"

#include <gtest/gtest.h>

#include <stdlib.h>
#include <string.h>

#include <thread>

#include "frame/cache.h"
#include "frame/variant_table.h"
#include "harness/tavcore_fake.h"
#include "tavcore.h"

namespace {

using tav::choose_variant;

TEST(Attach, BothBitsChooseVariant1) {
  for (uint32_t rest : {0u, 0x1u, 0xFu, 0xFFFFFFCFu, 0x80000000u}) {
    EXPECT_EQ(choose_variant(rest & ~0x30u), 0u);
    EXPECT_EQ(choose_variant((rest & ~0x30u) | 0x10), 0u);
    EXPECT_EQ(choose_variant((rest & ~0x30u) | 0x20), 0u);
    EXPECT_EQ(choose_variant(rest | 0x30), 1u);
  }
}

TEST(Attach, AsksForTheMaskOnceAndNeverAgain) {
  const uint32_t index = tav::tav_variant_index;
  EXPECT_EQ(tavcore_fake_read().mask_queries, 1);
  tavcore_fake_set_mask(index == 0 ? 0x30 : 0x10);
  std::thread([index] { EXPECT_EQ(tav::tav_variant_index, index); }).join();
  EXPECT_EQ(tavcore_fake_read().mask_queries, 1);
  EXPECT_EQ(tav::tav_variant_index, index);
}

TEST(Attach, ReadsTheCacheSize) { EXPECT_EQ(tav::tav_cache_bytes, tav::last_level_cache_bytes()); }

TEST(VariantTable, SharedRowsHoldOneBodyAndSplitRowsTwo) {
#define TAV_SHARED(name) EXPECT_EQ(tav::tav_variant_table.name[0], tav::tav_variant_table.name[1]) << #name;
#define TAV_SPLIT(name) EXPECT_NE(tav::tav_variant_table.name[0], tav::tav_variant_table.name[1]) << #name;
#include "frame/exports.def"
#undef TAV_SHARED
#undef TAV_SPLIT
}

TEST(VariantTable, StubsFollowTheIndex) {
  const uint32_t callers = tav::tav_variant_index;
  tav::tav_variant_index = 0;
  EXPECT_EQ(tavsGetLibVersion(), tav::tav_variant_table.GetLibVersion[0]());
  tav::tav_variant_index = 1;
  EXPECT_EQ(tavsGetLibVersion(), tav::tav_variant_table.GetLibVersion[1]());
  tav::tav_variant_index = callers;
}

TEST(FakeCore, CountsRefusesAndSeesDamage) {
  tavcore_fake_reset();
  EXPECT_EQ(tavMalloc(0), nullptr);
  EXPECT_EQ(tavMalloc(-5), nullptr);
  tavcore_fake_refuse_after(2);
  auto* const a = static_cast<char*>(tavMalloc(10));
  auto* const b = static_cast<char*>(tavMalloc(64));
  EXPECT_EQ(tavMalloc(1), nullptr);
  ASSERT_TRUE(a && b);
  EXPECT_EQ(tavcore_fake_read().allocations, 5);
  EXPECT_EQ(tavcore_fake_read().live, 2);
  memset(a, 0, 10);
  tavFree(a);
  EXPECT_EQ(tavcore_fake_read().damaged, 0);
  b[64] = 0;
  tavFree(b);
  EXPECT_EQ(tavcore_fake_read().damaged, 1);
  EXPECT_EQ(tavcore_fake_read().live, 0);
  EXPECT_EQ(tavAlignPtr(reinterpret_cast<void*>(65), 32), reinterpret_cast<void*>(96));
  tavcore_fake_reset();
}

}  // namespace
