// Scaled sums, differences and products of 8- and 16-bit elements: bytes at all pairs, 16-bit elements at all values
// against extremes, every factor that makes a difference.
#include "harness/faults.h"
#include "harness/scaled.h"

using namespace test;

namespace {

struct exact_pair {
  int64_t re, im;
};

const auto of_parts = [](auto f) {
  return [f](auto a, auto b) {
    if constexpr (requires { a.re; })
      return exact_pair{f(a.re, b.re), f(a.im, b.im)};
    else
      return f(a, b);
  };
};
const auto sum               = of_parts([](int64_t a, int64_t b) { return a + b; });
const auto second_less_first = of_parts([](int64_t a, int64_t b) { return b - a; });
const auto first_less_second = of_parts([](int64_t a, int64_t b) { return a - b; });
const auto product           = [](auto a, auto b) {
  if constexpr (requires { a.re; })
    return exact_pair{int64_t(a.re) * b.re - int64_t(a.im) * b.im, int64_t(a.re) * b.im + int64_t(a.im) * b.re};
  else
    return int64_t(a) * b;
};

const std::vector<int> byte_factors = factors_between(-10, 18), word_factors = factors_between(-18, 35);

template <class T> const std::vector<int>& factors_of() { return sizeof(T) == 1 ? byte_factors : word_factors; }

template <class P> void length_then_pointers_scaled(P function, auto each) {
  each([&] {
    Tav16sc a[4] = {}, b[4] = {}, *const null = nullptr;
    const auto expect = [&](TavStatus want, const Tav16sc* x, Tav16sc* y, int len) {
      if constexpr (std::is_invocable_v<P, const Tav16sc*, const Tav16sc*, Tav16sc*, int, int>) {
        EXPECT_EQ(checked_call(function, x, a, y, len, 0), want);
        EXPECT_EQ(checked_call(function, a, x, y, len, 0), want);
      } else {
        EXPECT_EQ(checked_call(function, x, y, len, 0), want);
      }
    };
    for (int len : {0, -1, std::numeric_limits<int>::min(), 0x40000000, 0x60000000}) {
      expect(len < 1 ? tavStatusBadSize : tavStatusNullPointer, null, b, len);
      expect(len < 1 ? tavStatusBadSize : tavStatusNullPointer, a, null, len);
      expect(tavStatusBadSize, a, b, len);
    }
    expect(tavStatusNullPointer, null, b, 4);
    expect(tavStatusNullPointer, a, null, 4);
  });
}

const auto pointers_then_length_scaled = [](auto function, auto each) { pointers_then_length_at<1>(function, each); };

}  // namespace

#define SUMS(type)                                                                                                     \
  TEST(ScaledAdd, As##type) {                                                                                          \
    check_two_sources_scaled<&::tavsAdd_##type##_Sfs, Tav##type, Tav##type, Tav##type>(factors_of<Tav##type>(), sum);  \
    check_in_place_scaled<&::tavsAdd_##type##_ISfs, Tav##type, Tav##type>(factors_of<Tav##type>(), sum);               \
  }                                                                                                                    \
  TEST(ScaledSub, As##type) {                                                                                          \
    check_two_sources_scaled<&::tavsSub_##type##_Sfs, Tav##type, Tav##type, Tav##type>(factors_of<Tav##type>(),        \
                                                                                       second_less_first);             \
    check_in_place_scaled<&::tavsSub_##type##_ISfs, Tav##type, Tav##type>(factors_of<Tav##type>(), second_less_first); \
  }                                                                                                                    \
  TEST(ScaledAddC, As##type) {                                                                                         \
    check_constant_scaled<&::tavsAddC_##type##_Sfs, &::tavsAddC_##type##_ISfs, Tav##type>(factors_of<Tav##type>(),     \
                                                                                          sum);                        \
  }                                                                                                                    \
  TEST(ScaledSubC, As##type) {                                                                                         \
    check_constant_scaled<&::tavsSubC_##type##_Sfs, &::tavsSubC_##type##_ISfs, Tav##type>(factors_of<Tav##type>(),     \
                                                                                          first_less_second);          \
  }                                                                                                                    \
  TEST(ScaledSubCRev, As##type) {                                                                                      \
    check_constant_scaled<&::tavsSubCRev_##type##_Sfs, &::tavsSubCRev_##type##_ISfs, Tav##type>(                       \
        factors_of<Tav##type>(), second_less_first);                                                                   \
  }
