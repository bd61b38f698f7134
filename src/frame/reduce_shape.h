// The one shape of every reduction: one or several arrays, read once, become one result.
//
//   rounds ............... one vector for each of the partial results, which hide each other's latency
//   steps ................ what is left in whole vectors, all into the first partial result
//   joining .............. the partial results in pairs, then the lanes
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
  int  partials   = 4;      // a power of two; 1 where additions are so short that none waits
  bool tail_again = false;  // the last elements are read again, in a vector, instead of one by one
};

template <class Op, class... S> TAV_INLINE auto reduce(const Op& op, size_t len, const S*... src) {
  constexpr int step = Op::shape.step, partials = Op::shape.partials;
  static_assert((partials & (partials - 1)) == 0);

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
  for (; len - done >= size_t(step); done += step) op.many(p[0], load<access::unaligned, step>(src + done)...);
  if constexpr (Op::shape.tail_again) {
    if (done != len && len >= size_t(step)) {
      op.many(p[0], load<access::unaligned, step>(src + len - step)...);
      done = len;
    }
  }

  if constexpr (partials > 1) {
#pragma GCC unroll 4
    for (int half = partials / 2; half > 0; half /= 2)
#pragma GCC unroll 8
      for (int k = 0; k < half; ++k) op.join(p[k], p[k + half]);
  }

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
