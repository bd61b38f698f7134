// The comparison sort of a view, ascending: what is in order already, or in order from behind, is seen at once.
#pragma once
#include "stats/sort/quicksort.h"

namespace tav::TAV_VARIANT::sorting {

// Whether no element is above the next one, or none below.
enum class run { up, down };

template <run Run, class V> TAV_INLINE unsigned breaks(V a, V next) {
  return bits_of<V>(Run == run::up ? above(a, next) : above(next, a));
}

template <run Run, class View> bool is_run(View a, size_t n) {
  constexpr size_t lanes = View::vector::lanes;
  size_t           i     = 1;
  for (; i + lanes <= n; i += lanes)
    if (breaks<Run>(a.load(i - 1), a.load(i)) != 0) return false;
  for (; i < n; ++i)
    if ((breaks<Run>(a.load_one(i - 1), a.load_one(i)) & 1) != 0) return false;
  return true;
}

template <class View> void turn_round(View a, size_t n) {
  using V                = typename View::vector;
  constexpr size_t lanes = V::lanes;
  const __m128i    order = constant(lane_pairs<V::bytes, V::lanes - 1>::order);
  size_t           low = 0, high = n;
  for (; high - low >= 2 * lanes; low += lanes) {
    high -= lanes;
    const V first = a.load(low), last = a.load(high);
    a.store(low, shuffled(last, order));
    a.store(high, shuffled(first, order));
  }
  for (; high - low >= 2; ++low) {
    --high;
    const V first = a.load_one(low), last = a.load_one(high);
    a.store_one(low, last);
    a.store_one(high, first);
  }
}

template <class View> void sort(View a, size_t n) {
  if (is_run<run::up>(a, n)) return;
  if (is_run<run::down>(a, n)) return turn_round(a, n);
  quicksort(a, n, patience_for(n));
}

}  // namespace tav::TAV_VARIANT::sorting
