// What the contests of FIR filters share. The signal repeats, so that a call leaves a filter with the history that it
// found: there is nothing to set back between calls, short or long.
#pragma once
#include <string.h>

#include "harness.h"

namespace bench {

inline constexpr int period = 64, most_samples = 64 * period;

// A signal with its history in front, taps, and a result.
template <class T, class Tap> struct problem {
  std::vector<Tap> h;
  T *              src, *dst = static_cast<T*>(pool(1));
  std::vector<T>   newest_first;  // the history, as delay lines have it

  explicit problem(int taps) : h(size_t(taps)) {
    const int history = (taps + period - 1) / period * period;
    src               = static_cast<T*>(pool(0)) + history;
    fill(src - history, history + most_samples, 1000);
    fill(h.data(), taps, integers<Tap> ? 600 : 1.0 / taps);
    for (int k = 1; k <= taps; ++k) newest_first.push_back(src[-k]);
  }

  int      taps() const { return int(h.size()); }
  const T* oldest() const { return src - (taps() - 1); }  // that a product needs

 private:
  template <class V> static auto part_of(V v) {
    if constexpr (requires { v.re; })
      return v.re;
    else
      return v;
  }
  template <class V> using part                     = decltype(part_of(V{}));
  template <class V> static constexpr bool integers = std::is_integral_v<part<V>>;

  template <class V> static void fill(V* x, int n, double size) {
    constexpr int  parts = sizeof(V) / sizeof(part<V>);
    part<V>* const p     = reinterpret_cast<part<V>*>(x);
    for (int i = 0; i < n * parts; ++i)
      p[i] = part<V>((double(i % (parts * period) * 7919 % 1024) / 1024 - 0.4) * size);
  }
};

// One contest: the contenders by name, each with its run(n), over calls of one period and of many. Their results, as
// numbers of type P, differ by rounding only.
template <class P, class T> class match {
 public:
  match(const row& r, const T* dst, double tolerance) : row_(r), dst_(dst), tolerance_(tolerance) {}

  template <class Run> void add(const char* name, Run run) {
    run(most_samples);
    const P* const       p = reinterpret_cast<const P*>(dst_);
    const std::vector<P> result(p, p + most_samples * sizeof(T) / sizeof(P));
    if (expected_.empty()) expected_ = result;
    require_same(row_, name, near(result));
    short_.push_back(timed(name, [run] { run(period); }));
    long_.push_back(timed(name, [run] { run(most_samples); }));
  }

  void hold() {
    row without_goal      = row_;  // which speaks of long calls
    without_goal.in_cache = 0;
    without_goal.curve    = false;
    without_goal.account  = "Short calls of filters";
    measure_point(without_goal, {period * sizeof(T), "64 elements"}, period, short_);
    measure_point(row_, {most_samples * sizeof(T), "4096 samples"}, most_samples, long_);
  }

 private:
  template <class Run> static entry timed(const char* name, Run run) {
    return {name, [run](benchmark::State& state) {
              for (auto _ : state) {
                run();
                benchmark::ClobberMemory();
              }
            }};
  }
  bool near(const std::vector<P>& result) const {
    double error = 0, size = 0;
    for (size_t i = 0; i < result.size(); ++i) {
      const double off = double(result[i]) - expected_[i];
      error += off * off, size += double(expected_[i]) * expected_[i];
    }
    return error <= tolerance_ * size;
  }

  row                row_;
  const T*           dst_;
  double             tolerance_;
  std::vector<P>     expected_;
  std::vector<entry> short_, long_;
};

inline std::string named(const char* function, int taps) {
  return std::string(function) + ", " + std::to_string(taps) + " taps";
}

}  // namespace bench
