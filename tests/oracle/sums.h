// Sums, means and deviations by definition: of integers as exact quotients, of floats in pairs of extended numbers.
#pragma once
#include <math.h>

#include <vector>

#include "oracle/scale.h"
#include "tavs.h"

namespace oracle {

enum class direction { nearest, down, up, to_zero };

struct quotient {
  exact whole, rest;
};

// By long hand, of numbers that are not negative.
inline quotient divided_by(exact a, exact b) {
  quotient q{};
  for (int bit = 126; bit >= 0; --bit) {
    const uint64_t word = bit >= 64 ? uint64_t(a.high) >> (bit - 64) : a.low >> bit;
    q.rest              = q.rest + q.rest + exact(int(word & 1));
    q.whole             = q.whole + q.whole;
    if (!(q.rest < b)) q.rest = q.rest - b, q.whole = q.whole + exact(1);
  }
  return q;
}

inline exact shifted_up(exact v, int by) {
  for (; by > 0; --by) v = v + v;
  return v;
}

// num / den * 2^-s, for |num| up to 2^62 and den below 2^24.
template <class D> D rounded_quotient(int64_t num, int64_t den, int s, direction how) {
  const int      down = s > 100 ? 100 : s > 0 ? s : 0, up = s < -62 ? 62 : s < 0 ? -s : 0;
  const bool     minus = num < 0;
  const exact    of    = shifted_up(den, down);
  const quotient q     = divided_by(shifted_up(magnitude(exact(num)), up), of);
  const exact    twice = q.rest + q.rest;
  bool           away  = false;
  if (how == direction::nearest)
    away = of < twice || (of == twice && q.whole.odd());
  else if (how != direction::to_zero)
    away = !(q.rest == exact(0)) && minus == (how == direction::down);
  const exact size = away ? q.whole + exact(1) : q.whole;
  return saturated<D>(minus ? -size : size);
}

template <class T> int64_t sum_of(const std::vector<T>& v) {
  int64_t sum = 0;
  for (T x : v) sum += x;
  return sum;
}

// A sum of extended numbers and what was lost in it.
class long_sum {
 public:
  void add(long double v) {
    const long double total = sum_ + v, back = total - sum_;
    lost_ += (sum_ - (total - back)) + (v - back);
    sum_ = total;
  }
  long double value() const { return sum_ + lost_; }

 private:
  long double sum_ = 0, lost_ = 0;
};

struct float_summary {
  long double sum, sizes, mean, std_dev;  // sizes: the sum of the magnitudes
};

template <class T> float_summary summary_of(const std::vector<T>& v) {
  long_sum sum, sizes, squares;
  for (T x : v) sum.add(x), sizes.add(fabsl(x));
  const long double n = v.size(), mean = sum.value() / n;
  for (T x : v) squares.add((x - mean) * (x - mean));
  return {sum.value(), sizes.value(), mean, n < 2 ? 0 : sqrtl(squares.value() / (n - 1))};
}

// The deviation of integers times 2^-s, before it is rounded; far scales are cut to where they saturate or vanish.
inline long double scaled_deviation(const std::vector<Tav16s>& v, int s) {
  int64_t sum = 0, squares = 0;
  for (Tav16s x : v) sum += x, squares += int64_t(x) * x;
  const exact       n = v.size(), over = exact(squares) * n - exact(sum) * exact(sum);
  const long double variance =
      (ldexpl((long double)(over.high), 64) + over.low) / ((long double)(v.size()) * (v.size() - 1));
  return ldexpl(sqrtl(variance), s > 200 ? -200 : s < -200 ? 200 : -s);
}

}  // namespace oracle
