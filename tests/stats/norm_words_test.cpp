// tavsNorm, tavsNormDiff of 16-bit elements: exactly, with every scale factor, in blocks and over millions of elements.
#include "harness/forms.h"
#include "harness/scaled.h"
#include "stats/norm_forms.h"

using namespace test;

namespace {

using words = sources<Tav16s>;

constexpr int block = 0x10000;

std::vector<words> cases() {
  source_of_data     data(5);
  std::vector<words> all{{{0}, {0}}, {{1}, {0}}, {{-1}, {1}}, {{-32768}, {0}}, {{-32768}, {32767}}, {{3}, {-4}}};
  for (int n : {2, 3, 7, 8, 9, 50, 1003}) all.push_back({data.values<Tav16s>(n), data.values<Tav16s>(n)});
  all.push_back({many_of_any_magnitude<Tav16s>(data, 31), many_of_any_magnitude<Tav16s>(data, 31)});
  return all;
}

std::vector<words> in_blocks() {
  source_of_data     data(6);
  std::vector<words> all;
  for (int n : {block - 1, block, block + 1, block + 7, block + 9, 2 * block, 2 * block + 1, 3 * block + 77})
    all.push_back({data.values<Tav16s>(n), data.values<Tav16s>(n)});
  return all;
}

// The plain norm of integers, by the name of the export.
enum norm { inf, l1, square };
template <auto* Export> int64_t plain_norm(norm which, const words& from) {
  const auto e = elements_of<Export>(from);
  return which == inf ? oracle::norm_inf(e) : which == l1 ? oracle::norm_l1(e) : oracle::norm_l2_square(e);
}

template <auto* Export> void check_scaled_norm(norm which) {
  std::vector<words> all = cases();
  for (words& w : in_blocks()) all.push_back(std::move(w));
  each_build<Export>([&] {
    for (const words& from : all) {
      const int64_t plain = plain_norm<Export>(which, from);
      for (int s : from.a.size() < block ? all_scales() : std::vector<int>{0, 1, 5, 9, 31, -5, -25})
        ASSERT_EQ(norm_of<Export>(from, s), oracle::norm_scaled<dst_of<Export>>(plain, s))
            << from.a.size() << " elements, factor " << s;
    }
  });
}

TEST(NormOfWords, InfScaled) { check_scaled_norm<&::tavsNorm_Inf_16s32s_Sfs>(inf); }
TEST(NormOfWords, L1Scaled) { check_scaled_norm<&::tavsNorm_L1_16s32s_Sfs>(l1); }
TEST(NormOfWords, L1ScaledTo64) { check_scaled_norm<&::tavsNorm_L1_16s64s_Sfs>(l1); }
TEST(NormOfWords, SquaresScaled) { check_scaled_norm<&::tavsNorm_L2Sqr_16s64s_Sfs>(square); }
TEST(NormDiffOfWords, InfScaled) { check_scaled_norm<&::tavsNormDiff_Inf_16s32s_Sfs>(inf); }
TEST(NormDiffOfWords, L1Scaled) { check_scaled_norm<&::tavsNormDiff_L1_16s32s_Sfs>(l1); }
TEST(NormDiffOfWords, L1ScaledTo64) { check_scaled_norm<&::tavsNormDiff_L1_16s64s_Sfs>(l1); }
TEST(NormDiffOfWords, SquaresScaled) { check_scaled_norm<&::tavsNormDiff_L2Sqr_16s64s_Sfs>(square); }

template <auto* Export> void check_scaled_root() {
  std::vector<words> all = cases();
  for (Tav16s v : {1, 3, 5, 7, 9, 11, 255, 32767}) all.push_back({{v}, {0}});  // ties of the factors above 0
  for (words& w : in_blocks()) all.push_back(std::move(w));
  each_build<Export>([&] {
    for (const words& from : all) {
      const int64_t plain = plain_norm<Export>(square, from);
      for (int s : from.a.size() < block ? all_scales() : few_scales) {
        ASSERT_EQ(norm_of<Export>(from, s), oracle::norm_root_scaled(plain, s))
            << from.a.size() << " elements, factor " << s;
      }
    }
  });
}

TEST(NormOfWords, RootScaled) { check_scaled_root<&::tavsNorm_L2_16s32s_Sfs>(); }
TEST(NormDiffOfWords, RootScaled) { check_scaled_root<&::tavsNormDiff_L2_16s32s_Sfs>(); }

template <auto* Export> void check_float_norm(norm which) {
  std::vector<words> all = cases();
  for (words& w : in_blocks()) all.push_back(std::move(w));
  each_build<Export>([&] {
    for (const words& from : all) {
      const Tav64f plain = Tav64f(plain_norm<Export>(which, from));
      ASSERT_EQ(norm_of<Export>(from), Tav32f(which == square ? sqrt(plain) : plain)) << from.a.size() << " elements";
    }
  });
}

TEST(NormOfWords, InfAsFloat) { check_float_norm<&::tavsNorm_Inf_16s32f>(inf); }
TEST(NormOfWords, L1AsFloat) { check_float_norm<&::tavsNorm_L1_16s32f>(l1); }
TEST(NormOfWords, L2AsFloat) { check_float_norm<&::tavsNorm_L2_16s32f>(square); }
TEST(NormDiffOfWords, InfAsFloat) { check_float_norm<&::tavsNormDiff_Inf_16s32f>(inf); }
TEST(NormDiffOfWords, L1AsFloat) { check_float_norm<&::tavsNormDiff_L1_16s32f>(l1); }
TEST(NormDiffOfWords, L2AsFloat) { check_float_norm<&::tavsNormDiff_L2_16s32f>(square); }

template <auto* Export, class... Scale> void check_word_places(norm which, Scale... s) {
  const auto right = [&](const words& from, Tav64f got) {
    const Tav64f plain = Tav64f(plain_norm<Export>(which, from));
    ASSERT_EQ(got, plain) << from.a.size() << " elements";
  };
  check_places<Export, Tav16s>(
      {.around = 300}, right, [](auto& data, size_t n) { return data.template values<Tav16s>(n); }, s...);
}

TEST(NormOfWords, AnyPlace) {
  check_word_places<&::tavsNorm_Inf_16s32s_Sfs>(inf, 0);
  check_word_places<&::tavsNorm_L1_16s64s_Sfs>(l1, 0);
  check_word_places<&::tavsNorm_L2Sqr_16s64s_Sfs>(square, 0);
}
TEST(NormDiffOfWords, AnyPlace) {
  check_word_places<&::tavsNormDiff_Inf_16s32s_Sfs>(inf, 0);
  check_word_places<&::tavsNormDiff_L1_16s64s_Sfs>(l1, 0);
  check_word_places<&::tavsNormDiff_L2Sqr_16s64s_Sfs>(square, 0);
}

// The largest magnitude, of either sign, at each place.
TEST(NormOfWords, InfAtEachPlace) {
  for (int n = 1; n <= 70; ++n)
    for (int at = 0; at < n; ++at)
      for (Tav16s peak : {Tav16s(-32768), Tav16s(-32767), Tav16s(32767), Tav16s(-200), Tav16s(200)}) {
        words from{std::vector<Tav16s>(n, -5), std::vector<Tav16s>(n, -3)};
        from.a[at] = peak;
        ASSERT_EQ(norm_of<&::tavsNorm_Inf_16s32f>(from), Tav32f(abs(peak))) << n << ", " << at;
        ASSERT_EQ(norm_of<&::tavsNormDiff_Inf_16s32f>(from), Tav32f(abs(peak + 3))) << n << ", " << at;
        std::swap(from.a, from.b);
        ASSERT_EQ(norm_of<&::tavsNormDiff_Inf_16s32f>(from), Tav32f(abs(peak + 3))) << n << ", " << at;
      }
}

// Extremes at great length: no partial sum may wrap.
TEST(NormOfWords, MillionsOfExtremes) {
  for (int n : {5000011, 77 * block}) {
    const words   lows{std::vector<Tav16s>(n, -32768), std::vector<Tav16s>(n, 32767)};
    const int64_t count = n;
    EXPECT_EQ(norm_of<&::tavsNorm_L1_16s64s_Sfs>(lows, 0), count * 32768);
    EXPECT_EQ(norm_of<&::tavsNorm_L2Sqr_16s64s_Sfs>(lows, 0), count * 32768 * 32768);
    EXPECT_EQ(norm_of<&::tavsNorm_L1_16s32s_Sfs>(lows, 0), 0x7FFFFFFF);
    EXPECT_EQ(norm_of<&::tavsNorm_L1_16s32s_Sfs>(lows, 9), count * 64);
    EXPECT_EQ(norm_of<&::tavsNorm_L1_16s32s_Sfs>(lows, 31), Tav32s((count * 32768) >> 31));
    EXPECT_EQ(norm_of<&::tavsNorm_L1_16s32s_Sfs>(lows, 32), 0);
    EXPECT_EQ(norm_of<&::tavsNorm_L2_16s32s_Sfs>(lows, 0), Tav32s(nearbyint(sqrt(Tav64f(count)) * 32768)));
    EXPECT_EQ(norm_of<&::tavsNormDiff_L1_16s64s_Sfs>(lows, 0), count * 65535);
    EXPECT_EQ(norm_of<&::tavsNormDiff_L2Sqr_16s64s_Sfs>(lows, 0), count * 65535 * 65535);
    EXPECT_EQ(norm_of<&::tavsNormDiff_L2Sqr_16s64s_Sfs>(lows, -10), std::numeric_limits<int64_t>::max());
    EXPECT_EQ(norm_of<&::tavsNormDiff_L2Sqr_16s64s_Sfs>(lows, 63), 0);
    EXPECT_EQ(norm_of<&::tavsNormDiff_L1_16s32f>(lows), Tav32f(count * 65535));
    const words highs{lows.b, lows.a};
    EXPECT_EQ(norm_of<&::tavsNorm_L1_16s64s_Sfs>(highs, 0), count * 32767);
    EXPECT_EQ(norm_of<&::tavsNorm_L2Sqr_16s64s_Sfs>(highs, 0), count * 32767 * 32767);
    EXPECT_EQ(norm_of<&::tavsNormDiff_L2Sqr_16s64s_Sfs>(highs, 0), count * 65535 * 65535);
    const words equal{lows.a, lows.a};
    EXPECT_EQ(norm_of<&::tavsNormDiff_L1_16s64s_Sfs>(equal, 0), 0);
    EXPECT_EQ(norm_of<&::tavsNormDiff_L2Sqr_16s64s_Sfs>(equal, 0), 0);
  }
}

// The fraction is cut off: in all but the root.
TEST(NormOfWords, Cuts) {
  EXPECT_EQ(norm_of<&::tavsNorm_Inf_16s32s_Sfs>({{-32768}, {}}, 1), 16384);
  EXPECT_EQ(norm_of<&::tavsNorm_L1_16s32s_Sfs>({{1}, {}}, 1), 0);
  EXPECT_EQ(norm_of<&::tavsNorm_L1_16s64s_Sfs>({{-3, 4}, {}}, 1), 3);
  EXPECT_EQ(norm_of<&::tavsNorm_L2Sqr_16s64s_Sfs>({{3}, {}}, 1), 4);
  EXPECT_EQ(norm_of<&::tavsNorm_L2_16s32s_Sfs>({{3}, {}}, 1), 2);
  EXPECT_EQ(norm_of<&::tavsNorm_L2_16s32s_Sfs>({{5}, {}}, 1), 2);
  EXPECT_EQ(norm_of<&::tavsNorm_L2_16s32s_Sfs>({{1}, {}}, -31), 0x7FFFFFFF);
  EXPECT_EQ(norm_of<&::tavsNorm_L2_16s32s_Sfs>({{1}, {}}, -30), 0x40000000);
}

// Integers come out the same in every mode; floats follow it, and a zero has no sign.
TEST(NormOfWords, RoundingModes) {
  const words four{{-1000, 32767, -32768, 3}, {7, 7, 7, 7}}, none{std::vector<Tav16s>(20), std::vector<Tav16s>(20)};
  const words long_sum{std::vector<Tav16s>(513, -32767), {}};  // 16809471, which lies between two singles
  for (unsigned mode : rounding_modes) {
    const Tav32s        rounded = norm_of<&::tavsNorm_L2_16s32s_Sfs>({{1, 1, 1}, {}}, 0);  // 1.73
    const rounding_mode set(mode);
    const bool          up = mode == rounding_mode::up;
    EXPECT_EQ(norm_of<&::tavsNorm_L2_16s32s_Sfs>({{1, 1, 1}, {}}, 0), rounded);
    EXPECT_EQ(norm_of<&::tavsNorm_L2_16s32s_Sfs>({{1, 1}, {}}, 0), 1);
    EXPECT_EQ(norm_of<&::tavsNorm_L2_16s32s_Sfs>({{3}, {}}, 1), 2);
    EXPECT_EQ(norm_of<&::tavsNorm_L2_16s32s_Sfs>({{5}, {}}, 1), 2);
    EXPECT_EQ(norm_of<&::tavsNorm_L2_16s32f>({{1, 1}, {}}), up ? 1.41421366f : 1.41421354f);
    EXPECT_EQ(norm_of<&::tavsNorm_L1_16s32f>(long_sum), up ? 16809472 : 16809470);
    EXPECT_EQ(norm_of<&::tavsNormDiff_Inf_16s32f>(four), 32775);
    for (Tav32f zero : {norm_of<&::tavsNorm_Inf_16s32f>(none), norm_of<&::tavsNorm_L1_16s32f>(none),
                        norm_of<&::tavsNorm_L2_16s32f>(none), norm_of<&::tavsNormDiff_L2_16s32f>(none)})
      EXPECT_TRUE(zero == 0 && !signbit(zero));
  }
}

}  // namespace

#define CASE(form)                             \
  TAV_FAULTS(Norm_##form, scale_behind_result) \
  TAV_FAULTS(NormDiff_##form, scale_behind_result)
CASE(Inf_16s32s_Sfs)
CASE(L1_16s32s_Sfs)
CASE(L1_16s64s_Sfs)
CASE(L2_16s32s_Sfs)
CASE(L2Sqr_16s64s_Sfs)
#undef CASE

#define CASE(form)                           \
  TAV_FAULTS(Norm_##form, result_at_the_end) \
  TAV_FAULTS(NormDiff_##form, result_at_the_end)
CASE(Inf_16s32f) CASE(L1_16s32f) CASE(L2_16s32f)
#undef CASE
