// The 16-byte registers of SSSE3 behind one overload set: load and store, by element type and count; and what
// many families do to them alike.
#pragma once
#include <tmmintrin.h>

#include <stddef.h>
#include <stdint.h>

#include <type_traits>

#include "tavs.h"

#define TAV_INLINE inline __attribute__((always_inline))
// A function that is not to be inlined, so that its registers burden nobody else.
#define TAV_APART __attribute__((noinline))

namespace tav::TAV_VARIANT {

// Elements may lie at any address, so scalar code reads and writes them through these two.
template <class T> TAV_INLINE T peek(const T* p) {
  T v;
  __builtin_memcpy(&v, static_cast<const void*>(p), sizeof v);
  return v;
}
template <class T> TAV_INLINE void poke(T* p, T v) { __builtin_memcpy(static_cast<void*>(p), &v, sizeof v); }

// The type of a complex element's parts, or a real element's own.
template <class T, class = void> struct part_of_element { using type = T; };
template <class T> struct part_of_element<T, std::void_t<decltype(T::re)>> { using type = decltype(T::re); };
template <class T> using part_of = typename part_of_element<T>::type;

template <class T> inline constexpr bool is_complex = !std::is_same_v<part_of<T>, T>;
template <class T> inline constexpr int  parts      = is_complex<T> ? 2 : 1;

template <class T> const part_of<T>* parts_of(const T* p) { return reinterpret_cast<const part_of<T>*>(p); }
template <class T> part_of<T>*       parts_of(T* p) { return reinterpret_cast<part_of<T>*>(p); }

enum class access { unaligned, aligned, streaming };

// clang-format off
template <class T> struct register_of          { using type = __m128i; };
template <> struct        register_of<Tav32f>  { using type = __m128; };
template <> struct        register_of<Tav32fc> { using type = __m128; };
template <> struct        register_of<Tav64f>  { using type = __m128d; };
template <> struct        register_of<Tav64fc> { using type = __m128d; };
// clang-format on

template <class T> using reg                  = typename register_of<T>::type;
template <class T> inline constexpr int lanes = 16 / sizeof(T);

TAV_INLINE __m128i as_bits(__m128i v) { return v; }
TAV_INLINE __m128i as_bits(__m128 v) { return _mm_castps_si128(v); }
TAV_INLINE __m128i as_bits(__m128d v) { return _mm_castpd_si128(v); }

// The other way: the bits as the register that type T is computed in.
template <class T> TAV_INLINE reg<T> from_bits(__m128i v) {
  if constexpr (std::is_same_v<reg<T>, __m128>)
    return _mm_castsi128_ps(v);
  else if constexpr (std::is_same_v<reg<T>, __m128d>)
    return _mm_castsi128_pd(v);
  else
    return v;
}

template <access A> TAV_INLINE __m128i load_bits(const void* p) {
  const auto q = static_cast<const __m128i*>(p);
  return A == access::unaligned ? _mm_loadu_si128(q) : _mm_load_si128(q);
}

template <access A> TAV_INLINE void store_bits(void* p, __m128i v) {
  const auto q = static_cast<__m128i*>(p);
  if constexpr (A == access::streaming)
    _mm_stream_si128(q, v);
  else if constexpr (A == access::aligned)
    _mm_store_si128(q, v);
  else
    _mm_storeu_si128(q, v);
}

// yes in the lanes of the mask, no in the others.
TAV_INLINE __m128i selected(__m128i mask, __m128i yes, __m128i no) {
  return _mm_or_si128(_mm_and_si128(mask, yes), _mm_andnot_si128(mask, no));
}
TAV_INLINE __m128 selected(__m128 mask, __m128 yes, __m128 no) {
  return _mm_or_ps(_mm_and_ps(mask, yes), _mm_andnot_ps(mask, no));
}
TAV_INLINE __m128d selected(__m128d mask, __m128d yes, __m128d no) {
  return _mm_or_pd(_mm_and_pd(mask, yes), _mm_andnot_pd(mask, no));
}

// Without the sign bit.
TAV_INLINE __m128  sign_cleared(__m128 v) { return _mm_andnot_ps(_mm_set1_ps(-0.0f), v); }
TAV_INLINE __m128d sign_cleared(__m128d v) { return _mm_andnot_pd(_mm_set1_pd(-0.0), v); }

// Square roots, of lanes and of single elements.
TAV_INLINE __m128  root(__m128 v) { return _mm_sqrt_ps(v); }
TAV_INLINE __m128d root(__m128d v) { return _mm_sqrt_pd(v); }
TAV_INLINE Tav32f  root(Tav32f v) { return _mm_cvtss_f32(_mm_sqrt_ss(_mm_set_ss(v))); }
TAV_INLINE Tav64f  root(Tav64f v) { return _mm_cvtsd_f64(_mm_sqrt_sd(_mm_setzero_pd(), _mm_set_sd(v))); }

// The parts of each pair exchanged: pshufd copies and exchanges in one instruction.
TAV_INLINE __m128i parts_exchanged(__m128i v) { return _mm_shuffle_epi32(v, 0xB1); }
TAV_INLINE __m128  parts_exchanged(__m128 v) { return _mm_castsi128_ps(parts_exchanged(_mm_castps_si128(v))); }
TAV_INLINE __m128d parts_exchanged(__m128d v) { return _mm_castsi128_pd(_mm_shuffle_epi32(_mm_castpd_si128(v), 0x4E)); }

// Elements of so many bytes back to front.
template <int Bytes> TAV_INLINE __m128i reversed(__m128i v) {
  if constexpr (Bytes == 1)
    return _mm_shuffle_epi8(v, _mm_setr_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0));
  else if constexpr (Bytes == 2)
    return _mm_shuffle_epi8(v, _mm_setr_epi8(14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1));
  else if constexpr (Bytes == 4)
    return _mm_shuffle_epi32(v, _MM_SHUFFLE(0, 1, 2, 3));
  else if constexpr (Bytes == 8)
    return _mm_shuffle_epi32(v, _MM_SHUFFLE(1, 0, 3, 2));
  else
    return v;
}

