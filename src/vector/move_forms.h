// The argument patterns of Copy, Move, Zero and Set over the byte engines. Sizes in bytes are formed in the width of
// size_t: on 32-bit systems a length can wrap to a small size, which then is all that is moved.
#pragma once
#include "frame/checks.h"
#include "vector/byte_engine.h"

namespace tav::TAV_VARIANT {

template <class T, auto Engine> TavStatus transferred(const T* src, T* dst, int len) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  return Engine(src, dst, size_t(len) * sizeof(T));
}

template <class T> TavStatus zeroed(T* dst, int len) {
  if (const TavStatus bad = check_vector(len, dst)) return bad;
  return shared::zero_bytes(dst, size_t(len) * sizeof(T));
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

template <class T> TavStatus filled(T val, T* dst, int len) {
  if (const TavStatus bad = check_vector(len, dst)) return bad;
  return shared::fill_elements<sizeof(T)>(dst, size_t(len), repeated(val));
}

}  // namespace tav::TAV_VARIANT
