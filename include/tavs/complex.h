/**
 * @file complex.h
 * Complex arrays: their parts, their conjugates, their magnitudes and their power.
 */
#ifndef TAVS_COMPLEX_H
#define TAVS_COMPLEX_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup complex Complex arrays
 *
 *  A complex array holds pairs, real part first. Where a function works on real and imaginary parts in two arrays of
 *  their own, its name carries the code of the parts (tavsMagnitude_32f()); on pairs, that of the pairs
 *  (tavsMagnitude_32fc()).
 *  @{ */

/** @name tavsReal
 *  @{ */
/**
 * Takes the real parts: dst[i] = src[i].re for i from 0 to len - 1, bit by bit (a NaN keeps its payload).
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsReal_16sc(const Tav16sc* src, Tav16s* dst, int len);
TavStatus tavsReal_32fc(const Tav32fc* src, Tav32f* dst, int len);
TavStatus tavsReal_64fc(const Tav64fc* src, Tav64f* dst, int len);
/** @} */

/** @name tavsImag
 *  @{ */
/**
 * Takes the imaginary parts: dst[i] = src[i].im for i from 0 to len - 1, bit by bit (a NaN keeps its payload).
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsImag_16sc(const Tav16sc* src, Tav16s* dst, int len);
TavStatus tavsImag_32fc(const Tav32fc* src, Tav32f* dst, int len);
TavStatus tavsImag_64fc(const Tav64fc* src, Tav64f* dst, int len);
/** @} */

/** @name tavsCplxToReal
 *  @{ */
/**
 * Takes both parts: dstRe[i] = src[i].re and dstIm[i] = src[i].im for i from 0 to len - 1, bit by bit.
 *
 * @param src   source, @p len elements.
 * @param dstRe destination of the real parts, @p len elements.
 * @param dstIm destination of the imaginary parts, @p len elements.
 * @param len   number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsCplxToReal_16sc(const Tav16sc* src, Tav16s* dstRe, Tav16s* dstIm, int len);
TavStatus tavsCplxToReal_32fc(const Tav32fc* src, Tav32f* dstRe, Tav32f* dstIm, int len);
TavStatus tavsCplxToReal_64fc(const Tav64fc* src, Tav64f* dstRe, Tav64f* dstIm, int len);
/** @} */

/** @name tavsRealToCplx
 *  @{ */
/**
 * Joins parts to pairs: dst[i] = (srcRe[i], srcIm[i]) for i from 0 to len - 1, bit by bit.
 *
 * One of the sources may be null: that part of all elements is then 0.
 *
 * @param srcRe real parts, @p len elements, or null.
 * @param srcIm imaginary parts, @p len elements, or null.
 * @param dst   destination, @p len elements.
 * @param len   number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p dst or both sources are null; #tavStatusBadSize if @p len is below
 *         1.
 */
TavStatus tavsRealToCplx_16s(const Tav16s* srcRe, const Tav16s* srcIm, Tav16sc* dst, int len);
TavStatus tavsRealToCplx_32f(const Tav32f* srcRe, const Tav32f* srcIm, Tav32fc* dst, int len);
TavStatus tavsRealToCplx_64f(const Tav64f* srcRe, const Tav64f* srcIm, Tav64fc* dst, int len);
/** @} */

/** @name tavsConj
 *  @{ */
/**
 * Conjugates: dst[i] = (src[i].re, -src[i].im) for i from 0 to len - 1. An integer imaginary part of -32768 becomes
 * 32767; of a float one only the sign bit changes, also that of a zero or a NaN.
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsConj_16sc(const Tav16sc* src, Tav16sc* dst, int len);
TavStatus tavsConj_32fc(const Tav32fc* src, Tav32fc* dst, int len);
TavStatus tavsConj_64fc(const Tav64fc* src, Tav64fc* dst, int len);
/** @} */

/** @name tavsConj in place
 *  @{ */
/**
 * Conjugates the elements of an array where they stand, as tavsConj_32fc() does.
 *
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsConj_16sc_I(Tav16sc* srcDst, int len);
TavStatus tavsConj_32fc_I(Tav32fc* srcDst, int len);
TavStatus tavsConj_64fc_I(Tav64fc* srcDst, int len);
/** @} */

/** @name tavsConjFlip
 *  @{ */
/**
 * Conjugates and reverses: dst[i] is the conjugate of src[len - 1 - i], for i from 0 to len - 1. A part of -32768
 * becomes 32767 as in tavsConj_16sc().
 *
 * The arrays must not overlap; @p dst must not be @p src either.
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsConjFlip_16sc(const Tav16sc* src, Tav16sc* dst, int len);
TavStatus tavsConjFlip_32fc(const Tav32fc* src, Tav32fc* dst, int len);
TavStatus tavsConjFlip_64fc(const Tav64fc* src, Tav64fc* dst, int len);
/** @} */

/** @name tavsMagnitude of separate parts
 *  @{ */
/**
 * Magnitudes: dst[i] = sqrt(srcRe[i]^2 + srcIm[i]^2) for i from 0 to len - 1, in the precision of the elements and the
 * caller's rounding mode; the squares of floats may overflow. The squares of 16-bit parts are added exactly; their
 * magnitude is within 1 ULP.
 *
 * @param srcRe real parts, @p len elements.
 * @param srcIm imaginary parts, @p len elements.
 * @param dst   destination, @p len elements.
 * @param len   number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMagnitude_16s32f(const Tav16s* srcRe, const Tav16s* srcIm, Tav32f* dst, int len);
TavStatus tavsMagnitude_32f(const Tav32f* srcRe, const Tav32f* srcIm, Tav32f* dst, int len);
TavStatus tavsMagnitude_64f(const Tav64f* srcRe, const Tav64f* srcIm, Tav64f* dst, int len);
/** @} */

/** @name tavsMagnitude
 *  @{ */
/**
 * Magnitudes: dst[i] = sqrt(src[i].re^2 + src[i].im^2) for i from 0 to len - 1, in the precision of the elements and
 * the caller's rounding mode; the squares of floats may overflow. The squares of 16-bit parts are added exactly; their
 * magnitude is within 1 ULP.
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMagnitude_16sc32f(const Tav16sc* src, Tav32f* dst, int len);
TavStatus tavsMagnitude_32fc(const Tav32fc* src, Tav32f* dst, int len);
TavStatus tavsMagnitude_64fc(const Tav64fc* src, Tav64f* dst, int len);
/** @} */

/** @name tavsMagnitude of separate parts, scaled
 *  @{ */
/**
 * Magnitudes of integers: dst[i] = sqrt(srcRe[i]^2 + srcIm[i]^2) * 2^-scaleFactor for i from 0 to len - 1. The exact
 * value is rounded once, to nearest with ties to even, and saturated, whatever the caller's rounding mode.
 *
 * @param srcRe       real parts, @p len elements.
 * @param srcIm       imaginary parts, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor scale factor, any value.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMagnitude_16s_Sfs(const Tav16s* srcRe, const Tav16s* srcIm, Tav16s* dst, int len, int scaleFactor);
/** @} */

/** @name tavsMagnitude, scaled
 *  @{ */
/**
 * Magnitudes of integers: dst[i] = sqrt(src[i].re^2 + src[i].im^2) * 2^-scaleFactor for i from 0 to len - 1. The exact
 * value is rounded once, to nearest with ties to even, and saturated, whatever the caller's rounding mode.
 *
 * @param src         source, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor scale factor, any value.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMagnitude_16sc_Sfs(const Tav16sc* src, Tav16s* dst, int len, int scaleFactor);
TavStatus tavsMagnitude_32sc_Sfs(const Tav32sc* src, Tav32s* dst, int len, int scaleFactor);
/** @} */

/** @name tavsMagSquared
 *  @{ */
/**
 * Squared magnitudes: dst[i] = src[i].re^2 + src[i].im^2 for i from 0 to len - 1, of parts widened to double first.
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMagSquared_32fc64f(const Tav32fc* src, Tav64f* dst, int len);
/**
 * Squared magnitudes of integers: dst[i] = (src[i].re^2 + src[i].im^2) * 2^-scaleFactor for i from 0 to len - 1. The
 * exact value is rounded once, to nearest with ties to even, and saturated.
 *
 * @param src         source, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor scale factor, any value.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMagSquared_32sc32s_Sfs(const Tav32sc* src, Tav32s* dst, int len, int scaleFactor);
/** @} */

/** @name tavsPowerSpectr of separate parts
 *  @{ */
/**
 * Power: dst[i] = srcRe[i]^2 + srcIm[i]^2 for i from 0 to len - 1, in the precision of the elements. Of 16-bit parts
 * the exact value is rounded once. Both follow the caller's rounding mode.
 *
 * @param srcRe real parts, @p len elements.
 * @param srcIm imaginary parts, @p len elements.
 * @param dst   destination, @p len elements.
 * @param len   number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsPowerSpectr_16s32f(const Tav16s* srcRe, const Tav16s* srcIm, Tav32f* dst, int len);
TavStatus tavsPowerSpectr_32f(const Tav32f* srcRe, const Tav32f* srcIm, Tav32f* dst, int len);
TavStatus tavsPowerSpectr_64f(const Tav64f* srcRe, const Tav64f* srcIm, Tav64f* dst, int len);
/** @} */

/** @name tavsPowerSpectr
 *  @{ */
/**
 * Power: dst[i] = src[i].re^2 + src[i].im^2 for i from 0 to len - 1, in the precision of the elements. Of 16-bit parts
 * the exact value is rounded once. Both follow the caller's rounding mode.
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsPowerSpectr_16sc32f(const Tav16sc* src, Tav32f* dst, int len);
TavStatus tavsPowerSpectr_32fc(const Tav32fc* src, Tav32f* dst, int len);
TavStatus tavsPowerSpectr_64fc(const Tav64fc* src, Tav64f* dst, int len);
/** @} */

/** @name tavsPowerSpectr, scaled
 *  @{ */
/**
 * Power of integers: dst[i] = (srcRe[i]^2 + srcIm[i]^2) * 2^-scaleFactor for i from 0 to len - 1. The exact value is
 * rounded once, to nearest with ties to even, and saturated.
 *
 * @param srcRe       real parts, @p len elements.
 * @param srcIm       imaginary parts, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor scale factor, any value.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsPowerSpectr_16s_Sfs(const Tav16s* srcRe, const Tav16s* srcIm, Tav16s* dst, int len, int scaleFactor);
/**
 * Power of integers: dst[i] = (src[i].re^2 + src[i].im^2) * 2^-scaleFactor for i from 0 to len - 1. The exact value is
 * rounded once, to nearest with ties to even, and saturated.
 *
 * @param src         source, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor scale factor, any value.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsPowerSpectr_16sc_Sfs(const Tav16sc* src, Tav16s* dst, int len, int scaleFactor);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
