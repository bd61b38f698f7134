// tavsPhase: accuracy over the whole range of the types, values at which atan2 is special, and exact fixed-point
// results down to the pairs that come nearest to a tie.
#include "oracle/phase.h"
#include "harness/forms.h"
#include "harness/scaled.h"

using namespace test;

namespace {

// Calls either form with the points.
template <auto* Export, class C, class D> void phase_of(const std::vector<C>& points, std::vector<D>& dst) {
  using part = decltype(C::re);
  dst.resize(points.size());
  if constexpr (std::is_invocable_v<decltype(Export), const C*, D*, int>) {
    ASSERT_EQ(call<Export>(points.data(), dst.data(), int(points.size())), tavStatusOk);
  } else {
    std::vector<part> re, im;
    for (const C& p : points) re.push_back(p.re), im.push_back(p.im);
    ASSERT_EQ(call<Export>(re.data(), im.data(), dst.data(), int(points.size())), tavStatusOk);
  }
}

template <auto* Export, class D, class C> void expect_accurate(const std::vector<C>& points) {
  constexpr long double units = 1.6L;
  std::vector<D>        dst;
  phase_of<Export>(points, dst);
  for (size_t i = 0; i < points.size(); ++i) {
    const long double re = points[i].re, im = points[i].im, want = oracle::angle(re, im);
    ASSERT_LE(oracle::units_off(dst[i], want), units) << "atan2(" << im << ", " << re << ") is " << dst[i];
    ASSERT_TRUE(want != want || std::signbit(dst[i]) == std::signbit(want)) << "atan2(" << im << ", " << re << ")";
  }
}

template <class F> F uniform(source_of_data& data) {  // from -1 to 1, with all bits of the type
  const auto random = int64_t(uint64_t(data.bits()) << 32 | data.bits());
  return F(F(random) * F(0x1p-63));
}

template <class F> F of_any_bits(source_of_data& data) {
  const uint64_t random = uint64_t(data.bits()) << 32 | data.bits();
  F              v;
  memcpy(&v, &random, sizeof v);
  return v;
}

// Floats of like size; of sizes up to 2^40 apart; of any size; and next to the powers of 2 among the quotients, where
// the error is largest.
template <class C> C some_point(source_of_data& data, int kind) {
  using F = decltype(C::re);
  if constexpr (std::is_integral_v<F>) {
    if (kind == 1) return {F(data.bits()), F(int(data.bits() % 255) - 127)};
    return kind == 2 ? data.value<C>() : C{F(data.bits()), F(data.bits())};
  } else {
    if (kind == 0) return {uniform<F>(data), uniform<F>(data)};
    if (kind == 1) return {uniform<F>(data), std::ldexp(uniform<F>(data), data.below(80) - 40)};
    if (kind == 2) return {of_any_bits<F>(data), of_any_bits<F>(data)};
    const int k     = data.below(8);
    const F   large = F(0.5) + std::fabs(uniform<F>(data));
    const F   small = std::ldexp(large, -k) * (F(1) + std::ldexp(uniform<F>(data), -2 * k));
    return data.below(2) ? C{large, small} : C{-small, large};
  }
}

template <auto* Export, class C, class D> void check_accuracy() {
  source_of_data   data(5);
  std::vector<C>   points(5000);
  constexpr size_t in_all = 1 << 20;
  for (size_t done = 0; done < in_all; done += points.size()) {
    const int kind = data.below(4);
    for (C& p : points) p = some_point<C>(data, kind);
    expect_accurate<Export, D>(points);
    if (testing::Test::HasFatalFailure()) return;
  }
}

// Every pair of values at which the rules of atan2 or the steps of the kernel change.
template <auto* Export, class C> void check_special() {
  using F      = decltype(C::re);
  using limits = std::numeric_limits<F>;
  std::vector<F> values;
  for (F v : {F(0), limits::denorm_min(), limits::min() - limits::denorm_min(), limits::min(), F(0x1p-60), F(0x1p-25),
              F(0.5), F(1), F(1) + limits::epsilon(), F(3), F(0x1p60), limits::max() / 2, limits::max(),
              limits::infinity(), limits::quiet_NaN()})
    values.push_back(v), values.push_back(-v);
  std::vector<C> points;
  for (F re : values)
    for (F im : values) points.push_back({re, im});
  expect_accurate<Export, F>(points);
}

// An array is what its elements are alone, wherever they lie.
template <auto* Export, class C, class D> void check_places() {
  using part = decltype(C::re);
  if constexpr (std::is_invocable_v<decltype(Export), const C*, D*, int>)
    check_layouts<Export, D, C>(
        lengths_around({}, 40), [](D* dst, int len, const C* src) { return call<Export>(src, dst, len); },
        [](std::vector<D>& dst, const std::vector<C>& src) {
          for (size_t i = 0; i < dst.size(); ++i) call<Export>(&src[i], &dst[i], 1);
          return tavStatusOk;
        });
  else
    check_layouts<Export, D, part, part>(
        lengths_around({}, 40),
        [](D* dst, int len, const part* re, const part* im) { return call<Export>(re, im, dst, len); },
        [](std::vector<D>& dst, const std::vector<part>& re, const std::vector<part>& im) {
          for (size_t i = 0; i < dst.size(); ++i) call<Export>(&re[i], &im[i], &dst[i], 1);
          return tavStatusOk;
        });
}

// Always to nearest: the same bits in each mode.
template <auto* Export, class C, class D> void check_modes() {
  source_of_data data(9);
  std::vector<C> points(203);
  for (C& p : points) p = some_point<C>(data, data.below(4));
  points.push_back({0, 0});
  std::vector<D> want, got;
  phase_of<Export>(points, want);
  for (unsigned mode : rounding_modes) {
    {
      const rounding_mode set(mode);
      phase_of<Export>(points, got);
    }
    ASSERT_EQ(first_difference(got, want), -1) << std::hex << mode;
  }
}

template <auto* Export, class C, class D> void check_phase() {
  check_accuracy<Export, C, D>();
  if constexpr (std::is_floating_point_v<decltype(C::re)>) check_special<Export, C>();
  check_places<Export, C, D>();
  check_modes<Export, C, D>();
}

TEST(Phase, As32f) { check_phase<&::tavsPhase_32f, Tav32fc, Tav32f>(); }
TEST(Phase, As64f) { check_phase<&::tavsPhase_64f, Tav64fc, Tav64f>(); }
TEST(Phase, As32fc) { check_phase<&::tavsPhase_32fc, Tav32fc, Tav32f>(); }
TEST(Phase, As64fc) { check_phase<&::tavsPhase_64fc, Tav64fc, Tav64f>(); }
TEST(Phase, As16s32f) { check_phase<&::tavsPhase_16s32f, Tav16sc, Tav32f>(); }
TEST(Phase, As16sc32f) { check_phase<&::tavsPhase_16sc32f, Tav16sc, Tav32f>(); }

TEST(Phase, OfZerosAndInfinities) {
  constexpr Tav32f    inf = std::numeric_limits<Tav32f>::infinity(), pi = 3.14159274f;
  const Tav32fc       points[] = {{0, 0}, {-0.0f, 0}, {0, -0.0f}, {-0.0f, -0.0f}, {inf, inf}, {-inf, inf}, {inf, 1}};
  std::vector<Tav32f> dst(7), want{0, pi, -0.0f, -pi, pi / 4, 2.3561945f, 0};
  EXPECT_EQ(call<&::tavsPhase_32fc>(points, dst.data(), 7), tavStatusOk);
  EXPECT_EQ(first_difference(dst, want), -1);
}

// No division 0 / 0 on the way: a caller who unmasked that exception gets an angle.
TEST(Phase, RaisesNothingForZerosAndInfinities) {
  const Tav64f   inf      = std::numeric_limits<Tav64f>::infinity();
  const Tav64fc  points[] = {{0, 0}, {inf, -inf}, {-inf, 0}, {0, -1}};
  Tav64f         dst[4];
  const unsigned callers = _mm_getcsr(), flags = 0x3F, invalid_or_zero_divisor = 0x05;
  _mm_setcsr(callers & ~flags);
  EXPECT_EQ(call<&::tavsPhase_64fc>(points, dst, 4), tavStatusOk);
  const unsigned raised = _mm_getcsr() & flags;
  _mm_setcsr(callers);
  EXPECT_EQ(raised & invalid_or_zero_divisor, 0u);
}

// In fixed point.

std::vector<int> factors_told() {  // 2 and -29, the first ones outside, aside
  std::vector<int> all{INT_MIN, INT_MIN + 1, -1000, -64, -63, -41, -40, -31, -30, 3, 4, 31, 32, 128, 1000, INT_MAX};
  for (int s = -28; s <= 1; ++s) all.push_back(s);
  return all;
}

const std::vector<int> layout_factors{-13, 1, 0, -28, -60, 7};

template <auto* Export> void check_words() {
  if constexpr (std::is_invocable_v<decltype(Export), const Tav16sc*, Tav16s*, int, int>)
    check_scaled_calls<Export, Tav16s, Tav16sc>(
        [](Tav16s* dst, int len, int s, const Tav16sc* src) { return call<Export>(src, dst, len, s); },
        [](Tav16sc p, Tav16s, int s) { return oracle::fixed_angle<Tav16s>(p.re, p.im, s); }, {factors_told()},
        layout_factors);
  else
    check_scaled_calls<Export, Tav16s, Tav16s, Tav16s>(
        [](Tav16s* dst, int len, int s, const Tav16s* re, const Tav16s* im) {
          return call<Export>(re, im, dst, len, s);
        },
        [](Tav16s re, Tav16s im, Tav16s, int s) { return oracle::fixed_angle<Tav16s>(re, im, s); }, {factors_told()},
        layout_factors);
}

TEST(ScaledPhase, As16s) { check_words<&::tavsPhase_16s_Sfs>(); }
TEST(ScaledPhase, As16sc) { check_words<&::tavsPhase_16sc_Sfs>(); }

void expect_exact(const std::vector<Tav16sc>& points, int s) {
  std::vector<Tav16s> dst(points.size());
  ASSERT_EQ(call<&::tavsPhase_16sc_Sfs>(points.data(), dst.data(), int(points.size()), s), tavStatusOk);
  for (size_t i = 0; i < points.size(); ++i)
    ASSERT_EQ(dst[i], oracle::fixed_angle<Tav16s>(points[i].re, points[i].im, s))
        << "(" << points[i].re << ", " << points[i].im << "), factor " << s;
}

TEST(ScaledPhase, ManyPointsOf16sc) {
  source_of_data       data(31);
  std::vector<Tav16sc> points(40000);
  for (int s = -28; s <= 1; ++s) {
    for (Tav16sc& p : points) p = some_point<Tav16sc>(data, data.below(3));
    expect_exact(points, s);
  }
}

// The pairs and factors that come nearest to a tie, the first of all within 2^-48 of its size; and some whose angle in
// single precision lies on the wrong side. In each lane among points that are clear, and with the sign turned.
TEST(ScaledPhase, NextToTies) {
  struct {
    Tav16sc point;
    int     s;
  } const rows[] = {{{21301, 13341}, -14}, {{-25399, 161}, -10}, {{-19426, 135}, -12}, {{-15838, 111}, -13},
                    {{307, 165}, -9},      {{20989, 5313}, -12}, {{31057, 7886}, -16}, {{22543, 11489}, -16},
                    {{27274, 14480}, -14}, {{31980, 17176}, -15}};
  for (const auto& row : rows)
    for (size_t lane = 0; lane < 8; ++lane)
      for (int sign : {1, -1}) {
        std::vector<Tav16sc> points(8, Tav16sc{100, 3});
        points[lane] = {row.point.re, Tav16s(sign * row.point.im)};
        expect_exact(points, row.s);
      }
}

TEST(ScaledPhase, InAnyRoundingMode) {
  source_of_data       data(37);
  std::vector<Tav16sc> words = data.values<Tav16sc>(100);
  std::vector<Tav32sc> longs = data.values<Tav32sc>(100);
  std::vector<Tav16s>  word_angles(100);
  std::vector<Tav32s>  long_angles(100), want(100);
  ASSERT_EQ(call<&::tavsPhase_32sc_Sfs>(longs.data(), want.data(), 100, -28), tavStatusOk);
  for (unsigned mode : rounding_modes) {
    {
      const rounding_mode set(mode);
      ASSERT_EQ(call<&::tavsPhase_16sc_Sfs>(words.data(), word_angles.data(), 100, -12), tavStatusOk);
      ASSERT_EQ(call<&::tavsPhase_32sc_Sfs>(longs.data(), long_angles.data(), 100, -28), tavStatusOk);
    }
    for (size_t i = 0; i < 100; ++i)
      ASSERT_EQ(word_angles[i], oracle::fixed_angle<Tav16s>(words[i].re, words[i].im, -12)) << std::hex << mode;
    ASSERT_EQ(long_angles, want) << std::hex << mode;
  }
}

// 32 bits of a double's 53 leave room for a result on the other side of a tie, but only next to one.
void expect_nearest(const std::vector<Tav32sc>& points, int s) {
  std::vector<Tav32s> dst(points.size());
  ASSERT_EQ(call<&::tavsPhase_32sc_Sfs>(points.data(), dst.data(), int(points.size()), s), tavStatusOk);
  for (size_t i = 0; i < points.size(); ++i) {
    const long double re = points[i].re, im = points[i].im, exact = oracle::scaled_angle(re, im, s);
    const bool        at_tie = fabsl(fabsl(exact - rintl(exact)) - 0.5L) <= fabsl(exact) * 0x1p-50L;
    if (at_tie && fabsl(dst[i] - exact) < 0.51L) continue;
    ASSERT_EQ(dst[i], oracle::fixed_angle<Tav32s>(re, im, s)) << "(" << re << ", " << im << "), factor " << s;
  }
}

TEST(ScaledPhase, ManyPointsOf32sc) {
  source_of_data       data(41);
  std::vector<Tav32sc> points(10000);
  for (int s : factors_told()) {
    for (Tav32sc& p : points) p = data.below(2) ? of_any_magnitude<Tav32sc>(data) : data.value<Tav32sc>();
    expect_nearest(points, s);
  }
  for (int s = -62; s <= -29; ++s) expect_nearest(points, s);  // here the exact rule goes on
}

TEST(ScaledPhase, PlacesOf32sc) {
  for (int s : layout_factors)
    check_layouts<&::tavsPhase_32sc_Sfs, Tav32s, Tav32sc>(
        scaled_lengths,
        [s](Tav32s* dst, int len, const Tav32sc* src) { return call<&::tavsPhase_32sc_Sfs>(src, dst, len, s); },
        [s](std::vector<Tav32s>& dst, const std::vector<Tav32sc>& src) {
          for (size_t i = 0; i < dst.size(); ++i) call<&::tavsPhase_32sc_Sfs>(&src[i], &dst[i], 1, s);
          return tavStatusOk;
        });
}

}  // namespace

#define CASE(form) TAV_FAULTS(Phase_##form, pointers_then_length)
CASE(16s32f)
CASE(16sc32f)
CASE(32f)
CASE(32fc)
CASE(64f)
CASE(64fc)
#undef CASE

#define CASE(form) TAV_FAULTS(Phase_##form##_Sfs, pointers_then_length_scaled)
CASE(16s)
CASE(16sc)
CASE(32sc)
#undef CASE
