// Sorting bytes by counting: how often each value stands in the array, then each value as one run.
#pragma once
#include "frame/registers.h"

namespace tav::TAV_VARIANT {

// How often each byte value stands in an array. Long arrays are counted in four tables in turn, since a counter that
// has just been written is slow to read again, and equal bytes like to stand together.
struct byte_counts {
  static constexpr size_t tables = 4, several_from = 512;

  alignas(16) uint32_t of[tables][256];

  byte_counts(const Tav8u* src, size_t len) {
    if (len < several_from)
      count<1>(src, len);
    else
      count<tables>(src, len);
  }

  uint32_t operator[](int value) const { return of[0][value]; }

 private:
  template <size_t Tables> TAV_INLINE void count(const Tav8u* src, size_t len) {
    clear<Tables>();
    const auto table = [this](size_t k) { return of[k % Tables]; };
    size_t     i     = 0;
    for (; len - i >= 8; i += 8) {
      const uint32_t a = peek(reinterpret_cast<const uint32_t*>(src + i));
      const uint32_t b = peek(reinterpret_cast<const uint32_t*>(src + i + 4));
      ++table(0)[a & 255], ++table(1)[a >> 8 & 255], ++table(2)[a >> 16 & 255], ++table(3)[a >> 24];
      ++table(0)[b & 255], ++table(1)[b >> 8 & 255], ++table(2)[b >> 16 & 255], ++table(3)[b >> 24];
    }
    for (; i < len; ++i) ++of[0][src[i]];
    if constexpr (Tables > 1) add_up();
  }

  template <size_t Tables> TAV_INLINE void clear() {
    for (size_t table = 0; table < Tables; ++table)
      for (size_t v = 0; v < 256; v += 16)
#pragma GCC unroll 4
        for (size_t k = 0; k < 16; k += 4) store<access::aligned>(of[table] + v + k, _mm_setzero_si128());
  }

  TAV_INLINE void add_up() {
    for (size_t v = 0; v < 256; v += 4) {
      const auto part = [&](size_t k) { return load<access::aligned, 4>(of[k] + v); };
      store<access::aligned>(of[0] + v,
                             _mm_add_epi32(_mm_add_epi32(part(0), part(1)), _mm_add_epi32(part(2), part(3))));
    }
  }
};

// Writes each value as often as it is counted, the least first, or the greatest. While 16 bytes are left, a run is
// stored in whole vectors, the last of which reaches into the runs that follow and are written later: so a short run
// takes one store and no loop.
template <bool Descending> void fill_runs(const byte_counts& counts, Tav8u* dst, size_t len) {
  const __m128i step = _mm_set1_epi8(Descending ? -1 : 1);
  __m128i       run  = _mm_set1_epi8(Descending ? -1 : 0);

  for (int value = Descending ? 255 : 0; len != 0; value += Descending ? -1 : 1, run = _mm_add_epi8(run, step)) {
    size_t count = counts[value];
    len -= count;  // left behind this run
    for (; count >= 16; count -= 16, dst += 16) store<access::unaligned>(dst, run);
    if (count + len >= 16)
      store<access::unaligned>(dst, run), dst += count;
    else
      for (; count != 0; --count) *dst++ = Tav8u(value);
  }
}

template <bool Descending> void sort_bytes_by_counting(Tav8u* srcDst, size_t len) {
  const byte_counts counts(srcDst, len);
  fill_runs<Descending>(counts, srcDst, len);
}

}  // namespace tav::TAV_VARIANT
