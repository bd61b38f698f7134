// How float sums of the Direct calls become integers: scaled, limited, and rounded to nearest, ties away from zero.
// (The calls on states round ties to even.)
#pragma once
#include <limits>

#include "filter/fir/samples.h"
#include "filter/output_scale.h"

namespace tav::TAV_VARIANT::fir {

// NaN: what the processor's conversion makes of it.
template <class I> I nearest_away(Tav64f v) {
  using limits       = std::numeric_limits<I>;
  __m128d       x    = _mm_set_sd(v);
  const __m128d sign = _mm_and_pd(x, _mm_set_sd(-0.0));
  x                  = _mm_min_sd(_mm_set_sd(limits::max()), _mm_max_sd(_mm_set_sd(limits::min()), x));
  return I(_mm_cvttsd_si32(_mm_add_sd(x, _mm_or_pd(sign, _mm_set_sd(0.5)))));
}

class half_away {
 public:
  explicit half_away(int scaleFactor) : factor_(scaleFactor) {}

  template <class S, class D> void operator()(const S* sums, D* dst, size_t n) const {
    using F       = part<S>;
    const F scale = output_scale<F>(factor_);
    for (size_t i = 0; i < n * parts<S>; ++i)
      poke(parts_of(dst) + i, nearest_away<part<D>>(Tav64f(parts_of(sums)[i] * scale)));
  }

 private:
  int factor_;
};

}  // namespace tav::TAV_VARIANT::fir
