// tavsDiv, DivC and DivCRev of floats: bit for bit the quotient of the language, or the product with the reciprocal.
#include "harness/division.h"

using namespace test;
using namespace oracle;

namespace {

const auto real_quotient = [](auto b, auto a) { return a / b; };
const auto pair_quotient = [](auto b, auto a) { return complex_quotient(a, b); };

template <auto* Apart, auto* InPlace, class T, class Want> void check_floats(const Want& want) {
  check_division_layouts<Apart, T, T, T>([](auto b, auto a, T* d, int n) { return call<Apart>(b, a, d, n); }, want);
  check_division_in_place<InPlace, T, T>([](auto b, T* d, int n) { return call<InPlace>(b, d, n); }, want);
}

TEST(DivFloat, As32f) { check_floats<&::tavsDiv_32f, &::tavsDiv_32f_I, Tav32f>(real_quotient); }
TEST(DivFloat, As64f) { check_floats<&::tavsDiv_64f, &::tavsDiv_64f_I, Tav64f>(real_quotient); }
TEST(DivFloat, As32fc) { check_floats<&::tavsDiv_32fc, &::tavsDiv_32fc_I, Tav32fc>(pair_quotient); }
TEST(DivFloat, As64fc) { check_floats<&::tavsDiv_64fc, &::tavsDiv_64fc_I, Tav64fc>(pair_quotient); }

// Past its limit of rounds the kernel stores around the cache.
TEST(DivFloat, LongArrays32f) {
  check_layouts<&::tavsDiv_32f, Tav32f, Tav32f, Tav32f>(
      lengths_around({8 * 0x2AAA, 8 * 0x2AAB + 3}, 0),
      [](Tav32f* d, int n, const Tav32f* b, const Tav32f* a) { return call<&::tavsDiv_32f>(b, a, d, n); },
      [](std::vector<Tav32f>& d, const std::vector<Tav32f>& b, const std::vector<Tav32f>& a) {
        for (size_t i = 0; i < d.size(); ++i) d[i] = a[i] / b[i];
        return status_of_division(any_zero(b));
      });
}

TEST(DivFloat, NeverWarnsWithoutAZero) {
  std::vector<Tav32f> b(100, 1e-45f), a(100, 1.0f), q(100);
  each_build<&::tavsDiv_32f>([&] { EXPECT_EQ(call<&::tavsDiv_32f>(b.data(), a.data(), q.data(), 100), tavStatusOk); });
  for (int at : {0, 50, 99})
    for (Tav32f zero : {0.0f, -0.0f}) {
      auto c        = b;
      c[size_t(at)] = zero;
      each_build<&::tavsDiv_32f>([&] {
        EXPECT_EQ(call<&::tavsDiv_32f>(c.data(), a.data(), q.data(), 100), tavStatusWarnDivideByZero);
        EXPECT_EQ(q[size_t(at)], std::signbit(zero) ? -INFINITY : INFINITY);
      });
    }
}

// Squares that no single holds, and quotients that every single does.
TEST(DivFloat, ComplexSinglesOfAnyMagnitude) {
  source_of_data data(81);
  for (float magnitude : {1e-40f, 1e-30f, 1.0f, 1e30f}) {
    std::vector<Tav32fc> b(100), a(100), q(100);
    const auto part = [&] { return magnitude * (1 + float(data.below(1000))) * (data.below(2) ? 1e-3f : -1e-3f); };
    for (size_t i = 0; i < 100; ++i) b[i] = {part(), part()}, a[i] = {part(), part()};
    ASSERT_EQ(call<&::tavsDiv_32fc>(b.data(), a.data(), q.data(), 100), tavStatusOk);
    for (size_t i = 0; i < 100; ++i) {
      const long double br = b[i].re, bi = b[i].im, ar = a[i].re, ai = a[i].im, square = br * br + bi * bi;
      const long double re = (ar * br + ai * bi) / square, im = (ai * br - ar * bi) / square;
      const long double bound = ldexpl(sqrtl(re * re + im * im), -24) + 1e-44L;
      EXPECT_LE(fabsl(q[i].re - re), bound);
      EXPECT_LE(fabsl(q[i].im - im), bound);
    }
  }
}

TEST(DivFloat, ComplexOverZero) {
  const Tav32fc b[3] = {{0, -0.0f}, {-0.0f, 0}, {0, 0}}, a[3] = {{1, -2}, {0, NAN}, {INFINITY, -INFINITY}};
  Tav32fc       q[3];
  ASSERT_EQ(call<&::tavsDiv_32fc>(b, a, q, 3), tavStatusWarnDivideByZero);
  EXPECT_EQ(q[0].re, INFINITY);
  EXPECT_EQ(q[0].im, -INFINITY);
  EXPECT_TRUE(std::isnan(q[1].re) && std::isnan(q[1].im));
  EXPECT_EQ(q[2].re, INFINITY);
  EXPECT_EQ(q[2].im, -INFINITY);
}

TEST(DivFloat, InAnyModeOfTheCaller) {
  source_of_data       data(82);
  const auto           b = data.values<Tav32f>(50), a = data.values<Tav32f>(50);
  const auto           c = data.values<Tav64fc>(50), d = data.values<Tav64fc>(50);
  std::vector<Tav32f>  want(50), got(50);
  std::vector<Tav64fc> want_pairs(50), got_pairs(50);
  const TavStatus      status = call<&::tavsDiv_32f>(b.data(), a.data(), want.data(), 50);
  call<&::tavsDiv_64fc>(c.data(), d.data(), want_pairs.data(), 50);
  in_hostile_modes([&] {
    const TavStatus in_mode = call<&::tavsDiv_32f>(b.data(), a.data(), got.data(), 50);
    call<&::tavsDiv_64fc>(c.data(), d.data(), got_pairs.data(), 50);
    _mm_setcsr(0x1F80);
    EXPECT_EQ(in_mode, status);
    EXPECT_EQ(first_difference(got, want), -1);
    EXPECT_EQ(first_difference(got_pairs, want_pairs), -1);
  });
}

template <auto* Apart, auto* InPlace, class T, class Want> void check_constant(T val, const Want& want) {
  check_layouts<Apart, T, T>(
      lengths_around({}, 40), [&](T* dst, int len, const T* src) { return call<Apart>(src, val, dst, len); },
      [&](std::vector<T>& dst, const std::vector<T>& src) {
        for (size_t i = 0; i < dst.size(); ++i) dst[i] = want(src[i]);
        return tavStatusOk;
      });
  check_layouts<InPlace, T>(
      lengths_around({}, 40), [&](T* dst, int len) { return call<InPlace>(val, dst, len); },
      [&](std::vector<T>& dst) {
        for (T& v : dst) v = want(v);
        return tavStatusOk;
      });
}

template <auto* Apart, auto* InPlace, class T> void check_real_constants() {
  for (T val : {T(3), T(-0.7), T(1e30), std::numeric_limits<T>::denorm_min()})
    check_constant<Apart, InPlace, T>(val, [&](T v) { return v * (1 / val); });
  check_constant<Apart, InPlace, T>(1, [](T v) { return v; });
  check_constant<Apart, InPlace, T>(-std::numeric_limits<T>::infinity(), [](T) { return T(0); });
}

template <auto* Apart, auto* InPlace, class T> void check_complex_constants() {
  using part = decltype(T::re);
  for (T val : {T{3, 4}, T{part(-0.1), part(7)}, T{0, part(1e10)}}) {
    const part square = val.re * val.re + val.im * val.im, re = val.re / square, im = -val.im / square;
    check_constant<Apart, InPlace, T>(val, [&](T v) -> T { return {v.re * re - v.im * im, v.re * im + v.im * re}; });
  }
}

TEST(DivCFloat, As32f) { check_real_constants<&::tavsDivC_32f, &::tavsDivC_32f_I, Tav32f>(); }
TEST(DivCFloat, As64f) { check_real_constants<&::tavsDivC_64f, &::tavsDivC_64f_I, Tav64f>(); }
TEST(DivCFloat, As32fc) { check_complex_constants<&::tavsDivC_32fc, &::tavsDivC_32fc_I, Tav32fc>(); }
TEST(DivCFloat, As64fc) { check_complex_constants<&::tavsDivC_64fc, &::tavsDivC_64fc_I, Tav64fc>(); }

// The square of the magnitude decides what counts as zero.
TEST(DivCFloat, ComplexConstantsOutOfRange) {
  const Tav32fc src = {1, 2};
  Tav32fc       q   = {7, 7};
  each_build<&::tavsDivC_32fc>([&] {
    EXPECT_EQ(call<&::tavsDivC_32fc>(&src, Tav32fc{1e-23f, 0}, &q, 1), tavStatusDivideByZero);
    EXPECT_EQ(q.re, 7);
    Tav32fc large = {};
    EXPECT_EQ(call<&::tavsDivC_32fc>(&src, Tav32fc{1e20f, 0}, &large, 1), tavStatusOk);
    EXPECT_EQ(large.re, 0);
  });
  const Tav64fc wide = {1, 2};
  Tav64fc       w;
  EXPECT_EQ(call<&::tavsDivC_64fc>(&wide, Tav64fc{1e-23, 0}, &w, 1), tavStatusOk);
  EXPECT_EQ(call<&::tavsDivC_64fc>(&wide, Tav64fc{1e-170, 0}, &w, 1), tavStatusDivideByZero);
}

// The reciprocal is rounded to nearest in every mode. The product is exact here.
TEST(DivCFloat, ReciprocalInAnyModeOfTheCaller) {
  const Tav32f src = 2, third = 1 / 3.0f;
  in_hostile_modes([&] {
    Tav32f q = 0;
    EXPECT_EQ(call<&::tavsDivC_32f>(&src, 3.0f, &q, 1), tavStatusOk);
    EXPECT_EQ(q, 2 * third);
    EXPECT_EQ(call<&::tavsDivC_32f>(&src, 0.0f, &q, 1), tavStatusDivideByZero);
  });
}

TEST(DivCRevFloat, As32f) {
  for (Tav32f val : {3.0f, -0.0f, 0.0f, -1e30f, INFINITY, NAN}) {
    const auto fill = [&](std::vector<Tav32f>& dst, const std::vector<Tav32f>& src) {
      for (size_t i = 0; i < dst.size(); ++i) dst[i] = val / src[i];
      return status_of_division(any_zero(src));
    };
    check_layouts<&::tavsDivCRev_32f, Tav32f, Tav32f>(
        lengths_around({}, 40),
        [&](Tav32f* dst, int len, const Tav32f* src) { return call<&::tavsDivCRev_32f>(src, val, dst, len); }, fill);
    check_layouts<&::tavsDivCRev_32f_I, Tav32f>(
        lengths_around({}, 40), [&](Tav32f* dst, int len) { return call<&::tavsDivCRev_32f_I>(val, dst, len); },
        [&](std::vector<Tav32f>& dst) { return fill(dst, std::vector(dst)); });
  }
  in_hostile_modes([] {
    const Tav32f src[2] = {0, 3};
    Tav32f       q[2];
    EXPECT_EQ(call<&::tavsDivCRev_32f>(src, 1.0f, q, 2), tavStatusWarnDivideByZero);
    EXPECT_EQ(q[0], INFINITY);
    EXPECT_EQ(q[1], 0x1.555556p-2f);
  });
}

// The constant is the second argument, or the first of the forms in place.
void pointers_length_then_zero(const tested& f) {
  const size_t constant = f.count == 4 ? 1 : 0;
  faults(f)
      .null_pointers()
      .below_one(f.count - 1)
      .add("constant 0", tavStatusDivideByZero, [=](arguments& a) { a.spoil(constant); })
      .expect();
}

}  // namespace

