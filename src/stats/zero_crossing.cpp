// tavsZeroCrossing_*: how often neighbours in an array differ in sign.
//
// What is left of an element is its sign, in a byte: 16 elements a register, beside which stands the same register
// moved by one element. Floats are read as integers: nothing underflows, tiny ones cost no more than others, NaNs do
// not trap, and the thread's modes do not matter.
#include "frame/bind.h"
#include "frame/checks.h"
#include "frame/registers.h"
#include "frame/rounding.h"

namespace tav::TAV_VARIANT {

namespace {

constexpr int at_once = 16;  // elements

template <class T> using sixteen = group<T, at_once>;

// Sixteen elements packed to bytes by saturation, which keeps the sign.
TAV_INLINE __m128i sign_bits(const several<__m128i, 2>& v) { return _mm_packs_epi16(v.r[0], v.r[1]); }
TAV_INLINE __m128i sign_bits(const several<__m128, 4>& v) {
  return _mm_packs_epi16(_mm_packs_epi32(as_bits(v.r[0]), as_bits(v.r[1])),
                         _mm_packs_epi32(as_bits(v.r[2]), as_bits(v.r[3])));
}

// Numbers as bytes of their sign, where zeros of either sign and NaNs are 0. Of these alone, the bits less one have an
// exponent of all ones; sign and exponent make -1 or 255 then, and what they make of other numbers lies between -256
// and -2 or between 0 and 254. One more: 0 or 256, from which bit 8 is taken, that no other positive one has.
TAV_INLINE __m128i sign_and_exponent(__m128 v) {
  constexpr int fraction = 23;
  return _mm_srai_epi32(_mm_add_epi32(as_bits(v), _mm_set1_epi32(-1)), fraction);
}
TAV_INLINE __m128i numbers(__m128 a, __m128 b) {
  const __m128i words = _mm_packs_epi32(sign_and_exponent(a), sign_and_exponent(b));
  return _mm_and_si128(_mm_sub_epi16(words, _mm_set1_epi16(-1)), _mm_set1_epi16(~0x100));
}
TAV_INLINE __m128i numbers(const several<__m128, 4>& v) {
  return _mm_packs_epi16(numbers(v.r[0], v.r[1]), numbers(v.r[2], v.r[3]));
}
TAV_INLINE __m128i numbers(const several<__m128i, 2>& v) { return sign_bits(v); }  // what is not 0 does not become 0

// -1, 0 and 1.
template <class V> TAV_INLINE __m128i signs(const V& v) { return _mm_sign_epi8(_mm_set1_epi8(1), numbers(v)); }

// The modes: a byte for each element, and the count of 16 pairs of such bytes, in two parts. Zeros differ from zeros in
// none.

struct negative_product {
  template <class V> static __m128i bytes(const V& v) { return signs(v); }
  static __m128i                    count(__m128i a, __m128i b) {  // only -1 is above 0xFE
    return _mm_sad_epu8(_mm_subs_epu8(_mm_sign_epi8(a, b), _mm_set1_epi8(char(0xFE))), _mm_setzero_si128());
  }
};

struct different_sign_bits {
  template <class V> static __m128i bytes(const V& v) {  // 0 and 1
    return _mm_and_si128(_mm_srli_epi16(sign_bits(v), 7), _mm_set1_epi8(1));
  }
  static __m128i count(__m128i a, __m128i b) { return _mm_sad_epu8(a, b); }
};

struct differences_of_signs {
  template <class V> static __m128i bytes(const V& v) { return _mm_add_epi8(signs(v), _mm_set1_epi8(1)); }
  static __m128i                    count(__m128i a, __m128i b) { return _mm_sad_epu8(a, b); }
};

// Keeps the last n of 16 bytes.
TAV_INLINE __m128i last_bytes(__m128i v, size_t n) {
  static constexpr uint8_t kept[2 * at_once] = {0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,
                                                0,    0,    0,    0,    0,    0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF,
                                                0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
  return _mm_and_si128(v, load_bits<access::unaligned>(kept + n));
}

template <int N> TAV_INLINE __m128i moved_up(__m128i v) { return _mm_slli_si128(v, N); }

// At least 16 elements. The place before the first holds a copy of it, which crosses nothing. The last ones behind a
// multiple of 16 are read with those before them, whose pairs have been counted.
template <class Mode, class T> TAV_INLINE __m128i counted(const T* src, size_t len) {
  const auto bytes_at = [&](size_t i) { return Mode::bytes(load<access::unaligned, at_once>(src + i)); };
  __m128i    current = bytes_at(0), previous = moved_up<at_once - 1>(current), counts = _mm_setzero_si128();
  size_t     done = at_once;
  for (;; done += at_once) {
    counts = _mm_add_epi64(counts, Mode::count(_mm_alignr_epi8(current, previous, at_once - 1), current));
    if (len - done < at_once) break;
    previous = current;
    current  = bytes_at(done);
  }
  if (done != len) {
    const __m128i last = bytes_at(len - at_once);
    counts =
        _mm_add_epi64(counts, Mode::count(last_bytes(moved_up<1>(last), len - done), last_bytes(last, len - done)));
  }
  return _mm_add_epi64(counts, _mm_unpackhi_epi64(counts, counts));
}

// Up to 2^24 a float holds the count, and no mode matters.
[[gnu::noinline]] TavStatus rounded_count(unsigned count, Tav32f* result) {
  const round_to_nearest_masked scope;
  poke(result, held(Tav32f(held(Tav64f(count)))));
  return tavStatusOk;
}

// Out of line, with nothing to do behind their calls: so they go without a stack frame.

template <class Mode, class T> [[gnu::noinline]] TavStatus crossings(const T* src, size_t len, Tav32f* result) {
  __m128i count = counted<Mode>(src, len);
  if constexpr (std::is_same_v<Mode, differences_of_signs>) count = _mm_srli_epi64(count, 1);
  const auto number = unsigned(_mm_cvtsi128_si32(count));
  if (number > 1u << 24) return rounded_count(number, result);
  poke(result, Tav32f(int(number)));
  return tavStatusOk;
}

// Fewer than 16 are filled up with copies of the last one.
template <class Mode, class T> [[gnu::noinline]] TavStatus crossings_of_few(const T* src, size_t len, Tav32f* result) {
  T filled[at_once];
  for (size_t i = 0; i < at_once; ++i) poke(filled + i, peek(src + (i < len ? i : len - 1)));
  return crossings<Mode, T>(filled, at_once, result);
}

template <class Mode, class T> TAV_INLINE TavStatus crossings_in(const T* src, size_t len, Tav32f* result) {
  return len < at_once ? crossings_of_few<Mode>(src, len, result) : crossings<Mode>(src, len, result);
}

template <class T> TavStatus zero_crossing(const T* src, unsigned len, Tav32f* result, int mode) {
  if (const TavStatus bad = check_unsigned_length(len, src, result)) return bad;
  switch (mode) {
    case 0:
      return crossings_in<negative_product>(src, len, result);
    case 1:
      return crossings_in<different_sign_bits>(src, len, result);
    case 2:
      return crossings_in<differences_of_signs>(src, len, result);
    default:
      return tavStatusBadZeroCrossingMode;
  }
}

}  // namespace

TAV_BIND(ZeroCrossing_16s32f, &zero_crossing<Tav16s>)
TAV_BIND(ZeroCrossing_32f, &zero_crossing<Tav32f>)

}  // namespace tav::TAV_VARIANT
