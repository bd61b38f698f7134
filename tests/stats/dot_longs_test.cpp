// tavsDotProd of 32-bit integers: exact, however far beyond 64 bits the sum goes, then scaled and saturated once.
#include "harness/scaled.h"
#include "oracle/dot_product.h"
#include "stats/dot_calls.h"

using namespace test;

namespace {

const auto drawn = [](source_of_data& data, auto& v) { v = of_any_magnitude<std::decay_t<decltype(v)>>(data); };

template <auto* Export> void check_layouts_of_longs() {
  for (int s : {0, 31, 32, 33, 34, 60, -1}) {
    const auto want = [&](const auto& a, const auto& b) {
      return oracle::scaled_dot<typename dot_call<Export>::result>(oracle::dot(a, b), s);
    };
    check_dot_layouts<Export>({1, 2, 3, 4, 5, 7, 8, 9, 12, 15, 16, 17, 33, 130, 1023, 1024, 1025, 2050}, drawn, want,
                              s);
  }
}

TEST(DotProdOfLongs, As32s) { check_layouts_of_longs<&::tavsDotProd_32s_Sfs>(); }
TEST(DotProdOfLongs, As16s32s32s) { check_layouts_of_longs<&::tavsDotProd_16s32s32s_Sfs>(); }
TEST(DotProdOfLongs, As32sc) { check_layouts_of_longs<&::tavsDotProd_32sc_Sfs>(); }
TEST(DotProdOfLongs, As32s32sc) { check_layouts_of_longs<&::tavsDotProd_32s32sc_Sfs>(); }

template <auto* Export> void check_lengths_and_scales() {
  using on = dot_call<Export>;
  std::vector<int> scales{INT_MIN, -1100, -1023, -1022, 1022, 1023, 1100, INT_MAX};
  for (int s = -70; s <= 110; ++s) scales.push_back(s);
  each_build<Export>([&] {
    source_of_data data(21);
    for (int n = 1; n < 80; ++n) {
      const auto a   = many_of_any_magnitude<typename on::src1>(data, size_t(n));
      const auto b   = many_of_any_magnitude<typename on::src2>(data, size_t(n));
      const auto sum = oracle::dot(a, b);
      for (int s : scales)
        ASSERT_TRUE(same(on::of(a, b, s), oracle::scaled_dot<typename on::result>(sum, s))) << n << " " << s;
    }
  });
}

TEST(DotProdOfLongs, AllScales32s) { check_lengths_and_scales<&::tavsDotProd_32s_Sfs>(); }
TEST(DotProdOfLongs, AllScales16s32s32s) { check_lengths_and_scales<&::tavsDotProd_16s32s32s_Sfs>(); }
TEST(DotProdOfLongs, AllScales32sc) { check_lengths_and_scales<&::tavsDotProd_32sc_Sfs>(); }
TEST(DotProdOfLongs, AllScales32s32sc) { check_lengths_and_scales<&::tavsDotProd_32s32sc_Sfs>(); }

// Arrays whose sum of products is given as terms of the kind n * 2^shift, n from -8 to 8.
struct longs {
  std::vector<Tav32s> a, b;

  longs& add(int n, int shift) {
    const int in_a = shift < 27 ? shift : 27, in_b = shift - in_a < 27 ? shift - in_a : 27;
    for (int k = 0; k < 1 << (shift - in_a - in_b); ++k) a.push_back(n * (1 << in_a)), b.push_back(1 << in_b);
    return *this;
  }
};

TEST(DotProdOfLongs, TiesOfEveryScale) {
  for (int s = 1; s <= 66; ++s)
    for (int halves : {-7, -5, -3, -1, 1, 3, 5, 7})
      for (int more : {-1, 0, 1}) {
        const auto v   = longs{}.add(halves, s - 1).add(more, 0);
        const auto sum = oracle::dot(v.a, v.b);
        ASSERT_EQ(dot_call<&::tavsDotProd_32s_Sfs>::of(v.a, v.b, s), oracle::scaled<Tav32s>(sum, s))
            << halves << " " << s << " " << more;
      }
}

TEST(DotProdOfLongs, LimitsOfTheResult) {
  for (int s : {1, 2, 10, 30, 31, 32, 33, 34, 35})
    for (int sign : {1, -1})
      for (int halves = -6; halves <= 4; ++halves)
        for (int more : {-1, 0, 1}) {
          const auto v   = longs{}.add(sign, 31 + s).add(sign * halves, s - 1).add(more, 0);
          const auto sum = oracle::dot(v.a, v.b);
          for (int t : {s - 1, s, s + 1})
            ASSERT_EQ(dot_call<&::tavsDotProd_32s_Sfs>::of(v.a, v.b, t), oracle::scaled<Tav32s>(sum, t))
                << sign << " " << halves << " " << more << " " << t;
        }
}

// Millions of products of the lowest numbers, 2^62 each.
TEST(DotProdOfLongs, MillionsOfExtremes) {
  constexpr int             n = 1 << 20;
  const std::vector<Tav32s> lowest(n, INT32_MIN), highest(n, INT32_MAX);
  const auto                of = [](auto& a, auto& b, int s) { return dot_call<&::tavsDotProd_32s_Sfs>::of(a, b, s); };
  EXPECT_EQ(of(lowest, lowest, 62), n);
  EXPECT_EQ(of(lowest, lowest, 52), 1 << 30);
  EXPECT_EQ(of(lowest, lowest, 51), INT32_MAX);
  EXPECT_EQ(of(lowest, lowest, 83), 0);
  EXPECT_EQ(of(lowest, lowest, 82), 1);
  EXPECT_EQ(of(lowest, highest, 31), INT32_MIN);
  EXPECT_EQ(of(lowest, highest, 62), -n);
  EXPECT_EQ(of(lowest, highest, 51), -INT32_MAX);  // -2^31 and 1
  EXPECT_EQ(of(highest, highest, 62), n);
}

TEST(DotProdOfLongs, MillionsOfExtremePairs) {
  constexpr int n = 1 << 19;
  for (int signs = 0; signs < 16; ++signs) {
    const auto                 extreme = [&](int bit) { return (signs >> bit) & 1 ? INT32_MAX : INT32_MIN; };
    const std::vector<Tav32sc> a(n, {extreme(0), extreme(1)}), b(n, {extreme(2), extreme(3)});
    const std::vector<Tav32sc> one_a(1, a[0]), one_b(1, b[0]);
    const auto                 sum = oracle::dot(one_a, one_b);  // n of them are 2^19 times that
    for (int s : {0, 40, 52, 62}) {
      const auto got = dot_call<&::tavsDotProd_32sc_Sfs>::of(a, b, s);
      ASSERT_TRUE(same(got, oracle::scaled_dot<Tav32sc>(sum, s - 19))) << signs << " " << s;
    }
    const std::vector<Tav32s> real(n, extreme(0)), one_real(1, extreme(0));
    const auto                mixed = oracle::dot(one_real, one_b);
    for (int s : {0, 40, 52, 62}) {
      const auto got = dot_call<&::tavsDotProd_32s32sc_Sfs>::of(real, b, s);
      ASSERT_TRUE(same(got, oracle::scaled_dot<Tav32sc>(mixed, s - 19))) << signs << " " << s;
    }
  }
}

}  // namespace
