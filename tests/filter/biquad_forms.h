// The forms of the biquad cascades: for each, the types and the calls, under names that do not depend on it.
#pragma once
#include <gtest/gtest.h>

#include <string>

#include "harness/arena.h"
#include "harness/call.h"
#include "harness/data.h"
#include "harness/parts.h"
#include "oracle/biquad.h"

namespace test {

// A: what the form computes in; T: taps; D: samples. Shares is what stands behind "tavsIIR" in the calls that a cascade
// shares with other structures, Own in those for cascades, Scaled and ScaledI the ends of the names of the filters.
#define BIQUAD_FORM(Name, A, T, D, Shares, Own, Taps, Scaled, ScaledI)  \
  struct Name {                                                         \
    using arithmetic                     = A;                           \
    using tap                            = T;                           \
    using sample                         = D;                           \
    using state                          = IIRState##Shares;            \
    static constexpr char name[]         = #Own;                        \
    static constexpr auto get_size       = &tavsIIRGetStateSize##Own;   \
    static constexpr auto init           = &tavsIIRInit##Own;           \
    static constexpr auto init_alloc     = &tavsIIRInitAlloc##Own;      \
    static constexpr auto free           = &tavsIIRFree##Shares;        \
    static constexpr auto set_taps       = &tavsIIRSetTaps##Taps;       \
    static constexpr auto get_delay      = &tavsIIRGetDlyLine##Shares;  \
    static constexpr auto set_delay      = &tavsIIRSetDlyLine##Shares;  \
    static constexpr auto filter         = &tavsIIR##Shares##Scaled;    \
    static constexpr auto filter_inplace = &tavsIIR##Shares##ScaledI;   \
    static constexpr auto one            = &tavsIIROne##Shares##Scaled; \
  };
BIQUAD_FORM(bq_32f, Tav32f, Tav32f, Tav32f, _32f, _BiQuad_32f, _32f, , _I)
BIQUAD_FORM(bq_32fc, Tav32fc, Tav32fc, Tav32fc, _32fc, _BiQuad_32fc, _32fc, , _I)
BIQUAD_FORM(bq_64f, Tav64f, Tav64f, Tav64f, _64f, _BiQuad_64f, _64f, , _I)
BIQUAD_FORM(bq_64fc, Tav64fc, Tav64fc, Tav64fc, _64fc, _BiQuad_64fc, _64fc, , _I)
BIQUAD_FORM(bq64f_32f, Tav64f, Tav64f, Tav32f, 64f_32f, 64f_BiQuad_32f, 64f_32f, , _I)
BIQUAD_FORM(bq64fc_32fc, Tav64fc, Tav64fc, Tav32fc, 64fc_32fc, 64fc_BiQuad_32fc, 64fc_32fc, , _I)
BIQUAD_FORM(bq32f_16s, Tav32f, Tav32f, Tav16s, 32f_16s, 32f_BiQuad_16s, 32f_16s, _Sfs, _ISfs)
BIQUAD_FORM(bq32fc_16sc, Tav32fc, Tav32fc, Tav16sc, 32fc_16sc, 32fc_BiQuad_16sc, 32fc_16sc, _Sfs, _ISfs)
BIQUAD_FORM(bq64f_16s, Tav64f, Tav64f, Tav16s, 64f_16s, 64f_BiQuad_16s, 64f_16s, _Sfs, _ISfs)
BIQUAD_FORM(bq64fc_16sc, Tav64fc, Tav64fc, Tav16sc, 64fc_16sc, 64fc_BiQuad_16sc, 64fc_16sc, _Sfs, _ISfs)
BIQUAD_FORM(bq64f_32s, Tav64f, Tav64f, Tav32s, 64f_32s, 64f_BiQuad_32s, 64f_32s, _Sfs, _ISfs)
BIQUAD_FORM(bq64fc_32sc, Tav64fc, Tav64fc, Tav32sc, 64fc_32sc, 64fc_BiQuad_32sc, 64fc_32sc, _Sfs, _ISfs)
BIQUAD_FORM(bq32s_16s, Tav32f, Tav32s, Tav16s, 32s_16s, 32s_BiQuad_16s, 32s_16s, _Sfs, _ISfs)
BIQUAD_FORM(bq32sc_16sc, Tav32fc, Tav32sc, Tav16sc, 32sc_16sc, 32sc_BiQuad_16sc, 32sc_16sc, _Sfs, _ISfs)
BIQUAD_FORM(bq32s_16s32f, Tav32f, Tav32f, Tav16s, 32s_16s, 32s_BiQuad_16s32f, 32s_16s32f, _Sfs, _ISfs)
BIQUAD_FORM(bq32sc_16sc32fc, Tav32fc, Tav32fc, Tav16sc, 32sc_16sc, 32sc_BiQuad_16sc32fc, 32sc_16sc32fc, _Sfs, _ISfs)
#undef BIQUAD_FORM

using biquad_forms =
    testing::Types<bq_32f, bq_32fc, bq_64f, bq_64fc, bq64f_32f, bq64fc_32fc, bq32f_16s, bq32fc_16sc, bq64f_16s,
                   bq64fc_16sc, bq64f_32s, bq64fc_32sc, bq32s_16s, bq32sc_16sc, bq32s_16s32f, bq32sc_16sc32fc>;

struct biquad_form_names {
  template <class F> static std::string GetName(int) { return F::name; }
};

template <class F> inline constexpr bool converts_taps = std::is_integral_v<part_of<typename F::tap>>;
template <class F> inline constexpr bool takes_scale   = std::is_integral_v<part_of<typename F::sample>>;
template <class F> inline constexpr bool is_mixed      = !std::is_same_v<typename F::arithmetic, typename F::sample>;
template <class F>
inline constexpr long double epsilon_of = std::numeric_limits<part_of<typename F::arithmetic>>::epsilon();

template <class T> oracle::wide widened(T v) {
  if constexpr (is_pair<T>)
    return {(long double)v.re, (long double)v.im};
  else
    return {(long double)v};
}
template <class T> T narrowed(oracle::wide v) {
  if constexpr (is_pair<T>)
    return {part_of<T>(v.re), part_of<T>(v.im)};
  else
    return T(v.re);
}

inline constexpr int biquad_taps_factor = 24;  // of integer taps

// The calls, with a factor where the form takes one.
template <class F, class... A>
TavStatus init_biquads(typename F::state** state, const typename F::tap* taps, int n, A... rest) {
  if constexpr (converts_taps<F>)
    return call<F::init>(state, taps, n, biquad_taps_factor, rest...);
  else
    return call<F::init>(state, taps, n, rest...);
}
template <class F, class... A>
TavStatus init_alloc_biquads(typename F::state** state, const typename F::tap* taps, int n, A... rest) {
  if constexpr (converts_taps<F>)
    return call<F::init_alloc>(state, taps, n, biquad_taps_factor, rest...);
  else
    return call<F::init_alloc>(state, taps, n, rest...);
}
template <class F> TavStatus set_biquads(const typename F::tap* taps, typename F::state* state) {
  if constexpr (converts_taps<F>)
    return call<F::set_taps>(taps, state, biquad_taps_factor);
  else
    return call<F::set_taps>(taps, state);
}
template <auto* Filter, class F, class... A> TavStatus with_scale(int scale, A... args) {
  if constexpr (takes_scale<F>)
    return call<Filter>(args..., scale);
  else
    return call<Filter>(args...);
}
template <class F>
TavStatus filter_biquads(const typename F::sample* src, typename F::sample* dst, int len, typename F::state* state,
                         int scale) {
  return src == dst ? with_scale<F::filter_inplace, F>(scale, dst, len, state)
                    : with_scale<F::filter, F>(scale, src, dst, len, state);
}

// The type of delay lines on the interface, which holds the bits of the arithmetic type.
template <class State, class T> T delay_type(TavStatus (*)(const State*, T*));
template <class F> using delay_of = decltype(delay_type(F::get_delay));

// Six taps a section, whose poles lie within `radius`. Complex forms get complex poles that are no pairs.
template <class F> std::vector<typename F::tap> stable_taps(int sections, double radius, source_of_data& data) {
  using T            = typename F::tap;
  const auto uniform = [&] { return double(int32_t(data.bits())) / 2147483648.0; };
  const auto pole    = [&](int k) {
    const double r = radius * (1 - 0.05 * fabs(uniform())), angle = 3.1 * uniform();
    return is_pair<T> || k == 0 ? oracle::wide{r * cos(angle), r * sin(angle)} : oracle::wide{};
  };
  std::vector<T> taps;
  for (int s = 0; s < sections; ++s) {
    const oracle::wide p = pole(0), q = is_pair<T> ? pole(1) : oracle::wide{p.re, -p.im};
    const double       unit = 0.7 + 0.3 * uniform(), size = 1 - radius * 0.9;
    const oracle::wide given[6] = {{size * (1 + 0.3 * uniform()), is_pair<T> ? size * uniform() : 0},
                                   {size * uniform(), is_pair<T> ? size * uniform() : 0},
                                   {size * uniform(), 0},
                                   {unit, 0},
                                   oracle::wide{-unit} * (p + q),
                                   oracle::wide{unit} * (p * q)};
    for (const oracle::wide& t : given) {
      const oracle::wide scaled = converts_taps<F> ? t * oracle::wide{1 << biquad_taps_factor} : t;
      taps.push_back(narrowed<T>(scaled));
    }
  }
  return taps;
}

// The definition of a filter with these taps, which are taken as the state holds them.
template <class F> oracle::cascade definition(const std::vector<typename F::tap>& taps) {
  oracle::cascade c;
  for (size_t i = 0; i < taps.size(); i += 6) {
    oracle::wide t[6];
    for (size_t k = 0; k < 6; ++k) {
      t[k] = widened(taps[i + k]);
      if constexpr (converts_taps<F>) t[k] = widened(narrowed<typename F::arithmetic>(t[k]));
    }
    oracle::section s = oracle::section_of(t);  // integer taps: the factor cancels
    c.sections.push_back(s);
  }
  return c;
}

// A state that is released.
template <class F> class biquad_state {
 public:
  biquad_state(const std::vector<typename F::tap>& taps, const delay_of<F>* delay = nullptr)
      : status_(init_alloc_biquads<F>(&state_, taps.data(), int(taps.size() / 6), delay)) {
    EXPECT_EQ(status_, tavStatusOk);
  }
  ~biquad_state() { EXPECT_EQ(state_ ? call<F::free>(state_) : tavStatusOk, tavStatusOk); }
  biquad_state(const biquad_state&)            = delete;
  biquad_state& operator=(const biquad_state&) = delete;

  typename F::state* get() const { return state_; }

  std::vector<typename F::arithmetic> delay(int entries) const {
    std::vector<delay_of<F>> raw(size_t(entries), delay_of<F>{});
    EXPECT_EQ(call<F::get_delay>(static_cast<const typename F::state*>(state_), raw.data()), tavStatusOk);
    std::vector<typename F::arithmetic> values(raw.size());
    static_assert(sizeof(raw[0]) == sizeof(values[0]));
    memcpy(static_cast<void*>(values.data()), raw.data(), raw.size() * sizeof(raw[0]));
    return values;
  }

 private:
  typename F::state* state_ = nullptr;
  TavStatus          status_;
};

// Samples of ordinary size.
template <class F> std::vector<typename F::sample> noise(size_t n, source_of_data& data) {
  using D              = typename F::sample;
  using P              = part_of<D>;
  const double   peak  = takes_scale<F> ? sizeof(P) == 2 ? 20000 : 1e9 : 1;
  const auto     value = [&] { return P(peak * (double(int32_t(data.bits())) / 2147483648.0)); };
  std::vector<D> v(n);
  for (D& x : v) {
    if constexpr (is_pair<D>)
      x = {value(), value()};
    else
      x = value();
  }
  return v;
}

}  // namespace test
