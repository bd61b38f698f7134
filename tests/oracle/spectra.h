// Packed spectra of n real values by definition: where each X[k] stands, the whole spectrum, products of two.
#pragma once
#include <vector>

#include "oracle/complex.h"

namespace oracle {

enum class form { ccs, pack, perm };

inline size_t slots_of(form f, int n) { return size_t(f == form::ccs ? n / 2 * 2 + 2 : n); }

// The slots of X[k] for k from 0 to n / 2. A real value has no slot for an imaginary part, but in CCS form.
struct place {
  int  re, im;
  bool is_real() const { return im < 0; }
};

inline place place_of(form f, int n, int k) {
  constexpr int none    = -1;
  const bool    is_last = 2 * k == n;
  if (f == form::ccs) return {2 * k, 2 * k + 1};
  if (k == 0) return {0, none};
  if (f == form::pack || n % 2 != 0) return {2 * k - 1, is_last ? none : 2 * k};
  return is_last ? place{1, none} : place{2 * k, 2 * k + 1};
}

template <class C, class T> C value_of(const std::vector<T>& slots, place p) {
  return {slots[size_t(p.re)], p.is_real() ? T(0) : slots[size_t(p.im)]};
}

template <class C, class T> std::vector<C> whole_spectrum(form f, const std::vector<T>& slots, int n) {
  std::vector<C> all;
  for (int k = 0; k < n; ++k)
    all.push_back(k <= n / 2 ? value_of<C>(slots, place_of(f, n, k))
                             : conjugate(value_of<C>(slots, place_of(f, n, n - k))));
  return all;
}

// dst becomes real(a, b) where the spectra are real, pair(a, b) elsewhere.
template <class C, class T, class Real, class Pair>
void multiply(form f, const std::vector<T>& a, const std::vector<T>& b, std::vector<T>& dst, const Real& real,
              const Pair& pair) {
  const int n = int(dst.size());
  for (int k = 0; k <= n / 2; ++k) {
    const place p = place_of(f, n, k);
    if (p.is_real()) {
      dst[size_t(p.re)] = real(a[size_t(p.re)], b[size_t(p.re)]);
    } else {
      const C v         = pair(value_of<C>(a, p), value_of<C>(b, p));
      dst[size_t(p.re)] = v.re, dst[size_t(p.im)] = v.im;
    }
  }
}

// a times the conjugate of b.
template <class C> C times_conjugate(C a, C b) {
  using parts = arithmetic<decltype(C::re)>;
  return {parts::add(parts::mul(a.re, b.re), parts::mul(a.im, b.im)),
          parts::sub(parts::mul(a.re, b.im), parts::mul(a.im, b.re))};
}

// r * 2^-s, not above it, saturated. r is below 2^40 in magnitude.
inline Tav16s shifted_16s(int64_t r, int s) {
  if (s <= 0) return scaled<Tav16s>(r, s);
  if (s > 40) return r < 0 ? -1 : 0;
  const int64_t unit = int64_t(1) << s, toward_zero = r / unit;
  return saturated<Tav16s>(toward_zero * unit > r ? toward_zero - 1 : toward_zero);
}

inline Tav16sc shifted_product(Tav16sc a, Tav16sc b, int s) {
  const int64_t ar = a.re, ai = a.im, br = b.re, bi = b.im;
  return {shifted_16s(ar * br - ai * bi, s), shifted_16s(ar * bi + ai * br, s)};
}

}  // namespace oracle
