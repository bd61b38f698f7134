// tavsIIR_BiQuadDirect_16s, tavsIIROne_BiQuadDirect_16s: cascades without a state, with taps of 16 bits and in each
// section a binary exponent in place of a0.
#include "filter/iir/direct.h"
#include "filter/iir/workers.h"
#include "vector/arithmetic_ops.h"

namespace tav::TAV_VARIANT {
namespace iir {

enum section_tap { tap_b0, tap_b1, tap_b2, tap_a0, tap_a1, tap_a2 };

template <class... P> TavStatus check_cascade(int numBq, const P*... p) {
  if (numBq < 1) return tavStatusBadIirOrder;
  return any_null(p...) ? tavStatusNullPointer : tavStatusOk;
}

// Cascades whose taps come divided, and which may begin with a zero.
struct direct_biquads : biquads {
  static TavStatus set_taps(iir_record<Tav32f>& r, const Tav32f* taps) {
    for (int s = 0; s < r.sections; ++s, taps += section_taps_given) {
      const Tav32f normalised[] = {taps[tap_b0], taps[tap_b1], taps[tap_b2], taps[tap_a1], taps[tap_a2]};
      make_section(cascade_of(r), s, normalised);
    }
    return tavStatusOk;
  }
};

static bool any_exponent_negative(const Tav16s* taps, int numBq) {
  for (size_t s = 0; s < size_t(numBq); ++s)
    if (peek(taps + section_taps_given * s + tap_a0) < 0) return true;
  return false;
}

static direct_exponent section_exponent(const Tav16s* taps, size_t section) {
  return direct_exponent(peek(taps + section_taps_given * section + tap_a0));
}

static void filter_cascade(const Tav16s* src, Tav16s* dst, int len, const Tav16s* taps, IIRState32f_16s* state,
                           Tav32s* dly) {
  auto& r = opened(state);
  for (size_t i = 0; i < size_t(r.delay_len); ++i)
    r.delay[i] = section_exponent(taps, i / transposed_entries).value(peek(dly + i));
  run_mixed(state, src, dst, size_t(len), output_stage<IIRState32f_16s>(0));
  for (size_t i = 0; i < size_t(r.delay_len); ++i)
    poke(dly + i, section_exponent(taps, i / transposed_entries).cut_off_integer(r.delay[i]));
}

// The exponents are tested after the memory, which is given back then.
static TavStatus filter_biquads_direct(const Tav16s* src, Tav16s* dst, int len, const Tav16s* taps, int numBq,
                                       Tav32s* dly) {
  if (const TavStatus bad = check_cascade(numBq, src, dst, taps, dly)) return bad;
  if (len < 1) return tavStatusBadSize;
  const round_to_nearest scope;
  bool                   negative = false;
  const TavStatus        status   = with_direct_state<direct_biquads>(
      numBq,
      [&](Tav32f* values) {
        for (size_t k = 0; k < section_taps_given * size_t(numBq); ++k)
          values[k] = section_exponent(taps, k / section_taps_given).value(peek(taps + k));
      },
      [&](IIRState32f_16s* state) {
        negative = any_exponent_negative(taps, numBq);
        if (!negative) filter_cascade(src, dst, len, taps, state, dly);
      });
  return negative ? tavStatusBadTapScale : status;
}

static TavStatus filter_biquads_direct_in_place(Tav16s* srcDst, int len, const Tav16s* taps, int numBq, Tav32s* dly) {
  return filter_biquads_direct(srcDst, srcDst, len, taps, numBq, dly);
}

// In integers throughout, modulo 2^32; only the last output is saturated. What the sections before one with a bad
// exponent did to their delay lines stays.
static TavStatus filter_one_biquads_direct(Tav16s val, Tav16s* dst, const Tav16s* taps, int numBq, Tav32s* dly) {
  if (const TavStatus bad = check_cascade(numBq, dst, taps, dly)) return bad;
  Tav32s x = val;
  for (int s = 0; s < numBq; ++s, taps += section_taps_given, dly += transposed_entries) {
    const auto tap = [&](section_tap k) { return Tav32s(peek(taps + k)); };
    if (tap(tap_a0) < 0) return tavStatusBadTapScale;
    const Tav32s y     = direct_output(wrapped_product(tap(tap_b0), x) + Tav32u(peek(dly)), unsigned(tap(tap_a0)) & 31);
    const auto   entry = [&](section_tap b, section_tap a) {
      return wrapped_product(tap(b), x) - wrapped_product(tap(a), y);
    };
    poke(dly, Tav32s(entry(tap_b1, tap_a1) + Tav32u(peek(dly + 1))));
    poke(dly + 1, Tav32s(entry(tap_b2, tap_a2)));
    x = y;
  }
  poke(dst, saturated_16s(x));
  return tavStatusOk;
}

static TavStatus filter_one_biquads_direct_in_place(Tav16s* srcDst, const Tav16s* taps, int numBq, Tav32s* dly) {
  if (const TavStatus bad = check_cascade(numBq, srcDst, taps, dly)) return bad;
  return filter_one_biquads_direct(peek(srcDst), srcDst, taps, numBq, dly);
}

}  // namespace iir

TAV_BIND(IIR_BiQuadDirect_16s, &iir::filter_biquads_direct)
TAV_BIND(IIR_BiQuadDirect_16s_I, &iir::filter_biquads_direct_in_place)
TAV_BIND(IIROne_BiQuadDirect_16s, &iir::filter_one_biquads_direct)
TAV_BIND(IIROne_BiQuadDirect_16s_I, &iir::filter_one_biquads_direct_in_place)

}  // namespace tav::TAV_VARIANT
