// tavsConj_*, tavsConjFlip_*: conjugates, in order and back to front. Of floats only the sign bit of the imaginary part
// changes; an imaginary part of -32768 becomes 32767.
#include "vector/parts.h"

namespace tav::TAV_VARIANT {
namespace {

template <class C> struct conjugate_of : types<C, C, C> {
  static constexpr kernel_shape shape{.vector_from = 8, .round_bytes = 32};

  TAV_INLINE static C      one(C v) { return {v.re, -v.im}; }
  TAV_INLINE static reg<C> many(reg<C> v) {
    return from_bits<C>(_mm_xor_si128(as_bits(v), repeated(C{part_type<C>(0.0), part_type<C>(-0.0)})));
  }
};

template <> struct conjugate_of<Tav16sc> : types<Tav16sc, Tav16sc, Tav16sc> {
  static constexpr kernel_shape shape{.vector_from = 8, .round_bytes = 32};

  static Tav16sc one(Tav16sc v) { return {v.re, Tav16s(v.im < -32767 ? 32767 : -v.im)}; }
  static __m128i many(__m128i v) {  // -im is one more than the complement of im
    return _mm_adds_epi16(_mm_xor_si128(v, _mm_set1_epi32(int(0xFFFF0000))), _mm_set1_epi32(0x00010000));
  }
};

// As a source: the elements before `end`, back to front. The kernel goes through the destination from its start and
// through this one from its end.
template <class C> struct backwards { const C* end; };

template <class C> TAV_INLINE __m128i pairs_turned(__m128i v) {
  if constexpr (sizeof(C) == 4) return _mm_shuffle_epi32(v, _MM_SHUFFLE(0, 1, 2, 3));
  if constexpr (sizeof(C) == 8) return _mm_shuffle_epi32(v, _MM_SHUFFLE(1, 0, 3, 2));
  return v;
}

template <class D, class C> TAV_INLINE C element(D*, backwards<C> src, size_t i) { return peek(src.end - 1 - i); }

template <access Store, int N, class D, class C> TAV_INLINE reg<C> elements(D*, backwards<C> src, size_t i) {
  static_assert(N == lanes<C>);
  return from_bits<C>(pairs_turned<C>(load_bits<access::unaligned>(src.end - N - i)));
}

template <class C> TavStatus conjugate_flipped(const C* src, C* dst, int len) {
  if (const TavStatus bad = check_vector(len, src, dst)) return bad;
  return elementwise(conjugate_of<C>{}, dst, size_t(len), backwards<C>{src + len});
}

}  // namespace

TAV_BIND(Conj_16sc, &one_source<conjugate_of<Tav16sc>>)
TAV_BIND(Conj_32fc, &one_source<conjugate_of<Tav32fc>>)
TAV_BIND(Conj_64fc, &one_source<conjugate_of<Tav64fc>>)

TAV_BIND(Conj_16sc_I, &on_itself<conjugate_of<Tav16sc>>)
TAV_BIND(Conj_32fc_I, &on_itself<conjugate_of<Tav32fc>>)
TAV_BIND(Conj_64fc_I, &on_itself<conjugate_of<Tav64fc>>)

TAV_BIND(ConjFlip_16sc, &conjugate_flipped<Tav16sc>)
TAV_BIND(ConjFlip_32fc, &conjugate_flipped<Tav32fc>)
TAV_BIND(ConjFlip_64fc, &conjugate_flipped<Tav64fc>)

}  // namespace tav::TAV_VARIANT
