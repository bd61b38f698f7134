// Transforms of up to 8 points of 16-bit integers in fixed point: bit for bit, over all flags and scale factors.
#include <gtest/gtest.h>

#include "oracle/fft_integer.h"
#include "transform/fft_integer_calls.h"

using namespace test;

namespace {

template <class F> class FftFixedPoint : public testing::Test {};
using forms = testing::Types<fwd_16sc, inv_16sc, fwd_16s, inv_16s, fwd_perm_16s, fwd_pack_16s, fwd_ccs_16s,
                             inv_perm_16s, inv_pack_16s, inv_ccs_16s>;
TYPED_TEST_SUITE(FftFixedPoint, forms);

using samples = std::vector<Tav16s>;

template <class F> samples by_definition(const samples& x, const oracle::fixed_call& c) {
  const size_t n = size_t(1) << c.order;
  samples      y(elements(F::to, n));
  if constexpr (F::from == order_of::pairs || F::from == order_of::parts) {
    std::vector<Tav16sc> p(n);
    const auto at = [n](size_t i, int part) { return F::from == order_of::pairs ? 2 * i + part : i + part * n; };
    for (size_t i = 0; i < n; ++i) p[i] = {x[at(i, 0)], x[at(i, 1)]};
    p = oracle::fixed_complex(p, c);
    for (size_t i = 0; i < n; ++i) y[at(i, 0)] = p[i].re, y[at(i, 1)] = p[i].im;
  } else {
    samples v(n);
    for (size_t i = 0; i < n; ++i) v[i] = x[slot(F::from, i, n)];
    v = F::inverse ? oracle::fixed_inverse(v, c) : oracle::fixed_forward(v, c);
    for (size_t i = 0; i < n; ++i) y[slot(F::to, i, n)] = v[i];
  }
  return y;
}

template <class F> std::vector<samples> inputs(int order) {
  const size_t         size = elements_read(F::from, size_t(1) << order);
  source_of_data       data(uint32_t(17 + order));
  std::vector<samples> all{samples(size, -32768), samples(size, 32767), samples(size, 1)};
  samples              alternating(size);
  for (size_t i = 0; i < size; ++i) alternating[i] = i % 2 == 0 ? 32767 : -32768;
  all.push_back(alternating);
  for (int k = 0; k < 6; ++k) all.push_back(data.values<Tav16s>(size));
  for (int k = 0; k < 4; ++k) {  // scaled up these show the guard bits
    samples small(size);
    for (auto& v : small) v = Tav16s(data.below(7) - 3);
    all.push_back(small);
  }
  return all;
}

std::vector<int> scale_factors() {
  std::vector<int> all{INT32_MIN, INT32_MIN + 1, -1000, 50, 64, 65, 1000, INT32_MAX - 1, INT32_MAX};
  for (int s = -40; s <= 40; ++s) all.push_back(s);
  return all;
}

constexpr int flags[] = {fftScaleForward, fftScaleInverse, fftScaleBoth, fftScaleNone};

template <class F> void check_all(int order, int flag, int hint) {
  const size_t                        n = size_t(1) << order;
  integer_homes                       h(n);
  integer_context<typename F::record> context(order, flag, hint);
  const auto                          layouts = integer_layouts();
  size_t                              turn    = 0;
  for (const samples& x : inputs<F>(order))
    for (int s : scale_factors()) {
      const fft_layout& l = layouts[turn++ % layouts.size()];
      ASSERT_EQ(transformed<F>(x, n, s, context, l, h), by_definition<F>(x, {order, flag, s, F::inverse}))
          << "order " << order << ", flag " << flag << ", hint " << hint << ", scaleFactor " << s << ", dst " << l.dst;
    }
}

TYPED_TEST(FftFixedPoint, BitForBit) {
  each_build<TypeParam::exported>([&] {
    for (int order = 0; order <= 3; ++order)
      for (int flag : flags)
        for (int hint : {0, 1}) {
          check_all<TypeParam>(order, flag, hint);
          if (this->HasFatalFailure()) return;
        }
  });
}

// One point is shifted, whatever the hint; for more the hint chooses floats.
TYPED_TEST(FftFixedPoint, OnePointWhateverTheHint) {
  each_build<TypeParam::exported>([&] {
    for (int hint : {2, -1, -16, INT32_MIN}) check_all<TypeParam>(0, fftScaleBoth, hint);
  });
}

// Independent of how it is done: within 3 units of the exact transform where nothing saturates.
TYPED_TEST(FftFixedPoint, NearTheExactTransform) {
  using F = TypeParam;
  each_build<F::exported>([&] {
    for (int order = 1; order <= 3; ++order)
      for (int flag : flags) {
        const size_t                        n = size_t(1) << order;
        integer_homes                       h(n);
        integer_context<typename F::record> context(order, flag, 0);
        for (const samples& x : inputs<F>(order))
          for (int s : {0, 1, 3}) {
            wide_values right = F::by_definition(x, order);
            const auto  is    = transformed<F>(x, n, s, context, {{}, {}, false, 0}, h);
            for (size_t i = 0; i < right.size(); ++i) {
              const long double v = ldexpl(right[i] * factor_of(flag, F::inverse, order), -s);
              ASSERT_NEAR(double(is[i]), double(std::clamp(v, -32768.0L, 32767.0L)), 3)
                  << "order " << order << ", flag " << flag << ", element " << i;
            }
          }
      }
  });
}

// Halves go up, on both sides of zero.
TEST(FftFixedPointTies, GoUp) {
  each_build<fwd_16sc::exported>([&] {
    for (int order : {0, 1, 2, 3}) {
      const size_t                 n = size_t(1) << order;
      integer_homes                h(n);
      integer_context<record_16sc> context(order, fftScaleNone, 0);
      for (int v : {1, -1, 3, -3, 5}) {
        samples x(2 * n);
        x[0]         = Tav16s(v);
        const auto y = transformed<fwd_16sc>(x, n, 1, context, {{}, {}, false, 0}, h);
        for (size_t k = 0; k < n; ++k) EXPECT_EQ(y[2 * k], (v + 1) >> 1) << "order " << order << ", " << v;
      }
    }
  });
}

// The floats' ties go to even.
TEST(FftFixedPointTies, NotWithHint2) {
  each_build<fwd_16sc::exported>([&] {
    integer_homes                h(4);
    integer_context<record_16sc> context(2, fftScaleNone, 2);
    const auto y = transformed<fwd_16sc>({1, 3, 0, 0, 0, 0, 0, 0}, 4, 1, context, {{}, {}, false, 0}, h);
    EXPECT_EQ(y, (samples{0, 2, 0, 2, 0, 2, 0, 2}));
  });
}

}  // namespace
