// tavsConj_*, tavsConjFlip_*: conjugates, in order and back to front.
#include "vector/conjugates.h"

namespace tav::TAV_VARIANT {
namespace {

// As a source: the elements before `end`, back to front. The kernel goes through the destination from its start and
// through this one from its end.
template <class C> struct backwards { const C* end; };

template <class D, class C> TAV_INLINE C element(D*, backwards<C> src, size_t i) { return peek(src.end - 1 - i); }

template <access Store, int N, class D, class C> TAV_INLINE reg<C> elements(D*, backwards<C> src, size_t i) {
  static_assert(N == lanes<C>);
  return from_bits<C>(reversed<sizeof(C)>(load_bits<access::unaligned>(src.end - N - i)));
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
