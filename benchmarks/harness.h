// What a family of benchmarks is written with:
//
//   BENCH_FAMILY(add) {
//     contest<Tav32f>({.name = "Add_32f", .bytes = 12, .in_cache = 1.05, .in_memory = 1.25},
//                     {{ours, [](auto& x, int n) { tavsAdd_32f(x.a, x.b, x.out, n); }},
//                      {"loop", [](auto& x, int n) { plain::add(x.a, x.b, x.out, n); }}});
//   }
//
// The report takes the family's title and place from families.cpp. A contest has several contenders do the same work in
// turns, on arrays that fit the first-level cache, the second-level one, or neither. It first makes sure that the work
// is the same.
#pragma once
#include <benchmark/benchmark.h>
#include <tavs.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

namespace bench {

inline constexpr char ours[] = "tavSP", loop[] = "loop";  // this library, and the plain loop

// Two sources and a destination of one length, each on a 64-byte boundary.
template <class T> struct arrays { T *a, *b, *out; };

template <class T> using call = void (*)(const arrays<T>&, int n);

template <class T> struct contender {
  std::string name;
  call<T>     run;
};

struct row {
  const char* name;               // the function, and behind a comma what is special
  double      bytes;              // read and written per element
  double      in_cache  = 0;      // goals: the time of the best peer divided by ours; 0: none
  double      in_memory = 0;      // the same where the arrays are far larger than the caches
  const char* against   = "";     // the one peer that the goals speak of; "": the best
  bool        curve     = false;  // is plotted, and so times further sizes
  int         taps      = 0;      // of a filter, whose plot goes by them
  const char* account   = "";     // heading in limits.md for missed goals; "": that of the place or the family
};

// A contender of VOLK, whose kernel must be one that volk/volk_config confines to SSSE3.
void                            require_confined(const char* kernel);
template <class T> contender<T> volk(const char* kernel, call<T> run) {
  require_confined(kernel);
  return {"VOLK", run};
}

// What the arrays hold unless a contest says otherwise: whole numbers from 1 to 113.
template <class T> void ramp(const arrays<T>& x, int n) {
  const auto value = [](int v) {
    if constexpr (requires { x.a->re; })
      return T{decltype(x.a->re)(v), decltype(x.a->re)(v + 1)};
    else
      return T(v);
  };
  for (int i = 0; i < n; ++i) x.a[i] = value(1 + i % 113), x.b[i] = value(1 + i % 89), x.out[i] = value(0);
}

// The engine's side.
struct point {
  size_t      bytes;  // of one array
  const char* place;  // where the arrays lie; "" for a point of a curve
};
struct entry {
  std::string                            name;
  std::function<void(benchmark::State&)> measure;
};
void*              pool(int array);
bool               wanted(const row&);
std::vector<point> points_of(const row&, size_t element_bytes);
void               measure_point(const row&, const point&, int n, const std::vector<entry>&);
uint64_t           hash(const void* data, size_t bytes);

template <class T> uint64_t outcome(const contender<T>& c, const arrays<T>& x, int n, call<T> fill) {
  fill(x, n);
  c.run(x, n);
  return hash(x.a, n * sizeof(T)) * 31 + hash(x.out, n * sizeof(T));
}

void require_same(const row&, const std::string& contender, bool same);

template <class T>
void measure(const row& r, const arrays<T>& x, const std::vector<contender<T>>& contenders, call<T> fill) {
  for (const point& p : points_of(r, sizeof(T))) {
    const int          n = int(p.bytes / sizeof(T));
    std::vector<entry> entries;
    for (const auto& c : contenders)
      entries.push_back({c.name, [run = c.run, x, n](benchmark::State& state) {
                           for (auto _ : state) {
                             run(x, n);
                             benchmark::ClobberMemory();
                           }
                         }});
    fill(x, n);
    measure_point(r, p, n, entries);
  }
}

template <class T> arrays<T> pooled() {
  return {static_cast<T*>(pool(0)), static_cast<T*>(pool(1)), static_cast<T*>(pool(2))};
}

template <class T> void contest(const row& r, const std::vector<contender<T>>& contenders, call<T> fill = ramp<T>) {
  if (!wanted(r)) return;
  const arrays<T> x        = pooled<T>();
  const uint64_t  expected = outcome(contenders[0], x, 1003, fill);
  for (const auto& c : contenders) require_same(r, c.name, outcome(c, x, 1003, fill) == expected);
  measure(r, x, contenders, fill);
}

// A contest whose contenders may differ in last places: the first `count` of their results, of type D, by `tolerance`
// times their size. A count of 0: as many as there are elements.
template <class D, class T>
void near_contest(const row& r, double tolerance, const std::vector<contender<T>>& contenders, call<T> fill = ramp<T>,
                  int count = 0) {
  if (!wanted(r)) return;
  constexpr int   n       = 1003;
  const arrays<T> x       = pooled<T>();
  const auto      results = [&](const contender<T>& c) {
    fill(x, n);
    c.run(x, n);
    const D* out = reinterpret_cast<const D*>(x.out);
    return std::vector<D>(out, out + (count == 0 ? n : count));
  };
  const std::vector<D> expected = results(contenders[0]);
  for (const auto& c : contenders) {
    const std::vector<D> got  = results(c);
    bool                 same = true;
    for (size_t i = 0; i < got.size(); ++i)
      same &= std::abs(double(got[i]) - double(expected[i])) <= tolerance * std::abs(double(expected[i]));
    require_same(r, c.name, same);
  }
  measure(r, x, contenders, fill);
}

// The same where an array becomes one result of type D, which each contender writes to the start of x.out; a result of
// several numbers (a complex one, a mean and a deviation) is `numbers` of type D.
template <class D, class T>
void summary_contest(const row& r, double tolerance, const std::vector<contender<T>>& contenders,
                     call<T> fill = ramp<T>, int numbers = 1) {
  near_contest<D>(r, tolerance, contenders, fill, numbers);
}

struct family {
  family(const char* name, void (*contests)());
};

}  // namespace bench

#define BENCH_FAMILY(name)                             \
  static void          name();                         \
  static bench::family family_of_##name{#name, &name}; \
  static void          name()
