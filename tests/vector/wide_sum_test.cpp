// Scaled sums and differences of 32 bits, against exact integers.
#include "harness/scaled.h"

using namespace test;
using oracle::exact;

namespace {

template <class T> T scaled_sum(T a, T b, int s) {
  return by_parts(a, b, s, [](Tav32s x, Tav32s y, int by) { return oracle::scaled<Tav32s>(exact(x) + exact(y), by); });
}

template <class T> T scaled_difference(T a, T b, int s) {  // a - b
  return by_parts(a, b, s, [](Tav32s x, Tav32s y, int by) { return oracle::scaled<Tav32s>(exact(x) - exact(y), by); });
}

const auto sum                 = [](auto a, auto b, int s) { return scaled_sum(a, b, s); };
const auto difference          = [](auto a, auto b, int s) { return scaled_difference(a, b, s); };
const auto reversed_difference = [](auto a, auto b, int s) { return scaled_difference(b, a, s); };

TAV_FAULTS(Add_32s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Add_32s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Add_32sc_Sfs, length_then_pointers_scaled)
TAV_FAULTS(Add_32sc_ISfs, length_then_pointers_scaled)
TAV_FAULTS(Sub_32s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Sub_32s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(Sub_32sc_Sfs, length_then_pointers_scaled)
TAV_FAULTS(Sub_32sc_ISfs, length_then_pointers_scaled)
TAV_FAULTS(AddC_32s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(AddC_32s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(AddC_32sc_Sfs, pointers_then_length_scaled)
TAV_FAULTS(AddC_32sc_ISfs, pointers_then_length_scaled)
TAV_FAULTS(SubC_32s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(SubC_32s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(SubC_32sc_Sfs, pointers_then_length_scaled)
TAV_FAULTS(SubC_32sc_ISfs, pointers_then_length_scaled)
TAV_FAULTS(SubCRev_32s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(SubCRev_32s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(SubCRev_32sc_Sfs, pointers_then_length_scaled)
TAV_FAULTS(SubCRev_32sc_ISfs, pointers_then_length_scaled)

TEST(WideSum, Add) {
  check_scaled<&::tavsAdd_32s_Sfs>(sum);
  check_scaled<&::tavsAdd_32s_ISfs>(sum);
  check_scaled<&::tavsAdd_32sc_Sfs>(sum);
  check_scaled<&::tavsAdd_32sc_ISfs>(sum);
}

TEST(WideSum, SubTakesTheFirstFromTheSecond) {
  check_scaled<&::tavsSub_32s_Sfs>(reversed_difference);
  check_scaled<&::tavsSub_32s_ISfs>(reversed_difference);
  check_scaled<&::tavsSub_32sc_Sfs>(reversed_difference);
  check_scaled<&::tavsSub_32sc_ISfs>(reversed_difference);
}

TEST(WideSum, AddC) {
  check_scaled<&::tavsAddC_32s_Sfs>(sum);
  check_scaled<&::tavsAddC_32s_ISfs>(sum);
  check_scaled<&::tavsAddC_32sc_Sfs>(sum);
  check_scaled<&::tavsAddC_32sc_ISfs>(sum);
}

TEST(WideSum, SubC) {
  check_scaled<&::tavsSubC_32s_Sfs>(difference);
  check_scaled<&::tavsSubC_32s_ISfs>(difference);
  check_scaled<&::tavsSubC_32sc_Sfs>(difference);
  check_scaled<&::tavsSubC_32sc_ISfs>(difference);
}

TEST(WideSum, SubCRev) {
  check_scaled<&::tavsSubCRev_32s_Sfs>(reversed_difference);
  check_scaled<&::tavsSubCRev_32s_ISfs>(reversed_difference);
  check_scaled<&::tavsSubCRev_32sc_Sfs>(reversed_difference);
  check_scaled<&::tavsSubCRev_32sc_ISfs>(reversed_difference);
}

// Pairs of numbers next to each limit, in every lane: where sums of 33 bits overflow, and where halves of them tie.
TEST(WideSum, NextToTheLimits) {
  std::vector<Tav32s> a, b;
  const Tav32s        near[] = {INT_MIN, INT_MIN + 1, INT_MIN + 2, -0x40000001, -0x40000000, -2,          -1,     0,
                                1,       2,           3,           0x3FFFFFFF,  0x40000000,  INT_MAX - 1, INT_MAX};
  for (Tav32s x : near)
    for (Tav32s y : near) a.push_back(x), b.push_back(y);
  std::vector<Tav32s> dst(a.size());
  const int           n = int(a.size());
  for (int s : all_scales()) {
    ASSERT_EQ(call<&::tavsAdd_32s_Sfs>(a.data(), b.data(), dst.data(), n, s), tavStatusOk);
    for (size_t i = 0; i < a.size(); ++i)
      ASSERT_EQ(dst[i], scaled_sum(a[i], b[i], s)) << a[i] << " + " << b[i] << ", " << s;
    ASSERT_EQ(call<&::tavsSub_32s_Sfs>(a.data(), b.data(), dst.data(), n, s), tavStatusOk);
    for (size_t i = 0; i < a.size(); ++i)
      ASSERT_EQ(dst[i], scaled_difference(b[i], a[i], s)) << b[i] << " - " << a[i] << ", " << s;
  }
}

TEST(WideSum, ByHand) {
  const auto add = [](Tav32s a, Tav32s b, int s) {
    Tav32s dst = 99;
    EXPECT_EQ(call<&::tavsAdd_32s_Sfs>(&a, &b, &dst, 1, s), tavStatusOk);
    return dst;
  };
  EXPECT_EQ(add(-1, 0, 1), 0);
  EXPECT_EQ(add(1, 0, 1), 0);
  EXPECT_EQ(add(3, 0, 1), 2);
  EXPECT_EQ(add(INT_MAX, 1, 0), INT_MAX);
  EXPECT_EQ(add(INT_MAX, INT_MAX, 1), INT_MAX);
  EXPECT_EQ(add(INT_MIN, INT_MIN, 32), -1);
  EXPECT_EQ(add(INT_MIN, INT_MIN, 33), 0);
  EXPECT_EQ(add(2, -1, INT_MIN), INT_MAX);
  EXPECT_EQ(add(1, -2, -31), INT_MIN);
  const Tav32s lowest = INT_MIN, highest = INT_MAX;
  Tav32s       dst;
  EXPECT_EQ(call<&::tavsSub_32s_Sfs>(&lowest, &highest, &dst, 1, 1), tavStatusOk);
  EXPECT_EQ(dst, INT_MAX) << "the half of the largest difference rounds up, out of the range";
}

// Twice a length from 2^30 on is no length: the pointers are tested first by then.
TEST(WideSum, LengthsThatCannotDouble) {
  Tav32sc x{1, 2}, none[1]{};
  for (int len : {1 << 30, (1 << 30) + 1, INT_MAX}) {
    EXPECT_EQ(call<&::tavsAdd_32sc_Sfs>(&x, &x, none, len, 0), tavStatusBadSize) << len;
    EXPECT_EQ(call<&::tavsSub_32sc_ISfs>(&x, none, len, 0), tavStatusBadSize) << len;
    EXPECT_EQ(call<&::tavsAdd_32sc_Sfs>(&x, nullptr, none, len, 0), tavStatusNullPointer) << len;
  }
  EXPECT_EQ(none[0].re, 0);
}

}  // namespace
