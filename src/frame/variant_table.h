// The variant table: for each export, in the order of exports.def, the body of variant 0 and that of variant 1.
#pragma once
#include "frame/entry.h"

namespace tav {

struct variant_table {
#define TAV_SHARED(name) decltype(&::tavs##name) name[2];
#define TAV_SPLIT(name) decltype(&::tavs##name) name[2];
#include "frame/exports.def"
#undef TAV_SHARED
#undef TAV_SPLIT
};

inline constexpr int exports = sizeof(variant_table) / (2 * sizeof(void (*)()));

#pragma GCC visibility push(hidden)
// Both are read by the stubs. The index is 0 until the library is attached to the process, and final from then on.
extern "C" const variant_table tav_variant_table;
extern "C" uint32_t            tav_variant_index;
#pragma GCC visibility         pop

}  // namespace tav
