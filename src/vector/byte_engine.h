// The byte engines under Set, Zero, Copy and Move, which most of the library calls inside too. Sizes are in bytes.
//
// None checks anything; a size of 0 does nothing. Each returns tavStatusOk, so that a function which has nothing more
// to do may end in a jump to it.
#pragma once
#include <emmintrin.h>
#include <stddef.h>

#include "frame/tuning.h"
#include "tavs.h"

#pragma GCC visibility push(hidden)  // called directly, not through the table of a shared library
namespace tav::shared {

// Source and destination apart, or the same. Past half of the last-level cache the stores bypass it.
TavStatus copy_bytes(const void* src, void* dst, size_t n);

// What an operation that changes nothing comes to.
inline TavStatus copy_unless_in_place(const void* src, void* dst, size_t n) {
  return src == dst ? tavStatusOk : copy_bytes(src, dst, n);
}

// The same as copy_bytes under another plan for large blocks.
TavStatus copy_pairs(const void* src, void* dst, size_t n);

// Any overlap. Never bypasses the cache.
TavStatus move_bytes(const void* src, void* dst, size_t n);

// Elements of Width bytes (1, 2, 4, 8 or 16), all alike: the pattern is a register full of them. Past the size of the
// last-level cache the stores bypass it.
template <int Width>
__attribute__((visibility("hidden"))) TavStatus fill_elements(void* dst, size_t elements, __m128i pattern);

inline TavStatus zero_bytes(void* dst, size_t n) { return fill_elements<1>(dst, n, _mm_setzero_si128()); }

// When a copy under a plan, or a fill, bypasses the cache.
bool copy_streams(const copy_plan& plan, size_t n);
bool fill_streams(size_t elements, size_t width);

}  // namespace tav::shared
#pragma GCC visibility pop
