// Cascades of biquads. Each call starts from rest, so that all contenders of a turn do the same work.
#include <complex>

#include <liquid/liquid.h>

#include "harness.h"
#include "plain_biquad.h"

namespace bench {
namespace {

constexpr char liquid[] = "liquid-dsp";

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

// liquid-dsp's cascades, of real or complex taps: three of the numerator and three of the denominator a section.
template <auto* Create, int Sections, class T> auto liquid_of() {
  static const auto filter = [] {
    std::vector<T> b, a;
    for (int s = 0; s < Sections; ++s)
      for (int k = 0; k < 3; ++k) b.push_back(taps<T>(true)[6 * s + k]), a.push_back(taps<T>(true)[6 * s + 3 + k]);
    const auto list = [](std::vector<T>& v) {
      if constexpr (sizeof(T) == 8)
        return reinterpret_cast<std::complex<float>*>(v.data());
      else
        return v.data();
    };
    return Create(list(b), list(a), Sections);
  }();
  return filter;
}
template <int Sections> void run_liquid(const Tav32f* src, Tav32f* dst, int n) {
  const auto filter = liquid_of<&iirfilt_rrrf_create_sos, Sections, Tav32f>();
  iirfilt_rrrf_reset(filter);
  iirfilt_rrrf_execute_block(filter, const_cast<Tav32f*>(src), unsigned(n), dst);
}
template <int Sections> void run_liquid(const Tav32fc* src, Tav32fc* dst, int n) {
  using pair        = std::complex<float>;
  const auto filter = liquid_of<&iirfilt_cccf_create_sos, Sections, Tav32fc>();
  iirfilt_cccf_reset(filter);
  iirfilt_cccf_execute_block(filter, reinterpret_cast<pair*>(const_cast<Tav32fc*>(src)), unsigned(n),
                             reinterpret_cast<pair*>(dst));
}

// Two channels: the halves of the arrays.
template <class Run> void by_halves(const arrays<Tav32f>& x, int n, Run run) {
  run(x.a, x.out, n / 2);
  run(x.a + n / 2, x.out + n / 2, n / 2);
}
template <int Sections> void two_channels(const char* name) {
  static const auto second = [] {
    IIRState_32f* s = nullptr;
    tavsIIRInitAlloc_BiQuad_32f(&s, taps<Tav32f>(true), Sections, nullptr);
    return s;
  }();
  near_contest<Tav32f, Tav32f>(
      {.name = name, .bytes = 8}, 1e-5,
      {{ours,
        [](auto& x, int n) {
          IIRState_32f* states[] = {state<&tavsIIRInitAlloc_BiQuad_32f, Sections>(), second};
          const Tav32f* src[]    = {x.a, x.a + n / 2};
          Tav32f*       dst[]    = {x.out, x.out + n / 2};
          for (auto s : states) tavsIIRSetDlyLine_32f(s, nullptr);
          tavsIIR_32f_P(src, dst, n / 2, 2, states);
        }},
       {"tavSP by channel",
        [](auto& x, int n) {
          by_halves(x, n, [](const Tav32f* src, Tav32f* dst, int len) {
            const auto s = state<&tavsIIRInitAlloc_BiQuad_32f, Sections>();
            tavsIIRSetDlyLine_32f(s, nullptr);
            tavsIIR_32f(src, dst, len, s);
          });
        }},
       {loop,
        [](auto& x, int n) {
          by_halves(x, n, [](const Tav32f* src, Tav32f* dst, int len) {
            plain::biquads<Sections>(src, dst, len, taps<Tav32f>(false));
          });
        }},
       {liquid, [](auto& x, int n) {
          by_halves(x, n, [](const Tav32f* src, Tav32f* dst, int len) { run_liquid<Sections>(src, dst, len); });
        }}});
}

template <int Sections> void singles(const char* name, double goal) {
  near_contest<Tav32f, Tav32f>(
      {.name = name, .bytes = 8, .in_cache = goal, .curve = goal > 0}, 1e-5,
      {{ours,
        [](auto& x, int n) {
          const auto s = state<&tavsIIRInitAlloc_BiQuad_32f, Sections>();
          tavsIIRSetDlyLine_32f(s, nullptr);
          tavsIIR_32f(x.a, x.out, n, s);
        }},
       {loop, [](auto& x, int n) { plain::biquads<Sections>(x.a, x.out, n, taps<Tav32f>(false)); }},
       {liquid, [](auto& x, int n) { run_liquid<Sections>(x.a, x.out, n); }}});
}

}  // namespace

BENCH_FAMILY(biquad) {
  const double goal = sizeof(void*) == 4 ? 1.3 : 1.4;
  singles<1>("IIR_32f, 1 biquad", 0);
  singles<4>("IIR_32f, 4 biquads", goal);
  singles<8>("IIR_32f, 8 biquads", 0);
  two_channels<1>("IIR_32f_P, 2 channels, 1 biquad");
  two_channels<4>("IIR_32f_P, 2 channels, 4 biquads");
  near_contest<Tav64f, Tav64f>({.name = "IIR_64f, 4 biquads", .bytes = 16}, 1e-13,
                               {{ours,
                                 [](auto& x, int n) {
                                   const auto s = state<&tavsIIRInitAlloc_BiQuad_64f, 4>();
                                   tavsIIRSetDlyLine_64f(s, nullptr);
                                   tavsIIR_64f(x.a, x.out, n, s);
                                 }},
                                {loop, [](auto& x, int n) { plain::biquads<4>(x.a, x.out, n, taps<Tav64f>(false)); }}});
  near_contest<Tav32f, Tav32fc>({.name = "IIR_32fc, 4 biquads", .bytes = 16}, 1e-5,
                                {{ours,
                                  [](auto& x, int n) {
                                    const auto s = state<&tavsIIRInitAlloc_BiQuad_32fc, 4>();
                                    tavsIIRSetDlyLine_32fc(s, nullptr);
                                    tavsIIR_32fc(x.a, x.out, n, s);
                                  }},
                                 {loop, [](auto& x, int n) { plain::biquads<4>(x.a, x.out, n, taps<Tav32fc>(false)); }},
                                 {liquid, [](auto& x, int n) { run_liquid<4>(x.a, x.out, n); }}});
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
