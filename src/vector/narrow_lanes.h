// Exact sums, differences and products of 8- and 16-bit elements in lanes of twice their width, and the way back.
//
// Each element type has a row: how two registers of elements make a pair of registers of exact results, and how such a
// pair becomes one register of saturated elements again.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT {

using pair_of_lanes = several<__m128i, 2>;

template <class F> TAV_INLINE pair_of_lanes each(const F& f, pair_of_lanes a) { return {{f(a.r[0]), f(a.r[1])}}; }
template <class F> TAV_INLINE pair_of_lanes each(const F& f, pair_of_lanes a, pair_of_lanes b) {
  return {{f(a.r[0], b.r[0]), f(a.r[1], b.r[1])}};
}

// The operations on lanes that rounding and shifting need.
struct lanes_of_16 {
  static constexpr int bits = 16;

  static __m128i all(int v) { return _mm_set1_epi16(short(v)); }
  static __m128i add(__m128i a, __m128i b) { return _mm_add_epi16(a, b); }
  static __m128i sub(__m128i a, __m128i b) { return _mm_sub_epi16(a, b); }
  static __m128i down(__m128i v, __m128i by) { return _mm_sra_epi16(v, by); }
  static __m128i down_unsigned(__m128i v, __m128i by) { return _mm_srl_epi16(v, by); }
  static __m128i up(__m128i v, __m128i by) { return _mm_sll_epi16(v, by); }
};

struct lanes_of_32 {
  static constexpr int bits = 32;

  static __m128i all(int v) { return _mm_set1_epi32(v); }
  static __m128i add(__m128i a, __m128i b) { return _mm_add_epi32(a, b); }
  static __m128i sub(__m128i a, __m128i b) { return _mm_sub_epi32(a, b); }
  static __m128i down(__m128i v, __m128i by) { return _mm_sra_epi32(v, by); }
  static __m128i down_unsigned(__m128i v, __m128i by) { return _mm_srl_epi32(v, by); }
  static __m128i up(__m128i v, __m128i by) { return _mm_sll_epi32(v, by); }
};

template <class T> struct narrow_row;

template <> struct narrow_row<Tav8u> : lanes_of_16 {
  static constexpr int lowest = 0, highest = 255;

  static pair_of_lanes widen(__m128i v) {
    const __m128i zero = _mm_setzero_si128();
    return {{_mm_unpacklo_epi8(v, zero), _mm_unpackhi_epi8(v, zero)}};
  }
  static pair_of_lanes sum(__m128i a, __m128i b) { return each(add, widen(a), widen(b)); }
  static pair_of_lanes difference(__m128i a, __m128i b) { return each(sub, widen(a), widen(b)); }
  static pair_of_lanes product(__m128i a, __m128i b) {  // in all 16 bits, unsigned
    return each([](__m128i x, __m128i y) { return _mm_mullo_epi16(x, y); }, widen(a), widen(b));
  }

  static __m128i saturated_sum(__m128i a, __m128i b) { return _mm_adds_epu8(a, b); }
  static __m128i saturated_difference(__m128i a, __m128i b) { return _mm_subs_epu8(a, b); }

  static __m128i narrow(pair_of_lanes r) { return _mm_packus_epi16(r.r[0], r.r[1]); }
  static __m128i narrow_unsigned(pair_of_lanes r) {  // 255 is the most that the signed pack may see
    return narrow(each([](__m128i v) { return sub(v, _mm_subs_epu16(v, all(255))); }, r));
  }
};

template <> struct narrow_row<Tav16s> : lanes_of_32 {
  static constexpr int lowest = -32768, highest = 32767;

  static pair_of_lanes widen(__m128i v) { return {{low_half_as_32s(v), _mm_srai_epi32(_mm_unpackhi_epi16(v, v), 16)}}; }
  static pair_of_lanes sum(__m128i a, __m128i b) { return interleaved(a, b, _mm_set1_epi16(1)); }
  static pair_of_lanes difference(__m128i a, __m128i b) { return interleaved(a, b, _mm_set1_epi32(int(0xFFFF0001))); }
  static pair_of_lanes product(__m128i a, __m128i b) {
    const __m128i low = _mm_mullo_epi16(a, b), high = _mm_mulhi_epi16(a, b);
    return {{_mm_unpacklo_epi16(low, high), _mm_unpackhi_epi16(low, high)}};
  }

  static __m128i saturated_sum(__m128i a, __m128i b) { return _mm_adds_epi16(a, b); }
  static __m128i saturated_difference(__m128i a, __m128i b) { return _mm_subs_epi16(a, b); }

  static __m128i narrow(pair_of_lanes r) { return _mm_packs_epi32(r.r[0], r.r[1]); }

 private:
  static pair_of_lanes interleaved(__m128i a, __m128i b, __m128i signs) {  // a * sign + b * sign, in 32 bits
    return {{_mm_madd_epi16(_mm_unpacklo_epi16(a, b), signs), _mm_madd_epi16(_mm_unpackhi_epi16(a, b), signs)}};
  }
};

template <> struct narrow_row<Tav16u> : lanes_of_32 {
  static constexpr int lowest = 0, highest = 65535;

  static pair_of_lanes widen(__m128i v) {
    const __m128i zero = _mm_setzero_si128();
    return {{_mm_unpacklo_epi16(v, zero), _mm_unpackhi_epi16(v, zero)}};
  }
  static pair_of_lanes sum(__m128i a, __m128i b) { return each(add, widen(a), widen(b)); }
  static pair_of_lanes difference(__m128i a, __m128i b) { return each(sub, widen(a), widen(b)); }
  static pair_of_lanes product(__m128i a, __m128i b) {  // in all 32 bits, unsigned
    const __m128i low = _mm_mullo_epi16(a, b), high = _mm_mulhi_epu16(a, b);
    return {{_mm_unpacklo_epi16(low, high), _mm_unpackhi_epi16(low, high)}};
  }

  static __m128i saturated_sum(__m128i a, __m128i b) { return _mm_adds_epu16(a, b); }
  static __m128i saturated_difference(__m128i a, __m128i b) { return _mm_subs_epu16(a, b); }

  static __m128i narrow(pair_of_lanes r) {  // SSSE3 packs to signed only: move the range down and back
    const auto moved = each([](__m128i v) { return sub(v, all(32768)); }, r);
    return _mm_xor_si128(_mm_packs_epi32(moved.r[0], moved.r[1]), _mm_set1_epi16(-32768));
  }
  static __m128i narrow_unsigned(pair_of_lanes r) {  // a top bit means more than the signed view can hold: its maximum
    const auto limited = [](__m128i v) {
      return _mm_and_si128(_mm_or_si128(v, _mm_srai_epi32(v, 31)), all(0x7FFFFFFF));
    };
    return narrow(each(limited, r));
  }
};

}  // namespace tav::TAV_VARIANT
