// tavsMean: the exact quotient of integers, rounded once; of floats near the exact mean.
#include "stats/summaries.h"

using namespace test;

namespace {

template <auto* Export> void check_integers() {
  for (int s : few_scales)
    check_summary<Export>(
        s == 0 ? lengths_around({0x10000}, 70) : std::set<int>{1, 7, 33},
        [s](const auto& src, const auto& result) {
          by_parts(src, result, [s](const auto& v, auto r) {
            EXPECT_EQ(r, (oracle::rounded_quotient<decltype(r)>(oracle::sum_of(v), int64_t(v.size()), s,
                                                                oracle::direction::nearest)));
          });
        },
        s);
}

TEST(Mean, As16s) { check_integers<&::tavsMean_16s_Sfs>(); }
TEST(Mean, As16sc) { check_integers<&::tavsMean_16sc_Sfs>(); }
TEST(Mean, As32s) { check_integers<&::tavsMean_32s_Sfs>(); }

// Words follow the caller's mode, other integers never do.
template <auto* Export, class T> void check_scales_and_modes(bool follows) {
  source_of_data data(3);
  for (int n : {1, 2, 3, 4, 7, 48, 1000})
    for (int s : all_scales()) {
      const auto src = many_of_any_magnitude<T>(data, size_t(n));
      for (const mode& m : thread_modes) {
        const auto result = [&] {
          const rounding_mode scope(m.sse);
          return summary<Export>(src, s);
        }();
        by_parts(src, result, [&](const auto& v, auto r) {
          EXPECT_EQ(r, (oracle::rounded_quotient<decltype(r)>(oracle::sum_of(v), n, s,
                                                              follows ? m.direction : oracle::direction::nearest)))
              << "length " << n << ", scale " << s << ", mode " << m.sse;
        });
      }
    }
}

TEST(Mean, ScalesAndModes) {
  check_scales_and_modes<&::tavsMean_16s_Sfs, Tav16s>(true);
  check_scales_and_modes<&::tavsMean_16sc_Sfs, Tav16sc>(true);
  check_scales_and_modes<&::tavsMean_32s_Sfs, Tav32s>(false);
}

// Ties, and quotients as close to them as the length allows.
TEST(Mean, NextToTies) {
  for (int n : {2, 100, 65536, 999999})
    for (int whole : {0, 1, 16383, -1, -16384})
      for (int over : {-1, 0, 1}) {
        std::vector<Tav32s> src(size_t(n), whole);
        for (int i = 0; i < n / 2; ++i) ++src[size_t(i)];
        src[0] += over;
        const std::vector<Tav16s> words(src.begin(), src.end());
        const auto                want = [&](auto d) {
          return oracle::rounded_quotient<decltype(d)>(oracle::sum_of(src), n, 0, oracle::direction::nearest);
        };
        EXPECT_EQ((summary<&::tavsMean_32s_Sfs>(src, 0)), want(Tav32s{}));
        EXPECT_EQ((summary<&::tavsMean_16s_Sfs>(words, 0)), want(Tav16s{}));
      }
}

TEST(Mean, MillionsOfExtremes) {
  for (Tav16s v : {Tav16s(-32768), Tav16s(32767)}) {
    EXPECT_EQ((summary<&::tavsMean_16s_Sfs>(std::vector<Tav16s>(3000001, v), 0)), v);
    const auto both = summary<&::tavsMean_16sc_Sfs>(std::vector<Tav16sc>(3000001, {v, Tav16s(~v)}), 0);
    EXPECT_EQ(both.re, v);
    EXPECT_EQ(both.im, Tav16s(~v));
  }
  for (Tav32s v : {INT_MIN, INT_MAX}) {
    const std::vector<Tav32s> src(3000001, v);
    EXPECT_EQ((summary<&::tavsMean_32s_Sfs>(src, 0)), v);
    for (int s : {-1, -62, -63, -64, INT_MIN}) EXPECT_EQ((summary<&::tavsMean_32s_Sfs>(src, s)), v);
    for (int s : {32, 33, 63, 64, INT_MAX}) EXPECT_EQ((summary<&::tavsMean_32s_Sfs>(src, s)), 0);
  }
}

// Floats.

template <class T, class Sum> void expect_mean(const std::vector<T>& v, T result, Sum units) {
  if (!is_tame(v)) return;
  const auto        exact = oracle::summary_of(v);
  const long double last  = fabsl(exact.mean) * std::numeric_limits<T>::epsilon() / 2 * (1 + 0x1p-20L);
  EXPECT_LE(fabsl(result - exact.mean), last + units * exact.sizes / v.size() + 0x1p-149L)
      << "length " << v.size() << ", mean " << double(exact.mean) << ", result " << result;
}

constexpr long double fast_units = 8 * 0x1p-24L, accurate_units = 0x1p-50L;

template <auto* Export, class T, class... Hint> void check_floats(long double units, Hint... hint) {
  const auto look = [=](const auto& src, const auto& result) {
    by_parts(src, result, [=](const auto& v, auto r) { expect_mean(v, r, units); });
  };
  check_summary<Export>(block_lengths(), look, hint...);
  source_of_data data(5);
  for (size_t n : {5000u, 300007u}) {
    const auto src = ordinary<T>(data, n, 10);
    look(src, summary<Export>(src, hint...));
  }
}

TEST(Mean, As32f) {
  for (int hint : {0, 1}) check_floats<&::tavsMean_32f, Tav32f>(hint == 1 ? fast_units : accurate_units, hint);
}
TEST(Mean, As32fc) {
  for (int hint : {0, 1}) check_floats<&::tavsMean_32fc, Tav32fc>(hint == 1 ? fast_units : accurate_units, hint);
}
constexpr long double double_units = 1000 * 0x1p-53L;
TEST(Mean, As64f) { check_floats<&::tavsMean_64f, Tav64f>(double_units); }
TEST(Mean, As64fc) { check_floats<&::tavsMean_64fc, Tav64fc>(double_units); }

TEST(Mean, OfOneElement) {
  for (Tav32f v : {0.1f, -3.3e38f, 1e-45f, std::numeric_limits<Tav32f>::infinity()})
    for (int hint : {0, 1}) EXPECT_EQ((summary<&::tavsMean_32f>(std::vector<Tav32f>{v}, hint)), v);
  EXPECT_EQ((summary<&::tavsMean_64f>(std::vector<Tav64f>{0.1})), 0.1);
}

TEST(Mean, HintsThatAreNotOne) {
  for (int hint : accurate_hints)
    EXPECT_EQ((summary<&::tavsMean_32f>(std::vector<Tav32f>{0x1p60f, 3, -0x1p60f}, hint)), 1.0f);
}

TEST(Mean, AccurateInAllModes) {
  source_of_data data(9);
  const auto     src  = ordinary<Tav32f>(data, 1001, 3);
  const auto     want = summary<&::tavsMean_32f>(src, 0);
  for (const mode& m : thread_modes) {
    const rounding_mode scope(m.sse);
    const extended_word word(extended_word::single_precision_to_zero);
    EXPECT_EQ((summary<&::tavsMean_32f>(src, 0)), want);
  }
  for (int hint : {0, 1}) {
    const rounding_mode scope(rounding_mode::down);
    const auto          third = summary<&::tavsMean_32f>(std::vector<Tav32f>{1, 0, 0}, hint);
    EXPECT_EQ(third, hint == 1 ? 0x1.555554p-2f : 0x1.555556p-2f);
  }
}

TEST(Mean, BeyondSingles) {
  const Tav32f big = std::numeric_limits<Tav32f>::max();
  EXPECT_EQ((summary<&::tavsMean_32f>(std::vector<Tav32f>(1000, big), 0)), big);
}

}  // namespace

#define CASE(form) TAV_FAULTS(Mean_##form, pointers_then_second<1>)
CASE(16s_Sfs) CASE(16sc_Sfs) CASE(32s_Sfs) CASE(32f) CASE(32fc) CASE(64f) CASE(64fc)
#undef CASE
