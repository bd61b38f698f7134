// tavsZeroCrossing_*: how often neighbours in an array differ in sign.
//
// What is left of an element is its sign, in a byte: 16 elements a register, beside which stands the same register
// moved by one element. No product is made: nothing underflows, and tiny floats cost no more than others.
#include "frame/bind.h"
#include "frame/checks.h"
#include "frame/registers.h"
#include "frame/rounding.h"

namespace tav::TAV_VARIANT {

namespace {

constexpr int at_once = 16;  // elements

template <class T> using sixteen = group<T, at_once>;

// Sixteen elements packed to bytes by saturation, which keeps the sign and keeps what is not 0 from becoming 0.

TAV_INLINE __m128i packed(const several<__m128i, 2>& v) { return _mm_packs_epi16(v.r[0], v.r[1]); }
TAV_INLINE __m128i packed(const several<__m128i, 4>& v) {
  return _mm_packs_epi16(_mm_packs_epi32(v.r[0], v.r[1]), _mm_packs_epi32(v.r[2], v.r[3]));
}
TAV_INLINE __m128i packed(const several<__m128, 4>& v) {
  return packed(several<__m128i, 4>{{as_bits(v.r[0]), as_bits(v.r[1]), as_bits(v.r[2]), as_bits(v.r[3])}});
}

// Of zeros of either sign and of NaNs nothing but +0.0 is left: where neither operand is the larger or the smaller one,
// the processor takes the second.
TAV_INLINE __m128 nonzero_number(__m128 v) {
  const __m128 zero = _mm_setzero_ps();
  return _mm_or_ps(_mm_max_ps(v, zero), _mm_min_ps(v, zero));
}

TAV_INLINE __m128i values(const several<__m128i, 2>& v) { return packed(v); }
TAV_INLINE __m128i values(const several<__m128, 4>& v) {
  return packed(several<__m128, 4>{
      {nonzero_number(v.r[0]), nonzero_number(v.r[1]), nonzero_number(v.r[2]), nonzero_number(v.r[3])}});
}

// -1, 0 and 1.
template <class V> TAV_INLINE __m128i signs(const V& v) { return _mm_sign_epi8(_mm_set1_epi8(1), values(v)); }

TAV_INLINE __m128i sum_of_bytes(__m128i v) { return _mm_sad_epu8(v, _mm_setzero_si128()); }

// The modes: a byte for each element, and the count of 16 pairs of such bytes, in two parts.

struct negative_product {
  template <class V> static __m128i bytes(const V& v) { return signs(v); }
  static __m128i                    count(__m128i a, __m128i b) {  // only -1 is above 0xFE
    return sum_of_bytes(_mm_subs_epu8(_mm_sign_epi8(a, b), _mm_set1_epi8(char(0xFE))));
  }
};

struct different_sign_bits {
  template <class V> static __m128i bytes(const V& v) {  // 0 and 1
    return _mm_and_si128(_mm_srli_epi16(packed(v), 7), _mm_set1_epi8(1));
  }
  static __m128i count(__m128i a, __m128i b) { return _mm_sad_epu8(a, b); }
};

struct differences_of_signs {
  template <class V> static __m128i bytes(const V& v) { return _mm_add_epi8(signs(v), _mm_set1_epi8(1)); }
  static __m128i                    count(__m128i a, __m128i b) { return _mm_sad_epu8(a, b); }
};

// The place before the first element and those behind the last hold copies of these, which cross nothing.
template <class Mode, class T> Tav64u counted(const T* src, size_t len) {
  sixteen<T> copies;
  for (reg<T>& r : copies.r) r = from_bits<T>(repeated(peek(src)));
  __m128i    previous = Mode::bytes(copies), counts = _mm_setzero_si128();
  const auto add = [&](const sixteen<T>& v) {
    const __m128i current = Mode::bytes(v);
    counts   = _mm_add_epi64(counts, Mode::count(_mm_alignr_epi8(current, previous, at_once - 1), current));
    previous = current;
  };

  size_t done = 0;
#pragma GCC unroll 2
  for (; len - done >= at_once; done += at_once) add(load<access::unaligned, at_once>(src + done));
  if (done != len) {
    T rest[at_once];
    for (size_t i = 0; i < at_once; ++i) poke(rest + i, peek(src + (done + i < len ? done + i : len - 1)));
    add(load<access::unaligned, at_once>(rest));
  }
  Tav64u parts[2];
  store<access::unaligned>(parts, counts);
  return parts[0] + parts[1];
}

// Denormals are numbers like others, NaNs do not trap, and a count above 2^24 is rounded to nearest.
constexpr uint32_t flush_to_zero = 0x8000, denormals_are_zeros = 0x0040;
using usual_mode =
    sse_mode<sse_bits::rounding | sse_bits::all_masks | flush_to_zero | denormals_are_zeros, sse_bits::all_masks>;

template <class T> TavStatus zero_crossing(const T* src, unsigned len, Tav32f* result, int mode) {
  if (const TavStatus bad = check_unsigned_length(len, src, result)) return bad;
  if (mode < 0 || mode > 2) return tavStatusBadZeroCrossingMode;
  const usual_mode scope;
  const Tav64u     count = mode == 0   ? counted<negative_product>(src, len)
                           : mode == 1 ? counted<different_sign_bits>(src, len)
                                       : counted<differences_of_signs>(src, len) / 2;
  poke(result, held(Tav32f(held(Tav64f(Tav64s(count))))));
  return tavStatusOk;
}

}  // namespace

TAV_BIND(ZeroCrossing_16s32f, &zero_crossing<Tav16s>)
TAV_BIND(ZeroCrossing_32f, &zero_crossing<Tav32f>)

}  // namespace tav::TAV_VARIANT
