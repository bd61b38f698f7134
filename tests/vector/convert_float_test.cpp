// tavsConvert to floats and between them, and from integers to wider ones: in each rounding mode of the caller.
#include "harness/convert.h"
#include "harness/faults.h"

using namespace test;
using oracle::mode;

namespace {

const std::set<int>    lengths = lengths_around({256, 1000});
const std::vector<int> factors = [] {
  std::vector<int> all{INT_MIN, INT_MIN + 1, -1030, -1024, -1023, -1022, 1021, 1022, 1023, 1024, INT_MAX};
  for (int s = -140; s <= 140; ++s) all.push_back(s);
  return all;
}();

// Values that are rounded, as far as the type has any.
template <class S> std::vector<S> values() {
  source_of_data data(61);
  if constexpr (std::is_integral_v<S>) {
    return integers<S>(data);
  } else {
    std::vector<S> v = floats_around<S, Tav32s>(0, data);
    if constexpr (sizeof(S) == 8)
      for (int e = -160; e <= 130; ++e)  // around the bits that end a single, normal or not
        for (double x : {1.0, 1 + 0x1p-24, 1 + 0x1p-23, 2 - 0x1p-24, 2 - 0x1p-25, 1 + 0x1p-24 + 0x1p-50, 1.75, 1.5})
          for (double y : {nextafter(x, 0), x, nextafter(x, 3)}) v.push_back(ldexp(y, e)), v.push_back(-ldexp(y, e));
    return v;
  }
}

template <auto* Export, class S, class D, class L, class Want>
void check_plain_of(TavStatus (*)(const S*, D*, L), const Want& want) {
  const auto call_it = [](const S* src, D* dst, int len) { return call<Export>(src, dst, L(len)); };
  check_converted_layouts<Export, D, S>(lengths, call_it, [&](S a) { return want(a, mode::nearest); });
  const auto all = values<S>();
  each_build<Export>([&] {
    for (mode how : all_modes) {
      SCOPED_TRACE(testing::Message() << "mode " << std::hex << unsigned(how));
      expect_converted<D>(
          all,
          [&](const S* src, D* dst, int len) {
            const rounding_mode set{unsigned(how)};
            return call_it(src, dst, len);
          },
          [&](S a) { return want(a, how); });
    }
  });
}
template <auto* Export, class Want> void check_plain(const Want& want) { check_plain_of<Export>(Export, want); }

template <auto* Export, class S, class D> void check_scaled_of(TavStatus (*)(const S*, D*, int, int)) {
  for (int s : {0, 3, -2})
    check_converted_layouts<Export, D, S>(
        few_lengths(), [&](const S* src, D* dst, int len) { return call<Export>(src, dst, len, s); },
        [&](S a) { return oracle::to_scaled_float<D>(a, s, mode::nearest); });
  source_of_data data(62);
  auto           all = integers<S>(data);
  if (sizeof(S) == 2) {  // each fits: a few of them show what a factor does
    all = {S(0), S(1), S(-1), S(2), S(-32768), S(32767)};
    for (int i = 0; i < 50; ++i) all.push_back(data.value<S>());
  }
  each_build<Export>([&] {
    int next = 0;
    for (int s : factors) {
      const mode how = all_modes[next++ % 4];
      SCOPED_TRACE(testing::Message() << "factor " << s << ", mode " << std::hex << unsigned(how));
      expect_converted<D>(
          all,
          [&](const S* src, D* dst, int len) {
            const rounding_mode set{unsigned(how)};
            return call<Export>(src, dst, len, s);
          },
          [&](S a) { return oracle::to_scaled_float<D>(a, s, how); });
      if (testing::Test::HasFatalFailure()) return;
    }
  });
}

template <class D> const auto as_float = [](auto a, mode how) { return oracle::to_float<D>(a, how); };
template <class D> const auto as_wider = [](auto a, mode) { return D(a); };

TEST(ConvertToFloat, From8s) { check_plain<&::tavsConvert_8s32f>(as_float<Tav32f>); }
TEST(ConvertToFloat, From8u) { check_plain<&::tavsConvert_8u32f>(as_float<Tav32f>); }
TEST(ConvertToFloat, From16s) { check_plain<&::tavsConvert_16s32f>(as_float<Tav32f>); }
TEST(ConvertToFloat, From16u) { check_plain<&::tavsConvert_16u32f>(as_float<Tav32f>); }
TEST(ConvertToFloat, From32s) { check_plain<&::tavsConvert_32s32f>(as_float<Tav32f>); }
TEST(ConvertToFloat, From32sTo64f) { check_plain<&::tavsConvert_32s64f>(as_float<Tav64f>); }
TEST(ConvertToFloat, From64s) { check_plain<&::tavsConvert_64s64f>(as_float<Tav64f>); }
TEST(ConvertToFloat, From32fTo64f) { check_plain<&::tavsConvert_32f64f>(as_float<Tav64f>); }
TEST(ConvertToFloat, From64fTo32f) { check_plain<&::tavsConvert_64f32f>(as_float<Tav32f>); }

TEST(ConvertToWider, From8s) { check_plain<&::tavsConvert_8s16s>(as_wider<Tav16s>); }
TEST(ConvertToWider, From16s) { check_plain<&::tavsConvert_16s32s>(as_wider<Tav32s>); }

TEST(ConvertToFloatScaled, From16s) { check_scaled_of<&::tavsConvert_16s32f_Sfs>(&::tavsConvert_16s32f_Sfs); }
TEST(ConvertToFloatScaled, From16sTo64f) { check_scaled_of<&::tavsConvert_16s64f_Sfs>(&::tavsConvert_16s64f_Sfs); }
TEST(ConvertToFloatScaled, From32s) { check_scaled_of<&::tavsConvert_32s32f_Sfs>(&::tavsConvert_32s32f_Sfs); }
TEST(ConvertToFloatScaled, From32sTo64f) { check_scaled_of<&::tavsConvert_32s64f_Sfs>(&::tavsConvert_32s64f_Sfs); }

// Written down, to check the definition that the tests above share.
TEST(ConvertToFloat, KnownValues) {
  const Tav64s longs[] = {0, -1, INT64_MAX, INT64_MIN, (Tav64s(1) << 53) + 1, -(Tav64s(1) << 53) - 3};
  Tav64f       doubles[6];
  ASSERT_EQ(call<&::tavsConvert_64s64f>(longs, doubles, 6u), tavStatusOk);
  const Tav64f nearest[] = {0, -1, 0x1p63, -0x1p63, 0x1p53, -0x1p53 - 4};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(doubles[i], nearest[i]) << i;
  {
    const rounding_mode set(rounding_mode::down);
    ASSERT_EQ(call<&::tavsConvert_64s64f>(longs, doubles, 6u), tavStatusOk);
  }
  EXPECT_FALSE(signbit(doubles[0]));
  EXPECT_EQ(doubles[2], 0x1p63 - 1024);
  EXPECT_EQ(doubles[5], -0x1p53 - 4);

  const Tav16s shorts[] = {1, -32768, 3};
  Tav32f       floats[3];
  ASSERT_EQ(call<&::tavsConvert_16s32f_Sfs>(shorts, floats, 3, 127), tavStatusOk);
  EXPECT_EQ(floats[0], 0.0f);  // and not 2^-127, which is subnormal
  ASSERT_EQ(call<&::tavsConvert_16s32f_Sfs>(shorts, floats, 3, -128), tavStatusOk);
  EXPECT_EQ(floats[1], -std::numeric_limits<Tav32f>::infinity());
  ASSERT_EQ(call<&::tavsConvert_16s32f_Sfs>(shorts, floats, 3, 1), tavStatusOk);
  EXPECT_EQ(floats[2], 1.5f);
}

}  // namespace

TAV_FAULTS(Convert_8s16s, pointers_then_length)
TAV_FAULTS(Convert_8s32f, pointers_then_length)
TAV_FAULTS(Convert_8u32f, pointers_then_length)
TAV_FAULTS(Convert_16s32s, pointers_then_length)
TAV_FAULTS(Convert_16s32f, pointers_then_length)
TAV_FAULTS(Convert_16u32f, pointers_then_length)
TAV_FAULTS(Convert_32s32f, pointers_then_length)
TAV_FAULTS(Convert_32s64f, pointers_then_length)
TAV_FAULTS(Convert_32f64f, pointers_then_length)
TAV_FAULTS(Convert_64f32f, pointers_then_length)

TAV_FAULTS(Convert_16s32f_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Convert_16s64f_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Convert_32s32f_Sfs, pointers_then_length_scaled)
TAV_FAULTS(Convert_32s64f_Sfs, pointers_then_length_scaled)
