// tavsConvert from floats to integers: on and beside every tie and limit, in each rounding mode of the call and of the
// caller, which must not matter.
#include "harness/convert.h"
#include "harness/faults.h"

using namespace test;

namespace {

template <class F> std::vector<int> factors() {
  std::vector<int> all{INT_MIN, INT_MIN + 1, -10000, 10000, INT_MAX - 1, INT_MAX};
  for (int s = -140; s <= 140; ++s) all.push_back(s);
  if (sizeof(F) == 8)
    for (int s = 1015; s <= 1030; ++s) all.push_back(s), all.push_back(-s);
  return all;
}

template <auto* Export, class F, class D>
void expect_rounded(const std::vector<F>& src, int round_mode, int s, oracle::mode callers) {
  SCOPED_TRACE(testing::Message() << "rounding mode " << round_mode << ", factor " << s << ", caller's mode "
                                  << std::hex << unsigned(callers));
  expect_converted<D>(
      src,
      [&](const F* a, D* dst, int len) {
        const rounding_mode set{unsigned(callers)};
        return call<Export>(a, dst, len, round_mode, s);
      },
      [&](F a) { return oracle::to_integer<D>(a, round_mode, s); });
}

template <auto* Export, class F, class D> void check_to_integer_of(TavStatus (*)(const F*, D*, int, int, int)) {
  for (int round_mode : {0, 1, 2})
    for (int s : {0, 2, -20})
      check_converted_layouts<Export, D, F>(
          s == 0 ? lengths_around({256, 1000}, 40) : few_lengths(),
          [&](const F* src, D* dst, int len) { return call<Export>(src, dst, len, round_mode, s); },
          [&](F a) { return oracle::to_integer<D>(a, round_mode, s); });
  each_build<Export>([&] {
    source_of_data data(63);
    int            next = 0;
    for (int s : factors<F>()) {
      const auto src = floats_around<F, D>(s, data);
      for (int round_mode : {0, 1, 2}) {
        expect_rounded<Export, F, D>(src, round_mode, s, all_modes[next++ % 4]);
        if (testing::Test::HasFatalFailure()) return;
      }
    }
    for (int s : {0, 5, -5})
      for (int round_mode : round_modes)
        for (oracle::mode callers : all_modes) {
          expect_rounded<Export, F, D>(floats_around<F, D>(s, data), round_mode, s, callers);
          if (testing::Test::HasFatalFailure()) return;
        }
  });
}
template <auto* Export> void check_to_integer() { check_to_integer_of<Export>(Export); }

TEST(ConvertToInteger, From32fTo8s) { check_to_integer<&::tavsConvert_32f8s_Sfs>(); }
TEST(ConvertToInteger, From32fTo8u) { check_to_integer<&::tavsConvert_32f8u_Sfs>(); }
TEST(ConvertToInteger, From32fTo16s) { check_to_integer<&::tavsConvert_32f16s_Sfs>(); }
TEST(ConvertToInteger, From32fTo16u) { check_to_integer<&::tavsConvert_32f16u_Sfs>(); }
TEST(ConvertToInteger, From32fTo32s) { check_to_integer<&::tavsConvert_32f32s_Sfs>(); }
TEST(ConvertToInteger, From64fTo16s) { check_to_integer<&::tavsConvert_64f16s_Sfs>(); }
TEST(ConvertToInteger, From64fTo32s) { check_to_integer<&::tavsConvert_64f32s_Sfs>(); }
TEST(ConvertToInteger, From64fTo64s) { check_to_integer<&::tavsConvert_64f64s_Sfs>(); }

// Written down, to check the definition that the tests above share.
template <auto* Export, class F, class D> void expect_at(const std::vector<F>& src, int mode, std::vector<D> want) {
  std::vector<D> dst(src.size());
  ASSERT_EQ(call<Export>(src.data(), dst.data(), int(src.size()), mode, 0), tavStatusOk);
  EXPECT_EQ(dst, want) << "rounding mode " << mode;
}

TEST(ConvertToInteger, KnownValues) {
  const std::vector<Tav32f> src{2.5f, 3.5f, -2.5f, 0.49999997f, -0.5f, 8388609.0f, -3e9f, 3e9f, NAN, -INFINITY};
  expect_at<&::tavsConvert_32f16s_Sfs, Tav32f, Tav16s>(src, 0, {2, 3, -2, 0, 0, 32767, -32768, 32767, 32767, -32768});
  expect_at<&::tavsConvert_32f16s_Sfs, Tav32f, Tav16s>(src, 1, {2, 4, -2, 0, 0, 32767, -32768, 32767, 32767, -32768});
  expect_at<&::tavsConvert_32f16s_Sfs, Tav32f, Tav16s>(src, 2, {3, 4, -3, 0, -1, 32767, -32768, 32767, 32767, -32768});
  expect_at<&::tavsConvert_32f8u_Sfs, Tav32f, Tav8u>(src, 2, {3, 4, 0, 0, 0, 255, 0, 255, 255, 0});
  expect_at<&::tavsConvert_32f32s_Sfs, Tav32f, Tav32s>(
      src, 2, {3, 4, -3, 0, -1, 8388609, INT32_MIN, INT32_MAX, INT32_MAX, INT32_MIN});
  const std::vector<Tav64f> large{0x1p63, 0x1p63 - 1024, -0x1p63, -0x1p63 - 2048, 4503599627370497.5, -0x1p32 - 0.5};
  expect_at<&::tavsConvert_64f64s_Sfs, Tav64f, Tav64s>(
      large, 1, {INT64_MAX, INT64_MAX - 1023, INT64_MIN, INT64_MIN, 4503599627370498, -4294967296});
  expect_at<&::tavsConvert_64f64s_Sfs, Tav64f, Tav64s>(
      large, 2, {INT64_MAX, INT64_MAX - 1023, INT64_MIN, INT64_MIN, 4503599627370498, -4294967297});
}

constexpr auto pointers_then_length_rounded = pointers_then_length_at<2>;

}  // namespace

TAV_FAULTS(Convert_32f8s_Sfs, pointers_then_length_rounded)
TAV_FAULTS(Convert_32f8u_Sfs, pointers_then_length_rounded)
TAV_FAULTS(Convert_32f16s_Sfs, pointers_then_length_rounded)
TAV_FAULTS(Convert_32f16u_Sfs, pointers_then_length_rounded)
TAV_FAULTS(Convert_32f32s_Sfs, pointers_then_length_rounded)
TAV_FAULTS(Convert_64f16s_Sfs, pointers_then_length_rounded)
TAV_FAULTS(Convert_64f32s_Sfs, pointers_then_length_rounded)
TAV_FAULTS(Convert_64f64s_Sfs, pointers_then_length_rounded)
