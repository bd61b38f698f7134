// Sums, differences and products of two elements by definition: integers in 64 bits, singles in doubles and rounded
// once (a double holds what that rounding needs), doubles by the operator itself.
#pragma once
#include <math.h>

#include <limits>
#include <type_traits>

#include "tavs.h"

namespace oracle {

template <class T> constexpr bool is_complex = requires(T v) { v.re; };

// D from a wider value: integers saturate, floats are rounded.
template <class D, class Wide> D narrowed(Wide wide) {
  if constexpr (std::is_integral_v<D>) {
    using limits = std::numeric_limits<D>;
    return D(wide < int64_t(limits::min()) ? limits::min() : wide > int64_t(limits::max()) ? limits::max() : D(wide));
  } else {
    return D(wide);
  }
}

template <class T> using wide = std::conditional_t<std::is_integral_v<T>, int64_t, Tav64f>;

// Results of type D. Sources convert to it first if it is a float.
template <class D> struct arithmetic {
  template <class A, class B> static D add(A a, B b) {
    if constexpr (is_complex<D>)
      return {part::add(a.re, b.re), part::add(a.im, b.im)};
    else
      return narrowed<D>(wide<D>(a) + wide<D>(b));
  }
  template <class A, class B> static D sub(A a, B b) {  // the first from the second
    if constexpr (is_complex<D>)
      return {part::sub(a.re, b.re), part::sub(a.im, b.im)};
    else
      return narrowed<D>(wide<D>(b) - wide<D>(a));
  }
  template <class A, class B> static D mul(A a, B b) {
    if constexpr (is_complex<A>)
      return {part::sub(part::mul(a.im, b.im), part::mul(a.re, b.re)),
              part::add(part::mul(a.re, b.im), part::mul(a.im, b.re))};
    else if constexpr (is_complex<D>)
      return {part::mul(a, b.re), part::mul(a, b.im)};
    else
      return narrowed<D>(wide<D>(a) * wide<D>(b));
  }

 private:
  template <class T, bool Complex> struct part_of { using type = T; };
  template <class T> struct part_of<T, true> { using type = decltype(T::re); };
  using part = arithmetic<typename part_of<D, is_complex<D>>::type>;
};

template <class T> bool equals(T val, int n) {
  if constexpr (is_complex<T>)
    return val.re == n && val.im == 0;
  else
    return val == n;
}

template <class T> T magnitude(T a) {
  if constexpr (std::is_integral_v<T>)
    return narrowed<T>(a < 0 ? -int64_t(a) : int64_t(a));
  else
    return std::signbit(a) ? -a : a;
}

// A float times a constant as a 16-bit integer, to nearest: limited, then rounded; a NaN gives the upper limit.
inline Tav16s limited_product(Tav32f a, Tav32f val, int s) {
  const int    clamped = s < -127 ? -127 : s > 126 ? 126 : s;
  const Tav32f factor  = Tav32f(ldexp(Tav64f(val), -clamped));
  const Tav32f product = Tav32f(Tav64f(a) * Tav64f(factor));
  if (product != product || product > 32767) return 32767;
  return Tav16s(product < -32768 ? -32768 : nearbyint(Tav64f(product)));
}

// The same in the current rounding mode, not limited before: what exceeds 32 bits is the lowest integer.
inline Tav16s packed_product(Tav32f a, Tav32f val) {
  volatile const Tav32f x = a, y = val;  // multiplied in the mode that is set now
  const Tav64f          product = Tav32f(x * y);
  if (!(product > -2147483649.0 && product < 2147483648.0)) return -32768;
  volatile const Tav64f no_fraction = product < 0 ? -0x1p52 : 0x1p52;  // beside it a double has no room for one
  volatile const Tav64f moved       = product + no_fraction;
  return narrowed<Tav16s>(int64_t(moved - no_fraction));
}

}  // namespace oracle
