// Sorting networks over whole registers, for what the partition leaves.
//
// The elements lie in rows of one vector. First each lane's column is sorted by exchanges of rows; then neighbouring
// columns are merged, two, four, eight at a time, and at last the columns are laid out one behind the other. A merge is
// bitonic: the lesser half of two sorted runs comes of comparing one with the reverse of the other, which here takes
// one shuffle, and the rest of it is exchanges of rows again.
#pragma once
#include <utility>

#include "stats/sort/views.h"

namespace tav::TAV_VARIANT::sorting {

// Exchanges of rows a < b, in their order.
template <int Most> struct exchanges {
  int count = 0;
  int a[Most], b[Most];

  constexpr void add(int low, int high) { a[count] = low, b[count] = high, ++count; }
};

// Batcher's odd-even merge sort.
template <int Rows> constexpr auto column_sort() {
  exchanges<Rows * Rows> all{};
  for (int run = 1; run < Rows; run *= 2)
    for (int apart = run; apart > 0; apart /= 2)
      for (int i = apart % run; i + apart < Rows; i += 2 * apart)
        for (int k = i; k < i + apart && k + apart < Rows; ++k)
          if (k / (2 * run) == (k + apart) / (2 * run)) all.add(k, k + apart);
  return all;
}

// A bitonic column into order.
template <int Rows> constexpr auto column_merge() {
  exchanges<Rows * Rows> all{};
  for (int apart = Rows / 2; apart > 0; apart /= 2)
    for (int k = 0; k < Rows; ++k)
      if ((k & apart) == 0) all.add(k, k + apart);
  return all;
}

template <auto Network, int Rows, class V> TAV_INLINE void exchange_rows(V (&row)[Rows]) {
  static constexpr auto all = Network();
  [&]<size_t... I>(std::index_sequence<I...>) { (in_order(row[all.a[I]], row[all.b[I]]), ...); }
  (std::make_index_sequence<size_t(all.count)>{});
}

// Constants by lanes: masks, and orders for the byte shuffle.
template <int Bytes> struct lane_constant { alignas(16) unsigned char byte[16]; };

template <int Bytes, class F> constexpr lane_constant<Bytes> by_byte(F f) {
  lane_constant<Bytes> c{};
  for (int i = 0; i < 16; ++i) c.byte[i] = (unsigned char)(f(i / Bytes, i % Bytes));
  return c;
}

constexpr int highest_bit(int x) { return x < 2 ? x : 2 * highest_bit(x / 2); }

// Lane l belongs to lane l ^ Across; of the two, the one with the highest bit of Across is the upper.
template <int Bytes, int Across> struct lane_pairs {
  static constexpr int  top   = highest_bit(Across);
  static constexpr auto order = by_byte<Bytes>([](int lane, int byte) { return (lane ^ Across) * Bytes + byte; });
  static constexpr auto lower =
      by_byte<Bytes>([](int lane, int byte) { return (lane & top ? lane ^ Across : lane) * Bytes + byte; });
  static constexpr auto upper = by_byte<Bytes>([](int lane, int) { return lane & top ? 255 : 0; });
};

template <int Bytes> TAV_INLINE __m128i constant(const lane_constant<Bytes>& c) {
  return load_bits<access::aligned>(c.byte);
}

// Orders two rows against each other, lane by lane of b turned round: the lesser go to a's lower lanes and to b's.
template <int Across, class V> TAV_INLINE void cross(V& a, V& b) {
  using pairs = lane_pairs<V::bytes, Across>;
  V turned    = shuffled(b, constant(pairs::order));
  exchange_where(_mm_xor_si128(above(a, turned), constant(pairs::upper)), a, turned);
  b = shuffled(turned, constant(pairs::order));
}

// Orders the lanes of one row. Both lanes of a pair go by one comparison, or equal keys could lose an index.
template <int Across, class V> TAV_INLINE void within(V& a) {
  using pairs  = lane_pairs<V::bytes, Across>;
  V          b = shuffled(a, constant(pairs::order));
  const auto m = _mm_shuffle_epi8(above(a, b), constant(pairs::lower));
  exchange_where(m, a, b);
}

// Groups of `Lanes` sorted columns, each a run by itself, into groups of twice as many.
template <int Lanes, int Rows, class V> TAV_INLINE void merge_groups(V (&row)[Rows]) {
  constexpr int across = 2 * Lanes - 1;
  if constexpr (Rows == 1) {
    within<across>(row[0]);
  } else {
    [&]<size_t... I>(std::index_sequence<I...>) { (cross<across>(row[I], row[Rows - 1 - I]), ...); }
    (std::make_index_sequence<Rows / 2>{});
  }
  const auto halves = [&]<int Apart>(auto& self) {
    if constexpr (Apart > 0) {
      [&]<size_t... I>(std::index_sequence<I...>) { (within<Apart>(row[I]), ...); }
      (std::make_index_sequence<Rows>{});
      self.template operator()<Apart / 2>(self);
    }
  };
  halves.template operator()<Lanes / 2>(halves);
  exchange_rows<&column_merge<Rows>>(row);
}

template <int Lanes, int Rows, class V> TAV_INLINE void merge_columns(V (&row)[Rows]) {
  if constexpr (Lanes < V::lanes) {
    merge_groups<Lanes>(row);
    merge_columns<2 * Lanes>(row);
  }
}

// Block by block of rows, to where the columns go: taking turns from the two halves of a block, as often as it can be
// halved, lays its columns out.
template <int Rows, class View, class V> TAV_INLINE void store_columns(View to, V (&row)[Rows]) {
  constexpr int lanes = V::lanes, block = Rows < lanes ? Rows : lanes, stride = Rows < lanes ? lanes : Rows;
  for (int first = 0; first < Rows; first += block) {
    V t[block], turned[block];
#pragma GCC unroll 16
    for (int i = 0; i < block; ++i) t[i] = row[first + i];
#pragma GCC unroll 4
    for (int halved = 1; halved < block; halved *= 2) {
#pragma GCC unroll 8
      for (int i = 0; i < block / 2; ++i) {
        turned[2 * i] = t[i], turned[2 * i + 1] = t[i + block / 2];
        interleave(turned[2 * i], turned[2 * i + 1]);
      }
#pragma GCC unroll 16
      for (int i = 0; i < block; ++i) t[i] = turned[i];
    }
#pragma GCC unroll 16
    for (int i = 0; i < block; ++i) to.store(size_t(i * stride + first), t[i]);
  }
}

// Sorts so many rows where they lie.
template <int Rows, class View> __attribute__((noinline)) void sort_rows(View a) {
  using V = typename View::vector;
  V row[Rows];
#pragma GCC unroll 16
  for (int i = 0; i < Rows; ++i) row[i] = a.load(size_t(i * V::lanes));
  exchange_rows<&column_sort<Rows>>(row);
  merge_columns<1>(row);
  store_columns(a, row);
}

}  // namespace tav::TAV_VARIANT::sorting
