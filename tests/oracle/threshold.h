// Thresholds by definition: comparisons of the elements, exact integers for 16sc, double and extended precision for
// 32fc. 64fc stays in double precision, where the results near the ends of the range come from.
#pragma once
#include <math.h>

#include <limits>
#include <type_traits>

#include "tavs.h"

namespace oracle {

enum class side { below, above };

template <class T> bool fails(side s, T x, T level) { return s == side::below ? x < level : x > level; }

// Real elements.

template <class T> T clipped(side s, T x, T level) { return fails(s, x, level) ? level : x; }
template <class T> T replaced(side s, T x, T level, T value) { return fails(s, x, level) ? value : x; }
template <class T> T replaced_outside(T x, T low, T instead_of_lower, T high, T instead_of_higher) {
  return x < low ? instead_of_lower : x > high ? instead_of_higher : x;
}

template <class T> T clipped_magnitude(side s, T x, T level) {
  if constexpr (std::is_integral_v<T>) {
    const int64_t magnitude = clipped<int64_t>(s, x < 0 ? -int64_t(x) : int64_t(x), level);
    return T(x < 0 ? -magnitude : magnitude);
  } else {
    return copysign(clipped<T>(s, fabs(x), level), x);
  }
}

template <class T> T limited_inverse(T x, T level) { return 1 / clipped_magnitude(side::below, x, level); }

// Complex 16-bit integers: level against the magnitude as squares, and part * level / magnitude to nearest, in
// integers.

inline uint64_t square(Tav16sc x) { return uint64_t(int64_t(x.re) * x.re + int64_t(x.im) * x.im); }
inline bool fails(side s, Tav16sc x, Tav16s level) { return fails<uint64_t>(s, square(x), uint64_t(level) * level); }

inline Tav16s scaled_part(Tav16s part, uint64_t square, Tav16s level) {
  const uint64_t twice  = 2 * uint64_t(part < 0 ? -int64_t(part) : part) * uint64_t(level);
  const auto     middle = [&](uint64_t n) { return (2 * n + 1) * (2 * n + 1) * square; };  // of n and n + 1
  uint64_t       low = 0, high = 32768;  // the first n whose middle is not passed
  while (low < high) {
    const uint64_t n = (low + high) / 2;
    if (middle(n) < twice * twice)
      low = n + 1;
    else
      high = n;
  }
  const uint64_t nearest = low + (middle(low) == twice * twice && low % 2 != 0);
  return Tav16s(part < 0 ? -int64_t(nearest) : int64_t(nearest));
}

inline Tav16sc clipped(side s, Tav16sc x, Tav16s level) {
  if (!fails(s, x, level) || square(x) == 0) return x;
  return {scaled_part(x.re, square(x), level), scaled_part(x.im, square(x), level)};
}

// Complex singles: squares are compared in double precision. Infinite parts are what is left of a direction that has
// any.

inline long double square(Tav32fc x) { return (long double)x.re * x.re + (long double)x.im * x.im; }
inline bool        fails(side s, Tav32fc x, Tav32f level) {
         return fails<Tav64f>(s, Tav64f(x.re) * x.re + Tav64f(x.im) * x.im, Tav64f(level) * level);
}
inline Tav32fc direction(Tav32fc x) {
  if (!isinf(x.re) && !isinf(x.im)) return x;
  return {copysignf(isinf(x.re), x.re), copysignf(isinf(x.im), x.im)};
}
// 0 stays 0 next to an infinite factor.
inline Tav32f times(Tav32f part, long double factor) { return part == 0 ? part : Tav32f(part * factor); }

inline Tav32fc clipped(side s, Tav32fc x, Tav32f level) {
  if (!fails(s, x, level) || square(x) == 0) return x;
  const Tav32fc     d      = direction(x);
  const long double factor = fabsl((long double)level) / sqrtl(square(d));
  return {times(d.re, factor), times(d.im, factor)};
}

inline Tav32fc limited_inverse(Tav32fc x, Tav32f level) {
  const long double magnitude = sqrtl(square(x)), least = level > 0 ? (long double)level : 0;
  if (magnitude == 0) return {Tav32f(1 / least), 0};
  if (isinf(magnitude) && !isnan(x.re) && !isnan(x.im)) return {copysignf(0, x.re), -copysignf(0, x.im)};
  const long double divisor = magnitude * clipped<long double>(side::below, magnitude, least);
  return {Tav32f(x.re / divisor), Tav32f(-x.im / divisor)};
}

// Complex doubles.

inline Tav64f square(Tav64fc x) { return x.re * x.re + x.im * x.im; }
inline bool   fails(side s, Tav64fc x, Tav64f level) { return fails<Tav64f>(s, square(x), level * level); }

inline Tav64fc clipped(side s, Tav64fc x, Tav64f level) {
  if (!fails(s, x, level) || square(x) == 0) return x;
  const Tav64f factor = fabs(level) / sqrt(square(x));
  return {x.re * factor, x.im * factor};
}

inline Tav64fc limited_inverse(Tav64fc x, Tav64f level) {
  if (square(x) == 0) return {1 / (level > 0 ? level : 0), 0};
  const Tav64f divisor = fails(side::below, x, level) ? sqrt(square(x)) * fabs(level) : square(x);
  return {x.re / divisor, -x.im / divisor};
}

template <class C, class L>
requires requires(C x) { x.re; }
C replaced(side s, C x, L level, C value) { return fails(s, x, level) ? value : x; }

}  // namespace oracle
