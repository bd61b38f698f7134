// tavsDiv of integers: every pair of bytes, 16-bit operands nearest to ties, all factors, the values over zero.
#include "harness/division.h"

using namespace test;
using namespace oracle;

namespace {

template <auto* Apart, auto* InPlace, class T> void check_all_factors(const division& range) {
  source_of_data data(61);
  for (int s : factors_of(range)) {
    SCOPED_TRACE(testing::Message() << "factor " << s);
    auto o = hard_operands<T>(s, data);
    if (sizeof(T) == 2 && s % 4 == 0) add_all_dividends(o, data);
    const auto want = [&](T b, T a) { return range.of<T>(a, b, s); };
    each_build<Apart>([&] {
      expect_quotients<T>(
          o, [&](auto b, auto a, T* d, int n) { return call<Apart>(b, a, d, n, s); }, want);
    });
    each_build<InPlace>([&] {
      expect_quotients<T>(
          o,
          [&](auto b, auto a, T* d, int n) {
            std::copy(a, a + n, d);
            return call<InPlace>(b, d, n, s);
          },
          want);
    });
    if (testing::Test::HasFatalFailure()) return;
  }
}

template <auto* Apart, auto* InPlace, class T, class Want> void check_layouts_at(int s, const Want& want) {
  const auto at_s = [&](T b, T a) { return want(b, a, s); };
  check_division_layouts<Apart, T, T, T>([&](auto b, auto a, T* d, int n) { return call<Apart>(b, a, d, n, s); }, at_s);
  check_division_in_place<InPlace, T, T>([&](auto b, T* d, int n) { return call<InPlace>(b, d, n, s); }, at_s);
}

template <auto* Apart, auto* InPlace, class T> void check_integers(const division& range) {
  check_all_factors<Apart, InPlace, T>(range);
  for (int s : {0, 2, -9, range.low - 1, range.high + 1})
    check_layouts_at<Apart, InPlace, T>(s, [&](T b, T a, int at) { return range.of<T>(a, b, at); });
}

TEST(Div, As8u) { check_integers<&::tavsDiv_8u_Sfs, &::tavsDiv_8u_ISfs, Tav8u>(div_8u); }
TEST(Div, As16s) { check_integers<&::tavsDiv_16s_Sfs, &::tavsDiv_16s_ISfs, Tav16s>(div_16s); }
TEST(Div, As16u) { check_integers<&::tavsDiv_16u_Sfs, &::tavsDiv_16u_ISfs, Tav16u>(div_16u); }

TEST(Div, As32s16s) {
  source_of_data data(62);
  const auto     at      = [](int s) { return [s](Tav16s b, Tav32s a) { return div_32s16s.of<Tav16s>(a, b, s); }; };
  const auto     call_at = [](int s) {
    return [s](auto b, auto a, Tav16s* d, int n) { return call<&::tavsDiv_32s16s_Sfs>(b, a, d, n, s); };
  };
  for (int s : factors_of(div_32s16s)) {
    SCOPED_TRACE(testing::Message() << "factor " << s);
    operands<Tav16s, Tav32s> o;
    add_drawn(o, 20000, data);
    for (int i = 0; i < 20000 && s >= 0 && s < 40; ++i) {  // ties and next to them
      const int64_t d = 1 + data.below(32767), unit = d << s;
      if (unit > INT64_C(1) << 33) continue;
      const int64_t n = (2 * (data.below(65536) >> data.below(16)) + 1) * unit;
      if (n / 2 < INT32_MAX) o.add(with_sign<Tav16s>(d, data), with_sign<Tav32s>(n / 2 + data.below(2), data));
    }
    each_build<&::tavsDiv_32s16s_Sfs>([&] { expect_quotients<Tav16s>(o, call_at(s), at(s)); });
    if (HasFatalFailure()) return;
  }
  for (int s : {0, 15, -9}) check_division_layouts<&::tavsDiv_32s16s_Sfs, Tav16s, Tav32s, Tav16s>(call_at(s), at(s));
}

TEST(Div, As32s) {
  source_of_data data(63);
  for (int s : factors_of(div_32s)) {
    SCOPED_TRACE(testing::Message() << "factor " << s);
    operands<Tav32s, Tav32s> o;
    add_drawn(o, 20000, data);
    for (int i = 0; i < 20000; ++i)
      o.add(with_sign<Tav32s>(1 + data.below(1 << data.below(31)), data), data.value<Tav32s>());
    for (int i = 0; i < 20000 && s >= 0; ++i) {  // ties and next to them
      const int64_t d = 1 + data.below(1 << data.below(20)), odd = 2 * data.below(1 << data.below(20)) + 1;
      if (s <= 24 && (odd * d << s) / 2 < INT32_MAX)
        o.add(with_sign<Tav32s>(d, data), with_sign<Tav32s>((odd * d << s) / 2 + data.below(2), data));
    }
    each_build<&::tavsDiv_32s_Sfs>([&] {
      expect_quotients<Tav32s>(
          o, [&](auto b, auto a, Tav32s* d, int n) { return call<&::tavsDiv_32s_Sfs>(b, a, d, n, s); },
          [&](Tav32s b, Tav32s a) { return quotient_32s(a, b, s); });
    });
    if (HasFatalFailure()) return;
  }
  for (int s : {0, 3, -40})
    check_layouts_at<&::tavsDiv_32s_Sfs, &::tavsDiv_32s_ISfs, Tav32s>(
        s, [](Tav32s b, Tav32s a, int at) { return quotient_32s(a, b, at); });
}

TEST(Div, As16sc) {
  source_of_data data(64);
  for (int s : factors_of(div_16sc)) {
    SCOPED_TRACE(testing::Message() << "factor " << s);
    operands<Tav16sc, Tav16sc> o;
    add_drawn(o, 20000, data);
    for (int re : {-32768, -32767, -1, 0, 1, 32767})
      for (int im : {-32768, -32767, -1, 0, 1, 32767})
        for (Tav16s v : {-32768, 0, 32767, 1}) o.add({Tav16s(re), Tav16s(im)}, {v, Tav16s(im)});
    for (int i = 0; i < 5000; ++i) {  // short divisors: many ties
      const auto part = [&] { return Tav16s(data.below(17) - 8); };
      o.add({part(), part()}, data.value<Tav16sc>());
    }
    each_build<&::tavsDiv_16sc_Sfs>([&] {
      expect_quotients<Tav16sc>(
          o, [&](auto b, auto a, Tav16sc* d, int n) { return call<&::tavsDiv_16sc_Sfs>(b, a, d, n, s); },
          [&](Tav16sc b, Tav16sc a) { return div_16sc.of(a, b, s); });
    });
    if (HasFatalFailure()) return;
  }
  for (int s : {0, 2, -9})
    check_layouts_at<&::tavsDiv_16sc_Sfs, &::tavsDiv_16sc_ISfs, Tav16sc>(
        s, [](Tav16sc b, Tav16sc a, int at) { return div_16sc.of(a, b, at); });
}

template <auto* Export, class D, class A, class B>
void expect_one(A divisor, B dividend, int s, D quotient, TavStatus status = tavStatusOk) {
  each_build<Export>([&] {
    D q{};
    EXPECT_EQ(call<Export>(&divisor, &dividend, &q, 1, s), status);
    EXPECT_TRUE(same(q, quotient)) << "factor " << s;
  });
}

TEST(Div, SingleValues) {
  const auto of_16s = expect_one<&::tavsDiv_16s_Sfs, Tav16s, Tav16s, Tav16s>;
  of_16s(2, 7, 0, 4, tavStatusOk);
  of_16s(2, 5, 0, 2, tavStatusOk);
  of_16s(-21663, 25069, -9, -593, tavStatusOk);
  of_16s(0, -1, 16, -32768, tavStatusWarnDivideByZero);
  const auto of_16u = expect_one<&::tavsDiv_16u_Sfs, Tav16u, Tav16u, Tav16u>;
  of_16u(747, 57430, -8, 19681, tavStatusOk);
  of_16u(0, 0, 0, 0, tavStatusWarnDivideByZero);
  expect_one<&::tavsDiv_32s_Sfs, Tav32s, Tav32s, Tav32s>(-53691661, 169577318, -29, -1695628850);
  expect_one<&::tavsDiv_16sc_Sfs, Tav16sc, Tav16sc, Tav16sc>({32767, -32768}, {1, 1}, -33, {-32768, 32767});
  expect_one<&::tavsDiv_16sc_Sfs, Tav16sc, Tav16sc, Tav16sc>({0, 0}, {-5, 0}, 0, {-32768, 0},
                                                             tavStatusWarnDivideByZero);
}

TEST(Div, InAnyModeOfTheCaller) {
  in_hostile_modes([] {
    const Tav16s b16[3] = {2, 0, -3};
    const Tav16s a16[3] = {7, 1, 7};
    Tav16s       q16[3];
    for (int s : {0, -12}) {
      EXPECT_EQ(call<&::tavsDiv_16s_Sfs>(b16, a16, q16, 3, s), tavStatusWarnDivideByZero);
      EXPECT_EQ(q16[0], s == 0 ? 4 : 14336);
      EXPECT_EQ(q16[2], s == 0 ? -2 : -9557);
    }
    const Tav32s b32[2] = {2, 0}, a32[2] = {-7, 1};
    Tav32s       q32[2];
    EXPECT_EQ(call<&::tavsDiv_32s_Sfs>(b32, a32, q32, 2, 0), tavStatusWarnDivideByZero);
    EXPECT_EQ(q32[0], -4);
    const Tav16sc bc[1] = {{2, 0}}, ac[1] = {{7, -7}};
    Tav16sc       qc[1];
    EXPECT_EQ(call<&::tavsDiv_16sc_Sfs>(bc, ac, qc, 1, 0), tavStatusOk);
    EXPECT_EQ(qc[0].re, 4);
    EXPECT_EQ(qc[0].im, -4);
  });
}

}  // namespace

TAV_FAULTS(Div_8u_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Div_8u_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Div_16s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Div_16s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Div_16u_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Div_16u_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Div_16sc_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Div_16sc_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Div_32s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Div_32s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Div_32s16s_Sfs, pointers_then_length_scaled)
