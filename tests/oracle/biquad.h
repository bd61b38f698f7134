// Cascades of biquad sections in long double, by the definition, and how far rounding may take a result from it.
#pragma once
#include <math.h>

#include <vector>

namespace oracle {

struct wide {
  long double re = 0, im = 0;
};  // real numbers have no imaginary part

inline wide        operator+(wide a, wide b) { return {a.re + b.re, a.im + b.im}; }
inline wide        operator-(wide a, wide b) { return {a.re - b.re, a.im - b.im}; }
inline wide        operator*(wide a, wide b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }
inline long double magnitude(wide a) { return hypotl(a.re, a.im); }
inline wide        operator/(wide a, wide b) {
         const long double size = b.re * b.re + b.im * b.im;
         return a * wide{b.re / size, -b.im / size};
}

// A section in transposed direct form 2; its taps divided by a0.
struct section {
  wide b0, b1, b2, a1, a2;
  wide d0 = {}, d1 = {};

  wide next(wide x) {
    const wide y = b0 * x + d0;
    d0           = b1 * x - a1 * y + d1;
    d1           = b2 * x - a2 * y;
    return y;
  }
};

// Of six taps: b0, b1, b2, a0, a1, a2.
inline section section_of(const wide* t) { return {t[0] / t[3], t[1] / t[3], t[2] / t[3], t[4] / t[3], t[5] / t[3]}; }

struct cascade {
  std::vector<section> sections;

  wide next(wide x) {
    for (section& s : sections) x = s.next(x);
    return x;
  }
};

// The sum of the magnitudes of a section's response to an impulse, with and without its numerator.
inline long double gain(section s, bool numerator, int n) {
  if (!numerator) s.b0 = {1}, s.b1 = s.b2 = {};
  s.d0 = s.d1     = {};
  long double sum = 0;
  for (int i = 0; i < n; ++i) sum += magnitude(s.next({i == 0 ? 1.0L : 0}));
  return sum;
}

// How far outputs of a cascade may be off after n samples, whose magnitudes stay below `peak`: each output that is
// formed from four inputs and two outputs carries an error of an epsilon of the sum of its terms, which the recursion
// then amplifies. Errors do not all add up: a quarter of the worst case is more than occurs.
inline long double error_bound(const cascade& c, long double peak, int n, long double epsilon) {
  long double error = 0;
  for (const section& s : c.sections) {
    const long double b = magnitude(s.b0) + magnitude(s.b1) + magnitude(s.b2), a1 = magnitude(s.a1),
                      a2 = magnitude(s.a2), v = a1 * a1 + a2, w = (a2 + v) * a1, last = a2 * v + a1 * w;
    const long double of_inputs = b * (1 + a1 + v + w), of_outputs = last + a2 * w + a2;
    const long double out = gain(s, true, n) * peak;
    error = gain(s, true, n) * error + gain(s, false, n) * epsilon * (of_inputs * peak + of_outputs * out) / 4;
    peak  = out;
  }
  return error;
}

}  // namespace oracle
