// The register operations of the transforms, for singles and doubles by overload. A register holds L values: of L
// neighbouring points (planar), or re im re im of L / 2 points (pairs).
//
// Three lines of assembly steer the compiler. Loads are written out, so that a value is not read from memory a second
// time where a copy of the register would do: loops become bound by loads otherwise. A factor stays the memory operand
// of its multiplication: with eight registers, one that is loaded ahead pushes out another. And an address can be
// pinned.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT::fft {

// p + offset, in a register of its own unless the offset is constant. Left alone, the compiler makes an index of each
// sum of an offset and a constant behind it, keeps them all, and on 32 bits fetches them from the stack for every
// access.
template <class P> TAV_INLINE P* pinned(P* p) {
  __asm__("" : "+r"(p));
  return p;
}
template <class P> TAV_INLINE P* pinned(P* p, size_t offset) {
  return __builtin_constant_p(offset) ? p + offset : pinned(p + offset);
}

TAV_INLINE __m128 read(const float* p) {
  __m128 v;
  __asm__("movups %1, %0" : "=x"(v) : "m"(*reinterpret_cast<const __m128_u*>(p)));
  return v;
}
TAV_INLINE __m128d read(const double* p) {
  __m128d v;
  __asm__("movupd %1, %0" : "=x"(v) : "m"(*reinterpret_cast<const __m128d_u*>(p)));
  return v;
}
TAV_INLINE __m128d read_twice(const double* p) {
  __m128d v;
  __asm__("movddup %1, %0" : "=x"(v) : "m"(*p));
  return v;
}
TAV_INLINE void write(float* p, __m128 v) { _mm_storeu_ps(p, v); }
TAV_INLINE void write(double* p, __m128d v) { _mm_storeu_pd(p, v); }

// Factors and masks are tables on 16-byte boundaries.
TAV_INLINE __m128 times(__m128 v, const float* p) {
  __asm__("mulps %1, %0" : "+x"(v) : "m"(*reinterpret_cast<const __m128*>(p)));
  return v;
}
TAV_INLINE __m128d times(__m128d v, const double* p) {
  __asm__("mulpd %1, %0" : "+x"(v) : "m"(*reinterpret_cast<const __m128d*>(p)));
  return v;
}
template <class V> TAV_INLINE V flipped(V v, const void* mask) {
  __asm__("xorps %1, %0" : "+x"(v) : "m"(*static_cast<const V*>(mask)));
  return v;
}

TAV_INLINE __m128  low_lanes(__m128 a, __m128 b) { return _mm_unpacklo_ps(a, b); }
TAV_INLINE __m128d low_lanes(__m128d a, __m128d b) { return _mm_unpacklo_pd(a, b); }
TAV_INLINE __m128  high_lanes(__m128 a, __m128 b) { return _mm_unpackhi_ps(a, b); }
TAV_INLINE __m128d high_lanes(__m128d a, __m128d b) { return _mm_unpackhi_pd(a, b); }

TAV_INLINE __m128 exchanged_halves(__m128 v) { return _mm_castsi128_ps(_mm_shuffle_epi32(_mm_castps_si128(v), 0x4E)); }

template <int Bytes> struct word_of;
template <> struct word_of<4> { using type = uint32_t; };
template <> struct word_of<8> { using type = uint64_t; };

// Constants of a register's width.
template <class T> struct constants {
  using word                 = typename word_of<sizeof(T)>::type;
  static constexpr T    h    = T(0.70710678118654752440084436210484903928L);  // 1 / sqrt(2)
  static constexpr word sign = word(1) << (8 * sizeof(T) - 1);

  alignas(16) static constexpr T half[4]           = {T(0.5), T(0.5), T(0.5), T(0.5)};
  alignas(16) static constexpr T half_root[4]      = {h, h, h, h};
  alignas(16) static constexpr word negative_re[4] = {sign, 0, sign, 0};
  alignas(16) static constexpr word negative_im[4] = {0, sign, 0, sign};
  alignas(16) static constexpr word negative[4]    = {sign, sign, sign, sign};
};

// On pairs, a quarter turn in the direction of the transform: times -i forward, times i inverse.
template <bool Inverse, class T, class V> TAV_INLINE V turned(V v) {
  return flipped(parts_exchanged(v), Inverse ? constants<T>::negative_re : constants<T>::negative_im);
}

}  // namespace tav::TAV_VARIANT::fft
