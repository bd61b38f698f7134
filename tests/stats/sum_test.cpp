// tavsSum: exact of integers, in every rounding mode; of floats near the exact sum, by the hint.
#include "stats/summaries.h"

using namespace test;

namespace {

// Integers.

template <auto* Export> void check_integers(const std::vector<int>& scales, const std::set<int>& lengths) {
  for (int s : scales)
    check_summary<Export>(
        lengths,
        [s](const auto& src, const auto& result) {
          by_parts(src, result, [s](const auto& v, auto r) {
            EXPECT_EQ(r, (oracle::rounded_quotient<decltype(r)>(oracle::sum_of(v), 1, s, oracle::direction::nearest)));
          });
        },
        s);
}

template <auto* Export> void check_integers() {
  check_integers<Export>({0, 3}, lengths_around({0x10000}, 70));
  check_integers<Export>(few_scales, {1, 7, 33});
}

TEST(Sum, As16s) { check_integers<&::tavsSum_16s_Sfs>(); }
TEST(Sum, As16s32s) { check_integers<&::tavsSum_16s32s_Sfs>(); }
TEST(Sum, As16sc) { check_integers<&::tavsSum_16sc_Sfs>(); }
TEST(Sum, As16sc32sc) { check_integers<&::tavsSum_16sc32sc_Sfs>(); }
TEST(Sum, As32s) { check_integers<&::tavsSum_32s_Sfs>(); }

// Every scale factor in every rounding mode, with sums of all magnitudes: ties, saturation, nothing left.
template <auto* Export, class T> void check_scales_and_modes() {
  source_of_data data(3);
  for (int n : {1, 2, 9, 40})
    for (int s : all_scales()) {
      const auto src = many_of_any_magnitude<T>(data, size_t(n));
      for (const mode& m : thread_modes) {
        const auto result = [&] {
          const rounding_mode scope(m.sse);
          return summary<Export>(src, s);
        }();
        by_parts(src, result, [&](const auto& v, auto r) {
          EXPECT_EQ(r, (oracle::rounded_quotient<decltype(r)>(oracle::sum_of(v), 1, s, m.direction)))
              << "length " << n << ", scale " << s << ", mode " << m.sse;
        });
      }
    }
}

TEST(Sum, ScalesAndModes) {
  check_scales_and_modes<&::tavsSum_16s_Sfs, Tav16s>();
  check_scales_and_modes<&::tavsSum_16s32s_Sfs, Tav16s>();
  check_scales_and_modes<&::tavsSum_16sc_Sfs, Tav16sc>();
  check_scales_and_modes<&::tavsSum_16sc32sc_Sfs, Tav16sc>();
  check_scales_and_modes<&::tavsSum_32s_Sfs, Tav32s>();
}

// Millions of extremes: no lane overflows. The scale brings each sum into the range of the result.
template <auto* Export, class T> void check_extremes(T value, size_t n, int s) {
  const std::vector<T> src(n, value);
  by_parts(src, summary<Export>(src, s), [&](const auto& v, auto r) {
    EXPECT_EQ(r, (oracle::rounded_quotient<decltype(r)>(oracle::sum_of(v), 1, s, oracle::direction::nearest)));
  });
}

TEST(Sum, MillionsOfExtremes) {
  for (size_t n : {size_t(3000001), size_t(0x200000)}) {
    for (int v : {-32768, 32767, -32767, 1}) {
      const auto w = Tav16s(v);
      check_extremes<&::tavsSum_16s32s_Sfs>(w, n, 8);
      check_extremes<&::tavsSum_16s_Sfs>(w, n, 23);
      check_extremes<&::tavsSum_16sc32sc_Sfs>(Tav16sc{w, Tav16s(~w)}, n, 8);
      check_extremes<&::tavsSum_16sc_Sfs>(Tav16sc{w, Tav16s(~w)}, n, 23);
    }
    for (int v : {INT_MIN, INT_MAX, -65536, 65535, -1})
      for (int s : {0, 22}) check_extremes<&::tavsSum_32s_Sfs>(Tav32s(v), n, s);
  }
}

// 2^54 + 2^23 + 1, which no double holds, is above the tie that it would be rounded to.
TEST(Sum, NextToATieBeyondDoubles) {
  std::vector<Tav32s> src(size_t(1) << 23, INT_MAX);
  src.push_back((1 << 24) + 1);
  EXPECT_EQ((summary<&::tavsSum_32s_Sfs>(src, 24)), (1 << 30) + 1);
  src.back() -= 1;
  EXPECT_EQ((summary<&::tavsSum_32s_Sfs>(src, 24)), 1 << 30);
  for (Tav32s& v : src) v = -v;
  src.back() -= 1;
  EXPECT_EQ((summary<&::tavsSum_32s_Sfs>(src, 24)), -(1 << 30) - 1);
}

// Floats.

// How far a result may be from the exact sum, by the sum of all magnitudes and the length.
template <class T> long double tolerance_of(long double sizes, size_t n, bool accurate) {
  if (sizeof(T) == 8) return sizes * (8 + std::sqrt(double(n))) * 0x1p-53L;
  return accurate ? sizes * double(n) * 0x1p-64L : sizes * 8 * 0x1p-24L;
}

template <class T> void expect_sum(const std::vector<T>& v, T result, bool accurate) {
  if (!is_tame(v)) {
    for (T x : v)
      if (x != x) {
        EXPECT_TRUE(result != result);
      }
    return;
  }
  const auto        exact = oracle::summary_of(v);
  const long double last  = fabsl(exact.sum) * std::numeric_limits<T>::epsilon() / 2 * (1 + 0x1p-20L);
  EXPECT_LE(fabsl(result - exact.sum), last + tolerance_of<T>(exact.sizes, v.size(), accurate) + 0x1p-149L)
      << "length " << v.size() << ", sum " << double(exact.sum) << ", result " << result;
}

template <auto* Export, class... Hint> void check_floats(bool accurate, Hint... hint) {
  const auto look = [=](const auto& src, const auto& result) {
    by_parts(src, result, [=](const auto& v, auto r) { expect_sum(v, r, accurate); });
  };
  check_summary<Export>(block_lengths(), look, hint...);
}

TEST(Sum, As32f) { check_floats<&::tavsSum_32f>(false, 1), check_floats<&::tavsSum_32f>(true, 0); }
TEST(Sum, As32fc) { check_floats<&::tavsSum_32fc>(false, 1), check_floats<&::tavsSum_32fc>(true, 0); }
TEST(Sum, As64f) { check_floats<&::tavsSum_64f>(true); }
TEST(Sum, As64fc) { check_floats<&::tavsSum_64fc>(true); }

template <auto* Export, class T, class... Hint> void check_ordinary(bool accurate, Hint... hint) {
  source_of_data data(5);
  for (size_t n : {100u, 5000u, 0x8000u, 70000u, 500003u})
    for (double offset : {0.0, 1.0, -1000.0}) {
      const auto src = ordinary<T>(data, n, offset);
      by_parts(src, summary<Export>(src, hint...), [&](const auto& v, auto r) { expect_sum(v, r, accurate); });
    }
}

TEST(Sum, OrdinaryFloats) {
  for (int hint : {0, 1}) {
    check_ordinary<&::tavsSum_32f, Tav32f>(hint != 1, hint);
    check_ordinary<&::tavsSum_32fc, Tav32fc>(hint != 1, hint);
  }
  check_ordinary<&::tavsSum_64f, Tav64f>(true);
  check_ordinary<&::tavsSum_64fc, Tav64fc>(true);
}

// What singles cannot add up shows which form it is; the accurate one sees it at every place.
TEST(Sum, HintsDiffer) {
  for (int n = 1; n < 100; ++n) {
    std::vector<Tav32f> src(size_t(n), 1.0f);
    for (Tav32f& big : src) {
      big                                = 0x1p60f;
      std::vector<Tav32f> there_and_back = src;
      there_and_back.push_back(-0x1p60f);
      for (int hint : accurate_hints) EXPECT_EQ(summary<&::tavsSum_32f>(there_and_back, hint), Tav32f(n - 1));
      big = 1;
    }
  }
  std::vector<Tav32f> src(100, 1.0f);
  src[0] = 0x1p60f, src[50] = -0x1p60f;
  EXPECT_NE(summary<&::tavsSum_32f>(src, 1), summary<&::tavsSum_32f>(src, 0));
}

// The sums of blocks are added in extended precision: what singles would swallow survives in a block of its own.
TEST(Sum, BlocksOfSingles) {
  constexpr size_t    block = 0x8000;
  std::vector<Tav32f> src(3 * block, 0.0f);
  for (size_t i = block; i < 2 * block; ++i) src[i] = 1;
  src[block - 1] = 0x1p50f, src[2 * block] = -0x1p50f;
  EXPECT_EQ(summary<&::tavsSum_32f>(src, 1), Tav32f(block));
}

// The accurate form rounds to nearest in full precision, whatever the caller has set; the others follow the caller.
TEST(Sum, FloatsAndModes) {
  source_of_data data(9);
  const auto     src      = ordinary<Tav32f>(data, 1000, 3);
  const auto     long_src = std::vector<Tav64f>(src.begin(), src.end());
  const auto     want     = summary<&::tavsSum_32f>(src, 0);
  for (const mode& m : thread_modes) {
    const rounding_mode scope(m.sse);
    const extended_word word(extended_word::single_precision_to_zero);
    EXPECT_EQ(summary<&::tavsSum_32f>(src, 0), want);
  }
  const auto in_mode = [&](unsigned m, const auto& sum) {
    const rounding_mode scope(m);
    return sum();
  };
  const auto fast = [&] { return summary<&::tavsSum_32f>(std::vector<Tav32f>{1, 0x1p-30f}, 1); };
  EXPECT_EQ(in_mode(rounding_mode::down, fast), 1.0f);
  EXPECT_EQ(in_mode(rounding_mode::up, fast), std::nextafter(1.0f, 2.0f));
  const auto doubles = [&] { return summary<&::tavsSum_64f>(std::vector<Tav64f>{1, 0x1p-70}); };
  EXPECT_EQ(in_mode(rounding_mode::down, doubles), 1.0);
  EXPECT_EQ(in_mode(rounding_mode::up, doubles), std::nextafter(1.0, 2.0));
  const auto          blocks = ordinary<Tav32f>(data, 100000, 1);
  const auto          sum    = summary<&::tavsSum_32f>(blocks, 1);
  const extended_word word(extended_word::single_precision_to_zero);
  EXPECT_EQ(summary<&::tavsSum_32f>(blocks, 1), sum);
}

// At every place, in vectors and tails alike.
template <auto* Export, class T, class... Hint> void check_infinities(Hint... hint) {
  constexpr T inf = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
  for (size_t n = 1; n < 70; ++n)
    for (size_t i = 0; i < n; ++i) {
      std::vector<T> src(n, T(1));
      src[i] = inf;
      EXPECT_EQ(summary<Export>(src, hint...), inf);
      src[(i + 1) % n] = -inf;
      EXPECT_TRUE(n == 1 || std::isnan(summary<Export>(src, hint...)));
      src[(i + 1) % n] = 2, src[i] = nan;
      EXPECT_TRUE(std::isnan(summary<Export>(src, hint...)));
    }
}

TEST(Sum, InfinitiesAndNans) {
  for (int hint : {0, 1}) check_infinities<&::tavsSum_32f, Tav32f>(hint);
  check_infinities<&::tavsSum_64f, Tav64f>();
}

// Extended sums leave the range of singles and come back.
TEST(Sum, BeyondSingles) {
  const Tav32f big = std::numeric_limits<Tav32f>::max();
  EXPECT_EQ(summary<&::tavsSum_32f>(std::vector<Tav32f>{big, big, -big}, 0), big);
  EXPECT_EQ(summary<&::tavsSum_32f>(std::vector<Tav32f>(1000, big), 0), std::numeric_limits<Tav32f>::infinity());
}

}  // namespace

#define CASE(form) TAV_FAULTS(Sum_##form, pointers_then_second<1>)
CASE(16s_Sfs) CASE(16s32s_Sfs) CASE(32s_Sfs) CASE(16sc_Sfs) CASE(16sc32sc_Sfs) CASE(32f) CASE(32fc) CASE(64f) CASE(64fc)
#undef CASE
