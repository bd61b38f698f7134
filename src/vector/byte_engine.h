// The byte engines under Set, Zero, Copy and Move, which most of the library calls inside too. Counts are in bytes.
// None checks anything; a count of 0 does nothing.
#pragma once
#include <emmintrin.h>

#include <stddef.h>

#include "frame/tuning.h"

namespace tav::shared {

// Source and destination apart, or the same. Past half of the last-level cache the stores bypass it.
void copy_bytes(void* dst, const void* src, size_t n);

// The same under another plan for large blocks.
void copy_pairs(void* dst, const void* src, size_t n);

// Any overlap. Never bypasses the cache.
void move_bytes(void* dst, const void* src, size_t n);

// Repeats a 16-byte pattern, whose period `width` divides n and 16, from dst on.
void fill_bytes(void* dst, __m128i pattern, int width, size_t n, bool past_cache);

// Zero bytes; past the size of the last-level cache the stores bypass it.
void zero_bytes(void* dst, size_t n);

// Whether a copy under a plan bypasses the cache.
bool copy_streams(const copy_plan& plan, size_t n);

// Whether a fill of single bytes, or one of elements of `width` bytes, bypasses the cache.
bool byte_fill_streams(size_t n);
bool element_fill_streams(size_t elements, size_t width);

}  // namespace tav::shared
