// The Fourier transform in long double: a plain recursion over even and odd samples, and the measure of an error.
#pragma once
#include <math.h>

#include <complex>
#include <limits>
#include <vector>

namespace oracle {

using wide_complex = std::complex<long double>;

// exp(2 pi i k / n), n a power of two. The roots of the greatest n asked for are kept: they take most of the time.
inline wide_complex root_of_unity(size_t k, size_t n) {
  static std::vector<wide_complex> roots;
  if (roots.size() < n) {
    roots.resize(n);
    for (size_t i = 0; i < n; ++i) {
      const long double angle = 6.283185307179586476925286766559L * (long double)i / (long double)n;
      roots[i]                = {cosl(angle), sinl(angle)};
    }
  }
  return roots[k % n * (roots.size() / n)];
}

// X[k] = sum of x[m] exp(sign 2 pi i m k / n)
inline void transform(std::vector<wide_complex>& x, int sign) {
  const size_t n = x.size();
  if (n == 1) return;
  std::vector<wide_complex> even(n / 2), odd(n / 2);
  for (size_t i = 0; i < n / 2; ++i) even[i] = x[2 * i], odd[i] = x[2 * i + 1];
  transform(even, sign);
  transform(odd, sign);
  for (size_t k = 0; k < n / 2; ++k) {
    const wide_complex w = root_of_unity(k, n), v = odd[k];
    const long double  im = sign < 0 ? -w.imag() : w.imag();
    const wide_complex turned(v.real() * w.real() - v.imag() * im, v.real() * im + v.imag() * w.real());
    x[k]         = even[k] + turned;
    x[k + n / 2] = even[k] - turned;
  }
}

// Norm of the difference, relative to that of what is right.
template <class C> long double relative_error(const std::vector<C>& is, const std::vector<wide_complex>& right) {
  long double error = 0, size = 0;
  for (size_t i = 0; i < right.size(); ++i) {
    error += std::norm(right[i] - wide_complex(is[i].re, is[i].im));
    size += std::norm(right[i]);
  }
  return sqrtl(error / size);
}

// What a transform of 2^order points may differ by.
template <class T> long double error_limit(int order) {
  return 0.5L * std::numeric_limits<T>::epsilon() * sqrtl(order < 1 ? 1 : order);
}

}  // namespace oracle
