// tavsMul: against the product of the wider type rounded or saturated once; complex ones part by part.
#include "harness/faults.h"
#include "harness/forms.h"
#include "oracle/arithmetic.h"

using namespace test;

namespace {

template <class D> const auto product = [](auto a, auto b) { return oracle::arithmetic<D>::mul(a, b); };

const std::set<int> around_streaming = lengths_around({11, 256, 8 * 0x2AAA + 8, 8 * 0x2AAB + 3});

TEST(Mul, As32f) { check_two_sources<&::tavsMul_32f>(product<Tav32f>, around_streaming); }
TEST(Mul, As64f) { check_two_sources<&::tavsMul_64f>(product<Tav64f>); }
TEST(Mul, As32fc) { check_two_sources<&::tavsMul_32fc>(product<Tav32fc>); }
TEST(Mul, As64fc) { check_two_sources<&::tavsMul_64fc>(product<Tav64fc>); }
TEST(Mul, As32f32fc) { check_two_sources<&::tavsMul_32f32fc>(product<Tav32fc>); }
TEST(Mul, As16s) { check_two_sources<&::tavsMul_16s>(product<Tav16s>); }
TEST(Mul, As8u16u) { check_two_sources<&::tavsMul_8u16u>(product<Tav16u>); }
TEST(Mul, As16s32f) { check_two_sources<&::tavsMul_16s32f>(product<Tav32f>); }

TEST(MulInPlace, As32f) { check_in_place<&::tavsMul_32f_I>(product<Tav32f>); }
TEST(MulInPlace, As64f) { check_in_place<&::tavsMul_64f_I>(product<Tav64f>); }
TEST(MulInPlace, As32fc) { check_in_place<&::tavsMul_32fc_I>(product<Tav32fc>); }
TEST(MulInPlace, As64fc) { check_in_place<&::tavsMul_64fc_I>(product<Tav64fc>); }
TEST(MulInPlace, As32f32fc) { check_in_place<&::tavsMul_32f32fc_I>(product<Tav32fc>); }
TEST(MulInPlace, As16s) { check_in_place<&::tavsMul_16s_I>(product<Tav16s>); }

// Each product of a complex one is rounded by itself: fused ones would leave a remainder.
TEST(Mul, NotFused32fc) {
  const Tav32f               x = 1.0f + 0x1p-12f;  // its square needs 25 bits
  const std::vector<Tav32fc> a(9, {x, x}), b(9, {x, x});
  std::vector<Tav32fc>       c(9);
  each_build<&::tavsMul_32fc>([&] {
    EXPECT_EQ(call<&::tavsMul_32fc>(a.data(), b.data(), c.data(), 9), tavStatusOk);
    for (Tav32fc v : c) EXPECT_EQ(v.re, 0);
  });
}

TEST(Mul, InTheCallersRoundingMode) {
  for (unsigned mode : rounding_modes)
    each_build<&::tavsMul_32f>([&] {
      const Tav32f        x = 1.0f + 0x1p-23f;
      std::vector<Tav32f> a(40, x), c(40);
      {
        const rounding_mode set(mode);
        EXPECT_EQ(call<&::tavsMul_32f>(a.data(), a.data(), c.data(), 40), tavStatusOk);
      }
      for (Tav32f v : c) EXPECT_EQ(v, 1.0f + (mode == rounding_mode::up ? 0x3p-23f : 0x2p-23f)) << std::hex << mode;
    });
}

}  // namespace

#define CASE(form) TAV_FAULTS(Mul_##form, pointers_then_length)
CASE(8u16u)
CASE(16s)
CASE(16s32f) CASE(32f) CASE(64f) CASE(32f32fc) CASE(32fc) CASE(64fc) CASE(16s_I) CASE(32f_I) CASE(64f_I) CASE(32f32fc_I)
    CASE(32fc_I) CASE(64fc_I)
#undef CASE
