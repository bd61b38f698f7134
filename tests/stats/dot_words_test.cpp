// tavsDotProd of 16-bit integers: exact in 64 bits, at every extreme and any length; then scaled, saturated, converted.
#include "harness/convert.h"
#include "harness/scaled.h"
#include "oracle/dot_product.h"
#include "stats/dot_calls.h"

using namespace test;

namespace {

const auto drawn = [](source_of_data& data, auto& v) { v = data.value<std::decay_t<decltype(v)>>(); };

// The lowest word meets itself often: of two such products the sum in 32 bits would be wrong.
const auto extremes = [](source_of_data& data, auto& v) {
  const auto word = [&] {
    const Tav16s all[] = {-32768, -32768, -32768, 32767, -32767, 0};
    return all[data.below(6)];
  };
  if constexpr (requires { v.re; })
    v = {word(), word()};
  else
    v = word();
};

template <auto* Whole> void check_whole() {
  const auto want = [](const auto& a, const auto& b) { return oracle::whole(oracle::dot(a, b)); };
  check_dot_layouts<Whole>(dot_lengths(), drawn, want);
  check_dot_layouts<Whole>(dot_lengths(), extremes, want);
}

TEST(DotProdOfWords, Whole16s) { check_whole<&::tavsDotProd_16s64s>(); }
TEST(DotProdOfWords, Whole16sc) { check_whole<&::tavsDotProd_16sc64sc>(); }
TEST(DotProdOfWords, Whole16s16sc) { check_whole<&::tavsDotProd_16s16sc64sc>(); }

template <auto* Scaled> void check_layouts_of_scaled() {
  for (int s : {0, 1, 13, 30, 31, 40, -1, -9}) {
    const auto want = [&](const auto& a, const auto& b) {
      return oracle::scaled_word_dot<typename dot_call<Scaled>::result>(oracle::dot(a, b), s);
    };
    check_dot_layouts<Scaled>({1, 2, 3, 4, 7, 8, 9, 15, 16, 17, 31, 32, 33, 63, 130, 1000}, drawn, want, s);
  }
}

TEST(DotProdOfWords, Scaled16s) { check_layouts_of_scaled<&::tavsDotProd_16s_Sfs>(); }
TEST(DotProdOfWords, Scaled16s32s) { check_layouts_of_scaled<&::tavsDotProd_16s32s_Sfs>(); }
TEST(DotProdOfWords, Scaled16sc) { check_layouts_of_scaled<&::tavsDotProd_16sc_Sfs>(); }
TEST(DotProdOfWords, Scaled16sc32sc) { check_layouts_of_scaled<&::tavsDotProd_16sc32sc_Sfs>(); }
TEST(DotProdOfWords, Scaled16s16sc) { check_layouts_of_scaled<&::tavsDotProd_16s16sc_Sfs>(); }
TEST(DotProdOfWords, Scaled16s16sc32sc) { check_layouts_of_scaled<&::tavsDotProd_16s16sc32sc_Sfs>(); }

// Arrays whose sum of products is given.
struct words {
  std::vector<Tav16s> a, b;

