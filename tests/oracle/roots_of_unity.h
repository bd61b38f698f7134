// Roots of unity in long double for transforms of any length: the product of a coarse and a fine one, so that those of
// 2^26 points take little memory.
#pragma once
#include <stdint.h>

#include "oracle/fft.h"

namespace oracle {

inline wide_complex product(const wide_complex& a, const wide_complex& b) {  // without the library's care for NaNs
  return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

class roots_of_unity {
 public:
  explicit roots_of_unity(int order) : fine_bits_(order / 2), mask_((uint64_t(1) << order) - 1) {
    const uint64_t n = mask_ + 1, fine = uint64_t(1) << fine_bits_;
    for (uint64_t i = 0; i < n / fine; ++i) coarse_.push_back(root(i * fine, n));
    for (uint64_t i = 0; i < fine; ++i) fine_.push_back(root(i, n));
  }

  // exp(2 pi i k / n), for any k
  wide_complex operator()(uint64_t k) const {
    k &= mask_;
    return product(coarse_[size_t(k >> fine_bits_)], fine_[size_t(k & ((uint64_t(1) << fine_bits_) - 1))]);
  }

 private:
  static wide_complex root(uint64_t i, uint64_t n) {
    const long double angle = 6.283185307179586476925286766559L * (long double)i / (long double)n;
    return {cosl(angle), sinl(angle)};
  }

  int                       fine_bits_;
  uint64_t                  mask_;
  std::vector<wide_complex> coarse_, fine_;
};

}  // namespace oracle
