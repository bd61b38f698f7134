// Fills and copies in 16-byte stores. Blocks up to 128 bytes go in a few overlapping accesses, all loads before the
// first store, which serves copies, moves in either direction and exact aliases alike. Above a kilobyte they run
// aligned to dst.
#include "vector/byte_engine.h"

#include "frame/cache.h"
#include "frame/registers.h"

namespace tav::shared {
namespace {

constexpr size_t small_block  = 128;   // done by overlapping accesses
constexpr size_t medium_block = 1024;  // up to here the way to a boundary costs more than stores across lines
constexpr size_t round_bytes  = 64;    // a round of the loops

template <class T> TAV_INLINE void copy_ends(Tav8u* dst, const Tav8u* src, size_t n) {  // sizeof(T) <= n <= twice that
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
template <int Vectors> TAV_INLINE void move_by_ends(Tav8u* dst, const Tav8u* src, size_t n) {
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

struct round_of_bytes {
  __m128i v[round_bytes / 16];
};

TAV_INLINE round_of_bytes load_round(const Tav8u* src) {
  round_of_bytes r;
#pragma GCC unroll 4
  for (size_t k = 0; k < round_bytes / 16; ++k) r.v[k] = load_bits<access::unaligned>(src + 16 * k);
  return r;
}

template <access Store> TAV_INLINE void store_round(Tav8u* dst, const round_of_bytes& r) {
// clang-format off
#pragma GCC unroll 4
  // clang-format on
  for (size_t k = 0; k < round_bytes / 16; ++k) store_bits<Store>(dst + 16 * k, r.v[k]);
}

template <access Store> TAV_INLINE void move_round(Tav8u* dst, const Tav8u* src) {
  store_round<Store>(dst, load_round(src));
}

// More than a round; what is left in the end goes as a round as well, which is loaded before anything is stored.
template <access Store> TAV_INLINE TavStatus rounds_up(const Tav8u* src, Tav8u* dst, size_t n) {
  const round_of_bytes last    = load_round(src + n - round_bytes);
  Tav8u* const         to_last = dst + n - round_bytes;
  for (const Tav8u* end = src + (n - 1) / round_bytes * round_bytes; src != end; src += round_bytes, dst += round_bytes)
    move_round<Store>(dst, src);
  return store_round<access::unaligned>(to_last, last), tavStatusOk;
}
template <access Store> TAV_INLINE TavStatus rounds_down(const Tav8u* src, Tav8u* dst, size_t n) {
  const round_of_bytes first = load_round(src);
  for (; n > round_bytes; n -= round_bytes) move_round<Store>(dst + n - round_bytes, src + n - round_bytes);
  return store_round<access::unaligned>(dst, first), tavStatusOk;
}

// The long roads are functions of their own, reached by a jump, so that short blocks pay nothing for them.

// From the start up; right for any overlap with dst below src.
TAV_APART TavStatus forward(const Tav8u* src, Tav8u* dst, size_t n) {
  if (n <= medium_block) return rounds_up<access::unaligned>(src, dst, n);
  const size_t head = -reinterpret_cast<uintptr_t>(dst) & 15;
  move_below_16(dst, src, head);
  return rounds_up<access::aligned>(src + head, dst + head, n - head);
}

// From the end down; right for any overlap with dst above src.
TAV_APART TavStatus backward(const Tav8u* src, Tav8u* dst, size_t n) {
  if (n <= medium_block) return rounds_down<access::unaligned>(src, dst, n);
  const size_t tail = reinterpret_cast<uintptr_t>(dst + n) & 15;
  n -= tail;
  move_below_16(dst + n, src + n, tail);
  return rounds_down<access::aligned>(src, dst, n);
}

// Past the cache, with a fence behind each block. The source is asked for well ahead: the processor's own prefetch
// slows down next to such stores (measured: 1.16 times as fast from memory).
TAV_INLINE void stream_block(const Tav8u* src, Tav8u* dst, size_t n) {
  constexpr size_t ahead = 1024;
  const size_t     head  = -reinterpret_cast<uintptr_t>(dst) & 15;
  move_below_16(dst, src, head);
  dst += head, src += head, n -= head;
  for (; n >= round_bytes; n -= round_bytes, dst += round_bytes, src += round_bytes) {
    _mm_prefetch(reinterpret_cast<const char*>(src) + ahead, _MM_HINT_NTA);
    move_round<access::streaming>(dst, src);
  }
  _mm_sfence();
  move_small(dst, src, n);
}

TAV_APART TavStatus stream(const Tav8u* src, Tav8u* dst, size_t n, size_t block) {
  for (; block != 0 && n > block; n -= block, dst += block, src += block) stream_block(src, dst, block);
  return stream_block(src, dst, n), tavStatusOk;
}

template <copy_plan Plan> TAV_APART TavStatus copy_long(const Tav8u* src, Tav8u* dst, size_t n) {
  return copy_streams(Plan, n) ? stream(src, dst, n, Plan.stream_block) : forward(src, dst, n);
}

template <copy_plan Plan> TAV_INLINE TavStatus copy(const void* from, void* to, size_t n) {
  const auto dst = static_cast<Tav8u*>(to);
  const auto src = static_cast<const Tav8u*>(from);
  if (n <= small_block) return move_small(dst, src, n), tavStatusOk;
  return n <= Plan.ask_above ? forward(src, dst, n) : copy_long<Plan>(src, dst, n);
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

// Up to less than a round before the end.
template <access Store> TAV_INLINE void fill_rounds(Tav8u* p, const Tav8u* end, __m128i pattern) {
  for (; size_t(end - p) >= round_bytes; p += round_bytes)
#pragma GCC unroll 4
    for (size_t k = 0; k < round_bytes; k += 16) store_bits<Store>(p + k, pattern);
}

// Both ends stand already, 64 bytes each: what lies between goes in aligned stores, which may run a little into them.
template <int Width> TAV_APART TavStatus fill_between(Tav8u* dst, size_t n, __m128i pattern) {
  if (n <= medium_block) return fill_rounds<access::unaligned>(dst + 64, dst + n, pattern), tavStatusOk;
  const size_t head = 64 - (reinterpret_cast<uintptr_t>(dst) & 15);
  if (head % Width != 0) pattern = rotated(pattern, head % 16);
  if (!fill_streams(n / Width, Width)) return fill_rounds<access::aligned>(dst + head, dst + n, pattern), tavStatusOk;
  fill_rounds<access::streaming>(dst + head, dst + n, pattern);
  _mm_sfence();
  return tavStatusOk;
}

}  // namespace

TavStatus copy_bytes(const void* src, void* dst, size_t n) { return copy<copy_of_bytes>(src, dst, n); }

TavStatus copy_pairs(const void* src, void* dst, size_t n) { return copy<copy_of_large_pairs>(src, dst, n); }

TavStatus move_bytes(const void* from, void* to, size_t n) {
  const auto dst = static_cast<Tav8u*>(to);
  const auto src = static_cast<const Tav8u*>(from);
  if (n <= small_block) return move_small(dst, src, n), tavStatusOk;
  if (src == dst) return tavStatusOk;
  return src < dst ? backward(src, dst, n) : forward(src, dst, n);
}

template <int Width> TavStatus fill_elements(void* to, size_t elements, __m128i pattern) {
  const auto   dst = static_cast<Tav8u*>(to);
  const size_t n   = elements * Width;
  const auto   put = [=](size_t at) { store_bits<access::unaligned>(dst + at, pattern); };
  if (n < 16) return fill_below_16(dst, pattern, n), tavStatusOk;
  put(0), put(n - 16);
  if (n <= 32) return tavStatusOk;
  put(16), put(n - 32);
  if (n <= 64) return tavStatusOk;
  put(32), put(48), put(n - 64), put(n - 48);
  if (n <= 128) return tavStatusOk;
  return fill_between<Width>(dst, n, pattern);
}

template TavStatus fill_elements<1>(void*, size_t, __m128i);
template TavStatus fill_elements<2>(void*, size_t, __m128i);
template TavStatus fill_elements<4>(void*, size_t, __m128i);
template TavStatus fill_elements<8>(void*, size_t, __m128i);
template TavStatus fill_elements<16>(void*, size_t, __m128i);

bool copy_streams(const copy_plan& plan, size_t n) {
  return n > plan.ask_above && tav_cache_bytes != 0 && n > tav_cache_bytes / 2;
}

// Fills of single bytes have limits of their own: half the size from which they ask, and "as large as the cache" where
// the others say "larger".
bool fill_streams(size_t elements, size_t width) {
  if (tav_cache_bytes == 0) return false;
  if (width == 1) return elements > 0x80000 && elements >= tav_cache_bytes;
  return elements > 0x100000 / width && elements > tav_cache_bytes / width;
}

}  // namespace tav::shared
