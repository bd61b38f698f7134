// How large the parts of a float record are. The sum is what size queries report, the same on all targets and a promise
// to callers who bring their own memory; set-up lays the parts out by the same numbers.
#pragma once
#include "filter/fir/float_traits.h"

namespace tav::TAV_VARIANT::fir {

// In bytes; 64 bits, for a size is reported modulo 2^32 but never allocated so.
struct layout {
  uint64_t room;  // the record and the way to its boundary
  uint64_t delay, reversed, repeated, staggered, scratch;

  int      fft_order   = 0;
  uint64_t fft_points  = 0;  // 0: no transform
  uint64_t samples     = 0;  // spectrum and block, each
  int      fft_context = 0, fft_init = 0, fft_work = 0;

  uint64_t total() const {
    return room + delay + reversed + repeated + staggered + scratch + 2 * samples + uint64_t(fft_context)
           + uint64_t(fft_init) + uint64_t(fft_work);
  }
};

template <int Unit> constexpr uint64_t up_to(uint64_t bytes) { return (bytes + Unit - 1) / Unit * Unit; }

// Ring and first stretch of a block take three times the taps and four samples more.
template <class T> constexpr layout without_transform(uint64_t n) {
  constexpr uint64_t scratch = scratch_samples * sizeof(T);
  const uint64_t     list    = up_to<16>(n * sizeof(T));
  if constexpr (std::is_same_v<T, Tav32f>) {
    const uint64_t four_copies = ((n + 6) & ~uint64_t(3)) * 16;
    return {144, up_to<16>(12 * n + 16), list, 4 * list, four_copies, scratch};
  } else if constexpr (std::is_same_v<T, Tav32fc>) {
    return {240, up_to<16>(24 * n + 32), list, 12 * list, 0, scratch};
  } else if constexpr (std::is_same_v<T, Tav64f>) {
    const uint64_t even = (n + 2) & ~uint64_t(1);
    return {192, up_to<32>(24 * n + 32), 8 * even, 24 * even, 0, scratch};
  } else {
    return {176, up_to<32>(48 * n + 64), up_to<32>(16 * n), up_to<32>(16 * n) * 2, 0, scratch};
  }
}

// The double filters with integers for taps never have a transform in memory of the caller's, and little room.
inline constexpr uint64_t least_room = 143;
inline constexpr layout   with_integer_taps(uint64_t n) {
    const uint64_t list = up_to<16>(8 * n);
    return {least_room, up_to<16>(24 * n + 32), list, 2 * list, 0, scratch_samples * sizeof(Tav64f)};
}

// Twice the least power of two above the taps: between two and four times as long as they are.
constexpr int transform_order(uint64_t n) {
  int order = 1;
  while (uint64_t(1) << order <= n) ++order;
  return order + 1;
}

inline constexpr int no_hint = 0;

// If the transforms have no such length, the filter works without.
template <class T> layout with_transform(layout l, uint64_t n) {
  l.fft_order = transform_order(n);
  if (transform<T>::get_size(l.fft_order, fftScaleInverse, no_hint, &l.fft_context, &l.fft_init, &l.fft_work) < 0)
    return l;
  l.fft_points = uint64_t(1) << l.fft_order;
  l.samples    = up_to<16>(l.fft_points * sizeof(T));
  return l;
}

template <class T> layout layout_of(uint64_t n, uint64_t transform_from) {
  const layout l = without_transform<T>(n);
  return n < transform_from ? l : with_transform<T>(l, n);
}

}  // namespace tav::TAV_VARIANT::fir
