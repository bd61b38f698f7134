// From the lanes of a register to one sum: floats in a fixed order, integers exactly in 64 bits.
//
// Pairs lie with their real parts in the even lanes and their imaginary parts in the odd ones.
#pragma once
#include "frame/reduce_shape.h"
#include "vector/squares.h"

namespace tav::TAV_VARIANT {

// Floats: lane k and lane k + 2 first, then the two sums.
TAV_INLINE __m128 folded(__m128 v) { return _mm_add_ps(v, _mm_movehl_ps(v, v)); }

TAV_INLINE Tav32f sum_of_lanes(__m128 v) {
  const __m128 half = folded(v);
  return _mm_cvtss_f32(_mm_add_ss(half, _mm_shuffle_ps(half, half, _MM_SHUFFLE(1, 1, 1, 1))));
}

TAV_INLINE Tav64f sum_of_lanes(__m128d v) { return _mm_cvtsd_f64(_mm_add_sd(v, _mm_unpackhi_pd(v, v))); }

TAV_INLINE Tav32fc sum_of_pairs(__m128 v) {
  const __m128 half = folded(v);
  return {_mm_cvtss_f32(half), _mm_cvtss_f32(_mm_shuffle_ps(half, half, _MM_SHUFFLE(1, 1, 1, 1)))};
}

TAV_INLINE Tav64fc pair_of_lanes_64f(__m128d v) { return {_mm_cvtsd_f64(v), _mm_cvtsd_f64(_mm_unpackhi_pd(v, v))}; }

// Four lanes of 32 bits as two of 64: lanes 0 and 2 in the low one, 1 and 3 in the high one. So pairs stay apart.
TAV_INLINE __m128i widened_sum(__m128i v) {
  const __m128i signs = _mm_srai_epi32(v, 31);
  return _mm_add_epi64(_mm_unpacklo_epi32(v, signs), _mm_unpackhi_epi32(v, signs));
}
TAV_INLINE __m128i widened_sum_unsigned(__m128i v) {
  const __m128i zero = _mm_setzero_si128();
  return _mm_add_epi64(_mm_unpacklo_epi32(v, zero), _mm_unpackhi_epi32(v, zero));
}

// The same with lanes 0 and 1 in the low one, 2 and 3 in the high one, where they need not stay apart.
TAV_INLINE __m128i neighbours_unsigned(__m128i v) {
  return _mm_add_epi64(_mm_and_si128(v, _mm_set1_epi64x(0xFFFFFFFFll)), _mm_srli_epi64(v, 32));
}

// Two lanes of 64 bits.
TAV_INLINE int64_t low_lane_64(__m128i v) {
  int64_t low;
  _mm_storel_epi64(reinterpret_cast<__m128i*>(&low), v);
  return low;
}
TAV_INLINE int64_t sum_of_lanes_64(__m128i v) { return low_lane_64(_mm_add_epi64(v, _mm_unpackhi_epi64(v, v))); }
TAV_INLINE Tav64sc pair_of_lanes_64(__m128i v) { return {low_lane_64(v), low_lane_64(_mm_unpackhi_epi64(v, v))}; }

// Four lanes of 32 bits.
TAV_INLINE int64_t sum_of_lanes_32(__m128i v) { return sum_of_lanes_64(widened_sum(v)); }
TAV_INLINE int64_t sum_of_lanes_32_unsigned(__m128i v) { return sum_of_lanes_64(widened_sum_unsigned(v)); }
TAV_INLINE Tav64sc sum_of_pairs_32(__m128i v) { return pair_of_lanes_64(widened_sum(v)); }

// An array in blocks so short that lanes of 32 bits hold their sums; the sums of the blocks in 64 bits. The totals of
// the reduction are int64_t or Tav64sc.
TAV_INLINE int64_t total_of(int64_t a, int64_t b) { return a + b; }
TAV_INLINE Tav64sc total_of(Tav64sc a, Tav64sc b) { return {a.re + b.re, a.im + b.im}; }

template <size_t Block, class Op, class... S> TAV_INLINE auto sum_of_blocks(const Op& op, size_t len, const S*... src) {
  decltype(reduce(op, len, src...)) sum{};
  in_blocks<Block>([&](size_t count, const S*... block) { sum = total_of(sum, reduce(op, count, block...)); }, len,
                   src...);
  return sum;
}

inline constexpr size_t block_of_words = 0x10000;  // the usual Block for elements of 16 bits

}  // namespace tav::TAV_VARIANT
