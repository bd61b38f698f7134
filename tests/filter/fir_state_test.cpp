// The states of the FIR filters with taps in floats: sizes, taps and delay lines, failing allocations, ids.
#include <gtest/gtest.h>
#include <math.h>

#include "filter/fir_calls.h"

using namespace test;

namespace {

template <class F> class FirState : public testing::Test {};
using families = testing::Types<fir_32f, fir_32fc, fir_64f, fir_64fc, fir_64f_32f, fir_64fc_32fc, fir_32f_16s,
                                fir_32fc_16sc, fir_64f_32s, fir_32s, fir_64f_16s, fir_64fc_32sc, fir_64fc_16sc>;
TYPED_TEST_SUITE(FirState, families);

// What the transform of 2^order points needs for itself: context, set-up and work area.
long long order_of(long long n) {
  long long order = 1;
  while (1LL << order <= n) ++order;
  return order + 1;
}
long long real_single(long long order) { return order == 11 ? 17728 + 2176 + 8256 : 1200448 + 524416 + 131136; }
long long real_double(long long) { return 270656 + 32896; }
long long complex_single(long long order) {
  return order == 6    ? 896 + 576
         : order == 10 ? 9536 + 8256
         : order == 11 ? 18752 + 2176 + 16448
                       : 360768 + 65664 + 32832;
}
long long complex_double(long long order) {
  return order == 12 ? 69952 + 8320 : order == 13 ? 139584 + 16512 : 279936 + 32896 + 32832;
}

template <class F> long long expected_size(long long n) {
  using T           = typename F::taps;
  const auto points = [&](long long from) { return n < from ? 0 : 1LL << order_of(n); };
  if constexpr (std::is_same_v<T, Tav32f>) {
    const long long f = points(64), fft = f == 0 ? 0 : real_single(order_of(n));
    return (((12 * n + 31) >> 4) + ((n + 6) & ~3LL)) * 16 + ((4 * n + 15) & ~15LL) * 5 + ((4 * f + 15) >> 4) * 32 + fft
           + 16528;
  } else if constexpr (std::is_same_v<T, Tav32fc>) {
    const long long f = points(16), fft = f == 0 ? 0 : complex_single(order_of(n));
    return ((24 * n + 47) & ~15LL) + ((8 * n + 15) & ~15LL) * 13 + ((8 * f + 15) >> 4) * 32 + fft + 33008;
  } else if constexpr (std::is_same_v<T, Tav64f>) {
    const long long f = points(64), fft = f == 0 ? 0 : real_double(order_of(n));
    return 32 * (((24 * n + 63) >> 5) + ((n + 2) & ~1LL)) + ((8 * f + 15) >> 4) * 32 + fft + 32960;
  } else if constexpr (std::is_same_v<T, Tav64fc>) {
    const long long f = points(32), fft = f == 0 ? 0 : complex_double(order_of(n));
    return ((48 * n + 95) & ~31LL) + ((16 * n + 31) & ~31LL) + ((16 * n + 31) >> 5) * 64 + 32 * f + fft + 65712;
  } else {
    return ((24 * n + 47) & ~15LL) + ((8 * n + 15) & ~15LL) + 144 + ((8 * n + 15) >> 4) * 32 + 32767;
  }
}

// The transforms in it are those of variant s8 in both variants; the numbers of taps are those whose orders differ.
TYPED_TEST(FirState, Sizes) {
  using F = TypeParam;
  using T = typename F::taps;
  std::vector<int> taps;
  for (int n = 1; n < 16; ++n) taps.push_back(n);
  if constexpr (std::is_same_v<T, Tav32f>)
    for (int n : {31, 62, 63, 512, 513, 1023, 131072, 200001}) taps.push_back(n);
  else if constexpr (std::is_same_v<T, Tav32fc>)
    for (int n : {16, 17, 31, 256, 511, 512, 1000, 16384, 20003}) taps.push_back(n);
  else if constexpr (std::is_same_v<T, Tav64f>)
    for (int n : {31, 32, 62, 63, 4096, 5001, 8191}) taps.push_back(n);
  else if constexpr (std::is_same_v<T, Tav64fc>)
    for (int n : {16, 30, 31, 1024, 2047, 2048, 3001, 4096, 5000}) taps.push_back(n);
  else
    for (int n : {32, 63, 64, 65, 1000, 100001}) taps.push_back(n);
  each_build<F::get_size>([&] {
    for (int n : taps) {
      int size = -1;
      ASSERT_EQ(call<F::get_size>(n, &size), tavStatusOk);
      EXPECT_EQ(size, expected_size<F>(n)) << n << " taps";
    }
  });
}

template <class F> std::vector<typename F::taps> taps_of(const fir_filter<F>& f, size_t n) {
  std::vector<typename F::taps> h(n);
  EXPECT_EQ(call<F::get_taps>(f.get(), h.data()), tavStatusOk);
  return h;
}
template <class F> std::vector<typename F::data> delay_of(const fir_filter<F>& f, size_t n) {
  std::vector<typename F::data> d(n);
  EXPECT_EQ(call<F::get_dly>(f.get(), d.data()), tavStatusOk);
  return d;
}

TYPED_TEST(FirState, GivesBackWhatWasSet) {
  using F = TypeParam;
  each_build<F::set_dly>([&] {
    source_of_data data(1);
    for (size_t n : {1, 2, 3, 4, 5, 16, 31, 33, 64, 100}) {
      SCOPED_TRACE(testing::Message() << n << " taps");
      const auto          h = any_sizes<typename F::taps>(data, n), h2 = any_sizes<typename F::taps>(data, n);
      const auto          d = any_sizes<typename F::data>(data, n), d2 = any_sizes<typename F::data>(data, n);
      const fir_filter<F> f(h, n % 2 == 0, d.data());
      ASSERT_LT(first_difference(taps_of(f, n), h), 0);
      ASSERT_LT(first_difference(delay_of(f, n), d), 0);
      ASSERT_EQ(call<F::set_taps>(h2.data(), f.get()), tavStatusOk);
      ASSERT_LT(first_difference(taps_of(f, n), h2), 0);
      ASSERT_LT(first_difference(delay_of(f, n), d), 0) << "taps leave the delay line";
      ASSERT_EQ(call<F::set_dly>(f.get(), d2.data()), tavStatusOk);
      ASSERT_LT(first_difference(delay_of(f, n), d2), 0);
      ASSERT_EQ(call<F::set_dly>(f.get(), nullptr), tavStatusOk);
      ASSERT_LT(first_difference(delay_of(f, n), std::vector<typename F::data>(n)), 0);
      ASSERT_LT(first_difference(taps_of(f, n), h2), 0);
    }
  });
}

// Newest first, whatever brought the samples in.
TYPED_TEST(FirState, RemembersTheLastSamples) {
  using F = TypeParam;
  using D = typename F::data;
  each_build<F::get_dly>([&] {
    source_of_data data(2);
    for (size_t n : {1, 2, 5, 16, 33, 64, 150}) {
      const auto           h      = any_sizes<typename F::taps>(data, n);
      auto                 signal = any_sizes<D>(data, n);  // the oldest first
      const std::vector<D> given(signal.rbegin(), signal.rend());
      const fir_filter<F>  f(h, true, given.data());
      for (int len : {1, 3, int(n), int(n) + 3, int(n) + 4, int(n) + 5, int(n) + 6, 2, 255, 256, 512, 1000, 4700, 1}) {
        const auto     x   = any_sizes<D>(data, size_t(len));
        std::vector<D> y   = x;
        const int      how = data.below(3);
        if (how == 0) {
          ASSERT_EQ(filter_in_place<F>(y.data(), len, f.get(), 3), tavStatusOk);
        } else if (how == 1 && len < 20) {
          for (D v : x) ASSERT_EQ(filter_one<F>(v, y.data(), f.get(), 3), tavStatusOk);
        } else {
          ASSERT_EQ(filter_block<F>(x.data(), y.data(), len, f.get(), 3), tavStatusOk);
        }
        signal.insert(signal.end(), x.begin(), x.end());
        std::vector<D> want(signal.rbegin(), signal.rbegin() + long(n));
        ASSERT_LT(first_difference(delay_of(f, n), want), 0) << n << " taps, after " << len;
      }
    }
  });
}

// The order of sums depends on addresses.
template <class F> bool alike(const std::vector<typename F::data>& a, const std::vector<typename F::data>& b) {
  const double within = !is_integer<F> && !in_singles<F> && sizeof(part_of<typename F::data>) == 8 ? 1e-12 : 1e-4;
  const auto   near   = [=](auto v, auto w) { return fabs(double(v) - double(w)) <= within; };
  for (size_t i = 0; i < a.size(); ++i) {
    if constexpr (is_pair<typename F::data>) {
      if (!near(a[i].re, b[i].re) || !near(a[i].im, b[i].im)) return false;
    } else {
      if (!near(a[i], b[i])) return false;
    }
  }
  return true;
}

// Two filters, one changed under way and one made so, go on alike.
TYPED_TEST(FirState, ChangesUnderWay) {
  using F = TypeParam;
  using D = typename F::data;
  each_build<F::set_taps>([&] {
    source_of_data data(4);
    for (size_t n : {1, 3, 17, 40, 64, 90})
      for (int len : {7, 100, 600}) {
        const auto          h = any_sizes<typename F::taps>(data, n), h2 = any_sizes<typename F::taps>(data, n);
        const auto          x = any_sizes<D>(data, size_t(len)), d = any_sizes<D>(data, n);
        const fir_filter<F> f(h);
        std::vector<D>      y(x.size()), z(x.size());
        for (int i = 0; i < 3; ++i) ASSERT_EQ(filter_one<F>(x[size_t(i)], y.data(), f.get(), 20), tavStatusOk);
        ASSERT_EQ(filter_block<F>(x.data(), y.data(), len, f.get(), 20), tavStatusOk);
        ASSERT_EQ(filter_one<F>(x[0], y.data(), f.get(), 20), tavStatusOk);
        ASSERT_EQ(call<F::set_taps>(h2.data(), f.get()), tavStatusOk);
        const auto          line = delay_of(f, n);
        const fir_filter<F> g(h2, true, line.data());
        ASSERT_EQ(filter_block<F>(x.data(), y.data(), len, f.get(), 20), tavStatusOk);
        ASSERT_EQ(filter_block<F>(x.data(), z.data(), len, g.get(), 20), tavStatusOk);
        ASSERT_TRUE(alike<F>(y, z)) << "new taps: " << n << ", length " << len;

        ASSERT_EQ(filter_one<F>(x[0], y.data(), f.get(), 20), tavStatusOk);
        ASSERT_EQ(call<F::set_dly>(f.get(), d.data()), tavStatusOk);
        const fir_filter<F> i(h2, true, d.data());
        ASSERT_EQ(filter_block<F>(x.data(), y.data(), len, f.get(), 20), tavStatusOk);
        ASSERT_EQ(filter_block<F>(x.data(), z.data(), len, i.get(), 20), tavStatusOk);
        ASSERT_TRUE(alike<F>(y, z)) << "new delay line: " << n << ", length " << len;
      }
  });
}

TYPED_TEST(FirState, AllocatesOnce) {
  using F = TypeParam;
  each_build<F::init_alloc>([&] {
    source_of_data data(6);
    for (size_t n : {1, 16, 32, 64, 1000}) {
      const auto         h     = any_sizes<typename F::taps>(data, n);
      typename F::state* state = nullptr;
      tavcore_fake_reset();
      tavcore_fake_refuse_after(0);
      EXPECT_EQ(call<F::init_alloc>(&state, h.data(), int(n), nullptr), tavStatusNoMemory);
      EXPECT_EQ(state, nullptr);
      tavcore_fake_reset();
      ASSERT_EQ(call<F::init_alloc>(&state, h.data(), int(n), nullptr), tavStatusOk);
      EXPECT_EQ(tavcore_fake_read().allocations, 1);

      tavcore_fake_refuse_after(0);
      std::vector<typename F::data> x(9000), y(9000);
      EXPECT_EQ(filter_block<F>(x.data(), y.data(), 9000, state, 0), tavStatusOk);
      EXPECT_EQ(filter_in_place<F>(x.data(), 9000, state, 0), tavStatusOk);
      EXPECT_EQ(call<F::set_taps>(h.data(), state), tavStatusOk);
      EXPECT_EQ(tavcore_fake_read().allocations, 1) << "calls take no memory";

      EXPECT_EQ(call<F::free>(state), tavStatusOk);
      EXPECT_EQ(tavcore_fake_read().live, 0);
      EXPECT_EQ(tavcore_fake_read().damaged, 0);
      tavcore_fake_reset();
    }
    typename F::state*     state = nullptr;
    const typename F::taps one{};
    EXPECT_EQ(call<F::init_alloc>(&state, &one, INT32_MAX, nullptr), tavStatusNoMemory) << "more than an int of bytes";
    EXPECT_EQ(state, nullptr);
    EXPECT_EQ(tavcore_fake_read().allocations, 0);
  });
}

// The filters with doubles for taps and 32-bit integers for samples have transforms from 32 taps on when they allocate.
template <class F> int32_t bytes_taken(int tapsLen) {
  const std::vector<typename F::taps> h(static_cast<size_t>(tapsLen));
  tavcore_fake_reset();
  const fir_filter<F> f(h);
  return tavcore_fake_read().last_size;
}
template <class F> void check_early_transform() {
  each_build<F::init_alloc>([] {
    constexpr int transform_at_least = 128 * 8 * 2;
    EXPECT_LT(bytes_taken<F>(31) - bytes_taken<F>(30), 200);
    EXPECT_GT(bytes_taken<F>(32) - bytes_taken<F>(31), transform_at_least);
  });
}
TEST(FirState64f_32s, AllocatedTransformsFrom32Taps) { check_early_transform<fir_64f_32s>(); }
TEST(FirState_32s, AllocatedTransformsFrom32Taps) { check_early_transform<fir_32s>(); }

TEST(FirState_32s, CutsTapsOff) {
  const std::vector<Tav64f> h{1.5, -1.5, 0x1p40, -0x1p40, 0.999, -7};
  const std::vector<Tav32s> want{1, -1, INT32_MAX, INT32_MIN, 0, -7};
  each_build<&::tavsFIRGetTaps_32s>([&] {
    const fir_filter<fir_64f_32s> f(h);
    std::vector<Tav32s>           got(h.size());
    EXPECT_EQ(call<&::tavsFIRGetTaps_32s>(f.get(), got.data()), tavStatusOk);
    EXPECT_EQ(got, want);
  });
}

}  // namespace
