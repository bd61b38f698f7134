// NaNs out of the way of doubles: they have no order.
#pragma once
#include "stats/sort/views.h"

namespace tav::TAV_VARIANT::sorting {

template <class V> TAV_INLINE __m128i nans_of(V v) {
  const __m128d d = _mm_castsi128_pd(v.key);
  return _mm_castpd_si128(_mm_cmpunord_pd(d, d));
}

template <class View> bool any_nan(View a, size_t n) {
  constexpr size_t lanes = View::vector::lanes;
  __m128i          found = _mm_setzero_si128();
  size_t           i     = 0;
  for (; i + lanes <= n; i += lanes) found = _mm_or_si128(found, nans_of(a.load(i)));
  for (; i < n; ++i) found = _mm_or_si128(found, nans_of(a.load_one(i)));
  return bits_of<typename View::vector>(found) != 0;
}

// Brings the NaNs behind all else and returns how many elements are none.
template <class View> size_t nans_last(View a, size_t n) {
  if (!any_nan(a, n)) return n;
  for (size_t i = 0; i < n;) {
    const auto v = a.load_one(i);
    if ((bits_of<typename View::vector>(nans_of(v)) & 1) == 0) {
      ++i;
      continue;
    }
    --n;
    a.store_one(i, a.load_one(n));
    a.store_one(n, v);
  }
  return n;
}

}  // namespace tav::TAV_VARIANT::sorting
