/**
 * @file dot_product.h
 * Sums of products of two arrays.
 */
#ifndef TAVS_DOT_PRODUCT_H
#define TAVS_DOT_PRODUCT_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup dot_product Dot products
 *
 *  result = sum over i from 0 to len - 1 of src1[i] * src2[i]
 *
 *  Complex elements are multiplied as they are, none is conjugated: re = re1 * re2 - im1 * im2 and im = re1 * im2 + im1
 *  * re2. A real element times a complex one multiplies both of its parts.
 *
 *  The type codes name both sources where they differ, then the result where it differs from the wider source: in
 *  tavsDotProd_16s16sc32fc() a 16s array meets a 16sc array for a 32fc result. One code stands for two sources alike.
 *
 *  The result depends on the elements alone, not on where the arrays lie: a call repeats bit for bit.
 *  @{ */

/** @name tavsDotProd of floats
 *  @{ */
/**
 * Sums products in floating point, each product and each addition rounded in the caller's rounding mode.
 *
 * 32f, 32fc and 32f32fc multiply and add in single precision; the others in double precision, and convert single
 * elements before the multiplication, so that products of these are exact. Several partial sums run side by side, in an
 * order that len alone decides, and the products of a complex multiplication may be summed apart. NaNs and infinities
 * anywhere have the effect they have in any sum of products.
 *
 * @param src1   first source, @p len elements.
 * @param src2   second source, @p len elements.
 * @param len    number of elements, at least 1.
 * @param result receives the sum.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsDotProd_32f(const Tav32f* src1, const Tav32f* src2, int len, Tav32f* result);
TavStatus tavsDotProd_32fc(const Tav32fc* src1, const Tav32fc* src2, int len, Tav32fc* result);
TavStatus tavsDotProd_32f32fc(const Tav32f* src1, const Tav32fc* src2, int len, Tav32fc* result);
TavStatus tavsDotProd_32f64f(const Tav32f* src1, const Tav32f* src2, int len, Tav64f* result);
TavStatus tavsDotProd_32fc64fc(const Tav32fc* src1, const Tav32fc* src2, int len, Tav64fc* result);
TavStatus tavsDotProd_32f32fc64fc(const Tav32f* src1, const Tav32fc* src2, int len, Tav64fc* result);
TavStatus tavsDotProd_64f(const Tav64f* src1, const Tav64f* src2, int len, Tav64f* result);
TavStatus tavsDotProd_64fc(const Tav64fc* src1, const Tav64fc* src2, int len, Tav64fc* result);
TavStatus tavsDotProd_64f64fc(const Tav64f* src1, const Tav64fc* src2, int len, Tav64fc* result);
/** @} */

/** @name tavsDotProd of 16-bit integers
 *  @{ */
/**
 * Sums products exactly, in 64 bits, which no length overflows. The 64s and 64sc forms give this sum; the 32f and 32fc
 * forms convert it, rounded once in the caller's rounding mode.
 *
 * @param src1   first source, @p len elements.
 * @param src2   second source, @p len elements.
 * @param len    number of elements, at least 1.
 * @param result receives the sum.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsDotProd_16s64s(const Tav16s* src1, const Tav16s* src2, int len, Tav64s* result);
TavStatus tavsDotProd_16sc64sc(const Tav16sc* src1, const Tav16sc* src2, int len, Tav64sc* result);
TavStatus tavsDotProd_16s16sc64sc(const Tav16s* src1, const Tav16sc* src2, int len, Tav64sc* result);
TavStatus tavsDotProd_16s32f(const Tav16s* src1, const Tav16s* src2, int len, Tav32f* result);
TavStatus tavsDotProd_16sc32fc(const Tav16sc* src1, const Tav16sc* src2, int len, Tav32fc* result);
TavStatus tavsDotProd_16s16sc32fc(const Tav16s* src1, const Tav16sc* src2, int len, Tav32fc* result);
/** @} */

/** @name tavsDotProd of 16-bit integers, scaled
 *  @{ */
/**
 * Sums products exactly, multiplies the sum by 2^-scaleFactor, rounds it to nearest with ties to even, and saturates it
 * to the type of the result. A complex sum does so in each part.
 *
 * @param src1        first source, @p len elements.
 * @param src2        second source, @p len elements.
 * @param len         number of elements, at least 1.
 * @param result      receives the sum.
 * @param scaleFactor the scale factor; one above 31 counts as 31.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsDotProd_16s_Sfs(const Tav16s* src1, const Tav16s* src2, int len, Tav16s* result, int scaleFactor);
TavStatus tavsDotProd_16s32s_Sfs(const Tav16s* src1, const Tav16s* src2, int len, Tav32s* result, int scaleFactor);
TavStatus tavsDotProd_16sc_Sfs(const Tav16sc* src1, const Tav16sc* src2, int len, Tav16sc* result, int scaleFactor);
TavStatus tavsDotProd_16sc32sc_Sfs(const Tav16sc* src1, const Tav16sc* src2, int len, Tav32sc* result, int scaleFactor);
TavStatus tavsDotProd_16s16sc_Sfs(const Tav16s* src1, const Tav16sc* src2, int len, Tav16sc* result, int scaleFactor);
TavStatus tavsDotProd_16s16sc32sc_Sfs(const Tav16s* src1, const Tav16sc* src2, int len, Tav32sc* result,
                                      int scaleFactor);
/** @} */

/** @name tavsDotProd of 32-bit integers, scaled
 *  @{ */
/**
 * Sums products exactly, however large the sum becomes, multiplies it by 2^-scaleFactor, rounds it to nearest with ties
 * to even, and saturates it to the type of the result. A complex sum does so in each part. Every scale factor counts as
 * it is.
 *
 * @param src1        first source, @p len elements.
 * @param src2        second source, @p len elements.
 * @param len         number of elements, at least 1.
 * @param result      receives the sum.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsDotProd_32s_Sfs(const Tav32s* src1, const Tav32s* src2, int len, Tav32s* result, int scaleFactor);
TavStatus tavsDotProd_16s32s32s_Sfs(const Tav16s* src1, const Tav32s* src2, int len, Tav32s* result, int scaleFactor);
TavStatus tavsDotProd_32sc_Sfs(const Tav32sc* src1, const Tav32sc* src2, int len, Tav32sc* result, int scaleFactor);
TavStatus tavsDotProd_32s32sc_Sfs(const Tav32s* src1, const Tav32sc* src2, int len, Tav32sc* result, int scaleFactor);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
