// Sorting beside std::sort and Boost's pdqsort: random keys of several types, and keys in patterns.
//
// Every contender first copies the keys to where it sorts them, other ones each time: sorts that branch do much better
// on keys that the processor has learned.
#include <string.h>

#include <algorithm>
#include <boost/sort/pdqsort/pdqsort.hpp>
#include <random>

#include "harness.h"

namespace bench {
namespace {

constexpr char pdqsort[] = "pdqsort", std_sort[] = "std::sort";

template <class T> using sort_function = void (*)(T*, int);

template <class T> struct sorts {
  sort_function<T> mine;
  static void      standard(T* p, int n) { std::sort(p, p + n); }
  static void      pdq(T* p, int n) { boost::sort::pdqsort(p, p + n); }
};

constexpr int keys_in_all = 1 << 19;  // or as many as are sorted at once

template <class T> entry sort_entry(const char* name, sort_function<T> sort, const T* keys, T* work, int n) {
  return {name, [=](benchmark::State& state) {
            int at = 0;
            for (auto _ : state) {
              memcpy(work, keys + at, size_t(n) * sizeof(T));
              at = at + 2 * n <= keys_in_all ? at + n : 0;
              sort(work, n);
              benchmark::ClobberMemory();
            }
          }};
}

template <class T> std::vector<T> sorted_by(sort_function<T> sort, const T* keys, int n) {
  std::vector<T> v(keys, keys + n);
  sort(v.data(), n);
  return v;
}

// `key(i, n)` makes the keys.
template <class T, class Key>
void sort_contest(const char* name, const char* against, double goal_at_100, double goal, sort_function<T> mine,
                  const Key& key) {
  T *const keys = static_cast<T*>(pool(0)), *const work = static_cast<T*>(pool(1));
  for (int n : {100, 1000, 10000, 100000, 1000000}) {
    const double wants = n == 100 ? goal_at_100 : goal;
    const row    r{.name      = name,
                   .bytes     = 2 * sizeof(T),
                   .in_cache  = wants,
                   .in_memory = wants,
                   .against   = against,
                   .curve     = against == pdqsort};
    if (!wanted(r)) return;
    for (int i = 0; i < std::max(n, keys_in_all); ++i) keys[i] = T(key(i % n, n));
    const auto expected = sorted_by<T>(sorts<T>::standard, keys, n);
    require_same(r, ours, sorted_by<T>(mine, keys, n) == expected);
    const std::string place = std::to_string(n) + " keys";
    measure_point(r, {size_t(n) * sizeof(T), place.c_str()}, n,
                  {sort_entry(ours, mine, keys, work, n), sort_entry("std::sort", sorts<T>::standard, keys, work, n),
                   sort_entry("pdqsort", sorts<T>::pdq, keys, work, n)});
  }
}

template <class T> void random_keys(const char* name, sort_function<T> mine, double goal_at_100, double goal) {
  std::mt19937 engine(1);
  sort_contest<T>(name, pdqsort, goal_at_100, goal, mine, [&](int, int) { return Tav32s(engine()); });
}

template <class Key> void patterns(const char* name, const Key& key) {
  sort_contest<Tav32f>(
      name, std_sort, 1, 1, [](Tav32f* p, int n) { tavsSortAscend_32f_I(p, n); }, key);
}

}  // namespace

BENCH_FAMILY(sort) {
  random_keys<Tav32f>(
      "SortAscend_32f_I", [](Tav32f* p, int n) { tavsSortAscend_32f_I(p, n); }, 1.2, 2);
  random_keys<Tav32s>(
      "SortAscend_32s_I", [](Tav32s* p, int n) { tavsSortAscend_32s_I(p, n); }, 1.2, 2);
  random_keys<Tav16s>(
      "SortAscend_16s_I", [](Tav16s* p, int n) { tavsSortAscend_16s_I(p, n); }, 1.2, 2);
  random_keys<Tav8u>(
      "SortAscend_8u_I", [](Tav8u* p, int n) { tavsSortAscend_8u_I(p, n); }, 1.2, 2);
  random_keys<Tav64f>(
      "SortAscend_64f_I", [](Tav64f* p, int n) { tavsSortAscend_64f_I(p, n); }, 0, 0);
}

BENCH_FAMILY(sort_patterns) {
  patterns("SortAscend_32f_I, sorted", [](int i, int) { return i; });
  patterns("SortAscend_32f_I, reversed", [](int i, int n) { return n - i; });
  patterns("SortAscend_32f_I, organ pipe", [](int i, int n) { return std::min(i, n - i); });
  patterns("SortAscend_32f_I, few values", [](int i, int) { return i * 7919LL % 1009 % 7; });
}

}  // namespace bench
