// The structure of a filter of arbitrary order: transposed direct form 2, with blocks by look-ahead.
#pragma once
#include "filter/iir/ar_kernels.h"

namespace tav::TAV_VARIANT::iir {

// What a record holds behind its head, in elements, and what that leaves for the way to an alignment. The sizes of
// states are a promise; there is more room than the tables take.
template <class A> struct ar_room;
template <> struct ar_room<Tav32f> {
  static constexpr uint64_t multiple = 16, slack = 72;
  static uint64_t           tables(uint64_t n, bool) { return 8 * n + 16; }
};
template <> struct ar_room<Tav32fc> {
  static constexpr uint64_t multiple = 32, slack = 128;
  static uint64_t           tables(uint64_t n, bool) { return 16 * n + 36; }
};
template <> struct ar_room<Tav64f> {
  static constexpr uint64_t multiple = 16, slack = 32;
  static uint64_t           tables(uint64_t n, bool) { return 6 * n + 14; }
};
template <> struct ar_room<Tav64fc> {
  static constexpr uint64_t multiple = 16, slack = 64;
  static uint64_t           tables(uint64_t n, bool mixed) { return 14 * n + 8 + (mixed ? 2 * n : n); }
};

template <class A> void ar_samples(iir_record<A>& r, const A* src, A* dst, size_t n) {
  for (size_t i = 0; i < n; ++i) poke(dst + i, ar_sample(r, peek(src + i)));
}

template <int Order, class A> void ar_look_ahead(iir_record<A>& r, const A* src, A* dst, size_t n) {
  const size_t order = size_t(r.delay_len);
  numerator<Order>(r.numerator, order, src, r.scratch, n - order);
  ar_samples(r, src, dst, order);
  for (size_t i = 0; i < order; ++i)  // read before dst, which may be src, is written
    r.delay[i] = part_of_delay(r.taps + 1, order, i, src + n);
  recursion<Order>(r.look_ahead, order, r.scratch, dst + order, n - order);
  for (size_t i = 0; i < order; ++i)
    r.delay[i] = minus(r.delay[i], part_of_delay(r.taps + order + 1, order, i, dst + n));
}

// For a short block the look-ahead costs more than it saves.
template <class A> void ar_block(iir_record<A>& r, const A* src, A* dst, size_t n) {
  const size_t order = size_t(r.delay_len);
  if (n <= 4 * order) return ar_samples(r, src, dst, n);
  switch (order) {
    case 1:
      return ar_look_ahead<1>(r, src, dst, n);
    case 2:
      return ar_look_ahead<2>(r, src, dst, n);
    case 3:
      return ar_look_ahead<3>(r, src, dst, n);
    default:
      return ar_look_ahead<0>(r, src, dst, n);
  }
}

struct arbitrary_order {
  template <class State> static constexpr record_id id    = form<State>::ar;
  template <class A> static constexpr uint64_t      slack = ar_room<A>::slack;

  static uint64_t                    tap_count(uint64_t n) { return 2 * n + 2; }
  template <class A> static uint64_t taps_of(const iir_record<A>& r) { return tap_count(unsigned(r.delay_len)); }

  template <class A> static void lay_out(iir_record<A>& r, iir_block& block, uint64_t n, bool mixed) {
    constexpr uint64_t multiple = ar_room<A>::multiple;
    r.delay_len                 = int32_t(n);
    r.delay                     = block.take<A>(n + 1, multiple);
    r.taps                      = block.take<A>(2 * n + 1, multiple);
    r.numerator                 = block.take<A>(ar_room<A>::tables(n, mixed));
    r.look_ahead                = iir_block::inside(r.numerator, (n + 1) * factor<A>::samples);
    r.scratch                   = block.take<A>(block_samples);
    if (mixed) r.history = block.take<A>(block_samples);
  }

  template <class A> static TavStatus set_taps(iir_record<A>& r, const A* taps) {
    // The entry behind the last one is no part of what the accessors move.
    r.delay[r.delay_len] = A{};
    return set_ar_taps(r, taps);
  }

  template <class A> static void run(iir_record<A>& r, const A* src, A* dst, size_t len) {
    for (size_t i = 0; i < len; i += block_samples)
      ar_block(r, src + i, dst + i, len - i < block_samples ? len - i : block_samples);
  }

  template <class A> static A one(iir_record<A>& r, A x) { return ar_sample(r, x); }

  template <class State> static constexpr size_t cut_off(const iir_record<arithmetic_of<State>>&, size_t) { return 0; }
};

}  // namespace tav::TAV_VARIANT::iir
