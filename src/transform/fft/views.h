// How points lie in memory. A view has its pointers, moves by points (`at` pins where it moved to, for offsets that are
// not constant), and reads and writes a vector's worth of them:
// get and put by L points as registers of real and of imaginary parts (planar), columns and put_columns by L / 2 points
// as pairs.
//
//   pairs    re im re im ..., as callers hold interleaved data
//   groups   L real parts, then their L imaginary parts: what the stages work on, L points without a shuffle
//   split    real and imaginary parts in two arrays
#pragma once
#include "transform/fft/vectors.h"

namespace tav::TAV_VARIANT::fft {

template <class T> struct planar { reg<T> re, im; };

// A register, or its low half.
template <int Bytes, class T> TAV_INLINE reg<T> read_low(const T* p) {
  if constexpr (Bytes == 16)
    return read(p);
  else
    return from_bits<T>(load_low<Bytes>(p));
}
template <int Bytes, class T> TAV_INLINE void write_low(T* p, reg<T> v) {
  if constexpr (Bytes == 16)
    write(p, v);
  else
    _mm_storel_epi64(reinterpret_cast<__m128i*>(p), as_bits(v));
}

// The line at p is wanted soon. It may lie behind the array: a prefetch never faults.
template <class T> TAV_INLINE void ask_for(const T* p) { _mm_prefetch(reinterpret_cast<const char*>(p), _MM_HINT_T0); }

template <class T> struct pairs {
  using value = T;
  T* p;

  pairs            operator+(size_t points) const { return {p + 2 * points}; }
  TAV_INLINE void  ask(size_t points) const { ask_for(p + 2 * points); }
  TAV_INLINE pairs at(size_t points) const { return {pinned(p, 2 * points)}; }

  TAV_INLINE reg<T> point() const { return read_low<2 * sizeof(T)>(p); }
  TAV_INLINE void   put_point(reg<T> v) const { write_low<2 * sizeof(T)>(p, v); }
  TAV_INLINE reg<T> columns(size_t i) const { return read(p + 2 * i); }
  TAV_INLINE void   put_columns(size_t i, reg<T> v) const { write(p + 2 * i, v); }
  TAV_INLINE void   put(size_t i, reg<T> re, reg<T> im) const {
      const reg<T> low = low_lanes(re, im), high = high_lanes(re, im);
      write(p + 2 * i, low);
      write(p + 2 * i + lanes<T>, high);
  }
};

template <class T> struct groups {
  using value = T;
  T* p;

  groups            operator+(size_t points) const { return {p + 2 * points}; }
  TAV_INLINE void   ask(size_t points) const { ask_for(p + 2 * points); }
  TAV_INLINE groups at(size_t points) const { return {pinned(p, 2 * points)}; }

  TAV_INLINE planar<T> get(size_t i) const { return {read(p + 2 * i), read(p + 2 * i + lanes<T>)}; }
  TAV_INLINE void      put(size_t i, reg<T> re, reg<T> im) const {
         write(p + 2 * i, re);
         write(p + 2 * i + lanes<T>, im);
  }
};

template <class T> struct split {
  using value = T;
  T *re, *im;

  split            operator+(size_t points) const { return {re + points, im + points}; }
  TAV_INLINE void  ask(size_t points) const { ask_for(re + points), ask_for(im + points); }
  TAV_INLINE split at(size_t points) const { return {pinned(re, points), pinned(im, points)}; }

  TAV_INLINE planar<T> get(size_t i) const { return {read(re + i), read(im + i)}; }
  TAV_INLINE void      put(size_t i, reg<T> r, reg<T> s) const {
         write(re + i, r);
         write(im + i, s);
  }
  TAV_INLINE reg<T> columns(size_t i) const { return low_lanes(read_low<8>(re + i), read_low<8>(im + i)); }
  TAV_INLINE reg<T> point() const {
    return low_lanes(from_bits<T>(load_low<sizeof(T)>(re)), from_bits<T>(load_low<sizeof(T)>(im)));
  }
  TAV_INLINE void put_point(reg<T> v) const {
    if constexpr (sizeof(T) == 4) {
      _mm_store_ss(re, v);
      _mm_store_ss(im, parts_exchanged(v));
    } else {
      put_columns(0, v);
    }
  }
  TAV_INLINE void put_columns(size_t i, reg<T> v) const {
    if constexpr (sizeof(T) == 4) {
      const __m128d parts = _mm_castps_pd(_mm_shuffle_ps(v, v, 0xD8));
      _mm_storel_pd(reinterpret_cast<double*>(re + i), parts);
      _mm_storeh_pd(reinterpret_cast<double*>(im + i), parts);
    } else {
      _mm_storel_pd(re + i, v);
      _mm_storeh_pd(im + i, v);
    }
  }
};

// Where the last butterflies leave the result. The inverse runs the forward stages on points with their parts exchanged
// (the first pass exchanges them, here they change back), so only the two ends know the direction.
template <class View, bool Exchanged, bool Scaled> struct result {
  using value = typename View::value;
  View         view;
  const value* scale;  // a register's width, on a 16-byte boundary

  result            operator+(size_t points) const { return {view + points, scale}; }
  TAV_INLINE result at(size_t points) const { return {view.at(points), scale}; }

  TAV_INLINE reg<value> scaled(reg<value> v) const {
    if constexpr (Scaled) v = times(v, scale);
    return v;
  }
  TAV_INLINE void put(size_t i, reg<value> re, reg<value> im) const {
    if constexpr (Exchanged)
      view.put(i, scaled(im), scaled(re));
    else
      view.put(i, scaled(re), scaled(im));
  }
  TAV_INLINE void put_columns(size_t i, reg<value> v) const { view.put_columns(i, scaled(v)); }
  TAV_INLINE void put_point(reg<value> v) const { view.put_point(scaled(v)); }
};

}  // namespace tav::TAV_VARIANT::fft
