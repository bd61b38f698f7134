// Calls of norms, of one array or of the difference of two, by the signatures of the exports.
#pragma once
#include "harness/faults.h"
#include "harness/layouts.h"
#include "oracle/norms.h"

namespace test {

template <class F> struct norm_form;
template <class S, class D, class... More> struct norm_form<TavStatus (*)(const S*, int, D*, More...)> {
  static constexpr int arrays = 1;
  using src                   = S;
  using dst                   = D;
};
template <class S, class D, class... More> struct norm_form<TavStatus (*)(const S*, const S*, int, D*, More...)> {
  static constexpr int arrays = 2;
  using src                   = S;
  using dst                   = D;
};
template <auto* Export> using form_of = norm_form<decltype(Export)>;
template <auto* Export> using src_of  = typename form_of<Export>::src;
template <auto* Export> using dst_of  = typename form_of<Export>::dst;

// The sources of one call; norms of one array take the first.
template <class S> struct sources { std::vector<S> a, b; };

template <auto* Export, class... More>
dst_of<Export> norm_at(const src_of<Export>* a, const src_of<Export>* b, int len, More... more) {
  dst_of<Export> results[] = {77, 77, 77};
  TavStatus      status;
  if constexpr (form_of<Export>::arrays == 1)
    status = call<Export>(a, len, results + 1, more...);
  else
    status = call<Export>(a, b, len, results + 1, more...);
  EXPECT_EQ(status, tavStatusOk);
  EXPECT_TRUE(results[0] == 77 && results[2] == 77) << "written beside the result";
  return results[1];
}
template <auto* Export, class... More> dst_of<Export> norm_of(const sources<src_of<Export>>& from, More... more) {
  return norm_at<Export>(from.a.data(), from.b.data(), int(from.a.size()), more...);
}

// The elements whose norm that is.
template <auto* Export> auto elements_of(const sources<src_of<Export>>& from) {
  if constexpr (form_of<Export>::arrays == 1)
    return oracle::elements(from.a);
  else
    return oracle::elements(from.a, from.b);
}

// The lengths 1 to 130 and some around a longer one; data comes from `draw`, and `right` looks at the result. Wherever
// the arrays lie, it has to be the same bit for bit.
struct norm_lengths {
  int around = 1000;
};

template <auto* Export, class S, class Right, class Draw, class... Scale>
void check_places(norm_lengths lengths, const Right& right, const Draw& draw, Scale... s) {
  const size_t room = size_t(lengths.around + 2) * largest_element;
  arena        home_a(room), home_b(room);
  const auto   all = all_layouts(), few = few_layouts();
  each_build<Export>([&] {
    source_of_data data(9);
    for (int n : lengths_around({lengths.around})) {
      const sources<S> from{draw(data, size_t(n)), draw(data, size_t(n))};
      const auto       expected = norm_of<Export>(from, s...);
      right(from, expected);
      for (const layout& l : n <= few_layouts_above ? all : few) {
        array<S> a(home_a, size_t(n), l.src), b(home_b, size_t(n), l.dst);
        a.assign(from.a), b.assign(from.b);
        const auto got = norm_at<Export>(a.data(), b.data(), n, s...);
        ASSERT_TRUE(same(got, expected)) << "length " << n << ", " << l << ": " << got << ", not " << expected;
        ASSERT_TRUE(first_difference(a.values(), from.a) < 0 && first_difference(b.values(), from.b) < 0);
        ASSERT_TRUE(a.guards_intact() && b.guards_intact());
      }
      if (testing::Test::HasFatalFailure()) return;
    }
  });
}

inline constexpr auto result_at_the_end   = pointers_then_length_at<1>;
inline constexpr auto scale_behind_result = pointers_then_length_at<2>;

}  // namespace test
