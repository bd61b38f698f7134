// Cascades of biquads. Each call starts from rest, so that all contenders of a turn do the same work.
#include "harness.h"
#include "plain_biquad.h"

namespace bench {
namespace {

// Sections with the poles 0.5 and 0.4, whose outputs stay above 0: five taps for the loop, six for a state.
template <class T> T value(double v) {
  if constexpr (requires { T{}.re; })
    return {float(v), 0};
  else
    return T(v);
}
template <class T> const T* taps(bool with_a0) {
  static const std::vector<T> lists[2] = {[] {
                                            std::vector<T> v;
                                            for (int s = 0; s < 8; ++s)
                                              for (double t : {0.2, 0.1, 0.05, -0.9, 0.2}) v.push_back(value<T>(t));
                                            return v;
                                          }(),
                                          [] {
                                            std::vector<T> v;
                                            for (int s = 0; s < 8; ++s)
                                              for (double t : {0.2, 0.1, 0.05, 1.0, -0.9, 0.2})
                                                v.push_back(value<T>(t));
                                            return v;
                                          }()};
  return lists[with_a0].data();
}

// A state of its own for each number of sections.
template <auto* InitAlloc, int Sections, class State, class T>
State* state_of(TavStatus (*)(State**, const T*, int, const T*)) {
  static State* const state = [] {
    State* s = nullptr;
    InitAlloc(&s, taps<T>(true), Sections, nullptr);
    return s;
  }();
  return state;
}
template <auto* InitAlloc, int Sections> auto* state() { return state_of<InitAlloc, Sections>(InitAlloc); }

template <int Sections> void singles(const char* name, double goal) {
  near_contest<Tav32f, Tav32f>(
      {.name = name, .bytes = 8, .in_cache = goal}, 1e-5,
      {{ours,
        [](auto& x, int n) {
          const auto s = state<&tavsIIRInitAlloc_BiQuad_32f, Sections>();
          tavsIIRSetDlyLine_32f(s, nullptr);
          tavsIIR_32f(x.a, x.out, n, s);
        }},
       {loop, [](auto& x, int n) { plain::biquads<Sections>(x.a, x.out, n, taps<Tav32f>(false)); }}});
}

}  // namespace

BENCH_FAMILY(biquad) {
  const double goal = sizeof(void*) == 4 ? 1.3 : 1.4;
  singles<1>("IIR_32f, 1 biquad", 0);
  singles<4>("IIR_32f, 4 biquads", goal);
  singles<8>("IIR_32f, 8 biquads", 0);
  near_contest<Tav64f, Tav64f>({.name = "IIR_64f, 4 biquads", .bytes = 16}, 1e-13,
                               {{ours,
                                 [](auto& x, int n) {
                                   const auto s = state<&tavsIIRInitAlloc_BiQuad_64f, 4>();
                                   tavsIIRSetDlyLine_64f(s, nullptr);
                                   tavsIIR_64f(x.a, x.out, n, s);
                                 }},
                                {loop, [](auto& x, int n) { plain::biquads<4>(x.a, x.out, n, taps<Tav64f>(false)); }}});
  near_contest<Tav32f, Tav32fc>(
      {.name = "IIR_32fc, 4 biquads", .bytes = 16}, 1e-5,
      {{ours,
        [](auto& x, int n) {
          const auto s = state<&tavsIIRInitAlloc_BiQuad_32fc, 4>();
          tavsIIRSetDlyLine_32fc(s, nullptr);
          tavsIIR_32fc(x.a, x.out, n, s);
        }},
       {loop, [](auto& x, int n) { plain::biquads<4>(x.a, x.out, n, taps<Tav32fc>(false)); }}});
  near_contest<Tav16s, Tav16s>({.name = "IIR32f_16s_Sfs, 4 biquads", .bytes = 4}, 0.05,
                               {{ours,
                                 [](auto& x, int n) {
                                   const auto s = state<&tavsIIRInitAlloc32f_BiQuad_16s, 4>();
                                   tavsIIRSetDlyLine32f_16s(s, nullptr);
                                   tavsIIR32f_16s_Sfs(x.a, x.out, n, s, 0);
                                 }},
                                {loop, [](auto& x, int n) { plain::biquads<4>(x.a, x.out, n, taps<Tav32f>(false)); }}});
}

}  // namespace bench
