// Partition of a range by vectors, within the range.
//
// A vector is compared with the pivot, its lanes are moved so that those that stay left come first, and it is stored
// whole at both ends of the free stretch in the middle: what is too much at either end is overwritten later. There is
// free room because a block from either end waits on the stack. Of the two sides, the next block is read from the one
// with less room left, so that either has room for a block; a choice that is computed, for a branch would be guessed
// wrong half of the time. A short range waits on the stack as a whole.
#pragma once
#include <utility>

#include "stats/sort/partition_tables.h"
#include "stats/sort/views.h"

namespace tav::TAV_VARIANT::sorting {

// What goes to the right of a pivot: what is greater, or also what is equal.
enum class right_of { greater, not_less };

template <right_of Rule, class V, class Pivot> TAV_INLINE unsigned rights(V v, Pivot pivot) {
  if constexpr (Rule == right_of::greater)
    return bits_of<V>(above(v, pivot));
  else
    return bits_of<V>(above(pivot, v)) ^ ((1u << V::lanes) - 1);
}

// The choice of a side waits for the block before: shorter blocks take longer in all, longer ones gain nothing.
inline constexpr int block_vectors = 8;

template <class V> inline constexpr size_t block_of = size_t(block_vectors) * V::lanes;

// Where the next elements go: to `left` or in front of left + gap, where gap counts what is not placed yet.
template <right_of Rule, class View> class divider {
 public:
  using V     = typename View::vector;
  using pivot = typename V::alone;

  TAV_INLINE divider(View to, pivot p, size_t left, size_t gap) : to_(to), pivot_(p), left_(left), gap_(gap) {}

  // Needs free room for a vector at either end, which must not overlap.
  TAV_INLINE void take(V v) {
    constexpr const auto& moves = moves_of<V::bytes>;
    const unsigned        right = rights<Rule>(v, pivot_);
    const V               moved = shuffled(v, moves.order(right));
    gap_ -= V::lanes;
    to_.store(left_, moved);
    to_.store(left_ + gap_, moved);
    left_ += moves.stay[right];
  }
  TAV_INLINE void take_one(V v) {
    const unsigned right = rights<Rule>(v, pivot_) & 1;
    --gap_;
    to_.store_one(left_, v);
    to_.store_one(left_ + gap_, v);
    left_ += 1 - right;
  }
  TAV_INLINE size_t left() const { return left_; }

 private:
  View   to_;
  pivot  pivot_;
  size_t left_, gap_;
};

// Divides the elements from `low` to before `high`. Returns where the right part begins.
template <right_of Rule, class View>
__attribute__((noinline)) size_t divide(View a, size_t low, size_t high, typename View::vector::alone pivot) {
  using V                = typename View::vector;
  constexpr size_t lanes = V::lanes, block = block_of<V>;

  waiting_room<V, int(3 * block)> room;
  const auto                      waiting = room.view();
  divider<Rule, View>             to(a, pivot, low, high - low);
  size_t                          from = low, until = high, aside = 0;  // what is still to be read in place
  if (high - low > 3 * block) {
    copy_elements(a.from(low), waiting, block);
    copy_elements(a.from(high - block), waiting.from(block), block);
    aside = 2 * block, from += block, until -= block;
    do {
      const size_t left = 0 - size_t(from - to.left() <= block);  // all bits or none
      const size_t step = (lanes & left) - (lanes & ~left);
      const size_t next = (from & left) | ((until - lanes) & ~left);
      from += block & left;
      until -= block & ~left;
      // Forced inline, for a call here would keep all that `to` counts in memory.
      [&]<size_t... K>(std::index_sequence<K...>) __attribute__((always_inline)) {
        (to.take(a.load(next + K * step)), ...);
      }
      (std::make_index_sequence<size_t(block_vectors)>{});
    } while (until - from >= block);
  }

  copy_elements(a.from(from), waiting.from(aside), until - from);
  aside += until - from;
  size_t i = 0;
  for (; i + 2 * lanes <= aside; i += lanes) to.take(waiting.load(i));
  for (; i < aside; ++i) to.take_one(waiting.load_one(i));
  return to.left();
}

}  // namespace tav::TAV_VARIANT::sorting
