// tavsSet, Zero, Copy, Move: against the definition, at every length, alignment and page end.
#include "oracle/move.h"
#include "harness/faults.h"
#include "harness/layouts.h"

using namespace test;

namespace {

template <class> struct parameters;
template <class R, class... P> struct parameters<R (*)(P...)> {
  template <size_t I> using at = std::tuple_element_t<I, std::tuple<P...>>;
};
template <auto* Export>
using first_pointee = std::remove_pointer_t<typename parameters<decltype(Export)>::template at<0>>;

const std::set<int> lengths = lengths_around({128, 129, 192, 255, 256, 257, 1000, 4096, 0x20000 / 16});

template <auto* Export> void check_copy() {
  using T = std::remove_const_t<first_pointee<Export>>;
  check_layouts<Export, T, T>(
      lengths, [](T* dst, int len, const T* src) { return call<Export>(src, dst, len); },
      [](std::vector<T>& dst, const std::vector<T>& src) { return dst = src, tavStatusOk; });
}

template <auto* Export> void check_zero() {
  using T = first_pointee<Export>;
  check_layouts<Export, T>(
      lengths, [](T* dst, int len) { return call<Export>(dst, len); },
      [](std::vector<T>& dst) { return oracle::set(dst, T{}), tavStatusOk; });
}

template <auto* Export> void check_set() {
  using T = typename parameters<decltype(Export)>::template at<0>;
  source_of_data data(11);
  T              val;
  check_layouts<Export, T>(
      lengths, [&](T* dst, int len) { return call<Export>(val, dst, len); },
      [&](std::vector<T>& dst) {
        val = data.value<T>();
        return oracle::set(dst, val), tavStatusOk;
      });
}

// Every distance between source and destination at which they overlap, and some beyond, either way.
template <auto* Export> void check_overlapping_move() {
  using T            = std::remove_const_t<first_pointee<Export>>;
  constexpr int most = 150, beyond = 2, start = most + beyond, room = 3 * most + 2 * beyond;
  arena         home(room * sizeof(T));
  each_build<Export>([&] {
    source_of_data data(5);
    for (int len : {1, 2, 3, 7, 8, 15, 16, 17, 31, 33, 63, 64, 65, 127, 128, 129, 150})
      for (int apart = -len - beyond; apart <= len + beyond; ++apart)
        for (unsigned offset : {0u, 1u, 8u}) {
          array<T>             block(home, room, {placement::inside, offset});
          const std::vector<T> before = data.values<T>(room);
          std::vector<T>       want   = before;
          for (int i = 0; i < len; ++i) want[size_t(start + apart + i)] = before[size_t(start + i)];
          block.assign(before);
          ASSERT_EQ(call<Export>(block.data() + start, block.data() + start + apart, len), tavStatusOk);
          ASSERT_LT(first_difference(block.values(), want), 0) << "length " << len << ", apart " << apart;
          ASSERT_TRUE(block.guards_intact());
        }
  });
}

}  // namespace

#define EACH_TYPE(CASE) \
  CASE(8u) CASE(16s) CASE(16sc) CASE(32s) CASE(32sc) CASE(32f) CASE(32fc) CASE(64s) CASE(64sc) CASE(64f) CASE(64fc)

#define CASE(type)                                                                  \
  TEST(Set, As##type) { check_set<&::tavsSet_##type>(); }                           \
  TEST(Zero, As##type) { check_zero<&::tavsZero_##type>(); }                        \
  TEST(Copy, As##type) { check_copy<&::tavsCopy_##type>(); }                        \
  TEST(Move, As##type) { check_copy<&::tavsMove_##type>(); }                        \
  TEST(MoveOverlapping, As##type) { check_overlapping_move<&::tavsMove_##type>(); } \
  TAV_FAULTS(Set_##type, pointers_then_length)                                      \
  TAV_FAULTS(Zero_##type, pointers_then_length)                                     \
  TAV_FAULTS(Copy_##type, pointers_then_length)                                     \
  TAV_FAULTS(Move_##type, pointers_then_length)
EACH_TYPE(CASE)
#undef CASE

TEST(Copy, ExactAliasStays) {
  arena home(4096);
  each_build<&::tavsCopy_8u>([&] {
    source_of_data data(3);
    for (int len = 1; len <= 300; ++len) {
      array<Tav8u> block(home, size_t(len), {placement::inside, unsigned(len % 16)});
      const auto   values = data.values<Tav8u>(size_t(len));
      block.assign(values);
      ASSERT_EQ(call<&::tavsCopy_8u>(block.data(), block.data(), len), tavStatusOk);
      ASSERT_EQ(block.values(), values);
      ASSERT_TRUE(block.guards_intact());
    }
  });
}

// Where sizes are counted in 32 bits, a length whose bytes wrap moves what the wrapped size says.
TEST(Copy, SizeWrapsOn32Bits) {
  if (sizeof(size_t) > 4) GTEST_SKIP() << "sizes have 64 bits here";
  Tav64fc src[2] = {{1, 2}, {3, 4}}, dst[2] = {};
  each_build<&::tavsCopy_64fc>([&] {
    EXPECT_EQ(call<&::tavsCopy_64fc>(src, dst, 0x10000000), tavStatusOk);
    EXPECT_EQ(dst[0].re, 0);
    EXPECT_EQ(call<&::tavsCopy_64fc>(src, dst, 0x10000001), tavStatusOk);
    EXPECT_EQ(dst[0].im, 2);
    EXPECT_EQ(dst[1].re, 0);
    dst[0] = {};
    EXPECT_EQ(call<&::tavsMove_64fc>(src, dst, 0x10000001), tavStatusOk);
    EXPECT_EQ(dst[0].im, 2);
    EXPECT_EQ(call<&::tavsZero_64fc>(dst, 0x10000001), tavStatusOk);
    EXPECT_EQ(dst[0].im, 0);
  });
}
