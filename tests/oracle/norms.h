// Norms by definition, of elements or of differences in a wider type: integers exactly, floats in extended precision.
#pragma once
#include <math.h>

#include <limits>
#include <vector>

#include "oracle/scale.h"
#include "tavs.h"

namespace oracle {

struct wide_pair {
  long double re, im;
};

// What a difference is taken in: singles stay singles, but not those of pairs.
inline int64_t     minus(Tav16s a, Tav16s b) { return int64_t(a) - b; }
inline long double minus(Tav32f a, Tav32f b) { return Tav32f(Tav64f(a) - b); }
inline long double minus(Tav64f a, Tav64f b) { return Tav64f((long double)a - b); }
inline wide_pair   minus(Tav32fc a, Tav32fc b) { return {Tav64f(a.re) - b.re, Tav64f(a.im) - b.im}; }
inline wide_pair   minus(Tav64fc a, Tav64fc b) { return {a.re - b.re, a.im - b.im}; }

template <class S> using wide_of = decltype(minus(S{}, S{}));

template <class S> std::vector<wide_of<S>> elements(const std::vector<S>& src) {
  std::vector<wide_of<S>> all;
  for (S v : src) all.push_back(minus(v, S{}));
  return all;
}
template <class S> std::vector<wide_of<S>> elements(const std::vector<S>& src1, const std::vector<S>& src2) {
  std::vector<wide_of<S>> all;
  for (size_t i = 0; i < src1.size(); ++i) all.push_back(minus(src1[i], src2[i]));
  return all;
}

inline int64_t     square(int64_t v) { return v * v; }
inline long double square(long double v) { return v * v; }
inline long double square(wide_pair v) { return v.re * v.re + v.im * v.im; }
inline int64_t     size(int64_t v) { return v < 0 ? -v : v; }
inline long double size(long double v) { return fabsl(v); }
inline long double size(wide_pair v) { return sqrtl(square(v)); }

template <class E> auto norm_inf(const std::vector<E>& elements) {
  decltype(size(E{})) largest = 0;
  for (const E& e : elements)
    if (size(e) > largest || size(e) != size(e)) largest = size(e);
  return largest;
}
template <class E> auto norm_l1(const std::vector<E>& elements) {
  decltype(size(E{})) sum = 0;
  for (const E& e : elements) sum += size(e);
  return sum;
}
template <class E> auto norm_l2_square(const std::vector<E>& elements) {
  decltype(size(E{})) sum = 0;
  for (const E& e : elements) sum += square(e);
  return sum;
}
template <class E> long double norm_l2(const std::vector<E>& elements) { return sqrtl(norm_l2_square(elements)); }

// Norms cut off what the scale factor shifts out, all of it from a factor of the result's width on.
template <class D> D norm_scaled(int64_t norm, int s) {
  return s >= int(sizeof(D) * 8) ? D(0) : scaled<D>(exact(norm), s, ties::no_rounding);
}

// The root of a sum of squares, in double, rounded to the nearest integer.
inline Tav32s norm_root_scaled(int64_t square, int s) {
  const Tav64f root = ldexp(sqrt(Tav64f(square)), s < -200 ? 200 : s > 200 ? -200 : -s);
  return root > 2147483647.0 ? 2147483647 : Tav32s(nearbyint(root));
}

}  // namespace oracle
