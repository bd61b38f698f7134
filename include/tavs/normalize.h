/**
 * @file normalize.h
 * Arrays less an offset, over a divisor.
 */
#ifndef TAVS_NORMALIZE_H
#define TAVS_NORMALIZE_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup normalize Normalisation
 *
 *  The divisor is inverted once; each element is then multiplied.
 *  @{ */

/** @name tavsNormalize, floats
 *  @{ */
/**
 * Subtracts an offset and divides: dst[i] = (src[i] - vSub) * (1 / vDiv) for i from 0 to len - 1, complex elements part
 * by part.
 *
 * The reciprocal is rounded to nearest, difference and product in the caller's mode. An infinite divisor has the
 * reciprocal 0, and a NaN makes every element a NaN.
 *
 * @param src  source, @p len elements.
 * @param dst  destination, @p len elements; may be @p src itself.
 * @param len  number of elements, at least 1.
 * @param vSub what is subtracted.
 * @param vDiv the divisor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusDivideByZero if the magnitude of @p vDiv is below the smallest normal number of its type.
 */
TavStatus tavsNormalize_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f vSub, Tav32f vDiv);
TavStatus tavsNormalize_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f vSub, Tav64f vDiv);
TavStatus tavsNormalize_32fc(const Tav32fc* src, Tav32fc* dst, int len, Tav32fc vSub, Tav32f vDiv);
TavStatus tavsNormalize_64fc(const Tav64fc* src, Tav64fc* dst, int len, Tav64fc vSub, Tav64f vDiv);
/** @} */

/** @name tavsNormalize, integers
 *  @{ */
/**
 * The same of 16-bit integers: dst[i] = (src[i] - vSub) * m, where m = 2^-scaleFactor / vDiv as a single-precision
 * number. Complex elements go part by part.
 *
 * The difference is exact. m and its product with the difference are single-precision numbers, rounded to nearest, and
 * the product is then rounded to the nearest integer, ties to even, and limited to 16 bits; so a result may be the
 * other neighbour of a quotient that lies next to the middle between two integers. No caller's rounding mode has an
 * influence.
 *
 * 2^-scaleFactor is a single-precision power itself: from 127 on it is 0, and so is every result. Below 0 the factor
 * counts modulo 128: -128 is as 0, -129 as -1.
 *
 * @param src         source, @p len elements.
 * @param dst         destination, @p len elements; may be @p src itself.
 * @param len         number of elements, at least 1.
 * @param vSub        what is subtracted.
 * @param vDiv        the divisor.
 * @param scaleFactor the results are multiplied by 2^-scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusDivideByZero if @p vDiv is 0.
 */
TavStatus tavsNormalize_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, Tav16s vSub, int vDiv, int scaleFactor);
TavStatus tavsNormalize_16sc_Sfs(const Tav16sc* src, Tav16sc* dst, int len, Tav16sc vSub, int vDiv, int scaleFactor);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
