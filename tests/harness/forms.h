// check_layouts for the argument patterns of the element-wise functions, given what one element should become.
//
//   check_two_sources<&::tavsSub_32f>([](Tav32f a, Tav32f b) { return b - a; });
//
// The pattern is read off the signature of the export, with which a call that does not fit it will not compile.
#pragma once
#include "harness/layouts.h"

namespace test {

inline std::set<int> usual_lengths() { return lengths_around({256, 1000}); }
inline std::set<int> few_lengths() { return lengths_around({256}, 40); }

template <class A, class B, class D> using two_sources_call = TavStatus (*)(const A*, const B*, D*, int);

// dst[i] = one(a[i], b[i]); the destination may also be a source of its type, or both.
template <auto* Export, class A, class B, class D, class One>
void two_sources_of(two_sources_call<A, B, D>, const One& one, const std::set<int>& lengths) {
  const auto each = [&](std::vector<D>& dst, const std::vector<A>& a, const std::vector<B>& b) {
    for (size_t i = 0; i < dst.size(); ++i) dst[i] = one(a[i], b[i]);
    return tavStatusOk;
  };
  check_layouts<Export, D, A, B>(
      lengths, [](D* dst, int len, const A* a, const B* b) { return call<Export>(a, b, dst, len); }, each);
  if constexpr (std::is_same_v<A, D>)
    check_layouts<Export, D, B>(
        few_lengths(), [](D* dst, int len, const B* b) { return call<Export>(dst, b, dst, len); },
        [&](std::vector<D>& dst, const std::vector<B>& b) { return each(dst, std::vector(dst), b); });
  if constexpr (std::is_same_v<B, D>)
    check_layouts<Export, D, A>(
        few_lengths(), [](D* dst, int len, const A* a) { return call<Export>(a, dst, dst, len); },
        [&](std::vector<D>& dst, const std::vector<A>& a) { return each(dst, a, std::vector(dst)); });
  if constexpr (std::is_same_v<A, D> && std::is_same_v<B, D>)
    check_layouts<Export, D>(
        few_lengths(), [](D* dst, int len) { return call<Export>(dst, dst, dst, len); },
        [&](std::vector<D>& dst) { return each(dst, std::vector(dst), std::vector(dst)); });
}
template <auto* Export, class One>
void check_two_sources(const One& one, const std::set<int>& lengths = usual_lengths()) {
  two_sources_of<Export>(Export, one, lengths);
}

// srcDst[i] = one(src[i], srcDst[i]).
template <auto* Export, class A, class D, class One>
void in_place_of(TavStatus (*)(const A*, D*, int), const One& one, const std::set<int>& lengths) {
  check_layouts<Export, D, A>(
      lengths, [](D* dst, int len, const A* a) { return call<Export>(a, dst, len); },
      [&](std::vector<D>& dst, const std::vector<A>& a) {
        for (size_t i = 0; i < dst.size(); ++i) dst[i] = one(a[i], dst[i]);
        return tavStatusOk;
      });
}
template <auto* Export, class One> void check_in_place(const One& one, const std::set<int>& lengths = usual_lengths()) {
  in_place_of<Export>(Export, one, lengths);
}

// srcDst[i] = one(a[i], b[i], srcDst[i]).
template <auto* Export, class A, class B, class D, class One>
void accumulated_of(two_sources_call<A, B, D>, const One& one) {
  check_layouts<Export, D, A, B>(
      usual_lengths(), [](D* dst, int len, const A* a, const B* b) { return call<Export>(a, b, dst, len); },
      [&](std::vector<D>& dst, const std::vector<A>& a, const std::vector<B>& b) {
        for (size_t i = 0; i < dst.size(); ++i) dst[i] = one(a[i], b[i], dst[i]);
        return tavStatusOk;
      });
}
template <auto* Export, class One> void check_accumulated(const One& one) { accumulated_of<Export>(Export, one); }

// A constant for each call: one of four is a value that functions treat by itself.
template <class V> V some_constant(source_of_data& data) {
  if (data.below(4) != 0) return data.value<V>();
  const int n = data.below(2);
  if constexpr (requires(V v) { v.re; })
    return {decltype(V::re)(n), decltype(V::re)(0)};
  else
    return V(n);
}

// dst[i] = one(src[i], val); the destination may also be the source, if it has its type.
template <auto* Export, class A, class V, class D, class One>
void constant_of(TavStatus (*)(const A*, V, D*, int), const One& one) {
  source_of_data data(17);
  V              val;
  const auto     each = [&](std::vector<D>& dst, const std::vector<A>& src) {
    val = some_constant<V>(data);
    for (size_t i = 0; i < dst.size(); ++i) dst[i] = one(src[i], val);
    return tavStatusOk;
  };
  check_layouts<Export, D, A>(
      usual_lengths(), [&](D* dst, int len, const A* src) { return call<Export>(src, val, dst, len); }, each);
  if constexpr (std::is_same_v<A, D>)
    check_layouts<Export, D>(
        few_lengths(), [&](D* dst, int len) { return call<Export>(dst, val, dst, len); },
        [&](std::vector<D>& dst) { return each(dst, std::vector(dst)); });
}
template <auto* Export, class One> void check_constant(const One& one) { constant_of<Export>(Export, one); }

// srcDst[i] = one(srcDst[i], val).
template <auto* Export, class V, class D, class One>
void constant_in_place_of(TavStatus (*)(V, D*, int), const One& one) {
  source_of_data data(19);
  V              val;
  check_layouts<Export, D>(
      usual_lengths(), [&](D* dst, int len) { return call<Export>(val, dst, len); },
      [&](std::vector<D>& dst) {
        val = some_constant<V>(data);
        for (D& v : dst) v = one(v, val);
        return tavStatusOk;
      });
}
template <auto* Export, class One> void check_constant_in_place(const One& one) {
  constant_in_place_of<Export>(Export, one);
}

// srcDst[i] = one(src[i], val, srcDst[i]).
template <auto* Export, class A, class V, class D, class One>
void accumulated_constant_of(TavStatus (*)(const A*, V, D*, int), const One& one) {
  source_of_data data(23);
  V              val;
  check_layouts<Export, D, A>(
      usual_lengths(), [&](D* dst, int len, const A* src) { return call<Export>(src, val, dst, len); },
      [&](std::vector<D>& dst, const std::vector<A>& src) {
        val = some_constant<V>(data);
        for (size_t i = 0; i < dst.size(); ++i) dst[i] = one(src[i], val, dst[i]);
        return tavStatusOk;
      });
}
template <auto* Export, class One> void check_accumulated_constant(const One& one) {
  accumulated_constant_of<Export>(Export, one);
}

// dst[i] = one(src[i]), from another array, onto itself by the same export, and by the form in place.
template <auto* Export, auto* InPlace, class A, class D, class One>
void one_source_of(TavStatus (*)(const A*, D*, int), const One& one) {
  const auto each = [&](std::vector<D>& dst, const std::vector<A>& src) {
    for (size_t i = 0; i < dst.size(); ++i) dst[i] = one(src[i]);
    return tavStatusOk;
  };
  const auto onto_itself = [&](std::vector<D>& dst) { return each(dst, std::vector(dst)); };
  check_layouts<Export, D, A>(
      usual_lengths(), [](D* dst, int len, const A* src) { return call<Export>(src, dst, len); }, each);
  check_layouts<Export, D>(
      few_lengths(), [](D* dst, int len) { return call<Export>(dst, dst, len); }, onto_itself);
  check_layouts<InPlace, D>(
      usual_lengths(), [](D* dst, int len) { return call<InPlace>(dst, len); }, onto_itself);
}
template <auto* Export, auto* InPlace, class One> void check_one_source(const One& one) {
  one_source_of<Export, InPlace>(Export, one);
}

// Runs a check in each rounding mode but the usual one; the check sets it around the calls that shall see it.
struct rounding_mode {
  static constexpr unsigned field = 0x6000, down = 0x2000, up = 0x4000, to_zero = 0x6000;

  explicit rounding_mode(unsigned mode) : callers_(_mm_getcsr()) { _mm_setcsr((callers_ & ~field) | mode); }
  ~rounding_mode() { _mm_setcsr(callers_); }
  rounding_mode(const rounding_mode&)            = delete;
  rounding_mode& operator=(const rounding_mode&) = delete;

 private:
  unsigned callers_;
};

inline constexpr unsigned rounding_modes[] = {rounding_mode::down, rounding_mode::up, rounding_mode::to_zero};

}  // namespace test
