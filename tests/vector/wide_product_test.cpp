// Scaled products with results of 32 bits, against exact integers, or against doubles where those define the result.
#include <math.h>

#include "harness/scaled.h"

using namespace test;
using oracle::exact;

namespace {

Tav32s real_product(exact a, exact b, int s) { return oracle::scaled<Tav32s>(a * b, s); }

const auto product = [](auto a, auto b, int s) { return real_product(exact(a), exact(b), s); };

const auto product_with_pair = [](Tav32s a, Tav32sc b, int s) {
  return Tav32sc{real_product(a, b.re, s), real_product(a, b.im, s)};
};

const auto complex_product = [](Tav32sc a, Tav32sc b, int s) {
  const exact ar = a.re, ai = a.im, br = b.re, bi = b.im;
  return Tav32sc{oracle::scaled<Tav32s>(ar * br - ai * bi, s), oracle::scaled<Tav32s>(ar * bi + ai * br, s)};
};

const auto product_in_double = [](Tav32s a, Tav32s b, int s) -> Tav32s {
  if (s > 62) return 0;
  if (s < -100) s = -100;
  const double r = double(a) * ldexp(1, -s) * double(b);
  return Tav32s(nearbyint(fmax(fmin(r, 2147483647.0), -2147483648.0)));
};

const auto low_product = [](Tav32s a, Tav32s b, int s) -> Tav32s {
  const int64_t r = int64_t(a) * b;
  if (s > 62 || s <= -32) return 0;
  return Tav32s(s >= 0 ? uint64_t(r >> s) : uint64_t(r) << -s);
};

TAV_FAULTS(Mul_32s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Mul_32s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Mul_32sc_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Mul_32sc_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Mul_32s32sc_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Mul_32s32sc_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Mul_16s32s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Mul_Low_32s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(MulC_32s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(MulC_32s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(MulC_32sc_Sfs, pointers_then_length_scaled)
TAV_FAULTS(MulC_32sc_ISfs, pointers_then_length_scaled)
TAV_FAULTS(AddProduct_16s32s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(AddProduct_32s_Sfs, pointers_then_length_scaled)

TEST(WideProduct, Mul) {
  check_scaled<&::tavsMul_32s_Sfs>(product_in_double);
  check_scaled<&::tavsMul_32s_ISfs>(product_in_double);
  check_scaled<&::tavsMul_16s32s_Sfs>(product);
  check_scaled<&::tavsMul_Low_32s_Sfs>(low_product);
}

TEST(WideProduct, MulOfPairs) {
  check_scaled<&::tavsMul_32sc_Sfs>(complex_product);
  check_scaled<&::tavsMul_32sc_ISfs>(complex_product);
  check_scaled<&::tavsMul_32s32sc_Sfs>(product_with_pair);
  check_scaled<&::tavsMul_32s32sc_ISfs>(product_with_pair);
}

TEST(WideProduct, MulC) {
  check_scaled<&::tavsMulC_32s_Sfs>(product);
  check_scaled<&::tavsMulC_32s_ISfs>(product);
  check_scaled<&::tavsMulC_32sc_Sfs>(complex_product);
  check_scaled<&::tavsMulC_32sc_ISfs>(complex_product);
}

// The accumulator is scaled too. Past the bound of tavsAddProduct_32s all is zero, even what would round to 1.
TEST(WideProduct, AddProduct) {
  check_scaled<&::tavsAddProduct_16s32s_Sfs>(
      [](Tav16s a, Tav16s b, Tav32s c, int s) { return oracle::scaled<Tav32s>(exact(a) * exact(b) + exact(c), s); });
  check_scaled<&::tavsAddProduct_32s_Sfs>([](Tav32s a, Tav32s b, Tav32s c, int s) {
    return s > 62 ? 0 : oracle::scaled<Tav32s>(exact(a) * exact(b) + exact(c), s);
  });
}

template <auto* Export, class T> T times(T a, T b, int s) {
  T dst{};
  EXPECT_EQ(call<Export>(&a, &b, &dst, 1, s), tavStatusOk);
  return dst;
}

TEST(WideProduct, ByHand) {
  EXPECT_EQ((times<&::tavsMul_Low_32s_Sfs>(0x10000, 0x10000, 0)), 0);
  EXPECT_EQ((times<&::tavsMul_Low_32s_Sfs>(-1, 1, 62)), -1);
  EXPECT_EQ((times<&::tavsMul_Low_32s_Sfs>(-1, 1, 63)), 0);
  EXPECT_EQ((times<&::tavsMul_32s_Sfs>(INT_MIN, INT_MIN, 31)), INT_MAX);
  EXPECT_EQ((times<&::tavsMul_32s_Sfs>(INT_MIN, INT_MIN, 62)), 1);
  EXPECT_EQ((times<&::tavsMul_32s_Sfs>(INT_MIN, INT_MIN, 63)), 0);
  EXPECT_EQ((times<&::tavsMul_32s_Sfs>(2073658861, 1540464613, 32)), 743753764) << "in double precision";
  const Tav32s factor = 2073658861;
  Tav32s       exactly;
  EXPECT_EQ(call<&::tavsMulC_32s_Sfs>(&factor, 1540464613, &exactly, 1, 32), tavStatusOk);
  EXPECT_EQ(exactly, 743753765);

  const Tav32s lowest = INT_MIN;
  Tav32s       sum    = 1;
  EXPECT_EQ(call<&::tavsAddProduct_32s_Sfs>(&lowest, &lowest, &sum, 1, 63), tavStatusOk);
  EXPECT_EQ(sum, 0);
}

// The one imaginary part that 64 bits do not hold.
TEST(WideProduct, LowestPairs) {
  const Tav32sc lowest{INT_MIN, INT_MIN};
  const auto    im = [&](int s) {
    const Tav32sc p = times<&::tavsMul_32sc_Sfs>(lowest, lowest, s);
    EXPECT_EQ(p.re, 0);
    Tav32sc by_constant[1];
    EXPECT_EQ(call<&::tavsMulC_32sc_Sfs>(&lowest, lowest, by_constant, 1, s), tavStatusOk);
    EXPECT_EQ(by_constant[0].im, p.im);
    return p.im;
  };
  EXPECT_EQ(im(-5), INT_MAX);
  EXPECT_EQ(im(0), INT_MAX);
  EXPECT_EQ(im(32), INT_MAX);
  EXPECT_EQ(im(33), 1 << 30);
  EXPECT_EQ(im(63), 1);
  EXPECT_EQ(im(64), 0);
  const Tav32sc other{INT_MIN, INT_MAX};  // and the lowest parts that they do hold
  for (int s : all_scales())
    for (const Tav32sc& a : {lowest, other})
      EXPECT_TRUE(same(times<&::tavsMul_32sc_Sfs>(a, other, s), complex_product(a, other, s))) << s;
}

TEST(WideProduct, IgnoresTheCallersRoundingMode) {
  const unsigned      callers = _mm_getcsr();
  std::vector<Tav32s> a, b(23, 1), dst(23), in_place;
  for (int i = 0; i < 23; ++i) a.push_back(5 * (i - 11));
  for (unsigned mode : {0x2000u, 0x4000u, 0x6000u}) {
    in_place = b;
    _mm_setcsr((callers & ~0x6000u) | mode);
    call<&::tavsMul_32s_Sfs>(a.data(), b.data(), dst.data(), 23, 2);
    call<&::tavsMul_32s_ISfs>(a.data(), in_place.data(), 23, 2);
    _mm_setcsr(callers);
    for (size_t i = 0; i < a.size(); ++i) EXPECT_EQ(dst[i], oracle::scaled<Tav32s>(a[i], 2)) << std::hex << mode;
    EXPECT_EQ(dst, in_place);
  }
}

// A constant that changes nothing: in place nothing is written, not even the same again.
TEST(WideProduct, ConstantsThatChangeNothing) {
  static const Tav32s constant[4] = {1, -2, 3, 4};
  auto* const         sealed      = const_cast<Tav32s*>(constant);
  EXPECT_EQ(call<&::tavsMulC_32s_ISfs>(1, sealed, 4, 0), tavStatusOk);
  EXPECT_EQ(call<&::tavsAddC_32s_ISfs>(0, sealed, 4, 0), tavStatusOk);
  EXPECT_EQ(call<&::tavsSubC_32s_ISfs>(0, sealed, 4, 0), tavStatusOk);
  EXPECT_EQ(call<&::tavsMulC_32s_ISfs>(1, nullptr, 4, 0), tavStatusNullPointer);
  EXPECT_EQ(call<&::tavsMulC_32s_ISfs>(0, sealed, 0, 0), tavStatusBadSize);
  EXPECT_EQ(call<&::tavsAddC_32s_ISfs>(0, sealed, -1, 0), tavStatusBadSize);
}

}  // namespace
