// Runs an array function over lengths, alignments and page ends, and compares each result with the definition.
//
//   check_layouts<&::tavsAdd_32f, Tav32f, Tav32f, Tav32f>(lengths_around({11}), call, expected);
//
// The types are those of the destination and then the sources. `call(dst, len, sources...)` makes the call under test;
// `expected(dst, sources...)` overwrites the vector dst (which holds what the destination held before) with what should
// come out, and returns the status.
#pragma once
#include <set>
#include <tuple>

#include "harness/arena.h"
#include "harness/builds.h"
#include "harness/data.h"

namespace test {

// 1 to 130, and around each of the thresholds given.
inline std::set<int> lengths_around(std::initializer_list<int> thresholds, int all_up_to = 130) {
  std::set<int> lengths;
  for (int n = 1; n <= all_up_to; ++n) lengths.insert(n);
  for (int t : thresholds)
    for (int d = -2; d <= 2; ++d)
      if (t + d > 0) lengths.insert(t + d);
  return lengths;
}

struct layout {
  placement dst, src;
  unsigned  src_step;  // by how much the offset of each further source differs
};

inline std::ostream& operator<<(std::ostream& out, const layout& l) {
  return out << "dst " << l.dst << ", src " << l.src << " and " << l.src_step << " more for each further source";
}

// Every offset of the destination against a source on the same offset, on a boundary and elsewhere, and the page ends.
inline std::vector<layout> all_layouts() {
  std::vector<layout> all;
  for (unsigned d = 0; d < 16; ++d)
    for (unsigned s : {0u, d, (d * 7 + 3) % 16}) all.push_back({{placement::inside, d}, {placement::inside, s}, s});
  all.push_back({{placement::begins_at_page}, {placement::begins_at_page}, 0});
  all.push_back({{placement::ends_at_page}, {placement::ends_at_page}, 0});
  all.push_back({{placement::begins_at_page}, {placement::ends_at_page}, 0});
  all.push_back({{placement::ends_at_page}, {placement::begins_at_page}, 0});
  return all;
}

inline std::vector<layout> few_layouts() {
  return {{{placement::inside, 0}, {placement::inside, 0}, 0},
          {{placement::inside, 8}, {placement::inside, 4}, 4},
          {{placement::inside, 3}, {placement::inside, 0}, 1},
          {{placement::ends_at_page}, {placement::ends_at_page}, 0}};
}

inline constexpr int    few_layouts_above = 130;  // elements
inline constexpr size_t largest_element   = 16;

template <class D, class... S, class Call, class Expected>
void check_one_layout(arena& dst_home, std::array<arena*, sizeof...(S)> homes, source_of_data& data, int len,
                      const layout& l, const Call& call, const Expected& expected) {
  const auto before  = data.values<D>(size_t(len));
  auto       after   = before;
  const auto sources = std::tuple{data.values<S>(size_t(len))...};
  array<D>   dst(dst_home, size_t(len), l.dst);
  dst.assign(before);

  unsigned   k      = 0;
  const auto placed = [&]<class T>(const std::vector<T>& v) {
    placement where = l.src;
    where.offset    = (where.offset + k * l.src_step) % 16;
    array<T> a(*homes[k++], v.size(), where);
    a.assign(v);
    return a;
  };
  const auto arrays = std::apply([&](const auto&... v) { return std::tuple{placed(v)...}; }, sources);

  const TavStatus want  = std::apply([&](const auto&... v) { return expected(after, v...); }, sources);
  const TavStatus got   = std::apply([&](const auto&... a) { return call(dst.data(), len, a.data()...); }, arrays);
  const auto      where = [&] { return testing::Message() << "length " << len << ", " << l; };
  ASSERT_EQ(got, want) << where();
  const auto result = dst.values();
  if (const long i = first_difference(result, after); i >= 0) FAIL() << where() << ", first wrong element: " << i;
  ASSERT_TRUE(dst.guards_intact()) << "written outside dst: " << where();
  const auto unchanged = [](const auto& a, const auto& v) { return first_difference(a.values(), v) < 0; };
  [&]<size_t... I>(std::index_sequence<I...>) {
    ASSERT_TRUE((unchanged(std::get<I>(arrays), std::get<I>(sources)) && ...)) << "a source was written: " << where();
  }
  (std::index_sequence_for<S...>{});
}

template <auto* Export, class D, class... S, class Call, class Expected>
void check_layouts(const std::set<int>& lengths, const Call& call, const Expected& expected, uint32_t seed = 1) {
  const size_t                        room = size_t(*lengths.rbegin()) * largest_element;
  std::vector<std::unique_ptr<arena>> homes;
  for (size_t i = 0; i <= sizeof...(S); ++i) homes.push_back(std::make_unique<arena>(room));
  std::array<arena*, sizeof...(S)> source_homes{};
  for (size_t i = 0; i < sizeof...(S); ++i) source_homes[i] = homes[i + 1].get();
  const auto all = all_layouts(), few = few_layouts();
  each_build<Export>([&] {
    source_of_data data(seed);
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    for (int len : lengths)
      for (const layout& l : len <= few_layouts_above ? all : few) {
        check_one_layout<D, S...>(*homes[0], source_homes, data, len, l, call, expected);
        if (testing::Test::HasFatalFailure()) return;
      }
  });
}

}  // namespace test
