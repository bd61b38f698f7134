// Scaled functions of every pattern of arguments, against the definition of one element.
//
//   check_scaled<&::tavsAdd_32s_Sfs>([](Tav32s a, Tav32s b, int s) { ... });
//
// Each function runs over the layouts with a few scale factors, then over all factors that make a difference with
// values that do; on demand over every value: bytes at all pairs, 16-bit elements with a few partners. `one` takes what
// the function reads: the sources, the constant, the former element of a destination that is a source too (behind the
// others), and the scale factor.
#pragma once
#include <limits.h>

#include "harness/faults.h"
#include "harness/layouts.h"
#include "harness/parts.h"
#include "oracle/scale.h"

namespace test {

inline const std::set<int>    scaled_lengths{1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12,  13,
                                          14, 15, 16, 17, 18, 19, 23, 24, 31, 33, 65, 130, 1000};
inline const std::vector<int> few_scales{0, 1, 6, 40, -1, -9};

inline std::vector<int> scales_between(int low, int high) {
  std::vector<int> all{INT_MIN, INT_MIN + 1, -1000, 1000, INT_MAX - 1, INT_MAX};
  for (int s = low; s <= high; ++s) all.push_back(s);
  return all;
}
inline std::vector<int> all_scales() { return scales_between(-70, 70); }

// What a function is swept over.
struct sweep {
  std::vector<int> scales      = all_scales();
  bool             every_value = false;  // of elements up to 16 bits, else values drawn
  int              partners    = 256;    // at most, of such an element
};

// Integers of every magnitude, so that ties and saturation are frequent at every scale.
template <class T> T of_any_magnitude(source_of_data& data) {
  if constexpr (is_pair<T>)
    return {of_any_magnitude<part_of<T>>(data), of_any_magnitude<part_of<T>>(data)};
  else if constexpr (std::is_floating_point_v<T>)
    return data.value<T>();
  else if (data.below(3) == 0)
    return data.value<T>();
  else if (data.below(3) == 0)  // few bits set: ties of products
    return T(T(data.below(2) ? 1 : 3) << data.below(int(sizeof(T)) * 8));
  else
    return T(data.value<T>() >> data.below(int(sizeof(T)) * 8));
}

template <class T> std::vector<T> many_of_any_magnitude(source_of_data& data, size_t n) {
  std::vector<T> v(n);
  for (T& x : v) x = of_any_magnitude<T>(data);
  return v;
}

// Small enough to go through all its values.
template <class T> inline constexpr bool enumerable = sizeof(T) <= 2 && std::is_integral_v<T>;

template <class T> std::vector<T> all_values() {
  std::vector<T> all(size_t(1) << (sizeof(T) * 8));
  for (size_t i = 0; i < all.size(); ++i) all[i] = T(i);
  return all;
}

// Constants at which functions differ.
template <class T> std::vector<T> constants() {
  source_of_data data(3);
  std::vector<T> all{T{}};
  const auto     add = [&](auto v) {
    if constexpr (requires(T x) { x.re; })
      all.push_back({v, 0}), all.push_back({v, v}), all.push_back({0, v});
    else
      all.push_back(v);
  };
  using part = part_of<T>;
  for (part v : {std::numeric_limits<part>::min(), part(std::numeric_limits<part>::min() + 1), part(-1), part(1),
                 part(2), std::numeric_limits<part>::max()})
    add(v);
  for (int i = 0; i < 4; ++i) all.push_back(of_any_magnitude<T>(data));
  return all;
}

// The operands of one run. Those behind an enumerable one hold the same value everywhere, another in each run.
template <class... T> using columns = std::tuple<std::vector<T>...>;

template <class First, class... More> std::vector<columns<First, More...>> operands(const sweep& over) {
  source_of_data                       data(11);
  std::vector<columns<First, More...>> runs;
  if constexpr (enumerable<First>)
    if (over.every_value) {
      const auto firsts   = all_values<First>();
      const int  partners = sizeof...(More) == 0 ? 1 : std::min(over.partners, sizeof(First) == 1 ? 256 : 5);
      for (int run = 0; run < partners; ++run) {
        const auto partner = [&]<class T>(T) { return sizeof(T) == 1 ? T(run) : data.value<T>(); };
        runs.push_back({firsts, std::vector<More>(firsts.size(), partner(More{}))...});
      }
      return runs;
    }
  const size_t n = over.every_value ? 5000 : 200;
  runs.push_back({many_of_any_magnitude<First>(data, n), many_of_any_magnitude<More>(data, n)...});
  return runs;
}

// One run over arrays of operands, the last of which is dst: `call` makes it, `one` tells what should come of an
// element.
template <class D, class... S, class Call, class One>
void check_run(const columns<S..., D>& run, int s, const Call& call, const One& one) {
  auto         dst = std::get<sizeof...(S)>(run);
  const size_t n   = dst.size();
  [&]<size_t... K>(std::index_sequence<K...>) {
    ASSERT_EQ(call(dst.data(), int(n), s, std::get<K>(run).data()...), tavStatusOk) << s;
    for (size_t i = 0; i < n; ++i) {
      const D want = one(std::get<K>(run)[i]..., std::get<sizeof...(S)>(run)[i], s);
      if (same(dst[i], want)) continue;
      FAIL() << "scale factor " << s << ", element " << i << ": " << testing::PrintToString(dst[i]) << ", not "
             << testing::PrintToString(want);
    }
  }
  (std::index_sequence_for<S...>{});
}

template <class D, class... S, class Call, class One>
void check_values(const Call& call, const One& one, const sweep& over = {}) {
  const auto runs = operands<S..., D>(over);
  for (int s : over.scales)
    for (const auto& run : runs) {
      check_run<D, S...>(run, s, call, one);
      if (testing::Test::HasFatalFailure()) return;
    }
}

template <auto* Export, class D, class... S, class Call, class One>
void check_scaled_calls(const Call& call, const One& one, const sweep& over = {},
                        const std::vector<int>& layout_scales = few_scales) {
  for (int s : layout_scales) {
    SCOPED_TRACE(testing::Message() << "scale factor " << s);
    check_layouts<Export, D, S...>(
        scaled_lengths, [&](D* dst, int len, const S*... src) { return call(dst, len, s, src...); },
        [&](std::vector<D>& dst, const std::vector<S>&... src) {
          for (size_t i = 0; i < dst.size(); ++i) dst[i] = one(src[i]..., dst[i], s);
          return tavStatusOk;
        });
    if (testing::Test::HasFatalFailure()) return;
  }
  each_build<Export>([&] { check_values<D, S...>(call, one, over); });
}

// With each constant over all factors; with a few of them over the layouts.
template <auto* Export, class V, class D, class... S, class CallWith, class OneWith>
void check_constants(const CallWith& call_with, const OneWith& one_with, const sweep& over) {
  auto all = constants<V>();
  if constexpr (enumerable<V> && sizeof(V) == 1)
    if (over.every_value) all = all_values<V>();
  for (size_t i = 0; i < all.size(); ++i) {
    SCOPED_TRACE(testing::Message() << "constant " << testing::PrintToString(all[i]));
    const auto layout_scales = i + 1 == all.size() ? few_scales : std::vector<int>(i < 8, 0);
    auto       values        = over;
    values.every_value &= sizeof(V) == 1 || i % 4 == 0;  // of words it takes long
    check_scaled_calls<Export, D, S...>(call_with(all[i]), one_with(all[i]), values, layout_scales);
    if (testing::Test::HasFatalFailure()) return;
  }
}

// The patterns of arguments.

template <auto* Export, class A, class B, class D, class One>
void check_form(TavStatus (*)(const A*, const B*, D*, int, int), const One& one, const sweep& over) {
  check_scaled_calls<Export, D, A, B>(
      [](D* dst, int len, int s, const A* a, const B* b) { return call<Export>(a, b, dst, len, s); },
      [&](A a, B b, D before, int s) {
        if constexpr (requires { one(a, b, before, s); })
          return one(a, b, before, s);
        else
          return one(a, b, s);
      },
      over);
}

// What a destination held before does not matter where it is no source: two values of it will do.
inline sweep with_any_destination(sweep over) {
  over.partners = 2;
  return over;
}

template <auto* Export, class A, class D, class One>
void check_form(TavStatus (*)(const A*, D*, int, int), const One& one, const sweep& over) {
  check_scaled_calls<Export, D, A>([](D* dst, int len, int s, const A* a) { return call<Export>(a, dst, len, s); }, one,
                                   over);
}

template <auto* Export, class A, class V, class D, class One>
requires(!std::is_pointer_v<V>) void check_form(TavStatus (*)(const A*, V, D*, int, int), const One& one,
                                                const sweep& over) {
  check_constants<Export, V, D, A>(
      [](V val) { return [val](D* dst, int len, int s, const A* a) { return call<Export>(a, val, dst, len, s); }; },
      [&](V val) { return [&one, val](A a, D, int s) { return one(a, val, s); }; }, with_any_destination(over));
}

template <auto* Export, class V, class D, class One>
requires(!std::is_pointer_v<V>) void check_form(TavStatus (*)(V, D*, int, int), const One& one, const sweep& over) {
  check_constants<Export, V, D>(
      [](V val) { return [val](D* dst, int len, int s) { return call<Export>(val, dst, len, s); }; },
      [&](V val) { return [&one, val](D before, int s) { return one(before, val, s); }; }, over);
}

template <auto* Export, class One> void check_scaled(const One& one, const sweep& over = {}) {
  check_form<Export>(Export, one, over);
}

// Runs a definition of real numbers on each part of complex ones.
template <class T, class One> T by_parts(T a, T b, int s, const One& one) {
  if constexpr (requires { a.re; })
    return {one(a.re, b.re, s), one(a.im, b.im, s)};
  else
    return one(a, b, s);
}

}  // namespace test
