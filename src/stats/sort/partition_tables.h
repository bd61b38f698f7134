// How lanes move in a partition, by the bits of those that go right: the others come first, then they.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT::sorting {

template <int Bytes> struct lane_moves {
  static constexpr int lanes = 16 / Bytes;

  alignas(16) unsigned char byte[1 << lanes][16];
  unsigned char stay[1 << lanes];  // how many do not go right

  TAV_INLINE __m128i order(unsigned right) const { return load_bits<access::aligned>(byte[right]); }
};

template <int Bytes> constexpr lane_moves<Bytes> all_lane_moves() {
  constexpr int     lanes = 16 / Bytes;
  lane_moves<Bytes> all{};
  for (int right = 0; right < 1 << lanes; ++right) {
    int to = 0;
    for (int side = 0; side < 2; ++side) {
      for (int lane = 0; lane < lanes; ++lane) {
        if ((right >> lane & 1) != side) continue;
        for (int b = 0; b < Bytes; ++b) all.byte[right][to * Bytes + b] = (unsigned char)(lane * Bytes + b);
        ++to;
      }
      if (side == 0) all.stay[right] = (unsigned char)(to);
    }
  }
  return all;
}

template <int Bytes> inline constexpr lane_moves<Bytes> moves_of = all_lane_moves<Bytes>();

}  // namespace tav::TAV_VARIANT::sorting
