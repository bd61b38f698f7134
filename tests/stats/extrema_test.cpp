// tavsMax, tavsMin, tavsMinMax and their kin: against the definition, bit for bit.
#include "harness/long_array.h"
#include "stats/extrema_checks.h"

using namespace test;
using namespace oracle;

// clang-format off
#define ONE(name, type, what)                                                                                \
  TEST(name, As##type) { check_search<&::tavs##name##_##type>(searching(what, &::tavs##name##_##type)); }    \
  TAV_FAULTS(name##_##type, around_length_and_result)
#define INDEXED(name, type, what)                                                                            \
  TEST(name, As##type) {                                                                                     \
    check_search<&::tavs##name##_##type>(searching_index(what, &::tavs##name##_##type));                     \
    check_lengths_and_alignments(without_index(what, &::tavs##name##_##type));                               \
  }                                                                                                          \
  TAV_FAULTS(name##_##type, around_optional_index)
#define BOTH(type)                                                                                           \
  TEST(MinMax, As##type) { check_search<&::tavsMinMax_##type>(searching_both(&::tavsMinMax_##type)); }       \
  TAV_FAULTS(MinMax_##type, around_length_and_both)                                                          \
  TEST(MinMaxIndx, As##type) {                                                                               \
    check_search<&::tavsMinMaxIndx_##type>(searching_both_indices(&::tavsMinMaxIndx_##type));                \
  }                                                                                                          \
  TAV_FAULTS(MinMaxIndx_##type, around_length_and_indices)

ONE(Max, 16s, largest) ONE(Max, 32s, largest) ONE(Max, 32f, largest) ONE(Max, 64f, largest)
ONE(Min, 16s, smallest) ONE(Min, 32s, smallest) ONE(Min, 32f, smallest) ONE(Min, 64f, smallest)
INDEXED(MaxIndx, 16s, largest) INDEXED(MaxIndx, 32s, largest)
INDEXED(MaxIndx, 32f, largest) INDEXED(MaxIndx, 64f, largest)
INDEXED(MinIndx, 16s, smallest) INDEXED(MinIndx, 32s, smallest)
INDEXED(MinIndx, 32f, smallest) INDEXED(MinIndx, 64f, smallest)
ONE(MaxAbs, 16s, largest_magnitude) ONE(MaxAbs, 32s, largest_magnitude)
ONE(MinAbs, 16s, smallest_magnitude) ONE(MinAbs, 32s, smallest_magnitude)
INDEXED(MaxAbsIndx, 16s, largest_magnitude) INDEXED(MaxAbsIndx, 32s, largest_magnitude)
INDEXED(MinAbsIndx, 16s, smallest_magnitude) INDEXED(MinAbsIndx, 32s, smallest_magnitude)
BOTH(8u) BOTH(16u) BOTH(16s) BOTH(32u) BOTH(32s) BOTH(32f) BOTH(64f)
    // clang-format on

    namespace {
  template <class T> struct found {
    T    value;
    int  index;
    bool operator==(const found&) const = default;
  };

  template <auto* Export, class T> found<T> index_of(const std::vector<T>& v) {
    found<T> f{T(-99), -99};
    EXPECT_EQ(call<Export>(v.data(), int(v.size()), &f.value, &f.index), tavStatusOk);
    return f;
  }

  // In numbers, apart from any rule of the oracle.
  TEST(Extrema, OfMagnitudesBeyondTheType) {
    const auto largest_16  = index_of<&::tavsMaxAbsIndx_16s, Tav16s>;
    const auto smallest_16 = index_of<&::tavsMinAbsIndx_16s, Tav16s>;
    EXPECT_EQ(largest_16({32767, -32768}), (found<Tav16s>{32767, 1}));
    EXPECT_EQ(largest_16({-32768, 32767, -32768}), (found<Tav16s>{32767, 0}));
    EXPECT_EQ(smallest_16({-32768, 32767}), (found<Tav16s>{32767, 1}));
    EXPECT_EQ(smallest_16({-32768, -32768}), (found<Tav16s>{32767, 0}));
    EXPECT_EQ(smallest_16({5, -3, 3, 0, -1}), (found<Tav16s>{0, 3}));
    const Tav32s lowest = limits_of<Tav32s>::min(), highest = limits_of<Tav32s>::max();
    const auto   largest_32  = index_of<&::tavsMaxAbsIndx_32s, Tav32s>;
    const auto   smallest_32 = index_of<&::tavsMinAbsIndx_32s, Tav32s>;
    EXPECT_EQ(largest_32({highest, lowest}), (found<Tav32s>{highest, 1}));
    EXPECT_EQ(smallest_32({lowest, highest}), (found<Tav32s>{highest, 1}));
    EXPECT_EQ(smallest_32({lowest}), (found<Tav32s>{highest, 0}));
    EXPECT_EQ(largest_32({1, -7, 7}), (found<Tav32s>{7, 1}));
  }

  TEST(Extrema, FirstOfEquals) {
    EXPECT_EQ((index_of<&::tavsMaxIndx_16s, Tav16s>({1, 9, 3, 9, 9})), (found<Tav16s>{9, 1}));
    EXPECT_EQ((index_of<&::tavsMinIndx_64f, Tav64f>({1, 0.5, 3, 0.5})), (found<Tav64f>{0.5, 1}));
    Tav8u       low, high;
    int         low_at, high_at;
    const Tav8u bytes[] = {7, 255, 0, 0, 255};
    EXPECT_EQ(call<&::tavsMinMaxIndx_8u>(bytes, 5, &low, &low_at, &high, &high_at), tavStatusOk);
    EXPECT_TRUE(low == 0 && low_at == 2 && high == 255 && high_at == 1);
  }

  TEST(Extrema, BehindTheFirst4GiB) {
    if (sizeof(size_t) == 4) GTEST_SKIP() << "such an array does not fit here";
    const long_array a;
    ASSERT_TRUE(a.ready());
    const Tav32s last = limits_of<Tav32s>::max();
    memcpy(a.last(), &last, sizeof last);
    Tav32s max   = 0;
    int    index = 0;
    EXPECT_EQ(call<&::tavsMaxIndx_32s>(static_cast<const Tav32s*>(a.data()), (1 << 30) + 1, &max, &index), tavStatusOk);
    EXPECT_TRUE(max == last && index == 1 << 30) << max << " at " << index;
  }

  // Where the caller has denormals count as zeros, they equal each other, and the first one is reported as it stands.
  TEST(Extrema, DenormalsAsZeros) {
    constexpr unsigned  denormals_are_zeros = 0x40;
    const Tav32f        small               = limits_of<Tav32f>::denorm_min();
    std::vector<Tav32f> v(50, -2.0f);
    v[20] = small, v[30] = 5 * small, v[31] = 0;
    const auto usual = index_of<&::tavsMaxIndx_32f>(v);
    _mm_setcsr(_mm_getcsr() | denormals_are_zeros);
    const auto zeroed = index_of<&::tavsMaxIndx_32f>(v);
    Tav32f     max    = 1;
    EXPECT_EQ(call<&::tavsMax_32f>(v.data(), 50, &max), tavStatusOk);
    _mm_setcsr(_mm_getcsr() & ~denormals_are_zeros);
    EXPECT_EQ(usual, (found<Tav32f>{5 * small, 30}));
    EXPECT_EQ(zeroed, (found<Tav32f>{small, 20}));
    EXPECT_EQ(max, small);
  }

}  // namespace
