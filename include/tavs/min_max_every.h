/**
 * @file min_max_every.h
 * The smaller and the larger of two elements, for whole arrays.
 */
#ifndef TAVS_MIN_MAX_EVERY_H
#define TAVS_MIN_MAX_EVERY_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup min_max_every Smaller and larger elements
 *
 *  Floats: where neither element is the larger one, because one or both are NaN or both are zeros, the result is the
 *  second operand, bit by bit.
 *  @{ */

/** @name tavsMinEvery, tavsMaxEvery
 *  @{ */
/**
 * Takes the smaller (Min) or the larger (Max) of two elements: dst[i] = src1[i] < src2[i] ? src1[i] : src2[i] for Min,
 * and with > for Max.
 *
 * @param src1 first source, @p len elements.
 * @param src2 second source, @p len elements.
 * @param dst  destination, @p len elements.
 * @param len  number of elements, at least 1. That of floats is unsigned.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMinEvery_8u(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len);
TavStatus tavsMinEvery_16u(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len);
TavStatus tavsMinEvery_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, unsigned int len);
TavStatus tavsMinEvery_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, unsigned int len);
TavStatus tavsMaxEvery_8u(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len);
TavStatus tavsMaxEvery_16u(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len);
TavStatus tavsMaxEvery_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, unsigned int len);
TavStatus tavsMaxEvery_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, unsigned int len);
/** @} */

/** @name tavsMinEvery, tavsMaxEvery, in place
 *  @{ */
/**
 * The same in place: srcDst[i] = src[i] < srcDst[i] ? src[i] : srcDst[i] for Min, and with > for Max. The second
 * operand is that of @p srcDst.
 *
 * @param src    first source, @p len elements.
 * @param srcDst second source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMinEvery_8u_I(const Tav8u* src, Tav8u* srcDst, int len);
TavStatus tavsMinEvery_16u_I(const Tav16u* src, Tav16u* srcDst, int len);
TavStatus tavsMinEvery_16s_I(const Tav16s* src, Tav16s* srcDst, int len);
TavStatus tavsMinEvery_32s_I(const Tav32s* src, Tav32s* srcDst, int len);
TavStatus tavsMinEvery_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
TavStatus tavsMinEvery_64f_I(const Tav64f* src, Tav64f* srcDst, int len);
TavStatus tavsMaxEvery_8u_I(const Tav8u* src, Tav8u* srcDst, int len);
TavStatus tavsMaxEvery_16u_I(const Tav16u* src, Tav16u* srcDst, int len);
TavStatus tavsMaxEvery_16s_I(const Tav16s* src, Tav16s* srcDst, int len);
TavStatus tavsMaxEvery_32s_I(const Tav32s* src, Tav32s* srcDst, int len);
TavStatus tavsMaxEvery_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
TavStatus tavsMaxEvery_64f_I(const Tav64f* src, Tav64f* srcDst, int len);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
