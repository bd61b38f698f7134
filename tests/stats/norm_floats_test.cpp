// tavsNorm, tavsNormDiff of floats: against the definition in extended precision, and bit for bit where nothing rounds;
// NaNs and infinities at every place, squares beyond the range of singles, rounding modes, long sums.
#include "harness/forms.h"
#include "stats/norm_forms.h"

using namespace test;

namespace {

enum norm { inf, l1, l2 };

template <class S> constexpr bool of_pairs = requires(S v) { v.re; };

template <auto* Export> long double plain_norm(norm which, const sources<src_of<Export>>& from) {
  const auto e = elements_of<Export>(from);
  return which == inf ? oracle::norm_inf(e) : which == l1 ? oracle::norm_l1(e) : oracle::norm_l2(e);
}

// Numbers of all sizes within 2^40 and of both signs.
template <class S> S mixed(source_of_data& data) {
  if constexpr (of_pairs<S>)
    return {mixed<decltype(S::re)>(data), mixed<decltype(S::re)>(data)};
  else
    return S(ldexp(int32_t(data.bits()), data.below(40) - 50));
}

// Whole numbers so small that sums of their squares are exact in singles.
template <class S> S whole(source_of_data& data) {
  if constexpr (of_pairs<S>)
    return {whole<decltype(S::re)>(data), whole<decltype(S::re)>(data)};
  else
    return S(data.below(121) - 60);
}

template <class S> std::vector<S> drawn(source_of_data& data, size_t n, S (*one)(source_of_data&)) {
  std::vector<S> v(n);
  for (S& x : v) x = one(data);
  return v;
}

// In any place, with a relative error that the number of additions in one lane allows.
template <auto* Export> void check_float_norm(norm which) {
  using S          = src_of<Export>;
  using D          = dst_of<Export>;
  const auto right = [=](const auto& from, D got) {
    const long double want = plain_norm<Export>(which, from), eps = std::numeric_limits<D>::epsilon() / 2;
    const long double roundings = which == inf ? (of_pairs<S> ? 3 : 0) : 9 + from.a.size() / 16;
    ASSERT_LE(fabsl(got - want), roundings * eps * want) << from.a.size() << " elements: " << got;
  };
  check_places<Export, S>({.around = 1000}, right, [](auto& data, size_t n) { return drawn(data, n, mixed<S>); });
}

template <auto* Export> void check_whole(norm which) {
  using S          = src_of<Export>;
  const auto right = [=](const auto& from, dst_of<Export> got) {
    const long double want = plain_norm<Export>(which, from);
    ASSERT_EQ(got, dst_of<Export>(want)) << from.a.size() << " elements";
  };
  check_places<Export, S>({.around = 256}, right, [](auto& data, size_t n) { return drawn(data, n, whole<S>); });
}

TEST(NormOfFloats, Inf32f) { check_float_norm<&::tavsNorm_Inf_32f>(inf); }
TEST(NormOfFloats, Inf64f) { check_float_norm<&::tavsNorm_Inf_64f>(inf); }
TEST(NormOfFloats, Inf32fc) { check_float_norm<&::tavsNorm_Inf_32fc32f>(inf); }
TEST(NormOfFloats, Inf64fc) { check_float_norm<&::tavsNorm_Inf_64fc64f>(inf); }
TEST(NormOfFloats, L1Of32f) { check_float_norm<&::tavsNorm_L1_32f>(l1), check_whole<&::tavsNorm_L1_32f>(l1); }
TEST(NormOfFloats, L1Of64f) { check_float_norm<&::tavsNorm_L1_64f>(l1), check_whole<&::tavsNorm_L1_64f>(l1); }
TEST(NormOfFloats, L1Of32fc) { check_float_norm<&::tavsNorm_L1_32fc64f>(l1); }
TEST(NormOfFloats, L1Of64fc) { check_float_norm<&::tavsNorm_L1_64fc64f>(l1); }
TEST(NormOfFloats, L2Of32f) { check_float_norm<&::tavsNorm_L2_32f>(l2), check_whole<&::tavsNorm_L2_32f>(l2); }
TEST(NormOfFloats, L2Of64f) { check_float_norm<&::tavsNorm_L2_64f>(l2), check_whole<&::tavsNorm_L2_64f>(l2); }
TEST(NormOfFloats, L2Of32fc) { check_float_norm<&::tavsNorm_L2_32fc64f>(l2), check_whole<&::tavsNorm_L2_32fc64f>(l2); }
TEST(NormOfFloats, L2Of64fc) { check_float_norm<&::tavsNorm_L2_64fc64f>(l2), check_whole<&::tavsNorm_L2_64fc64f>(l2); }

TEST(NormDiffOfFloats, Inf32f) { check_float_norm<&::tavsNormDiff_Inf_32f>(inf); }
TEST(NormDiffOfFloats, Inf64f) { check_float_norm<&::tavsNormDiff_Inf_64f>(inf); }
TEST(NormDiffOfFloats, Inf32fc) { check_float_norm<&::tavsNormDiff_Inf_32fc32f>(inf); }
TEST(NormDiffOfFloats, Inf64fc) { check_float_norm<&::tavsNormDiff_Inf_64fc64f>(inf); }
TEST(NormDiffOfFloats, L1Of32f) {
  check_float_norm<&::tavsNormDiff_L1_32f>(l1), check_whole<&::tavsNormDiff_L1_32f>(l1);
}
TEST(NormDiffOfFloats, L1Of64f) {
  check_float_norm<&::tavsNormDiff_L1_64f>(l1), check_whole<&::tavsNormDiff_L1_64f>(l1);
}
TEST(NormDiffOfFloats, L1Of32fc) { check_float_norm<&::tavsNormDiff_L1_32fc64f>(l1); }
TEST(NormDiffOfFloats, L1Of64fc) { check_float_norm<&::tavsNormDiff_L1_64fc64f>(l1); }
TEST(NormDiffOfFloats, L2Of32f) {
  check_float_norm<&::tavsNormDiff_L2_32f>(l2), check_whole<&::tavsNormDiff_L2_32f>(l2);
}
TEST(NormDiffOfFloats, L2Of64f) {
  check_float_norm<&::tavsNormDiff_L2_64f>(l2), check_whole<&::tavsNormDiff_L2_64f>(l2);
}
TEST(NormDiffOfFloats, L2Of32fc) {
  check_float_norm<&::tavsNormDiff_L2_32fc64f>(l2), check_whole<&::tavsNormDiff_L2_32fc64f>(l2);
}
TEST(NormDiffOfFloats, L2Of64fc) {
  check_float_norm<&::tavsNormDiff_L2_64fc64f>(l2), check_whole<&::tavsNormDiff_L2_64fc64f>(l2);
}

// One number among others, in each part of each place of either source: a NaN makes one; an infinity without another
// on the other side is the norm; the largest element is found.
template <class S, class P> void set_part(S& element, bool imaginary, P v) {
  if constexpr (of_pairs<S>)
    (imaginary ? element.im : element.re) = v;
  else
    element = v;
}

template <auto* Export> void check_each_place(norm which) {
  using S = src_of<Export>;
  using D = dst_of<Export>;
  source_of_data data(21);
  each_build<Export>([&] {
    for (int n = 1; n <= 45; ++n)
      for (int at = 0; at < n; ++at)
        for (int side = 0; side < form_of<Export>::arrays; ++side)
          for (bool imaginary : {false, true}) {
            sources<S> from{drawn(data, n, whole<S>), drawn(data, n, whole<S>)};
            const auto norm_with = [&](D v) {
              set_part((side == 0 ? from.a : from.b)[at], imaginary, v);
              return norm_of<Export>(from);
            };
            const auto where = [&] { return testing::Message() << n << " elements, " << at << " in " << side; };
            const D    nan   = norm_with(std::numeric_limits<D>::quiet_NaN());
            ASSERT_NE(nan, nan) << where();
            ASSERT_EQ(norm_with(std::numeric_limits<D>::infinity()), INFINITY) << where();
            ASSERT_EQ(norm_with(-std::numeric_limits<D>::infinity()), INFINITY) << where();
            for (D peak : {-30000, 30000}) {
              const D got = norm_with(peak);
              ASSERT_NEAR(got, plain_norm<Export>(which, from), got * 1e-6) << where();
            }
          }
  });
}

TEST(NormOfFloats, EachPlace) {
  check_each_place<&::tavsNorm_Inf_32f>(inf), check_each_place<&::tavsNorm_Inf_64f>(inf);
  check_each_place<&::tavsNorm_Inf_32fc32f>(inf), check_each_place<&::tavsNorm_Inf_64fc64f>(inf);
  check_each_place<&::tavsNorm_L1_32f>(l1), check_each_place<&::tavsNorm_L1_64f>(l1);
  check_each_place<&::tavsNorm_L1_32fc64f>(l1), check_each_place<&::tavsNorm_L1_64fc64f>(l1);
  check_each_place<&::tavsNorm_L2_32f>(l2), check_each_place<&::tavsNorm_L2_64f>(l2);
  check_each_place<&::tavsNorm_L2_32fc64f>(l2), check_each_place<&::tavsNorm_L2_64fc64f>(l2);
}
TEST(NormDiffOfFloats, EachPlace) {
  check_each_place<&::tavsNormDiff_Inf_32f>(inf), check_each_place<&::tavsNormDiff_Inf_64f>(inf);
  check_each_place<&::tavsNormDiff_Inf_32fc32f>(inf), check_each_place<&::tavsNormDiff_Inf_64fc64f>(inf);
  check_each_place<&::tavsNormDiff_L1_32f>(l1), check_each_place<&::tavsNormDiff_L1_64f>(l1);
  check_each_place<&::tavsNormDiff_L1_32fc64f>(l1), check_each_place<&::tavsNormDiff_L1_64fc64f>(l1);
  check_each_place<&::tavsNormDiff_L2_32f>(l2), check_each_place<&::tavsNormDiff_L2_64f>(l2);
  check_each_place<&::tavsNormDiff_L2_32fc64f>(l2), check_each_place<&::tavsNormDiff_L2_64fc64f>(l2);
}

// Pairs of singles work in doubles, in which their squares neither overflow nor vanish; real singles do not.
TEST(NormOfFloats, Ranges) {
  const Tav32f huge = 3e38f, tiny = 1e-30f;
  for (int n : {1, 5, 40}) {
    const std::vector<Tav32fc> large(n, {huge, -huge}), opposite(n, {-huge, huge}), small(n, {tiny, tiny});
    const long double          size = huge * sqrtl(2);
    EXPECT_NEAR(norm_of<&::tavsNorm_L1_32fc64f>({large, {}}), n * size, n * size * 1e-14);
    EXPECT_NEAR(norm_of<&::tavsNorm_L2_32fc64f>({large, {}}), sqrtl(n) * size, n * size * 1e-14);
    EXPECT_NEAR(norm_of<&::tavsNormDiff_L1_32fc64f>({large, opposite}), 2 * n * size, n * size * 1e-13);
    EXPECT_NEAR(norm_of<&::tavsNormDiff_L2_32fc64f>({large, opposite}), 2 * sqrtl(n) * size, n * size * 1e-13);
    EXPECT_EQ(norm_of<&::tavsNormDiff_Inf_32fc32f>({large, opposite}), INFINITY);
    EXPECT_EQ(norm_of<&::tavsNorm_Inf_32fc32f>({small, {}}), Tav32f(tiny * sqrtl(2)));
    EXPECT_EQ(norm_of<&::tavsNorm_Inf_32fc32f>({std::vector<Tav32fc>(n, {2e38f, 1e38f}), {}}),
              Tav32f(sqrtl(5) * 1e38f));

    const std::vector<Tav32f> reals(n, huge), negatives(n, -huge);
    EXPECT_EQ(norm_of<&::tavsNorm_Inf_32f>({negatives, {}}), huge);
    EXPECT_EQ(norm_of<&::tavsNorm_L2_32f>({reals, {}}), INFINITY);
    EXPECT_EQ(norm_of<&::tavsNormDiff_Inf_32f>({reals, negatives}), INFINITY);
    EXPECT_EQ(norm_of<&::tavsNormDiff_L1_32f>({reals, reals}), 0);

    const std::vector<Tav64fc> doubles(n, {1e200, 1e200});
    EXPECT_EQ(norm_of<&::tavsNorm_Inf_64fc64f>({doubles, {}}), INFINITY);
    EXPECT_EQ(norm_of<&::tavsNorm_L1_64fc64f>({doubles, {}}), INFINITY);
  }
  const std::vector<Tav32f> infinite(9, INFINITY);
  const Tav32f              nan = norm_of<&::tavsNormDiff_Inf_32f>({infinite, infinite});
  EXPECT_NE(nan, nan);
}

// A difference of pairs keeps what singles would lose.
TEST(NormDiffOfFloats, DifferencesOfPairsAreDoubles) {
  const sources<Tav32fc> from{std::vector<Tav32fc>(11, {1, 0}), std::vector<Tav32fc>(11, {1e-9f, 0})};
  const Tav64f           difference = 1 - Tav64f(1e-9f);
  EXPECT_NEAR(norm_of<&::tavsNormDiff_L1_32fc64f>(from), 11 * difference, 1e-13);
  EXPECT_NEAR(norm_of<&::tavsNormDiff_L2_32fc64f>(from), sqrt(11.0) * difference, 1e-14);
}

// Sums, roots and differences follow the caller's mode; a zero has no sign in any.
template <auto* Export> void check_modes(Tav64f element, Tav64f below, Tav64f above) {
  using S = src_of<Export>;
  sources<S> from{std::vector<S>(40), std::vector<S>(40)}, zero = from;
  set_part(from.a[0], false, 1), set_part(from.a[35], true, element);
  for (unsigned mode : rounding_modes) {
    const rounding_mode set(mode);
    const Tav64f        got = norm_of<Export>(from), none = norm_of<Export>(zero);
    EXPECT_EQ(got, mode == rounding_mode::up ? above : below) << std::hex << mode;
    EXPECT_TRUE(none == 0 && !signbit(none));
  }
}

TEST(NormOfFloats, RoundingModes) {
  check_modes<&::tavsNorm_L1_32f>(1e-20, 1, 1 + 0x1p-23);
  check_modes<&::tavsNorm_L1_64f>(1e-30, 1, 1 + 0x1p-52);
  check_modes<&::tavsNorm_L2_32f>(1, 1.41421354f, 1.41421366f);
  check_modes<&::tavsNorm_L2_64f>(1, 1.4142135623730949, 1.4142135623730951);
  check_modes<&::tavsNorm_L2_32fc64f>(1, 1.4142135623730949, 1.4142135623730951);
  check_modes<&::tavsNorm_L1_64fc64f>(1e-30, 1, 1 + 0x1p-52);
  check_modes<&::tavsNormDiff_L1_32f>(1e-20, 1, 1 + 0x1p-23);
  check_modes<&::tavsNormDiff_L2_64fc64f>(1, 1.4142135623730949, 1.4142135623730951);
  check_modes<&::tavsNorm_Inf_32fc32f>(1e-10, 1, 1);
}

// Long sums of singles keep their precision, and no block is lost or counted twice.
TEST(NormOfFloats, LongSumsOfSingles) {
  for (int n : {0x7FFF, 0x8000, 0x8001, 0x8007, 0x10000, 0x18009}) {
    const std::vector<Tav32f> ones(n, -1.0f), threes(n, 3.0f);
    EXPECT_EQ(norm_of<&::tavsNorm_L1_32f>({ones, {}}), n);
    EXPECT_EQ(norm_of<&::tavsNorm_L2_32f>({ones, {}}), sqrtf(n));
    EXPECT_EQ(norm_of<&::tavsNormDiff_L1_32f>({threes, ones}), 4 * n);
    EXPECT_EQ(norm_of<&::tavsNormDiff_L2_32f>({threes, ones}), sqrtf(16.0f * n));
  }
  const int                 n = 5000017;
  const std::vector<Tav32f> tenths(n, 0.1f), none(n);
  const long double         sum = Tav64f(0.1f) * n, root = 0.1f * sqrtl(n);
  EXPECT_NEAR(norm_of<&::tavsNorm_L1_32f>({tenths, {}}), sum, sum * 0x1p-16);
  EXPECT_NEAR(norm_of<&::tavsNorm_L2_32f>({tenths, {}}), root, root * 0x1p-16);
  EXPECT_NEAR(norm_of<&::tavsNormDiff_L2_32f>({none, tenths}), root, root * 0x1p-16);
}

}  // namespace

#define CASE(form)                           \
  TAV_FAULTS(Norm_##form, result_at_the_end) \
  TAV_FAULTS(NormDiff_##form, result_at_the_end)
CASE(Inf_32f)
CASE(Inf_64f)
CASE(Inf_32fc32f)
CASE(Inf_64fc64f)
CASE(L1_32f) CASE(L1_64f) CASE(L1_32fc64f) CASE(L1_64fc64f) CASE(L2_32f) CASE(L2_64f) CASE(L2_32fc64f) CASE(L2_64fc64f)
#undef CASE
