// The quarter waves: every value is the sine rounded once, also where the constant table ends and set-up begins, and
// whatever the caller's rounding mode.
#include <gtest/gtest.h>

#include <math.h>
#include <xmmintrin.h>

#include <vector>

#include "transform/fft/sine.h"

namespace {

long double sine(size_t i, size_t n) {
  const long double turn = 6.283185307179586476925286766559L / (long double)n;
  return i <= n / 8 ? sinl((long double)i * turn) : cosl((long double)(n / 4 - i) * turn);
}

// In half units of the last place: 1 is what rounding alone may do.
template <class T> long double half_units(T is, long double right) {
  if (right == 0) return is == 0 ? 0 : 1e9L;
  const long double unit = ldexpl(std::numeric_limits<T>::epsilon(), ilogbl(right));
  return fabsl((long double)is - right) / (unit / 2);
}

template <class T> void check_wave(const T* table, int order) {
  const size_t n = size_t(1) << order;
  for (size_t i = 0; i <= n / 4; ++i)
    ASSERT_LE(half_units(table[i], sine(i, n)), 1.001L) << "order " << order << ", index " << i;
  EXPECT_EQ(table[0], T(0));
  EXPECT_EQ(table[n / 4], T(1));
}

template <class T> std::vector<T> wave(int order) {
  std::vector<T> table((size_t(1) << order) / 4 + 1);
  tav::fill_quarter_wave(table.data(), order);
  return table;
}

TEST(QuarterWave, ConstantTables) {
  check_wave(tav::sineTable10_32f, 10);
  check_wave(tav::sineTable10_64f, 10);
  for (size_t i = 0; i <= 256; ++i) EXPECT_EQ(tav::sineTable10_16s[i], int(sine(i, 1024) * 16384 + 0.5L));
}

TEST(QuarterWave, Computed) {
  for (int order = 10; order <= 18; ++order) {
    check_wave(wave<float>(order).data(), order);
    check_wave(wave<double>(order).data(), order);
  }
  const auto same = wave<double>(10);
  for (size_t i = 0; i <= 256; ++i) EXPECT_EQ(same[i], tav::sineTable10_64f[i]);
}

TEST(QuarterWave, RoundsToNearestInEveryMode) {
  const auto     nearest = wave<double>(11);
  const uint32_t mine    = _mm_getcsr();
  uint16_t       callers, upward;
  __asm__ volatile("fnstcw %0" : "=m"(callers));
  upward = uint16_t((callers & ~0x0F00) | 0x0A00);  // 53 bits, upward
  __asm__ volatile("fldcw %0" : : "m"(upward));
  _mm_setcsr(mine | 0x4000);
  const auto other = wave<double>(11);
  _mm_setcsr(mine);
  __asm__ volatile("fldcw %0" : : "m"(callers));
  EXPECT_EQ(other, nearest);
}

TEST(QuarterWave, FoldsAnyIndex) {
  const tav::quarter_wave<double> w{tav::sineTable10_64f, 10};
  for (size_t i = 0; i < 3000; ++i) {
    const double turn = 6.283185307179586476925286766559 / 1024;
    EXPECT_NEAR(w.sine(i), sin(double(i % 1024) * turn), 1e-14);
  }
}

}  // namespace
