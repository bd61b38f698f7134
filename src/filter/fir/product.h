// The product of two spectra: complex ones, and those of real samples in Perm order, whose first two slots are the real
// bins 0 and N/2.
#pragma once
#include "filter/fir/samples.h"
#include "vector/arithmetic_ops.h"

namespace tav::TAV_VARIANT::fir {

// a *= b over whole registers, on 16-byte boundaries.
template <class P> void multiply_pairs(P* a, const P* b, size_t slots) {
  using pair = std::conditional_t<sizeof(P) == 4, Tav32fc, Tav64fc>;
#pragma GCC unroll 2
  for (size_t i = 0; i < slots; i += lanes<P>)
    store<access::aligned>(
        a + i, product_of<pair>::many(load<access::aligned, lanes<P>>(a + i), load<access::aligned, lanes<P>>(b + i)));
}

template <class T> void multiply_spectra(T* a, const T* b, size_t points) {
  if constexpr (is_complex<T>) {
    multiply_pairs(parts_of(a), parts_of(b), points * 2);
  } else {
    const T first = a[0] * b[0], middle = a[1] * b[1];
    multiply_pairs(a, b, points);
    a[0] = first;
    a[1] = middle;
  }
}

}  // namespace tav::TAV_VARIANT::fir
