// tavsThreshold of real elements: NaNs and zeros of either sign come through where they do not fail, magnitudes keep
// the sign bit.
#include <algorithm>

#include "harness/threshold.h"
#include "oracle/threshold.h"

using namespace test;
using oracle::side;

namespace {

template <class T> const auto some_level = [](source_of_data& data) { return std::tuple{data.value<T>()}; };
template <class T>
const auto level_and_value = [](source_of_data& data) {
  return std::tuple{data.value<T>(), data.value<T>()};
};
template <class T>
const auto level_of_magnitudes = [](source_of_data& data) { return std::tuple{magnitude_level<T>(data)}; };
template <class T>
const auto level_and_relation = [](source_of_data& data) {
  return std::tuple{data.value<T>(), 4 * data.below(2)};
};
template <class T>
const auto pair_of_levels = [](source_of_data& data) {
  T low = data.value<T>(), high = data.below(8) ? data.value<T>() : low;
  if (low > high) std::swap(low, high);
  return std::tuple{low, data.value<T>(), high, data.value<T>()};
};

const auto raised      = [](auto x, auto level) { return oracle::clipped(side::below, x, level); };
const auto lowered     = [](auto x, auto level) { return oracle::clipped(side::above, x, level); };
const auto by_relation = [](auto x, auto level, int relation) {
  return oracle::clipped(relation == 0 ? side::below : side::above, x, level);
};
const auto raised_magnitude  = [](auto x, auto level) { return oracle::clipped_magnitude(side::below, x, level); };
const auto lowered_magnitude = [](auto x, auto level) { return oracle::clipped_magnitude(side::above, x, level); };
const auto replaced_below    = [](auto x, auto level, auto v) { return oracle::replaced(side::below, x, level, v); };
const auto replaced_above    = [](auto x, auto level, auto v) { return oracle::replaced(side::above, x, level, v); };
const auto replaced_outside  = [](auto x, auto... a) { return oracle::replaced_outside(x, a...); };

// clang-format off
#define CHECK(name, type, draw, one) \
  check_threshold<&::tavsThreshold##name##_##type, &::tavsThreshold##name##_##type##_I>(draw<Tav##type>, one)

TEST(Threshold, As16s) { CHECK(, 16s, level_and_relation, by_relation); }
TEST(Threshold, As32f) { CHECK(, 32f, level_and_relation, by_relation); }
TEST(Threshold, As64f) { CHECK(, 64f, level_and_relation, by_relation); }
TEST(ThresholdLT, As16s) { CHECK(_LT, 16s, some_level, raised); }
TEST(ThresholdLT, As32s) { CHECK(_LT, 32s, some_level, raised); }
TEST(ThresholdLT, As32f) { CHECK(_LT, 32f, some_level, raised); }
TEST(ThresholdLT, As64f) { CHECK(_LT, 64f, some_level, raised); }
TEST(ThresholdGT, As16s) { CHECK(_GT, 16s, some_level, lowered); }
TEST(ThresholdGT, As32s) { CHECK(_GT, 32s, some_level, lowered); }
TEST(ThresholdGT, As32f) { CHECK(_GT, 32f, some_level, lowered); }
TEST(ThresholdGT, As64f) { CHECK(_GT, 64f, some_level, lowered); }
TEST(ThresholdLTVal, As16s) { CHECK(_LTVal, 16s, level_and_value, replaced_below); }
TEST(ThresholdLTVal, As32f) { CHECK(_LTVal, 32f, level_and_value, replaced_below); }
TEST(ThresholdLTVal, As64f) { CHECK(_LTVal, 64f, level_and_value, replaced_below); }
TEST(ThresholdGTVal, As16s) { CHECK(_GTVal, 16s, level_and_value, replaced_above); }
TEST(ThresholdGTVal, As32f) { CHECK(_GTVal, 32f, level_and_value, replaced_above); }
TEST(ThresholdGTVal, As64f) { CHECK(_GTVal, 64f, level_and_value, replaced_above); }
TEST(ThresholdLTValGTVal, As16s) { CHECK(_LTValGTVal, 16s, pair_of_levels, replaced_outside); }
TEST(ThresholdLTValGTVal, As32s) { CHECK(_LTValGTVal, 32s, pair_of_levels, replaced_outside); }
TEST(ThresholdLTValGTVal, As32f) { CHECK(_LTValGTVal, 32f, pair_of_levels, replaced_outside); }
TEST(ThresholdLTValGTVal, As64f) { CHECK(_LTValGTVal, 64f, pair_of_levels, replaced_outside); }
TEST(ThresholdLTAbs, As16s) { CHECK(_LTAbs, 16s, level_of_magnitudes, raised_magnitude); }
TEST(ThresholdLTAbs, As32s) { CHECK(_LTAbs, 32s, level_of_magnitudes, raised_magnitude); }
TEST(ThresholdLTAbs, As32f) { CHECK(_LTAbs, 32f, level_of_magnitudes, raised_magnitude); }
TEST(ThresholdLTAbs, As64f) { CHECK(_LTAbs, 64f, level_of_magnitudes, raised_magnitude); }
TEST(ThresholdGTAbs, As16s) { CHECK(_GTAbs, 16s, level_of_magnitudes, lowered_magnitude); }
TEST(ThresholdGTAbs, As32s) { CHECK(_GTAbs, 32s, level_of_magnitudes, lowered_magnitude); }
TEST(ThresholdGTAbs, As32f) { CHECK(_GTAbs, 32f, level_of_magnitudes, lowered_magnitude); }
TEST(ThresholdGTAbs, As64f) { CHECK(_GTAbs, 64f, level_of_magnitudes, lowered_magnitude); }
#undef CHECK
// clang-format on

// All elements of 16 bits at the levels where something turns.
TEST(Threshold, EveryElementOf16Bits) {
  std::vector<Tav16s> all(65536), dst(65536);
  for (int i = 0; i < 65536; ++i) all[size_t(i)] = Tav16s(i);
  for (int level : {0, 1, 2, 100, 32766, 32767}) {
    const Tav16s l = Tav16s(level);
    ASSERT_EQ(call<&::tavsThreshold_LTAbs_16s>(all.data(), dst.data(), 65536, l), tavStatusOk);
    for (size_t i = 0; i < 65536; ++i) ASSERT_EQ(dst[i], raised_magnitude(all[i], l)) << all[i] << " at " << l;
    ASSERT_EQ(call<&::tavsThreshold_GTAbs_16s>(all.data(), dst.data(), 65536, l), tavStatusOk);
    for (size_t i = 0; i < 65536; ++i) ASSERT_EQ(dst[i], lowered_magnitude(all[i], l)) << all[i] << " at " << l;
  }
}

// The same in vectors and in the scalar parts: 37 copies of an element.
template <auto* Export, class T, class... A> T of_one(T x, A... given) {
  const std::vector<T> src(37, x);
  std::vector<T>       dst(37, T(-77));
  EXPECT_EQ(call<Export>(src.data(), dst.data(), 37, given...), tavStatusOk);
  for (const T& d : dst) EXPECT_TRUE(same(d, dst[0])) << "by its position";
  return dst[0];
}

TEST(Threshold, SignsOfZeros) {
  EXPECT_TRUE(same(of_one<&::tavsThreshold_LT_32f>(-0.0f, 0.0f), -0.0f));
  EXPECT_TRUE(same(of_one<&::tavsThreshold_LT_64f>(-0.0, 0.0), -0.0));
  EXPECT_TRUE(same(of_one<&::tavsThreshold_GT_32f>(0.0f, -0.0f), 0.0f));
  EXPECT_TRUE(same(of_one<&::tavsThreshold_GT_64f>(0.0, -0.0), 0.0));
  EXPECT_TRUE(same(of_one<&::tavsThreshold_LTAbs_32f>(-0.0f, 2.0f), -2.0f));
  EXPECT_TRUE(same(of_one<&::tavsThreshold_LTAbs_32f>(0.0f, 2.0f), 2.0f));
  EXPECT_TRUE(same(of_one<&::tavsThreshold_LTAbs_32f>(0.0f, -0.0f), 0.0f));
  EXPECT_TRUE(same(of_one<&::tavsThreshold_GTAbs_32f>(5.0f, -0.0f), 0.0f));
  EXPECT_TRUE(same(of_one<&::tavsThreshold_GTAbs_64f>(-5.0, -0.0), -0.0));
  EXPECT_EQ(of_one<&::tavsThreshold_LTAbs_16s>(Tav16s(0), Tav16s(9)), 9);
}

template <class T> bool same_bits(T a, T b) { return memcmp(&a, &b, sizeof a) == 0; }

// Whatever its payload and sign.
TEST(Threshold, NansComeThrough) {
  const Tav32f nan      = __builtin_bit_cast(Tav32f, 0xFFC12345u),
               result[] = {of_one<&::tavsThreshold_LT_32f>(nan, 1.0f),
                           of_one<&::tavsThreshold_GT_32f>(nan, 1.0f),
                           of_one<&::tavsThreshold_LTVal_32f>(nan, 1.0f, 2.0f),
                           of_one<&::tavsThreshold_GTVal_32f>(nan, 1.0f, 2.0f),
                           of_one<&::tavsThreshold_LTAbs_32f>(nan, 1.0f),
                           of_one<&::tavsThreshold_GTAbs_32f>(nan, 1.0f),
                           of_one<&::tavsThreshold_LTValGTVal_32f>(nan, 1.0f, 2.0f, 3.0f, 4.0f)};
  for (const Tav32f& r : result) EXPECT_TRUE(same_bits(r, nan)) << &r - result;
}

// No element fails before a NaN; as a level of magnitudes it is accepted, too.
TEST(Threshold, NanLevels) {
  for (Tav32f x : {-1e30f, -0.0f, 7.0f}) {
    EXPECT_EQ(of_one<&::tavsThreshold_LT_32f>(x, NAN), x);
    EXPECT_EQ(of_one<&::tavsThreshold_GT_32f>(x, NAN), x);
    EXPECT_EQ(of_one<&::tavsThreshold_LTAbs_32f>(x, NAN), x);
    EXPECT_EQ(of_one<&::tavsThreshold_GTAbs_32f>(x, NAN), x);
    EXPECT_EQ(of_one<&::tavsThreshold_LTValGTVal_32f>(x, NAN, 1.0f, NAN, 2.0f), x);
    EXPECT_EQ(of_one<&::tavsThreshold_LTValGTVal_32f>(x, NAN, 1.0f, 5.0f, 2.0f), x > 5 ? 2 : x);
  }
}

TEST(Threshold, ByHand) {
  EXPECT_EQ(of_one<&::tavsThreshold_16s>(Tav16s(-9), Tav16s(-5), 0), -5);
  EXPECT_EQ(of_one<&::tavsThreshold_16s>(Tav16s(-9), Tav16s(-5), 4), -9);
  EXPECT_EQ(of_one<&::tavsThreshold_GTAbs_16s>(Tav16s(-32768), Tav16s(100)), -100);
  EXPECT_EQ(of_one<&::tavsThreshold_GTAbs_16s>(Tav16s(-32768), Tav16s(32767)), -32767);
  EXPECT_EQ(of_one<&::tavsThreshold_LTAbs_16s>(Tav16s(-32768), Tav16s(32767)), -32768);
  EXPECT_EQ(of_one<&::tavsThreshold_GTAbs_32s>(INT32_MIN, INT32_MAX), -INT32_MAX);
  EXPECT_EQ(of_one<&::tavsThreshold_LTAbs_32s>(INT32_MIN, INT32_MAX), INT32_MIN);
  // What has been replaced is not looked at again.
  EXPECT_EQ(of_one<&::tavsThreshold_LTValGTVal_16s>(Tav16s(-1), Tav16s(0), Tav16s(100), Tav16s(50), Tav16s(7)), 100);
  EXPECT_EQ(of_one<&::tavsThreshold_LTValGTVal_32f>(51.0f, 0.0f, 100.0f, 50.0f, -7.0f), -7.0f);
  EXPECT_EQ(of_one<&::tavsThreshold_LTValGTVal_32f>(3.0f, 3.0f, 1.0f, 3.0f, 2.0f), 3.0f) << "equal levels";
}

}  // namespace

