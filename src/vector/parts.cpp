// tavsReal_*, tavsImag_*, tavsCplxToReal_*, tavsRealToCplx_*: complex arrays taken apart and joined.
#include "vector/parts.h"

#include "frame/two_destinations.h"

namespace tav::TAV_VARIANT {
namespace {

template <class C> struct both_parts {
  TAV_INLINE static C                  one(C v) { return v; }
  TAV_INLINE static several<reg<C>, 2> many(several<reg<C>, 2> v) { return {{all_re(v), all_im(v)}}; }
};

template <class C> TavStatus taken_apart(const C* src, part_of<C>* dstRe, part_of<C>* dstIm, int len) {
  if (const TavStatus bad = check_vector(len, src, dstRe, dstIm)) return bad;
  return elementwise_apart(both_parts<C>{}, dstRe, dstIm, size_t(len), src);
}

// A register of each part makes two of pairs.
template <class C> inline constexpr kernel_shape shape_of_pairs{.round_bytes = 64, .step = lanes<part_of<C>>};

template <class C> struct joined_parts {
  using P                             = part_of<C>;
  static constexpr kernel_shape shape = shape_of_pairs<C>;

  TAV_INLINE static C    one(P re, P im) { return {re, im}; }
  TAV_INLINE static auto many(reg<P> re, reg<P> im) { return in_pairs(re, im); }
};

template <class C> struct joined_to_no_im {
  using P                             = part_of<C>;
  static constexpr kernel_shape shape = shape_of_pairs<C>;

  TAV_INLINE static C    one(P re) { return {re, 0}; }
  TAV_INLINE static auto many(reg<P> re) { return in_pairs(re, reg<P>{}); }
};

template <class C> struct joined_to_no_re {
  using P                             = part_of<C>;
  static constexpr kernel_shape shape = shape_of_pairs<C>;

  TAV_INLINE static C    one(P im) { return {0, im}; }
  TAV_INLINE static auto many(reg<P> im) { return in_pairs(reg<P>{}, im); }
};

// One source may be null: that part is 0.
template <class C> TavStatus joined(const part_of<C>* srcRe, const part_of<C>* srcIm, C* dst, int len) {
  if (const TavStatus bad = check_vector(len, dst, srcRe ? srcRe : srcIm)) return bad;
  if (!srcIm) return elementwise(joined_to_no_im<C>{}, dst, size_t(len), srcRe);
  if (!srcRe) return elementwise(joined_to_no_re<C>{}, dst, size_t(len), srcIm);
  return elementwise(joined_parts<C>{}, dst, size_t(len), srcRe, srcIm);
}

}  // namespace

TAV_BIND(Real_16sc, &one_source<real_part<Tav16sc>>)

TAV_BIND(Imag_16sc, &one_source<imaginary_part<Tav16sc>>)
TAV_BIND(Imag_32fc, &one_source<imaginary_part<Tav32fc>>)
TAV_BIND(Imag_64fc, &one_source<imaginary_part<Tav64fc>>)

TAV_BIND(CplxToReal_16sc, &taken_apart<Tav16sc>)
TAV_BIND(CplxToReal_32fc, &taken_apart<Tav32fc>)
TAV_BIND(CplxToReal_64fc, &taken_apart<Tav64fc>)

TAV_BIND(RealToCplx_16s, &joined<Tav16sc>)
TAV_BIND(RealToCplx_32f, &joined<Tav32fc>)
TAV_BIND(RealToCplx_64f, &joined<Tav64fc>)

}  // namespace tav::TAV_VARIANT
