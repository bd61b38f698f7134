// What every extremum must withstand: any length and alignment, the extreme and its equal at every pair of places, far
// down a long array, NaNs anywhere, zeros of either sign.
#pragma once
#include <algorithm>

#include "harness/layouts.h"
#include "stats/extrema_calls.h"

namespace test {

template <class T> using limits_of = std::numeric_limits<T>;

template <class T, class Where>
bool right(const search<T>& s, const T* src, const T* elements, int len, const Where& where) {
  const std::string what = s.fault_of(src, elements, len);
  if (what.empty()) return true;
  ADD_FAILURE() << "length " << len << ", " << where() << ": " << what;
  return false;
}

template <class T, class Where> bool right(const search<T>& s, const T* src, int len, const Where& where) {
  return right(s, src, src, len, where);
}

// Random data, half of it of three values only, so that most extrema stand in several places.
template <class T> std::vector<T> some_array(source_of_data& data, size_t n) {
  auto v = data.values<T>(n);
  if (data.below(2)) {
    const T few[] = {data.value<T>(), data.value<T>(), data.value<T>()};
    for (T& x : v) x = few[data.below(3)];
  }
  return v;
}

template <class T> void check_lengths_and_alignments(const search<T>& s) {
  std::vector<placement> everywhere{{placement::begins_at_page}, {placement::ends_at_page}};
  for (unsigned offset = 0; offset < 16; ++offset) everywhere.push_back({placement::inside, offset});
  const std::vector<placement> few{{placement::inside, 0}, {placement::inside, 3}, {placement::ends_at_page}};

  const auto     lengths = lengths_around({256, 512, 1024, 2048, 4096, 6144});
  arena          home(size_t(*lengths.rbegin()) * sizeof(T));
  source_of_data data(1);
  for (int len : lengths)
    for (const placement& p : len <= few_layouts_above ? everywhere : few) {
      array<T>   a(home, size_t(len), p);
      const auto before = some_array<T>(data, size_t(len));
      a.assign(before);
      if (!right(s, a.data(), before.data(), len, [&] { return testing::Message() << p; })) return;
      ASSERT_TRUE(first_difference(a.values(), before) < 0 && a.guards_intact()) << "written to the source";
    }
}

constexpr int all_pairs_up_to = 70;

// x at i and y at j, everything else is `rest`, for every pair i <= j.
template <class T> bool right_at_every_pair(const search<T>& s, T rest, T x, T y, int up_to = all_pairs_up_to) {
  std::vector<T> v(all_pairs_up_to, rest);
  for (int len = 1; len <= up_to; ++len)
    for (int j = 0; j < len; ++j)
      for (int i = 0; i <= j; ++i) {
        v[size_t(j)] = y, v[size_t(i)] = x;
        const bool ok = right(s, v.data(), len, [&] {
          return testing::Message() << +x << " at " << i << ", " << +y << " at " << j << ", else " << +rest;
        });
        v[size_t(j)] = v[size_t(i)] = rest;
        if (!ok) return false;
      }
  return true;
}

template <class T> void check_every_pair(const search<T>& s) {
  const T highest = limits_of<T>::max(), lowest = limits_of<T>::lowest();
  if (!right_at_every_pair<T>(s, 100, 200, 200) || !right_at_every_pair<T>(s, 100, 3, 3)) return;
  if (!right_at_every_pair<T>(s, 100, highest, lowest)) return;
  if constexpr (std::is_signed_v<T>) {
    if (!right_at_every_pair<T>(s, 100, T(-200), T(200)) || !right_at_every_pair<T>(s, T(-100), T(3), T(-3))) return;
    right_at_every_pair<T>(s, lowest, 0, highest);
  }
}

template <class T> void check_far_places(const search<T>& s) {
  constexpr int  n = 200003;
  source_of_data data(3);
  std::vector<T> v(n, 100);
  const auto     check = [&](T x, int i, int j) {
    v[size_t(i)] = v[size_t(j)] = x;
    const bool ok = right(s, v.data(), n, [&] { return testing::Message() << +x << " at " << i << " and " << j; });
    v[size_t(i)] = v[size_t(j)] = 100;
    return ok;
  };
  for (int i : {0, 255, 256, 511, 512, 1023, 1024, 2048, 65535, 65536, 65537, 131072, n - 2, n - 1})
    for (T x : {T(3), T(200)})
      if (!check(x, i, i) || !check(x, i, std::min(n - 1, i + 1 + data.below(5000)))) return;
  for (int round = 0; round < 6; ++round) {
    auto random = data.values<T>(n);
    if (!right(s, random.data(), n, [] { return "random"; })) return;
    std::sort(random.begin(), random.end(), [](T a, T b) { return a < b || (a == a && b != b); });
    if (round == 0) std::reverse(random.begin(), random.end());
    if (round < 2 && !right(s, random.data(), n, [] { return "sorted"; })) return;
  }
}

template <class T> T nan_number(int i) {
  if constexpr (sizeof(T) == 4)
    return __builtin_bit_cast(T, uint32_t(i % 2 ? 0xFFC00000 : 0x7FC00000) + uint32_t(i));
  else
    return __builtin_bit_cast(T, uint64_t(i % 2 ? 0xFFF8000000000000 : 0x7FF8000000000000) + uint64_t(i));
}

template <class T> std::vector<T> nans(int n) {
  std::vector<T> v;
  for (int i = 0; i < n; ++i) v.push_back(nan_number<T>(i + 1));
  return v;
}

template <class T> void check_nans(const search<T>& s) {
  const T infinity = limits_of<T>::infinity();
  for (int len = 1; len <= all_pairs_up_to; ++len) {
    const auto all = nans<T>(len);
    if (!right(s, all.data(), len, [] { return "nothing but NaNs"; })) return;
    for (T x : {T(1), T(0), T(-0.0), infinity, -infinity}) {
      auto v = all;
      for (int i = 0; i < len; ++i) {
        v[size_t(i)] = x;
        if (!right(s, v.data(), len, [&] { return testing::Message() << x << " at " << i << ", else NaNs"; })) return;
        v[size_t(i)] = all[size_t(i)];
      }
    }
    const std::vector<T> ones(size_t(len), 1);
    for (T x : {T(-7), T(7)})
      for (int j = 0; j < len; ++j)
        for (int i : {0, j / 2, std::max(0, j - 1), std::min(len - 1, j + 1), len - 1}) {
          auto v       = ones;
          v[size_t(i)] = x, v[size_t(j)] = nan_number<T>(j);
          if (!right(s, v.data(), len, [&] { return testing::Message() << x << " at " << i << ", NaN at " << j; }))
            return;
        }
  }
  // Infinities that beat nothing, behind more NaNs than are looked at together.
  for (T x : {infinity, -infinity})
    for (int i : {0, 511, 512, 1024, 3000, 9998}) {
      auto v       = nans<T>(10000);
      v[size_t(i)] = v[9999] = x;
      if (!right(s, v.data(), 10000, [&] { return testing::Message() << x << " at " << i << ", else NaNs"; })) return;
    }
  const auto all = nans<T>(10000);
  right(s, all.data(), 10000, [] { return "nothing but NaNs"; });
}

template <class T> void check_zeros(const search<T>& s) {
  const T   zero = 0, smallest = limits_of<T>::denorm_min();
  const int up_to = 40;
  for (T rest : {smallest, -smallest})
    if (!right_at_every_pair<T>(s, rest, zero, -zero, up_to) || !right_at_every_pair<T>(s, rest, -zero, zero, up_to))
      return;
  right_at_every_pair<T>(s, zero, -smallest, smallest, up_to);
  right_at_every_pair<T>(s, -zero, zero, zero, up_to);
}

template <auto* Export, class T> void check_search(const search<T>& s) {
  each_build<Export>([&] {
    check_lengths_and_alignments(s);
    check_every_pair(s);
    check_far_places(s);
    if constexpr (std::is_floating_point_v<T>) check_nans(s), check_zeros(s);
  });
}

}  // namespace test
