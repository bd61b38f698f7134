// Fills and copies that bypass the cache: the limits, and the same results beyond them. The cache size is injected.
#include <gtest/gtest.h>

#include "frame/cache.h"
#include "harness/layouts.h"
#include "oracle/move.h"
#include "vector/byte_engine.h"

using namespace test;

namespace {

struct cache_of {
  explicit cache_of(uint32_t bytes) : before(tav::tav_cache_bytes) { tav::tav_cache_bytes = bytes; }
  ~cache_of() { tav::tav_cache_bytes = before; }
  uint32_t before;
};

TEST(Streaming, LimitsOfFills) {
  using tav::shared::fill_streams;
  const cache_of small(0x200000);
  EXPECT_FALSE(fill_streams(0x1FFFFF, 1));
  EXPECT_TRUE(fill_streams(0x200000, 1)) << "a byte fill as large as the cache";
  for (size_t width : {2u, 4u, 8u, 16u}) {
    EXPECT_FALSE(fill_streams(0x200000 / width, width)) << width;
    EXPECT_TRUE(fill_streams(0x200000 / width + 1, width)) << "an element more than the cache, " << width;
  }
  const cache_of tiny(1000);
  EXPECT_FALSE(fill_streams(0x80000, 1));
  EXPECT_TRUE(fill_streams(0x80001, 1));
  for (size_t width : {2u, 4u, 8u, 16u}) {
    EXPECT_FALSE(fill_streams(0x100000 / width, width)) << width;
    EXPECT_TRUE(fill_streams(0x100000 / width + 1, width)) << width;
  }
  const cache_of unknown(0);
  EXPECT_FALSE(fill_streams(size_t(1) << 30, 1));
  EXPECT_FALSE(fill_streams(size_t(1) << 30, 2));
}

TEST(Streaming, LimitsOfCopies) {
  using tav::copy_of_bytes, tav::copy_of_large_pairs, tav::shared::copy_streams;
  const cache_of small(0x400000);
  EXPECT_FALSE(copy_streams(copy_of_bytes, 0x200000));
  EXPECT_TRUE(copy_streams(copy_of_bytes, 0x200001));
  EXPECT_TRUE(copy_streams(copy_of_large_pairs, 0x200001));
  const cache_of tiny(1000);
  EXPECT_FALSE(copy_streams(copy_of_bytes, 0x20000));
  EXPECT_TRUE(copy_streams(copy_of_bytes, 0x20001));
  EXPECT_FALSE(copy_streams(copy_of_large_pairs, 0x100000));
  EXPECT_TRUE(copy_streams(copy_of_large_pairs, 0x100001));
  const cache_of unknown(0);
  EXPECT_FALSE(copy_streams(copy_of_bytes, size_t(1) << 30));
  EXPECT_EQ(tav::v8::tune.pair_copy, copy_of_large_pairs);
  EXPECT_EQ(tav::s8::tune.pair_copy, copy_of_bytes);
}

std::set<int> around(std::initializer_list<int> sizes) { return lengths_around(sizes, 0); }

TEST(Streaming, CopiedTheSame) {
  const cache_of tiny(1000);
  check_layouts<&::tavsCopy_8u, Tav8u, Tav8u>(
      around({0x20000, 0x20001, 0x30010}),
      [](Tav8u* dst, int len, const Tav8u* src) { return call<&::tavsCopy_8u>(src, dst, len); },
      [](auto& dst, const auto& src) { return dst = src, tavStatusOk; });
  check_layouts<&::tavsCopy_64fc, Tav64fc, Tav64fc>(
      around({0x10000, 0x12345, 0x18000}),  // blocks of 0x40000 bytes
      [](Tav64fc* dst, int len, const Tav64fc* src) { return call<&::tavsCopy_64fc>(src, dst, len); },
      [](auto& dst, const auto& src) { return dst = src, tavStatusOk; });
}

TEST(Streaming, FilledTheSame) {
  const cache_of tiny(1000);
  check_layouts<&::tavsZero_8u, Tav8u>(
      around({0x80000, 0x80030}), [](Tav8u* dst, int len) { return call<&::tavsZero_8u>(dst, len); },
      [](auto& dst) { return oracle::set<Tav8u>(dst, 0), tavStatusOk; });
  check_layouts<&::tavsSet_8u, Tav8u>(
      around({0x80000, 0x80030}), [](Tav8u* dst, int len) { return call<&::tavsSet_8u>(7, dst, len); },
      [](auto& dst) { return oracle::set<Tav8u>(dst, 7), tavStatusOk; });
  check_layouts<&::tavsSet_32s, Tav32s>(
      around({0x40000, 0x40010}), [](Tav32s* dst, int len) { return call<&::tavsSet_32s>(0x12345678, dst, len); },
      [](auto& dst) { return oracle::set<Tav32s>(dst, 0x12345678), tavStatusOk; });
  const Tav64fc pair{1.5, -2.5};
  check_layouts<&::tavsSet_64fc, Tav64fc>(
      around({0x10000, 0x10010}), [&](Tav64fc* dst, int len) { return call<&::tavsSet_64fc>(pair, dst, len); },
      [&](auto& dst) { return oracle::set(dst, pair), tavStatusOk; });
}

TEST(Streaming, MovesStayInTheCacheAndRight) {
  const cache_of tiny(1000);
  check_layouts<&::tavsMove_8u, Tav8u, Tav8u>(
      around({0x20001}), [](Tav8u* dst, int len, const Tav8u* src) { return call<&::tavsMove_8u>(src, dst, len); },
      [](auto& dst, const auto& src) { return dst = src, tavStatusOk; });
}

}  // namespace
