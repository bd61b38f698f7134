// The deviation in doubles: what it claims to know is what the formula in extended precision gives.
#include "stats/near_moments.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "harness/data.h"

using namespace test;
using tav::TAV_VARIANT::near_moments;
using tav::TAV_VARIANT::rounds_surely;

namespace {

TEST(NearMoments, WhatIsKnownIsRight) {
  source_of_data data(5);
  int            known = 0;
  constexpr int  draws = 200000;
  for (int i = 0; i < draws; ++i) {
    const int         n     = 2 + data.below(100);
    const auto        first = Tav32f(data.below(2001) - 1000) / 7;
    const int         sum = data.below(4001) - 2000, least = sum * sum / n + 1;
    const int         squares   = least + data.below(data.below(2) ? 20 : 1000000);
    const auto        near      = near_moments(first, sum, squares, n);
    const long double times_n   = (long double)n * squares - (long double)sum * sum;
    const auto        deviation = Tav32f(sqrtl(times_n / ((long double)n * (n - 1))));
    const auto        mean      = Tav32f(((long double)first * n + sum) / n);
    if (near.deviation_is_known()) {
      ASSERT_EQ(Tav32f(near.deviation), deviation) << n << " elements, sum " << sum << ", squares " << squares;
      ++known;
    }
    if (near.mean_is_known()) {
      ASSERT_EQ(Tav32f(near.mean), mean) << n << " elements, first " << first << ", sum " << sum;
    }
  }
  EXPECT_GT(known, draws / 2);
  EXPECT_LT(known, draws) << "a difference that loses its upper places";
}

TEST(NearMoments, NothingNearTheMiddleOfTwoSingles) {
  for (Tav32f v : {1.0f, -1.5f, 3e-38f, 1e38f, -0x1.fffffep50f}) {
    const Tav64f middle = (Tav64f(v) + std::nextafterf(v, 2 * v)) / 2, unit = std::fabs(middle) * 0x1p-53;
    for (int off : {0, 1, -1, 100, -100, 2000, -2000})
      EXPECT_FALSE(rounds_surely(middle + off * unit)) << v << ", " << off;
    for (int off : {17000, -17000, 1 << 20, -(1 << 20)})
      EXPECT_TRUE(rounds_surely(middle + off * unit)) << v << ", " << off;
    EXPECT_TRUE(rounds_surely(v));
  }
  EXPECT_TRUE(rounds_surely(0.0) && rounds_surely(-0.0));
  for (Tav64f v : {1e-39, 0x1p127 * 1.5, 1e300, 4.9e-324, std::numeric_limits<Tav64f>::infinity(),
                   std::numeric_limits<Tav64f>::quiet_NaN()})
    EXPECT_FALSE(rounds_surely(v)) << v;
}

// One that is less than 0 by rounding has no root, and nothing is known of it.
TEST(NearMoments, NoRootOfLessThanZero) {
  EXPECT_FALSE(near_moments(1, 3, 1, 2).deviation_is_known());
  EXPECT_TRUE(near_moments(1, 0, 0, 2).deviation_is_known());
}

}  // namespace
