// One pass over the bytes of arrays for operations that treat each lane of a register by itself and need nothing else:
// logic and shifts. There are no scalar loops. The first and the last register of an array overlap what lies between;
// they are computed before anything is written and stored last, so that dst may be one of the sources.
//
// An operation is called with a register of each source.
#pragma once
#include "frame/kernel_shape.h"
#include "vector/byte_engine.h"

namespace tav::TAV_VARIANT {

TAV_INLINE const Tav8u* bytes(const void* p) { return static_cast<const Tav8u*>(p); }
TAV_INLINE Tav8u*       bytes(void* p) { return static_cast<Tav8u*>(p); }

template <int Bytes> TAV_INLINE __m128i load_part(const Tav8u* p) {
  if constexpr (Bytes == 16)
    return load_bits<access::unaligned>(p);
  else if constexpr (Bytes == 1)
    return _mm_cvtsi32_si128(*p);
  else
    return load_low<Bytes>(p);
}

template <int Bytes> TAV_INLINE void store_part(Tav8u* p, __m128i v) {
  if constexpr (Bytes == 16) {
    store_bits<access::unaligned>(p, v);
  } else if constexpr (Bytes == 8) {
    _mm_storel_epi64(reinterpret_cast<__m128i*>(p), v);
  } else {
    const int low = _mm_cvtsi128_si32(v);
    __builtin_memcpy(p, &low, Bytes);
  }
}

// Parts of so many Bytes from either end, which meet or overlap.
template <int Bytes, int Parts, class Op, class... S>
TAV_INLINE TavStatus from_ends(const Op& op, Tav8u* dst, size_t n, S... src) {
  __m128i      first[Parts], last[Parts];
  const size_t end = n - Bytes * Parts;
#pragma GCC unroll 2
  for (int k = 0; k < Parts; ++k) {
    first[k] = op(load_part<Bytes>(src + Bytes * k)...);
    last[k]  = op(load_part<Bytes>(src + end + Bytes * k)...);
  }
#pragma GCC unroll 2
  for (int k = 0; k < Parts; ++k) {
    store_part<Bytes>(dst + Bytes * k, first[k]);
    store_part<Bytes>(dst + end + Bytes * k, last[k]);
  }
  return tavStatusOk;
}

// Arrays up to so many bytes go by in_short, long ones by in_long, others by in_medium. Let each have a function of its
// own with the same arguments, which is reached by a jump, so that shorter arrays pay nothing for it.
inline constexpr size_t short_bytes = 64, medium_bytes = 1024;

template <class Op, class... S> TAV_INLINE TavStatus in_short(const Op& op, Tav8u* dst, size_t n, S... src) {
  if (n > 32) return from_ends<16, 2>(op, dst, n, src...);
  if (n >= 16) return from_ends<16, 1>(op, dst, n, src...);
  if (n >= 8) return from_ends<8, 1>(op, dst, n, src...);
  if (n >= 4) return from_ends<4, 1>(op, dst, n, src...);
  if (n >= 2) return from_ends<2, 1>(op, dst, n, src...);
  if (n == 1) return from_ends<1, 1>(op, dst, n, src...);
  return tavStatusOk;
}

// All but the last 16 bytes, or fewer.
template <access Store, class Op, class... S> TAV_INLINE void rounds(const Op& op, Tav8u* dst, size_t n, S... src) {
  constexpr size_t round_bytes = 64, bytes_ahead = 256;
  const auto       step = [&](size_t at) { store_bits<Store>(dst + at, op(load_part<16>(src + at)...)); };
  size_t           at   = 0;
  for (const size_t end = (n - 1) / round_bytes * round_bytes; at != end; at += round_bytes) {
    if constexpr (Store == access::streaming)
      (_mm_prefetch(reinterpret_cast<const char*>(src + at) + bytes_ahead, _MM_HINT_T0), ...);
    step(at), step(at + 16), step(at + 32), step(at + 48);
  }
  if (n - at > 32) step(at), step(at + 16), at += 32;
  if (n - at > 16) step(at);
}

// The stores of a large result bypass the cache, as those of a copy do, unless its lines are there as a source's.
template <class... S> TAV_INLINE bool bypasses_cache(const Tav8u* dst, size_t n, S... src) {
  return n > copy_of_bytes.ask_above && ((dst != src) && ...) && shared::copy_streams(copy_of_bytes, n);
}

// Bytes from dst to the next 16-byte boundary.
TAV_INLINE size_t to_boundary(const Tav8u* dst) { return -reinterpret_cast<uintptr_t>(dst) & 15; }

// Whether an array of elements of Width bytes is long: up to medium_bytes the boundary is not worth its while, and a
// dst that is not on its element size has none.
template <size_t Width> TAV_INLINE bool is_long(const void* dst, size_t n) {
  return n > medium_bytes && reinterpret_cast<uintptr_t>(dst) % Width == 0;
}

// An operation as the element-wise shape sees it, over bytes.
template <class Op> struct over_bytes {
  static constexpr kernel_shape shape{.round_bytes = 32};

  Op op;

  template <class... R> __m128i many(R... r) const { return op(r...); }
};

template <class Op, class... S> TAV_INLINE TavStatus in_medium(const Op& op, Tav8u* dst, size_t n, S... src) {
  const over_bytes<Op> over{op};
  to_end<access::unaligned>(over, dst, 0, n, src...);
  return tavStatusOk;
}

// `middle` is the operation to use from to_boundary(dst) on.
template <class Op, class... S>
TAV_INLINE TavStatus in_long(const Op& op, const Op& middle, Tav8u* dst, size_t n, S... src) {
  const bool    bypasses = bypasses_cache(dst, n, src...);
  const __m128i first = op(load_part<16>(src)...), last = op(load_part<16>(src + n - 16)...);
  Tav8u* const  start = dst;
  Tav8u* const  end   = dst + n - 16;
  const size_t  head  = to_boundary(dst);
  if (bypasses) {
    rounds<access::streaming>(middle, dst + head, n - head, src + head...);
    _mm_sfence();
  } else {
    rounds<access::aligned>(middle, dst + head, n - head, src + head...);
  }
  store_part<16>(start, first);
  store_part<16>(end, last);
  return tavStatusOk;
}

}  // namespace tav::TAV_VARIANT
