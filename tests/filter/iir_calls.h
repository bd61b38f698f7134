// The forms of the IIR filters of arbitrary order: their types and exports, calls that look the same for all of them,
// filters with known poles, and comparison with the definition.
#pragma once
#include <limits>

#include "harness/builds.h"
#include "harness/data.h"
#include "harness/parts.h"
#include "harness/tavcore_fake.h"
#include "oracle/iir.h"

namespace test {

template <class State, class Arithmetic, class Data, class Tap, auto* GetStateSize, auto* Init, auto* InitAlloc,
          auto* Free, auto* SetTaps, auto* GetDelay, auto* SetDelay, auto* Block, auto* InPlace, auto* One>
struct iir_form {
  using state                           = State;
  using arithmetic                      = Arithmetic;
  using data                            = Data;
  using tap                             = Tap;
  static constexpr auto* get_state_size = GetStateSize;
  static constexpr auto* init           = Init;
  static constexpr auto* init_alloc     = InitAlloc;
  static constexpr auto* free           = Free;
  static constexpr auto* set_taps       = SetTaps;
  static constexpr auto* get_delay      = GetDelay;
  static constexpr auto* set_delay      = SetDelay;
  static constexpr auto* block          = Block;
  static constexpr auto* in_place       = InPlace;
  static constexpr auto* one            = One;
};

#define TAV_IIR_FORM(suffix, arithmetic, data, tap, out, in)                                                \
  iir_form<IIRState##suffix, arithmetic, data, tap, &::tavsIIRGetStateSize##suffix, &::tavsIIRInit##suffix, \
           &::tavsIIRInitAlloc##suffix, &::tavsIIRFree##suffix, &::tavsIIRSetTaps##suffix,                  \
           &::tavsIIRGetDlyLine##suffix, &::tavsIIRSetDlyLine##suffix, &::tavsIIR##suffix##out,             \
           &::tavsIIR##suffix##in, &::tavsIIROne##suffix##out>
using iir_32f       = TAV_IIR_FORM(_32f, Tav32f, Tav32f, Tav32f, , _I);
using iir_32fc      = TAV_IIR_FORM(_32fc, Tav32fc, Tav32fc, Tav32fc, , _I);
using iir_32f_16s   = TAV_IIR_FORM(32f_16s, Tav32f, Tav16s, Tav32f, _Sfs, _ISfs);
using iir_32fc_16sc = TAV_IIR_FORM(32fc_16sc, Tav32fc, Tav16sc, Tav32fc, _Sfs, _ISfs);
using iir_32s_16s   = TAV_IIR_FORM(32s_16s, Tav32f, Tav16s, Tav32s, _Sfs, _ISfs);
using iir_32sc_16sc = TAV_IIR_FORM(32sc_16sc, Tav32fc, Tav16sc, Tav32sc, _Sfs, _ISfs);
using iir_64f       = TAV_IIR_FORM(_64f, Tav64f, Tav64f, Tav64f, , _I);
using iir_64fc      = TAV_IIR_FORM(_64fc, Tav64fc, Tav64fc, Tav64fc, , _I);
using iir_64f_32f   = TAV_IIR_FORM(64f_32f, Tav64f, Tav32f, Tav64f, , _I);
using iir_64fc_32fc = TAV_IIR_FORM(64fc_32fc, Tav64fc, Tav32fc, Tav64fc, , _I);
using iir_64f_32s   = TAV_IIR_FORM(64f_32s, Tav64f, Tav32s, Tav64f, _Sfs, _ISfs);
using iir_64fc_32sc = TAV_IIR_FORM(64fc_32sc, Tav64fc, Tav32sc, Tav64fc, _Sfs, _ISfs);
using iir_64f_16s   = TAV_IIR_FORM(64f_16s, Tav64f, Tav16s, Tav64f, _Sfs, _ISfs);
using iir_64fc_16sc = TAV_IIR_FORM(64fc_16sc, Tav64fc, Tav16sc, Tav64fc, _Sfs, _ISfs);
#undef TAV_IIR_FORM

using iir_forms =
    testing::Types<iir_32f, iir_32fc, iir_32f_16s, iir_32fc_16sc, iir_32s_16s, iir_32sc_16sc, iir_64f, iir_64fc,
                   iir_64f_32f, iir_64fc_32fc, iir_64f_32s, iir_64fc_32sc, iir_64f_16s, iir_64fc_16sc>;

template <class F> inline constexpr bool is_scaled    = std::is_integral_v<part_of<typename F::data>>;
template <class F> inline constexpr bool integer_taps = std::is_integral_v<part_of<typename F::tap>>;
inline constexpr int                     taps_factor  = 20;  // of integer taps

template <class T> oracle::wide_complex wide(T v) {
  if constexpr (is_pair<T>)
    return {(long double)v.re, (long double)v.im};
  else
    return (long double)v;
}
template <class T> std::vector<oracle::wide_complex> wide(const std::vector<T>& v) {
  std::vector<oracle::wide_complex> all;
  for (const T& x : v) all.push_back(wide(x));
  return all;
}

template <class T> T narrow(oracle::wide_complex v) {
  if constexpr (is_pair<T>)
    return {part_of<T>(v.real()), part_of<T>(v.imag())};
  else
    return T(v.real());
}

// Taps as the interface takes them, and their values.
template <class F> struct iir_taps {
  using tap = typename F::tap;
  std::vector<tap> given;

  size_t order() const { return given.size() / 2 - 1; }

  std::vector<oracle::wide_complex> values() const {
    auto v = wide(given);
    if (integer_taps<F>)
      for (auto& x : v) x = {ldexpl(x.real(), -taps_factor), ldexpl(x.imag(), -taps_factor)};
    return v;
  }

  static iir_taps of(std::vector<oracle::wide_complex> v) {
    iir_taps t;
    for (auto& x : v) {
      if (integer_taps<F>) x = {roundl(ldexpl(x.real(), taps_factor)), roundl(ldexpl(x.imag(), taps_factor))};
      t.given.push_back(narrow<tap>(x));
    }
    return t;
  }

  // b[0] = a[0] = 1, all else 0: what comes out is what went in.
  static iir_taps identity(size_t order) {
    std::vector<oracle::wide_complex> v(2 * order + 2);
    v[0] = v[order + 1] = 1;
    return of(v);
  }

  // Poles of up to that radius, at angles that spread over the circle; any taps b; a[0] near 2. The coefficients of
  // high orders are too ill-conditioned to come from poles: small ones keep the poles inside.
  static iir_taps drawn(size_t order, long double radius, source_of_data& data) {
    const auto                        unit = [&] { return (long double)(int32_t(data.bits())) / 0x80000000u; };
    std::vector<oracle::wide_complex> a{1};
    const auto                        times = [&](const std::vector<oracle::wide_complex>& p) {
      std::vector<oracle::wide_complex> r(a.size() + p.size() - 1);
      for (size_t i = 0; i < a.size(); ++i)
        for (size_t k = 0; k < p.size(); ++k) r[i + k] += oracle::product(a[i], p[k]);
      a = r;
    };
    const bool   high = order > 20;
    const size_t left = high ? 0 : is_pair<tap> ? order : order / 2;
    for (size_t i = 0; i < left; ++i) {
      const long double half  = is_pair<tap> ? 6.2831853L : 3.1415926L,
                        angle = half * ((long double)i + 0.5L + unit() / 4) / (long double)left;
      if (is_pair<tap>)
        times({1, {-radius * cosl(angle), -radius * sinl(angle)}});
      else
        times({1, -2 * radius * cosl(angle), radius * radius});
    }
    if (!high && a.size() <= order) times({1, -radius * unit()});
    while (a.size() <= order)
      a.push_back({radius * unit() / (2 * order), is_pair<tap> ? radius * unit() / (2 * order) : 0});
    std::vector<oracle::wide_complex> v;
    for (size_t k = 0; k <= order; ++k) v.push_back({unit(), is_pair<tap> ? unit() : 0});
    const oracle::wide_complex leading{2 + unit() / 2, is_pair<tap> ? unit() : 0};
    for (const auto& x : a) v.push_back(oracle::product(x, leading));
    return of(v);
  }
};

template <class F>
TavStatus init_alloc(typename F::state** s, const iir_taps<F>& taps, const typename F::tap* dly = nullptr) {
  if constexpr (integer_taps<F>)
    return call<F::init_alloc>(s, taps.given.data(), int(taps.order()), taps_factor, dly);
  else
    return call<F::init_alloc>(s, taps.given.data(), int(taps.order()), dly);
}
template <class F>
TavStatus init(typename F::state** s, const iir_taps<F>& taps, Tav8u* buf, const typename F::tap* dly = nullptr) {
  if constexpr (integer_taps<F>)
    return call<F::init>(s, taps.given.data(), int(taps.order()), taps_factor, dly, buf);
  else
    return call<F::init>(s, taps.given.data(), int(taps.order()), dly, buf);
}
template <class F> TavStatus set_taps(const iir_taps<F>& taps, typename F::state* s) {
  if constexpr (integer_taps<F>)
    return call<F::set_taps>(taps.given.data(), s, taps_factor);
  else
    return call<F::set_taps>(taps.given.data(), s);
}

enum class iir_call { block, in_place, one_by_one };

// Filters n samples from src to dst, which for the call in place hold the samples first.
template <class F>
void run(iir_call how, typename F::state* s, const typename F::data* src, typename F::data* dst, size_t n, int scale) {
  const auto with = [&](auto f) {
    if constexpr (is_scaled<F>)
      return f(scale);
    else
      return f();
  };
  if (how == iir_call::block) {
    ASSERT_EQ(with([&](auto... sf) { return call<F::block>(src, dst, int(n), s, sf...); }), tavStatusOk);
  } else if (how == iir_call::in_place) {
    if (n != 0) memmove(static_cast<void*>(dst), src, n * sizeof *dst);
    ASSERT_EQ(with([&](auto... sf) { return call<F::in_place>(dst, int(n), s, sf...); }), tavStatusOk);
  } else {
    for (size_t i = 0; i < n; ++i)
      ASSERT_EQ(with([&](auto... sf) { return call<F::one>(src[i], dst + i, s, sf...); }), tavStatusOk);
  }
}

// A state of InitAlloc for one scope.
template <class F> class iir_state {
 public:
  using tap = typename F::tap;

  explicit iir_state(const iir_taps<F>& taps, const tap* dly = nullptr) : order_(taps.order()) {
    EXPECT_EQ(init_alloc<F>(&state_, taps, dly), tavStatusOk);
  }
  ~iir_state() { EXPECT_EQ(call<F::free>(state_), tavStatusOk); }
  iir_state(const iir_state&)            = delete;
  iir_state& operator=(const iir_state&) = delete;

  typename F::state* get() const { return state_; }
  std::vector<tap>   delay() const {
      std::vector<tap> d(order_);
      EXPECT_EQ(call<F::get_delay>(state_, d.data()), tavStatusOk);
      return d;
  }
  void set_delay(const tap* d) const { EXPECT_EQ(call<F::set_delay>(state_, d), tavStatusOk); }

 private:
  size_t             order_;
  typename F::state* state_ = nullptr;
};

// Delay lines of integer taps carry the bits of floats.
template <class F> std::vector<oracle::wide_complex> delay_values(const std::vector<typename F::tap>& d) {
  std::vector<typename F::arithmetic> v(d.size());
  memcpy(static_cast<void*>(v.data()), d.data(), d.size() * sizeof(d[0]));
  return wide(v);
}

template <class F> oracle::iir oracle_of(const iir_taps<F>& taps) {
  return oracle::iir(taps.values(), std::numeric_limits<part_of<typename F::arithmetic>>::epsilon());
}

// By what an output stage multiplies: the low 7 bits of the factor's magnitude count.
template <class F> int exponent_of_scale(int s) {
  const int64_t magnitude = s < 0 ? -int64_t(s) : s, counts = magnitude % 128;
  return int(s < 0 ? counts : -counts);
}

// The nearest D, ties to even, saturated.
template <class D> D stored(long double v) {
  if constexpr (std::is_integral_v<D>) {
    const long double r = nearbyintl(v);
    return r >= (long double)std::numeric_limits<D>::max()   ? std::numeric_limits<D>::max()
           : r <= (long double)std::numeric_limits<D>::min() ? std::numeric_limits<D>::min()
                                                             : D(r);
  } else {
    return D(v);
  }
}

// Whether a part lies between what the ends of the reference's interval are stored as.
template <class D> bool within(D got, long double value, long double error, int exponent) {
  return stored<D>(ldexpl(value - error, exponent)) <= got && got <= stored<D>(ldexpl(value + error, exponent));
}

template <class D> bool within(D got, const oracle::bounded& want, int exponent = 0) requires(!is_pair<D>) {
  return within<D>(got, want.value.real(), want.error, exponent);
}
template <class D> bool within(D got, const oracle::bounded& want, int exponent = 0) requires(is_pair<D>) {
  using part = part_of<D>;
  return within<part>(got.re, want.value.real(), want.error, exponent)
         && within<part>(got.im, want.value.imag(), want.error, exponent);
}

// Samples of ordinary size, of any size that integers have.
template <class D> std::vector<D> samples(size_t n, source_of_data& data) {
  std::vector<D> v(n);
  const auto     draw = [&](auto& x) {
    using T = std::remove_reference_t<decltype(x)>;
    if constexpr (std::is_floating_point_v<T>)
      x = T(int32_t(data.bits())) / T(0x80000000u);
    else
      x = data.value<T>();
  };
  for (D& x : v) {
    if constexpr (is_pair<D>)
      draw(x.re), draw(x.im);
    else
      draw(x);
  }
  return v;
}

}  // namespace test
