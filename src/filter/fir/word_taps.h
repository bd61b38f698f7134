// The taps of the integer filters: brought to 16 bits and a power of two, and set as the steps of the kernel.
#pragma once
#include "filter/fir/word_record.h"
#include "vector/to_integer.h"

namespace tav::TAV_VARIANT::fir {

inline void put_tap(Tav16s* list, size_t i, Tav32s tap) { list[i] = Tav16s(tap); }
inline void put_tap(Tav16s* list, size_t i, Tav32sc tap) {
  list[4 * i] = list[4 * i + 3] = Tav16s(tap.re);
  list[4 * i + 1]               = Tav16s(0 - uint32_t(tap.im));
  list[4 * i + 2]               = Tav16s(tap.im);
}

// The oldest sample's first. Of an odd number of real taps a zero comes before.
template <class Tap, class Data> void fill_list(word_record<Tap, Data>& r) {
  const size_t n = size_t(r.taps_len), before = !is_complex<Data> && n % 2 != 0;
  if (before != 0) r.list[0] = 0;
  for (size_t i = 0; i < n; ++i) put_tap(r.list, before + i, r.taps[n - 1 - i]);
}

inline uint32_t magnitude_of(Tav32s v) { return v < 0 ? 0 - uint32_t(v) : uint32_t(v); }
inline int32_t  wrapped_sum(int a, int b) { return int32_t(uint32_t(a) + uint32_t(b)); }

// How far taps are shifted to the right: until they fit, and of Tav16s, which do, if there is one whose products in
// pairs could overflow.
template <class P> int shift_of(const P* taps, size_t n) {
  constexpr uint32_t most    = 32766;
  uint32_t           largest = 0;
  for (size_t i = 0; i < n; ++i) {
    const uint32_t v = magnitude_of(peek(taps + i));
    if (v > largest) largest = v;
  }
  if constexpr (sizeof(P) == 2) return largest == 32768;
  int shift = 0;
  for (; largest > most; largest >>= 1) ++shift;
  return shift;
}

// Bits are dropped without rounding.
template <class Tap, class Data> void set_integer_taps(word_record<Tap, Data>& r, const Tap* taps, int tapsFactor) {
  const size_t count = size_t(r.taps_len) * parts<Tap>;
  const int    shift = shift_of(parts_of(taps), count);
  for (size_t i = 0; i < count; ++i) parts_of(r.taps)[i] = part<Tap>(peek(parts_of(taps) + i) >> shift);
  r.scale = wrapped_sum(shift, tapsFactor);
  fill_list(r);
}

// The power of two that brings floats next to 16 bits.
struct float_exponent {
  Tav64f multiplier = 1;
  int    exponent   = 0;
};

inline float_exponent exponent_of(Tav32f largest) {
  constexpr Tav32f most    = 32767;
  constexpr int    highest = 33, lowest = -32;
  float_exponent   e;
  for (; largest > most && e.exponent < highest; largest /= 2, ++e.exponent) e.multiplier /= 2;
  if (e.exponent != 0) return e;
  for (largest *= 2; most > largest && e.exponent >= lowest; largest *= 2, --e.exponent) e.multiplier *= 2;
  return e;
}

// Half away from zero; what the processor makes of numbers out of range.
inline Tav32s nearest_integer(Tav64f v) { return _mm_cvttsd_si32(_mm_set_sd(v < 0 ? v - 0.5 : v + 0.5)); }

// F is the type of the taps in floats, a pair where Tap is one.
template <class Tap, class Data, class F> void set_float_taps(word_record<Tap, Data>& r, const F* taps) {
  const size_t count   = size_t(r.taps_len) * parts<Tap>;
  Tav32f       largest = 0;
  for (size_t i = 0; i < count; ++i) {
    const Tav32f v = peek(parts_of(taps) + i), magnitude = v < 0 ? -v : v;
    if (magnitude > largest) largest = magnitude;
  }
  const float_exponent e = exponent_of(largest);
  for (size_t i = 0; i < count; ++i)
    parts_of(r.taps)[i] = nearest_integer(e.multiplier * Tav64f(peek(parts_of(taps) + i)));
  r.scale = e.exponent;
  fill_list(r);
}

// 2^exponent; far beyond singles the same as at their end, so that zeros stay what they are.
inline Tav64f power_of_two(int exponent) {
  constexpr int most = 1000;
  return power_of_two_minus<Tav64f>(exponent > most ? -most : exponent < -most ? most : -exponent);
}

}  // namespace tav::TAV_VARIANT::fir
