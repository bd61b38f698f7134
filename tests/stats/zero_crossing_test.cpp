// tavsZeroCrossing: the three modes, zeros, NaNs and denormals among the elements, and counts that no float holds.
#include "harness/faults.h"
#include "harness/forms.h"
#include "harness/long_array.h"
#include "harness/long_run.h"
#include "oracle/counting.h"
#include "result_runs.h"

using namespace test;

namespace {

// Of few kinds, so that any two meet often.
template <class T> std::vector<T> near_zero(source_of_data& data, int len) {
  auto v = data.values<T>(size_t(len));
  if constexpr (std::is_integral_v<T>) {
    for (T& x : v)
      if (data.below(2) == 0) x = T(data.below(3) - 1);
  } else {
    using limits    = std::numeric_limits<T>;
    const T kinds[] = {T(0),
                       T(-0.0),
                       limits::denorm_min(),
                       -limits::denorm_min(),
                       limits::quiet_NaN(),
                       -limits::quiet_NaN(),
                       limits::infinity(),
                       -limits::infinity(),
                       limits::max(),
                       -limits::max()};
    for (T& x : v)
      if (data.below(2) == 0) x = kinds[data.below(int(std::size(kinds)))];
  }
  return v;
}

template <auto* Export, class T> void check_modes() {
  for (int mode = 0; mode < 3; ++mode) {
    SCOPED_TRACE(testing::Message() << "mode " << mode);
    check_result<Export, T, Tav32f>(
        lengths_around({256, 1000}), near_zero<T>,
        [&](const T* src, int len, Tav32f* result) { return call<Export>(src, unsigned(len), result, mode); },
        [&](const std::vector<T>& src, Tav32f& result) {
          result = Tav32f(oracle::zero_crossings(src, mode));
          return tavStatusOk;
        });
  }
}

TEST(ZeroCrossing, As16s) { check_modes<&::tavsZeroCrossing_16s32f, Tav16s>(); }
TEST(ZeroCrossing, As32f) { check_modes<&::tavsZeroCrossing_32f, Tav32f>(); }

template <auto* Export, class T> std::vector<Tav32f> crossings(const std::vector<T>& src) {
  std::vector<Tav32f> all(3, -1.0f);
  for (int mode = 0; mode < 3; ++mode)
    EXPECT_EQ(call<Export>(src.data(), unsigned(src.size()), &all[size_t(mode)], mode), tavStatusOk);
  return all;
}
using counts = std::vector<Tav32f>;

TEST(ZeroCrossing, ThroughZero) {
  EXPECT_EQ((crossings<&::tavsZeroCrossing_16s32f, Tav16s>({-3, 0, 3})), (counts{0, 1, 1}));
  EXPECT_EQ((crossings<&::tavsZeroCrossing_16s32f, Tav16s>({3, 0, 3, 0})), (counts{0, 0, 1}));
  EXPECT_EQ((crossings<&::tavsZeroCrossing_16s32f, Tav16s>({-32768, -32768, 32767})), (counts{1, 1, 1}));
  EXPECT_EQ((crossings<&::tavsZeroCrossing_16s32f, Tav16s>({-5})), (counts{0, 0, 0}));
  EXPECT_EQ((crossings<&::tavsZeroCrossing_32f, Tav32f>({1.0f, -0.0f, 0.0f, -1.0f})), (counts{0, 3, 1}));
}

// Also where denormals are read as zeros elsewhere, and where arithmetic with a NaN may trap.
TEST(ZeroCrossing, InAnyFloatingPointMode) {
  const Tav32f              nan = std::numeric_limits<Tav32f>::quiet_NaN();
  const std::vector<Tav32f> src{1e-40f, -1e-40f, 1e-30f, -1e-30f, nan, -nan, 1.0f};
  const counts              expected{3, 6, 4};
  EXPECT_EQ((crossings<&::tavsZeroCrossing_32f, Tav32f>(src)), expected);
  const unusual_mode scope;
  EXPECT_EQ((crossings<&::tavsZeroCrossing_32f, Tav32f>(src)), expected);
}

TEST(ZeroCrossing, LargeCountsRoundToNearest) {
  constexpr unsigned  limit = 1 << 24;
  std::vector<Tav16s> src(limit + 6);
  for (size_t i = 0; i < src.size(); ++i) src[i] = i % 2 ? -1 : 1;
  for (const auto& [count, rounded] : {std::pair{limit - 1, limit - 1}, {limit + 1, limit}, {limit + 3, limit + 4}})
    for (int mode = 0; mode < 3; ++mode) {
      Tav32f result = 0;
      for (unsigned rounding : rounding_modes) {
        const rounding_mode scope(rounding);
        call<&::tavsZeroCrossing_16s32f>(src.data(), count + 1, &result, mode);
        EXPECT_EQ(result, Tav32f(rounded)) << mode << ", " << std::hex << rounding;
      }
    }
}

TEST(ZeroCrossing, BeyondSignedLengthsTakesLong) {
  TAV_LONG_TEST();
  if constexpr (sizeof(void*) == 8) {
    const long_array memory;
    ASSERT_TRUE(memory.ready());
    const auto src = static_cast<Tav16s*>(memory.data());
    for (uint64_t i = 0; i < long_array::piece / sizeof(Tav16s); ++i) src[i] = i % 2 ? -1 : 1;
    const unsigned len = unsigned(long_array::repeated / sizeof(Tav16s));
    for (int mode = 0; mode < 3; ++mode) {
      Tav32f result = 0;
      EXPECT_EQ(call<&::tavsZeroCrossing_16s32f>(src, len, &result, mode), tavStatusOk);
      EXPECT_EQ(result, 0x1p31f);
    }
  }
}

// Pointers, length, and the mode last.
void crossing_faults(const tested& f) {
  faults(f)
      .null_pointers()
      .value(1, 0, tavStatusBadSize)
      .value(3, 3, tavStatusBadZeroCrossingMode)
      .value(3, -1, tavStatusBadZeroCrossingMode)
      .expect();
}

}  // namespace

TAV_FAULTS(ZeroCrossing_16s32f, crossing_faults)
TAV_FAULTS(ZeroCrossing_32f, crossing_faults)
