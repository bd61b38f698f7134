// The argument patterns of Copy, Move, Zero and Set over the byte engines. Sizes in bytes are formed in the width of
// size_t: on 32-bit systems a length can wrap to a small size, which then is all that is moved.
#pragma once
#include "frame/checks.h"
#include "vector/byte_engine.h"

namespace tav::TAV_VARIANT {

template <class T, auto Engine>
TavStatus transferred(const T* src, T* dst, int len) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  Engine(dst, src, size_t(len) * sizeof(T));
  return tavStatusOk;
}

template <class T>
TavStatus zeroed(T* dst, int len) {
  if (const TavStatus bad = check_vector(len, dst)) return bad;
  shared::zero_bytes(dst, size_t(len) * sizeof(T));
  return tavStatusOk;
}

// An element repeated through a register, whatever its type: its bits are all that counts.
template <class T>
TAV_INLINE __m128i repeated(T val) {
  alignas(16) T all[16 / sizeof(T)];
  for (T& v : all) v = val;
  return load_bits<access::aligned>(all);
}

template <class T>
TavStatus filled(T val, T* dst, int len) {
  if (const TavStatus bad = check_vector(len, dst)) return bad;
  const size_t elements = size_t(len);
  const bool   past_cache =
      sizeof(T) == 1 ? shared::byte_fill_streams(elements) : shared::element_fill_streams(elements, sizeof(T));
  shared::fill_bytes(dst, repeated(val), sizeof(T), elements * sizeof(T), past_cache);
  return tavStatusOk;
}

}  // namespace tav::TAV_VARIANT
