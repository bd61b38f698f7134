// tavsIIR_Direct_16s, tavsIIROne_Direct_16s: filters of arbitrary order without a state, with taps of 16 bits and a
// binary exponent in place of a[0].
#include "filter/iir/direct.h"
#include "filter/iir/workers.h"
#include "vector/arithmetic_ops.h"

namespace tav::TAV_VARIANT {
namespace iir {

// Taps b[0] ... b[N], a[0] ... a[N].
inline int exponent_of(const Tav16s* taps, int order) { return peek(taps + size_t(order) + 1); }

template <class... P> TavStatus check_direct(int order, const Tav16s* taps, const P*... p) {
  if (order < 1) return tavStatusBadIirOrder;
  if (any_null(taps, p...)) return tavStatusNullPointer;
  return exponent_of(taps, order) < 0 ? tavStatusBadTapScale : tavStatusOk;
}

// The taps of a state: those of the call times 2^-a[0], and 1 for a[0].
inline void tap_values(const Tav16s* taps, size_t order, Tav32f* out) {
  const direct_exponent by(exponent_of(taps, int(order)));
  for (size_t k = 0; k < 2 * order + 2; ++k) out[k] = k == order + 1 ? 1.0f : by.value(peek(taps + k));
}

inline TavStatus filter_direct(const Tav16s* src, Tav16s* dst, int len, const Tav16s* taps, int order, Tav32s* dly) {
  if (const TavStatus bad = check_direct(order, taps, src, dst, dly)) return bad;
  if (len < 1) return tavStatusBadSize;
  const direct_exponent  by(exponent_of(taps, order));
  const round_to_nearest scope;
  return with_direct_state<arbitrary_order>(
      order, [&](Tav32f* values) { tap_values(taps, size_t(order), values); },
      [&](IIRState32f_16s* state) {
        Tav32f* const d = opened(state).delay;
        for (size_t i = 0; i < size_t(order); ++i) d[i] = by.value(peek(dly + i));
        run_mixed(state, src, dst, size_t(len), output_stage<IIRState32f_16s>(0));
        for (size_t i = 0; i < size_t(order); ++i) poke(dly + i, by.nearest_integer(d[i]));
      });
}

inline TavStatus filter_direct_in_place(Tav16s* srcDst, int len, const Tav16s* taps, int order, Tav32s* dly) {
  return filter_direct(srcDst, srcDst, len, taps, order, dly);
}

inline TavStatus filter_one_direct(Tav16s val, Tav16s* dst, const Tav16s* taps, int order, Tav32s* dly) {
  if (const TavStatus bad = check_direct(order, taps, dst, dly)) return bad;
  const unsigned      s = unsigned(exponent_of(taps, order)) & 31;
  const Tav16s *const b = taps, *const a = taps + size_t(order) + 1;
  const size_t last = size_t(order) - 1;

  const Tav32s y     = direct_output(wrapped_product(peek(b), val) + Tav32u(peek(dly)), s);
  const auto   entry = [&](size_t i) {
    return wrapped_product(peek(b + i + 1), val) - wrapped_product(peek(a + i + 1), y);
  };
  for (size_t i = 0; i < last; ++i) poke(dly + i, Tav32s(entry(i) + Tav32u(peek(dly + i + 1))));
  poke(dly + last, Tav32s(entry(last)));
  poke(dst, saturated_16s(y));
  return tavStatusOk;
}

inline TavStatus filter_one_direct_in_place(Tav16s* srcDst, const Tav16s* taps, int order, Tav32s* dly) {
  if (const TavStatus bad = check_direct(order, taps, srcDst, dly)) return bad;
  return filter_one_direct(peek(srcDst), srcDst, taps, order, dly);
}

}  // namespace iir

TAV_BIND(IIR_Direct_16s, &iir::filter_direct)
TAV_BIND(IIR_Direct_16s_I, &iir::filter_direct_in_place)
TAV_BIND(IIROne_Direct_16s, &iir::filter_one_direct)
TAV_BIND(IIROne_Direct_16s_I, &iir::filter_one_direct_in_place)

}  // namespace tav::TAV_VARIANT
