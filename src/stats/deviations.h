// The standard deviation of floats, and their mean on the way: unbiased, from the sums of the differences from the
// first element and of their squares. Of a constant array all differences are 0, so its deviation is 0 exactly.
//
// With a first element that is infinite or NaN nothing is subtracted: the mean then is what it has to be, and the
// deviation a NaN.
//
// The sums are made in lanes of the elements' own type, by blocks, or on the extended-precision unit; the formula runs
// on that unit in either case, and its results are rounded to nearest. Where singles come of sums in lanes, doubles
// nearly always show what that unit would make of them.
#pragma once
#include "stats/deviation_forms.h"
#include "stats/float_sums.h"
#include "stats/near_moments.h"

namespace tav::TAV_VARIANT {

struct difference_sums {
  extended sum = 0, squares = 0;
};

TAV_INLINE extended extended_root(extended v) {
  __asm__("fsqrt" : "+t"(v));
  return v;
}

template <class T> TAV_INLINE moments<T> moments_of(T first, const difference_sums& d, size_t len) {
  const extended n = int(len), variance = (d.squares * n - d.sum * d.sum) / (n * (n - 1));
  return settled(moments<T>{T((first * n + d.sum) / n), T(extended_root(variance < 0 ? 0 : variance))});
}

template <class T> TAV_INLINE T subtracted_from(const T* src) {
  const T first = peek(src);
  return first - first == 0 ? first : 0;
}

// In lanes.
template <class T> struct lane_differences {
  static constexpr reduce_shape shape{.step = lanes<T>, .partials = 2};

  struct partial {
    reg<T> sum, squares;
  };
  struct totals {
    Tav64f sum, squares;
  };

  reg<T> all_first;
  T      first;

  static partial start() { return {reg<T>{}, reg<T>{}}; }
  static void    join(partial& p, const partial& other) {
       using sums = lane_sum_of<T>;
       sums::join(p.sum, other.sum), sums::join(p.squares, other.squares);
  }
  void many(partial& p, __m128 v) const {
    const __m128 d = _mm_sub_ps(v, all_first);
    join(p, {d, _mm_mul_ps(d, d)});
  }
  void many(partial& p, __m128d v) const {
    const __m128d d = _mm_sub_pd(v, all_first);
    join(p, {d, _mm_mul_pd(d, d)});
  }
  static totals total(const partial& p) {
    using sums = lane_sum_of<T>;
    return {sum_of_lanes(sums::total(p.sum)), sum_of_lanes(sums::total(p.squares))};
  }
  void one(totals& t, T v) const {
    const T d = v - first;
    t.sum += d, t.squares += Tav64f(d) * d;
  }
};

template <class T> TAV_INLINE auto differences_in_lanes(size_t len, const T* src, T first) {
  return reduce(lane_differences<T>{from_bits<T>(repeated(first)), first}, len, src);
}

template <class T> [[gnu::noinline]] auto differences_out_of_line(size_t len, const T* src, T first) {
  return differences_in_lanes(len, src, first);
}

template <class T> [[gnu::noinline]] moments<T> moments_of_blocks(size_t len, const T* src) {
  const extended_mode scope;
  const T             first = subtracted_from(src);
  difference_sums     d;
  const auto          add = [&](size_t count, const T* block) {
    const auto sums = differences_out_of_line(count, block, first);
    d.sum += sums.sum, d.squares += sums.squares;
  };
  in_blocks<block_of_singles>(add, len, src);
  return moments_of(first, d, len);
}

inline moments<Tav64f> moments_in_lanes(size_t len, const Tav64f* src) { return moments_of_blocks(len, src); }

// One block at most, without that unit if the single that it makes of the deviation, and of the mean where that is
// wanted, is known.
enum class wanted { deviation, both };

template <wanted What> TAV_INLINE moments<Tav32f> moments_in_lanes(size_t len, const Tav32f* src) {
  if (len <= block_of_singles) {
    const Tav32f first = subtracted_from(src);
    const auto   sums  = differences_in_lanes(len, src, first);
    if (usual_sse_mode()) {
      const near_moments near(first, sums.sum, sums.squares, int(len));
      const bool         both = What == wanted::both;
      if (near.deviation_is_known() && (!both || near.mean_is_known()))
        return {both ? Tav32f(near.mean) : 0, Tav32f(near.deviation)};
    }
  }
  return moments_of_blocks(len, src);
}

// On the extended-precision unit, whose eight registers hold the sums of two elements that take turns, and no more.
inline moments<Tav32f> accurate_moments(size_t len, const Tav32f* src) {
  const extended_mode scope;
  const Tav32f        first = subtracted_from(src);
  difference_sums     even, odd;
  const auto          add = [first](difference_sums& d, Tav32f v) {
    const extended difference = extended(v) - first;
    d.sum += difference, d.squares += difference * difference;
  };
  for (size_t i = 0; i < len - 1; i += 2) add(even, peek(src + i)), add(odd, peek(src + i + 1));
  if (len % 2 != 0) add(even, peek(src + len - 1));
  return moments_of(first, difference_sums{even.sum + odd.sum, even.squares + odd.squares}, len);
}

template <wanted What> TAV_INLINE moments<Tav32f> moments_by_hint(size_t len, const Tav32f* src, int hint) {
  return hint == fast_form ? moments_in_lanes<What>(len, src) : accurate_moments(len, src);
}

}  // namespace tav::TAV_VARIANT
