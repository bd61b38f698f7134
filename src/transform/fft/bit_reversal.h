// Bit-reversed order, in place or on the way from one array to another.
//
// An index is [high][middle][low] with as many high bits as low ones. The elements that share their middle bits form a
// square tile, rows far apart and columns neighbours; the tile goes, turned over, to the place with the middle bits
// reversed. It is turned over into a small block and copied by rows, so that whole lines are read and written however
// the rows fall into the sets of a cache.
#pragma once
#include "frame/registers.h"
#include "transform/fft/first_pass.h"

namespace tav::TAV_VARIANT::fft {

// Register moves of elements of 4, 8 or 16 bytes. `turn` takes the vectors of W rows and gives those of W columns.
template <int Bytes> struct square {
  static constexpr int W = 16 / Bytes;
  __m128i              v[W];

  TAV_INLINE void turn() {
    if constexpr (W == 2) {
      const __m128i a = v[0];
      v[0] = _mm_unpacklo_epi64(a, v[1]), v[1] = _mm_unpackhi_epi64(a, v[1]);
    } else if constexpr (W == 4) {
      const __m128i a = _mm_unpacklo_epi32(v[0], v[1]), b = _mm_unpacklo_epi32(v[2], v[3]);
      const __m128i c = _mm_unpackhi_epi32(v[0], v[1]), d = _mm_unpackhi_epi32(v[2], v[3]);
      v[0] = _mm_unpacklo_epi64(a, b), v[1] = _mm_unpackhi_epi64(a, b);
      v[2] = _mm_unpacklo_epi64(c, d), v[3] = _mm_unpackhi_epi64(c, d);
    }
  }
};

// An array of elements of that many bytes seen as 2^order elements, of which a tile has Side by Side.
template <int Bytes, int Side> class reordering {
 public:
  explicit reordering(int order) : row_bytes_((size_t(1) << order) / Side * Bytes) {}

  size_t tiles() const { return row_bytes_ / (Side * Bytes); }

  // The tile at `from` into a block, turned over, rows and columns in bit-reversed order.
  void turn_over(const Tav8u* from, Tav8u* block) const {
    constexpr int W = square<Bytes>::W;
#pragma GCC unroll 1
    for (int r = 0; r < Side / W; ++r)
#pragma GCC unroll 1
      for (int c = 0; c < Side; c += W) {
        square<Bytes> s;
#pragma GCC unroll 4
        for (int k = 0; k < W; ++k) {  // these rows become neighbouring columns
          const size_t row = size_t(r + reversed_index(k, W) * (Side / W));
          s.v[k]           = load_bits<access::unaligned>(from + row * row_bytes_ + c * Bytes);
        }
        s.turn();
#pragma GCC unroll 4
        for (int k = 0; k < W; ++k)
          store_bits<access::aligned>(block + (index_[c + k] * Side + index_[r]) * Bytes, s.v[k]);
      }
  }

  void put(const Tav8u* block, Tav8u* to) const {
#pragma GCC unroll 1
    for (int r = 0; r < Side; ++r, to += row_bytes_, block += Side * Bytes)
#pragma GCC unroll 8
      for (int k = 0; k < Side * Bytes; k += 16)
        store_bits<access::unaligned>(to + k, load_bits<access::aligned>(block + k));
  }

 private:
  size_t row_bytes_;

  struct reversed_indices {
    Tav8u at[Side];
    constexpr reversed_indices() : at{} {
      for (int i = 0; i < Side; ++i) at[i] = Tav8u(reversed_index(i, Side));
    }
    constexpr size_t operator[](int i) const { return at[i]; }
  };
  static constexpr reversed_indices index_{};
};

template <int Bytes, int Side> __attribute__((noinline)) void reorder(const Tav8u* src, Tav8u* dst, int order) {
  constexpr size_t              tile = Side * Bytes;
  const reordering<Bytes, Side> shape(order);
  alignas(64) Tav8u             block[2][Side * Side * Bytes];
  reversed_counter              partner(shape.tiles());
  for (size_t i = 0; i < shape.tiles(); ++i, partner.next()) {
    const size_t j = partner.value();
    if (src == dst && j < i) continue;  // exchanged already
    shape.turn_over(src + i * tile, block[0]);
    if (src == dst && j != i) {
      shape.turn_over(src + j * tile, block[1]);
      shape.put(block[1], dst + i * tile);
    }
    shape.put(block[0], dst + j * tile);
  }
}

inline constexpr int small_tile = 8, large_tile = 16;

// 2^order elements, order at least 6; dst may be src.
template <class E> void bit_reversed(const E* src, E* dst, int order) {
  const auto* from = reinterpret_cast<const Tav8u*>(src);
  auto*       to   = reinterpret_cast<Tav8u*>(dst);
  if (order < 8)
    reorder<sizeof(E), small_tile>(from, to, order);
  else
    reorder<sizeof(E), large_tile>(from, to, order);
}

}  // namespace tav::TAV_VARIANT::fft
