// Operands at which a division goes wrong, if it does, and what the tests of divisions share.
#pragma once
#include <algorithm>

#include "harness/faults.h"
#include "harness/layouts.h"
#include "oracle/div.h"

namespace test {

template <class A, class B> struct operands {
  std::vector<A> divisors;
  std::vector<B> dividends;

  void add(A divisor, B dividend) { divisors.push_back(divisor), dividends.push_back(dividend); }
};

// A copy of v with a sign drawn if T has one.
template <class T> T with_sign(int64_t v, source_of_data& data) {
  return T(std::numeric_limits<T>::is_signed && data.below(2) ? -v : v);
}

// Quotients that lie as near to a tie at factor s <= 0 as any with that divisor: for each odd d, n * 2^-s is one half
// more or less than a half-integer multiple of d. A half of d's residues is (d + 1) / 2.
template <class T> void add_near_ties_up(operands<T, T>& o, int s, source_of_data& data) {
  constexpr int64_t most = std::numeric_limits<T>::max();
  for (int64_t d = 1; d <= most; d += 2) {
    const int64_t half = (d + 1) / 2;
    int64_t       n    = half % d;
    for (int k = 0; k < -s; ++k) n = n * half % d;
    o.add(with_sign<T>(d, data), with_sign<T>(n, data));
    o.add(with_sign<T>(d, data), with_sign<T>(d - n, data));
  }
}

// Ties at factor s, and operands next to them.
template <class T> void add_ties(operands<T, T>& o, int s, source_of_data& data) {
  constexpr int64_t most = std::numeric_limits<T>::max();
  const int64_t     up = s < 0 ? -s : 0, down = s > 0 ? s : 0;
  for (int i = 0; i < 20000; ++i) {  // n * 2^(up + 1) = odd * d * 2^down
    const int64_t unit = int64_t(1) << (up + 1), odd = 2 * data.below(1 << data.below(14)) + 1,
                  m = 1 + data.below(1 << data.below(14));
    int64_t n = odd * m << down, d = m * unit;
    if (n % 2 == 0 && d % 2 == 0) n /= 2, d /= 2;
    n += data.below(3) - 1;
    if (n >= 0 && n <= most && d <= most) o.add(with_sign<T>(d, data), with_sign<T>(n, data));
  }
}

template <class A, class B> void add_drawn(operands<A, B>& o, size_t count, source_of_data& data) {
  for (size_t i = 0; i < count; ++i) o.add(data.value<A>(), data.value<B>());
}

// All dividends of 16 bits against a few divisors.
template <class T> void add_all_dividends(operands<T, T>& o, source_of_data& data) {
  for (T divisor : {T(2), T(data.value<T>() | 1), T(data.bits()), std::numeric_limits<T>::min()})
    for (int n = 0; n < 65536; ++n) o.add(divisor, T(n));
}

template <class T> operands<T, T> hard_operands(int s, source_of_data& data) {
  operands<T, T> o;
  if constexpr (sizeof(T) == 1) {
    for (int n = 0; n < 65536; ++n) o.add(T(n), T(n >> 8));
  } else {
    const bool near = s > -40 && s < 32;  // factors farther out know no ties
    if (near && s <= 0) add_near_ties_up(o, s, data);
    if (near) add_ties(o, s, data);
    add_drawn(o, 20000, data);
  }
  return o;
}

// Every factor in the range, the next ones outside, and the farthest.
inline std::vector<int> factors_of(const oracle::division& range) {
  std::vector<int> all{std::numeric_limits<int>::min(), -1000, 1000, std::numeric_limits<int>::max()};
  for (int s = range.low - 2; s <= range.high + 2; ++s) all.push_back(s);
  return all;
}

inline TavStatus status_of_division(bool any_zero) { return any_zero ? tavStatusWarnDivideByZero : tavStatusOk; }

template <class T> bool is_zero(T v) {
  if constexpr (requires { v.re; })
    return v.re == 0 && v.im == 0;
  else
    return v == 0;
}
template <class T> bool any_zero(const std::vector<T>& v) {
  return std::any_of(v.begin(), v.end(), [](T x) { return is_zero(x); });
}

// Calls that end as want(divisor, dividend) says, at all elements of o; call(divisors, dividends, dst, len).
template <class D, class A, class B, class Call, class Want>
void expect_quotients(const operands<A, B>& o, const Call& call_it, const Want& want) {
  std::vector<D> dst(o.divisors.size()), expected(dst.size());
  for (size_t i = 0; i < dst.size(); ++i) expected[i] = want(o.divisors[i], o.dividends[i]);
  ASSERT_EQ(call_it(o.divisors.data(), o.dividends.data(), dst.data(), int(dst.size())),
            status_of_division(any_zero(o.divisors)));
  if (const long i = first_difference(dst, expected); i >= 0) FAIL() << "first wrong element: " << i;
}

// The same over all layouts, apart and in place; call(divisors, dividends, dst, len) or call(divisors, dst, len).
template <auto* Export, class A, class B, class D, class Call, class Want>
void check_division_layouts(const Call& call_it, const Want& want) {
  check_layouts<Export, D, A, B>(
      lengths_around({200}, 70), [&](D* dst, int len, const A* b, const B* a) { return call_it(b, a, dst, len); },
      [&](std::vector<D>& dst, const std::vector<A>& b, const std::vector<B>& a) {
        for (size_t i = 0; i < dst.size(); ++i) dst[i] = want(b[i], a[i]);
        return status_of_division(any_zero(b));
      });
}

template <auto* InPlace, class A, class D, class Call, class Want>
void check_division_in_place(const Call& call_it, const Want& want) {
  check_layouts<InPlace, D, A>(
      lengths_around({200}, 70), [&](D* dst, int len, const A* b) { return call_it(b, dst, len); },
      [&](std::vector<D>& dst, const std::vector<A>& b) {
        for (size_t i = 0; i < dst.size(); ++i) dst[i] = want(b[i], dst[i]);
        return status_of_division(any_zero(b));
      });
}

// Runs `check` in the caller's modes that differ most from what divisions need: every rounding mode, no exception
// masked.
template <class Check> void in_hostile_modes(const Check& check) {
  const unsigned callers = _mm_getcsr();
  for (unsigned rounding : {0x0000u, 0x2000u, 0x4000u, 0x6000u}) {
    SCOPED_TRACE(testing::Message() << std::hex << rounding);
    _mm_setcsr(rounding);
    check();
    _mm_setcsr(callers);
  }
}

}  // namespace test
