// The Direct calls with taps of 16 bits, fractions of 15 bits.
//
// The block call and the one for a single sample keep their delay lines in different orders, and must not be mixed on
// one: the block call has N samples from the index on, the newest first, and leaves the index at 0; the other has the
// ring of 2 N entries of all Direct calls.
#include "filter/fir/direct_calls.h"
#include "filter/fir/word_calls.h"
#include "filter/fir/word_planes.h"
#include "frame/bind.h"

namespace tav::TAV_VARIANT {
namespace {

constexpr int fraction_bits = 15;

TavStatus check_direct_16s(int len, const Tav16s* taps, int tapsLen, const Tav16s* dly, const int* dlyIndex,
                           const Tav16s* src, const Tav16s* dst) {
  if (const TavStatus bad = fir::check_direct(len, taps, tapsLen, dly, dlyIndex, src, dst)) return bad;
  const int index = peek(dlyIndex);
  return index < 0 || index >= tapsLen ? tavStatusBadDlyIndex : tavStatusOk;
}

// By a state of its own, with the taps as they are.
TavStatus direct_16s(const Tav16s* src, Tav16s* dst, int len, const Tav16s* taps, int tapsLen, Tav16s* dly,
                     int* dlyIndex, int scaleFactor) {
  if (const TavStatus bad = check_direct_16s(len, taps, tapsLen, dly, dlyIndex, src, dst)) return bad;
  FIRState32s_16s* state     = nullptr;
  const auto       take_taps = [&](auto& r) {
    for (int k = 0; k < tapsLen; ++k) r.taps[k] = peek(taps + k);
    r.scale = -fraction_bits;
    fir::fill_list(r);
  };
  if (const TavStatus bad = fir::allocate_words(&state, tapsLen, dly + peek(dlyIndex), take_taps)) return bad;
  fir::words_block(src, dst, len, state, scaleFactor);
  fir::get_delay(state, dly);
  poke(dlyIndex, 0);
  return fir::free_state(state);
}
TavStatus direct_16s_in_place(Tav16s* srcDst, int len, const Tav16s* taps, int tapsLen, Tav16s* dly, int* dlyIndex,
                              int scaleFactor) {
  return direct_16s(srcDst, srcDst, len, taps, tapsLen, dly, dlyIndex, scaleFactor);
}

TavStatus one_direct_16s(Tav16s val, Tav16s* dst, const Tav16s* taps, int tapsLen, Tav16s* dly, int* dlyIndex,
                         int scaleFactor) {
  using form = fir::direct_form<Tav16s, Tav16s, fir::word_planes<Tav16s, Tav16s>, fir::word_stage>;
  if (const TavStatus bad = check_direct_16s(1, taps, tapsLen, dly, dlyIndex, dst, dst)) return bad;
  const fir::word_stage stage(-fraction_bits, scaleFactor);
  return fir::filter_one_by<form>(val, dst, taps, tapsLen, dly, dlyIndex, stage);
}
TavStatus one_direct_16s_in_place(Tav16s* srcDst, const Tav16s* taps, int tapsLen, Tav16s* dly, int* dlyIndex,
                                  int scaleFactor) {
  if (!srcDst) return tavStatusNullPointer;
  return one_direct_16s(peek(srcDst), srcDst, taps, tapsLen, dly, dlyIndex, scaleFactor);
}

}  // namespace

TAV_BIND(FIR_Direct_16s_Sfs, &direct_16s)
TAV_BIND(FIR_Direct_16s_ISfs, &direct_16s_in_place)
TAV_BIND(FIROne_Direct_16s_Sfs, &one_direct_16s)
TAV_BIND(FIROne_Direct_16s_ISfs, &one_direct_16s_in_place)

}  // namespace tav::TAV_VARIANT
