// tavsJoinScaled_*: lines of floats from -1 to 1 as interleaved samples, to nearest with ties to even.
//
// What lies outside is limited, and a NaN becomes the highest sample.
#include "frame/rounding.h"
#include "vector/bytes_24.h"
#include "vector/split_join.h"
#include "vector/to_integer.h"

namespace tav::TAV_VARIANT {

struct join_16s {
  static constexpr size_t bytes = 2;

  static void one(Tav8u* p, Tav32f v) {
    poke(reinterpret_cast<Tav16s*>(p), Tav16s(_mm_cvtsi128_si32(rounded(_mm_set_ss(v), _mm_setzero_ps()))));
  }
  static void four(Tav8u* p, __m128 v) { _mm_storel_epi64(reinterpret_cast<__m128i*>(p), rounded(v, v)); }
  static void eight(Tav8u* p, __m128 v1, __m128 v2) { store_bits<access::unaligned>(p, rounded(v1, v2)); }

 private:
  static __m128i rounded(__m128 v1, __m128 v2) { return _mm_packs_epi32(rounded(v1), rounded(v2)); }

  // Limited above, where a NaN gives the second operand of the minimum; the pack limits below, for what is too low to
  // convert becomes the lowest 32-bit integer.
  static __m128i rounded(__m128 v) {
    const __m128 steps = (v - _mm_set1_ps(half_step_of_16s)) * _mm_set1_ps(1 / step_of_16s);
    return _mm_cvtps_epi32(_mm_min_ps(steps, _mm_set1_ps(32767)));
  }
};

// In double precision. Registers hold their samples in the lowest bytes, three each.
struct join_24s {
  static constexpr size_t bytes = 3;

  static void one(Tav8u* p, Tav32f v) { store_3_bytes(p, rounded_pair(in_range(_mm_set_ss(v)))); }
  static void four(Tav8u* p, __m128 v) { store_12_bytes(p, rounded(v)); }
  static void eight(Tav8u* p, __m128 v1, __m128 v2) {
    const __m128i r1 = rounded(v1), r2 = rounded(v2);
    store_bits<access::unaligned>(p, _mm_or_si128(r1, _mm_slli_si128(r2, 12)));
    _mm_storel_epi64(reinterpret_cast<__m128i*>(p + 16), _mm_srli_si128(r2, 4));
  }

 private:
  // -1 and 1 become the lowest and the highest sample, so the limits come first, where one register holds four.
  static __m128  in_range(__m128 v) { return limited(v, -1, 1); }
  static __m128i rounded_pair(__m128 v) {
    const __m128d steps = (_mm_cvtps_pd(v) - _mm_set1_pd(half_step_of_24s)) * _mm_set1_pd(1 / step_of_24s);
    return _mm_cvtpd_epi32(steps);
  }
  static __m128i rounded(__m128 levels) {
    const __m128 v = in_range(levels);
    return packed_24<in_lane::low>(_mm_unpacklo_epi64(rounded_pair(v), rounded_pair(_mm_movehl_ps(v, v))));
  }
};

// The ways through the frames. Each returns how many it has done.

TAV_INLINE __m128 four_of_line(const Tav32f* line) { return load<access::unaligned, 4>(line); }

template <class Sample> size_t join_one_line(const Tav32f* line, Tav8u* dst, size_t len) {
  size_t j = 0;
  for (; len - j >= 8; j += 8)
    Sample::eight(dst + j * Sample::bytes, four_of_line(line + j), four_of_line(line + j + 4));
  return j;
}

template <class Sample> size_t join_two_lines(const Tav32f* line1, const Tav32f* line2, Tav8u* dst, size_t len) {
  size_t j = 0;
  for (; len - j >= 4; j += 4) {
    const __m128 v1 = four_of_line(line1 + j), v2 = four_of_line(line2 + j);
    Sample::eight(dst + j * 2 * Sample::bytes, _mm_unpacklo_ps(v1, v2), _mm_unpackhi_ps(v1, v2));
  }
  return j;
}

template <class Sample> size_t join_lines(const Tav32f* const* lines, Tav8u* dst, size_t n, size_t len) {
  return by_four_lines(n, len, [=](size_t first, size_t from, size_t to) {
    const Tav32f *const line1 = peek(lines + first), *const line2 = peek(lines + first + 1),
                        *const line3 = peek(lines + first + 2), *const line4 = peek(lines + fourth_line(first, n));
    const size_t stride = n * Sample::bytes;
    for (size_t j = from; j < to; j += 4) {
      Tav8u* const p  = dst + (j * n + first) * Sample::bytes;
      __m128       v1 = four_of_line(line1 + j), v2 = four_of_line(line2 + j), v3 = four_of_line(line3 + j),
             v4 = four_of_line(line4 + j);
      _MM_TRANSPOSE4_PS(v1, v2, v3, v4);
      Sample::four(p, v1);  // of three lines, reaches into the next frame, which comes later
      Sample::four(p + stride, v2);
      Sample::four(p + 2 * stride, v3);
      Sample::four(p + 3 * stride, v4);
    }
  });
}

template <class Sample, class T> TavStatus join(const Tav32f** srcLines, int lineCount, int lineLen, T* dst) {
  if (const TavStatus bad = check_lines(dst, srcLines, lineCount, lineLen)) return bad;
  const auto             samples = reinterpret_cast<Tav8u*>(dst);
  const size_t           n = size_t(lineCount), len = size_t(lineLen);
  const round_to_nearest scope;

  size_t j = n == 1   ? join_one_line<Sample>(peek(srcLines), samples, len)
             : n == 2 ? join_two_lines<Sample>(peek(srcLines), peek(srcLines + 1), samples, len)
                      : join_lines<Sample>(srcLines, samples, n, len);
  for (; j < len; ++j)
    for (size_t c = 0; c < n; ++c) Sample::one(samples + (j * n + c) * Sample::bytes, peek(peek(srcLines + c) + j));
  return tavStatusOk;
}

TAV_BIND(JoinScaled_32f16s_D2L, (&join<join_16s, Tav16s>))
TAV_BIND(JoinScaled_32f24s_D2L, (&join<join_24s, Tav8u>))

}  // namespace tav::TAV_VARIANT
