// FIR filters with taps in floats against their definition, over streams cut into blocks, in-place blocks and single
// samples in any mixture.
#include <gtest/gtest.h>

#include <limits>

#include "filter/fir_calls.h"
#include "oracle/fir.h"

using namespace test;

namespace {

template <class F> class FirStream : public testing::Test {};
using families = testing::Types<fir_32f, fir_32fc, fir_64f, fir_64fc, fir_64f_32f, fir_64fc_32fc, fir_32f_16s,
                                fir_32fc_16sc, fir_64f_32s, fir_32s, fir_64f_16s, fir_64fc_32sc, fir_64fc_16sc>;
TYPED_TEST_SUITE(FirStream, families);

// How far a sum may be from the definition: in single or double precision, directly or through transforms, whose error
// spreads over a block.
template <class F>
long double bound(const oracle::fir_output& y, const std::vector<typename F::taps>& h, long double peak) {
  const long double eps    = in_singles<F> ? 0x1p-23L : 0x1p-52L;
  long double       energy = 0;
  for (const auto& tap : h)
    energy += oracle::wide(tap).re * oracle::wide(tap).re + oracle::wide(tap).im * oracle::wide(tap).im;
  const long double n = (long double)h.size(), by_transform = 4 * sqrtl(energy * n) * peak * log2l(4 * n);
  return eps * std::max(y.size * n / 2 + y.size, h.size() < 16 ? 0 : by_transform);
}

template <class P> bool near(P got, long double want, long double error, long double scaled) {
  if constexpr (std::is_integral_v<P>)
    return got >= oracle::to_integer<P>((want - error) * scaled)
           && got <= oracle::to_integer<P>((want + error) * scaled);
  else
    return fabsl(got - want) <= error + fabsl(want) * (long double)std::numeric_limits<P>::epsilon();
}

template <class F>
testing::AssertionResult agrees(const typename F::data& got, const oracle::fir_output& want, long double error,
                                int scale) {
  const long double scaled = ldexpl(1, -scale);
  bool              good;
  if constexpr (is_pair<typename F::data>)
    good = near(got.re, want.value.re, error, scaled) && near(got.im, want.value.im, error, scaled);
  else
    good = near(got, want.value.re, error, scaled);
  if (good) return testing::AssertionSuccess();
  return testing::AssertionFailure() << testing::PrintToString(got) << ", not " << double(want.value.re * scaled)
                                     << ", " << double(want.value.im * scaled) << " within " << double(error * scaled);
}

// The scale factor that brings sums of n products of this size into the middle of the type, more or less.
template <class F> int usual_scale(const std::vector<typename F::taps>& h) {
  if constexpr (!is_integer<F>)
    return 0;
  else
    return (std::is_integral_v<part_of<typename F::taps>> ? 31 : 0) + int(h.size() > 4) + int(h.size() > 30);
}

// What becomes of a piece of the stream.
enum class way { block, in_place, singly, any };

template <class F, class D = typename F::data>
void run_piece(const fir_filter<F>& f, const D* src, D* dst, int n, way how, int scale) {
  if (how == way::block) {
    ASSERT_EQ(filter_block<F>(src, dst, n, f.get(), scale), tavStatusOk);
  } else if (how == way::in_place) {
    std::copy(src, src + n, dst);
    ASSERT_EQ(filter_in_place<F>(dst, n, f.get(), scale), tavStatusOk);
  } else {
    for (int i = 0; i < n; ++i) ASSERT_EQ(filter_one<F>(src[i], dst + i, f.get(), scale), tavStatusOk);
  }
}

template <class F> void check_stream(int tapsLen, const std::vector<int>& pieces, way how, bool allocated) {
  using D = typename F::data;
  source_of_data data(uint32_t(tapsLen * 7 + int(how)));
  const auto     h     = any_sizes<typename F::taps>(data, size_t(tapsLen));
  const int      scale = usual_scale<F>(h);
  size_t         total = 0;
  for (int n : pieces) total += size_t(n);
  const auto     x = any_sizes<D>(data, total);
  std::vector<D> y(total);

  const fir_filter<F> f(h, allocated);
  size_t              done = 0;
  for (int n : pieces) {
    way w = how;
    if (w == way::any) w = n > 200 || data.below(2) ? (data.below(2) ? way::block : way::in_place) : way::singly;
    run_piece(f, x.data() + done, y.data() + done, n, w, scale);
    done += size_t(n);
  }
  const long double peak = is_integer<F> ? -(long double)std::numeric_limits<part_of<D>>::min() : 1.0L;
  for (size_t i = 0; i < total; ++i) {
    const auto want = oracle::fir(h, x, i);
    ASSERT_TRUE(agrees<F>(y[i], want, bound<F>(want, h, peak), scale)) << "sample " << i << " of " << total;
  }
}

std::vector<int> random_pieces(uint32_t seed, int total, int longest) {
  source_of_data   data(seed);
  std::vector<int> pieces;
  for (int left = total; left > 0; left -= pieces.back())
    pieces.push_back(std::min(left, 1 + data.below(1 + data.below(longest))));
  return pieces;
}

TYPED_TEST(FirStream, ShortPieces) {
  each_build<TypeParam::block>([&] {
    for (int n = 1; n <= 80; ++n) {
      SCOPED_TRACE(testing::Message() << n << " taps");
      check_stream<TypeParam>(n, random_pieces(uint32_t(n), 500, 150), way(n % 4), n % 2 == 0);
      check_stream<TypeParam>(n, random_pieces(uint32_t(n) + 99, 300, 60), way::any, n % 2 != 0);
      if (this->HasFatalFailure()) return;
    }
  });
}

TYPED_TEST(FirStream, ThresholdsAndLongPieces) {
  const std::vector<int> pieces{511, 512, 3, 513, 1, 4095, 4096, 255, 256, 257, 4097, 2047, 2048, 2049, 64, 4096 + 511};
  each_build<TypeParam::block>([&] {
    for (int n : {1, 4, 15, 16, 17, 31, 32, 33, 63, 64, 65})
      for (way how : {way::block, way::in_place}) {
        SCOPED_TRACE(testing::Message() << n << " taps, " << (how == way::block ? "blocks" : "in place"));
        check_stream<TypeParam>(n, pieces, how, n % 2 != 0);
        if (this->HasFatalFailure()) return;
      }
  });
}

TYPED_TEST(FirStream, VeryLongPieces) {
  const std::vector<int> pieces{8191, 5, 8193, 700, 4096 + 512, 1, 600};
  each_build<TypeParam::block>([&] {
    for (int n : {40, 70, 128, 300}) {
      SCOPED_TRACE(testing::Message() << n << " taps");
      check_stream<TypeParam>(n, pieces, way::any, n != 70);
      if (this->HasFatalFailure()) return;
    }
  });
}

// Sums of small whole numbers are exact in every order, but not through a transform: so the way shows. Counts what is
// not exact from a sample on.
template <class F> int inexact_outputs(int tapsLen, int len, way how, size_t from = 0) {
  using D = typename F::data;
  source_of_data      data(5);
  const auto          h = wholes<typename F::taps>(data, size_t(tapsLen), 9);
  const auto          x = wholes<D>(data, size_t(len), 99);
  std::vector<D>      y(x.size());
  const fir_filter<F> f(h);
  run_piece(f, x.data(), y.data(), len, how, 0);
  int wrong = 0;
  for (size_t i = from; i < x.size(); ++i) {
    const auto want = oracle::fir(h, x, i).value, got = oracle::wide(y[i]);
    wrong += got.re != want.re || got.im != want.im;
  }
  return wrong;
}

TYPED_TEST(FirStream, ExactWhereSumsAre) {
  using F = TypeParam;
  each_build<F::block>([&] {
    for (int n = 1; n <= 80; ++n)
      for (int len : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 23, 24, 25, 31, 33, 40, 63, 64, 67, 81, 82, 100, 130, 255})
        for (way how : {way::block, way::in_place, way::singly})
          ASSERT_EQ(inexact_outputs<F>(n, len, how), 0) << n << " taps, length " << len << ", way " << int(how);
  });
}

