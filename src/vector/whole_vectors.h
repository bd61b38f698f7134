// The shape of element-wise kernels that compute long on each register: whole vectors, wherever the arrays lie. The
// elements left at the end go through a vector as well, by way of buffers; so the code stands once, and a result cannot
// depend on its place.
//
// An operation gives `step`, the elements of one call, and `many(registers...)`. The destination is an array, or two.
#pragma once
#include "frame/kernel_shape.h"

namespace tav::TAV_VARIANT {

template <class D> struct two_arrays { D *first, *second; };

template <class D, class R> TAV_INLINE void put(D* dst, size_t i, const R& r) { store<access::unaligned>(dst + i, r); }
template <class D, class R> TAV_INLINE void put(two_arrays<D> dst, size_t i, const several<R, 2>& r) {
  store<access::unaligned>(dst.first + i, r.r[0]);
  store<access::unaligned>(dst.second + i, r.r[1]);
}

// As many as fill the vectors. len is a multiple of that.
template <class Op, class To, class... S>
__attribute__((noinline)) void each_vector(const Op& of, To dst, size_t len, const S*... src) {
  const Op op = of;  // what is stored cannot change it
  for (size_t i = 0; i < len; i += Op::step) put(dst, i, op.many(load<access::unaligned, Op::step>(src + i)...));
}

template <class T, int N> struct vector_buffer { alignas(16) T data[N]; };

template <int N, class T> vector_buffer<T, N> filled_up(const T* src, size_t n) {
  vector_buffer<T, N> b{};
  for (size_t i = 0; i < n; ++i) b.data[i] = peek(src + i);
  return b;
}
template <int N, class T> void taken_from(const vector_buffer<T, N>& b, T* dst, size_t n) {
  for (size_t i = 0; i < n; ++i) poke(dst + i, b.data[i]);
}

template <class Op, class D, class... S> void last_vector(const Op& op, D* dst, size_t n, const S*... src) {
  constexpr int          step = Op::step;
  vector_buffer<D, step> out;
  each_vector(op, out.data, step, filled_up<step>(src, n).data...);
  taken_from<step>(out, dst, n);
}
template <class Op, class D, class... S> void last_vector(const Op& op, two_arrays<D> dst, size_t n, const S*... src) {
  constexpr int          step = Op::step;
  vector_buffer<D, step> out[2];
  each_vector(op, two_arrays<D>{out[0].data, out[1].data}, step, filled_up<step>(src, n).data...);
  taken_from<step>(out[0], dst.first, n);
  taken_from<step>(out[1], dst.second, n);
}

template <class D> TAV_INLINE D* from_element(D* dst, size_t i) { return dst + i; }
template <class D> TAV_INLINE two_arrays<D> from_element(two_arrays<D> dst, size_t i) {
  return {dst.first + i, dst.second + i};
}

template <class Op, class To, class... S> TavStatus whole_vectors(const Op& op, To dst, size_t len, const S*... src) {
  const size_t left = len % Op::step, whole = len - left;
  each_vector(op, dst, whole, src...);
  if (left != 0) last_vector(op, from_element(dst, whole), left, (src + whole)...);
  return tavStatusOk;
}

}  // namespace tav::TAV_VARIANT
