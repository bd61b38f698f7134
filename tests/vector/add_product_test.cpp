// tavsAddProduct, tavsAddProductC: the product is rounded, then added to what the destination holds.
#include "harness/faults.h"
#include "harness/forms.h"
#include "oracle/arithmetic.h"

using namespace test;

namespace {

const auto product_and_sum = [](auto a, auto b, auto c) {
  using exact = oracle::arithmetic<decltype(c)>;
  return exact::add(exact::mul(a, b), c);
};

TEST(AddProduct, As32f) { check_accumulated<&::tavsAddProduct_32f>(product_and_sum); }
TEST(AddProduct, As64f) { check_accumulated<&::tavsAddProduct_64f>(product_and_sum); }
TEST(AddProduct, As32fc) { check_accumulated<&::tavsAddProduct_32fc>(product_and_sum); }
TEST(AddProduct, As64fc) { check_accumulated<&::tavsAddProduct_64fc>(product_and_sum); }
TEST(AddProductC, As32f) { check_accumulated_constant<&::tavsAddProductC_32f>(product_and_sum); }

// The exact product of these exceeds its rounding by 2^-24, which a fused operation would leave behind.
TEST(AddProduct, NotFused) {
  const Tav32f              x = 1.0f + 0x1p-12f;
  const std::vector<Tav32f> a(21, x);
  std::vector<Tav32f>       sum(21, -x * x), sum_c = sum;
  EXPECT_EQ(call<&::tavsAddProduct_32f>(a.data(), a.data(), sum.data(), 21), tavStatusOk);
  EXPECT_EQ(call<&::tavsAddProductC_32f>(a.data(), x, sum_c.data(), 21), tavStatusOk);
  EXPECT_EQ(sum, std::vector<Tav32f>(21, 0.0f));
  EXPECT_EQ(sum_c, std::vector<Tav32f>(21, 0.0f));
}

// No constant spares the work: 0 times a NaN is a NaN, and -0.0 + 0.0 is 0.0.
TEST(AddProductC, ZeroIsNoShortcut) {
  const Tav32f src[] = {std::numeric_limits<Tav32f>::quiet_NaN(), 5};
  Tav32f       sum[] = {1, -0.0f};
  EXPECT_EQ(call<&::tavsAddProductC_32f>(src, 0.0f, sum, 2), tavStatusOk);
  EXPECT_NE(sum[0], sum[0]);
  EXPECT_TRUE(same(sum[1], 0.0f));
}

}  // namespace

TAV_FAULTS(AddProduct_32f, pointers_then_length)
TAV_FAULTS(AddProduct_64f, pointers_then_length)
TAV_FAULTS(AddProduct_32fc, pointers_then_length)
TAV_FAULTS(AddProduct_64fc, pointers_then_length)
TAV_FAULTS(AddProductC_32f, pointers_then_length)