template <class F> class FirWays : public testing::Test {};
using unconverted = testing::Types<fir_32f, fir_32fc, fir_64f, fir_64fc>;
TYPED_TEST_SUITE(FirWays, unconverted);

TYPED_TEST(FirWays, TransformsFromTheirThresholdsOn) {
  using F             = TypeParam;
  constexpr bool pair = is_pair<typename F::data>;
  const int      taps = !pair ? 64 : in_singles<F> ? 16 : 32, len = pair ? 256 : 512;
  each_build<F::block>([&] {
    const auto exact = [](int n, int length, way how, size_t from = 0) {
      return inexact_outputs<F>(n, length, how, from) == 0;
    };
    EXPECT_TRUE(exact(taps - 1, len, way::block));
    EXPECT_TRUE(exact(taps, len - 1, way::block));
    EXPECT_FALSE(exact(taps, len, way::block));
    EXPECT_TRUE(exact(taps, 4096, way::in_place));
    EXPECT_TRUE(exact(taps, 4096 + len - 1, way::in_place));
    EXPECT_FALSE(exact(taps, 4096 + len, way::in_place));
    EXPECT_TRUE(exact(taps, 8192 + len - 1, way::in_place, 4096)) << "only the first piece is transformed";
    EXPECT_FALSE(exact(taps, 8192 + len, way::in_place, 4096));
  });
}

