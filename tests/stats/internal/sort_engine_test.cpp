// The engine of the comparison sort in parts: its networks over all arrays of zeros and ones, which shows that they
// sort any array; how many ranges can wait; what follows when pivots stay bad.
//
// In a namespace of its own, or the linker might take these instances for those of the library.
#undef TAV_VARIANT
#define TAV_VARIANT sort_under_test
#include "stats/sort/quicksort.h"

#include <gtest/gtest.h>

#include "harness/data.h"
#include "oracle/sort.h"

using namespace tav::TAV_VARIANT::sorting;

namespace {

template <class V>
using lane_of = std::conditional_t<V::bytes == 2, Tav16s, std::conditional_t<V::bytes == 4, Tav32s, Tav64f>>;

template <class V> inline constexpr bool with_index = requires(V v) { v.index; };

// Rows by their elements, which are numbered down the columns, lane by lane. Indices are the numbers at the outset.
template <class V, int Rows> class grid {
 public:
  using key                  = lane_of<V>;
  static constexpr int count = Rows * V::lanes;

  V (&rows())[Rows] {
    for (int i = 0; i < count; ++i) first_[i] = at(i), set_index(i);
    return rows_;
  }
  key& at(int i) { return reinterpret_cast<key*>(&rows_[i % Rows].key)[i / Rows]; }

  bool in_order(int from, int to) {
    for (int i = from + 1; i < to; ++i)
      if (at(i) < at(i - 1)) return false;
    return true;
  }
  bool indices_follow() {
    if constexpr (with_index<V>) {
      std::vector<bool> met(count);
      for (int i = 0; i < count; ++i) {
        const int from = index(i);
        if (from < 0 || from >= count || met[size_t(from)] || first_[from] != at(i)) return false;
        met[size_t(from)] = true;
      }
    }
    return true;
  }

 private:
  void set_index(int i) {
    if constexpr (with_index<V>) words(i)[0] = i;
  }
  int  index(int i) { return words(i)[0]; }
  int* words(int i) {
    if constexpr (with_index<V>)
      return reinterpret_cast<int*>(&rows_[i % Rows].index) + i / Rows * (V::bytes / 4);
    else
      return nullptr;
  }

  V   rows_[Rows] = {};
  key first_[count];
};

template <class V, int Rows> void check_column_sort() {
  grid<V, Rows> g;
  for (unsigned ones = 0; ones < 1u << Rows; ++ones) {
    for (int i = 0; i < g.count; ++i) g.at(i) = typename grid<V, Rows>::key(ones >> i % Rows & 1);
    exchange_rows<&column_sort<Rows>>(g.rows());
    for (int lane = 0; lane < V::lanes; ++lane) ASSERT_TRUE(g.in_order(lane * Rows, (lane + 1) * Rows)) << ones;
    ASSERT_TRUE(g.indices_follow());
  }
}

// Groups of columns hold any numbers of zeros, and then ones.
template <class V, int Rows, int Lanes> void check_merge() {
  constexpr int group = Rows * Lanes;
  grid<V, Rows> g;
  for (int zeros = 0; zeros <= group; ++zeros)
    for (int more = 0; more <= group; ++more) {
      for (int i = 0; i < g.count; ++i)
        g.at(i) = typename grid<V, Rows>::key(i % group >= (i / group % 2 == 0 ? zeros : more));
      merge_groups<Lanes>(g.rows());
      for (int i = 0; i < g.count; i += 2 * group) ASSERT_TRUE(g.in_order(i, i + 2 * group)) << zeros << ", " << more;
      ASSERT_TRUE(g.indices_follow());
    }
  if constexpr (4 * Lanes <= V::lanes) check_merge<V, Rows, 2 * Lanes>();
}

template <class V, int Rows> void check_network() {
  if constexpr (Rows > 1) check_column_sort<V, Rows>();
  check_merge<V, Rows, 1>();
}

template <class V> void check_networks() {
  check_network<V, 1>();
  check_network<V, 2>();
  check_network<V, 4>();
  check_network<V, 8>();
  check_network<V, 16>();
}

TEST(SortNetworks, OfKeys) {
  check_networks<key_vector<2>>();
  check_networks<key_vector<4>>();
  check_networks<key_vector<8>>();
}
TEST(SortNetworks, OfPairs) {
  check_networks<pair_vector<4>>();
  check_networks<pair_vector<8>>();
}

// The columns are laid out one behind the other.
template <class V, int Rows> void check_columns_stored() {
  using key = typename grid<V, Rows>::key;
  grid<V, Rows>    g;
  std::vector<key> memory(size_t(g.count));
  for (int i = 0; i < g.count; ++i) g.at(i) = key(i);
  store_columns(key_array<V::bytes>{reinterpret_cast<char*>(memory.data())}, g.rows());
  for (int i = 0; i < g.count; ++i) ASSERT_EQ(memory[size_t(i)], key(i));
}

template <class V> void check_all_columns_stored() {
  check_columns_stored<V, 1>();
  check_columns_stored<V, 2>();
  check_columns_stored<V, 4>();
  check_columns_stored<V, 8>();
  check_columns_stored<V, 16>();
}

TEST(SortNetworks, ColumnsBehindOneAnother) {
  check_all_columns_stored<key_vector<2>>();
  check_all_columns_stored<key_vector<4>>();
  check_all_columns_stored<key_vector<8>>();
}

// Halves make most ranges wait; each division leaves the larger part waiting.
TEST(SortRanges, NeverMoreWaitThanFit) {
  for (size_t n : {size_t(0x7FFFFFFF), size_t(0xFFFFFFFF)})
    for (int uneven = 0; uneven < 3; ++uneven) {
      waiting_ranges waiting;
      int            most = 0;
      for (range now{0, n}; now.length() > 1;) {
        const size_t middle = now.begin + now.length() / 2 + (uneven == 1 && now.length() > 4 ? 1 : 0);
        now                 = waiting.next_of({now.begin, middle}, {middle, uneven == 2 ? now.end - 1 : now.end});
        most                = std::max(most, waiting.count());
        ASSERT_LE(most, 31);
      }
      EXPECT_GT(most, 28);
      range last = waiting.pop();
      while (waiting.any()) {
        const range next = waiting.pop();
        ASSERT_GE(next.length(), last.length());
        last = next;
      }
    }
}

// Without patience for partitions the heap does what is left, and it stays within a few divisions otherwise.
TEST(SortHeap, TakesOver) {
  test::source_of_data data(3);
  for (size_t n : {65, 100, 1000, 5000})
    for (uint64_t patience : {uint64_t(0), uint64_t(n), uint64_t(2 * n + 7)}) {
      std::vector<Tav32s> v(n), index(n);
      for (Tav32s& x : v) x = data.below(int(n));
      const auto before = v;
      quicksort(key_array<4>{reinterpret_cast<char*>(v.data())}, n, patience);
      ASSERT_EQ(v, oracle::sorted(before, oracle::sort_way::up));
      v = before;
      for (size_t i = 0; i < n; ++i) index[i] = int(i);
      quicksort(pair_arrays<Tav32s>{v.data(), index.data()}, n, patience);
      ASSERT_EQ(v, oracle::sorted(before, oracle::sort_way::up));
      ASSERT_TRUE(oracle::tells_places(index, before, v));
    }
}

// How many elements pass through partitions.
uint64_t partitioned(std::vector<Tav32s> v) {
  const uint64_t patience = patience_for(v.size());
  return patience - quicksort(key_array<4>{reinterpret_cast<char*>(v.data())}, v.size(), patience);
}

template <class Key> std::vector<Tav32s> keys_by_place(size_t n, Key key) {
  std::vector<Tav32s> v(n);
  for (size_t i = 0; i < n; ++i) v[i] = key(i);
  return v;
}

TEST(SortPartitions, FewForFewValues) {
  constexpr size_t n = 20000;
  EXPECT_LE(partitioned(keys_by_place(n, [](size_t) { return 5; })), n);
  EXPECT_LE(partitioned(keys_by_place(n, [](size_t i) { return i * 7919 % 101 % 2; })), 2 * n);
  EXPECT_LE(partitioned(keys_by_place(n, [](size_t i) { return i * 7919 % 101 % 8; })), 5 * n);
}

// Good pivots halve: 20000 keys take 9 levels down to what the networks sort.
TEST(SortPartitions, FewLevels) {
  constexpr size_t     n = 20000;
  test::source_of_data data(4);
  EXPECT_LE(partitioned(keys_by_place(n, [&](size_t) { return Tav32s(data.bits()); })), 11 * n);
  EXPECT_LE(partitioned(keys_by_place(n, [](size_t i) { return Tav32s(i); })), 11 * n);
  EXPECT_LE(partitioned(keys_by_place(n, [](size_t i) { return Tav32s(n - i); })), 13 * n);
  EXPECT_LE(partitioned(keys_by_place(n, [](size_t i) { return Tav32s(std::min(i, n - i)); })), 13 * n);
}

}  // namespace
