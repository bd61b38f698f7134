// The comparison sort: ascending, in place, by partition down to what sorting networks take.
//
// The pivot is the middle of a sample. Where it is the greatest key of its range, a second partition takes all keys
// equal to it out, so that few distinct keys make few passes and equal keys two. If pivots are bad again and again, as
// they are for input made to that end, what is left is sorted by a heap: the time is within n log n for any input.
#pragma once
#include "stats/sort/heap.h"
#include "stats/sort/network.h"
#include "stats/sort/partition.h"
#include "stats/sort/ranges.h"

namespace tav::TAV_VARIANT::sorting {

inline constexpr int most_rows = 16;

template <class V> inline constexpr size_t network_length = size_t(most_rows* V::lanes);

// What fills rows up: the greatest key, and an index that is none of the caller's.
template <class V> TAV_INLINE V filler() {
  if constexpr (requires(V v) { v.index; })
    return {greatest_key<V>(), _mm_set1_epi32(-1)};
  else
    return {greatest_key<V>()};
}

// Among keys as great as theirs the fillers stand anywhere: brings the caller's to the first n places.
template <int Bytes> TAV_INLINE void drop_fillers(key_array<Bytes>, size_t) {}
template <int Bytes> TAV_INLINE void drop_fillers(pair_rows<Bytes> rows, size_t n) {
  using V = pair_vector<Bytes>;
  if (is_above(filler<V>(), rows.load_one(n - 1))) return;
  for (size_t from = 0, to = 0; to < n; ++from) {
    const V v = rows.load_one(from);
    if (_mm_cvtsi128_si32(v.index) >= 0) rows.store_one(to++, v);
  }
}

// Two, four, eight or all rows.
template <class Rows> void sort_first_rows(Rows rows, size_t elements) {
  switch (elements / Rows::vector::lanes) {
    case 2:
      return sort_rows<2>(rows);
    case 4:
      return sort_rows<4>(rows);
    case 8:
      return sort_rows<8>(rows);
    default:
      return sort_rows<most_rows>(rows);
  }
}

// On the stack, filled up to whole rows, and to a number of them that there is a network for.
template <class View> void sort_short(View a, size_t n) {
  using V = typename View::vector;
  waiting_room<V, int(network_length<V>)> memory;
  const auto                              rows = memory.view();

  size_t used = 2 * V::lanes;
  while (used < n) used *= 2;
  for (size_t i = n / V::lanes * V::lanes; i < used; i += V::lanes) rows.store(i, filler<V>());
  copy_elements(a, rows, n);
  sort_first_rows(rows, used);
  drop_fillers(rows, n);
  copy_elements(rows, a, n);
}

// The middle of 16 keys at equal distances.
template <class View> auto middle_of_sample(View a, range r) {
  using V              = typename View::vector::alone;
  constexpr int sample = 16, rows = sample / V::lanes;

  waiting_room<V, sample> memory;
  const auto              keys = memory.view();
  const size_t            step = r.length() / sample;
  for (int i = 0; i < sample; ++i) keys.store_one(size_t(i), V{a.load_one(r.begin + step / 2 + size_t(i) * step).key});
  sort_rows<rows>(keys);
  return repeated_lane(keys.load_one(sample / 2));
}

// How many elements may pass through partitions: several times what good pivots take.
inline uint64_t patience_for(size_t n) {
  int levels = 2;
  for (size_t left = n; left > 16; left /= 2) ++levels;
  return uint64_t(n) * unsigned(4 * levels);
}

// Returns what is left of its patience.
template <class View> uint64_t quicksort(View a, size_t n, uint64_t patience) {
  using V = typename View::vector;
  waiting_ranges waiting;
  for (range now{0, n};;) {
    while (now.length() > network_length<V>) {
      if (patience < now.length()) {
        heap_sort(a.from(now.begin), now.length());
        now.end = now.begin;
        break;
      }
      patience -= now.length();
      const auto   pivot = middle_of_sample(a, now);
      const size_t right = divide<right_of::greater>(a, now.begin, now.end, pivot);
      if (right == now.end)  // no key is greater than the pivot: what is not less is in its place
        now.end = divide<right_of::not_less>(a, now.begin, now.end, pivot);
      else
        now = waiting.next_of({now.begin, right}, {right, now.end});
    }
    if (now.length() > 1) sort_short(a.from(now.begin), now.length());
    if (!waiting.any()) return patience;
    now = waiting.pop();
  }
}

}  // namespace tav::TAV_VARIANT::sorting
