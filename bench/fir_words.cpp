// FIR filters of words, and Direct calls, beside plain loops.
#include <string.h>

#include "harness.h"
#include "plain_words.h"

namespace bench {
namespace {

constexpr int samples = 4096, shift = 15;

template <class Run> entry entry_of(const char* name, Run run) {
  return {name, [run](benchmark::State& state) {
            for (auto _ : state) {
              run();
              benchmark::ClobberMemory();
            }
          }};
}

// One contest: the contenders by name, whose results must be the same.
template <class T> class match {
 public:
  explicit match(const row& r) : row_(r), dst_(size_t(samples)) {}

  T* dst() { return dst_.data(); }

  template <class Run> void add(const char* name, Run run) {
    run();
    if (entries_.empty()) first_ = dst_;
    require_same(row_, name, memcmp(first_.data(), dst_.data(), first_.size() * sizeof(T)) == 0);
    entries_.push_back(entry_of(name, run));
  }
  void hold() { measure_point(row_, {samples * sizeof(T), "4096 samples"}, samples, entries_); }

 private:
  row                row_;
  std::vector<T>     dst_, first_;
  std::vector<entry> entries_;
};

// A signal that repeats: the last samples of a block are the history of the next.
template <class T, class Part> std::vector<T> signal(int n) {
  std::vector<T> v(size_t(samples + n));
  Part* const    p = reinterpret_cast<Part*>(v.data());
  for (size_t i = 0; i < v.size() * sizeof(T) / sizeof(Part); ++i) p[i] = Part(int(i * 7919 % 1024) - 400);
  memcpy(v.data(), v.data() + samples, size_t(n) * sizeof(T));
  return v;
}

std::string named(const char* function, int taps) {
  return std::string(function) + ", " + std::to_string(taps) + " taps";
}

void words(int taps) {
  const std::string name = named("FIR_16s", taps);
  const row         r{.name = name.c_str(), .bytes = 4, .in_cache = 1.5};
  if (!wanted(r)) return;
  const auto    x = signal<Tav16s, Tav16s>(taps), h = std::vector<Tav16s>(x.end() - taps, x.end());
  const Tav16s* src   = x.data() + taps;
  FIRState_16s* state = nullptr;
  tavsFIRInitAlloc_16s(&state, h.data(), taps, 0, nullptr);
  match<Tav16s> m(r);
  tavsFIR_16s_Sfs(src, m.dst(), samples, state, shift);
  m.add(ours, [&] { tavsFIR_16s_Sfs(src, m.dst(), samples, state, shift); });
  m.add(loop, [&] { plain::filter(src, h.data(), taps, shift, m.dst(), samples); });
  m.hold();
  tavsFIRFree_16s(state);
}

void pairs(int taps) {
  const std::string name = named("FIR32sc_16sc", taps);
  const row         r{.name = name.c_str(), .bytes = 8, .in_cache = 1.5};
  if (!wanted(r)) return;
  const auto           x = signal<Tav16sc, Tav16s>(taps), h = std::vector<Tav16sc>(x.end() - taps, x.end());
  std::vector<Tav32sc> wide;
  for (const Tav16sc& v : h) wide.push_back({v.re, v.im});
  const Tav16sc*     src   = x.data() + taps;
  FIRState32sc_16sc* state = nullptr;
  tavsFIRInitAlloc32sc_16sc(&state, wide.data(), taps, 0, nullptr);
  match<Tav16sc> m(r);
  tavsFIR32sc_16sc_Sfs(src, m.dst(), samples, state, shift);
  m.add(ours, [&] { tavsFIR32sc_16sc_Sfs(src, m.dst(), samples, state, shift); });
  m.add(loop, [&] { plain::filter(src, h.data(), taps, shift, m.dst(), samples); });
  m.hold();
  tavsFIRFree32sc_16sc(state);
}

void direct(int taps) {
  const std::string name = named("FIR_Direct_32f", taps);
  const row         r{.name = name.c_str(), .bytes = 8, .in_cache = 1.5};
  if (!wanted(r)) return;
  const auto         x = signal<float, float>(taps), h = std::vector<float>(x.end() - taps, x.end());
  const float*       src = x.data() + taps;
  std::vector<float> ring(size_t(taps) * 2), other(ring);
  int                index = 0, other_index = 0;
  match<float>       m(r);
  plain::filter_by_ring(src, h.data(), taps, other.data(), &other_index, m.dst(), samples);
  ring = other, index = other_index;
  m.add(ours, [&] { tavsFIR_Direct_32f(src, m.dst(), samples, h.data(), taps, ring.data(), &index); });
  m.add(loop, [&] { plain::filter_by_ring(src, h.data(), taps, other.data(), &other_index, m.dst(), samples); });
  m.hold();
}

}  // namespace

BENCH_FAMILY(fir_words) {
  for (int taps : {8, 32, 256}) words(taps);
  for (int taps : {32, 256}) pairs(taps);
  for (int taps : {8, 32, 256}) direct(taps);
}

}  // namespace bench
