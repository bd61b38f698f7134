// tavsSwapBytes_*: the bytes of each element in the opposite order.
#include "frame/bind.h"
#include "vector/forms.h"

namespace tav::TAV_VARIANT {

struct swap_16u : types<Tav16u, Tav16u, Tav16u> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  static Tav16u  one(Tav16u a) { return __builtin_bswap16(a); }
  static __m128i many(__m128i a) {
    return _mm_shuffle_epi8(a, _mm_setr_epi8(1, 0, 3, 2, 5, 4, 7, 6, 9, 8, 11, 10, 13, 12, 15, 14));
  }
};

struct swap_32u : types<Tav32u, Tav32u, Tav32u> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  static Tav32u  one(Tav32u a) { return __builtin_bswap32(a); }
  static __m128i many(__m128i a) {
    return _mm_shuffle_epi8(a, _mm_setr_epi8(3, 2, 1, 0, 7, 6, 5, 4, 11, 10, 9, 8, 15, 14, 13, 12));
  }
};

struct swap_64u : types<Tav64u, Tav64u, Tav64u> {
  static constexpr kernel_shape shape{.round_bytes = 32};

  static Tav64u  one(Tav64u a) { return __builtin_bswap64(a); }
  static __m128i many(__m128i a) {
    return _mm_shuffle_epi8(a, _mm_setr_epi8(7, 6, 5, 4, 3, 2, 1, 0, 15, 14, 13, 12, 11, 10, 9, 8));
  }
};

// Three-byte elements: 16 of them fill three registers. A register's end may belong to an element that the next one
// finishes, so a few bytes come from a neighbour; 0x80 (-128) leaves a byte zero for them.
TAV_INLINE void swap_16_elements(const Tav8u* src, Tav8u* dst) {
  constexpr char no = -128;
  const __m128i  a = load_bits<access::unaligned>(src), b = load_bits<access::unaligned>(src + 16),
                c        = load_bits<access::unaligned>(src + 32);
  const __m128i first    = _mm_shuffle_epi8(a, _mm_setr_epi8(2, 1, 0, 5, 4, 3, 8, 7, 6, 11, 10, 9, 14, 13, 12, no)),
                middle   = _mm_shuffle_epi8(b, _mm_setr_epi8(0, no, 4, 3, 2, 7, 6, 5, 10, 9, 8, 13, 12, 11, no, 15)),
                last     = _mm_shuffle_epi8(c, _mm_setr_epi8(no, 3, 2, 1, 6, 5, 4, 9, 8, 7, 12, 11, 10, 15, 14, 13));
  const __m128i b1_to_15 = _mm_slli_si128(_mm_srli_epi16(b, 8), 15),
                a15_to_1 = _mm_slli_epi16(_mm_srli_si128(a, 15), 8),
                c0_to_14 = _mm_srli_si128(_mm_slli_si128(c, 15), 1),
                b14_to_0 = _mm_srli_si128(_mm_slli_si128(b, 1), 15);
  store_bits<access::unaligned>(dst, _mm_or_si128(first, b1_to_15));
  store_bits<access::unaligned>(dst + 16, _mm_or_si128(_mm_or_si128(middle, a15_to_1), c0_to_14));
  store_bits<access::unaligned>(dst + 32, _mm_or_si128(last, b14_to_0));
}

static TavStatus swapped_24u(const Tav8u* src, Tav8u* dst, int len) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  size_t left = size_t(len);
  for (; left >= 16; left -= 16, src += 48, dst += 48) swap_16_elements(src, dst);
  for (; left > 0; --left, src += 3, dst += 3) {
    const Tav8u low = src[0], middle = src[1], high = src[2];
    dst[0] = high, dst[1] = middle, dst[2] = low;
  }
  return tavStatusOk;
}

static TavStatus swapped_24u_in_place(Tav8u* srcDst, int len) { return swapped_24u(srcDst, srcDst, len); }

TAV_BIND(SwapBytes_16u, &one_source<swap_16u>)
TAV_BIND(SwapBytes_24u, &swapped_24u)
TAV_BIND(SwapBytes_32u, &one_source<swap_32u>)
TAV_BIND(SwapBytes_64u, &one_source<swap_64u>)

TAV_BIND(SwapBytes_16u_I, &on_itself<swap_16u>)
TAV_BIND(SwapBytes_24u_I, &swapped_24u_in_place)
TAV_BIND(SwapBytes_32u_I, &on_itself<swap_32u>)
TAV_BIND(SwapBytes_64u_I, &on_itself<swap_64u>)

}  // namespace tav::TAV_VARIANT
