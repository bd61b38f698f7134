// tavsFlip_*: arrays back to front.
//
// Whole vectors are reversed within and stored at the mirrored place. Ends that do not fill a vector are covered by one
// that overlaps its neighbour, which writes the same values twice.
#include "frame/bind.h"
#include "frame/checks.h"

namespace tav::TAV_VARIANT {

template <class T> TAV_INLINE __m128i load_reversed(const T* p) {
  return reversed<sizeof(T)>(load_bits<access::unaligned>(p));
}

template <class T> void flip(const T* src, T* dst, size_t len) {
  constexpr size_t vector = 16 / sizeof(T), steps = 4;
  if (len < vector) {
    for (size_t i = 0; i < len; ++i) poke(dst + i, peek(src + len - 1 - i));
    return;
  }
  const auto step = [&]<access Store>(size_t i) { store_bits<Store>(dst + i, load_reversed(src + len - vector - i)); };
  const auto rounds = [&]<access Store>(size_t i) {
    for (; i + steps * vector <= len; i += steps * vector)
#pragma GCC unroll 4
      for (size_t k = 0; k < steps; ++k) step.template operator()<Store>(i + k * vector);
    for (; i + vector <= len; i += vector) step.template operator()<Store>(i);
  };
  const uintptr_t address = reinterpret_cast<uintptr_t>(dst);
  step.template   operator()<access::unaligned>(0);
  if (address % sizeof(T) == 0)
    rounds.template operator()<access::aligned>(vector - (address & 15) / sizeof(T));
  else
    rounds.template operator()<access::unaligned>(vector);
  step.template operator()<access::unaligned>(len - vector);
}

template <class T> void flip_in_place(T* p, size_t len) {
  constexpr size_t vector = 16 / sizeof(T);
  T*               end    = p + len;
  while (size_t(end - p) >= vector) {  // the last pair may overlap: both are read before either is written
    end -= vector;
    const __m128i low = load_reversed(p), high = load_reversed(end);
    store_bits<access::unaligned>(p, high);
    store_bits<access::unaligned>(end, low);
    if (end < p + vector) return;
    p += vector;
  }
  for (; size_t(end - p) >= 2; ++p) {
    --end;
    const T low = peek(p);
    poke(p, peek(end));
    poke(end, low);
  }
}

template <class T> TavStatus flipped_in_place(T* srcDst, int len) {
  if (const TavStatus bad = check_vector(len, srcDst)) return bad;
  flip_in_place(srcDst, size_t(len));
  return tavStatusOk;
}

template <class T> TavStatus flipped(const T* src, T* dst, int len) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  if (src == dst)
    flip_in_place(dst, size_t(len));
  else
    flip(src, dst, size_t(len));
  return tavStatusOk;
}

TAV_BIND(Flip_8u, &flipped<Tav8u>)
TAV_BIND(Flip_16u, &flipped<Tav16u>)
TAV_BIND(Flip_32f, &flipped<Tav32f>)
TAV_BIND(Flip_64f, &flipped<Tav64f>)
TAV_BIND(Flip_32fc, &flipped<Tav32fc>)
TAV_BIND(Flip_64fc, &flipped<Tav64fc>)

TAV_BIND(Flip_8u_I, &flipped_in_place<Tav8u>)
TAV_BIND(Flip_16u_I, &flipped_in_place<Tav16u>)
TAV_BIND(Flip_32f_I, &flipped_in_place<Tav32f>)
TAV_BIND(Flip_64f_I, &flipped_in_place<Tav64f>)
TAV_BIND(Flip_32fc_I, &flipped_in_place<Tav32fc>)
TAV_BIND(Flip_64fc_I, &flipped_in_place<Tav64fc>)

}  // namespace tav::TAV_VARIANT
