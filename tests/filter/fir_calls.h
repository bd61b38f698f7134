// The FIR filters with taps in floats by type: their exports, and calls that look the same with and without a scale
// factor.
#pragma once
#include "harness/arena.h"
#include "harness/builds.h"
#include "harness/data.h"
#include "harness/parts.h"
#include "harness/tavcore_fake.h"

namespace test {

template <class Taps, class Data, class State, auto* GetSize, auto* Init, auto* InitAlloc, auto* Free, auto* Block,
          auto* InPlace, auto* One, auto* GetTaps, auto* SetTaps, auto* GetDly, auto* SetDly>
struct fir_family {
  using taps                        = Taps;
  using data                        = Data;
  using state                       = State;
  static constexpr auto* get_size   = GetSize;
  static constexpr auto* init       = Init;
  static constexpr auto* init_alloc = InitAlloc;
  static constexpr auto* free       = Free;
  static constexpr auto* block      = Block;
  static constexpr auto* in_place   = InPlace;
  static constexpr auto* one        = One;
  static constexpr auto* get_taps   = GetTaps;
  static constexpr auto* set_taps   = SetTaps;
  static constexpr auto* get_dly    = GetDly;
  static constexpr auto* set_dly    = SetDly;
};

#define TAV_FIR_FAMILY(form, taps, data, state, plain, self)                                                    \
  fir_family<taps, data, state, &::tavsFIRGetStateSize##form, &::tavsFIRInit##form, &::tavsFIRInitAlloc##form,  \
             &::tavsFIRFree##form, &::tavsFIR##form##plain, &::tavsFIR##form##self, &::tavsFIROne##form##plain, \
             &::tavsFIRGetTaps##form, &::tavsFIRSetTaps##form, &::tavsFIRGetDlyLine##form, &::tavsFIRSetDlyLine##form>

using fir_32f       = TAV_FIR_FAMILY(_32f, Tav32f, Tav32f, FIRState_32f, , _I);
using fir_32fc      = TAV_FIR_FAMILY(_32fc, Tav32fc, Tav32fc, FIRState_32fc, , _I);
using fir_64f       = TAV_FIR_FAMILY(_64f, Tav64f, Tav64f, FIRState_64f, , _I);
using fir_64fc      = TAV_FIR_FAMILY(_64fc, Tav64fc, Tav64fc, FIRState_64fc, , _I);
using fir_64f_32f   = TAV_FIR_FAMILY(64f_32f, Tav64f, Tav32f, FIRState64f_32f, , _I);
using fir_64fc_32fc = TAV_FIR_FAMILY(64fc_32fc, Tav64fc, Tav32fc, FIRState64fc_32fc, , _I);
using fir_32f_16s   = TAV_FIR_FAMILY(32f_16s, Tav32f, Tav16s, FIRState32f_16s, _Sfs, _ISfs);
using fir_32fc_16sc = TAV_FIR_FAMILY(32fc_16sc, Tav32fc, Tav16sc, FIRState32fc_16sc, _Sfs, _ISfs);
using fir_64f_32s   = TAV_FIR_FAMILY(64f_32s, Tav64f, Tav32s, FIRState64f_32s, _Sfs, _ISfs);
using fir_32s       = TAV_FIR_FAMILY(_32s, Tav32s, Tav32s, FIRState64f_32s, _Sfs, _ISfs);
using fir_64f_16s   = TAV_FIR_FAMILY(64f_16s, Tav64f, Tav16s, FIRState64f_16s, _Sfs, _ISfs);
using fir_64fc_32sc = TAV_FIR_FAMILY(64fc_32sc, Tav64fc, Tav32sc, FIRState64fc_32sc, _Sfs, _ISfs);
using fir_64fc_16sc = TAV_FIR_FAMILY(64fc_16sc, Tav64fc, Tav16sc, FIRState64fc_16sc, _Sfs, _ISfs);
#undef TAV_FIR_FAMILY

template <class F> inline constexpr bool is_integer = std::is_integral_v<part_of<typename F::data>>;
// The precision of the sums: that of the taps, or doubles where they are integers.
template <class F> inline constexpr bool in_singles = std::is_same_v<part_of<typename F::taps>, float>;

template <class F, class D = typename F::data>
TavStatus filter_block(const D* src, D* dst, int len, typename F::state* s, int scale) {
  if constexpr (is_integer<F>)
    return call<F::block>(src, dst, len, s, scale);
  else
    return call<F::block>(src, dst, len, s);
}
template <class F, class D = typename F::data>
TavStatus filter_in_place(D* srcDst, int len, typename F::state* s, int scale) {
  if constexpr (is_integer<F>)
    return call<F::in_place>(srcDst, len, s, scale);
  else
    return call<F::in_place>(srcDst, len, s);
}
template <class F, class D = typename F::data> TavStatus filter_one(D val, D* dst, typename F::state* s, int scale) {
  if constexpr (is_integer<F>)
    return call<F::one>(val, dst, s, scale);
  else
    return call<F::one>(val, dst, s);
}

// A filter of InitAlloc, or of Init in a buffer, for one scope.
template <class F> class fir_filter {
 public:
  using taps = typename F::taps;
  using data = typename F::data;
  explicit fir_filter(const std::vector<taps>& h, bool allocated = true, const data* dly = nullptr) {
    if (allocated) {
      EXPECT_EQ(call<F::init_alloc>(&state_, h.data(), int(h.size()), dly), tavStatusOk);
      return;
    }
    int size = 0;
    EXPECT_EQ(call<F::get_size>(int(h.size()), &size), tavStatusOk);
    memory_.resize(size_t(size));
    EXPECT_EQ(call<F::init>(&state_, h.data(), int(h.size()), dly, memory_.data()), tavStatusOk);
  }
  ~fir_filter() { EXPECT_EQ(call<F::free>(state_), tavStatusOk); }
  fir_filter(const fir_filter&)            = delete;
  fir_filter& operator=(const fir_filter&) = delete;

  typename F::state* get() const { return state_; }

 private:
  typename F::state* state_ = nullptr;
  std::vector<Tav8u> memory_;
};

// Integers of at most `size`, so that sums of few products are exact, and drawn values of all kinds otherwise.
template <class T> T whole(source_of_data& data, int size) {
  if constexpr (is_pair<T>)
    return {whole<part_of<T>>(data, size), whole<part_of<T>>(data, size)};
  else
    return T(data.below(2 * size + 1) - size);
}
// Anything within one, and of integers anything.
template <class T> T any_size(source_of_data& data) {
  if constexpr (is_pair<T>)
    return {any_size<part_of<T>>(data), any_size<part_of<T>>(data)};
  else if constexpr (std::is_integral_v<T>)
    return T(data.bits());
  else
    return T(int32_t(data.bits()) / 2147483648.0);
}
template <class T> std::vector<T> wholes(source_of_data& data, size_t n, int size) {
  std::vector<T> v(n);
  for (T& x : v) x = whole<T>(data, size);
  return v;
}
template <class T> std::vector<T> any_sizes(source_of_data& data, size_t n) {
  std::vector<T> v(n);
  for (T& x : v) x = any_size<T>(data);
  return v;
}

}  // namespace test
