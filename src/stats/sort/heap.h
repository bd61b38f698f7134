// The heap sort, for ranges whose pivots fail. One element at a time: it is hardly ever met.
#pragma once
#include "stats/sort/views.h"

namespace tav::TAV_VARIANT::sorting {

template <class V> TAV_INLINE bool is_above(V a, V b) { return (bits_of<V>(above(a, b)) & 1) != 0; }

// Lets v sink from the root of a heap of n elements, `at` being free.
template <class View> void sink(View a, size_t at, size_t n, typename View::vector v) {
  for (size_t child; (child = 2 * at + 1) < n; at = child) {
    if (child + 1 < n && is_above(a.load_one(child + 1), a.load_one(child))) ++child;
    if (!is_above(a.load_one(child), v)) break;
    a.store_one(at, a.load_one(child));
  }
  a.store_one(at, v);
}

template <class View> void heap_sort(View a, size_t n) {
  for (size_t i = n / 2; i-- > 0;) sink(a, i, n, a.load_one(i));
  while (n > 1) {
    --n;
    const auto last = a.load_one(n);
    a.store_one(n, a.load_one(0));
    sink(a, 0, n, last);
  }
}

}  // namespace tav::TAV_VARIANT::sorting