TAV_FAULTS(Div_32f, pointers_then_length)
TAV_FAULTS(Div_32f_I, pointers_then_length)
TAV_FAULTS(Div_32fc, pointers_then_length)
TAV_FAULTS(Div_32fc_I, pointers_then_length)
TAV_FAULTS(Div_64f, pointers_then_length)
TAV_FAULTS(Div_64f_I, pointers_then_length)
TAV_FAULTS(Div_64fc, pointers_then_length)
TAV_FAULTS(Div_64fc_I, pointers_then_length)
TAV_FAULTS(DivC_32f, pointers_length_then_zero)
TAV_FAULTS(DivC_32f_I, pointers_length_then_zero)
TAV_FAULTS(DivC_32fc, pointers_length_then_zero)
TAV_FAULTS(DivC_32fc_I, pointers_length_then_zero)
TAV_FAULTS(DivC_64f, pointers_length_then_zero)
TAV_FAULTS(DivC_64f_I, pointers_length_then_zero)
TAV_FAULTS(DivC_64fc, pointers_length_then_zero)
TAV_FAULTS(DivC_64fc_I, pointers_length_then_zero)
TAV_FAULTS(DivCRev_32f, pointers_then_length)
TAV_FAULTS(DivCRev_32f_I, pointers_then_length)
