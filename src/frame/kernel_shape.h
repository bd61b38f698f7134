// The one shape of every element-wise kernel.
//
//   short arrays ......... scalar loop
//   head ................. scalar, until dst reaches a 16-byte boundary
//   rounds ............... a few vector steps each; past a limit their stores bypass the cache
//   steps ................ what is left in whole vectors
//   tail ................. scalar
//
// A dst that is not on its element size has no head and stores unaligned throughout. Sources are loaded unaligned in
// every loop: measured, loops for aligned sources are no faster, only more code.
//
// An operation is a struct with `shape`, `one(elements...)` for the scalar parts and `many(registers...)` for a vector
// step, which must agree bit for bit. If it can warn, it remembers what it met and tells it by `status()`.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT {

inline constexpr size_t never = ~size_t(0);

struct kernel_shape {
  int    vector_from;           // below this length the scalar loop does all the work; at least a register less one
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

template <class Op, class D, class... S> TAV_INLINE void scalar_loop(Op& op, D* dst, size_t from, size_t to, S... src) {
  for (size_t i = from; i < to; ++i) poke(dst + i, D(op.one(element(dst, src, i)...)));
}

// Next to stores that bypass the cache the processor's own prefetch lags behind: asking for the sources makes sums of
// two arrays 2 to 7 % faster from memory. Farther ahead gains more on huge pages but loses on small ones. A prefetch
// may point behind an array; it never faults.
template <class S> TAV_INLINE void ask_ahead(const S* src, size_t i) {
  constexpr size_t bytes_ahead = 256;
  _mm_prefetch(reinterpret_cast<const char*>(src + i) + bytes_ahead, _MM_HINT_T0);
}

// Elements [from, from + count) in steps of `Steps` vectors at a time; count is a multiple of that.
template <access Store, int Steps, class Op, class D, class... S>
TAV_INLINE void vector_loop(Op& op, D* dst, size_t from, size_t count, S... src) {
  constexpr int step = step_of<Op, D>;
  for (const size_t end = from + count; from != end; from += Steps * step) {
    if constexpr (Store == access::streaming) (ask_ahead(src, from), ...);
#pragma GCC unroll 16
    for (int k = 0; k < Steps; ++k)
      store<Store>(dst + from + k * step, op.many(elements<Store, step>(dst, src, from + k * step)...));
  }
}

template <class Op> TAV_INLINE TavStatus status_of(const Op& op) {
  if constexpr (requires { op.status(); })
    return op.status();
  else
    return tavStatusOk;
}

template <access Store, class Op, class D, class... S>
TAV_INLINE void rounds_and_tail(Op& op, D* dst, size_t head, size_t rounds, size_t len, S... src) {
  constexpr size_t step = step_of<Op, D>, steps = Op::shape.round_bytes / (step * sizeof(D));
  static_assert(steps >= 1 && steps * step * sizeof(D) == size_t(Op::shape.round_bytes));
  vector_loop<Store, int(steps)>(op, dst, head, rounds * steps * step, src...);
  size_t done = head + rounds * steps * step;
  if constexpr (steps > 1) {
    constexpr access unstreamed = Store == access::streaming ? access::aligned : Store;
    const size_t     left       = (len - done) / step * step;
    vector_loop<unstreamed, 1>(op, dst, done, left, src...);
    done += left;
  }
  scalar_loop(op, dst, done, len, src...);
}

// In place the loads have brought the destination into the cache already.
template <class Op, class... S>
inline constexpr bool may_stream = Op::shape.stream_above != never && !(std::is_same_v<S, self> || ...);

// The operation comes by reference: for a tail call gcc would build it in the caller's own arguments, where the
// registers that it holds may lie unaligned in 32-bit code.
template <class Op, class D, class... S> TavStatus elementwise(const Op& given, D* dst, size_t len, S... src) {
  static_assert(Op::shape.vector_from >= lanes<D> - 1, "the head must fit into the shortest array that has one");
  Op op = given;
  if (len < size_t(Op::shape.vector_from)) {
    scalar_loop(op, dst, 0, len, src...);
    return status_of(op);
  }
  const auto   address    = reinterpret_cast<uintptr_t>(dst);
  const bool   on_element = address % sizeof(D) == 0;
  const size_t head       = on_element ? -((address & 15) / sizeof(D)) & (lanes<D> - 1) : 0;
  const size_t rounds     = (len - head) / (Op::shape.round_bytes / sizeof(D));

  scalar_loop(op, dst, 0, head, src...);
  if (!on_element) {
    rounds_and_tail<access::unaligned>(op, dst, head, rounds, len, src...);
    return status_of(op);
  }
  if constexpr (may_stream<Op, S...>) {
    if (rounds > Op::shape.stream_above) {
      rounds_and_tail<access::streaming>(op, dst, head, rounds, len, src...);
      return status_of(op);
    }
  }
  rounds_and_tail<access::aligned>(op, dst, head, rounds, len, src...);
  return status_of(op);
}

}  // namespace tav::TAV_VARIANT
