// The complex transforms of floats: against the definition in long double, in every layout with the same bits, and by
// what a Fourier transform must do where the definition would take too long.
#include <gtest/gtest.h>

#include "oracle/fft.h"
#include "transform/fft_runs.h"

using namespace test;

namespace {

template <class F> class FftComplex : public testing::Test {};
using families = testing::Types<fft_32fc, fft_32f, fft_64fc, fft_64f>;
TYPED_TEST_SUITE(FftComplex, families);

std::vector<fft_layout> layouts() {
  using p = placement;
  return {{{p::inside, 0}, {p::inside, 0}, false, 0},         {{p::inside, 0}, {p::inside, 0}, true, 0},
          {{p::inside, 4}, {p::inside, 0}, false, 1},         {{p::inside, 0}, {p::inside, 8}, false, 15},
          {{p::inside, 12}, {p::inside, 4}, false, -1},       {{p::inside, 0}, {p::inside, 12}, true, 7},
          {{p::begins_at_page}, {p::ends_at_page}, false, 3}, {{p::ends_at_page}, {p::begins_at_page}, false, 9},
          {{p::inside, 3}, {p::inside, 5}, false, 2},         {{p::inside, 0}, {p::ends_at_page}, true, -1}};
}

template <class F, bool Inverse> void check_against_definition(int order, int flag, long double factor) {
  const size_t                      n = size_t(1) << order;
  const auto                        x = noise<F>(n, uint32_t(order * 10 + flag));
  std::vector<oracle::wide_complex> right(n);
  for (size_t i = 0; i < n; ++i) right[i] = {x[i].re, x[i].im};
  oracle::transform(right, Inverse ? 1 : -1);
  for (auto& v : right) v *= factor;

  fft_room<F> room(n);
  each_build<F::forward>([&] {
    const fft_context<F>            context(order, flag);
    std::vector<typename F::sample> first;
    for (const fft_layout& l : layouts()) {
      SCOPED_TRACE(testing::Message() << "order " << order << ", flag " << flag << (Inverse ? ", inverse" : ", forward")
                                      << ", src " << l.src << ", dst " << l.dst << ", in place " << l.in_place);
      const auto is = room.template run<Inverse>(x, context, l);
      if (first.empty()) {
        first = is;
        ASSERT_LE(oracle::relative_error(is, right), oracle::error_limit<typename F::part>(order));
      }
      ASSERT_EQ(first_difference(is, first), -1) << "not the bits of the first layout";
    }
  });
}

TYPED_TEST(FftComplex, IsTheDefinition) {
  for (int order = 0; order <= 16; ++order) {
    check_against_definition<TypeParam, false>(order, fftScaleNone, 1);
    check_against_definition<TypeParam, true>(order, fftScaleNone, 1);
    if (this->HasFatalFailure()) return;
  }
}

TYPED_TEST(FftComplex, FlagsScale) {
  for (int order = 0; order <= 12; ++order) {
    const long double n = 1 << order;
    check_against_definition<TypeParam, false>(order, fftScaleForward, 1 / n);
    check_against_definition<TypeParam, true>(order, fftScaleForward, 1);
    check_against_definition<TypeParam, false>(order, fftScaleInverse, 1);
    check_against_definition<TypeParam, true>(order, fftScaleInverse, 1 / n);
    check_against_definition<TypeParam, false>(order, fftScaleBoth, 1 / sqrtl(n));
    check_against_definition<TypeParam, true>(order, fftScaleBoth, 1 / sqrtl(n));
    if (this->HasFatalFailure()) return;
  }
}

// Long transforms: an impulse gives a row of roots of unity, which has an error of its own at each bin; noise comes
// back from there and back; out of place, in place and unaligned give the same bits.
template <class F> void check_long(int order) {
  using T            = typename F::part;
  const size_t     n = size_t(1) << order, at = (n / 8 * 5 + 77) % n;
  fft_room<F>      room(n);
  const fft_layout plain{{}, {}, false, 0}, in_place{{}, {}, true, 5},
      odd{{placement::inside, 4}, {placement::inside, 4}, false, -1};
  each_build<F::forward>([&] {
    SCOPED_TRACE(testing::Message() << "order " << order);
    const fft_context<F>            context(order, fftScaleInverse);
    std::vector<typename F::sample> x(n);
    x[at]                                = {1, 0};
    const auto                        is = room.template run<false>(x, context, plain);
    std::vector<oracle::wide_complex> right(n);
    for (size_t k = 0; k < n; ++k) right[k] = std::conj(oracle::root_of_unity(uint64_t(k) * at % n, n));
    ASSERT_LE(oracle::relative_error(is, right), oracle::error_limit<T>(order));

    x            = noise<F>(n, uint32_t(order));
    const auto y = room.template run<false>(x, context, plain);
    ASSERT_EQ(first_difference(room.template run<false>(x, context, in_place), y), -1);
    ASSERT_EQ(first_difference(room.template run<false>(x, context, odd), y), -1);
    const auto back = room.template run<true>(y, context, in_place);
    for (size_t i = 0; i < n; ++i) right[i] = {x[i].re, x[i].im};
    ASSERT_LE(oracle::relative_error(back, right), 2 * oracle::error_limit<T>(order));
  });
}

TYPED_TEST(FftComplex, LongOnes) {
  for (int order = 17; order <= 20; ++order) check_long<TypeParam>(order);
}

}  // namespace