// Of two registers in a row, every other lane.
TAV_INLINE __m128  even_lanes(__m128 a, __m128 b) { return _mm_shuffle_ps(a, b, 0x88); }
TAV_INLINE __m128d even_lanes(__m128d a, __m128d b) { return _mm_unpacklo_pd(a, b); }
TAV_INLINE __m128  odd_lanes(__m128 a, __m128 b) { return _mm_shuffle_ps(a, b, 0xDD); }
TAV_INLINE __m128d odd_lanes(__m128d a, __m128d b) { return _mm_unpackhi_pd(a, b); }

// 2, 4 or 8 bytes in the low part of a register, the rest zero.
template <int Bytes> TAV_INLINE __m128i load_low(const void* p) {
  if constexpr (Bytes == 8) {
    return _mm_loadl_epi64(static_cast<const __m128i*>(p));
  } else if constexpr (Bytes == 4) {
    int32_t v;
    __builtin_memcpy(&v, p, 4);
    return _mm_cvtsi32_si128(v);
  } else {
    static_assert(Bytes == 2);
    uint16_t v;
    __builtin_memcpy(&v, p, 2);
    return _mm_cvtsi32_si128(v);
  }
}

// The four words there as 32-bit integers.
TAV_INLINE __m128i low_half_as_32s(__m128i v) { return _mm_srai_epi32(_mm_unpacklo_epi16(v, v), 16); }

// N elements of T: a register, the low part of one, or several.
template <class R, int K> struct several { R r[K]; };

template <class T, int N> struct group_of {
  static constexpr int registers = N * int(sizeof(T)) / 16;
  using type                     = std::conditional_t<(registers > 1), several<reg<T>, registers>, reg<T>>;
};
template <class T, int N> using group = typename group_of<T, N>::type;

template <access A, int N, class T> TAV_INLINE group<T, N> load(const T* p) {
  constexpr int bytes = N * int(sizeof(T));
  if constexpr (bytes < 16) {
    return from_bits<T>(load_low<bytes>(p));
  } else if constexpr (bytes == 16) {
    return from_bits<T>(load_bits<A>(p));
  } else {
    group<T, N> g;
#pragma GCC unroll 8
    for (int k = 0; k < bytes / 16; ++k) g.r[k] = from_bits<T>(load_bits<A>(p + k * lanes<T>));
    return g;
  }
}

template <access A, class T, class R> TAV_INLINE void store(T* p, R v) { store_bits<A>(p, as_bits(v)); }

template <access A, class T, class R, int K> TAV_INLINE void store(T* p, several<R, K> v) {
// clang-format off
#pragma GCC unroll 8
  // clang-format on
  for (int k = 0; k < K; ++k) store_bits<A>(p + k * lanes<T>, as_bits(v.r[k]));
}

// The bits of an element, repeated through a register. Built from words in registers: an argument that the caller has
// just stored in pieces would be slow to load as a whole.
template <class T> TAV_INLINE __m128i repeated(T val) {
  constexpr size_t words = sizeof(T) <= 4 ? 1 : sizeof(T) / 4;
  if constexpr (sizeof(T) == 1) return _mm_set1_epi8(char(val));
  if constexpr (sizeof(T) == 2) return _mm_set1_epi16(short(val));
  int w[words];
  __builtin_memcpy(w, &val, sizeof val);
  if constexpr (words == 1) return _mm_set1_epi32(w[0]);
  if constexpr (words == 2) return _mm_setr_epi32(w[0], w[1], w[0], w[1]);
  if constexpr (words == 4) return _mm_setr_epi32(w[0], w[1], w[2], w[3]);
}

}  // namespace tav::TAV_VARIANT
