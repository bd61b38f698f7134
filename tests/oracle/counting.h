// Orders, crossings and running updates by definition.
#pragma once
#include <math.h>
#include <stdint.h>

#include <algorithm>
#include <type_traits>
#include <vector>

#include "tavs.h"

namespace oracle {

// The smallest n with |v| < 2^n, and 0 for 0.
template <class T> int order(T v) {
  if constexpr (std::is_integral_v<T>) {
    int n = 0;
    while (std::abs(int64_t(v)) >> n != 0) ++n;
    return n;
  } else {
    int n = 0;
    if (isinf(v)) return sizeof(T) == 4 ? 129 : 1025;
    frexp(static_cast<long double>(v), &n);
    return n;
  }
}

// Of the numbers of an array; 0 if there is none but 0.
template <class T> int max_order(const std::vector<T>& src) {
  T largest = 0;
  for (T v : src)
    if (std::abs(static_cast<long double>(v)) > std::abs(static_cast<long double>(largest))) largest = v;
  return order(largest);
}

// Crossings of zero in one of the three modes. Any product of two singles is a double other than 0.
template <class T> uint64_t zero_crossings(const std::vector<T>& src, int mode) {
  const auto sign     = [](T v) { return int(v > 0) - int(v < 0); };
  const auto negative = [](T v) { return std::signbit(Tav64f(v)); };
  uint64_t   count    = 0;
  for (size_t n = 1; n < src.size(); ++n) {
    const T a = src[n - 1], b = src[n];
    if (mode == 0) count += Tav64f(a) * Tav64f(b) < 0;
    if (mode == 1) count += negative(a) != negative(b);
    if (mode == 2) count += uint64_t(std::abs(sign(b) - sign(a)));
  }
  return mode == 2 ? count / 2 : count;
}

// An integer of any size: digits of 32 bits, and above them one with the sign.
class unbounded {
 public:
  explicit unbounded(Tav32s v) : top_(v) {}

  // *this = *this * factor + addend, with a factor below 2^17 and an addend below 2^47 in magnitude.
  void multiply_add(int64_t factor, int64_t addend) {
    for (uint32_t& d : digits_) {
      const int64_t sum = d * factor + addend;
      d                 = uint32_t(sum & 0xFFFFFFFF);
      addend            = sum >> 32;
    }
    top_ = top_ * factor + addend;
    if (top_ != int32_t(top_)) digits_.push_back(uint32_t(top_ & 0xFFFFFFFF)), top_ >>= 32;
  }
  Tav32s saturated() const {
    if (digits_.empty()) return Tav32s(top_);
    const int64_t above = top_ < 0 ? -1 : 0;
    bool          fits  = top_ == above && int32_t(digits_[0]) >> 31 == above;
    for (size_t k = 1; k < digits_.size(); ++k) fits &= digits_[k] == uint32_t(above);
    return fits ? Tav32s(digits_[0]) : above ? INT32_MIN : INT32_MAX;
  }

 private:
  std::vector<uint32_t> digits_;
  int64_t               top_;
};

// s = alpha s + (1 - alpha) value(x), for all elements.
template <class Value> Tav32s updated(const std::vector<Tav16s>& src, Tav32s s, Tav16s alpha, const Value& value) {
  unbounded exact(s);
  for (Tav16s x : src) exact.multiply_add(alpha, (1 - int64_t(alpha)) * value(x));
  return exact.saturated();
}

}  // namespace oracle
