// Integer FIR filters: sizes, memory, taps as they are kept, taps from floats.
#include <limits.h>

#include "filter/fir_integer_calls.h"
#include "harness/forms.h"

using namespace test;
using namespace test::words;

namespace {

template <class F> class FirIntegerState : public testing::Test {};
using families = testing::Types<fir_16s, fir_32s_16s, fir_32sc_16sc>;
TYPED_TEST_SUITE(FirIntegerState, families);

TEST(FirIntegerSize, IsAPromise) {
  const auto size = [](auto get, int n) {
    int bytes = 0;
    EXPECT_EQ(checked_call(get, n, &bytes), tavStatusOk);
    return bytes;
  };
  for (int n : {1, 2, 3, 4, 5, 7, 8, 12, 13, 31, 32, 64, 100, 255, 256, 1000, 4096, 100000}) {
    const int s    = (n + 11) & ~7;
    const int ring = ((2 * n + s) * 2 + 23) & ~15, tables = ((n + 11) >> 3) * 64;
    const int words   = ((2 * n + 15) & ~15) + ring + tables + 16480;
    const int longs   = ((4 * n + 15) & ~15) + ring + tables + 16480;
    const int complex = ((12 * n + 31) & ~15) + 16 * n + ((8 * n + 15) & ~15) + 16480;
    EXPECT_EQ(size(&::tavsFIRGetStateSize_16s, n), words) << n;
    EXPECT_EQ(size(&::tavsFIRGetStateSize32s_16s, n), longs) << n;
    EXPECT_EQ(size(&::tavsFIRGetStateSize32s_16s32f, n), longs) << n;
    EXPECT_EQ(size(&::tavsFIRGetStateSize32sc_16sc, n), complex) << n;
    EXPECT_EQ(size(&::tavsFIRGetStateSize32sc_16sc32fc, n), complex) << n;
  }
  EXPECT_EQ(size(&::tavsFIRGetStateSize_16s, 1), 16592);
}

// At every alignment, and against a page on either side.
TYPED_TEST(FirIntegerState, StaysInItsMemory) {
  using F = TypeParam;
  each_build<F::init>([] {
    source_of_data         data(1);
    std::vector<placement> all{{placement::begins_at_page}, {placement::ends_at_page}};
    for (unsigned offset = 0; offset < 16; ++offset) all.push_back({placement::inside, offset});
    for (int n : {1, 2, 3, 4, 5, 8, 13, 33, 100})
      for (const placement& where : all) {
        const auto      h = data.values<typename F::taps>(size_t(n));
        const filter<F> f(h, 0, nullptr, where);
        const auto      x = data.values<typename F::data>(300);
        auto            y = x;
        for (int i = 0; i < 2 * n + 1; ++i) {
          ASSERT_EQ(run<F>(way::singly, x.data(), y.data(), 1, f.get(), 0), tavStatusOk);
          ASSERT_EQ(run<F>(way::block, x.data(), y.data(), 300, f.get(), 0), tavStatusOk);
          ASSERT_EQ(run<F>(way::singly, x.data(), y.data(), i + 1, f.get(), 0), tavStatusOk);
          ASSERT_EQ(run<F>(way::in_place, x.data(), y.data(), n + 3, f.get(), 0), tavStatusOk);
        }
      }
  });
}

template <class F> void check_kept(const std::vector<typename F::taps>& h, int factor) {
  const auto                    want = oracle::kept(h, factor);
  const filter<F>               f(h, factor);
  std::vector<typename F::taps> got(h.size());
  int                           got_factor = 0;
  ASSERT_EQ(call<F::get_taps>(f.get(), got.data(), &got_factor), tavStatusOk);
  EXPECT_EQ(first_difference(got, want.taps), -1) << testing::PrintToString(h);
  EXPECT_EQ(got_factor, want.scale) << testing::PrintToString(h);

  const std::vector<typename F::taps> zeros(h.size());
  ASSERT_EQ(call<F::set_taps>(zeros.data(), f.get(), 3), tavStatusOk);
  ASSERT_EQ(call<F::get_taps>(f.get(), got.data(), &got_factor), tavStatusOk);
  EXPECT_EQ(first_difference(got, zeros), -1);
  EXPECT_EQ(got_factor, 3);
  ASSERT_EQ(call<F::set_taps>(h.data(), f.get(), factor), tavStatusOk);
  ASSERT_EQ(call<F::get_taps>(f.get(), got.data(), &got_factor), tavStatusOk);
  EXPECT_EQ(first_difference(got, want.taps), -1);
  EXPECT_EQ(got_factor, want.scale);
}

TEST(FirIntegerTaps, OfWords) {
  each_build<&::tavsFIRInitAlloc_16s>([] {
    check_kept<fir_16s>({32767, -32767, 5}, 0);
    check_kept<fir_16s>({32767, -32768, 5, -5, 1, -1}, 7);
    check_kept<fir_16s>({-32768}, INT_MAX);
    const Tav16s halves = -32768;
    const auto   kept   = oracle::kept(std::vector{halves}, 2);
    EXPECT_EQ(kept.taps[0], -16384);
    EXPECT_EQ(kept.scale, 3);
  });
}

const int tap_limits[] = {1, 32765, 32766, 32767, 32768, 65532, 65533, 65534, 65535, 1 << 20, INT_MAX - 1, INT_MAX};

TEST(FirIntegerTaps, OfLongs) {
  each_build<&::tavsFIRInitAlloc32s_16s>([] {
    for (int most : tap_limits) {
      check_kept<fir_32s_16s>({most, 7, -9, -most, most / 3}, 1);
      check_kept<fir_32s_16s>({5, -most}, -4);
      check_kept<fir_32sc_16sc>({{most, 7}, {-9, -most}, {most / 3, 0}}, 1);
      check_kept<fir_32sc_16sc>({{0, -most}, {-1, 1}}, INT_MIN);
    }
    check_kept<fir_32s_16s>({INT_MIN, 1, -1, INT_MAX}, 0);
    check_kept<fir_32sc_16sc>({{1, INT_MIN}, {-1, INT_MAX}}, 0);
    EXPECT_EQ(oracle::kept(std::vector<Tav32s>{INT_MIN}, 0).scale, 17);
  });
}

// As if the integers that floats become had been given.
template <class G> void check_floats(const std::vector<typename G::taps>& h) {
  using F                 = typename G::family;
  using D                 = typename F::data;
  const auto         want = oracle::kept_floats(h);
  source_of_data     data(1);
  const auto         dly   = data.values<D>(h.size());
  typename F::state* state = nullptr;
  ASSERT_EQ(call<G::init_alloc>(&state, h.data(), int(h.size()), dly.data()), tavStatusOk);
  int size = 0;
  ASSERT_EQ(call<G::get_size>(int(h.size()), &size), tavStatusOk);
  std::vector<Tav8u>                  memory(static_cast<size_t>(size));
  typename F::state*                  second = nullptr;
  const std::vector<typename G::taps> zeros(h.size());
  ASSERT_EQ(call<G::init>(&second, zeros.data(), int(h.size()), dly.data(), memory.data()), tavStatusOk);
  ASSERT_EQ(call<G::set_taps>(h.data(), second), tavStatusOk);

  for (auto* s : {state, second}) {
    std::vector<typename F::taps> got(h.size());
    std::vector<typename G::taps> floats(h.size());
    int                           factor = 0;
    ASSERT_EQ(call<F::get_taps>(s, got.data(), &factor), tavStatusOk);
    EXPECT_EQ(factor, want.scale) << testing::PrintToString(h);
    EXPECT_EQ(first_difference(got, want.taps), -1) << testing::PrintToString(h);
    ASSERT_EQ(call<G::get_taps>(s, floats.data()), tavStatusOk);
    for (size_t i = 0; i < h.size(); ++i) {
      const double unit = ldexp(1.0, want.scale);
      if constexpr (requires { h[0].re; }) {
        EXPECT_EQ(floats[i].re, float(got[i].re * unit));
        EXPECT_EQ(floats[i].im, float(got[i].im * unit));
      } else {
        EXPECT_EQ(floats[i], float(got[i] * unit));
      }
    }
    model<F>       m{want, {}};
    std::vector<D> y(40);
    m.set_delay(dly);
    const auto x = data.values<D>(40);
    ASSERT_EQ(call<F::block>(x.data(), y.data(), 40, s, want.scale + 15), tavStatusOk);
    for (size_t i = 0; i < x.size(); ++i) ASSERT_TRUE(same(y[i], m.filter(x[i], want.scale + 15))) << i;
  }
  EXPECT_EQ(call<F::free>(second), tavStatusOk);
  EXPECT_EQ(call<F::free>(state), tavStatusOk);
}

TEST(FirIntegerTaps, OfFloats) {
  each_build<&::tavsFIRInitAlloc32s_16s32f>([] {
    for (float most : {1.0f, 0.5f, 0.999f, 16383.0f, 16383.5f, 16384.0f, 32766.0f, 32767.0f, 32767.5f, 32768.0f,
                       65534.0f, 65535.0f, 1e6f, 2e14f, 1e-3f, 2e-6f, 1e-7f, 1e-20f, 0.0f}) {
      check_floats<fir_32s_16s32f>({most, -most / 3, most / 7, -most, most * 0.25f});
      check_floats<fir_32s_16s32f>({most * 0.1f, -most});
      check_floats<fir_32sc_16sc32fc>({{most, -most / 3}, {most / 7, -most}});
      check_floats<fir_32sc_16sc32fc>({{0, -most}, {most / 2, 1e-30f}, {0, 0}});
    }
    EXPECT_EQ(oracle::exponent_of(1), -14);
    EXPECT_EQ(oracle::exponent_of(0), -33);
    EXPECT_EQ(oracle::exponent_of(3e38f), 33);
  });
}

// Halves of integers go away from zero in any rounding mode of the caller's.
TEST(FirIntegerTaps, OfFloatsInAnyRoundingMode) {
  each_build<&::tavsFIRInitAlloc32s_16s32f>([] {
    for (unsigned mode : rounding_modes) {
      const rounding_mode scope(mode);
      check_floats<fir_32s_16s32f>({32767.0f, 2.5f, -2.5f, 3.5f, -3.5f, 0.5f, -0.5f, 0.25f});
    }
  });
}

// Out of every range: no exception, no fault, and the filter works.
TEST(FirIntegerTaps, SpecialFloats) {
  each_build<&::tavsFIRInitAlloc32s_16s32f>([] {
    const float      huge[] = {1e38f, -3e38f, INFINITY, -INFINITY, NAN};
    FIRState32s_16s* state  = nullptr;
    ASSERT_EQ(call<&::tavsFIRInitAlloc32s_16s32f>(&state, huge, 5, static_cast<const Tav16s*>(nullptr)), tavStatusOk);
    int    factor = 0;
    Tav32s taps[5];
    ASSERT_EQ(call<&::tavsFIRGetTaps32s_16s>(state, taps, &factor), tavStatusOk);
    EXPECT_EQ(factor, 33);
    const Tav16s x[4] = {1, 2, 3, 4};
    Tav16s       y[4];
    EXPECT_EQ(call<&::tavsFIR32s_16s_Sfs>(x, y, 4, state, 33), tavStatusOk);
    EXPECT_EQ(call<&::tavsFIRFree32s_16s>(state), tavStatusOk);
  });
}

}  // namespace
