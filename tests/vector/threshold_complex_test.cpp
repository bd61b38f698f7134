// tavsThreshold of complex elements: magnitudes against a level, of 16sc exactly.
#include <math.h>

#include <cmath>

#include "harness/division.h"
#include "harness/forms.h"
#include "harness/parts.h"
#include "harness/threshold.h"

using namespace test;
using oracle::side;

namespace {

template <class T>
const auto some_level = [](source_of_data& data) { return std::tuple{magnitude_level<part_of<T>>(data)}; };
template <class T>
const auto level_and_value = [](source_of_data& data) {
  return std::tuple{magnitude_level<part_of<T>>(data), data.value<T>()};
};
template <class T>
const auto level_and_relation = [](source_of_data& data) {
  return std::tuple{magnitude_level<part_of<T>>(data), 4 * data.below(2)};
};

const auto raised      = [](auto x, auto level) { return oracle::clipped(side::below, x, level); };
const auto lowered     = [](auto x, auto level) { return oracle::clipped(side::above, x, level); };
const auto by_relation = [](auto x, auto level, int relation) {
  return oracle::clipped(relation == 0 ? side::below : side::above, x, level);
};
const auto replaced_below = [](auto x, auto level, auto v) { return oracle::replaced(side::below, x, level, v); };
const auto replaced_above = [](auto x, auto level, auto v) { return oracle::replaced(side::above, x, level, v); };

// clang-format off
#define CHECK(name, type, draw, one) \
  check_threshold<&::tavsThreshold##name##_##type, &::tavsThreshold##name##_##type##_I>(draw<Tav##type>, one)

TEST(ThresholdComplex, As16sc) { CHECK(, 16sc, level_and_relation, by_relation); }
TEST(ThresholdComplex, As32fc) { CHECK(, 32fc, level_and_relation, by_relation); }
TEST(ThresholdComplex, As64fc) { CHECK(, 64fc, level_and_relation, by_relation); }
TEST(ThresholdLTComplex, As16sc) { CHECK(_LT, 16sc, some_level, raised); }
TEST(ThresholdLTComplex, As32fc) { CHECK(_LT, 32fc, some_level, raised); }
TEST(ThresholdLTComplex, As64fc) { CHECK(_LT, 64fc, some_level, raised); }
TEST(ThresholdGTComplex, As16sc) { CHECK(_GT, 16sc, some_level, lowered); }
TEST(ThresholdGTComplex, As32fc) { CHECK(_GT, 32fc, some_level, lowered); }
TEST(ThresholdGTComplex, As64fc) { CHECK(_GT, 64fc, some_level, lowered); }
TEST(ThresholdLTValComplex, As16sc) { CHECK(_LTVal, 16sc, level_and_value, replaced_below); }
TEST(ThresholdLTValComplex, As32fc) { CHECK(_LTVal, 32fc, level_and_value, replaced_below); }
TEST(ThresholdLTValComplex, As64fc) { CHECK(_LTVal, 64fc, level_and_value, replaced_below); }
TEST(ThresholdGTValComplex, As16sc) { CHECK(_GTVal, 16sc, level_and_value, replaced_above); }
TEST(ThresholdGTValComplex, As32fc) { CHECK(_GTVal, 32fc, level_and_value, replaced_above); }
TEST(ThresholdGTValComplex, As64fc) { CHECK(_GTVal, 64fc, level_and_value, replaced_above); }
#undef CHECK
// clang-format on

void expect_clipped(const std::vector<Tav16sc>& src, Tav16s level) {
  std::vector<Tav16sc> low(src.size()), high(src.size());
  const int            len = int(src.size());
  ASSERT_EQ(call<&::tavsThreshold_LT_16sc>(src.data(), low.data(), len, level), tavStatusOk);
  ASSERT_EQ(call<&::tavsThreshold_GT_16sc>(src.data(), high.data(), len, level), tavStatusOk);
  for (size_t i = 0; i < src.size(); ++i) {
    const auto what = [&] { return testing::Message() << src[i].re << ", " << src[i].im << " at " << level; };
    ASSERT_TRUE(same(low[i], raised(src[i], level))) << what();
    ASSERT_TRUE(same(high[i], lowered(src[i], level))) << what();
  }
}

// Next to the middle of two integers: quotients of doubles, of which these are the nearest found, end on its wrong
// side.
TEST(ThresholdComplex, NearestIntegersWhereDoublesFail) {
  const struct {
    Tav16s re, im, level, nearest;
  } hard[] = {{7591, 12144, 13428, 7117},
              {7591, 12144, 31332, 16607},
              {11548, 31319, 9231, 3193},
              {26779, 2486, 12963, 12907},
              {26779, 2486, 30247, 30117}};
  for (const auto& h : hard)
    for (int sign : {1, -1}) {
      const Tav16s re = Tav16s(sign * h.re), nearest = Tav16s(sign * h.nearest);
      ASSERT_EQ(oracle::clipped(side::above, Tav16sc{re, h.im}, h.level).re,
                oracle::fails(side::above, Tav16sc{re, h.im}, h.level) ? nearest : re);
      ASSERT_EQ(oracle::scaled_part(re, oracle::square(Tav16sc{re, h.im}), h.level), nearest);
      expect_clipped(std::vector<Tav16sc>(9, {re, h.im}), h.level);
      expect_clipped(std::vector<Tav16sc>(9, {h.im, re}), h.level);
    }
}

// Pairs near the level, on which the most elements turn, and Pythagorean ones, whose quotients are rational.
TEST(ThresholdComplex, NearestIntegers) {
  source_of_data data(91);
  for (int level : {0, 1, 2, 5, 100, 4999, 23170, 32766, 32767}) {
    std::vector<Tav16sc> src{{0, 0}, {-32768, -32768}, {-32768, 0}, {0, -32768}, {32767, 0}, {0, 1}, {-1, 0}};
    for (int i = 0; i < 20000; ++i) src.push_back(data.value<Tav16sc>());
    for (int i = 0; i < 5000; ++i) {
      const double angle = data.below(100000) * 6.2831853e-5, r = level + data.below(5) - 2;
      src.push_back(
          {Tav16s(fmax(-32768, fmin(32767, r * cos(angle)))), Tav16s(fmax(-32768, fmin(32767, r * sin(angle))))});
    }
    for (int k = -6553; k <= 6553; k += 7)
      src.push_back({Tav16s(3 * k), Tav16s(4 * k)}), src.push_back({Tav16s(-4 * k), Tav16s(3 * k)});
    expect_clipped(src, Tav16s(level));
    if (testing::Test::HasFatalFailure()) return;
  }
}

TEST(ThresholdComplex, HighestSquareOf16sc) {
  const std::vector<Tav16sc> src(9, {-32768, -32768});
  std::vector<Tav16sc>       dst(9);
  const Tav16s               highest = 32767;
  EXPECT_EQ(call<&::tavsThreshold_LTVal_16sc>(src.data(), dst.data(), 9, highest, Tav16sc{1, 2}), tavStatusOk);
  for (Tav16sc d : dst) EXPECT_TRUE(same(d, {-32768, -32768}));
  EXPECT_EQ(call<&::tavsThreshold_GTVal_16sc>(src.data(), dst.data(), 9, highest, Tav16sc{1, 2}), tavStatusOk);
  for (Tav16sc d : dst) EXPECT_TRUE(same(d, {1, 2}));
  EXPECT_EQ(call<&::tavsThreshold_GT_16sc>(src.data(), dst.data(), 9, highest), tavStatusOk);
  for (Tav16sc d : dst) EXPECT_TRUE(same(d, {-23170, -23170}));
}

// Integers are rounded to nearest in any mode. Zeros and infinities trap in none.
TEST(ThresholdComplex, InAnyModeOfTheCaller) {
  source_of_data       data(92);
  auto                 integers = data.values<Tav16sc>(50);
  std::vector<Tav16sc> want(50), got(50);
  integers[3] = integers[49] = {0, 0};
  std::vector<Tav32fc> floats(51, {0, -0.0f}), clipped(51);
  std::vector<Tav64fc> doubles(51, {0, -0.0}), wide(51);
  floats[7] = floats[50] = {INFINITY, 1}, doubles[7] = doubles[50] = {1e200, 1};
  call<&::tavsThreshold_LT_16sc>(integers.data(), want.data(), 50, Tav16s(30001));
  in_hostile_modes([&] {
    call<&::tavsThreshold_LT_16sc>(integers.data(), got.data(), 50, Tav16s(30001));
    call<&::tavsThreshold_LT_32fc>(floats.data(), clipped.data(), 51, 2.0f);
    call<&::tavsThreshold_GT_32fc_I>(clipped.data(), 51, 2.0f);
    call<&::tavsThreshold_LT_64fc>(doubles.data(), wide.data(), 51, 1e200);
    call<&::tavsThreshold_GTVal_64fc>(doubles.data(), wide.data(), 51, 1e200, Tav64fc{});
    _mm_setcsr(0x1F80);
    EXPECT_EQ(first_difference(got, want), -1);
    EXPECT_TRUE(same(clipped[0], {0, -0.0f}));
    EXPECT_TRUE(clipped[7].re == 2 && clipped[50].re == 2) << "upward no other part is 0";
    EXPECT_TRUE(clipped[7].im <= 1e-45f && clipped[50].im <= 1e-45f);
  });
}

// Floats follow the caller's mode.
TEST(ThresholdComplex, FloatsInTheRoundingModeOfTheCaller) {
  const std::vector<Tav32fc> src(5, {3, 1});  // 3 / sqrt(10), 1 / sqrt(10)
  std::vector<Tav32fc>       down(5), up(5);
  const auto                 in = [&](unsigned mode, std::vector<Tav32fc>& dst) {
    const rounding_mode set(mode);
    call<&::tavsThreshold_GT_32fc>(src.data(), dst.data(), 5, 1.0f);
  };
  in(rounding_mode::down, down), in(rounding_mode::up, up);
  for (size_t i = 0; i < 5; ++i) {
    EXPECT_LT(down[i].re, 3 / sqrtl(10));
    EXPECT_GT(up[i].re, 3 / sqrtl(10));
    EXPECT_EQ(nextafterf(down[i].re, 1), up[i].re);
    EXPECT_EQ(nextafterf(down[i].im, 1), up[i].im);
  }
}

// Of doubles within the range of their squares, to a few units in the last place.
TEST(ThresholdComplex, AccuracyOf64fc) {
  source_of_data data(93);
  for (double size : {1e-140, 1e-3, 1.0, 1e140}) {
    std::vector<Tav64fc> src(1000), dst(1000);
    for (Tav64fc& x : src) x = {size * (data.below(2001) - 1000), size * (data.below(2001) - 1000)};
    const double level = 700 * size;
    ASSERT_EQ(call<&::tavsThreshold_GT_64fc>(src.data(), dst.data(), 1000, level), tavStatusOk);
    for (size_t i = 0; i < 1000; ++i) {
      const long double re = src[i].re, im = src[i].im, m = sqrtl(re * re + im * im), f = m > level ? level / m : 1;
      EXPECT_LE(fabsl(dst[i].re - re * f), ldexpl(fabsl(re * f), -51));
      EXPECT_LE(fabsl(dst[i].im - im * f), ldexpl(fabsl(im * f), -51));
    }
  }
}

TEST(ThresholdComplex, SinglesOfAnyMagnitude) {
  std::vector<Tav32fc> src{{1e30f, -1e30f}, {1e-45f, 0}, {INFINITY, -INFINITY}, {NAN, INFINITY}, {-0.0f, 0}}, dst(5);
  ASSERT_EQ(call<&::tavsThreshold_GT_32fc>(src.data(), dst.data(), 5, 2.0f), tavStatusOk);
  const Tav32f r2 = Tav32f(sqrtl(2));
  EXPECT_TRUE(same(dst[0], {r2, -r2}) && same(dst[2], {r2, -r2}));
  EXPECT_TRUE(same(dst[1], src[1]) && same(dst[3], src[3]) && same(dst[4], src[4]));
  ASSERT_EQ(call<&::tavsThreshold_LT_32fc>(src.data(), dst.data(), 5, 1e20f), tavStatusOk);
  EXPECT_TRUE(same(dst[1], {1e20f, 0}) && same(dst[0], src[0]) && same(dst[2], src[2]));
  EXPECT_TRUE(same(dst[3], src[3]) && same(dst[4], src[4]));
}

}  // namespace

// clang-format off
#define CASE(name, faults)             \
  TAV_FAULTS(Threshold_##name, faults) \
  TAV_FAULTS(Threshold_##name##_I, faults)
CASE(16sc, relation_then_level_not_below_0) CASE(32fc, relation_then_level_not_below_0)
CASE(64fc, relation_then_level_not_below_0)
CASE(LT_16sc, level_not_below_0) CASE(LT_32fc, level_not_below_0) CASE(LT_64fc, level_not_below_0)
CASE(GT_16sc, level_not_below_0) CASE(GT_32fc, level_not_below_0) CASE(GT_64fc, level_not_below_0)
CASE(LTVal_16sc, level_not_below_0) CASE(LTVal_32fc, level_not_below_0) CASE(LTVal_64fc, level_not_below_0)
CASE(GTVal_16sc, level_not_below_0) CASE(GTVal_32fc, level_not_below_0) CASE(GTVal_64fc, level_not_below_0)
#undef CASE
    // clang-format on
