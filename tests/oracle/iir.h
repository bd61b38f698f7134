// IIR filters of arbitrary order as they are defined, in long double, with a bound for what a filter in another
// precision may differ by.
//
// Rounding errors come in at each output and are amplified as the filter amplifies an input of its recursive part: by
// the impulse response of 1/A. What comes in is a few units in the last place of all magnitudes that meet there, also
// of those up to three outputs earlier, weighted as a look-ahead weights them.
#pragma once
#include <math.h>
#include <stdint.h>

#include <algorithm>
#include <complex>
#include <vector>

namespace oracle {

using wide_complex = std::complex<long double>;

inline wide_complex product(wide_complex a, wide_complex b) {  // std's has a slow way for NaNs
  return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}
inline long double size_of(wide_complex v) { return fabsl(v.real()) + fabsl(v.imag()); }  // up to 1.5 times too large

struct bounded {
  wide_complex value;
  long double  error;
};

class iir {
 public:
  // Taps b[0] ... b[N], a[0] ... a[N]; epsilon of the filter's precision.
  iir(const std::vector<wide_complex>& taps, long double epsilon)
      : order_(taps.size() / 2 - 1), unit_(4 * epsilon), delay_(order_ + 1) {
    const wide_complex leading = taps[order_ + 1];
    for (size_t k = 0; k <= order_; ++k) b_.push_back(taps[k] / leading), a_.push_back(taps[order_ + 1 + k] / leading);
    for (size_t j = 0; j < 3; ++j) {  // as a look-ahead's weights, of magnitudes
      long double g = j < order_ ? size_of(a_[j + 1]) : 0;
      for (size_t t = 0; t < j; ++t) g += (t < order_ ? size_of(a_[t + 1]) : 0) * weights_[j - 1 - t];
      weights_[j] = g;
    }
  }

  void set_delay(const std::vector<wide_complex>& d) { std::copy(d.begin(), d.end(), delay_.begin()), past_ = d; }

  bounded next(wide_complex x) {
    const wide_complex y = product(b_[0], x) + delay_[0];
    for (size_t i = 0; i < order_; ++i) delay_[i] = product(b_[i + 1], x) - product(a_[i + 1], y) + delay_[i + 1];
    x_.push_back(x), y_.push_back(y);

    const size_t n = y_.size() - 1;
    sizes_.push_back(magnitude(n));
    long double local = sizes_[n];
    for (size_t t = 1; t <= 3 && t <= n; ++t) local += weights_[t - 1] * sizes_[n - t];
    local_.push_back(unit_ * local);
    extend_response(n);
    long double error = 0;
    for (size_t m = 0; m <= n; ++m) error += response_sizes_[n - m] * local_[m];
    errors_.push_back(error);
    return {y, error};
  }

  // Entry i of the delay line now.
  bounded delay(size_t i) const {
    long double  error = 0;
    const size_t n     = y_.size();
    for (size_t k = i + 1; k <= order_; ++k)
      if (n + i >= k && n + i - k < n)
        error += size_of(a_[k]) * errors_[n + i - k]
                 + unit_ * (size_of(b_[k]) * size_of(x_[n + i - k]) + size_of(a_[k]) * size_of(y_[n + i - k]));
    if (n + i < past_.size()) error += unit_ * size_of(past_[n + i]);
    return {delay_[i], error};
  }

 private:
  // All that meets in output n.
  long double magnitude(size_t n) const {
    long double sum = n < past_.size() ? size_of(past_[n]) : 0;
    for (size_t k = 0; k <= order_ && k <= n; ++k) {
      sum += size_of(b_[k]) * size_of(x_[n - k]);
      sum += size_of(a_[k]) * size_of(y_[n - k]);
    }
    return sum;
  }

  void extend_response(size_t n) {
    wide_complex h = n == 0 ? 1 : 0;
    for (size_t k = 1; k <= order_ && k <= n; ++k) h -= product(a_[k], response_[n - k]);
    response_.push_back(h), response_sizes_.push_back(size_of(h));
  }

  size_t                    order_;
  long double               unit_, weights_[3] = {};
  std::vector<wide_complex> b_, a_, delay_, past_, x_, y_, response_;
  std::vector<long double>  sizes_, local_, errors_, response_sizes_;
};

// The pure integer filter of one sample: taps of 16 bits, a[0] an exponent. All modulo 2^32.
class integer_iir {
 public:
  integer_iir(const std::vector<int16_t>& taps, const std::vector<int32_t>& delay)
      : order_(taps.size() / 2 - 1), taps_(taps), delay_(delay) {}

  int16_t next(int16_t x) {
    const int16_t* const a     = taps_.data() + order_ + 1;
    const int            shift = a[0] % 32;
    const int32_t        v     = wrapped(int64_t(taps_[0]) * x + delay_[0]);
    const int64_t        half  = shift == 0 ? int64_t(1) << 31 : int64_t(1) << (shift - 1);
    const int64_t        y     = wrapped(v + ((v >> shift) & 1) + half - 1) >> shift;
    for (size_t i = 0; i < order_; ++i)
      delay_[i] = wrapped(int64_t(taps_[i + 1]) * x - a[i + 1] * y + (i + 1 < order_ ? delay_[i + 1] : 0));
    return int16_t(y > 32767 ? 32767 : y < -32768 ? -32768 : y);
  }
  const std::vector<int32_t>& delay() const { return delay_; }

 private:
  static int32_t wrapped(int64_t v) { return int32_t(uint32_t(uint64_t(v))); }

  size_t               order_;
  std::vector<int16_t> taps_;
  std::vector<int32_t> delay_;
};

}  // namespace oracle
