// Bytes alone: counted where there are enough of them, else sorted as words.
#pragma once
#include "stats/byte_counting.h"
#include "stats/sort/forms.h"

namespace tav::TAV_VARIANT {

inline constexpr size_t count_bytes_from = 128;

template <sort_order Order> void sort_few_bytes(Tav8u* p, size_t n) {
  constexpr int flip = Order == sort_order::ascending ? 0 : 0xFF;
  Tav16s        words[count_bytes_from];
  for (size_t i = 0; i < n; ++i) words[i] = Tav16s(p[i] ^ flip);
  shared::sort_keys(words, n);
  for (size_t i = 0; i < n; ++i) p[i] = Tav8u(words[i] ^ flip);
}

template <sort_order Order> TavStatus sorted_bytes(Tav8u* srcDst, int len) {
  if (const TavStatus bad = check_vector(len, srcDst)) return bad;
  const size_t n = size_t(len);
  if (n < count_bytes_from)
    sort_few_bytes<Order>(srcDst, n);
  else
    sort_bytes_by_counting<Order == sort_order::descending>(srcDst, n);
  return tavStatusOk;
}

}  // namespace tav::TAV_VARIANT
