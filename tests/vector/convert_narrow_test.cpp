// tavsConvert from integers to narrower ones: every element of 16 bits, wider ones of every magnitude, all factors that
// make a difference. And the two conversions whose length is unsigned.
#include "harness/convert.h"
#include "harness/scaled.h"

using namespace test;
using oracle::scaled;
using oracle::ties_of;

namespace {

std::vector<int> factors_up_to(int highest) { return scales_between(-highest, highest); }

template <auto* Export, class D, class S, class L, class Want>
void check_rounded_narrow(const std::vector<int>& factors, const Want& want) {
  const auto caller_of = [](int round_mode, int s) {
    return [=](const S* src, D* dst, int len) { return call<Export>(src, dst, L(len), round_mode, s); };
  };
  for (int round_mode : {0, 1, 2})
    for (int s : {0, 3, -2})
      check_converted_layouts<Export, D, S>(few_lengths(), caller_of(round_mode, s),
                                            [&](S a) { return want(a, round_mode, s); });
  source_of_data data(64);
  const auto     all = integers<S>(data);
  each_build<Export>([&] {
    for (int s : factors)
      for (int round_mode : {0, 1, 2, -1}) {
        SCOPED_TRACE(testing::Message() << "rounding mode " << round_mode << ", factor " << s);
        expect_converted<D>(all, caller_of(round_mode, s), [&](S a) { return want(a, round_mode, s); });
        if (testing::Test::HasFatalFailure()) return;
      }
  });
}

TEST(ConvertToNarrower, From16sTo8s) {
  check_rounded_narrow<&::tavsConvert_16s8s_Sfs, Tav8s, Tav16s, unsigned>(
      factors_up_to(19), [](Tav16s a, int mode, int s) { return scaled<Tav8s>(a, s, ties_of(mode)); });
}

TEST(ConvertToNarrower, From64sTo32s) {
  check_rounded_narrow<&::tavsConvert_64s32s_Sfs, Tav32s, Tav64s, int>(
      factors_up_to(67), [](Tav64s a, int mode, int s) { return scaled<Tav32s>(a, s, ties_of(mode)); });
}

TEST(ConvertToNarrower, From32sTo16s) {
  source_of_data data(65);
  const auto     caller = [](const Tav32s* src, Tav16s* dst, int len) {
    return call<&::tavsConvert_32s16s>(src, dst, len);
  };
  const auto limited = [](Tav32s a) { return scaled<Tav16s>(a, 0); };
  check_converted_layouts<&::tavsConvert_32s16s, Tav16s, Tav32s>(lengths_around({256, 1000}), caller, limited);
  each_build<&::tavsConvert_32s16s>([&] { expect_converted<Tav16s>(integers<Tav32s>(data), caller, limited); });
}

TEST(ConvertToNarrower, From32sTo16sScaled) {
  const auto want = [](Tav32s a, int s) { return scaled<Tav16s>(a, s > 31 ? 31 : s); };
  for (int s : {0, 3, 31, 40, -2}) {
    check_converted_layouts<&::tavsConvert_32s16s_Sfs, Tav16s, Tav32s>(
        few_lengths(),
        [&](const Tav32s* src, Tav16s* dst, int len) { return call<&::tavsConvert_32s16s_Sfs>(src, dst, len, s); },
        [&](Tav32s a) { return want(a, s); });
  }
  source_of_data data(66);
  const auto     all = integers<Tav32s>(data);
  each_build<&::tavsConvert_32s16s_Sfs>([&] {
    for (int s : factors_up_to(40)) {
      SCOPED_TRACE(testing::Message() << "factor " << s);
      expect_converted<Tav16s>(
          all,
          [&](const Tav32s* src, Tav16s* dst, int len) { return call<&::tavsConvert_32s16s_Sfs>(src, dst, len, s); },
          [&](Tav32s a) { return want(a, s); });
      if (testing::Test::HasFatalFailure()) return;
    }
  });
}

TEST(ConvertToNarrower, KnownValues) {
  const Tav32s words[] = {INT32_MAX, INT32_MIN, 1 << 30, 5};
  Tav16s       shorts[4];
  ASSERT_EQ(call<&::tavsConvert_32s16s_Sfs>(words, shorts, 4, 40), tavStatusOk);
  EXPECT_EQ(std::vector(shorts, shorts + 4), (std::vector<Tav16s>{1, -1, 0, 0}));  // as with a factor of 31
  ASSERT_EQ(call<&::tavsConvert_32s16s_Sfs>(words, shorts, 4, 1), tavStatusOk);
  EXPECT_EQ(shorts[3], 2);

  const Tav16s src[] = {-32768, 5, -5, 32767};
  Tav8s        bytes[4];
  ASSERT_EQ(call<&::tavsConvert_16s8s_Sfs>(src, bytes, 4u, 2, 16), tavStatusOk);
  EXPECT_EQ(std::vector(bytes, bytes + 4), (std::vector<Tav8s>{-1, 0, 0, 0}));
  ASSERT_EQ(call<&::tavsConvert_16s8s_Sfs>(src, bytes, 4u, 2, 1), tavStatusOk);
  EXPECT_EQ(std::vector(bytes, bytes + 4), (std::vector<Tav8s>{-128, 3, -3, 127}));
  ASSERT_EQ(call<&::tavsConvert_16s8s_Sfs>(src, bytes, 4u, 0, 1), tavStatusOk);
  EXPECT_EQ(std::vector(bytes, bytes + 4), (std::vector<Tav8s>{-128, 2, -2, 127}));

  const Tav64s longs[] = {INT64_MIN, INT64_MAX};
  Tav32s       ints[2];
  ASSERT_EQ(call<&::tavsConvert_64s32s_Sfs>(longs, ints, 2, 2, 64), tavStatusOk);
  EXPECT_EQ(std::vector(ints, ints + 2), (std::vector<Tav32s>{-1, 0}));
}

constexpr auto pointers_then_length_rounded   = pointers_then_length_at<2>;
constexpr auto pointers_then_unsigned         = pointers_then_unsigned_length_at<0>;
constexpr auto pointers_then_unsigned_rounded = pointers_then_unsigned_length_at<2>;

}  // namespace

TAV_FAULTS(Convert_32s16s, pointers_then_length)
TAV_FAULTS(Convert_32s16s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Convert_64s32s_Sfs, pointers_then_length_rounded)
TAV_FAULTS(Convert_16s8s_Sfs, pointers_then_unsigned_rounded)
TAV_FAULTS(Convert_64s64f, pointers_then_unsigned)
