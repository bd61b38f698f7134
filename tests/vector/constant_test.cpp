// tavsAddC, SubC, SubCRev, MulC: against the definition, with the constants that spare the work: what they leave of
// -0.0, infinities and NaNs differs from what computing would.
#include "harness/faults.h"
#include "harness/forms.h"
#include "oracle/arithmetic.h"

using namespace test;

namespace {

template <class T> constexpr bool is_complex = oracle::is_complex<T>;

const auto plus = [](auto a, auto val) {
  return oracle::equals(val, 0) ? a : oracle::arithmetic<decltype(a)>::add(a, val);
};
const auto minus = [](auto a, auto val) {
  return oracle::equals(val, 0) ? a : oracle::arithmetic<decltype(a)>::sub(val, a);
};
const auto plus_always    = [](auto a, auto val) { return oracle::arithmetic<decltype(a)>::add(a, val); };
const auto minus_always   = [](auto a, auto val) { return oracle::arithmetic<decltype(a)>::sub(val, a); };
const auto minus_reversed = [](auto a, auto val) { return oracle::arithmetic<decltype(a)>::sub(a, val); };
const auto times          = [](auto a, auto val) {
  using T = decltype(a);
  if (!is_complex<T> && oracle::equals(val, 0)) return T{};
  return oracle::equals(val, 1) ? a : oracle::arithmetic<T>::mul(a, val);
};

TEST(AddC, As32f) { check_constant<&::tavsAddC_32f>(plus); }
TEST(AddC, As64f) { check_constant<&::tavsAddC_64f>(plus); }
TEST(AddC, As32fc) { check_constant<&::tavsAddC_32fc>(plus); }
TEST(AddC, As64fc) { check_constant<&::tavsAddC_64fc>(plus); }
TEST(AddCInPlace, As16s) { check_constant_in_place<&::tavsAddC_16s_I>(plus); }
TEST(AddCInPlace, As32f) { check_constant_in_place<&::tavsAddC_32f_I>(plus); }
TEST(AddCInPlace, As64f) { check_constant_in_place<&::tavsAddC_64f_I>(plus); }
TEST(AddCInPlace, As32fc) { check_constant_in_place<&::tavsAddC_32fc_I>(plus_always); }
TEST(AddCInPlace, As64fc) { check_constant_in_place<&::tavsAddC_64fc_I>(plus_always); }

TEST(SubC, As32f) { check_constant<&::tavsSubC_32f>(minus); }
TEST(SubC, As64f) { check_constant<&::tavsSubC_64f>(minus); }
TEST(SubC, As32fc) { check_constant<&::tavsSubC_32fc>(minus); }
TEST(SubC, As64fc) { check_constant<&::tavsSubC_64fc>(minus); }
TEST(SubCInPlace, As16s) { check_constant_in_place<&::tavsSubC_16s_I>(minus); }
TEST(SubCInPlace, As32f) { check_constant_in_place<&::tavsSubC_32f_I>(minus); }
TEST(SubCInPlace, As64f) { check_constant_in_place<&::tavsSubC_64f_I>(minus); }
TEST(SubCInPlace, As32fc) { check_constant_in_place<&::tavsSubC_32fc_I>(minus_always); }
TEST(SubCInPlace, As64fc) { check_constant_in_place<&::tavsSubC_64fc_I>(minus_always); }

TEST(SubCRev, As32f) { check_constant<&::tavsSubCRev_32f>(minus_reversed); }
TEST(SubCRev, As64f) { check_constant<&::tavsSubCRev_64f>(minus_reversed); }
TEST(SubCRev, As32fc) { check_constant<&::tavsSubCRev_32fc>(minus_reversed); }
TEST(SubCRev, As64fc) { check_constant<&::tavsSubCRev_64fc>(minus_reversed); }
TEST(SubCRevInPlace, As32f) { check_constant_in_place<&::tavsSubCRev_32f_I>(minus_reversed); }
TEST(SubCRevInPlace, As64f) { check_constant_in_place<&::tavsSubCRev_64f_I>(minus_reversed); }
TEST(SubCRevInPlace, As32fc) { check_constant_in_place<&::tavsSubCRev_32fc_I>(minus_reversed); }
TEST(SubCRevInPlace, As64fc) { check_constant_in_place<&::tavsSubCRev_64fc_I>(minus_reversed); }

TEST(MulC, As32f) { check_constant<&::tavsMulC_32f>(times); }
TEST(MulC, As64f) { check_constant<&::tavsMulC_64f>(times); }
TEST(MulC, As32fc) { check_constant<&::tavsMulC_32fc>(times); }
TEST(MulC, As64fc) { check_constant<&::tavsMulC_64fc>(times); }
TEST(MulCInPlace, As16s) { check_constant_in_place<&::tavsMulC_16s_I>(times); }
TEST(MulCInPlace, As32f) { check_constant_in_place<&::tavsMulC_32f_I>(times); }
TEST(MulCInPlace, As64f) { check_constant_in_place<&::tavsMulC_64f_I>(times); }
TEST(MulCInPlace, As32fc) { check_constant_in_place<&::tavsMulC_32fc_I>(times); }
TEST(MulCInPlace, As64fc) { check_constant_in_place<&::tavsMulC_64fc_I>(times); }

constexpr Tav32f infinity = std::numeric_limits<Tav32f>::infinity(), nan = std::numeric_limits<Tav32f>::quiet_NaN();

TEST(MulC, ZeroClearsWhateverTheSourceHolds) {
  const Tav32f src[] = {nan, infinity, -infinity, -1};
  for (Tav32f zero : {0.0f, -0.0f}) {
    Tav32f dst[4] = {1, 1, 1, 1}, in_place[4] = {nan, infinity, -infinity, -1};
    Tav16s integers[4] = {1, 1, 1, 1}, low[4] = {1, 1, 1, 1};
    EXPECT_EQ(call<&::tavsMulC_32f>(src, zero, dst, 4), tavStatusOk);
    EXPECT_EQ(call<&::tavsMulC_32f_I>(zero, in_place, 4), tavStatusOk);
    EXPECT_EQ(call<&::tavsMulC_32f16s_Sfs>(src, zero, integers, 4, -200), tavStatusOk);
    EXPECT_EQ(call<&::tavsMulC_Low_32f16s>(src, zero, low, 4), tavStatusOk);
    for (int i = 0; i < 4; ++i) {
      EXPECT_TRUE(same(dst[i], 0.0f) && same(in_place[i], 0.0f));
      EXPECT_TRUE(integers[i] == 0 && low[i] == 0);
    }
  }
}

// A constant that changes nothing leaves the array alone: it may even be read-only.
TEST(Constants, NothingIsWritten) {
  static const Tav32f  real[]    = {nan, -0.0f};
  static const Tav64fc complex[] = {{nan, -0.0}, {infinity, 0}};
  static const Tav16s  integer[] = {-32768, 7};
  EXPECT_EQ(call<&::tavsAddC_32f_I>(-0.0f, const_cast<Tav32f*>(real), 2), tavStatusOk);
  EXPECT_EQ(call<&::tavsSubC_32f_I>(-0.0f, const_cast<Tav32f*>(real), 2), tavStatusOk);
  EXPECT_EQ(call<&::tavsMulC_32f_I>(1.0f, const_cast<Tav32f*>(real), 2), tavStatusOk);
  EXPECT_EQ(call<&::tavsMulC_64fc_I>(Tav64fc{1, -0.0}, const_cast<Tav64fc*>(complex), 2), tavStatusOk);
  EXPECT_EQ(call<&::tavsAddC_16s_I>(Tav16s(0), const_cast<Tav16s*>(integer), 2), tavStatusOk);
  EXPECT_EQ(call<&::tavsSubC_16s_I>(Tav16s(0), const_cast<Tav16s*>(integer), 2), tavStatusOk);
  EXPECT_EQ(call<&::tavsMulC_16s_I>(Tav16s(1), const_cast<Tav16s*>(integer), 2), tavStatusOk);
}

TEST(Constants, ComplexOnesOfValueZeroOrOne) {
  const Tav32fc src{-0.0f, infinity};
  Tav32fc       dst{}, in_place = src;
  EXPECT_EQ(call<&::tavsAddC_32fc>(&src, Tav32fc{0, 0}, &dst, 1), tavStatusOk);
  EXPECT_TRUE(same(dst, src)) << "copied";
  EXPECT_EQ(call<&::tavsAddC_32fc_I>(Tav32fc{0, 0}, &in_place, 1), tavStatusOk);
  EXPECT_TRUE(same(in_place, {0.0f, infinity})) << "added";
  EXPECT_EQ(call<&::tavsMulC_32fc>(&src, Tav32fc{1, 0}, &dst, 1), tavStatusOk);
  EXPECT_TRUE(same(dst, src)) << "copied, where the product would be a NaN";
  EXPECT_EQ(call<&::tavsMulC_32fc>(&src, Tav32fc{0, 0}, &dst, 1), tavStatusOk);
  EXPECT_TRUE(same(dst, {nan, nan})) << "multiplied";
}

const std::set<int> lengths_to_16s = lengths_around({256});

TEST(MulCTo16s, Scaled) {
  source_of_data data(29);
  Tav32f         val;
  int            s;
  check_layouts<&::tavsMulC_32f16s_Sfs, Tav16s, Tav32f>(
      lengths_to_16s,
      [&](Tav16s* dst, int len, const Tav32f* src) { return call<&::tavsMulC_32f16s_Sfs>(src, val, dst, len, s); },
      [&](std::vector<Tav16s>& dst, const std::vector<Tav32f>& src) {
        const int factors[] = {0, -12 - data.below(8), data.below(300) - 150, INT32_MIN, INT32_MAX};
        val                 = some_constant<Tav32f>(data);
        s                   = factors[data.below(5)];
        for (size_t i = 0; i < dst.size(); ++i) dst[i] = val == 0 ? 0 : oracle::limited_product(src[i], val, s);
        return tavStatusOk;
      });
}

TEST(MulCTo16s, ScaledInAnyRoundingMode) {
  const std::vector<Tav32f> src{0.5f, 1.5f, 2.5f, -0.5f, -1.5f, 1e30f, -1e30f, nan, 0.7f, -0.7f,
                                0.5f, 1.5f, 2.5f, -0.5f, -1.5f, 1e30f, -1e30f, nan, 0.7f, -0.7f,
                                0.5f, 1.5f, 2.5f, -0.5f, -1.5f, 1e30f, -1e30f, nan, 0.7f, -0.7f};
  for (unsigned mode : rounding_modes) {
    std::vector<Tav16s> dst(src.size());
    {
      const rounding_mode set(mode);
      EXPECT_EQ(call<&::tavsMulC_32f16s_Sfs>(src.data(), 2.0f, dst.data(), int(src.size()), 1), tavStatusOk);
    }
    for (size_t i = 0; i < src.size(); i += 10)
      EXPECT_EQ(std::vector(dst.begin() + long(i), dst.begin() + long(i) + 10),
                (std::vector<Tav16s>{0, 2, 2, 0, -2, 32767, -32768, 32767, 1, -1}));
  }
}

// The scaled constant is itself rounded to nearest. Here it is 2^-127 and 1.5 units of the smallest float, a tie; with
// 1 unit for it, as down and toward zero would give, the product would be just below a half instead of just above.
TEST(MulCTo16s, ConstantScaledInAnyRoundingMode) {
  const std::vector<Tav32f> src(30, 0x1p126f - 0x1.8p104f);
  for (unsigned mode : rounding_modes) {
    std::vector<Tav16s> dst(30);
    {
      const rounding_mode set(mode);
      EXPECT_EQ(call<&::tavsMulC_32f16s_Sfs>(src.data(), 0.5f + 0x1.8p-23f, dst.data(), 30, 126), tavStatusOk);
    }
    for (Tav16s v : dst) EXPECT_EQ(v, 1) << std::hex << mode;
  }
}

TEST(MulCTo16s, Low) {
  source_of_data data(37);
  Tav32f         val;
  for (unsigned mode : {0u, rounding_mode::down, rounding_mode::up, rounding_mode::to_zero}) {
    const rounding_mode set(mode);
    check_layouts<&::tavsMulC_Low_32f16s, Tav16s, Tav32f>(
        lengths_around({}, 60),
        [&](Tav16s* dst, int len, const Tav32f* src) { return call<&::tavsMulC_Low_32f16s>(src, val, dst, len); },
        [&](std::vector<Tav16s>& dst, const std::vector<Tav32f>& src) {
          val = some_constant<Tav32f>(data);
          if (data.below(2)) val *= 1e4f;
          for (size_t i = 0; i < dst.size(); ++i) dst[i] = val == 0 ? 0 : oracle::packed_product(src[i], val);
          return tavStatusOk;
        });
  }
}

TEST(MulCTo16s, LowLimits) {
  const Tav32f src[] = {40000, -40000, 2147483520.0f, 2147483648.0f, -2147483648.0f, 1e30f, -1e30f, nan};
  Tav16s       dst[8];
  EXPECT_EQ(call<&::tavsMulC_Low_32f16s>(src, 1.0f, dst, 8), tavStatusOk);
  EXPECT_EQ(std::vector(dst, dst + 8),
            (std::vector<Tav16s>{32767, -32768, 32767, -32768, -32768, -32768, -32768, -32768}));
}

}  // namespace

#define EACH_TYPE(CASE) CASE(32f) CASE(64f) CASE(32fc) CASE(64fc)
#define CASE(type)                                     \
  TAV_FAULTS(AddC_##type, pointers_then_length)        \
  TAV_FAULTS(AddC_##type##_I, pointers_then_length)    \
  TAV_FAULTS(SubC_##type, pointers_then_length)        \
  TAV_FAULTS(SubC_##type##_I, pointers_then_length)    \
  TAV_FAULTS(SubCRev_##type, pointers_then_length)     \
  TAV_FAULTS(SubCRev_##type##_I, pointers_then_length) \
  TAV_FAULTS(MulC_##type, pointers_then_length)        \
  TAV_FAULTS(MulC_##type##_I, pointers_then_length)
EACH_TYPE(CASE)
#undef CASE
TAV_FAULTS(AddC_16s_I, pointers_then_length)
TAV_FAULTS(SubC_16s_I, pointers_then_length)
TAV_FAULTS(MulC_16s_I, pointers_then_length)
TAV_FAULTS(MulC_Low_32f16s, pointers_then_length)
TAV_FAULTS(MulC_32f16s_Sfs, pointers_then_length_at<1>)
