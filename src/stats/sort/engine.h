// The engine of the comparison sort: ascending, in place, at least one element. Shared by both variants.
//
// Keys of 64 bits are the bits of doubles; NaNs among them end behind all others. In pairs, keys of 16 bits have no
// sign.
#pragma once
#include "tavs.h"

#pragma GCC visibility push(hidden)
namespace tav::shared {

void sort_keys(Tav16s* keys, size_t n);
void sort_keys(Tav32s* keys, size_t n);
void sort_keys(Tav64u* keys, size_t n);

// Each index goes with its key. Indices are not negative.
void sort_pairs(Tav8u* keys, int* indices, size_t n);
void sort_pairs(Tav16u* keys, int* indices, size_t n);
void sort_pairs(Tav32s* keys, int* indices, size_t n);
void sort_pairs(Tav64u* keys, int* indices, size_t n);

}  // namespace tav::shared
#pragma GCC visibility pop
