// The transforms of integers by way of floats: against the definition in long double, rounded, with what floats may be
// off by; in every layout with the same bits, in every rounding mode of the caller.
#include <gtest/gtest.h>

#include "transform/fft_integer_calls.h"

using namespace test;

namespace {

template <class F> class FftInteger : public testing::Test {};
using forms =
    testing::Types<fwd_16sc, inv_16sc, fwd_16s, inv_16s, fwd_32sc, inv_32sc, fwd_32s, inv_32s, fwd_perm_16s,
                   fwd_pack_16s, fwd_ccs_16s, inv_perm_16s, inv_pack_16s, inv_ccs_16s, fwd_perm_32s, fwd_pack_32s,
                   fwd_ccs_32s, inv_perm_32s, inv_pack_32s, inv_ccs_32s, fwd_16s32s, inv_32s16s>;
TYPED_TEST_SUITE(FftInteger, forms);

constexpr int flags[]          = {fftScaleForward, fftScaleInverse, fftScaleBoth, fftScaleNone};
constexpr int by_way_of_floats = 2;  // the hint

template <class F> std::vector<typename F::src> noise(int order) {
  return source_of_data(uint32_t(5 + order)).values<typename F::src>(elements_read(F::from, size_t(1) << order));
}

long double root_mean_square(const wide_values& x) {
  long double sum = 0;
  for (long double v : x) sum += v * v;
  return sqrtl(sum / (long double)x.size());
}

// Whether `is` is what some value within `error` of `right` is rounded and saturated to.
template <class D> bool rounded(D is, long double right, long double error) {
  using limits          = std::numeric_limits<D>;
  const long double low = ceill(right - error - 0.5L), high = floorl(right + error + 0.5L);
  const auto to_D = [](long double v) { return std::clamp(v, (long double)limits::min(), (long double)limits::max()); };
  return to_D(low) <= is && is <= to_D(high);
}

template <class F> long double error_of(const wide_values& right, int order) {
  using T = inner_float<typename F::record>;
  return order == 0 && sizeof(typename F::src) < sizeof(T)
             ? 0
             : 12 * oracle::error_limit<T>(order) * root_mean_square(right);
}

template <class F>
void expect_near(const std::vector<typename F::dst>& is, const wide_values& right, int order, int flag, int s) {
  const long double error = error_of<F>(right, order);
  for (size_t i = 0; i < right.size(); ++i)
    ASSERT_TRUE(rounded(is[i], right[i], error)) << "order " << order << ", flag " << flag << ", scaleFactor " << s
                                                 << ", element " << i << ": " << is[i] << ", not " << right[i];
}

wide_values scaled(wide_values x, long double factor, int s) {
  for (auto& v : x) v = ldexpl(v * factor, -s);
  return x;
}

TYPED_TEST(FftInteger, IsTheDefinitionRounded) {
  using F = TypeParam;
  for (int order = 0; order <= 12; ++order) {
    const size_t  n    = size_t(1) << order;
    const auto    x    = noise<F>(order);
    const auto    wide = F::by_definition(x, order);
    integer_homes h(n);
    each_build<F::exported>([&] {
      for (int flag : flags) {
        const integer_context<typename F::record> context(order, flag, by_way_of_floats);
        for (int s : {0, 1, -1, 3, -5, order / 2, order + 4, 14, 40, -40}) {
          if (order == 0 && has_fixed_point<typename F::record>) continue;
          const auto right = scaled(wide, factor_of(flag, F::inverse, order), s);
          expect_near<F>(transformed<F>(x, n, s, context, {{}, {}, false, 0}, h), right, order, flag, s);
        }
      }
    });
    if (this->HasFatalFailure()) return;
  }
}

TYPED_TEST(FftInteger, SameBitsInEveryLayout) {
  using F = TypeParam;
  for (int order = 0; order <= 12; ++order) {
    const size_t  n = size_t(1) << order;
    const auto    x = noise<F>(order);
    integer_homes h(n);
    each_build<F::exported>([&] {
      for (int hint : {0, by_way_of_floats}) {
        const integer_context<typename F::record> context(order, fftScaleNone, hint);
        std::vector<typename F::dst>              first;
        for (const fft_layout& l : integer_layouts()) {
          const auto is = transformed<F>(x, n, order / 2, context, l, h);
          if (first.empty()) first = is;
          ASSERT_EQ(first_difference(is, first), -1) << "order " << order << ", src " << l.src << ", dst " << l.dst;
        }
      }
    });
    if (this->HasFatalFailure()) return;
  }
}

TYPED_TEST(FftInteger, SameBitsInEveryRoundingMode) {
  using F = TypeParam;
  for (int order : {0, 2, 3, 4, 7}) {
    const size_t  n = size_t(1) << order;
    const auto    x = noise<F>(order);
    integer_homes h(n);
    each_build<F::exported>([&] {
      const integer_context<typename F::record> context(order, fftScaleBoth, by_way_of_floats);
      const auto                                nearest = transformed<F>(x, n, 1, context, {{}, {}, false, 0}, h);
      const uint32_t                            mine    = _mm_getcsr();
      for (uint32_t mode : {0x2000u, 0x4000u, 0x6000u}) {
        _mm_setcsr(mine | mode);
        const auto is = transformed<F>(x, n, 1, context, {{}, {}, false, 0}, h);
        _mm_setcsr(mine);
        ASSERT_EQ(first_difference(is, nearest), -1) << "order " << order << ", mode " << mode;
      }
    });
  }
}

// Far scale factors: nothing is left, or all of it is out of range. A zero times infinity is no number, and becomes the
// highest one.
TYPED_TEST(FftInteger, ExtremesOfTheScaleFactor) {
  using F      = TypeParam;
  using D      = typename F::dst;
  using limits = std::numeric_limits<D>;
  for (int order : {1, 3, 5}) {
    const size_t  n    = size_t(1) << order;
    const auto    x    = noise<F>(order);
    const auto    wide = F::by_definition(x, order);
    integer_homes h(n);
    each_build<F::exported>([&] {
      const integer_context<typename F::record> context(order, fftScaleNone, by_way_of_floats);
      for (int s : {60, 127, 128, 1023, 1024, INT32_MAX})
        for (D v : transformed<F>(x, n, s, context, {{}, {}, false, 0}, h)) ASSERT_EQ(v, 0) << "scaleFactor " << s;
      for (int s : {-1023, -1024, -1025, INT32_MIN + 1, INT32_MIN}) {
        const auto is = transformed<F>(x, n, s, context, {{}, {}, false, 0}, h);
        for (size_t i = 0; i < is.size(); ++i) {
          if (F::to == order_of::ccs && (i == 1 || i == n + 1)) {
            ASSERT_EQ(is[i], 0);
          } else if (fabsl(wide[i]) > error_of<F>(wide, order)) {
            ASSERT_EQ(is[i], wide[i] > 0 ? limits::max() : limits::min()) << "scaleFactor " << s << ", element " << i;
          }
        }
      }
    });
    if (this->HasFatalFailure()) return;
  }
}

// What stands in the slots of the imaginary parts of bins 0 and N/2 is not looked at.
template <class F> void check_ignored_slots() {
  each_build<F::exported>([&] {
    for (int order : {0, 1, 2, 3, 4, 8})
      for (int hint : {0, by_way_of_floats}) {
        const size_t                              n = size_t(1) << order;
        const integer_context<typename F::record> context(order, fftScaleInverse, hint);
        integer_homes                             h(n);
        auto                                      x = noise<F>(order);
        x.resize(elements(F::from, n));
        const auto y = transformed<F>(x, n, 0, context, {{}, {}, false, -1}, h);
        x[1]         = 12345;
        if (n > 1) x[n + 1] = -4321;
        EXPECT_EQ(transformed<F>(x, n, 0, context, {{}, {}, false, -1}, h), y) << "order " << order;
      }
  });
}
TEST(FftIntegerCcs, PartsThatAreZero16s) { check_ignored_slots<inv_ccs_16s>(); }
TEST(FftIntegerCcs, PartsThatAreZero32s) { check_ignored_slots<inv_ccs_32s>(); }
TEST(FftIntegerCcs, PartsThatAreZero32s16s) { check_ignored_slots<inv_32s16s>(); }

// There and back.
template <class There, class Back> void check_there_and_back() {
  each_build<There::exported>([&] {
    for (int order : {4, 9, 13}) {
      const size_t                                  n = size_t(1) << order;
      const integer_context<typename There::record> context(order, fftScaleInverse, 0);
      integer_homes                                 h(n);
      auto                                          x = noise<There>(order);
      for (auto& v : x) v /= 1 << 12;
      const auto y = transformed<There>(x, n, 0, context, {{}, {}, false, -1}, h);
      EXPECT_EQ(transformed<Back>(y, n, 0, context, {{}, {}, false, 3}, h), x) << "order " << order;
    }
  });
}
TEST(FftIntegerThereAndBack, C_16sc) { check_there_and_back<fwd_16sc, inv_16sc>(); }
TEST(FftIntegerThereAndBack, C_16s) { check_there_and_back<fwd_16s, inv_16s>(); }
TEST(FftIntegerThereAndBack, R_16s) { check_there_and_back<fwd_pack_16s, inv_pack_16s>(); }
TEST(FftIntegerThereAndBack, R_16s32s) { check_there_and_back<fwd_16s32s, inv_32s16s>(); }

}  // namespace
