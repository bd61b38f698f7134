// tavsStdDev, tavsMeanStdDev: from exact sums of integers; of floats near the definition, wherever their mean lies.
#include "stats/summaries.h"

using namespace test;

namespace {

// Words. A double decides on the rounding: next to a tie either neighbour is right.

template <class D> void expect_deviation(const std::vector<Tav16s>& v, D result, int s) {
  constexpr long double top  = std::numeric_limits<D>::max();
  const long double     want = std::min(oracle::scaled_deviation(v, s), top);
  EXPECT_LE(fabsl(result - want), 0.5L + want * 0x1p-50L)
      << "length " << v.size() << ", scale " << s << ", deviation " << double(want);
}

template <auto* Export, auto* Both> void check_words() {
  for (int s : {0, 3, -9})
    check_layouts<Export, Tav16s, Tav16s>(
        lengths_around({0x10000}, 70),
        [s](Tav16s* dst, int len, const Tav16s* src) {
          typename std::remove_reference<decltype(summary<Export>(std::vector<Tav16s>{}, 0))>::type result{-1};
          const TavStatus status = call<Export>(src, len, &result, s);
          if (len > 1) memcpy(dst, &result, sizeof result);
          return status;
        },
        [s](std::vector<Tav16s>& dst, const std::vector<Tav16s>& src) {
          if (src.size() == 1) return tavStatusBadSize;
          const auto result = summary<Export>(src, s);
          expect_deviation(src, result, s);
          memcpy(dst.data(), &result, sizeof result);
          const auto two = both<Both>(src, s);
          EXPECT_EQ(two.std_dev, result);
          EXPECT_EQ(two.mean, (oracle::rounded_quotient<decltype(two.mean)>(oracle::sum_of(src), int64_t(src.size()), s,
                                                                            oracle::direction::nearest)));
          return tavStatusOk;
        });
}

TEST(StdDev, As16s) { check_words<&::tavsStdDev_16s_Sfs, &::tavsMeanStdDev_16s_Sfs>(); }
TEST(StdDev, As16s32s) { check_words<&::tavsStdDev_16s32s_Sfs, &::tavsMeanStdDev_16s32s_Sfs>(); }

// The deviation is rounded to nearest in every mode, the mean in the caller's.
template <auto* Export, auto* Both> void check_scales_and_modes() {
  source_of_data data(3);
  for (int n : {2, 3, 16, 100})
    for (int s : all_scales()) {
      const auto src  = many_of_any_magnitude<Tav16s>(data, size_t(n));
      const auto want = summary<Export>(src, s);
      expect_deviation(src, want, s);
      for (const mode& m : thread_modes) {
        const auto two = [&] {
          const rounding_mode scope(m.sse);
          EXPECT_EQ(summary<Export>(src, s), want);
          return both<Both>(src, s);
        }();
        EXPECT_EQ(two.std_dev, want);
        EXPECT_EQ(two.mean, oracle::rounded_quotient<decltype(two.mean)>(oracle::sum_of(src), n, s, m.direction));
      }
    }
}

TEST(StdDev, ScalesAndModes) {
  check_scales_and_modes<&::tavsStdDev_16s_Sfs, &::tavsMeanStdDev_16s_Sfs>();
  check_scales_and_modes<&::tavsStdDev_16s32s_Sfs, &::tavsMeanStdDev_16s32s_Sfs>();
}

TEST(StdDev, TiesToEven) {
  for (int k = 1; k < 32767; k += 7) {
    const std::vector<Tav16s> src{Tav16s(-k), 0, Tav16s(k)};  // whose deviation is k
    EXPECT_EQ((summary<&::tavsStdDev_16s_Sfs>(src, 0)), k);
    EXPECT_EQ((summary<&::tavsStdDev_16s32s_Sfs>(src, -10)), k * 1024);
    EXPECT_EQ((summary<&::tavsStdDev_16s_Sfs>(src, 1)), (k / 2) + (k % 4 == 3));
    EXPECT_EQ((summary<&::tavsStdDev_16s_Sfs>(src, -20)), 32767);
    EXPECT_EQ((summary<&::tavsStdDev_16s32s_Sfs>(src, INT_MIN)), INT_MAX);
    EXPECT_EQ((summary<&::tavsStdDev_16s32s_Sfs>(src, INT_MAX)), 0);
  }
}

TEST(StdDev, MillionsOfExtremes) {
  for (size_t n : {size_t(3000001), size_t(0x200000)}) {
    for (Tav16s v : {Tav16s(-32768), Tav16s(32767), Tav16s(12345)}) {
      std::vector<Tav16s> src(n, v);
      EXPECT_EQ((summary<&::tavsStdDev_16s32s_Sfs>(src, -60)), 0);
      src[n / 2] = Tav16s(v ^ 1);
      for (int s : {-20, -30}) expect_deviation(src, summary<&::tavsStdDev_16s32s_Sfs>(src, s), s);
      for (size_t i = 0; i < n; i += 2) src[i] = Tav16s(~v);
      for (int s : {0, -15}) expect_deviation(src, summary<&::tavsStdDev_16s32s_Sfs>(src, s), s);
    }
  }
}

// Floats.

template <class T> constexpr long double accuracy(bool fast) {
  return fast ? 64 * 0x1p-24L : sizeof(T) == 4 ? 1.01 * 0x1p-24L : 1000 * 0x1p-53L;
}

template <auto* Export, auto* Both, class T, class... Hint> void check_floats(bool fast, Hint... hint) {
  const auto look = [&](const std::vector<T>& src) {
    const auto result = summary<Export>(src, hint...);
    const auto two    = both<Both>(src, hint...);
    EXPECT_TRUE(same(two.std_dev, result));
    const auto exact = oracle::summary_of(src);
    if (!is_tame(src)) return result;
    const long double spread = exact.std_dev + fabsl(src[0] - exact.mean);  // what the differences are like
    EXPECT_LE(fabsl(result - exact.std_dev), accuracy<T>(fast) * spread + 1e-45L)
        << "length " << src.size() << ", deviation " << double(exact.std_dev) << ", result " << result;
    EXPECT_LE(fabsl(two.mean - exact.mean),
              fabsl(exact.mean) * std::numeric_limits<T>::epsilon() / 2 * 1.01L + accuracy<T>(fast) * spread + 1e-45L)
        << "length " << src.size() << ", mean " << double(exact.mean) << ", result " << two.mean;
    return result;
  };
  std::set<int> lengths = block_lengths();
  lengths.erase(1);
  each_build<Export>([&] {  // also at every offset
    source_of_data data(21);
    arena          home(0x18010 * sizeof(T));
    for (int n : lengths)
      for (const layout& l : n <= few_layouts_above ? all_layouts() : few_layouts()) {
        const auto src = ordinary<T>(data, size_t(n), data.below(3) * 100);
        array<T>   placed(home, src.size(), l.src);
        placed.assign(src);
        T result;
        EXPECT_EQ(call<Export>(placed.data(), n, &result, hint...), tavStatusOk);
        EXPECT_TRUE(same(result, look(src))) << n << ", " << l.src;
      }
    for (size_t n : {5000u, 500003u}) look(ordinary<T>(data, n, 1000));
  });
}

TEST(StdDev, As32f) {
  for (int hint : {0, 1}) check_floats<&::tavsStdDev_32f, &::tavsMeanStdDev_32f, Tav32f>(hint == 1, hint);
}
TEST(StdDev, As64f) { check_floats<&::tavsStdDev_64f, &::tavsMeanStdDev_64f, Tav64f>(false); }

TEST(StdDev, HintsThatAreNotOne) {
  source_of_data data(4);
  const auto     src  = ordinary<Tav32f>(data, 3000, 7);
  const auto     want = summary<&::tavsStdDev_32f>(src, 0);
  for (int hint : accurate_hints) EXPECT_EQ((summary<&::tavsStdDev_32f>(src, hint)), want);
}

template <auto* Export, auto* Both, class T, class... Hint> void check_special(Hint... hint) {
  constexpr T inf = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
  each_build<Export>([&] {
    for (T value : {T(0.1), T(-1e20), T(1e-40), T(3), std::numeric_limits<T>::max()})
      for (int n : {2, 3, 10, 99, 100000}) {
        const auto two = both<Both>(std::vector<T>(size_t(n), value), hint...);
        EXPECT_EQ(two.std_dev, 0) << n;
        EXPECT_EQ(two.mean, value) << n;
        EXPECT_EQ((summary<Export>(std::vector<T>(size_t(n), value), hint...)), 0);
      }
    for (size_t n = 2; n < 40; ++n)
      for (size_t i = 0; i < n; ++i)
        for (T bad : {inf, -inf, nan}) {
          std::vector<T> src(n, T(1));
          src[i] = bad;
          EXPECT_TRUE(std::isnan(summary<Export>(src, hint...)));
          const auto two = both<Both>(src, hint...);
          EXPECT_TRUE(std::isnan(two.std_dev));
          EXPECT_TRUE(same(two.mean, bad)) << n << ", " << i;
          src[(i + 1) % n] = -bad;
          EXPECT_TRUE(std::isnan(both<Both>(src, hint...).mean));
        }
  });
}

TEST(StdDev, ConstantsAndSpecialValues) {
  for (int hint : {0, 1}) check_special<&::tavsStdDev_32f, &::tavsMeanStdDev_32f, Tav32f>(hint);
  check_special<&::tavsStdDev_64f, &::tavsMeanStdDev_64f, Tav64f>();
}

// The accurate form has room for the squares of all singles.
TEST(StdDev, EndsOfTheRange) {
  const Tav32f big = std::numeric_limits<Tav32f>::max();
  EXPECT_EQ((summary<&::tavsStdDev_32f>(std::vector<Tav32f>{-big / 2, 0, big / 2}, 0)), big / 2);
  EXPECT_EQ((summary<&::tavsStdDev_32f>(std::vector<Tav32f>{-1e-45f, 0, 1e-45f}, 0)), 1e-45f);
  EXPECT_EQ((both<&::tavsMeanStdDev_32f>(std::vector<Tav32f>{big, big, -big}, 0).mean), big / 3);
}

TEST(StdDev, AccurateInAllModes) {
  source_of_data data(9);
  const auto     src  = ordinary<Tav32f>(data, 1001, 3);
  const auto     want = both<&::tavsMeanStdDev_32f>(src, 0);
  for (const mode& m : thread_modes) {
    const rounding_mode scope(m.sse);
    const extended_word word(extended_word::single_precision_to_zero);
    const auto          got = both<&::tavsMeanStdDev_32f>(src, 0);
    EXPECT_EQ(got.mean, want.mean);
    EXPECT_EQ(got.std_dev, want.std_dev);
  }
}

}  // namespace

#define CASE(form)                                   \
  TAV_FAULTS(StdDev_##form, pointers_then_second<2>) \
  TAV_FAULTS(MeanStdDev_##form, pointers_then_second<2>)
CASE(16s_Sfs) CASE(16s32s_Sfs) CASE(32f) CASE(64f)
#undef CASE
