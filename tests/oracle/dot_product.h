// Sums of products by definition: of integers exactly, of floats in extended precision, with the sum of the magnitudes
// of all terms, which bounds the error of any order of summation.
#pragma once
#include <math.h>

#include <vector>

#include "oracle/arithmetic.h"
#include "oracle/convert.h"
#include "oracle/scale.h"

namespace oracle {

struct exact_pair {
  exact re, im;
};

inline exact product(int64_t a, int64_t b) { return exact(a * b); }  // of at most 32 bits each

template <class A, class B> auto dot(const std::vector<A>& a, const std::vector<B>& b) {
  if constexpr (is_complex<B>) {
    exact_pair sum;
    for (size_t i = 0; i < a.size(); ++i) {
      if constexpr (is_complex<A>) {
        sum.re = sum.re + product(a[i].re, b[i].re) - product(a[i].im, b[i].im);
        sum.im = sum.im + product(a[i].re, b[i].im) + product(a[i].im, b[i].re);
      } else {
        sum.re = sum.re + product(a[i], b[i].re), sum.im = sum.im + product(a[i], b[i].im);
      }
    }
    return sum;
  } else {
    exact sum;
    for (size_t i = 0; i < a.size(); ++i) sum = sum + product(a[i], b[i]);
    return sum;
  }
}

template <class D> D scaled_dot(exact sum, int s) { return scaled<D>(sum, s); }
template <class D> D scaled_dot(const exact_pair& sum, int s) {
  using part = decltype(D::re);
  return {scaled<part>(sum.re, s), scaled<part>(sum.im, s)};
}

// Sums of words are scaled down by 31 places at the most.
template <class D, class Sum> D scaled_word_dot(const Sum& sum, int s) { return scaled_dot<D>(sum, s > 31 ? 31 : s); }

// They fit 64 bits, and extended precision.
inline Tav64s  whole(exact sum) { return Tav64s(sum.low); }
inline Tav64sc whole(const exact_pair& sum) { return {whole(sum.re), whole(sum.im)}; }

// The detour through memory makes 32-bit code round: gcc 12 keeps integers on their way to floats in full.
inline Tav32f single_of(Tav64s sum, mode how) {
  volatile const long double in_memory = static_cast<long double>(sum);
  return rounded_to<Tav32f>(in_memory, how);
}
inline Tav32f  single_of(exact sum, mode how) { return single_of(whole(sum), how); }
inline Tav32fc single_of(const exact_pair& sum, mode how) { return {single_of(sum.re, how), single_of(sum.im, how)}; }

// A sum and the sum of its terms' magnitudes.
struct bounded_sum {
  long double sum = 0, magnitudes = 0;

  void add(long double a, long double b) { sum += a * b, magnitudes += fabsl(a * b); }
};
struct bounded_pair {
  bounded_sum re, im;
};

template <class A, class B> bounded_pair float_dot(const std::vector<A>& a, const std::vector<B>& b) {
  bounded_pair sum;
  for (size_t i = 0; i < a.size(); ++i) {
    if constexpr (is_complex<A>) {
      sum.re.add(a[i].re, b[i].re), sum.re.add(a[i].im, -b[i].im);
      sum.im.add(a[i].re, b[i].im), sum.im.add(a[i].im, b[i].re);
    } else if constexpr (is_complex<B>) {
      sum.re.add(a[i], b[i].re), sum.im.add(a[i], b[i].im);
    } else {
      sum.re.add(a[i], b[i]);
    }
  }
  return sum;
}

}  // namespace oracle
