// The one shape of every reduction: one or several arrays, read once, become one result.
//
//   rounds ............... one vector for each of the partial results, which hide each other's latency
//   steps ................ what is left in whole vectors, all into the first partial result
//   joining .............. the partial results in pairs, some before the steps, then the lanes
//   tail ................. element by element, behind the lanes
//
// All loads are unaligned, so the order of operations depends on the length alone: a result repeats bit for bit
// wherever the arrays lie.
//
// An operation is a struct with
//
//   partial ........................ the type of a partial result: a register, or a struct of some
//   shape .......................... below
//   partial start() const .......... what every partial result begins with
//   void many(partial&, registers...) const
//   void join(partial&, const partial&) const     if there are several partial results
//   auto total(const partial&) const  across the lanes
//   void one(total&, elements...) const
//
// Where reading an element twice does no harm (extrema), `tail_again` replaces the tail by one vector that ends at the
// last element; one() then only serves arrays shorter than a vector.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT {

struct reduce_shape {
  int  step;                // elements of each array in one call of many()
  int  partials   = 4;      // 1, 2, 4 or 8; 1 where additions are so short that none waits
  bool tail_again = false;  // the last elements are read again, in a vector, instead of one by one
};

template <class R>
inline constexpr bool is_register =
    std::is_same_v<R, __m128i> || std::is_same_v<R, __m128> || std::is_same_v<R, __m128d>;

// Keeps a result in one register: where intrinsics have lanes go on as lanes of another type, the compiler would hold
// it twice, spill a register, and align the stack of 32-bit code for that.
template <class R> TAV_INLINE R in_register(R v) {
  if constexpr (is_register<R>) __asm__("" : "+x"(v));
  return v;
}

// The same for a result whose operand x stays as it is, so that the result takes the register of the other operand.
TAV_INLINE __m128i in_register(__m128i v, __m128i x) {
  __asm__("" : "+x"(v) : "x"(x));
  return v;
}

// What does not wait for the first partial result is joined before the steps, which then need few registers. Where
// there are enough, the loops of integers are better off without.
template <class Op>
inline constexpr bool joins_early = sizeof(void*) == 4 || !std::is_same_v<typename Op::partial, __m128i>;

template <class Op, class P> TAV_INLINE void join_pair(const Op& op, P& p, const P& q) {
  if constexpr (sizeof(void*) == 4) {
    op.join(p, in_register(q));
    p = in_register(p);
  } else {
    op.join(p, q);
  }
}

template <class Op, class P, int Partials> TAV_INLINE void join_others(const Op& op, P (&p)[Partials]) {
  if constexpr (Partials == 8) join_pair(op, p[1], p[5]), join_pair(op, p[2], p[6]), join_pair(op, p[3], p[7]);
  if constexpr (Partials >= 4) join_pair(op, p[1], p[3]);
}

template <class Op, class... S> TAV_INLINE auto reduce(const Op& op, size_t len, const S*... src) {
  constexpr int step = Op::shape.step, partials = Op::shape.partials;
  static_assert(partials == 1 || partials == 2 || partials == 4 || partials == 8);

  typename Op::partial p[partials];
// clang-format off
#pragma GCC unroll 16
  // clang-format on
  for (int k = 0; k < partials; ++k) p[k] = op.start();

  size_t done = 0;
  for (const size_t rounds = len / (partials * step) * (partials * step); done != rounds; done += partials * step) {
#pragma GCC unroll 16
    for (int k = 0; k < partials; ++k) op.many(p[k], load<access::unaligned, step>(src + done + k * step)...);
  }

  if constexpr (joins_early<Op>) join_others(op, p);
  for (; len - done >= size_t(step); done += step) op.many(p[0], load<access::unaligned, step>(src + done)...);
  if constexpr (Op::shape.tail_again) {
    if (done != len && len >= size_t(step)) {
      op.many(p[0], load<access::unaligned, step>(src + len - step)...);
      done = len;
    }
  }
  if constexpr (partials == 8) join_pair(op, p[0], p[4]);
  if constexpr (partials >= 4) join_pair(op, p[0], p[2]);
  if constexpr (!joins_early<Op>) join_others(op, p);
  if constexpr (partials >= 2) join_pair(op, p[0], p[1]);

  auto total = op.total(p[0]);
  for (; done < len; ++done) op.one(total, peek(src + done)...);
  return total;
}

// Long arrays in blocks of at most `Block` elements, each given to run(count, block...): for sums whose lanes, or whose
// precision, hold no more.
template <size_t Block, class Run, class... S> TAV_INLINE void in_blocks(const Run& run, size_t len, const S*... src) {
  size_t done = 0;
  for (; len - done > Block; done += Block) run(Block, src + done...);
  run(len - done, src + done...);
}

}  // namespace tav::TAV_VARIANT