// clang-format off
#define CASE(name, faults)             \
  TAV_FAULTS(Threshold_##name, faults) \
  TAV_FAULTS(Threshold_##name##_I, faults)
CASE(16s, relation) CASE(32f, relation) CASE(64f, relation)
CASE(LT_16s, any_level) CASE(LT_32s, any_level) CASE(LT_32f, any_level) CASE(LT_64f, any_level)
CASE(GT_16s, any_level) CASE(GT_32s, any_level) CASE(GT_32f, any_level) CASE(GT_64f, any_level)
CASE(LTVal_16s, any_level) CASE(LTVal_32f, any_level) CASE(LTVal_64f, any_level)
CASE(GTVal_16s, any_level) CASE(GTVal_32f, any_level) CASE(GTVal_64f, any_level)
CASE(LTValGTVal_16s, levels_not_crossed) CASE(LTValGTVal_32s, levels_not_crossed)
CASE(LTValGTVal_32f, levels_not_crossed) CASE(LTValGTVal_64f, levels_not_crossed)
CASE(LTAbs_16s, level_not_below_0) CASE(LTAbs_32s, level_not_below_0)
CASE(LTAbs_32f, level_not_below_0) CASE(LTAbs_64f, level_not_below_0)
CASE(GTAbs_16s, level_not_below_0) CASE(GTAbs_32s, level_not_below_0)
CASE(GTAbs_32f, level_not_below_0) CASE(GTAbs_64f, level_not_below_0)
#undef CASE
    // clang-format on
