// The Direct FIR calls against their definition, bit for bit: results, ring and index after each call.
#include <limits.h>

#include "filter/fir_direct_calls.h"
#include "harness/forms.h"

using namespace test;
using namespace test::direct;

namespace {

template <class F> class FirDirect : public testing::Test {};
using families = testing::Types<direct_32f, direct_32fc, direct_64f, direct_64fc, direct_64f_32f, direct_64fc_32fc,
                                direct_32f_16s, direct_32fc_16sc, direct_64f_16s, direct_64fc_16sc, direct_64f_32s,
                                direct_64fc_32sc, direct_32s_16s, direct_32sc_16sc>;
TYPED_TEST_SUITE(FirDirect, families);

// Floats within one, integers of any size.
template <class T> T ordinary(source_of_data& data) {
  if constexpr (is_pair<T>)
    return {ordinary<decltype(T::re)>(data), ordinary<decltype(T::re)>(data)};
  else if constexpr (std::is_integral_v<T>)
    return data.value<T>();
  else
    return T(int32_t(data.bits()) / 2147483648.0);
}
template <class T> std::vector<T> some(source_of_data& data, size_t n, bool special = false) {
  std::vector<T> v(n);
  for (T& x : v) x = special ? data.value<T>() : ordinary<T>(data);
  return v;
}

placement somewhere(source_of_data& data) {
  const int where = data.below(20);
  if (where >= 18) return {where == 18 ? placement::begins_at_page : placement::ends_at_page};
  return {placement::inside, unsigned(where % 16)};
}

struct homes {
  arena src{1 << 16}, dst{1 << 16}, taps{1 << 15}, ring{1 << 16}, index{4096};
};
homes& places() {
  static homes h;
  return h;
}

template <class F, class T = typename F::taps, class D = typename F::data>
void check_call(way how, const std::vector<T>& h, oracle::ring<D>& ring, const std::vector<D>& x, factors f,
                source_of_data& data) {
  homes&     in = places();
  array<D>   src(in.src, x.size(), somewhere(data)), dst(in.dst, x.size(), somewhere(data));
  array<T>   taps(in.taps, h.size(), somewhere(data));
  array<D>   dly(in.ring, ring.places.size(), somewhere(data));
  array<int> index(in.index, 1, somewhere(data));
  src.assign(x), taps.assign(h), dly.assign(ring.places), index.assign({ring.index});
  if (how == way::in_place || how == way::singly_in_place) dst.assign(x);
  ASSERT_EQ(F::run(how, src.data(), dst.data(), int(x.size()), taps.data(), int(h.size()), dly.data(), index.data(), f),
            tavStatusOk);

  std::vector<D> expected;
  for (const D& val : x) expected.push_back(wanted<F>(h, ring.window_after(val), f));
  const auto got = dst.values();
  if (const long i = first_difference(got, expected); i >= 0)
    FAIL() << "sample " << i << " of " << x.size() << ", " << h.size() << " taps, way " << int(how) << ", scale "
           << f.scale << ", " << f.taps << ": " << testing::PrintToString(got[size_t(i)]) << ", not "
           << testing::PrintToString(expected[size_t(i)]);
  ASSERT_EQ(first_difference(dly.values(), ring.places), -1) << "another ring";
  ASSERT_EQ(index.values()[0], ring.index);
  ASSERT_TRUE(src.guards_intact() && dst.guards_intact() && taps.guards_intact() && dly.guards_intact()
              && index.guards_intact());
}

// Factors by which results have the size of the type, or not.
template <class F> factors some_factors(source_of_data& data) {
  factors f;
  if constexpr (F::type == kind::scaled) {
    f.scale = data.below(8) - 3;
  } else if constexpr (F::type == kind::factored) {
    f.taps  = data.below(2) ? data.below(64) - 32 : -20 - data.below(12);
    f.scale = data.below(5) - 2;
  }
  return f;
}

// A signal in pieces. The ring begins with anything, its halves not alike.
template <class F> void check_signal(int tapsLen, std::vector<int> pieces, uint32_t seed, bool special = false) {
  source_of_data                 data(seed);
  const auto                     h = some<typename F::taps>(data, size_t(tapsLen), special);
  oracle::ring<typename F::data> ring{some<typename F::data>(data, size_t(tapsLen) * 2), data.below(tapsLen)};
  for (int n : pieces) {
    const auto x = some<typename F::data>(data, size_t(n), special);
    check_call<F>(way(data.below(ways)), h, ring, x, some_factors<F>(data), data);
    if (testing::Test::HasFatalFailure()) return;
  }
}

std::vector<int> some_pieces(uint32_t seed, int total, int longest) {
  source_of_data   data(seed);
  std::vector<int> pieces;
  for (; total > 0; total -= pieces.back()) pieces.push_back(1 + data.below(1 + data.below(longest)));
  return pieces;
}

TYPED_TEST(FirDirect, AnyPieces) {
  each_build<TypeParam::block>([&] {
    for (int n = 1; n <= 80; ++n) {
      check_signal<TypeParam>(n, some_pieces(uint32_t(n), 300, 120), uint32_t(n));
      if (this->HasFatalFailure()) return;
    }
  });
}

// 256 outputs, or 128 of integer taps, and 256 taps are made at once.
TYPED_TEST(FirDirect, LongPiecesAndManyTaps) {
  each_build<TypeParam::block>([&] {
    for (int n : {1, 2, 3, 31, 32, 127, 128, 129, 255, 256, 257, 258, 400, 511, 512, 513})
      check_signal<TypeParam>(n, {127, 128, 129, 1, 255, 256, 257, 600}, uint32_t(n) + 1000);
  });
}

TYPED_TEST(FirDirect, EachLengthAtOnce) {
  each_build<TypeParam::block>([&] {
    for (int n : {5, 8})
      for (int len = 1; len <= 150; ++len) check_signal<TypeParam>(n, {20, len}, uint32_t(len));
  });
}

TYPED_TEST(FirDirect, SpecialValues) {
  if constexpr (TypeParam::type == kind::plain)
    each_build<TypeParam::block>([&] {
      for (int n : {1, 2, 3, 4, 7})
        for (uint32_t seed = 0; seed < 40; ++seed) check_signal<TypeParam>(n, {30, 140}, seed, true);
    });
}

// Sums are made in the caller's mode; integers round half away from zero, or half to even, in any.
TYPED_TEST(FirDirect, AnyRoundingMode) {
  each_build<TypeParam::block>([&] {
    for (unsigned mode : rounding_modes) {
      const rounding_mode scope(mode);
      for (int n : {1, 6, 33}) check_signal<TypeParam>(n, {100, 3, 40}, uint32_t(n));
    }
  });
}

template <class T> T small_whole(source_of_data& data) {
  if constexpr (is_pair<T>)
    return {small_whole<decltype(T::re)>(data), small_whole<decltype(T::re)>(data)};
  else
    return T(data.below(15) - 7);
}

// The definition of the filter itself, which needs no ring: exact where all numbers are small and whole.
TYPED_TEST(FirDirect, IsTheFilter) {
  using F = TypeParam;
  using D = typename F::data;
  each_build<F::block>([&] {
    for (int n : {1, 2, 7, 40}) {
      source_of_data                data(3);
      std::vector<typename F::taps> h(static_cast<size_t>(n));
      std::vector<D>                x(200), y(200), ring(size_t(n) * 2);
      int                           index = 0;
      for (auto& v : h) v = small_whole<typename F::taps>(data);
      for (auto& v : x) v = small_whole<D>(data);
      ASSERT_EQ(F::run(way::block, x.data(), y.data(), 200, h.data(), n, ring.data(), &index, {}), tavStatusOk);
      std::vector<Tav64sc> wide_h, wide_x;
      const auto           wide = [](const auto& v) {
        if constexpr (requires { v.re; })
          return Tav64sc{Tav64s(v.re), Tav64s(v.im)};
        else
          return Tav64sc{Tav64s(v), 0};
      };
      for (size_t i = 0; i < x.size(); ++i) {
        Tav64sc sum{};
        for (size_t k = 0; k < h.size() && k <= i; ++k) {
          const Tav64sc a = wide(h[k]), b = wide(x[i - k]);
          sum.re += a.re * b.re - a.im * b.im, sum.im += a.re * b.im + a.im * b.re;
        }
        ASSERT_EQ(wide(y[i]).re, sum.re) << i;
        ASSERT_EQ(wide(y[i]).im, sum.im) << i;
      }
    }
  });
}

// One tap of 1: what becomes of each value at each factor.
template <class F> class FirDirectScale : public testing::Test {};
using to_integers = testing::Types<direct_32f_16s, direct_32fc_16sc, direct_64f_16s, direct_64fc_16sc, direct_64f_32s,
                                   direct_64fc_32sc, direct_32s_16s, direct_32sc_16sc>;
TYPED_TEST_SUITE(FirDirectScale, to_integers);

template <class T> T real(double v) {
  if constexpr (is_pair<T>)
    return {decltype(T::re)(v), 0};
  else
    return T(v);
}

TYPED_TEST(FirDirectScale, EachFactor) {
  using F = TypeParam;
  each_build<F::block>([&] {
    source_of_data data(9);
    const auto     x = some<typename F::data>(data, 40);
    for (int scale = -260; scale <= 260; ++scale)
      for (way how : {way::block, way::singly}) {
        oracle::ring<typename F::data> ring{std::vector<typename F::data>(2), 0};
        check_call<F>(how, std::vector{real<typename F::taps>(1)}, ring, x, {scale, 0}, data);
      }
    for (int scale : {INT_MIN, INT_MIN + 1, INT_MIN + 127, INT_MAX, INT_MAX - 127, 1 << 20, -(1 << 20)})
      for (int taps : {0, INT_MIN, INT_MAX}) {
        oracle::ring<typename F::data> ring{std::vector<typename F::data>(2), 0};
        check_call<F>(way::block, std::vector{real<typename F::taps>(1)}, ring, x, {scale, taps}, data);
      }
  });
}

// A half of each small integer goes away from zero, or to the even neighbour.
TYPED_TEST(FirDirectScale, Ties) {
  using F = TypeParam;
  each_build<F::block>([&] {
    constexpr bool even = F::type == kind::factored;
    for (int twice = -9; twice <= 9; twice += 2) {
      typename F::data x     = real<typename F::data>(twice), y{}, ring[2]{};
      const auto       h     = real<typename F::taps>(1);
      int              index = 0;
      ASSERT_EQ(F::run(way::block, &x, &y, 1, &h, 1, ring, &index, {1, 0}), tavStatusOk);
      const int away = (twice + (twice > 0 ? 1 : -1)) / 2, toward = (twice - (twice > 0 ? 1 : -1)) / 2;
      EXPECT_EQ(memcmp(&y, std::vector{real<typename F::data>(even && away % 2 != 0 ? toward : away)}.data(), sizeof y),
                0)
          << twice << " / 2";
    }
  });
}

}  // namespace
