// Radix sorts beside plain ones and std::sort. Every turn begins with the same copy of the unsorted array.
#include <string.h>

#include <algorithm>
#include <random>

#include "harness.h"
#include "plain_radix.h"

namespace bench {
namespace {

constexpr int  counts[]  = {100, 1000, 10000, 100000, 1000000};
constexpr char radix[]   = "plain radix";
constexpr char generic[] = "std::sort";

template <class T> T random_value(std::mt19937& random) {
  if constexpr (std::is_floating_point_v<T>) {
    const double whole = int32_t(random());
    return T((whole + random() * 0x1p-32) * 0x1p-30);
  } else {
    return T(random());
  }
}

template <class T> arrays<T> unsorted() {
  const arrays<T> x = pooled<T>();
  std::mt19937    random(1);
  std::generate(x.a, x.a + counts[4], [&] { return random_value<T>(random); });
  return x;
}

// Other keys each time: sorts that branch do much better on keys that the processor has learned.
template <class T> entry entry_of(const contender<T>& c, const arrays<T>& x, int n) {
  return {c.name, [run = c.run, x, n](benchmark::State& state) {
            arrays<T> part = x;
            for (auto _ : state) {
              run(part, n);
              part.a = part.a + 2 * n <= x.a + counts[4] ? part.a + n : x.a;
              benchmark::ClobberMemory();
            }
          }};
}

template <class T>
void at_all_counts(const row& r, const arrays<T>& x, const std::vector<contender<T>>& contenders, size_t result_bytes) {
  for (int n : counts) {
    const auto outcome  = [&](const contender<T>& c) { return c.run(x, n), hash(x.out, size_t(n) * result_bytes); };
    const auto expected = outcome(contenders[0]);
    std::vector<entry> entries;
    for (const auto& c : contenders) {
      require_same(r, c.name, outcome(c) == expected);
      entries.push_back(entry_of(c, x, n));
    }
    measure_point(r, {size_t(n) * sizeof(T), (std::to_string(n) + " elements").c_str()}, n, entries);
  }
}

template <class T, auto Sort> void with_copy(const arrays<T>& x, int n) {
  memcpy(x.out, x.a, size_t(n) * sizeof(T));
  Sort(x.out, x.b, n);
}

template <class T> void standard(T* data, T*, int n) { std::sort(data, data + n); }
void                    counting(Tav8u* data, Tav8u*, int n) { plain::counting_sort(data, n); }

template <class T, auto Ours, auto Plain> void sorts(const char* name, double goal) {
  const row r{
      .name = name, .bytes = 2 * sizeof(T), .in_cache = goal, .in_memory = goal, .against = radix, .curve = true};
  if (!wanted(r)) return;
  at_all_counts<T>(r, unsorted<T>(),
                   {{ours, with_copy<T, Ours>}, {radix, with_copy<T, Plain>}, {generic, with_copy<T, &standard<T>>}},
                   sizeof(T));
}

}  // namespace

// The counters of a pass over 8 or 16 bits leave nothing to win but in short arrays: a store a cycle is all there is.
BENCH_FAMILY(radix_sort) {
  sorts<Tav32f, &tavsSortRadixAscend_32f_I, &plain::radix_sort<Tav32f>>("SortRadixAscend_32f_I", 1.1);
  sorts<Tav32s, &tavsSortRadixAscend_32s_I, &plain::radix_sort<Tav32s>>("SortRadixAscend_32s_I", 1.1);
  sorts<Tav16s, &tavsSortRadixAscend_16s_I, &plain::radix_sort<Tav16s>>("SortRadixAscend_16s_I", 1);
  sorts<Tav8u, &tavsSortRadixAscend_8u_I, &counting>("SortRadixAscend_8u_I", 1);
  sorts<Tav64f, &tavsSortRadixAscend_64f_I, &plain::radix_sort<Tav64f>>("SortRadixAscend_64f_I", 1.1);
}

// The keys stay, so there is nothing to restore.
BENCH_FAMILY(radix_index) {
  const row r{.name      = "SortRadixIndexAscend_32f",
              .bytes     = 12,
              .in_cache  = 1,
              .in_memory = 1.1,
              .against   = radix,
              .curve     = true};
  if (!wanted(r)) return;
  at_all_counts<Tav32f>(r, unsorted<Tav32f>(),
                        {{ours,
                          [](auto& x, int n) {
                            tavsSortRadixIndexAscend_32f(x.a, 4, reinterpret_cast<int*>(x.out),
                                                         reinterpret_cast<int*>(x.b), n);
                          }},
                         {radix,
                          [](auto& x, int n) {
                            plain::radix_sort_index(x.a, reinterpret_cast<int*>(x.out), reinterpret_cast<int*>(x.b), n);
                          }}},
                        sizeof(int));
}

}  // namespace bench
