// Checks of conversions against the definition of one element: layouts, the caller's rounding modes, values and factors
// at which rounding and saturation change.
#pragma once
#include <limits.h>
#include <math.h>

#include "harness/forms.h"
#include "harness/layouts.h"
#include "oracle/convert.h"

namespace test {

inline constexpr oracle::mode all_modes[] = {oracle::mode::nearest, oracle::mode::down, oracle::mode::up,
                                             oracle::mode::to_zero};

// Runs call(dst, len) over the sources and compares; want(source).
template <class D, class S, class Call, class Want>
void expect_converted(const std::vector<S>& src, const Call& call_it, const Want& want) {
  std::vector<D> dst(src.size()), expected(src.size());
  for (size_t i = 0; i < src.size(); ++i) expected[i] = want(src[i]);
  ASSERT_EQ(call_it(src.data(), dst.data(), int(src.size())), tavStatusOk);
  if (const long i = first_difference(dst, expected); i >= 0)
    FAIL() << "element " << i << ", " << testing::PrintToString(src[size_t(i)]) << ": "
           << testing::PrintToString(dst[size_t(i)]) << ", not " << testing::PrintToString(expected[size_t(i)]);
}

// The layouts, and on itself where source and destination have one width.
template <auto* Export, class D, class S, class Call, class Want>
void check_converted_layouts(const std::set<int>& lengths, const Call& call_it, const Want& want) {
  const auto each = [&](std::vector<D>& dst, const std::vector<S>& src) {
    for (size_t i = 0; i < dst.size(); ++i) dst[i] = want(src[i]);
    return tavStatusOk;
  };
  check_layouts<Export, D, S>(
      lengths, [&](D* dst, int len, const S* src) { return call_it(src, dst, len); }, each);
  if constexpr (sizeof(S) == sizeof(D))
    check_layouts<Export, D>(
        few_lengths(), [&](D* dst, int len) { return call_it(reinterpret_cast<const S*>(dst), dst, len); },
        [&](std::vector<D>& dst) {
          std::vector<S> src(dst.size());
          memcpy(src.data(), dst.data(), dst.size() * sizeof(D));
          return each(dst, src);
        });
}

// Every value of 8 or 16 bits; of wider integers each number of bits, with ends that make ties and carries, and drawn
// ones.
template <class T> std::vector<T> integers(source_of_data& data) {
  std::vector<T> v;
  if constexpr (sizeof(T) <= 2) {
    for (long n = std::numeric_limits<T>::min(); n <= std::numeric_limits<T>::max(); ++n) v.push_back(T(n));
  } else {
    using U = std::make_unsigned_t<T>;
    for (int top = 0; top < int(sizeof(T)) * 8; ++top)
      for (int low = 0; low <= top; ++low)
        for (U end : {U(0), U(1), ~U(0)}) {  // powers of two, sums of two of them, and one more or less
          const U n = U((U(1) << top) + (U(1) << low) + end);
          v.push_back(T(n)), v.push_back(T(U(0) - n));
        }
    for (int i = 0; i < 2000; ++i) v.push_back(T(data.value<T>() >> data.below(int(sizeof(T)) * 8)));
  }
  return v;
}

// Floats on and next to every tie of small magnitude and at the limits of D, times 2^s; and those that are special.
template <class F, class D> std::vector<F> floats_around(int s, source_of_data& data) {
  const int      within = s < -2000 ? -2000 : s > 2000 ? 2000 : s;
  std::vector<F> v;
  const auto     add = [&](F x) {
    const F far = std::numeric_limits<F>::infinity();
    for (F y : {F(nextafter(x, -far)), x, F(nextafter(x, far))}) v.push_back(y), v.push_back(-y);
  };
  const auto add_scaled = [&](F x) { add(F(scalbn(x, within))); };
  for (int twice = 0; twice <= 40; ++twice) add_scaled(F(twice) / 2);
  for (F limit : {F(std::numeric_limits<D>::min()), F(std::numeric_limits<D>::max())})
    for (int twice = -5; twice <= 5; ++twice) add_scaled(limit + F(twice) / 2);
  for (int bits = 20; bits <= 64; ++bits)  // where fractions end: 8388609 must not become 8388610
    for (F more : {F(0), F(0.5), F(1), F(1.5), F(3)}) add_scaled(F(scalbn(F(1), bits)) + more);
  for (int i = 0; i < 40; ++i) add_scaled(F(data.value<Tav32s>()) / F(1 << data.below(30)));
  for (int i = 0; i < 40; ++i) v.push_back(data.value<F>());
  using limits = std::numeric_limits<F>;
  for (F x : {limits::quiet_NaN(), limits::infinity(), limits::max(), limits::denorm_min(), limits::min(), F(0), F(1)})
    v.push_back(x), v.push_back(-x);
  return v;
}

inline const int round_modes[] = {0, 1, 2, 3, -1, INT_MIN, INT_MAX};

}  // namespace test
