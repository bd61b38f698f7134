// tavsThreshold_LTInv: true quotients, bounded by 1 / level, with a warning for a 0 at level 0 and for nothing else.
#include <math.h>

#include <algorithm>

#include "harness/division.h"
#include "harness/threshold.h"

using namespace test;
using oracle::side;

namespace {

const auto inverse        = [](auto x, auto level) { return oracle::limited_inverse(x, level); };
const auto warns_of_zeros = [](const auto& src, auto level) {
  return !(level > 0) && any_zero(src) ? tavStatusWarnInverseOfZero : tavStatusOk;
};
template <class L> const auto some_level = [](source_of_data& data) { return std::tuple{magnitude_level<L>(data)}; };

#define CHECK(type, level)                                                                                      \
  check_threshold<&::tavsThreshold_LTInv_##type, &::tavsThreshold_LTInv_##type##_I>(some_level<level>, inverse, \
                                                                                    warns_of_zeros)
TEST(ThresholdLTInv, As32f) { CHECK(32f, Tav32f); }
TEST(ThresholdLTInv, As64f) { CHECK(64f, Tav64f); }
TEST(ThresholdLTInv, As32fc) { CHECK(32fc, Tav32f); }
TEST(ThresholdLTInv, As64fc) { CHECK(64fc, Tav64f); }
#undef CHECK

// Without a single zero no call warns; with one it does at level 0, wherever it stands.
template <auto* Export, class T, class L> void check_warning(T other, std::initializer_list<T> zeros, L level) {
  std::vector<T> src(41, other), dst(41);
  EXPECT_EQ(call<Export>(src.data(), dst.data(), 41, L(0)), tavStatusOk);
  for (size_t at = 0; at < 41; ++at)
    for (T zero : zeros) {
      src[at] = zero;
      EXPECT_EQ(call<Export>(src.data(), dst.data(), 41, L(0)), tavStatusWarnInverseOfZero);
      EXPECT_EQ(call<Export>(src.data(), dst.data(), 41, L(-0.0)), tavStatusWarnInverseOfZero);
      EXPECT_EQ(call<Export>(src.data(), dst.data(), 41, level), tavStatusOk);
      src[at] = other;
    }
}

TEST(ThresholdLTInv, WarnsOfZerosAtLevel0Only) {
  check_warning<&::tavsThreshold_LTInv_32f>(1e-45f, {0.0f, -0.0f}, 1e-45f);
  check_warning<&::tavsThreshold_LTInv_32f>(Tav32f(NAN), {0.0f, -0.0f}, 1e-45f);
  check_warning<&::tavsThreshold_LTInv_64f>(1e-320, {0.0, -0.0}, 1e-320);
  check_warning<&::tavsThreshold_LTInv_32fc, Tav32fc>({0, 1e-45f}, {{0, 0}, {-0.0f, 0}, {0, -0.0f}}, 1e-45f);
  check_warning<&::tavsThreshold_LTInv_32fc, Tav32fc>({NAN, 0}, {{0, 0}}, 1e-45f);
  check_warning<&::tavsThreshold_LTInv_64fc, Tav64fc>({1e-320, 0}, {{0, 0}, {-0.0, -0.0}}, 1e-320);
}

TEST(ThresholdLTInv, ByHand) {
  const Tav32f src[]  = {4, -4, 1, -1, 0.0f, -0.0f, INFINITY, -INFINITY, NAN},
               at_2[] = {0.25f, -0.25f, 0.5f, -0.5f, 0.5f, -0.5f, 0, -0.0f, NAN},
               at_0[] = {0.25f, -0.25f, 1, -1, INFINITY, -INFINITY, 0, -0.0f, NAN};
  Tav32f dst[9];
  EXPECT_EQ(call<&::tavsThreshold_LTInv_32f>(src, dst, 9, 2.0f), tavStatusOk);
  for (int i = 0; i < 9; ++i) EXPECT_TRUE(same(dst[i], at_2[i])) << src[i];
  EXPECT_EQ(call<&::tavsThreshold_LTInv_32f>(src, dst, 9, 0.0f), tavStatusWarnInverseOfZero);
  for (int i = 0; i < 9; ++i) EXPECT_TRUE(same(dst[i], at_0[i])) << src[i];

  // conj(x) / 25 above the level of 5 and on it; below it the same phase, and the magnitude 1 / 5; phase 0 for a 0.
  const Tav64fc pairs[] = {{6, 8}, {3, 4}, {0.75, -1}, {0, 0}, {-0.0, -0.0}},
                want[]  = {{0.06, -0.08}, {0.12, -0.16}, {0.12, 0.16}, {0.2, 0}, {0.2, 0}};
  Tav64fc got[5];
  EXPECT_EQ(call<&::tavsThreshold_LTInv_64fc>(pairs, got, 5, 5.0), tavStatusOk);
  for (int i = 0; i < 5; ++i) {
    EXPECT_NEAR(got[i].re, want[i].re, 1e-16) << i;
    EXPECT_NEAR(got[i].im, want[i].im, 1e-16) << i;
  }
  EXPECT_EQ(call<&::tavsThreshold_LTInv_64fc>(pairs, got, 5, 0.0), tavStatusWarnInverseOfZero);
  EXPECT_TRUE(same(got[3], {INFINITY, 0}) && same(got[4], {INFINITY, 0}));
}

// No caller's mode makes a call trap, and the quotients follow the rounding.
TEST(ThresholdLTInv, InAnyModeOfTheCaller) {
  std::vector<Tav32f>  src(23, 3.0f), dst(23), want(23);
  std::vector<Tav64fc> pairs(11, {0, 0}), inverses(11);
  src[5] = src[22] = 0.0f, src[6] = -3.0f, src[7] = 0.5f;
  in_hostile_modes([&] {
    const TavStatus real = call<&::tavsThreshold_LTInv_32f>(src.data(), dst.data(), 23, 0.0f);
    const TavStatus pair = call<&::tavsThreshold_LTInv_64fc>(pairs.data(), inverses.data(), 11, 0.0);
    _mm_setcsr(_mm_getcsr() | 0x1F80);
    for (size_t i = 0; i < 23; ++i) {
      volatile Tav32f x = src[i];
      want[i]           = 1 / x;
    }
    _mm_setcsr(0x1F80);
    EXPECT_EQ(real, tavStatusWarnInverseOfZero);
    EXPECT_EQ(pair, tavStatusWarnInverseOfZero);
    EXPECT_EQ(first_difference(dst, want), -1);
    EXPECT_TRUE(same(inverses[0], {INFINITY, 0}) && same(inverses[10], {INFINITY, 0}));
  });
}

}  // namespace

#define CASE(type)                                      \
  TAV_FAULTS(Threshold_LTInv_##type, level_not_below_0) \
  TAV_FAULTS(Threshold_LTInv_##type##_I, level_not_below_0)
CASE(32f) CASE(32fc) CASE(64f) CASE(64fc)
#undef CASE
