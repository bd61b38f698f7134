// tavsSplitScaled_*: interleaved samples as lines of floats from -1 to 1.
//
// Samples convert from the upper bits of 32-bit integers, and the multiplier makes up for it, which changes no result.
// Products and sums are rounded each by itself in the caller's mode, in scalar and vector parts alike.
#include "vector/bytes_24.h"
#include "vector/split_join.h"

namespace tav::TAV_VARIANT {

struct split_16s {
  static constexpr size_t bytes = 2;

  static Tav32f one(const Tav8u* p) {
    return Tav32f(peek(reinterpret_cast<const Tav16s*>(p))) * step_of_16s + half_step_of_16s;
  }
  static __m128 four(const Tav8u* p) { return scaled(_mm_unpacklo_epi16(_mm_setzero_si128(), load_low<8>(p))); }
  static several<__m128, 2> eight(const Tav8u* p) {
    const __m128i v = load_bits<access::unaligned>(p), zero = _mm_setzero_si128();
    return {{scaled(_mm_unpacklo_epi16(zero, v)), scaled(_mm_unpackhi_epi16(zero, v))}};
  }
  static several<__m128, 2> four_pairs(const Tav8u* p) {
    const __m128i v = load_bits<access::unaligned>(p);
    return {{scaled(_mm_slli_epi32(v, 16)), scaled(_mm_and_si128(v, _mm_set1_epi32(int(0xFFFF0000))))}};
  }

 private:
  static __m128 scaled(__m128i upper_halves) {
    return _mm_cvtepi32_ps(upper_halves) * _mm_set1_ps(step_of_16s * 0x1p-16f) + _mm_set1_ps(half_step_of_16s);
  }
};

// In double precision, rounded to single at the end. No access reaches outside the samples that it is for.
struct split_24s {
  static constexpr size_t bytes = 3;

  static Tav32f one(const Tav8u* p) {
    const Tav32s upper = Tav32s(Tav32u(p[0]) << 8 | Tav32u(p[1]) << 16 | Tav32u(p[2]) << 24);
    return Tav32f(Tav64f(upper >> 8) * step_of_24s + half_step_of_24s);
  }
  static __m128             four(const Tav8u* p) { return scaled(lanes_of_24<in_lane::high>(load_12_bytes(p))); }
  static several<__m128, 2> eight(const Tav8u* p) {
    constexpr char no        = -128;
    const __m128i  last      = load_bits<access::unaligned>(p + 8);
    const __m128i  last_four = _mm_setr_epi8(no, 4, 5, 6, no, 7, 8, 9, no, 10, 11, 12, no, 13, 14, 15);
    return {{scaled(lanes_of_24<in_lane::high>(load_bits<access::unaligned>(p))),
             scaled(_mm_shuffle_epi8(last, last_four))}};
  }
  static several<__m128, 2> four_pairs(const Tav8u* p) {
    const auto v = eight(p);
    return {{_mm_shuffle_ps(v.r[0], v.r[1], _MM_SHUFFLE(2, 0, 2, 0)),
             _mm_shuffle_ps(v.r[0], v.r[1], _MM_SHUFFLE(3, 1, 3, 1))}};
  }

 private:
  static __m128 scaled_pair(__m128i upper) {
    return _mm_cvtpd_ps(_mm_cvtepi32_pd(upper) * _mm_set1_pd(step_of_24s * 0x1p-8) + _mm_set1_pd(half_step_of_24s));
  }
  static __m128 scaled(__m128i upper) {
    return _mm_movelh_ps(scaled_pair(upper), scaled_pair(_mm_shuffle_epi32(upper, _MM_SHUFFLE(3, 2, 3, 2))));
  }
};

// The ways through the frames. Each returns how many it has done.

template <class Sample> size_t split_one_line(const Tav8u* src, Tav32f* line, size_t len) {
  size_t j = 0;
  for (; len - j >= 8; j += 8) store<access::unaligned>(line + j, Sample::eight(src + j * Sample::bytes));
  return j;
}

template <class Sample> size_t split_two_lines(const Tav8u* src, Tav32f* line1, Tav32f* line2, size_t len) {
  size_t j = 0;
  for (; len - j >= 4; j += 4) {
    const auto v = Sample::four_pairs(src + j * 2 * Sample::bytes);
    store<access::unaligned>(line1 + j, v.r[0]);
    store<access::unaligned>(line2 + j, v.r[1]);
  }
  return j;
}

template <class Sample> size_t split_lines(const Tav8u* src, Tav32f* const* lines, size_t n, size_t len) {
  return by_four_lines(n, len, [=](size_t first, size_t from, size_t to) {
    Tav32f *const line1 = peek(lines + first), *const line2 = peek(lines + first + 1),
                  *const line3 = peek(lines + first + 2), *const line4 = peek(lines + fourth_line(first, n));
    const size_t stride = n * Sample::bytes;
    for (size_t j = from; j < to; j += 4) {
      const Tav8u* const p  = src + (j * n + first) * Sample::bytes;
      __m128             v1 = Sample::four(p), v2 = Sample::four(p + stride), v3 = Sample::four(p + 2 * stride),
             v4 = Sample::four(p + 3 * stride);
      _MM_TRANSPOSE4_PS(v1, v2, v3, v4);
      store<access::unaligned>(line4 + j, v4);  // may be line3
      store<access::unaligned>(line3 + j, v3);
      store<access::unaligned>(line2 + j, v2);
      store<access::unaligned>(line1 + j, v1);
    }
  });
}

template <class Sample, class T> TavStatus split(const T* src, Tav32f** dstLines, int lineCount, int lineLen) {
  if (const TavStatus bad = check_lines(src, dstLines, lineCount, lineLen)) return bad;
  const auto   samples = reinterpret_cast<const Tav8u*>(src);
  const size_t n = size_t(lineCount), len = size_t(lineLen);

  size_t j = n == 1   ? split_one_line<Sample>(samples, peek(dstLines), len)
             : n == 2 ? split_two_lines<Sample>(samples, peek(dstLines), peek(dstLines + 1), len)
                      : split_lines<Sample>(samples, dstLines, n, len);
  for (; j < len; ++j)
    for (size_t c = 0; c < n; ++c) poke(peek(dstLines + c) + j, Sample::one(samples + (j * n + c) * Sample::bytes));
  return tavStatusOk;
}

TAV_BIND(SplitScaled_16s32f_D2L, (&split<split_16s, Tav16s>))
TAV_BIND(SplitScaled_24s32f_D2L, (&split<split_24s, Tav8u>))

}  // namespace tav::TAV_VARIANT
