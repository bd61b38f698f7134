// A packed spectrum of n real values made the whole one: dst[k] = X[k], dst[n - k] = conj(X[k]).
//
// Pairs go two ways, in one loop from the last pair to the first. So dst may be the packed spectrum itself: conjugates
// lie behind all slots of the source, a pair moves up by one slot at most, and the real ends are read before anything
// is written.
#pragma once
#include "transform/fft/packed_formats.h"
#include "vector/conjugates.h"

namespace tav::TAV_VARIANT::packed {

template <class C> TAV_INLINE size_t pairs_past_boundary(const C* p) {
  return (reinterpret_cast<uintptr_t>(p) & 15) / sizeof(C);
}

// X[k], at from[k - 1], to dst[k]: for k = left and downward.
template <class C> struct upward {
  static constexpr size_t step = lanes<C>;

  const C* from;
  C*       dst;
  size_t   left;

  TAV_INLINE void one() {
    poke(dst + left, peek(from + left - 1));
    --left;
  }
  TAV_INLINE void vector() {
    store<access::unaligned>(dst + left + 1 - step, load<access::unaligned, step>(from + left - step));
    left -= step;
  }
  TAV_INLINE size_t to_boundary() const { return pairs_past_boundary(dst + left + 1); }
};

// Conjugates, to dst[n - k].
template <class C> struct mirrored {
  static constexpr size_t step = lanes<C>;

  const C* from;
  C*       end;  // dst + n
  size_t   left;

  TAV_INLINE void one() {
    poke(end - left, conjugate_of<C>::one(peek(from + left - 1)));
    --left;
  }
  TAV_INLINE void vector() {
    const auto v = load<access::unaligned, step>(from + left - step);
    store<access::unaligned>(end - left, reversed<sizeof(C)>(as_bits(conjugate_of<C>::many(v))));
    left -= step;
  }
  TAV_INLINE size_t to_boundary() const { return -pairs_past_boundary(end - left) & (step - 1); }
};

inline constexpr size_t worth_aligning = 32;  // pairs; only the stores can be aligned, each way by itself

// The mirrored pairs are always ahead: in place the others overwrite what these have read.
template <class C> TAV_INLINE void go_both_ways(upward<C> up, mirrored<C> across) {
  constexpr size_t step = lanes<C>;
  if (across.left >= worth_aligning) {
    for (size_t k = across.to_boundary(); k > 0; --k) across.one();
    across.vector();
    for (size_t k = up.to_boundary(); k > 0; --k) up.one();
  }
  while (across.left >= 2 * step) across.vector(), up.vector(), across.vector(), up.vector();
  if (across.left >= step) across.vector(), up.vector();
  while (across.left > 0) across.one();
  while (up.left >= step) up.vector();
  while (up.left > 0) up.one();
}

template <class C> TAV_INLINE void go_across(mirrored<C> across) {
  if (across.left >= worth_aligning)
    for (size_t k = across.to_boundary(); k > 0; --k) across.one();
  while (across.left >= lanes<C>) across.vector();
  while (across.left > 0) across.one();
}

// In CCS form the ends are pairs as well; whatever stands in their imaginary parts goes along.
template <class Format, class C> TAV_INLINE C end_at(const part_of<C>* slots, size_t slot) {
  if constexpr (std::is_same_v<Format, ccs_format>)
    return peek(reinterpret_cast<const C*>(slots + slot));
  else
    return {peek(slots + slot), 0};
}

template <class Format, class C> TavStatus expanded(const C* src, C* dst, int len) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  const size_t n = size_t(len), count = pairs_between(n);
  const auto   slots  = parts_of(src);
  const C      first  = end_at<Format, C>(slots, 0);
  const C      middle = has_middle(n) ? end_at<Format, C>(slots, Format::middle(n)) : first;
  const auto   from   = reinterpret_cast<const C*>(slots + Format::first_pair(n));
  if (from == dst + 1)  // in CCS and Perm form on itself the pairs stand where they belong
    go_across<C>({from, dst + n, count});
  else
    go_both_ways<C>({from, dst, count}, {from, dst + n, count});
  poke(dst, first);
  if (has_middle(n)) poke(dst + n / 2, middle);
  return tavStatusOk;
}

template <class Format, class C> TavStatus expanded_in_place(C* srcDst, int len) {
  return expanded<Format>(srcDst, srcDst, len);
}

}  // namespace tav::TAV_VARIANT::packed
