// Calls of functions that make one result of two arrays: over lengths, alignments and page ends.
#pragma once
#include <memory>
#include <set>

#include "harness/layouts.h"

namespace test {

// All tails behind none, one and several rounds of every kernel.
inline std::set<int> dot_lengths() { return lengths_around({256, 1000}, 70); }

template <auto* Export> struct dot_call;
template <class A, class B, class D, class... S, TavStatus (*Export)(const A*, const B*, int, D*, S...)>
struct dot_call<Export> {
  using src1   = A;
  using src2   = B;
  using result = D;

  static D of(const std::vector<A>& a, const std::vector<B>& b, S... scale) {
    D result;
    memset(static_cast<void*>(&result), 0x5A, sizeof result);
    EXPECT_EQ(call<Export>(a.data(), b.data(), int(a.size()), &result, scale...), tavStatusOk);
    return result;
  }

  // The arrays and the result where a stray access shows.
  static void check_layout(arena& home_a, arena& home_b, arena& home_result, const layout& l, const std::vector<A>& a,
                           const std::vector<B>& b, const D& want, S... scale) {
    placement where_b = l.src;
    where_b.offset    = (where_b.offset + l.src_step) % 16;
    array<A> placed_a(home_a, a.size(), l.src);
    array<B> placed_b(home_b, b.size(), where_b);
    array<D> result(home_result, 1, l.dst);
    placed_a.assign(a), placed_b.assign(b);
    const auto where = [&] { return testing::Message() << "length " << a.size() << ", " << l; };
    ASSERT_EQ(call<Export>(placed_a.data(), placed_b.data(), int(a.size()), result.data(), scale...), tavStatusOk);
    const D got = result.values()[0];
    if (!same(got, want))
      FAIL() << where() << ": " << testing::PrintToString(got) << ", not " << testing::PrintToString(want);
    ASSERT_TRUE(result.guards_intact()) << "written outside the result: " << where();
    ASSERT_TRUE(first_difference(placed_a.values(), a) < 0 && first_difference(placed_b.values(), b) < 0)
        << "a source was written: " << where();
  }
};

// `draw(data, element&)` makes an element; want(a, b) is the result, bit for bit.
template <auto* Export, class Draw, class Want, class... S>
void check_dot_layouts(const std::set<int>& lengths, const Draw& draw, const Want& want, S... scale) {
  using on          = dot_call<Export>;
  const size_t room = size_t(*lengths.rbegin()) * largest_element;
  arena        home_a(room), home_b(room), home_result(64);
  const auto   all = all_layouts(), few = few_layouts();
  each_build<Export>([&] {
    source_of_data data(5);
    for (int n : lengths) {
      std::vector<typename on::src1> a(static_cast<size_t>(n));
      std::vector<typename on::src2> b(static_cast<size_t>(n));
      for (auto& v : a) draw(data, v);
      for (auto& v : b) draw(data, v);
      const typename on::result expected = want(a, b);
      for (const layout& l : n <= few_layouts_above ? all : few) {
        on::check_layout(home_a, home_b, home_result, l, a, b, expected, scale...);
        if (testing::Test::HasFatalFailure()) return;
      }
    }
  });
}

}  // namespace test
