// Cascades of biquads in transposed direct form 2: every form against the definition, in any split of a stream.
#include "filter/biquad_checks.h"

#include <fenv.h>

#include "harness/tavcore_fake.h"

using namespace test;

namespace {

template <class F> class Biquad : public testing::Test {};
TYPED_TEST_SUITE(Biquad, biquad_forms, biquad_form_names);

constexpr int scale = 1;  // of outputs in integers

// An output against what it should be, which may be off by `error`; without rounding to nearest by 1 more.
template <class F> void expect_near(part_of<typename F::sample> got, long double want, long double error, bool cut) {
  using P = part_of<typename F::sample>;
  if constexpr (takes_scale<F>) {
    const long double scaled = want / (1 << scale), most = std::numeric_limits<P>::max();
    const long double clipped = fmaxl(fminl(scaled, most), -most - 1);
    EXPECT_LE(fabsl((long double)got - clipped), error / (1 << scale) + (cut ? 1 : 0.5L) + 1e-9L);
  } else {
    EXPECT_LE(fabsl((long double)got - want), error + fabsl(want) * std::numeric_limits<P>::epsilon() / 2);
  }
}

// In the forms in real singles with 16-bit samples the first two outputs of a block by look-ahead are cut off.
template <class F> inline constexpr bool cuts = takes_scale<F>&& std::is_same_v<typename F::arithmetic, Tav32f>;

// A stream through a state and through the definition, in calls of lengths and kinds as they come.
template <class F> void check_stream(int sections, double radius, uint32_t seed) {
  source_of_data         data(seed);
  const auto             taps = stable_taps<F>(sections, radius, data);
  const biquad_state<F>  state(taps);
  oracle::cascade        wanted = definition<F>(taps);
  constexpr int          total  = 5000;
  const auto             x      = noise<F>(total, data);
  auto                   y      = x;
  const int              n4     = 4 * sections;
  const std::vector<int> lengths{1, 2, 3, 4, 5, 7, n4 - 1, n4, n4 + 1, n4 + 2, 64, 1023, 1024, 1025, 1029};
  const long double      peak =
      takes_scale<F> ? sizeof(x[0]) / sizeof(part_of<typename F::sample>) == 2 ? 3e4L : 2e4L : 1.5L;
  const long double top   = takes_scale<F> && sizeof(part_of<typename F::sample>) == 4 ? 1.5e9L : peak;
  const long double error = oracle::error_bound(wanted, top, total, epsilon_of<F>);
  for (int i = 0; i < total;) {
    const int len  = std::min(lengths[size_t(data.below(int(lengths.size())))], total - i);
    const int kind = data.below(3);
    SCOPED_TRACE(testing::Message() << sections << " sections, radius " << radius << ", call of kind " << kind << " on "
                                    << len << " from " << i << ", error up to " << double(error));
    if (kind == 2 && len < 50)
      for (int k = i; k < i + len; ++k)
        ASSERT_EQ((with_scale<F::one, F>(scale, x[size_t(k)], &y[size_t(k)], state.get())), tavStatusOk);
    else if (kind == 1)
      ASSERT_EQ((filter_biquads<F>(x.data() + i, y.data() + i, len, state.get(), scale)), tavStatusOk);
    else
      ASSERT_EQ((filter_biquads<F>(y.data() + i, y.data() + i, len, state.get(), scale)), tavStatusOk);
    for (int k = 0; k < len; ++k) {
      const auto want = wanted.next(widened(x[size_t(i + k)]));
      const auto got  = y[size_t(i + k)];
      const bool cut  = cuts<F> && k % 1024 < 2;
      if constexpr (is_pair<typename F::sample>)
        expect_near<F>(got.re, want.re, error, cut), expect_near<F>(got.im, want.im, error, cut);
      else
        expect_near<F>(got, want.re, error, cut);
      if (testing::Test::HasFailure()) FAIL() << "sample " << k;
    }
    i += len;
  }
}

TYPED_TEST(Biquad, AnySplitOfAStreamIsTheDefinition) {
  uint32_t seed = 1;
  for (int sections = 1; sections <= 10; ++sections)
    for (double radius : {0.5, 0.9, 0.99}) {
      check_stream<TypeParam>(sections, radius, ++seed);
      if (testing::Test::HasFailure()) return;
    }
}

TYPED_TEST(Biquad, LayoutsAgree) {
  check_biquad_layouts<TypeParam>({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 13, 14, 15, 17, 1030}, 5);
}

// Another state that is given the delay line goes on as this one does; taps given to it later leave the line.
TYPED_TEST(Biquad, DelayLineGoesFromStateToState) {
  using F = TypeParam;
  using D = typename F::sample;
  source_of_data data(9);
  for (int sections : {1, 3, 6})
    for (int len : {1, 2, 3, 30}) {
      const auto               taps = stable_taps<F>(sections, 0.9, data), others = stable_taps<F>(sections, 0.7, data);
      const auto               x = noise<F>(60, data);
      std::vector<D>           a(x.size()), b(x.size());
      std::vector<delay_of<F>> line(size_t(2 * sections));
      const biquad_state<F>    first(taps);
      const typename F::state* source = first.get();
      ASSERT_EQ((filter_biquads<F>(x.data(), a.data(), len, first.get(), 0)), tavStatusOk);
      ASSERT_EQ(call<F::get_delay>(source, line.data()), tavStatusOk);

      const biquad_state<F> by_init(others, line.data()), by_call(others);
      ASSERT_EQ(call<F::set_delay>(by_call.get(), static_cast<const delay_of<F>*>(line.data())), tavStatusOk);
      for (auto* state : {by_init.get(), by_call.get()}) {
        ASSERT_EQ(set_biquads<F>(taps.data(), state), tavStatusOk);
        std::vector<delay_of<F>> seen(line.size());
        ASSERT_EQ(call<F::get_delay>(static_cast<const typename F::state*>(state), seen.data()), tavStatusOk);
        ASSERT_EQ(first_difference(seen, line), -1);
      }
      ASSERT_EQ((filter_biquads<F>(x.data(), a.data(), 60, first.get(), 0)), tavStatusOk);
      for (auto* state : {by_init.get(), by_call.get()}) {
        ASSERT_EQ((filter_biquads<F>(x.data(), b.data(), 60, state, 0)), tavStatusOk);
        ASSERT_EQ(first_difference(a, b), -1);
      }
      // Without an array the line is cleared: a fresh start.
      ASSERT_EQ(call<F::set_delay>(first.get(), static_cast<const delay_of<F>*>(nullptr)), tavStatusOk);
      ASSERT_EQ((filter_biquads<F>(x.data(), a.data(), 60, first.get(), 0)), tavStatusOk);
      ASSERT_EQ((filter_biquads<F>(x.data(), b.data(), 60, biquad_state<F>(taps).get(), 0)), tavStatusOk);
      ASSERT_EQ(first_difference(a, b), -1);
    }
}

// Numbers that every step holds exactly: outputs and delay line are those of the definition, bit for bit.
TYPED_TEST(Biquad, DelayLineIsThatOfTheTransposedForm) {
  using F = TypeParam;
  using T = typename F::tap;
  for (int len : {1, 2, 3, 4, 5, 6, 7, 9, 10}) {
    std::vector<T> taps;
    for (double v : {2.0, 1.0, -4.0, 2.0, 1.0, -1.0, 4.0, -2.0, 2.0, 4.0, -2.0, 4.0})
      taps.push_back(narrowed<T>({(long double)v * (converts_taps<F> ? 1 << biquad_taps_factor : 1)}));
    oracle::cascade                 wanted = definition<F>(taps);
    const biquad_state<F>           state(taps);
    std::vector<typename F::sample> x;
    for (int i = 0; i < len; ++i) x.push_back(narrowed<typename F::sample>({(long double)(8 * (i * 7 % 5 - 1)), 16}));
    auto y = x;
    ASSERT_EQ((filter_biquads<F>(x.data(), y.data(), len, state.get(), 0)), tavStatusOk);
    for (const auto& v : x) wanted.next(widened(v));
    const auto line = state.delay(4);
    for (size_t s = 0; s < 2; ++s) {
      const oracle::wide want[] = {wanted.sections[s].d0, wanted.sections[s].d1};
      for (size_t k = 0; k < 2; ++k) {
        const oracle::wide got = widened(line[2 * s + k]);
        EXPECT_TRUE(got.re == want[k].re && got.im == want[k].im)
            << len << " samples, section " << s << ", entry " << k << ": " << double(got.re) << ", not "
            << double(want[k].re);
      }
    }
  }
}

TYPED_TEST(Biquad, NewTapsInTheMiddleOfAStream) {
  using F = TypeParam;
  source_of_data        data(17);
  const auto            taps = stable_taps<F>(3, 0.9, data), others = stable_taps<F>(3, 0.8, data);
  const auto            x      = noise<F>(400, data);
  auto                  y      = x;
  oracle::cascade       wanted = definition<F>(taps), next = definition<F>(others);
  const biquad_state<F> state(taps);
  const long double     peak = !takes_scale<F> ? 1.5 : sizeof(part_of<typename F::sample>) == 4 ? 1.5e9 : 3e4;
  const long double     error =
      20
      * (oracle::error_bound(wanted, peak, 400, epsilon_of<F>) + oracle::error_bound(next, peak, 400, epsilon_of<F>));
  ASSERT_EQ((filter_biquads<F>(x.data(), y.data(), 200, state.get(), scale)), tavStatusOk);
  ASSERT_EQ(set_biquads<F>(others.data(), state.get()), tavStatusOk);
  ASSERT_EQ((filter_biquads<F>(x.data() + 200, y.data() + 200, 200, state.get(), scale)), tavStatusOk);
  for (size_t i = 0; i < 400; ++i) {
    if (i == 200)
      for (size_t s = 0; s < 3; ++s)
        next.sections[s].d0 = wanted.sections[s].d0, next.sections[s].d1 = wanted.sections[s].d1;
    const auto want = (i < 200 ? wanted : next).next(widened(x[i]));
    const bool cut  = cuts<F> && i % 200 < 2;
    if constexpr (is_pair<typename F::sample>)
      expect_near<F>(y[i].re, want.re, error, cut), expect_near<F>(y[i].im, want.im, error, cut);
    else
      expect_near<F>(y[i], want.re, error, cut);
  }
}

// An unstable section: it would have overflowed one sample behind the end of the block.
TEST(BiquadBlock, NothingBehindTheBlockShows) {
  const std::vector<Tav32f>  taps{1, 0, 0, 1, -4e9f, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0};
  const biquad_state<bq_32f> state(taps);
  const Tav32f               x[3] = {0, 0, 1e20f};
  Tav32f                     y[3] = {};
  ASSERT_EQ(call<&tavsIIR_32f>(x, y, 3, state.get()), tavStatusOk);
  EXPECT_TRUE(y[0] == 0 && y[1] == 0 && y[2] == 1e20f) << y[2];
}

// Filters on floats compute in the caller's rounding mode.
TYPED_TEST(Biquad, TheCallersRoundingModeCounts) {
  using F = TypeParam;
  if constexpr (!takes_scale<F>) {
    const std::vector<typename F::tap>    taps{narrowed<typename F::tap>({1 / 3.0L}), {}, {},
                                            narrowed<typename F::tap>({1}),        {}, {}};
    const auto                            value = narrowed<typename F::sample>({1 / 7.0L});
    const std::vector<typename F::sample> x(20, value);
    auto                                  low = x, high = x;
    for (auto [mode, y] : {std::pair{FE_DOWNWARD, &low}, {FE_UPWARD, &high}}) {
      const biquad_state<F> state(taps);
      fesetround(mode);
      const TavStatus block = filter_biquads<F>(x.data(), y->data(), 19, state.get(), 0);
      const TavStatus one   = call<F::one>(value, &y->back(), state.get());
      fesetround(FE_TONEAREST);
      ASSERT_TRUE(block == tavStatusOk && one == tavStatusOk);
    }
    for (size_t i = 0; i < x.size(); ++i) EXPECT_LT(widened(low[i]).re, widened(high[i]).re) << i;
  }
}

}  // namespace
