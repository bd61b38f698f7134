// tavsLShiftC, RShiftC: against products and quotients, for every element and count that make a difference.
#include <limits.h>

#include <numeric>

#include "harness/faults.h"
#include "harness/layouts.h"
#include "oracle/logic.h"

using namespace test;

namespace {

const std::set<int> lengths = lengths_around({192, 255, 1000, 4096});

const std::vector<int> counts = [] {
  std::vector<int> all(70);
  std::iota(all.begin(), all.end(), 0);
  for (int n : {127, 128, 255, 256, 257, 65535, 65536, 0x10000001, INT_MAX - 1, INT_MAX}) all.push_back(n);
  return all;
}();

template <auto* Export, class T> TavStatus shift(const T* src, int count, T* dst, int len) {
  return call<Export>(src, count, dst, len);
}
template <auto* Export, class T> TavStatus shift_in_place(T* srcDst, int count, int len) {
  return call<Export>(count, srcDst, len);
}

template <class T> struct shifter {
  T (*one)(T, int);
  std::vector<T> operator()(std::vector<T> values, int count) const {
    for (T& v : values) v = one(v, count);
    return values;
  }
};

// The count changes from call to call: ordinary ones mostly, and around each width.
template <auto* Export, auto* InPlace, class T> void check_each_layout(shifter<T> expected) {
  source_of_data data(23);
  int            count;
  const auto     drawn = [&] { return count = data.below(8 * sizeof(T) + 2); };
  check_layouts<Export, T, T>(
      lengths, [&](T* dst, int len, const T* src) { return shift<Export>(src, count, dst, len); },
      [&](std::vector<T>& dst, const std::vector<T>& src) { return dst = expected(src, drawn()), tavStatusOk; });
  check_layouts<Export, T>(
      lengths, [&](T* dst, int len) { return shift<Export>(static_cast<const T*>(dst), count, dst, len); },
      [&](std::vector<T>& dst) { return dst = expected(dst, drawn()), tavStatusOk; });
  check_layouts<InPlace, T>(
      lengths, [&](T* dst, int len) { return shift_in_place<InPlace>(dst, count, len); },
      [&](std::vector<T>& dst) { return dst = expected(dst, drawn()), tavStatusOk; });
}

// All elements of 8 and 16 bits; of 32 bits a sample and each power of two with its neighbours.
template <class T> std::vector<T> all_elements() {
  std::vector<T> all(sizeof(T) == 1 ? 256 : 65536);
  if (sizeof(T) <= 2) {
    for (size_t i = 0; i < all.size(); ++i) all[i] = T(i);
    return all;
  }
  source_of_data data(29);
  all = data.values<T>(5000);
  for (int n = 0; n < 32; ++n)
    for (uint32_t d : {0xFFFFFFFFu, 0u, 1u}) all.push_back(T((1u << n) + d));
  return all;
}

template <auto* Export, auto* InPlace, class T> void check_each_count(shifter<T> expected) {
  const std::vector<T> src = all_elements<T>();
  const int            len = int(src.size());
  each_build<Export>([&] {
    for (int count : counts) {
      const std::vector<T> want = expected(src, count);
      std::vector<T>       dst(src.size(), T(99)), in_place = src;
      ASSERT_EQ(shift<Export>(src.data(), count, dst.data(), len), tavStatusOk);
      ASSERT_LT(first_difference(dst, want), 0) << "count " << count;
      ASSERT_EQ(shift_in_place<InPlace>(in_place.data(), count, len), tavStatusOk);
      ASSERT_LT(first_difference(in_place, want), 0) << "count " << count << ", in place";
    }
  });
}

// Pointers, length, then the count; and no count, not even one that leaves nothing to do, comes before the first two.
template <size_t At> void count_last(const tested& f) {
  faults bad(f);
  bad.null_pointers().below_one(f.count - 1);
  for (int count : {0, 7, 8, 16, 31, 32, 33, INT_MAX})
    bad.expect_after("count " + std::to_string(count), [=](arguments& a) { a.set(At, count); });
  bad.value(At, -1, tavStatusBadShift).value(At, INT_MIN, tavStatusBadShift).expect();
}

#define FAMILY(Name, definition, type)                                                                     \
  TEST(Name, EachLayout##type) {                                                                           \
    check_each_layout<&::tavs##Name##_##type, &::tavs##Name##_##type##_I>(shifter<Tav##type>{definition}); \
  }                                                                                                        \
  TEST(Name, EachCount##type) {                                                                            \
    check_each_count<&::tavs##Name##_##type, &::tavs##Name##_##type##_I>(shifter<Tav##type>{definition});  \
  }                                                                                                        \
  TAV_FAULTS(Name##_##type, count_last<1>)                                                                 \
  TAV_FAULTS(Name##_##type##_I, count_last<0>)

#define EACH_FAMILY(type)                     \
  FAMILY(LShiftC, oracle::shifted_left, type) \
  FAMILY(RShiftC, oracle::shifted_right, type)

EACH_FAMILY(8u)
EACH_FAMILY(16u)
EACH_FAMILY(16s)
EACH_FAMILY(32s)

TEST(RShiftC, LeavesTheSign) {
  const Tav16s src[] = {-1, 1, -32768, 32767};
  Tav16s       dst[4];
  each_build<&::tavsRShiftC_16s>([&] {
    EXPECT_EQ(call<&::tavsRShiftC_16s>(src, 20, dst, 4), tavStatusOk);
    EXPECT_EQ(std::vector<int>(dst, dst + 4), (std::vector<int>{-1, 0, -1, 0}));
  });
}

}  // namespace
