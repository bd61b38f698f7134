// Cascades on integers: rounding, saturation and the scale factor, output by output, by filters that compute exactly.
#include "filter/biquad_forms.h"

#include <fenv.h>

#include "harness/faults.h"

using namespace test;

namespace {

template <class F> class BiquadNarrow : public testing::Test {};
using narrow_forms = testing::Types<bq32f_16s, bq32fc_16sc, bq64f_16s, bq64fc_16sc, bq64f_32s, bq64fc_32sc, bq32s_16s,
                                    bq32sc_16sc, bq32s_16s32f, bq32sc_16sc32fc>;
TYPED_TEST_SUITE(BiquadNarrow, narrow_forms, biquad_form_names);

template <class F> inline constexpr bool cuts = std::is_same_v<typename F::arithmetic, Tav32f>;

// v * 2^-s, s taken as the calls take it: rounded to even or cut off, and saturated.
template <class P, class A> P stored(double v, int s, bool cut) {
  const int    by     = s >= 0 ? s % 128 : -(int(-(long long)s % 128));
  const double scaled = by == 127 && sizeof(A) == 4 ? 0 : ldexp(v, -by);
  const double most   = std::numeric_limits<P>::max();
  return P(fmax(fmin(cut ? trunc(scaled) : rint(scaled), most), -most - 1));
}

// Sections that pass samples on: the first one halves them.
template <class F> std::vector<typename F::tap> halving(int sections) {
  std::vector<typename F::tap> taps;
  for (int s = 0; s < sections; ++s)
    for (double v : {s == 0 ? 0.5 : 1.0, 0.0, 0.0, 1.0, 0.0, 0.0})
      taps.push_back(narrowed<typename F::tap>({(long double)v * (converts_taps<F> ? 1 << biquad_taps_factor : 1)}));
  return taps;
}

template <class F> void check_rounding(int sections, int len, int s, bool by_one) {
  using D = typename F::sample;
  using P = part_of<D>;
  source_of_data        data{uint32_t(len + s)};
  const biquad_state<F> state(halving<F>(sections));
  std::vector<D>        x(size_t(len), D{}), y = x;
  const auto            value = [&] {  // of a size that the factor brings near the ends, and small ones
    const int bits = int(sizeof(P)) * 8 - 1;
    return P(data.value<P>() >> (data.below(2) ? 0 : data.below(bits)));
  };
  for (D& v : x) {
    if constexpr (is_pair<D>)
      v = {value(), value()};
    else
      v = value();
  }
  if (by_one)
    for (size_t i = 0; i < x.size(); ++i) ASSERT_EQ(call<F::one>(x[i], &y[i], state.get(), s), tavStatusOk);
  else
    ASSERT_EQ((filter_biquads<F>(x.data(), y.data(), len, state.get(), s)), tavStatusOk);
  for (int i = 0; i < len; ++i) {
    const int  of_block = std::min(1024, len - i / 1024 * 1024);
    const bool cut      = cuts<F> && !by_one && of_block > 4 * sections && i % 1024 < 2;
    const auto want     = [&](P v) { return stored<P, part_of<typename F::arithmetic>>(v * 0.5, s, cut); };
    const auto where    = [&] {
      return testing::Message() << "output " << i << " of " << len << ", " << sections << " sections, factor " << s;
    };
    if constexpr (is_pair<D>) {
      ASSERT_EQ(y[size_t(i)].re, want(x[size_t(i)].re)) << where();
      ASSERT_EQ(y[size_t(i)].im, want(x[size_t(i)].im)) << where();
    } else {
      ASSERT_EQ(y[size_t(i)], want(x[size_t(i)])) << where() << " of " << x[size_t(i)];
    }
  }
}

const int factors[] = {
    0, 1, 2, 5, 15, 16, 31, 100, 126, 127, 128, 129, 2147483647, -1, -2, -15, -31, -100, -127, -128, -2147483647 - 1};

TYPED_TEST(BiquadNarrow, EveryOutputIsRoundedAsItsPlaceTells) {
  for (int sections : {1, 2, 3})
    for (int len : {1, 2, 3, 4, 5, 8, 9, 12, 13, 30, 1023, 1024, 1025, 1028, 1029, 1033, 2048, 2100})
      for (int s : {0, 1, -1}) {
        check_rounding<TypeParam>(sections, len, s, false);
        if (testing::Test::HasFatalFailure()) return;
      }
}

TYPED_TEST(BiquadNarrow, ScaleFactors) {
  for (int s : factors)
    for (bool by_one : {false, true}) {
      check_rounding<TypeParam>(1, 40, s, by_one);
      check_rounding<TypeParam>(3, 11, s, by_one);
      if (testing::Test::HasFatalFailure()) return;
    }
}

TYPED_TEST(BiquadNarrow, TheCallersRoundingModeDoesNotShow) {
  for (int mode : {FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO}) {
    const uint32_t before = _mm_getcsr();
    for (int len : {3, 40}) {
      // Only the library may run in that mode.
      using F = TypeParam;
      source_of_data        data(2);
      const auto            taps = halving<F>(1);
      const biquad_state<F> plain(taps), other(taps);
      const auto            x = noise<F>(size_t(len), data);
      auto                  a = x, b = x;
      const auto            run = [&](auto& y, const biquad_state<F>& state) {
        const TavStatus block = filter_biquads<F>(x.data(), y.data(), len - 1, state.get(), 1);
        return block == tavStatusOk ? call<F::one>(x[size_t(len) - 1], &y[size_t(len) - 1], state.get(), 1) : block;
      };
      ASSERT_EQ(run(a, plain), tavStatusOk);
      fesetround(mode);
      const TavStatus status = run(b, other);
      _mm_setcsr(before);
      fesetround(FE_TONEAREST);
      ASSERT_EQ(status, tavStatusOk);
      ASSERT_EQ(first_difference(a, b), -1) << "mode " << mode;
    }
  }
}

}  // namespace