SUMS(8u)
SUMS(16s)
SUMS(16u) SUMS(16sc)
#undef SUMS

#define PRODUCTS(type)                                                                                             \
  TEST(ScaledMul, As##type) {                                                                                      \
    check_two_sources_scaled<&::tavsMul_##type##_Sfs, Tav##type, Tav##type, Tav##type>(factors_of<Tav##type>(),    \
                                                                                       product);                   \
    check_in_place_scaled<&::tavsMul_##type##_ISfs, Tav##type, Tav##type>(factors_of<Tav##type>(), product);       \
  }                                                                                                                \
  TEST(ScaledMulC, As##type) {                                                                                     \
    check_constant_scaled<&::tavsMulC_##type##_Sfs, &::tavsMulC_##type##_ISfs, Tav##type>(factors_of<Tav##type>(), \
                                                                                          product);                \
  }
    PRODUCTS(8u) PRODUCTS(16s) PRODUCTS(16u) PRODUCTS(16sc)
#undef PRODUCTS

        TEST(ScaledMul, As16u16s) {
  check_two_sources_scaled<&::tavsMul_16u16s_Sfs, Tav16u, Tav16s, Tav16s>(word_factors, product);
}

TEST(ScaledAddProduct, As16s) {
  check_accumulated_scaled<&::tavsAddProduct_16s_Sfs, Tav16s, Tav16s>(
      word_factors, [](int64_t a, int64_t b, int64_t c) { return a * b + c; });
}

TEST(ScaledMul, CornersOfComplex) {
  std::vector<Tav16sc> a, b;
  const Tav16s         corners[] = {-32768, -32767, -1, 0, 1, 32767};
  for (Tav16s p : corners)
    for (Tav16s q : corners)
      for (Tav16s r : corners)
        for (Tav16s t : corners) a.push_back({p, q}), b.push_back({r, t});
  for (int s : word_factors) {
    std::vector<Tav16sc> dst(a.size());
    ASSERT_EQ(call<&::tavsMul_16sc_Sfs>(a.data(), b.data(), dst.data(), int(a.size()), s), tavStatusOk);
    for (size_t i = 0; i < a.size(); ++i)
      ASSERT_TRUE(same(dst[i], scaled_element<Tav16sc>(product(a[i], b[i]), s))) << s;
  }
}

#define ROWS(name)                                    \
  TAV_FAULTS(name##_Sfs, pointers_then_length_scaled) \
  TAV_FAULTS(name##_ISfs, pointers_then_length_scaled)
#define ROWS_OF_PAIRS(name)                           \
  TAV_FAULTS(name##_Sfs, length_then_pointers_scaled) \
  TAV_FAULTS(name##_ISfs, length_then_pointers_scaled)

ROWS(Add_8u)
ROWS(Add_16s)
ROWS(Add_16u) ROWS_OF_PAIRS(Add_16sc) ROWS(Sub_8u) ROWS(Sub_16s) ROWS(Sub_16u) ROWS_OF_PAIRS(Sub_16sc) ROWS(AddC_8u)
    ROWS(AddC_16s) ROWS(AddC_16u) ROWS(AddC_16sc) ROWS(SubC_8u) ROWS(SubC_16s) ROWS(SubC_16u) ROWS(SubC_16sc)
        ROWS(SubCRev_8u) ROWS(SubCRev_16s) ROWS(SubCRev_16u) ROWS(SubCRev_16sc) ROWS(Mul_8u) ROWS(Mul_16s) ROWS(Mul_16u)
            ROWS(Mul_16sc) ROWS(MulC_8u) ROWS(MulC_16s) ROWS(MulC_16u) ROWS(MulC_16sc)
                TAV_FAULTS(Mul_16u16s_Sfs, pointers_then_length_scaled)
                    TAV_FAULTS(AddProduct_16s_Sfs, pointers_then_length_scaled)
#undef ROWS
#undef ROWS_OF_PAIRS
