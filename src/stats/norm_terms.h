// What the norms of floats add up or compare: a term for each element of one array, or for each difference of two.
//
// A row of terms has the elements it takes at a time (`step`), the type it works in (`result`), `many` from registers
// of the arrays to one or two of terms, and `one`. Pairs are taken in doubles, so are singles with a result in doubles.
#pragma once
#include "stats/norm_results.h"
#include "vector/parts.h"

namespace tav::TAV_VARIANT {

template <class V> TAV_INLINE V element_or_difference(V v) { return v; }
template <class V> TAV_INLINE V element_or_difference(V a, V b) { return a - b; }

TAV_INLINE __m128 float_magnitude(__m128 v) {
  return _mm_and_ps(v, _mm_castsi128_ps(_mm_set1_epi32(std::numeric_limits<int32_t>::max())));
}
TAV_INLINE __m128d float_magnitude(__m128d v) {
  return _mm_and_pd(v, _mm_castsi128_pd(_mm_set1_epi64x(std::numeric_limits<int64_t>::max())));
}
TAV_INLINE Tav32f float_magnitude(Tav32f v) { return __builtin_fabsf(v); }
TAV_INLINE Tav64f float_magnitude(Tav64f v) { return __builtin_fabs(v); }

struct magnitude_term {
  template <class V> TAV_INLINE static V of(V v) { return float_magnitude(v); }
};
struct square_term {
  template <class V> TAV_INLINE static V of(V v) { return v * v; }
};

// Of real elements, in their own type.
template <class Term, class T> struct real_terms {
  using result              = T;
  static constexpr int step = 2 * lanes<T>;

  template <class... G> TAV_INLINE static several<reg<T>, 2> many(G... v) {
    return {{Term::of(element_or_difference(v.r[0]...)), Term::of(element_or_difference(v.r[1]...))}};
  }
  template <class... E> TAV_INLINE static T one(E... e) { return Term::of(element_or_difference(e...)); }
};

TAV_INLINE __m128d lower_doubles(__m128 v) { return _mm_cvtps_pd(v); }
TAV_INLINE __m128d upper_doubles(__m128 v) { return _mm_cvtps_pd(_mm_movehl_ps(v, v)); }

// The squares of singles as doubles, which hold them exactly. A conversion takes its two singles from memory.
struct wide_squares {
  using result              = Tav64f;
  static constexpr int step = 2;

  template <class... R> TAV_INLINE static __m128d many(R... v) {
    return square_term::of(element_or_difference(lower_doubles(v)...));
  }
  template <class... E> TAV_INLINE static Tav64f one(E... e) {
    return square_term::of(element_or_difference(Tav64f(e)...));
  }
};

// Four pairs as doubles: the real parts of two, their imaginary parts, and the same of the other two.
TAV_INLINE several<__m128d, 4> parts_of_pairs(several<__m128, 2> v) {
  const __m128 re = all_re(v), im = all_im(v);
  return {{lower_doubles(re), lower_doubles(im), upper_doubles(re), upper_doubles(im)}};
}
TAV_INLINE several<__m128d, 4> parts_of_pairs(several<__m128d, 4> v) {
  const several<__m128d, 2> first{{v.r[0], v.r[1]}}, second{{v.r[2], v.r[3]}};
  return {{all_re(first), all_im(first), all_re(second), all_im(second)}};
}

struct squared_term {
  template <class V> TAV_INLINE static V of(V square) { return square; }
};
struct root_term {
  template <class V> TAV_INLINE static V of(V square) { return root(square); }
};

// Of pairs, given re^2 + im^2.
template <class Term> struct pair_terms {
  using result              = Tav64f;
  static constexpr int step = 4;

  template <class... G> TAV_INLINE static several<__m128d, 2> many(G... v) {
    return {{two<0>(parts_of_pairs(v)...), two<2>(parts_of_pairs(v)...)}};
  }
  template <class... E> TAV_INLINE static Tav64f one(E... e) {
    const Tav64f re = element_or_difference(Tav64f(e.re)...), im = element_or_difference(Tav64f(e.im)...);
    return Term::of(re * re + im * im);
  }

 private:
  template <int K, class... G> TAV_INLINE static __m128d two(G... v) {
    return Term::of(square_term::of(element_or_difference(v.r[K]...))
                    + square_term::of(element_or_difference(v.r[K + 1]...)));
  }
};

}  // namespace tav::TAV_VARIANT
