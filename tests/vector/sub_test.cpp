// tavsSub: the second source less the first, against the difference of the wider type rounded or saturated once.
#include "harness/faults.h"
#include "harness/forms.h"
#include "oracle/arithmetic.h"

using namespace test;

namespace {

template <class D> const auto difference = [](auto a, auto b) { return oracle::arithmetic<D>::sub(a, b); };

const std::set<int> around_streaming = lengths_around({11, 256, 8 * 0x2AAA + 8, 8 * 0x2AAB + 3});

TEST(Sub, As32f) { check_two_sources<&::tavsSub_32f>(difference<Tav32f>, around_streaming); }
TEST(Sub, As64f) { check_two_sources<&::tavsSub_64f>(difference<Tav64f>); }
TEST(Sub, As32fc) { check_two_sources<&::tavsSub_32fc>(difference<Tav32fc>); }
TEST(Sub, As64fc) { check_two_sources<&::tavsSub_64fc>(difference<Tav64fc>); }
TEST(Sub, As16s) { check_two_sources<&::tavsSub_16s>(difference<Tav16s>); }
TEST(Sub, As16s32f) { check_two_sources<&::tavsSub_16s32f>(difference<Tav32f>); }

TEST(SubInPlace, As32f) { check_in_place<&::tavsSub_32f_I>(difference<Tav32f>); }
TEST(SubInPlace, As64f) { check_in_place<&::tavsSub_64f_I>(difference<Tav64f>); }
TEST(SubInPlace, As32fc) { check_in_place<&::tavsSub_32fc_I>(difference<Tav32fc>); }
TEST(SubInPlace, As64fc) { check_in_place<&::tavsSub_64fc_I>(difference<Tav64fc>); }
TEST(SubInPlace, As16s) { check_in_place<&::tavsSub_16s_I>(difference<Tav16s>); }

TEST(Sub, FirstSourceIsSubtracted) {
  const Tav32f a = 2, b = 10;
  Tav32f       c = 0;
  EXPECT_EQ(call<&::tavsSub_32f>(&a, &b, &c, 1), tavStatusOk);
  EXPECT_EQ(c, 8);
  EXPECT_EQ(call<&::tavsSub_32f_I>(&a, &c, 1), tavStatusOk);
  EXPECT_EQ(c, 6);
}

// The difference of equal floats is -0.0 where rounding goes down, also if they come from integers.
TEST(Sub, ConvertsBeforeItSubtracts16s32f) {
  const std::vector<Tav16s> a(20, 7);
  std::vector<Tav32f>       c(20, 1.0f);
  {
    const rounding_mode down(rounding_mode::down);
    EXPECT_EQ(call<&::tavsSub_16s32f>(a.data(), a.data(), c.data(), 20), tavStatusOk);
  }
  EXPECT_LT(first_difference(c, std::vector<Tav32f>(20, -0.0f)), 0);
}

}  // namespace

#define CASE(form) TAV_FAULTS(Sub_##form, pointers_then_length)
CASE(16s)
CASE(16s32f)
CASE(32f) CASE(64f) CASE(16s_I) CASE(32f_I) CASE(64f_I)
#undef CASE

#define CASE(form) TAV_FAULTS(Sub_##form, length_then_pointers)
    CASE(32fc) CASE(64fc) CASE(32fc_I) CASE(64fc_I)
#undef CASE
