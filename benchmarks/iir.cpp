// IIR filters of arbitrary order, beside the recursion as it is defined.
#include <algorithm>
#include <complex>

#include <liquid/liquid.h>

#include "harness.h"
#include "plain_iir.h"

namespace bench {
namespace {

constexpr char liquid[] = "liquid-dsp";

// Real poles at 0.6, 0.5, 0.4 ..., which keep the outputs of positive samples positive.
template <class T, class State> struct filter {
  T      taps[16]{}, delay[8]{};
  int    order;
  State* state = nullptr;

  const T* b() const { return taps; }
  const T* a() const { return taps + order + 2; }

  filter(int n, TavStatus (*init_alloc)(State**, const T*, int, const T*)) : order(n) {
    T* const leading = taps + n + 1;
    for (int k = 0; k <= n; ++k) taps[k] = T(0.05);
    leading[0] = 1;
    for (int pole = 1; pole <= n; ++pole)
      for (int k = pole; k > 0; --k) leading[k] -= leading[k - 1] * T(0.7 - 0.1 * pole);
    init_alloc(&state, taps, n, nullptr);
  }
};

template <int N> auto& singles() {
  static filter<Tav32f, IIRState_32f> f(N, tavsIIRInitAlloc_32f);
  return f;
}
template <int N> auto& doubles() {
  static filter<Tav64f, IIRState_64f> f(N, tavsIIRInitAlloc_64f);
  return f;
}
template <int N> auto& words() {
  static filter<Tav32f, IIRState32f_16s> f(N, tavsIIRInitAlloc32f_16s);
  return f;
}

// Each run starts afresh, so that all give the same.
void run_ours(filter<Tav32f, IIRState_32f>& f, const Tav32f* src, Tav32f* dst, int n) {
  tavsIIRSetDlyLine_32f(f.state, nullptr);
  tavsIIR_32f(src, dst, n, f.state);
}
void run_ours(filter<Tav64f, IIRState_64f>& f, const Tav64f* src, Tav64f* dst, int n) {
  tavsIIRSetDlyLine_64f(f.state, nullptr);
  tavsIIR_64f(src, dst, n, f.state);
}
void run_ours(filter<Tav32f, IIRState32f_16s>& f, const Tav16s* src, Tav16s* dst, int n) {
  tavsIIRSetDlyLine32f_16s(f.state, nullptr);
  tavsIIR32f_16s_Sfs(src, dst, n, f.state, 0);
}
template <int N> void run_liquid(const Tav32f* src, Tav32f* dst, int n) {
  auto&                     f    = singles<N>();
  static const iirfilt_rrrf peer = iirfilt_rrrf_create(f.taps, N + 1, f.taps + N + 1, N + 1);
  iirfilt_rrrf_reset(peer);
  iirfilt_rrrf_execute_block(peer, const_cast<Tav32f*>(src), unsigned(n), dst);
}
template <class F, class T> void run_plain(F& f, const T* src, T* dst, int n) {
  std::fill(f.delay, f.delay + f.order, 0);
  plain::filter(src, dst, n, f.b(), f.a(), f.order, f.delay);
}
template <class F, class T> void run_plain_second(F& f, const T* src, T* dst, int n) {
  std::fill(f.delay, f.delay + f.order, 0);
  plain::filter_second_order(src, dst, n, f.b(), f.a(), f.delay);
}

}  // namespace

BENCH_FAMILY(iir) {
  near_contest<Tav32f, Tav32f>({.name = "IIR_32f, order 2", .bytes = 8}, 1e-4,
                               {{ours, [](auto& x, int n) { run_ours(singles<2>(), x.a, x.out, n); }},
                                {loop, [](auto& x, int n) { run_plain_second(singles<2>(), x.a, x.out, n); }},
                                {liquid, [](auto& x, int n) { run_liquid<2>(x.a, x.out, n); }}});
  near_contest<Tav32f, Tav32f>({.name = "IIR_32f, order 6", .bytes = 8, .curve = true}, 1e-4,
                               {{ours, [](auto& x, int n) { run_ours(singles<6>(), x.a, x.out, n); }},
                                {loop, [](auto& x, int n) { run_plain(singles<6>(), x.a, x.out, n); }},
                                {liquid, [](auto& x, int n) { run_liquid<6>(x.a, x.out, n); }}});
  near_contest<Tav64f, Tav64f>({.name = "IIR_64f, order 2", .bytes = 16}, 1e-10,
                               {{ours, [](auto& x, int n) { run_ours(doubles<2>(), x.a, x.out, n); }},
                                {loop, [](auto& x, int n) { run_plain_second(doubles<2>(), x.a, x.out, n); }}});
  near_contest<Tav64f, Tav64f>({.name = "IIR_64f, order 6", .bytes = 16}, 1e-10,
                               {{ours, [](auto& x, int n) { run_ours(doubles<6>(), x.a, x.out, n); }},
                                {loop, [](auto& x, int n) { run_plain(doubles<6>(), x.a, x.out, n); }}});
  near_contest<Tav16s, Tav16s>({.name = "IIR32f_16s_Sfs, order 2", .bytes = 4}, 1,
                               {{ours, [](auto& x, int n) { run_ours(words<2>(), x.a, x.out, n); }},
                                {loop, [](auto& x, int n) { run_plain(words<2>(), x.a, x.out, n); }}});
  near_contest<Tav16s, Tav16s>({.name = "IIR32f_16s_Sfs, order 6", .bytes = 4}, 1,
                               {{ours, [](auto& x, int n) { run_ours(words<6>(), x.a, x.out, n); }},
                                {loop, [](auto& x, int n) { run_plain(words<6>(), x.a, x.out, n); }}});
}

}  // namespace bench
