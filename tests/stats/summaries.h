// What the tests of sums, means and deviations share: calls of all their patterns, and ways to look at results.
#pragma once
#include "harness/faults.h"
#include "harness/forms.h"
#include "harness/scaled.h"
#include "oracle/sums.h"

namespace test {

// The one result of a call with a source of its own; more: a scale factor or a hint.
template <auto* Export, class T, class D, class... More>
D result_of(TavStatus (*)(const T*, int, D*, More...), const std::vector<T>& src, std::type_identity_t<More>... more) {
  D result{};
  EXPECT_EQ(call<Export>(src.data(), int(src.size()), &result, more...), tavStatusOk);
  return result;
}
template <auto* Export, class T, class... More> auto summary(const std::vector<T>& src, More... more) {
  return result_of<Export>(Export, src, more...);
}

// The same of mean and deviation.
template <class D> struct both_results { D mean, std_dev; };

template <auto* Export, class T, class D, class... More>
both_results<D> results_of(TavStatus (*)(const T*, int, D*, D*, More...), const std::vector<T>& src,
                           std::type_identity_t<More>... more) {
  both_results<D> r{};
  EXPECT_EQ(call<Export>(src.data(), int(src.size()), &r.mean, &r.std_dev, more...), tavStatusOk);
  return r;
}
template <auto* Export, class T, class... More> auto both(const std::vector<T>& src, More... more) {
  return results_of<Export>(Export, src, more...);
}

// At every offset and page end, the result has the bits of that from an array of its own, and nothing else is written.
// `look(src, result)` tells what it should be.
template <auto* Export, class T, class D, class... More, class Look>
void one_summary_of(TavStatus (*)(const T*, int, D*, More...), const std::set<int>& lengths, const Look& look,
                    std::type_identity_t<More>... more) {
  check_layouts<Export, D, T>(
      lengths, [=](D* dst, int len, const T* src) { return call<Export>(src, len, dst, more...); },
      [&](std::vector<D>& dst, const std::vector<T>& src) {
        dst[0] = summary<Export>(src, more...);
        look(src, dst[0]);
        return tavStatusOk;
      });
}
template <auto* Export, class Look, class... More>
void check_summary(const std::set<int>& lengths, const Look& look, More... more) {
  one_summary_of<Export>(Export, lengths, look, more...);
}

inline std::set<int> block_lengths() {
  std::set<int> lengths = lengths_around({}, 70);
  lengths.merge(std::set<int>{0x7FFF, 0x8000, 0x8001, 0x10000, 0x10001, 0x18009});
  return lengths;
}

template <class T> std::vector<part_of<T>> parts_of(const std::vector<T>& v, bool im) {
  std::vector<part_of<T>> parts;
  for (const T& x : v) {
    if constexpr (requires { x.re; })
      parts.push_back(im ? x.im : x.re);
    else
      parts.push_back(x);
  }
  return parts;
}

// check(of, result) for a real array and its result, or for both parts of complex ones.
template <class T, class D, class Check> void by_parts(const std::vector<T>& src, const D& result, const Check& check) {
  if constexpr (requires { result.re; }) {
    check(parts_of(src, false), result.re);
    check(parts_of(src, true), result.im);
  } else {
    check(src, result);
  }
}

// Values of ordinary size about an offset.
template <class T> std::vector<T> ordinary(source_of_data& data, size_t n, double offset = 0) {
  const auto     value = [&] { return part_of<T>(offset + double(int32_t(data.bits())) / 0x1p31); };
  std::vector<T> v(n);
  for (T& x : v) {
    if constexpr (requires { x.re; })
      x = {value(), value()};
    else
      x = value();
  }
  return v;
}

// How many of the values a comparison with the definition can do without: infinite, NaN, near the end of the range.
template <class T> bool is_tame(const std::vector<T>& v) {
  for (T x : v)
    if (!(std::abs(x) < std::sqrt(std::numeric_limits<T>::max()) / 65536)) return false;
  return true;
}

struct mode {
  unsigned          sse;
  oracle::direction direction;
};
inline constexpr mode thread_modes[] = {{0, oracle::direction::nearest},
                                        {rounding_mode::down, oracle::direction::down},
                                        {rounding_mode::up, oracle::direction::up},
                                        {rounding_mode::to_zero, oracle::direction::to_zero}};

// Another control word of the extended-precision unit.
struct extended_word {
  static constexpr uint16_t single_precision_to_zero = 0x0C7F;

  explicit extended_word(uint16_t word) {
    __asm__ volatile("fnstcw %0" : "=m"(callers_));
    __asm__ volatile("fldcw %0" : : "m"(word) : "memory");
  }
  ~extended_word() { __asm__ volatile("fldcw %0" : : "m"(callers_) : "memory"); }
  extended_word(const extended_word&)            = delete;
  extended_word& operator=(const extended_word&) = delete;

 private:
  uint16_t callers_;
};

inline constexpr int accurate_hints[] = {0, 2, -1, INT_MIN, INT_MAX};

// The length is the second argument; below `Least` it is bad.
template <int Least> void pointers_then_second(const tested& f) {
  faults bad(f);
  bad.null_pointers().below_one(1);
  if (Least == 2) bad.value(1, 1, tavStatusBadSize);
  bad.expect();
}

}  // namespace test
