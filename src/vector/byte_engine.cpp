// Fills and copies in 16-byte stores. Blocks up to 128 bytes go in a few overlapping accesses, all loads before the
// first store, which serves copies, moves in either direction and exact aliases alike. Longer ones run aligned to dst.
#include "vector/byte_engine.h"

#include "frame/cache.h"
#include "frame/registers.h"

namespace tav::shared {
namespace {

constexpr size_t small_block = 128;  // done by overlapping accesses
constexpr size_t round_bytes = 64;   // a round of the long loops

template <class T>
TAV_INLINE void copy_ends(Tav8u* dst, const Tav8u* src, size_t n) {  // sizeof(T) <= n <= twice that
  T first, last;
  __builtin_memcpy(&first, src, sizeof(T));
  __builtin_memcpy(&last, src + n - sizeof(T), sizeof(T));
  __builtin_memcpy(dst, &first, sizeof(T));
  __builtin_memcpy(dst + n - sizeof(T), &last, sizeof(T));
}

TAV_INLINE void move_below_16(Tav8u* dst, const Tav8u* src, size_t n) {
  if (n >= 8) {
    const __m128i first = load_low<8>(src), last = load_low<8>(src + n - 8);
    _mm_storel_epi64(reinterpret_cast<__m128i*>(dst), first);
    _mm_storel_epi64(reinterpret_cast<__m128i*>(dst + n - 8), last);
  } else if (n >= 4) {
    copy_ends<uint32_t>(dst, src, n);
  } else if (n >= 2) {
    copy_ends<uint16_t>(dst, src, n);
  } else if (n == 1) {
    *dst = *src;
  }
}

// 16 * Vectors <= n <= 32 * Vectors: that many vectors from either end.
template <int Vectors>
TAV_INLINE void move_by_ends(Tav8u* dst, const Tav8u* src, size_t n) {
  __m128i        first[Vectors], last[Vectors];
  const Tav8u*   src_end = src + n - 16 * Vectors;
  Tav8u* const   dst_end = dst + n - 16 * Vectors;
  constexpr auto any     = access::unaligned;
#pragma GCC unroll 4
  for (int k = 0; k < Vectors; ++k) first[k] = load_bits<any>(src + 16 * k), last[k] = load_bits<any>(src_end + 16 * k);
#pragma GCC unroll 4
  for (int k = 0; k < Vectors; ++k) store_bits<any>(dst + 16 * k, first[k]), store_bits<any>(dst_end + 16 * k, last[k]);
}

TAV_INLINE void move_small(Tav8u* dst, const Tav8u* src, size_t n) {  // up to small_block
  if (n < 16)
    move_below_16(dst, src, n);
  else if (n <= 32)
    move_by_ends<1>(dst, src, n);
  else if (n <= 64)
    move_by_ends<2>(dst, src, n);
  else
    move_by_ends<4>(dst, src, n);
}

template <access Store>
TAV_INLINE void move_round(Tav8u* dst, const Tav8u* src) {
  __m128i v[round_bytes / 16];
#pragma GCC unroll 4
  for (size_t k = 0; k < round_bytes / 16; ++k) v[k] = load_bits<access::unaligned>(src + 16 * k);
#pragma GCC unroll 4
  for (size_t k = 0; k < round_bytes / 16; ++k) store_bits<Store>(dst + 16 * k, v[k]);
}

// From the start up; right for any overlap with dst below src. n > 16.
template <access Store>
TAV_INLINE void forward(Tav8u* dst, const Tav8u* src, size_t n) {
  const size_t head = -reinterpret_cast<uintptr_t>(dst) & 15;
  move_below_16(dst, src, head);
  dst += head, src += head, n -= head;
  for (; n >= round_bytes; n -= round_bytes, dst += round_bytes, src += round_bytes) move_round<Store>(dst, src);
  move_small(dst, src, n);
}

// From the end down; right for any overlap with dst above src. n > 16.
TAV_INLINE void backward(Tav8u* dst, const Tav8u* src, size_t n) {
  const size_t tail = reinterpret_cast<uintptr_t>(dst + n) & 15;
  n -= tail;
  move_below_16(dst + n, src + n, tail);
  for (; n >= round_bytes; n -= round_bytes) move_round<access::aligned>(dst + n - round_bytes, src + n - round_bytes);
  move_small(dst, src, n);
}

// Past the cache, with a fence behind each block.
void stream(Tav8u* dst, const Tav8u* src, size_t n, size_t block) {
  for (; block != 0 && n > block; n -= block, dst += block, src += block) {
    forward<access::streaming>(dst, src, block);
    _mm_sfence();
  }
  forward<access::streaming>(dst, src, n);
  _mm_sfence();
}

template <copy_plan Plan>
TAV_INLINE void copy(void* to, const void* from, size_t n) {
  const auto dst = static_cast<Tav8u*>(to);
  const auto src = static_cast<const Tav8u*>(from);
  if (n <= small_block) return move_small(dst, src, n);
  if (n > Plan.ask_above && copy_streams(Plan, n)) return stream(dst, src, n, Plan.stream_block);
  forward<access::aligned>(dst, src, n);
}

// The pattern as it reads from `by` bytes further on.
TAV_INLINE __m128i rotated(__m128i pattern, size_t by) {
  alignas(16) Tav8u twice[32];
  store_bits<access::aligned>(twice, pattern);
  store_bits<access::aligned>(twice + 16, pattern);
  return load_bits<access::unaligned>(twice + by);
}

TAV_INLINE void fill_below_16(Tav8u* dst, __m128i pattern, size_t n) {
  if (n >= 8) {
    _mm_storel_epi64(reinterpret_cast<__m128i*>(dst), pattern);
    _mm_storel_epi64(reinterpret_cast<__m128i*>(dst + n - 8), pattern);
    return;
  }
  const uint32_t word = uint32_t(_mm_cvtsi128_si32(pattern));
  if (n >= 4) {
    __builtin_memcpy(dst, &word, 4);
    __builtin_memcpy(dst + n - 4, &word, 4);
  } else if (n >= 2) {
    __builtin_memcpy(dst, &word, 2);
    __builtin_memcpy(dst + n - 2, &word, 2);
  } else if (n == 1) {
    *dst = Tav8u(word);
  }
}

template <access Store>
TAV_INLINE void fill_rounds(Tav8u* p, const Tav8u* end, __m128i pattern) {
  for (; size_t(end - p) >= round_bytes; p += round_bytes)
#pragma GCC unroll 4
    for (size_t k = 0; k < round_bytes; k += 16) store_bits<Store>(p + k, pattern);
}

}  // namespace

void copy_bytes(void* dst, const void* src, size_t n) { copy<copy_of_bytes>(dst, src, n); }

void copy_pairs(void* dst, const void* src, size_t n) { copy<copy_of_large_pairs>(dst, src, n); }

void move_bytes(void* to, const void* from, size_t n) {
  const auto dst = static_cast<Tav8u*>(to);
  const auto src = static_cast<const Tav8u*>(from);
  if (dst == src) return;
  if (n <= small_block) return move_small(dst, src, n);
  if (src < dst)
    backward(dst, src, n);
  else
    forward<access::aligned>(dst, src, n);
}

void fill_bytes(void* to, __m128i pattern, int width, size_t n, bool past_cache) {
  const auto dst = static_cast<Tav8u*>(to);
  if (n < 16) return fill_below_16(dst, pattern, n);
  const auto put = [pattern](Tav8u* p) { store_bits<access::unaligned>(p, pattern); };
  put(dst), put(dst + n - 16);
  if (n <= 32) return;
  put(dst + 16), put(dst + n - 32);
  if (n <= 64) return;
  put(dst + 32), put(dst + 48), put(dst + n - 64), put(dst + n - 48);
  if (n <= 128) return;

  // Both ends stand, 64 bytes each: what lies between goes in aligned stores, which may run a little into them.
  const size_t head = 64 - (reinterpret_cast<uintptr_t>(dst) & 15);
  if (head % unsigned(width) != 0) pattern = rotated(pattern, head % 16);
  if (past_cache) {
    fill_rounds<access::streaming>(dst + head, dst + n, pattern);
    _mm_sfence();
  } else {
    fill_rounds<access::aligned>(dst + head, dst + n, pattern);
  }
}

void zero_bytes(void* dst, size_t n) { fill_bytes(dst, _mm_setzero_si128(), 1, n, byte_fill_streams(n)); }

bool copy_streams(const copy_plan& plan, size_t n) {
  return n > plan.ask_above && tav_cache_bytes != 0 && n > tav_cache_bytes / 2;
}

bool byte_fill_streams(size_t n) { return n > 0x80000 && tav_cache_bytes != 0 && n >= tav_cache_bytes; }

bool element_fill_streams(size_t elements, size_t width) {
  return elements > 0x100000 / width && tav_cache_bytes != 0 && elements > tav_cache_bytes / width;
}

}  // namespace tav::shared
