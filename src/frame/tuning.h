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

struct tuning {
  char        target_code[4];
  const char* label;
  copy_plan   pair_copy;        // Copy_64fc, Copy_64sc
  int         bit_copy_unroll;  // 16-byte vectors a round in CopyBE_1u, CopyLE_1u
};

namespace v8 {
inline constexpr tuning tune{
    .target_code     = {'v', '8'},
    .label           = "tavSP SSSE3 (v8)",
    .pair_copy       = copy_of_large_pairs,
    .bit_copy_unroll = 4,
};
}

namespace s8 {
inline constexpr tuning tune{
    .target_code     = {'s', '8'},
    .label           = "tavSP Wren (s8)",
    .pair_copy       = copy_of_bytes,
    .bit_copy_unroll = 1,
};
}

}  // namespace tav
