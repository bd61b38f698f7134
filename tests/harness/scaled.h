// Checks of the functions with a scale factor: an exact definition, swept over factors, values and layouts.
//
// `exact` takes elements and gives the exact result as an integer (or a pair {re, im} of them), with the operands in
// the order of the export's arguments; a destination that is read as well comes last.
#pragma once
#include "harness/layouts.h"
#include "oracle/narrow_scale.h"

namespace test {

template <class D, class R> D scaled_element(const R& r, int s) {
  if constexpr (requires(D d) { d.re; })
    return {oracle::scaled<decltype(D::re)>(r.re, s), oracle::scaled<decltype(D::im)>(r.im, s)};
  else
    return oracle::scaled<D>(r, s);
}

// Values for sweeps: every one of an 8- or 16-bit element, and as many drawn ones of a pair.
template <class T> std::vector<T> sweep_values(source_of_data& data) {
  if constexpr (sizeof(T) <= 2 && !requires(T t) { t.re; }) {
    std::vector<T> v(sizeof(T) == 1 ? 256 : 65536);
    for (size_t i = 0; i < v.size(); ++i) v[i] = T(i);
    return v;
  } else {
    return data.values<T>(20000);
  }
}

// One partner for all values of a sweep: each of the 256 for bytes, else an extreme or a drawn one.
template <class T> std::vector<T> partners(source_of_data& data) {
  if constexpr (sizeof(T) == 1) return sweep_values<T>(data);
  return data.values<T>(5);
}

template <class D, class Call, class Want>
void expect_sweep(size_t n, int s, std::vector<D> dst, const Call& call, const Want& want) {
  std::vector<D> expected(n);
  for (size_t i = 0; i < n; ++i) expected[i] = want(i);
  ASSERT_EQ(call(dst.data(), int(n)), tavStatusOk) << "factor " << s;
  if (const long i = first_difference(dst, expected); i >= 0)
    FAIL() << "factor " << s << ", element " << i << " of " << n;
}

inline std::vector<int> factors_between(int low, int high) {
  std::vector<int> all{std::numeric_limits<int>::min(), -1000, 1000, std::numeric_limits<int>::max()};
  for (int s = low; s <= high; ++s) all.push_back(s);
  return all;
}

inline const std::set<int> narrow_lengths = lengths_around({200}, 70);

// tavsF(src1, src2, dst, len, scaleFactor)
template <auto* Export, class A, class B, class D, class Exact>
void check_two_sources_scaled(const std::vector<int>& factors, const Exact& exact) {
  each_build<Export>([&] {
    source_of_data data(51);
    const auto     a = sweep_values<A>(data);
    for (int s : factors)
      for (const B& partner : partners<B>(data)) {
        const std::vector<B> b(a.size(), partner);
        expect_sweep(
            a.size(), s, std::vector<D>(a.size()),
            [&](D* dst, int n) { return call<Export>(a.data(), b.data(), dst, n, s); },
            [&](size_t i) { return scaled_element<D>(exact(a[i], b[i]), s); });
        if (testing::Test::HasFatalFailure()) return;
      }
  });
  for (int s : {0, 1, 3, -2})
    check_layouts<Export, D, A, B>(
        narrow_lengths, [&](D* dst, int len, const A* a, const B* b) { return call<Export>(a, b, dst, len, s); },
        [&](std::vector<D>& dst, const std::vector<A>& a, const std::vector<B>& b) {
          for (size_t i = 0; i < dst.size(); ++i) dst[i] = scaled_element<D>(exact(a[i], b[i]), s);
          return tavStatusOk;
        });
}

// tavsF(src, srcDst, len, scaleFactor)
template <auto* Export, class A, class D, class Exact>
void check_in_place_scaled(const std::vector<int>& factors, const Exact& exact) {
  each_build<Export>([&] {
    source_of_data data(52);
    const auto     b = sweep_values<D>(data);
    for (int s : factors)
      for (const A& partner : partners<A>(data)) {
        const std::vector<A> a(b.size(), partner);
        expect_sweep(
            b.size(), s, b, [&](D* dst, int n) { return call<Export>(a.data(), dst, n, s); },
            [&](size_t i) { return scaled_element<D>(exact(a[i], b[i]), s); });
        if (testing::Test::HasFatalFailure()) return;
      }
  });
  for (int s : {0, 1, 3, -2})
    check_layouts<Export, D, A>(
        narrow_lengths, [&](D* dst, int len, const A* a) { return call<Export>(a, dst, len, s); },
        [&](std::vector<D>& dst, const std::vector<A>& a) {
          for (size_t i = 0; i < dst.size(); ++i) dst[i] = scaled_element<D>(exact(a[i], dst[i]), s);
          return tavStatusOk;
        });
}

// tavsF(src1, src2, srcDst, len, scaleFactor)
template <auto* Export, class A, class D, class Exact>
void check_accumulated_scaled(const std::vector<int>& factors, const Exact& exact) {
  each_build<Export>([&] {
    source_of_data data(53);
    const auto     a = sweep_values<A>(data);
    for (int s : factors)
      for (const A& partner : partners<A>(data)) {
        const std::vector<A> b(a.size(), partner);
        const auto           c = data.values<D>(a.size());
        expect_sweep(
            a.size(), s, c, [&](D* dst, int n) { return call<Export>(a.data(), b.data(), dst, n, s); },
            [&](size_t i) { return scaled_element<D>(exact(a[i], b[i], c[i]), s); });
        if (testing::Test::HasFatalFailure()) return;
      }
  });
  for (int s : {0, 1, 3, -2})
    check_layouts<Export, D, A, A>(
        narrow_lengths, [&](D* dst, int len, const A* a, const A* b) { return call<Export>(a, b, dst, len, s); },
        [&](std::vector<D>& dst, const std::vector<A>& a, const std::vector<A>& b) {
          for (size_t i = 0; i < dst.size(); ++i) dst[i] = scaled_element<D>(exact(a[i], b[i], dst[i]), s);
          return tavStatusOk;
        });
}

// tavsF(src, val, dst, len, scaleFactor) and tavsF_I(val, srcDst, len, scaleFactor), where exact(element, val)
template <auto* Export, auto* InPlace, class T, class Exact>
void check_constant_scaled(const std::vector<int>& factors, const Exact& exact) {
  source_of_data data(54);
  const auto     values = sweep_values<T>(data);
  const auto     sweep  = [&](const auto& call_it, const std::vector<T>& start) {
    for (int s : factors) {
      auto constants = partners<T>(data);
      if constexpr (requires(T t) { t.re; })
        constants.insert(constants.end(), {{0, 0}, {1, 0}});
      else
        constants.insert(constants.end(), {0, 1});
      for (const T& val : constants) {
        expect_sweep(
                 values.size(), s, start, [&](T* dst, int n) { return call_it(val, dst, n, s); },
                 [&](size_t i) { return scaled_element<T>(exact(values[i], val), s); });
        if (testing::Test::HasFatalFailure()) return;
      }
    }
  };
  each_build<Export>([&] {
    sweep([&](const T& val, T* dst, int n, int s) { return call<Export>(values.data(), val, dst, n, s); },
          std::vector<T>(values.size()));
  });
  each_build<InPlace>(
      [&] { sweep([](const T& val, T* dst, int n, int s) { return call<InPlace>(val, dst, n, s); }, values); });
  const T val = data.value<T>();
  for (int s : {0, 1, 3, -2}) {
    check_layouts<Export, T, T>(
        narrow_lengths, [&](T* dst, int len, const T* a) { return call<Export>(a, val, dst, len, s); },
        [&](std::vector<T>& dst, const std::vector<T>& a) {
          for (size_t i = 0; i < dst.size(); ++i) dst[i] = scaled_element<T>(exact(a[i], val), s);
          return tavStatusOk;
        });
    check_layouts<InPlace, T>(
        narrow_lengths, [&](T* dst, int len) { return call<InPlace>(val, dst, len, s); },
        [&](std::vector<T>& dst) {
          for (T& v : dst) v = scaled_element<T>(exact(v, val), s);
          return tavStatusOk;
        });
  }
}

}  // namespace test