// 2.5, 3.5 and their like go to the even neighbour whatever the caller's mode; a result without a fraction stays.
TYPED_TEST(FirStream, IntegersRoundToEvenInAnyMode) {
  using F = TypeParam;
  if constexpr (is_integer<F>) {
    using D = typename F::data;
    each_build<F::block>([&] {
      std::vector<typename F::taps> h(1);
      if constexpr (is_pair<typename F::taps>)
        h[0].re = 1;
      else
        h[0] = 1;
      source_of_data data(3);
      const auto     x = any_sizes<D>(data, 300);
      for (uint32_t mode : {0x0000u, 0x2000u, 0x4000u, 0x6000u})
        for (int scale : {-40, -3, -1, 0, 1, 2, 9, 15, 31, 40}) {
          const fir_filter<F> f(h);
          std::vector<D>      y(x.size()), z = x;
          D                   last;
          const uint32_t      mine = _mm_getcsr();
          _mm_setcsr(mine | mode);
          const TavStatus a = filter_block<F>(x.data(), y.data(), int(x.size()), f.get(), scale),
                          b = filter_in_place<F>(z.data(), int(z.size()), f.get(), scale),
                          c = filter_one<F>(x.back(), &last, f.get(), scale);
          _mm_setcsr(mine);
          ASSERT_TRUE(a == 0 && b == 0 && c == 0);
          for (size_t i = 0; i < x.size(); ++i) ASSERT_TRUE(agrees<F>(y[i], oracle::fir(h, x, i), 0, scale)) << scale;
          ASSERT_LT(first_difference(y, z), 0);
          ASSERT_TRUE(same(last, y.back()));
        }
    });
  }
}

// Floats are rounded in the caller's mode: with one tap a result is one product.
template <class F> void check_callers_mode() {
  using D = typename F::data;
  each_build<F::block>([&] {
    source_of_data       data(8);
    const std::vector<D> h = any_sizes<D>(data, 1), x = any_sizes<D>(data, 50);
    const fir_filter<F>  f(h);
    for (uint32_t mode : {0x0000u, 0x2000u, 0x4000u, 0x6000u}) {
      std::vector<D> y(x.size()), want(x.size());
      const uint32_t mine = _mm_getcsr();
      _mm_setcsr(mine | mode);
      for (size_t i = 0; i < x.size(); ++i) {
        volatile D a = x[i], b = h[0];
        want[i] = a * b;
      }
      const TavStatus status = filter_block<F>(x.data(), y.data(), int(x.size()), f.get(), 0);
      _mm_setcsr(mine);
      ASSERT_EQ(status, tavStatusOk);
      ASSERT_LT(first_difference(y, want), 0) << "mode " << mode;
    }
  });
}
TEST(FirRounding, Singles) { check_callers_mode<fir_32f>(); }
TEST(FirRounding, Doubles) { check_callers_mode<fir_64f>(); }

}  // namespace
