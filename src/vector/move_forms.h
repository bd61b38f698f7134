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

template <class T> TavStatus filled(T val, T* dst, int len) {
  if (const TavStatus bad = check_vector(len, dst)) return bad;
  return shared::fill_elements<sizeof(T)>(dst, size_t(len), repeated(val));
}

}  // namespace tav::TAV_VARIANT
