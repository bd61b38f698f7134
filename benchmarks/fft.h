// Transforms of power-of-two length beside FFTW built for SSE2: what the complex and the real ones share.
//
// A duel is one transform of one length, ours and FFTW's, from one array of the pool to another: run(), run_peer(), and
// same(), which runs both and compares.
#pragma once
#include "fft_calls.h"
#include "harness.h"

namespace bench {

template <class T> T* pooled(int array) { return static_cast<T*>(pool(array)); }

template <class T> std::vector<T> values_of(const T* x, size_t n) { return {x, x + n}; }
template <class T> void           fill(T* x, size_t n) {
            for (size_t i = 0; i < n; ++i) x[i] = T(double(i * 7919 % 1024) / 1024 - 0.5);
}

// Equal but for rounding.
template <class T> bool alike(const std::vector<T>& a, const std::vector<T>& b) {
  double error = 0, size = 0;
  for (size_t i = 0; i < a.size(); ++i) error += (a[i] - b[i]) * double(a[i] - b[i]), size += a[i] * double(a[i]);
  return error <= 1e-10 * size;
}

inline const std::vector<int> all_orders{3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20};
inline const std::vector<int> few_orders{4, 6, 8, 10, 12, 14, 16, 18};

inline constexpr bool few_registers = sizeof(void*) == 4;
inline double         no_goal(int) { return 0; }

template <class Run> entry entry_of(const char* contender, Run run) {
  return {contender, [run](benchmark::State& state) {
            for (auto _ : state) {
              run();
              benchmark::ClobberMemory();
            }
          }};
}

template <class Duel>
void transforms(const char* name, const std::vector<int>& orders = few_orders, double (*goal)(int order) = no_goal) {
  for (int order : orders) {
    const std::string place = "2^" + std::to_string(order);
    const size_t      bytes = Duel::point_bytes;
    const bool        curve = &orders == &all_orders;
    const row r{.name = name, .bytes = 2.0 * bytes, .in_cache = goal(order), .in_memory = goal(order), .curve = curve};
    if (!wanted(r)) return;
    Duel d(order);
    require_same(r, "FFTW", d.same());
    measure_point(r, {bytes << order, place.c_str()}, 1 << order,
                  {entry_of(ours, [&d] { d.run(); }), entry_of("FFTW SSE2", [&d] { d.run_peer(); })});
  }
}

// Set-up and release against so many transforms of that order, which must not take less.
template <class Duel> void set_up(const char* name, int order = 16, int count = 20) {
  const std::string place = "2^" + std::to_string(order), transforms = "tavSP " + std::to_string(count) + " times";
  const row         r{.name = name, .bytes = Duel::point_bytes, .in_cache = 1, .in_memory = 1};
  if (!wanted(r)) return;
  Duel       d(order);
  const auto make = [order] {
    typename Duel::context::record* record;
    Duel::context::init_alloc(&record, order, fftScaleNone, 0);
    Duel::context::free(record);
  };
  const auto use = [&d, count] {
    for (int i = 0; i < count; ++i) d.run();
  };
  measure_point(r, {size_t(Duel::point_bytes) << order, place.c_str()}, 1 << order,
                {entry_of(ours, make), entry_of(transforms.c_str(), use)});
}

}  // namespace bench
