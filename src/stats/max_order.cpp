// tavsMaxOrder_*: the bits that the largest magnitude has before the binary point.
#include "frame/bind.h"
#include "frame/checks.h"
#include "frame/reduce_shape.h"
#include "frame/rounding.h"

namespace tav::TAV_VARIANT {

namespace {

int bit_length(Tav32u v) { return v == 0 ? 0 : 32 - __builtin_clz(v); }
int bit_length(Tav64u v) {
  const Tav32u high = Tav32u(v >> 32);
  return high != 0 ? 32 + bit_length(high) : bit_length(Tav32u(v));
}

// All magnitudes or-ed together have the top bit of the largest one. That of the lowest integer, read as an unsigned
// number, is right.
template <class T> struct bits_of_magnitudes {
  using partial = __m128i;
  static constexpr reduce_shape shape{.step = lanes<T>, .tail_again = true};

  static __m128i start() { return _mm_setzero_si128(); }
  static void    many(__m128i& p, __m128i v) {
       const __m128i magnitudes = sizeof(T) == 2 ? _mm_abs_epi16(v) : _mm_abs_epi32(v);
       p                        = in_register(_mm_or_si128(p, magnitudes), magnitudes);
  }
  static void   join(__m128i& p, __m128i q) { p = _mm_or_si128(p, q); }
  static Tav32u total(__m128i p) {
    p                = _mm_or_si128(p, _mm_unpackhi_epi64(p, p));
    const Tav32u all = Tav32u(_mm_cvtsi128_si32(_mm_or_si128(p, _mm_srli_epi64(p, 32))));
    return sizeof(T) == 2 ? (all | all >> 16) & 0xFFFF : all;
  }
  static void one(Tav32u& bits, T v) { bits |= v < 0 ? 0 - Tav32u(Tav32s(v)) : Tav32u(v); }
};

template <class T> struct float_format;
template <> struct float_format<Tav32f> {
  using word                    = Tav32u;
  static constexpr int fraction = 23, exponent_of_one = 127, all_ones = 0xFF;
};
template <> struct float_format<Tav64f> {
  using word                    = Tav64u;
  static constexpr int fraction = 52, exponent_of_one = 1023, all_ones = 0x7FF;
};

// The topmost 16 bits of the largest magnitude, which hold its exponent.
template <class T> struct top_of_largest {
  using partial = __m128i;
  static constexpr reduce_shape shape{.step = lanes<T>, .tail_again = true};

  static __m128i start() { return _mm_setzero_si128(); }
  static void    many(__m128i& p, reg<T> v) {  // the lanes of lower bits take part, and nobody reads them
    const __m128i magnitudes = _mm_and_si128(as_bits(v), _mm_set1_epi16(0x7FFF));
    p                        = in_register(_mm_max_epi16(p, magnitudes), magnitudes);
  }
  static void join(__m128i& p, __m128i q) { p = _mm_max_epi16(p, q); }
  static int  total(__m128i p) {
     p = _mm_max_epi16(p, _mm_unpackhi_epi64(p, p));
     if constexpr (sizeof(T) == 4) p = _mm_max_epi16(p, _mm_slli_epi64(p, 32));
    return _mm_extract_epi16(p, 3);
  }
  TAV_INLINE static void one(int& top, T v) {
    using word     = typename float_format<T>::word;
    const int bits = int(__builtin_bit_cast(word, v) >> (8 * sizeof(T) - 16)) & 0x7FFF;
    top            = bits > top ? bits : top;
  }
};

// Of the numbers alone: the topmost bits of the largest magnitude, the bits of all magnitudes or-ed together, and
// whether there was nothing else.
template <class T> struct largest_number {
  using word = typename float_format<T>::word;
  struct partial {
    __m128i top, bits, numbers;
  };
  struct result {
    int  top;
    word bits;
    bool numbers;
  };
  static constexpr reduce_shape shape{.step = lanes<T>, .partials = 2, .tail_again = true};

  static partial start() { return {_mm_setzero_si128(), _mm_setzero_si128(), _mm_set1_epi32(-1)}; }
  static void    many(partial& p, reg<T> v) {
       const __m128i number = __m128i(v == v), masked = _mm_and_si128(as_bits(v), number);
       top_of_largest<T>::many(p.top, from_bits<T>(masked));
       p.bits    = _mm_or_si128(p.bits, masked);
       p.numbers = _mm_and_si128(p.numbers, number);
  }
  static void join(partial& p, const partial& q) {
    top_of_largest<T>::join(p.top, q.top);
    p.bits    = _mm_or_si128(p.bits, q.bits);
    p.numbers = _mm_and_si128(p.numbers, q.numbers);
  }
  static result total(const partial& p) {
    word lane[lanes<word>], bits = 0;
    store<access::unaligned>(lane, p.bits);
    for (const word w : lane) bits |= w;
    return {top_of_largest<T>::total(p.top), bits & without_sign, _mm_movemask_epi8(p.numbers) == 0xFFFF};
  }
  TAV_INLINE static void one(result& r, T v) {
    if (v == v) {
      top_of_largest<T>::one(r.top, v);
      r.bits |= __builtin_bit_cast(word, v) & without_sign;
    } else {
      r.numbers = false;
    }
  }

 private:
  static constexpr word without_sign = word(~word(0)) >> 1;
};

template <class T> int exponent_of(int top) { return top >> float_format<T>::fraction % 16; }
template <class T> int order_of_normal(int top) { return exponent_of<T>(top) - float_format<T>::exponent_of_one + 1; }

// Of zeros and denormals, whose bits are multiples of the smallest one.
template <class T> int order_of_denormals(typename float_format<T>::word bits) {
  using format = float_format<T>;
  return bits == 0 ? 0 : bit_length(bits) - (format::exponent_of_one - 1 + format::fraction);
}

template <class T> TavStatus max_order_of_integers(const T* src, int len, int* order) {
  if (const TavStatus bad = check_length_first(len, src, order)) return bad;
  poke(order, bit_length(reduce(bits_of_magnitudes<T>{}, size_t(len), src)));
  return tavStatusOk;
}

// Nearly all arrays are done once the largest exponent is known. A second pass looks at those with an infinity or a
// NaN, and at those of zeros and denormals alone.
template <class T> TavStatus max_order_of_floats(const T* src, int len, int* order) {
  if (const TavStatus bad = check_length_first(len, src, order)) return bad;
  const int top = reduce(top_of_largest<T>{}, size_t(len), src);
  if (exponent_of<T>(top) != 0 && exponent_of<T>(top) != float_format<T>::all_ones) {
    poke(order, order_of_normal<T>(top));
    return tavStatusOk;
  }
  const round_to_nearest_masked scope;  // a NaN or a denormal must not trap
  const auto                    found = reduce(largest_number<T>{}, size_t(len), src);
  poke(order, exponent_of<T>(found.top) != 0 ? order_of_normal<T>(found.top) : order_of_denormals<T>(found.bits));
  return found.numbers ? tavStatusOk : tavStatusWarnNanInData;
}

}  // namespace

TAV_BIND(MaxOrder_16s, &max_order_of_integers<Tav16s>)
TAV_BIND(MaxOrder_32s, &max_order_of_integers<Tav32s>)
TAV_BIND(MaxOrder_32f, &max_order_of_floats<Tav32f>)
TAV_BIND(MaxOrder_64f, &max_order_of_floats<Tav64f>)

}  // namespace tav::TAV_VARIANT
