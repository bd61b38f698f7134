// The points at which one path gives way to the next, and what else differs between the two variants. A tuned body
// reads `tune`; the namespace of its build picks which. Shared bodies have none.
#pragma once
#include <stddef.h>

namespace tav {

// When a copy asks for the cache size, and in what pieces it then bypasses the cache.
struct copy_plan {
  size_t ask_above;     // bytes above which the cache size matters
  size_t stream_block;  // bytes between two store fences; 0: one fence at the end
  bool   operator==(const copy_plan&) const = default;
};

inline constexpr copy_plan copy_of_bytes{.ask_above = 0x20000, .stream_block = 0};
inline constexpr copy_plan copy_of_large_pairs{.ask_above = 0x100000, .stream_block = 0x40000};

// How the transforms of one precision are planned: which orders are cut into 2^outer shorter ones, with a work area of
// 2^tile points, and what their records report as sizes.
struct fft_cut {
  int from, outer, tile;  // for orders from `from` up
};

struct fft_plan {
  int     max_order;
  bool    in_place;              // uncut transforms take no work area
  int     columns_from;          // orders whose last four levels are a column pass
  int     cut_from;              // orders that are cut
  fft_cut cuts[5];               // the last that applies counts
  int     cut_bytes;             // of a cut's tables, a point
  int     tiles_from;            // orders that are reordered in tiles
  int     points_per_tile_byte;  // of the list of tiles
  size_t  tile_table, tile_work;
  int     factors_from;  // real orders whose twiddles are products of two short tables

  constexpr const fft_cut& cut_of(int order) const {
    const fft_cut* found = &cuts[0];
    for (const fft_cut& c : cuts)
      if (c.outer != 0 && order >= c.from) found = &c;
    return *found;
  }
};

struct tuning {
  char        target_code[4];
  const char* label;
  copy_plan   pair_copy;        // Copy_64fc, Copy_64sc
  int         bit_copy_unroll;  // 16-byte vectors a round in CopyBE_1u, CopyLE_1u
  fft_plan    fft_single, fft_double;
};

namespace v8 {
inline constexpr tuning tune{
    .target_code     = {'v', '8'},
    .label           = "tavSP SSSE3 (v8)",
    .pair_copy       = copy_of_large_pairs,
    .bit_copy_unroll = 4,
    .fft_single      = {.max_order            = 28,
                        .in_place             = false,
                        .columns_from         = 18,
                        .cut_from             = 18,
                        .cuts                 = {{18, 4, 10}, {20, 6, 12}, {21, 8, 14}},
                        .cut_bytes            = 4,
                        .tiles_from           = 19,
                        .points_per_tile_byte = 1024,
                        .tile_table           = 4160,
                        .tile_work            = 65536,
                        .factors_from         = 19},
    .fft_double      = {.max_order            = 27,
                        .in_place             = false,
                        .columns_from         = 17,
                        .cut_from             = 17,
                        .cuts                 = {{17, 6, 10}, {21, 8, 13}},
                        .cut_bytes            = 8,
                        .tiles_from           = 18,
                        .points_per_tile_byte = 256,
                        .tile_table           = 1088,
                        .tile_work            = 32768,
                        .factors_from         = 18},
};
}

namespace s8 {
inline constexpr tuning tune{
    .target_code     = {'s', '8'},
    .label           = "tavSP Wren (s8)",
    .pair_copy       = copy_of_bytes,
    .bit_copy_unroll = 1,
    .fft_single      = {.max_order            = 28,
                        .in_place             = false,
                        .columns_from         = 16,
                        .cut_from             = 16,
                        .cuts                 = {{16, 4, 10}, {20, 6, 14}, {22, 8, 14}},
                        .cut_bytes            = 4,
                        .tiles_from           = 17,
                        .points_per_tile_byte = 256,
                        .tile_table           = 1088,
                        .tile_work            = 16384,
                        .factors_from         = 18},
    .fft_double      = {.max_order            = 26,
                        .in_place             = true,
                        .columns_from         = 17,
                        .cut_from             = 14,
                        .cuts                 = {{14, 4, 10}, {15, 6, 10}, {19, 4, 10}, {20, 6, 10}, {22, 6, 12}},
                        .cut_bytes            = 16,
                        .tiles_from           = 14,
                        .points_per_tile_byte = 256,
                        .tile_table           = 1088,
                        .tile_work            = 32768,
                        .factors_from         = 18},
};
}

}  // namespace tav
