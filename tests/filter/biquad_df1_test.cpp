// Cascades in direct form 1: singles, and doubles on 32-bit integers.
#include "filter/biquad_checks.h"
#include "harness/tavcore_fake.h"

using namespace test;

namespace {

struct df1_32f : bq_32f {
  static constexpr char name[]     = "_BiQuad_DF1_32f";
  static constexpr auto get_size   = &tavsIIRGetStateSize_BiQuad_DF1_32f;
  static constexpr auto init       = &tavsIIRInit_BiQuad_DF1_32f;
  static constexpr auto init_alloc = &tavsIIRInitAlloc_BiQuad_DF1_32f;
};
struct df1_64f_32s : bq64f_32s {
  static constexpr char name[]     = "64f_BiQuad_DF1_32s";
  static constexpr auto get_size   = &tavsIIRGetStateSize64f_BiQuad_DF1_32s;
  static constexpr auto init       = &tavsIIRInit64f_BiQuad_DF1_32s;
  static constexpr auto init_alloc = &tavsIIRInitAlloc64f_BiQuad_DF1_32s;
  static constexpr auto get_delay  = &tavsIIRGetDlyLine64f_DF1_32s;
  static constexpr auto set_delay  = &tavsIIRSetDlyLine64f_DF1_32s;
};

template <class F> class BiquadDf1 : public testing::Test {};
using df1_forms = testing::Types<df1_32f, df1_64f_32s>;
TYPED_TEST_SUITE(BiquadDf1, df1_forms, biquad_form_names);

// The definition, with its memory as the delay line tells: x[n-2], x[n-1], y[n-2], y[n-1] of each section.
template <class F>
oracle::cascade definition_from(const std::vector<typename F::tap>& taps, const std::vector<delay_of<F>>& line) {
  oracle::cascade c = definition<F>(taps);
  for (size_t i = 0; i < c.sections.size(); ++i) {
    oracle::section&   s = c.sections[i];
    const oracle::wide x2{line[4 * i]}, x1{line[4 * i + 1]}, y2{line[4 * i + 2]}, y1{line[4 * i + 3]};
    s.d0 = s.b1 * x1 + s.b2 * x2 - s.a1 * y1 - s.a2 * y2;
    s.d1 = s.b2 * x1 - s.a2 * y1;
  }
  return c;
}

template <class F> void expect_near(typename F::sample got, long double want, long double error) {
  if constexpr (takes_scale<F>) {
    const long double clipped = fmaxl(fminl(want / 2, 2147483647.0L), -2147483648.0L);
    EXPECT_LE(fabsl((long double)got - clipped), error + 0.5L + 1e-9L);
  } else {
    EXPECT_LE(fabsl((long double)got - want), error);
  }
}

// From any delay line, whose sections need not agree with one another, in blocks of any lengths.
template <class F> void check_stream(int sections, double radius, uint32_t seed) {
  source_of_data           data(seed);
  const auto               taps = stable_taps<F>(sections, radius, data);
  const long double        peak = takes_scale<F> ? 1e9 : 1;
  std::vector<delay_of<F>> line(size_t(4 * sections));
  for (auto& v : line) v = delay_of<F>(peak * (double(int32_t(data.bits())) / 2147483648.0));
  const biquad_state<F> state(taps, line.data());
  oracle::cascade       wanted = definition_from<F>(taps, line);
  constexpr int         total  = 4000;
  const auto            x      = noise<F>(total, data);
  auto                  y      = x;
  const long double     error  = 2 * oracle::error_bound(wanted, peak, total, epsilon_of<F>);
  for (int i = 0; i < total;) {
    const int   lengths[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 100, 1023, 1024, 1025, 2050};
    const int   len       = std::min(lengths[data.below(14)], total - i);
    const int   from      = data.below(2) ? 0 : i;  // in place, or from x
    const auto* src       = from ? x.data() + i : y.data() + i;
    ASSERT_EQ((filter_biquads<F>(src, y.data() + i, len, state.get(), 1)), tavStatusOk);
    for (int k = i; k < i + len; ++k) {
      expect_near<F>(y[size_t(k)], wanted.next(widened(x[size_t(k)])).re, error);
      if (testing::Test::HasFailure())
        FAIL() << sections << " sections, radius " << radius << ", " << len << " samples from " << i << ", number "
               << k - i;
    }
    i += len;
  }
}

TYPED_TEST(BiquadDf1, AnySplitOfAStreamIsTheDefinition) {
  uint32_t seed = 100;
  for (int sections = 1; sections <= 10; ++sections)
    for (double radius : {0.5, 0.9, 0.99}) {
      check_stream<TypeParam>(sections, radius, ++seed);
      if (testing::Test::HasFailure()) return;
    }
}

// The line holds the last two inputs and outputs of each section.
TYPED_TEST(BiquadDf1, DelayLine) {
  using F = TypeParam;
  const std::vector<typename F::tap> taps{2, 1, -4, 2, 1, -1, 4, -2, 2, 4, -2, 4};
  for (int len = 1; len <= 11; ++len) {
    std::vector<delay_of<F>>        line{16, -8, 32, 64, -32, 8, 16, 24};
    const biquad_state<F>           state(taps, line.data());
    oracle::cascade                 wanted = definition_from<F>(taps, line);
    std::vector<typename F::sample> x, y;
    for (int i = 0; i < len; ++i) {
      x.push_back(typename F::sample(8 * (i * 7 % 5 - 1)));
      delay_of<F> v = delay_of<F>(x.back());
      for (size_t s = 0; s < 2; ++s) {
        const auto out = delay_of<F>(wanted.sections[s].next({v}).re);
        line[4 * s] = line[4 * s + 1], line[4 * s + 1] = v;
        line[4 * s + 2] = line[4 * s + 3], line[4 * s + 3] = out;
        v = out;
      }
    }
    y = x;
    ASSERT_EQ((filter_biquads<F>(x.data(), y.data(), len, state.get(), 0)), tavStatusOk);
    EXPECT_EQ(first_difference(state.delay(8), line), -1) << len << " samples";

    const std::vector<delay_of<F>> zeros(8);
    ASSERT_EQ(call<F::set_delay>(state.get(), static_cast<const delay_of<F>*>(line.data())), tavStatusOk);
    EXPECT_EQ(first_difference(state.delay(8), line), -1);
    ASSERT_EQ(set_biquads<F>(taps.data(), state.get()), tavStatusOk);
    EXPECT_EQ(first_difference(state.delay(8), line), -1) << "taps leave the line";
    ASSERT_EQ(call<F::set_delay>(state.get(), static_cast<const delay_of<F>*>(nullptr)), tavStatusOk);
    EXPECT_EQ(first_difference(state.delay(8), zeros), -1);
  }
}

TYPED_TEST(BiquadDf1, LayoutsAgree) { check_biquad_layouts<TypeParam>({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 13, 1030}, 6); }

TYPED_TEST(BiquadDf1, WorksInTheMemoryThatItAsksFor) { check_biquad_memory<TypeParam>(); }

TYPED_TEST(BiquadDf1, RefusalsOfSetUp) {
  using F = TypeParam;
  source_of_data     data(8);
  auto               taps  = stable_taps<F>(2, 0.8, data);
  typename F::state* state = nullptr;
  tavcore_fake_reset();
  tavcore_fake_refuse_after(0);
  const auto* no_line = static_cast<const delay_of<F>*>(nullptr);
  EXPECT_EQ((init_alloc_biquads<F>(&state, taps.data(), 2, no_line)), tavStatusNoMemory);
  tavcore_fake_reset();
  for (size_t zero : {0, 3, 6, 9}) {
    auto bad  = taps;
    bad[zero] = 0;
    EXPECT_EQ((init_alloc_biquads<F>(&state, bad.data(), 2, no_line)), tavStatusDivideByZero);
    EXPECT_EQ(state, nullptr);
    EXPECT_EQ(tavcore_fake_read().live, 0);
    const biquad_state<F> good(taps);
    EXPECT_EQ(set_biquads<F>(bad.data(), good.get()), tavStatusDivideByZero);
  }
}

// Calls for one sample refuse the form, and each of the two kinds of cascade has delay-line calls of its own where both
// compute in doubles.
TEST(BiquadDf1, CallsThatRefuse) {
  const std::vector<Tav32f>       singles{1, 0, 0, 1, 0, 0};
  const std::vector<Tav64f>       doubles{1, 0, 0, 1, 0, 0};
  const biquad_state<df1_32f>     a(singles);
  const biquad_state<df1_64f_32s> b(doubles);
  const biquad_state<bq64f_32s>   c(doubles);
  Tav32f                          y       = 7;
  Tav32s                          n       = 7;
  Tav64f                          line[4] = {1, 2, 3, 4};
  EXPECT_EQ(call<&tavsIIROne_32f>(1, &y, a.get()), tavStatusBadContext);
  EXPECT_EQ(call<&tavsIIROne64f_32s_Sfs>(1, &n, b.get(), 0), tavStatusBadContext);
  EXPECT_TRUE(y == 7 && n == 7);
  EXPECT_EQ(call<&tavsIIRGetDlyLine64f_32s>(b.get(), line), tavStatusBadContext);
  EXPECT_EQ(call<&tavsIIRSetDlyLine64f_32s>(b.get(), line), tavStatusBadContext);
  EXPECT_EQ(call<&tavsIIRGetDlyLine64f_DF1_32s>(c.get(), line), tavStatusBadContext);
  EXPECT_EQ(call<&tavsIIRSetDlyLine64f_DF1_32s>(c.get(), line), tavStatusBadContext);
  EXPECT_EQ(line[0], 1);
}

}  // namespace
