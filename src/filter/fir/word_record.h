// The record of the integer filters and how large its parts are. The sums are what size queries report, a promise to
// callers who bring their own memory, alike on all targets. They hold room that this record has no need of.
#pragma once
#include "filter/fir/record.h"
#include "filter/fir/traits.h"

namespace tav::TAV_VARIANT::fir {

template <class Tap, class Data> struct word_record : head {
  delay_line<Data> delay;  // behind one more place, which the first of the window is read together with
  int32_t          taps_len;
  int32_t          scale;  // results are sums times 2^scale
  Tap*             taps;   // as kept, h[0] first
  Tav16s*          list;   // the steps of the kernel
};

template <>
struct traits<FIRState_16s> : state_traits<Tav16s, Tav16s, record_id::fir_sr_16s, record_id::fir_mr_16s,
                                           record_id::fir_sr_stream_16s, record_id::fir_mr_stream_16s> {
  using record = word_record<Tav16s, Tav16s>;
};
template <>
struct traits<FIRState32s_16s> : state_traits<Tav32s, Tav16s, record_id::fir_sr_32s_16s, record_id::fir_mr_32s_16s> {
  using record = word_record<Tav32s, Tav16s>;
};
template <>
struct traits<FIRState32sc_16sc>
    : state_traits<Tav32sc, Tav16sc, record_id::fir_sr_32sc_16sc, record_id::fir_mr_32sc_16sc> {
  using record = word_record<Tav32sc, Tav16sc>;
};

// How many samples of a block go through the delay line: those whose windows begin there.
template <class Data> constexpr size_t first_stretch(size_t n) {
  return is_complex<Data> ? n + 1 : (n + 11) & ~size_t(7);
}

// In bytes; 64 bits, for a size is reported modulo 2^32 but never allocated so.
struct word_layout {
  uint64_t taps, delay, list;

  static constexpr uint64_t room = 16480;  // the record, the way to its boundary, and what nothing needs

  uint64_t total() const { return taps + delay + list + room; }
};

template <class Tap, class Data> constexpr word_layout words_layout(uint64_t n) {
  if constexpr (is_complex<Data>) return {(8 * n + 15) & ~15ull, (12 * n + 31) & ~15ull, 16 * n};
  const uint64_t stretch = first_stretch<Tav16s>(n);
  return {(n * sizeof(Tap) + 15) & ~15ull, ((2 * n + stretch) * 2 + 23) & ~15ull, stretch * 8};
}

template <class Tap, class Data> size_t step_count(const word_record<Tap, Data>& r) {
  return is_complex<Data> ? size_t(r.taps_len) : (size_t(r.taps_len) + 1) / 2;
}

// Lays the parts out behind the record, which stands on a boundary. Everything but the id, taps and samples.
template <class Tap, class Data> void lay_out(word_record<Tap, Data>* r, int n, origin from) {
  constexpr size_t  fixed = (sizeof *r + 15) & ~size_t(15);
  const word_layout l     = words_layout<Tap, Data>(uint64_t(n));
  Tav8u* const      parts = reinterpret_cast<Tav8u*>(r) + fixed;
  *r                      = {};
  r->from                 = from;
  r->taps_len = r->delay.len = n;
  r->list                    = reinterpret_cast<Tav16s*>(parts);
  r->taps                    = reinterpret_cast<Tap*>(parts + l.list);
  r->delay.ring              = reinterpret_cast<Data*>(parts + l.list + l.taps);
  *r->delay.ring++           = {};
}

}  // namespace tav::TAV_VARIANT::fir
