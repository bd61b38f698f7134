// The complex transforms of floats at the edges of arithmetic: infinities, NaNs, subnormal numbers, and callers who set
// the control words of their thread.
#include <gtest/gtest.h>

#include <math.h>

#include <algorithm>
#include <utility>

#include "harness/forms.h"
#include "oracle/fft.h"
#include "transform/fft_runs.h"

using namespace test;

namespace {

template <class F> class FftSpecial : public testing::Test {};
using families = testing::Types<fft_32fc, fft_32f, fft_64fc, fft_64f>;
TYPED_TEST_SUITE(FftSpecial, families);

// SSE control word of the thread: these bits are set while the scope lasts, the flags are down.
struct sse_word {
  static constexpr unsigned flush = 0x8000, zeros = 0x0040, flags = 0x003F;

  explicit sse_word(unsigned bits) : callers_(_mm_getcsr()) { _mm_setcsr((callers_ & ~flags) | bits); }
  ~sse_word() { _mm_setcsr(callers_); }
  sse_word(const sse_word&)            = delete;
  sse_word& operator=(const sse_word&) = delete;

 private:
  unsigned callers_;
};

// Control word of the extended-precision unit, which on 64 bits only `long double` uses.
struct extended_word {
  static constexpr uint16_t usual = 0x037F, doubles = 0x027F, singles_upward = 0x087F, toward_zero = 0x0F7F;

  explicit extended_word(uint16_t word) { __asm__ volatile("fldcw %0" : : "m"(word)); }
  ~extended_word() { __asm__ volatile("fldcw %0" : : "m"(usual)); }
  extended_word(const extended_word&)            = delete;
  extended_word& operator=(const extended_word&) = delete;
};

template <class F> bool finite(const typename F::sample& v) { return isfinite(v.re) && isfinite(v.im); }

template <class F, bool Inverse> void check_reach(int order) {
  using limits = std::numeric_limits<typename F::part>;
  using C      = typename F::sample;
  SCOPED_TRACE(testing::Message() << "order " << order << (Inverse ? ", inverse" : ", forward"));
  const size_t         n = size_t(1) << order;
  const fft_context<F> context(order, fftScaleBoth);
  fft_room<F>          room(n);
  points<F>            x     = noise<F>(n, uint32_t(order));
  const points<F>      clean = room.template run<Inverse>(x, context);
  for (size_t at : {size_t(0), size_t(1) % n, n / 2, n - 1, (n / 8 * 5 + 77) % n})
    for (const C& value :
         {C{limits::infinity(), 0}, C{1, -limits::infinity()}, C{limits::quiet_NaN(), 1}, C{0, limits::quiet_NaN()}}) {
      const C         kept = std::exchange(x[at], value);
      const points<F> is   = room.template run<Inverse>(x, context);
      x[at]                = kept;
      ASSERT_TRUE(std::none_of(is.begin(), is.end(), finite<F>)) << "from " << at << " one result does not see it";
    }
  EXPECT_EQ(first_difference(room.template run<Inverse>(x, context), clean), -1) << "a work area keeps what it saw";
}

TYPED_TEST(FftSpecial, OneInfinityOrNaNReachesEveryPoint) {
  each_build<TypeParam::forward>([&] {
    for (int order : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 14, 16}) {
      check_reach<TypeParam, false>(order);
      check_reach<TypeParam, true>(order);
    }
  });
}

// Whole multiples of the smallest number: sums are exact, and each product is off by half of it at most.
template <class F> points<F> subnormals(size_t n) {
  using T             = typename F::part;
  const T        unit = std::numeric_limits<T>::denorm_min();
  source_of_data data(3);
  points<F>      x(n);
  const auto     v = [&] { return T(data.below(2048) - 1024) * unit; };
  for (auto& point : x) point = {v(), v()};
  return x;
}

TYPED_TEST(FftSpecial, SubnormalNumbersCount) {
  using F = TypeParam;
  each_build<F::forward>([&] {
    for (int order = 0; order <= 10; ++order) {
      SCOPED_TRACE(testing::Message() << "order " << order);
      const size_t                      n    = size_t(1) << order;
      const long double                 unit = std::numeric_limits<typename F::part>::denorm_min();
      const points<F>                   x    = subnormals<F>(n);
      std::vector<oracle::wide_complex> right(n);
      for (size_t i = 0; i < n; ++i) right[i] = {x[i].re / unit, x[i].im / unit};
      oracle::transform(right, -1);

      const fft_context<F> context(order, fftScaleNone);
      fft_room<F>          room(n);
      const points<F>      is    = room.template run<false>(x, context);
      long double          error = 0;
      for (size_t k = 0; k < n; ++k)
        error += std::norm(right[k] - oracle::wide_complex(is[k].re / unit, is[k].im / unit));
      EXPECT_LE(sqrtl(error), 5.0L * n);

      const sse_word  set(sse_word::flush | sse_word::zeros);
      const points<F> flushed = room.template run<true>(x, context);
      EXPECT_TRUE(std::all_of(flushed.begin(), flushed.end(), finite<F>));
    }
  });
}

