// Scaled functions of every pattern of arguments, against the definition of one element.
//
//   check_scaled<&::tavsAdd_32s_Sfs>([](Tav32s a, Tav32s b, int s) { ... });
//
// Each function runs over the layouts with a few scale factors, then over all factors that make a difference with
// values that do. `one` takes what the function reads: the sources, the constant, the former element of a destination
// that is a source too (behind the others), and the scale factor.
#pragma once
#include <limits.h>

#include "harness/faults.h"
#include "harness/layouts.h"
#include "oracle/scale.h"

namespace test {

inline const std::set<int>    scaled_lengths{1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12,  13,
                                          14, 15, 16, 17, 18, 19, 23, 24, 31, 33, 65, 130, 1000};
inline const std::vector<int> few_scales{0, 1, 6, 40, -1, -9};

inline std::vector<int> all_scales() {
  std::vector<int> all{INT_MIN, INT_MIN + 1, -1000, 1000, INT_MAX - 1, INT_MAX};
  for (int s = -70; s <= 70; ++s) all.push_back(s);
  return all;
}

// Integers of every magnitude, so that ties and saturation are frequent at every scale.
template <class T> T of_any_magnitude(source_of_data& data) {
  if constexpr (requires(T v) { v.re; })
    return {of_any_magnitude<decltype(T::re)>(data), of_any_magnitude<decltype(T::im)>(data)};
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

template <class T> std::vector<T> constants() {
  source_of_data data(3);
  std::vector<T> all{T{}};
  const auto     add = [&](auto v) {
    if constexpr (requires(T x) { x.re; })
      all.push_back({v, 0}), all.push_back({v, v}), all.push_back({0, v});
    else
      all.push_back(v);
  };
  using part = decltype([] {
    if constexpr (requires(T x) { x.re; })
      return decltype(T::re){};
    else
      return T{};
  }());
  for (part v : {std::numeric_limits<part>::min(), part(std::numeric_limits<part>::min() + 1), part(-1), part(1),
                 part(2), std::numeric_limits<part>::max()})
    add(v);
  for (int i = 0; i < 4; ++i) all.push_back(of_any_magnitude<T>(data));
  return all;
}

// One run over an array of values: `call` makes it, `one` tells what should come of an element.
template <class D, class... S, class Call, class One>
void check_values(const Call& call, const One& one, const std::vector<int>& scales = all_scales()) {
  source_of_data data(11);
  constexpr int  n = 200;
  for (int s : scales) {
    const auto before  = many_of_any_magnitude<D>(data, n);
    const auto sources = std::tuple{many_of_any_magnitude<S>(data, n)...};
    auto       dst     = before;
    std::apply([&](const auto&... v) { ASSERT_EQ(call(dst.data(), n, s, v.data()...), tavStatusOk) << s; }, sources);
    for (size_t i = 0; i < n; ++i) {
      const D want = std::apply([&](const auto&... v) { return one(v[i]..., before[i], s); }, sources);
      ASSERT_TRUE(same(dst[i], want)) << "scale factor " << s << ", element " << i << ": "
                                      << testing::PrintToString(dst[i]) << ", not " << testing::PrintToString(want);
    }
  }
}

template <auto* Export, class D, class... S, class Call, class One>
void check_scaled_calls(const Call& call, const One& one, const std::vector<int>& layout_scales = few_scales) {
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
  each_build<Export>([&] { check_values<D, S...>(call, one); });
}

template <auto* Export, class A, class B, class D, class One>
void check_form(TavStatus (*)(const A*, const B*, D*, int, int), const One& one) {
  check_scaled_calls<Export, D, A, B>(
      [](D* dst, int len, int s, const A* a, const B* b) { return call<Export>(a, b, dst, len, s); },
      [&](A a, B b, D before, int s) {
        if constexpr (requires { one(a, b, before, s); })
          return one(a, b, before, s);
        else
          return one(a, b, s);
      });
}

template <auto* Export, class A, class D, class One>
void check_form(TavStatus (*)(const A*, D*, int, int), const One& one) {
  check_scaled_calls<Export, D, A>([](D* dst, int len, int s, const A* a) { return call<Export>(a, dst, len, s); },
                                   one);
}

template <auto* Export, class A, class V, class D, class One>
requires(!std::is_pointer_v<V>) void check_form(TavStatus (*)(const A*, V, D*, int, int), const One& one) {
  for (V val : constants<V>()) {
    SCOPED_TRACE(testing::Message() << "constant " << testing::PrintToString(val));
    check_scaled_calls<Export, D, A>(
        [val](D* dst, int len, int s, const A* a) { return call<Export>(a, val, dst, len, s); },
        [&](A a, D, int s) { return one(a, val, s); }, {0});
    if (testing::Test::HasFatalFailure()) return;
  }
  const V val = constants<V>().back();
  check_scaled_calls<Export, D, A>(
      [val](D* dst, int len, int s, const A* a) { return call<Export>(a, val, dst, len, s); },
      [&](A a, D, int s) { return one(a, val, s); });
}

template <auto* Export, class V, class D, class One>
requires(!std::is_pointer_v<V>) void check_form(TavStatus (*)(V, D*, int, int), const One& one) {
  for (V val : constants<V>()) {
    SCOPED_TRACE(testing::Message() << "constant " << testing::PrintToString(val));
    check_scaled_calls<Export, D>([val](D* dst, int len, int s) { return call<Export>(val, dst, len, s); },
                                  [&](D before, int s) { return one(before, val, s); }, {0});
    if (testing::Test::HasFatalFailure()) return;
  }
  const V val = constants<V>().back();
  check_scaled_calls<Export, D>([val](D* dst, int len, int s) { return call<Export>(val, dst, len, s); },
                                [&](D before, int s) { return one(before, val, s); });
}

template <auto* Export, class One> void check_scaled(const One& one) {
  SCOPED_TRACE(testing::Message() << "export at row " << tav::is_split<Export>);
  check_form<Export>(Export, one);
}

// Runs a definition of real numbers on each part of complex ones.
template <class T, class One> T by_parts(T a, T b, int s, const One& one) {
  if constexpr (requires { a.re; })
    return {one(a.re, b.re, s), one(a.im, b.im, s)};
  else
    return one(a, b, s);
}

// Orders of checks where the length stands before the scale factor.
inline constexpr auto pointers_then_length_scaled = [](auto function, auto each) {
  pointers_then_length_at<1>(function, each);
};

template <class... P> void length_then_pointers_scaled_of(TavStatus (*function)(P...), const auto& each) {
  std::vector<fault<P...>> faults;
  add_below_one<sizeof...(P) - 2>(faults);
  add_null_pointers(faults);
  each([&] { expect_faults(function, faults); });
}
inline constexpr auto length_then_pointers_scaled = [](auto function, auto each) {
  length_then_pointers_scaled_of(function, each);
};

// Lengths without a sign: only 0 is bad.
template <size_t From_end, class... P>
void pointers_then_unsigned_length_at(TavStatus (*function)(P...), const auto& each) {
  std::vector<fault<P...>> faults;
  add_null_pointers(faults);
  faults.push_back(
      {"length 0", tavStatusBadSize, [](arguments<P...>& a) { a.template set<sizeof...(P) - 1 - From_end>(0); }});
  each([&] { expect_faults(function, faults); });
}

}  // namespace test
