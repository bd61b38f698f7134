// Sums of floats: in the lanes of registers, in blocks of singles, or on the extended-precision unit.
//
// A sum travels as two doubles in a register: of a real array the low one counts, of pairs the low one is the real
// part. What order the elements are added in depends on the length alone.
#pragma once
#include "frame/rounding.h"
#include "stats/lane_sums.h"
#include "vector/extended.h"

namespace tav::TAV_VARIANT {

inline constexpr int fast_form = 1;  // as a hint; any other one asks for the accurate form

template <class T> inline constexpr bool has_parts = !std::is_same_v<part_of<T>, T>;

template <class T> TAV_INLINE __m128d as_lanes(T v) {
  if constexpr (has_parts<T>)
    return _mm_setr_pd(v.re, v.im);
  else
    return _mm_set_sd(v);
}

// Two vectors are added before they reach a partial result: half as many links in each chain.
template <class T> struct lane_sum_of {
  using partial = reg<T>;
  static constexpr reduce_shape shape{.step = 2 * lanes<T>};

  static partial start() { return partial{}; }
  static void    join(__m128& p, __m128 v) { p = _mm_add_ps(p, v); }
  static void    join(__m128d& p, __m128d v) { p = _mm_add_pd(p, v); }
  static void    many(partial& p, several<partial, 2> v) { join(v.r[0], v.r[1]), join(p, v.r[0]); }
  static __m128d total(__m128 p) { return _mm_add_pd(_mm_cvtps_pd(p), _mm_cvtps_pd(_mm_movehl_ps(p, p))); }
  static __m128d total(__m128d p) { return p; }
  static void    one(__m128d& sum, T v) { sum = _mm_add_pd(sum, as_lanes(v)); }
};

template <class T> TAV_INLINE __m128d sum_in_lanes(size_t len, const T* src) {
  return reduce(lane_sum_of<T>{}, len, src);
}

template <class T> TAV_INLINE __m128d across(__m128d sums) {
  return has_parts<T> ? sums : _mm_add_sd(sums, _mm_unpackhi_pd(sums, sums));
}

template <class T> TAV_INLINE T number_of(__m128d v) {
  if constexpr (has_parts<T>)
    return {part_of<T>(pair_of_lanes_64f(v).re), part_of<T>(pair_of_lanes_64f(v).im)};
  else
    return T(_mm_cvtsd_f64(v));
}

template <class T> TAV_INLINE __m128d double_sum(size_t len, const T* src) { return across<T>(sum_in_lanes(len, src)); }

// Singles lose precision within a block only. A sum of one block does not need the extended-precision unit.
inline constexpr size_t block_of_singles = 0x8000;

template <class T> [[gnu::noinline]] __m128d sum_of_one_block(size_t len, const T* src) {
  return sum_in_lanes(len, src);
}

template <class T> __m128d sum_of_blocks_of_singles(size_t len, const T* src) {
  const extended_mode scope;
  extended            even = 0, odd = 0;
  const auto          add = [&](size_t count, const T* block) {
    const Tav64fc sums = pair_of_lanes_64f(sum_of_one_block(count, block));
    even += sums.re, odd += sums.im;
  };
  in_blocks<block_of_singles>(add, len, src);
  return as_lanes(settled(Tav64fc{Tav64f(even), Tav64f(odd)}));
}

template <class T> TAV_INLINE __m128d fast_sum(size_t len, const T* src) {
  return across<T>(len <= block_of_singles ? sum_in_lanes(len, src) : sum_of_blocks_of_singles(len, src));
}

// Rounded once, to D, and to nearest whatever the caller's mode. Eight sums take turns: one waits for itself alone.
template <class D, class T> D accurate_sum(size_t len, const T* src) {
  constexpr int       sums = 8, a_round = 2 * sums, parts = has_parts<T> ? 2 : 1;
  const extended_mode scope;
  const auto          single  = reinterpret_cast<const Tav32f*>(src);
  const size_t        singles = len * parts;
  extended            sum[sums]{};

  size_t done = 0;
  for (; singles - done >= size_t(a_round); done += a_round) {
#pragma GCC unroll 16
    for (int k = 0; k < a_round; ++k) sum[k % sums] += peek(single + done + k);
  }
#pragma GCC unroll 16
  for (int k = 0; k < a_round; ++k)
    if (done + k < singles) sum[k % sums] += peek(single + done + k);
#pragma GCC unroll 4
  for (int half = sums / 2; half >= parts; half /= 2)
#pragma GCC unroll 4
    for (int k = 0; k < half; ++k) sum[k] += sum[k + half];

  if constexpr (has_parts<T>)
    return settled(D{part_of<D>(sum[0]), part_of<D>(sum[1])});
  else
    return settled(D(sum[0]));
}

}  // namespace tav::TAV_VARIANT
