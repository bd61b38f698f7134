// Scaled sums, differences and products of 8- and 16-bit elements: bytes at all pairs, 16-bit elements at all values
// with a few partners, every factor that makes a difference.
#include "harness/scaled.h"

using namespace test;

namespace {

template <class T> T result(int64_t exact, int s) { return oracle::scaled<T>(exact, s); }

// An operation on real numbers, on elements or on both parts of complex ones.
template <class F> auto by_parts_of(const F& f) {
  return [f](auto a, auto b, int s) {
    return by_parts(a, b, s, [&f](auto x, auto y, int by) { return result<decltype(x)>(f(x, y), by); });
  };
}
const auto sum               = by_parts_of([](int64_t a, int64_t b) { return a + b; });
const auto second_less_first = by_parts_of([](int64_t a, int64_t b) { return b - a; });
const auto first_less_second = by_parts_of([](int64_t a, int64_t b) { return a - b; });

const auto product = [](auto a, auto b, int s) {
  if constexpr (requires { a.re; })
    return Tav16sc{result<Tav16s>(int64_t(a.re) * b.re - int64_t(a.im) * b.im, s),
                   result<Tav16s>(int64_t(a.re) * b.im + int64_t(a.im) * b.re, s)};
  else
    return result<decltype(b)>(int64_t(a) * b, s);
};

const sweep all_bytes{scales_between(-10, 18), true}, all_words{scales_between(-18, 35), true};

template <auto* Apart, auto* InPlace, class One> void check_bytes(const One& one) {
  check_scaled<Apart>(one, all_bytes);
  check_scaled<InPlace>(one, all_bytes);
}
template <auto* Apart, auto* InPlace, class One> void check_words(const One& one) {
  check_scaled<Apart>(one, all_words);
  check_scaled<InPlace>(one, all_words);
}

TEST(NarrowSum, Add) {
  check_bytes<&::tavsAdd_8u_Sfs, &::tavsAdd_8u_ISfs>(sum);
  check_words<&::tavsAdd_16s_Sfs, &::tavsAdd_16s_ISfs>(sum);
  check_words<&::tavsAdd_16u_Sfs, &::tavsAdd_16u_ISfs>(sum);
  check_words<&::tavsAdd_16sc_Sfs, &::tavsAdd_16sc_ISfs>(sum);
}

TEST(NarrowSum, SubTakesTheFirstFromTheSecond) {
  check_bytes<&::tavsSub_8u_Sfs, &::tavsSub_8u_ISfs>(second_less_first);
  check_words<&::tavsSub_16s_Sfs, &::tavsSub_16s_ISfs>(second_less_first);
  check_words<&::tavsSub_16u_Sfs, &::tavsSub_16u_ISfs>(second_less_first);
  check_words<&::tavsSub_16sc_Sfs, &::tavsSub_16sc_ISfs>(second_less_first);
}

TEST(NarrowSum, AddC) {
  check_bytes<&::tavsAddC_8u_Sfs, &::tavsAddC_8u_ISfs>(sum);
  check_words<&::tavsAddC_16s_Sfs, &::tavsAddC_16s_ISfs>(sum);
  check_words<&::tavsAddC_16u_Sfs, &::tavsAddC_16u_ISfs>(sum);
  check_words<&::tavsAddC_16sc_Sfs, &::tavsAddC_16sc_ISfs>(sum);
}

TEST(NarrowSum, SubC) {
  check_bytes<&::tavsSubC_8u_Sfs, &::tavsSubC_8u_ISfs>(first_less_second);
  check_words<&::tavsSubC_16s_Sfs, &::tavsSubC_16s_ISfs>(first_less_second);
  check_words<&::tavsSubC_16u_Sfs, &::tavsSubC_16u_ISfs>(first_less_second);
  check_words<&::tavsSubC_16sc_Sfs, &::tavsSubC_16sc_ISfs>(first_less_second);
}

TEST(NarrowSum, SubCRev) {
  check_bytes<&::tavsSubCRev_8u_Sfs, &::tavsSubCRev_8u_ISfs>(second_less_first);
  check_words<&::tavsSubCRev_16s_Sfs, &::tavsSubCRev_16s_ISfs>(second_less_first);
  check_words<&::tavsSubCRev_16u_Sfs, &::tavsSubCRev_16u_ISfs>(second_less_first);
  check_words<&::tavsSubCRev_16sc_Sfs, &::tavsSubCRev_16sc_ISfs>(second_less_first);
}

TEST(NarrowProduct, Mul) {
  check_bytes<&::tavsMul_8u_Sfs, &::tavsMul_8u_ISfs>(product);
  check_words<&::tavsMul_16s_Sfs, &::tavsMul_16s_ISfs>(product);
  check_words<&::tavsMul_16u_Sfs, &::tavsMul_16u_ISfs>(product);
  check_words<&::tavsMul_16sc_Sfs, &::tavsMul_16sc_ISfs>(product);
  check_scaled<&::tavsMul_16u16s_Sfs>(product, all_words);
}

TEST(NarrowProduct, MulC) {
  check_bytes<&::tavsMulC_8u_Sfs, &::tavsMulC_8u_ISfs>(product);
  check_words<&::tavsMulC_16s_Sfs, &::tavsMulC_16s_ISfs>(product);
  check_words<&::tavsMulC_16u_Sfs, &::tavsMulC_16u_ISfs>(product);
  check_words<&::tavsMulC_16sc_Sfs, &::tavsMulC_16sc_ISfs>(product);
}

TEST(NarrowProduct, AddProduct) {
  check_scaled<&::tavsAddProduct_16s_Sfs>(
      [](int64_t a, int64_t b, int64_t c, int s) { return result<Tav16s>(a * b + c, s); }, all_words);
}

TEST(NarrowProduct, CornersOfComplexNumbers) {
  std::vector<Tav16sc> a, b;
  const Tav16s         corners[] = {-32768, -32767, -1, 0, 1, 32767};
  for (Tav16s p : corners)
    for (Tav16s q : corners)
      for (Tav16s r : corners)
        for (Tav16s t : corners) a.push_back({p, q}), b.push_back({r, t});
  for (int s : all_words.scales) {
    std::vector<Tav16sc> dst(a.size());
    ASSERT_EQ(call<&::tavsMul_16sc_Sfs>(a.data(), b.data(), dst.data(), int(a.size()), s), tavStatusOk);
    for (size_t i = 0; i < a.size(); ++i) ASSERT_TRUE(same(dst[i], product(a[i], b[i], s))) << s;
  }
}

// Twice a length from 2^30 on is no length: the pointers are tested first by then.
TEST(NarrowSum, LengthsThatCannotDouble) {
  Tav16sc x{1, 2}, none[1]{};
  for (int len : {1 << 30, (1 << 30) + 1, INT_MAX}) {
    EXPECT_EQ(call<&::tavsAdd_16sc_Sfs>(&x, &x, none, len, 0), tavStatusBadSize) << len;
    EXPECT_EQ(call<&::tavsSub_16sc_ISfs>(&x, none, len, 0), tavStatusBadSize) << len;
    EXPECT_EQ(call<&::tavsAdd_16sc_Sfs>(&x, nullptr, none, len, 0), tavStatusNullPointer) << len;
  }
  EXPECT_EQ(none[0].re, 0);
}

TAV_FAULTS(Add_8u_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Add_8u_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Add_16s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Add_16s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Add_16u_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Add_16u_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Add_16sc_Sfs, length_then_pointers_scaled)
TAV_FAULTS(Add_16sc_ISfs, length_then_pointers_scaled)
TAV_FAULTS(Sub_8u_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Sub_8u_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Sub_16s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Sub_16s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Sub_16u_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Sub_16u_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Sub_16sc_Sfs, length_then_pointers_scaled)
TAV_FAULTS(Sub_16sc_ISfs, length_then_pointers_scaled)
TAV_FAULTS(AddC_8u_Sfs, pointers_then_length_scaled)
TAV_FAULTS(AddC_8u_ISfs, pointers_then_length_scaled)
TAV_FAULTS(AddC_16s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(AddC_16s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(AddC_16u_Sfs, pointers_then_length_scaled)
TAV_FAULTS(AddC_16u_ISfs, pointers_then_length_scaled)
TAV_FAULTS(AddC_16sc_Sfs, pointers_then_length_scaled)
TAV_FAULTS(AddC_16sc_ISfs, pointers_then_length_scaled)
TAV_FAULTS(SubC_8u_Sfs, pointers_then_length_scaled)
TAV_FAULTS(SubC_8u_ISfs, pointers_then_length_scaled)
TAV_FAULTS(SubC_16s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(SubC_16s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(SubC_16u_Sfs, pointers_then_length_scaled)
TAV_FAULTS(SubC_16u_ISfs, pointers_then_length_scaled)
TAV_FAULTS(SubC_16sc_Sfs, pointers_then_length_scaled)
TAV_FAULTS(SubC_16sc_ISfs, pointers_then_length_scaled)
TAV_FAULTS(SubCRev_8u_Sfs, pointers_then_length_scaled)
TAV_FAULTS(SubCRev_8u_ISfs, pointers_then_length_scaled)
TAV_FAULTS(SubCRev_16s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(SubCRev_16s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(SubCRev_16u_Sfs, pointers_then_length_scaled)
TAV_FAULTS(SubCRev_16u_ISfs, pointers_then_length_scaled)
TAV_FAULTS(SubCRev_16sc_Sfs, pointers_then_length_scaled)
TAV_FAULTS(SubCRev_16sc_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Mul_8u_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Mul_8u_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Mul_16s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Mul_16s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Mul_16u_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Mul_16u_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Mul_16sc_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Mul_16sc_ISfs, pointers_then_length_scaled)
TAV_FAULTS(MulC_8u_Sfs, pointers_then_length_scaled)
TAV_FAULTS(MulC_8u_ISfs, pointers_then_length_scaled)
TAV_FAULTS(MulC_16s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(MulC_16s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(MulC_16u_Sfs, pointers_then_length_scaled)
TAV_FAULTS(MulC_16u_ISfs, pointers_then_length_scaled)
TAV_FAULTS(MulC_16sc_Sfs, pointers_then_length_scaled)
TAV_FAULTS(MulC_16sc_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Mul_16u16s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(AddProduct_16s_Sfs, pointers_then_length_scaled)

}  // namespace