  explicit words(Tav64s sum) {
    const Tav16s sign = sum < 0 ? -1 : 1;
    for (Tav64s left = sum * sign; left != 0;) {
      const Tav64s by = left < 16384 ? 1 : 16384, times = left / by < 32767 ? left / by : 32767;
      a.push_back(Tav16s(by)), b.push_back(Tav16s(sign * times));
      left -= by * times;
    }
    if (a.empty()) a.push_back(0), b.push_back(5);
  }
};

std::vector<Tav16sc> pairs_of(const std::vector<Tav16s>& re, const std::vector<Tav16s>& im) {
  std::vector<Tav16sc> v(std::max(re.size(), im.size()));
  for (size_t i = 0; i < re.size(); ++i) v[i].re = re[i];
  for (size_t i = 0; i < im.size(); ++i) v[i].im = im[i];
  return v;
}

// Next to the ties and limits of all scale factors, and far beyond.
std::vector<Tav64s> sums_next_to_ties() {
  std::vector<Tav64s> sums;
  for (int top = 0; top <= 40; ++top)
    for (Tav64s more : {0, 1, 2, 3}) {
      const Tav64s n = (Tav64s(1) << top) + more - 1, with_tie = n + (Tav64s(3) << top) / 2;
      for (Tav64s v : {n, with_tie}) sums.push_back(v), sums.push_back(-v);
    }
  for (Tav64s limit : {Tav64s(32767), Tav64s(2147483647)})
    for (int s : {0, 1, 4, 15}) sums.push_back(((limit * 2 + 1) << s) / 2), sums.push_back(-((limit * 2 + 3) << s) / 2);
  return sums;
}

template <auto* Real, auto* Complex> void check_scales() {
  const auto scales = scales_between(-34, 34);
  each_build<Real>([&] {
    for (Tav64s sum : sums_next_to_ties()) {
      const words v(sum), other(-sum / 3);
      const auto  pairs_a  = pairs_of(v.a, other.a);
      const auto  pairs_b  = pairs_of(v.b, std::vector<Tav16s>(pairs_a.size()));
      const auto  of_pairs = oracle::dot(pairs_a, pairs_b);
      for (int s : scales) {
        using D = typename dot_call<Real>::result;
        ASSERT_EQ(dot_call<Real>::of(v.a, v.b, s), oracle::scaled_word_dot<D>(oracle::exact(sum), s))
            << sum << " " << s;
        using C = typename dot_call<Complex>::result;
        ASSERT_TRUE(same(dot_call<Complex>::of(pairs_a, pairs_b, s), oracle::scaled_word_dot<C>(of_pairs, s)))
            << sum << " " << s;
      }
    }
  });
}

TEST(DotProdOfWords, AllScales16s) { check_scales<&::tavsDotProd_16s_Sfs, &::tavsDotProd_16sc_Sfs>(); }
TEST(DotProdOfWords, AllScales32s) { check_scales<&::tavsDotProd_16s32s_Sfs, &::tavsDotProd_16sc32sc_Sfs>(); }

TEST(DotProdOfWords, TiesToEven) {
  const auto of = [](std::vector<Tav16s> a, std::vector<Tav16s> b, int s) {
    return dot_call<&::tavsDotProd_16s_Sfs>::of(a, b, s);
  };
  EXPECT_EQ(of({1}, {3}, 1), 2);
  EXPECT_EQ(of({1}, {5}, 1), 2);
  EXPECT_EQ(of({-1}, {3}, 1), -2);
  EXPECT_EQ(of({1}, {1}, 1), 0);
}

TEST(DotProdOfWords, FactorsAbove31CountAs31) {
  const std::vector<Tav16s> lowest(1024, -32768);  // 2^40
  EXPECT_EQ(dot_call<&::tavsDotProd_16s32s_Sfs>::of(lowest, lowest, 40), 512);
  EXPECT_EQ(dot_call<&::tavsDotProd_16s_Sfs>::of(lowest, lowest, INT_MAX), 512);
}

// Millions of elements at the extremes.
constexpr size_t many = 3000001;

TEST(DotProdOfWords, MillionsOfExtremes) {
  for (Tav16s x : {-32768, -32767, 32767})
    for (Tav16s y : {-32768, 32767}) {
      const std::vector<Tav16s> a(many, x), b(many, y);
      EXPECT_EQ(dot_call<&::tavsDotProd_16s64s>::of(a, b), Tav64s(many) * (int(x) * y));
    }
}

TEST(DotProdOfWords, MillionsOfExtremePairs) {
  for (int signs = 0; signs < 16; ++signs) {
    const auto                 extreme = [&](int bit) { return Tav16s((signs >> bit) & 1 ? 32767 : -32768); };
    const std::vector<Tav16sc> a(many / 4, {extreme(0), extreme(1)}), b(many / 4, {extreme(2), extreme(3)});
    const auto                 got = dot_call<&::tavsDotProd_16sc64sc>::of(a, b);
    const Tav64s               ar = extreme(0), ai = extreme(1), br = extreme(2), bi = extreme(3), n = Tav64s(a.size());
    EXPECT_EQ(got.re, n * (ar * br - ai * bi));
    EXPECT_EQ(got.im, n * (ar * bi + ai * br));
    const std::vector<Tav16s> real(many / 4, extreme(0));
    const auto                mixed = dot_call<&::tavsDotProd_16s16sc64sc>::of(real, b);
    EXPECT_EQ(mixed.re, n * ar * br);
    EXPECT_EQ(mixed.im, n * ar * bi);
  }
}

// As singles, in every rounding mode.

template <auto* Export, class A, class B> auto in_mode(oracle::mode how, const A& a, const B& b) {
  const rounding_mode scope{unsigned(how)};
  return dot_call<Export>::of(a, b);
}

template <auto* Export> void check_as_singles() {
  using on = dot_call<Export>;
  each_build<Export>([&] {
    source_of_data data(9);
    for (int n = 1; n < 60; ++n) {
      std::vector<typename on::src1> a(static_cast<size_t>(n));
      std::vector<typename on::src2> b(static_cast<size_t>(n));
      for (auto& v : a) drawn(data, v);
      for (auto& v : b) drawn(data, v);
      const auto sum = oracle::dot(a, b);
      for (oracle::mode how : all_modes) {
        const auto expected = oracle::single_of(sum, how);
        ASSERT_TRUE(same(in_mode<Export>(how, a, b), expected)) << n << " " << unsigned(how);
      }
    }
  });
}

TEST(DotProdOfWords, Singles16s) { check_as_singles<&::tavsDotProd_16s32f>(); }
TEST(DotProdOfWords, Singles16sc) { check_as_singles<&::tavsDotProd_16sc32fc>(); }
TEST(DotProdOfWords, Singles16s16sc) { check_as_singles<&::tavsDotProd_16s16sc32fc>(); }

// Zeros, ties and their neighbours.
TEST(DotProdOfWords, SinglesNextToTies) {
  std::vector<Tav64s> sums{0};
  for (int top = 24; top <= 42; ++top)
    for (Tav64s mantissa : {Tav64s(1) << 23, (Tav64s(1) << 23) + 1, (Tav64s(1) << 24) - 1})
      for (Tav64s more : {-1, 0, 1}) {
        const Tav64s ulp = Tav64s(1) << (top - 23), v = mantissa * ulp + ulp / 2 + more;
        sums.push_back(v), sums.push_back(-v);
      }
  for (Tav64s sum : sums) {
    const words v(sum);
    for (oracle::mode how : all_modes) {
      const auto expected = oracle::single_of(sum, how);
      ASSERT_TRUE(same(in_mode<&::tavsDotProd_16s32f>(how, v.a, v.b), expected)) << sum << " " << unsigned(how);
    }
  }
}

// 2^53 and half a unit of a single there, and 1 more or less: doubles could not tell. Imaginary parts make it negative.
template <class V, class Word> std::vector<V> long_way(const Word& word, Tav16s a, Tav16s b, Tav16s more) {
  std::vector<V> v(size_t(1) << 23, word(-32768));
  for (Tav16s last : {a, b, more}) v.push_back(word(last));
  return v;
}

template <auto* Single, class V, class Word> void check_beyond_doubles(int sign, const Word& word) {
  const auto a = long_way<V>(word, 32767, 16384, 1);  // 2^29 - 2^14, 2^14, more
  for (int more : {-1, 0, 1}) {
    const auto   b   = long_way<V>(word, 16384, 1, Tav16s(more));
    const Tav64s sum = sign * ((Tav64s(1) << 53) + (Tav64s(1) << 29) + more);
    for (oracle::mode how : all_modes) {
      const auto expected = oracle::single_of(sum, how);
      const auto got      = in_mode<Single>(how, a, b);
      if constexpr (requires { got.re; })
        EXPECT_EQ(got.re, expected) << more << " " << unsigned(how);
      else
        EXPECT_EQ(got, expected) << more << " " << unsigned(how);
    }
  }
}

TEST(DotProdOfWords, SinglesBeyondDoubles) {
  check_beyond_doubles<&::tavsDotProd_16s32f, Tav16s>(1, [](Tav16s v) { return v; });
  check_beyond_doubles<&::tavsDotProd_16sc32fc, Tav16sc>(-1, [](Tav16s v) { return Tav16sc{0, v}; });
}

}  // namespace
