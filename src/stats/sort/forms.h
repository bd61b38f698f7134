// The calls of the comparison sort: checks, keys the engine can compare, the engine, and the caller's values again.
#pragma once
#include "frame/bind.h"
#include "frame/checks.h"
#include "stats/sort/engine.h"
#include "stats/sort/keys.h"

namespace tav::TAV_VARIANT {

template <class T, sort_order Order> TavStatus sorted(T* srcDst, int len) {
  using keys = keys_of<T, Order, key_lanes::with_sign>;
  using word = std::conditional_t<std::is_same_v<T, Tav16u>, Tav16s, typename keys::word>;
  if (const TavStatus bad = check_vector(len, srcDst)) return bad;
  if (len == 1) return tavStatusOk;
  auto* const  p = reinterpret_cast<typename keys::word*>(srcDst);
  const size_t n = size_t(len);
  keys::change::make(p, n);
  shared::sort_keys(reinterpret_cast<word*>(p), n);
  keys::change::undo(p, n);
  return tavStatusOk;
}

inline void count_up(int* p, size_t n) {
  __m128i next = _mm_setr_epi32(0, 1, 2, 3);
  size_t  i    = 0;
  for (; i + 4 <= n; i += 4, next = _mm_add_epi32(next, _mm_set1_epi32(4))) store_bits<access::unaligned>(p + i, next);
  for (; i < n; ++i) poke(p + i, int(i));
}

// A single element's index is not written.
template <class T, sort_order Order> TavStatus sorted_with_index(T* srcDst, int* dstIndex, int len) {
  using keys = keys_of<T, Order, sizeof(T) < 4 ? key_lanes::widened : key_lanes::with_sign>;
  using word = std::conditional_t<std::is_same_v<T, Tav16s>, Tav16u, typename keys::word>;
  if (const TavStatus bad = check_vector(len, srcDst, dstIndex)) return bad;
  if (len == 1) return tavStatusOk;
  auto* const  p = reinterpret_cast<typename keys::word*>(srcDst);
  const size_t n = size_t(len);
  count_up(dstIndex, n);
  keys::change::make(p, n);
  shared::sort_pairs(reinterpret_cast<word*>(p), dstIndex, n);
  keys::change::undo(p, n);
  return tavStatusOk;
}

}  // namespace tav::TAV_VARIANT