TYPED_TEST(FftSpecial, CallersRoundingModeHolds) {
  using F = TypeParam;
  each_build<F::forward>([&] {
    for (int order = 0; order <= 12; ++order) {
      const size_t                      n = size_t(1) << order;
      const fft_context<F>              context(order, fftScaleNone);
      fft_room<F>                       room(n);
      const points<F>                   x = noise<F>(n, uint32_t(order));
      std::vector<oracle::wide_complex> right(n);
      for (size_t i = 0; i < n; ++i) right[i] = {x[i].re, x[i].im};
      oracle::transform(right, -1);
      for (unsigned mode : rounding_modes) {
        const points<F> is = [&] {
          const rounding_mode set(mode);
          return room.template run<false>(x, context);  // the call is seen to leave the mode as it was
        }();
        // roundings to one side add up
        EXPECT_LE(oracle::relative_error(is, right), std::numeric_limits<typename F::part>::epsilon() * (order + 1))
            << "order " << order << ", mode " << mode;
      }
    }
  });
}

// A work area full of signalling NaNs, and data of ordinary size: a flag would tell of work on something else.
template <class F, bool Inverse> unsigned flags_raised(int order) {
  using T                = typename F::part;
  const size_t         n = size_t(1) << order;
  const fft_context<F> context(order, fftScaleBoth);
  const points<F>      x = noise<F>(n, uint32_t(order));
  arena                home(0);
  const fft_arrays<F>  shape{home, n};
  std::vector<T>       from(2 * n), to(2 * n);
  for (size_t i = 0; i < n; ++i) from[shape.at(i, 0)] = x[i].re, from[shape.at(i, 1)] = x[i].im;
  std::vector<T> work(size_t(context.buf_size()) / sizeof(T) + 1, std::numeric_limits<T>::signaling_NaN());
  const sse_word set(0);
  EXPECT_EQ((run_fft<F, Inverse>(from.data(), to.data(), n, context.get(), reinterpret_cast<Tav8u*>(work.data()))), 0);
  return _mm_getcsr() & sse_word::flags & ~unsigned(_MM_EXCEPT_INEXACT);
}

TYPED_TEST(FftSpecial, OrdinaryDataRaisesNoFlag) {
  each_build<TypeParam::forward>([&] {
    for (int order = 0; order <= 18; ++order) {
      EXPECT_EQ((flags_raised<TypeParam, false>(order)), 0u) << "order " << order;
      EXPECT_EQ((flags_raised<TypeParam, true>(order)), 0u) << "order " << order;
    }
  });
}

template <class F> std::vector<Tav8u> set_up(int order, std::vector<Tav8u>& spec, std::vector<Tav8u>& init) {
  typename F::record* ctx = nullptr;
  EXPECT_EQ(call<F::init>(&ctx, order, fftScaleBoth, 0, spec.data(), init.data()), tavStatusOk);
  return spec;
}

TYPED_TEST(FftSpecial, SetUpIgnoresCallersModes) {
  using F = TypeParam;
  each_build<F::init>([&] {
    for (int order : {0, 3, 5, 6, 7, 8, 9, 10, 11, 12, 13, 18}) {
      int spec_size, init_size, work_size;
      ASSERT_EQ(call<F::get_size>(order, fftScaleBoth, 0, &spec_size, &init_size, &work_size), tavStatusOk);
      std::vector<Tav8u>       spec(size_t(spec_size) + 1), init(size_t(init_size) + 1);
      const std::vector<Tav8u> right = set_up<F>(order, spec, init);
      for (unsigned word : {0x0000u, rounding_mode::down, rounding_mode::up, rounding_mode::to_zero})
        for (unsigned flushing : {0u, sse_word::flush | sse_word::zeros}) {
          const sse_word set(word | flushing);
          EXPECT_EQ(set_up<F>(order, spec, init), right)
              << "order " << order << ", SSE word " << word << " " << flushing;
        }
      for (uint16_t word : {extended_word::doubles, extended_word::singles_upward, extended_word::toward_zero}) {
        const std::vector<Tav8u> is = [&] {
          const extended_word set(word);
          return set_up<F>(order, spec, init);
        }();
        EXPECT_EQ(is, right) << "order " << order << ", extended word " << word;
      }
    }
  });
}

}  // namespace
