// The one shape of every element-wise kernel.
//
//   less than a vector ... scalar loop
//   short arrays ......... rounds of a few vectors each, then halves of a round, wherever dst lies
//   long arrays .......... the same from the first 16-byte boundary of dst on, if the operation is cheap; past a limit
//                          the rounds bypass the cache
//   last vector .......... ends with the array, over what stands there already
//
// The last vector, and the first of a long array, overlap their neighbours; all vectors that read an element are
// computed before it is written, so that dst may be a source. A dst that is not on its element size never reaches a
// boundary and counts as short. Sources are loaded unaligned in every loop: measured, loops for aligned sources are no
// faster, only more code.
//
// An operation is a struct with `shape`, `one(elements...)` for the scalar loop and `many(registers...)` for a vector,
// which must agree bit for bit. If it can warn, it remembers what it met and tells it by `status()`; it meets some
// elements twice.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT {

inline constexpr size_t never = ~size_t(0);

struct kernel_shape {
  int    round_bytes;           // bytes of dst in one round of the main loop
  int    step         = 0;      // elements in one call of many(); 0: as many as one register of dst holds
  size_t stream_above = never;  // rounds above which stores bypass the cache
};

struct self {};  // as a source: the destination itself (in-place forms)

template <class Op, class D> inline constexpr int step_of = Op::shape.step == 0 ? lanes<D> : Op::shape.step;

template <class D, class S> TAV_INLINE auto element(D* dst, S src, size_t i) {
  if constexpr (std::is_same_v<S, self>)
    return peek(dst + i);
  else
    return peek(src + i);
}

template <access Store, int N, class D, class S> TAV_INLINE auto elements(D* dst, S src, size_t i) {
  if constexpr (std::is_same_v<S, self>)
    return load < Store == access::unaligned ? access::unaligned : access::aligned, N > (dst + i);
  else
    return load<access::unaligned, N>(src + i);
}

// Next to stores that bypass the cache the processor's own prefetch lags behind: asking for the sources makes sums of
// two arrays 2 to 7 % faster from memory. Farther ahead gains more on huge pages but loses on small ones. A prefetch
// may point behind an array; it never faults.
template <class S> TAV_INLINE void ask_ahead(const S* src, size_t i) {
  constexpr size_t bytes_ahead = 256;
  _mm_prefetch(reinterpret_cast<const char*>(src + i) + bytes_ahead, _MM_HINT_T0);
}

template <class Op, class D> inline constexpr int round_of = Op::shape.round_bytes / int(sizeof(D));

// Count elements from `at` on.
template <access Store, int Count, class Op, class D, class... S>
TAV_INLINE void vectors(Op& op, D* dst, size_t at, S... src) {
  constexpr int step = step_of<Op, D>;
  static_assert(Count >= step && Count % step == 0);
#pragma GCC unroll 16
  for (int k = 0; k < Count; k += step) store<Store>(dst + at + k, op.many(elements<Store, step>(dst, src, at + k)...));
}

// Half a round, a quarter and so on, until no more than a vector is left.
template <access Store, int Count, class Op, class D, class... S>
TAV_INLINE void parts_of_round(Op& op, D* dst, size_t at, size_t len, S... src) {
  if constexpr (Count >= step_of<Op, D>) {
    if (at + Count < len) {
      vectors<Store, Count>(op, dst, at, src...);
      at += Count;
    }
    parts_of_round<Store, Count / 2>(op, dst, at, len, src...);
  }
}

// Where rounds from `at` on end, if something is to be left behind them.
template <int Round> TAV_INLINE size_t end_of_rounds(size_t at, size_t len) {
  return at + (len - at - 1) / Round * Round;
}

// All from `at` on; at least a vector. The last one ends with the array: it is computed before anything is written,
// for dst may be a source.
template <access Store, class Op, class D, class... S>
TAV_INLINE void to_end(Op& op, D* dst, size_t at, size_t len, S... src) {
  constexpr int step = step_of<Op, D>, round = round_of<Op, D>;
  const auto    last = op.many(elements<access::unaligned, step>(dst, src, len - step)...);
  for (const size_t end = end_of_rounds<round>(at, len); at != end; at += round)
    vectors<Store, round>(op, dst, at, src...);
  parts_of_round<Store, round / 2>(op, dst, at, len, src...);
  __asm__("" : "+r"(len));  // or the place of the last vector would take one of the few registers all the time
  store<access::unaligned>(dst + len - step, last);
}

// Rounds that bypass the cache. Returns where they end, which leaves a vector at least.
template <class Op, class D, class... S>
TAV_INLINE size_t streamed_rounds(Op& op, D* dst, size_t at, size_t len, S... src) {
  constexpr int round = round_of<Op, D>;
  for (const size_t end = end_of_rounds<round>(at, len - step_of<Op, D>); at != end; at += round) {
    (ask_ahead(src, at), ...);
    vectors<access::streaming, round>(op, dst, at, src...);
  }
  return at;
}

template <class Op> TAV_INLINE TavStatus status_of(const Op& op) {
  if constexpr (requires { op.status(); })
    return op.status();
  else
    return tavStatusOk;
}

// In place the loads have brought the destination into the cache already.
template <class Op, class... S>
inline constexpr bool may_stream = Op::shape.stream_above != never && !(std::is_same_v<S, self> || ...);

// From the first boundary on.
template <class Op, class D, class... S>
TAV_APART TavStatus long_elementwise(const Op& given, D* dst, size_t len, S... src) {
  constexpr int step   = step_of<Op, D>;
  Op            op     = given;
  size_t        at     = -(reinterpret_cast<uintptr_t>(dst) / sizeof(D)) & (lanes<D> - 1);
  const auto    first  = op.many(elements<access::unaligned, step>(dst, src, 0)...);
  const auto    second = op.many(elements<access::unaligned, step>(dst, src, at)...);
  store<access::unaligned>(dst, first);
  store<access::aligned>(dst + at, second);
  at += step;
  if constexpr (may_stream<Op, S...>)
    if (len - at > Op::shape.stream_above * round_of<Op, D>) at = streamed_rounds(op, dst, at, len, src...);
  to_end<access::aligned>(op, dst, at, len, src...);
  return status_of(op);
}

// Up to so many bytes, reaching a boundary costs more than stores across lines. Where a round is one register the
// computation takes so long that it never pays.
inline constexpr size_t                   short_array      = 1024;
template <class Op> inline constexpr bool reaches_boundary = Op::shape.round_bytes > 16;

template <class Op, class D, class... S> TAV_INLINE TavStatus elementwise(Op op, D* dst, size_t len, S... src) {
  if (__builtin_expect(len < step_of<Op, D>, false)) {
    for (size_t i = 0; i < len; ++i) poke(dst + i, D(op.one(element(dst, src, i)...)));
    return status_of(op);
  }
  if constexpr (reaches_boundary<Op>)
    if (len > short_array / sizeof(D) && reinterpret_cast<uintptr_t>(dst) % sizeof(D) == 0)
      return long_elementwise(Op(op), dst, len, src...);
  to_end<access::unaligned>(op, dst, 0, len, src...);
  return status_of(op);
}

}  // namespace tav::TAV_VARIANT
