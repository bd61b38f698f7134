/**
 * @file scaled.h
 * Element-wise sums, differences and products of integers with a scale factor.
 */
#ifndef TAVS_SCALED_H
#define TAVS_SCALED_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup scaled Arithmetic with a scale factor
 *
 *  The functions whose name ends in Sfs take a scale factor s as their last argument. They form the exact result r of
 *  the operation, in as many bits as it needs, and deliver r * 2^-s: rounded to nearest, ties to the even neighbour,
 *  and then saturated to the destination's type. A positive factor scales down, a negative one up. Any factor is valid.
 *
 *  | type | r     | s   | r * 2^-s | result                         |
 *  |------|-------|-----|----------|--------------------------------|
 *  | 16s  | 7     | 0   | 7        | 7                              |
 *  | 16s  | 3     | 1   | 1.5      | 2: a tie, to even              |
 *  | 16s  | 1     | 1   | 0.5      | 0: a tie, to even              |
 *  | 16s  | -5    | 1   | -2.5     | -2: a tie, to even             |
 *  | 16s  | 11    | 2   | 2.75     | 3                              |
 *  | 16s  | 65534 | 1   | 32767    | 32767: r itself may be larger  |
 *  | 16s  | 40000 | 0   | 40000    | 32767: the highest value       |
 *  | 16s  | 300   | -7  | 38400    | 32767: the highest value       |
 *  | 8u   | -3    | 0   | -3       | 0: the lowest value            |
 *  | 8u   | 510   | 9   | 0.996    | 1                              |
 *
 *  So a large factor gives zeros, and one far below zero the highest value for each positive r, the lowest for each
 *  negative r, and 0 for 0. Complex elements are scaled part by part.
 *  @{ */

/** @name tavsAdd with a scale factor
 *  @{ */
/**
 * Adds two arrays: dst[i] = (src1[i] + src2[i]) * 2^-scaleFactor for i from 0 to len - 1.
 *
 * The 64s form first saturates the sum to 64 bits and then scales it. @p dst may be the same array as @p src1, @p src2
 * or both. The complex forms test @p len before the pointers.
 *
 * @param src1        first source, @p len elements.
 * @param src2        second source, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAdd_8u_Sfs(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len, int scaleFactor);
TavStatus tavsAdd_16s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor);
TavStatus tavsAdd_16u_Sfs(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len, int scaleFactor);
TavStatus tavsAdd_32s_Sfs(const Tav32s* src1, const Tav32s* src2, Tav32s* dst, int len, int scaleFactor);
TavStatus tavsAdd_64s_Sfs(const Tav64s* src1, const Tav64s* src2, Tav64s* dst, int len, int scaleFactor);
TavStatus tavsAdd_16sc_Sfs(const Tav16sc* src1, const Tav16sc* src2, Tav16sc* dst, int len, int scaleFactor);
TavStatus tavsAdd_32sc_Sfs(const Tav32sc* src1, const Tav32sc* src2, Tav32sc* dst, int len, int scaleFactor);
/** @} */

/** @name tavsAdd in place with a scale factor
 *  @{ */
/**
 * Adds an array to another one: srcDst[i] = (srcDst[i] + src[i]) * 2^-scaleFactor for i from 0 to len - 1.
 *
 * The complex forms test @p len before the pointers.
 *
 * @param src         what is added, @p len elements.
 * @param srcDst      source and destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAdd_8u_ISfs(const Tav8u* src, Tav8u* srcDst, int len, int scaleFactor);
TavStatus tavsAdd_16s_ISfs(const Tav16s* src, Tav16s* srcDst, int len, int scaleFactor);
TavStatus tavsAdd_16u_ISfs(const Tav16u* src, Tav16u* srcDst, int len, int scaleFactor);
TavStatus tavsAdd_32s_ISfs(const Tav32s* src, Tav32s* srcDst, int len, int scaleFactor);
TavStatus tavsAdd_16sc_ISfs(const Tav16sc* src, Tav16sc* srcDst, int len, int scaleFactor);
TavStatus tavsAdd_32sc_ISfs(const Tav32sc* src, Tav32sc* srcDst, int len, int scaleFactor);
/** @} */

/** @name tavsSub with a scale factor
 *  @{ */
/**
 * Subtracts the first array from the second: dst[i] = (src2[i] - src1[i]) * 2^-scaleFactor for i from 0 to len - 1.
 *
 * @p dst may be the same array as @p src1, @p src2 or both. The complex forms test @p len before the pointers.
 *
 * @param src1        what is subtracted, @p len elements.
 * @param src2        what it is subtracted from, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSub_8u_Sfs(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len, int scaleFactor);
TavStatus tavsSub_16s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor);
TavStatus tavsSub_16u_Sfs(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len, int scaleFactor);
TavStatus tavsSub_32s_Sfs(const Tav32s* src1, const Tav32s* src2, Tav32s* dst, int len, int scaleFactor);
TavStatus tavsSub_16sc_Sfs(const Tav16sc* src1, const Tav16sc* src2, Tav16sc* dst, int len, int scaleFactor);
TavStatus tavsSub_32sc_Sfs(const Tav32sc* src1, const Tav32sc* src2, Tav32sc* dst, int len, int scaleFactor);
/** @} */

/** @name tavsSub in place with a scale factor
 *  @{ */
/**
 * Subtracts an array from another one: srcDst[i] = (srcDst[i] - src[i]) * 2^-scaleFactor for i from 0 to len - 1.
 *
 * The complex forms test @p len before the pointers.
 *
 * @param src         what is subtracted, @p len elements.
 * @param srcDst      source and destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSub_8u_ISfs(const Tav8u* src, Tav8u* srcDst, int len, int scaleFactor);
TavStatus tavsSub_16s_ISfs(const Tav16s* src, Tav16s* srcDst, int len, int scaleFactor);
TavStatus tavsSub_16u_ISfs(const Tav16u* src, Tav16u* srcDst, int len, int scaleFactor);
TavStatus tavsSub_32s_ISfs(const Tav32s* src, Tav32s* srcDst, int len, int scaleFactor);
TavStatus tavsSub_16sc_ISfs(const Tav16sc* src, Tav16sc* srcDst, int len, int scaleFactor);
TavStatus tavsSub_32sc_ISfs(const Tav32sc* src, Tav32sc* srcDst, int len, int scaleFactor);
/** @} */

/** @name tavsMul with a scale factor
 *  @{ */
/**
 * Multiplies two arrays: dst[i] = src1[i] * src2[i] * 2^-scaleFactor for i from 0 to len - 1.
 *
 * The product of complex elements a and b is (a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re), each part exact
 * before it is scaled. The 32s32sc form scales complex elements by real ones. The 32s form computes in doubles: where a
 * product exceeds 2^53 the result may differ by 1 from the exact rule. @p dst may be the same array as a source of its
 * type.
 *
 * @param src1        first source, @p len elements.
 * @param src2        second source, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMul_8u_Sfs(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len, int scaleFactor);
TavStatus tavsMul_16s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor);
TavStatus tavsMul_16u_Sfs(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len, int scaleFactor);
TavStatus tavsMul_16u16s_Sfs(const Tav16u* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor);
TavStatus tavsMul_16s32s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav32s* dst, int len, int scaleFactor);
TavStatus tavsMul_32s_Sfs(const Tav32s* src1, const Tav32s* src2, Tav32s* dst, int len, int scaleFactor);
TavStatus tavsMul_16sc_Sfs(const Tav16sc* src1, const Tav16sc* src2, Tav16sc* dst, int len, int scaleFactor);
TavStatus tavsMul_32s32sc_Sfs(const Tav32s* src1, const Tav32sc* src2, Tav32sc* dst, int len, int scaleFactor);
TavStatus tavsMul_32sc_Sfs(const Tav32sc* src1, const Tav32sc* src2, Tav32sc* dst, int len, int scaleFactor);
/** @} */

/** @name tavsMul in place with a scale factor
 *  @{ */
/**
 * Multiplies an array by another one: srcDst[i] = srcDst[i] * src[i] * 2^-scaleFactor for i from 0 to len - 1, as
 * tavsMul_8u_Sfs() and its kin.
 *
 * @param src         factors, @p len elements.
 * @param srcDst      source and destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMul_8u_ISfs(const Tav8u* src, Tav8u* srcDst, int len, int scaleFactor);
TavStatus tavsMul_16s_ISfs(const Tav16s* src, Tav16s* srcDst, int len, int scaleFactor);
TavStatus tavsMul_16u_ISfs(const Tav16u* src, Tav16u* srcDst, int len, int scaleFactor);
TavStatus tavsMul_32s_ISfs(const Tav32s* src, Tav32s* srcDst, int len, int scaleFactor);
TavStatus tavsMul_16sc_ISfs(const Tav16sc* src, Tav16sc* srcDst, int len, int scaleFactor);
TavStatus tavsMul_32s32sc_ISfs(const Tav32s* src, Tav32sc* srcDst, int len, int scaleFactor);
TavStatus tavsMul_32sc_ISfs(const Tav32sc* src, Tav32sc* srcDst, int len, int scaleFactor);
/** @} */

/**
 * Multiplies two arrays and delivers 32 bits of each 64-bit product, without rounding and without saturation.
 *
 * With a scale factor s the result is the low word of the product for s = 0; that word shifted right by s, zeros moving
 * in, for 1 to 31; the high word shifted right by s - 32 with its sign for 32 to 62; 0 above 62; the low word shifted
 * left by -s for -31 to -1; and 0 below -31.
 *
 * @param src1        first source, @p len elements.
 * @param src2        second source, @p len elements.
 * @param dst         destination, @p len elements; may be the same array as a source.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMul_Low_32s_Sfs(const Tav32s* src1, const Tav32s* src2, Tav32s* dst, int len, int scaleFactor);

/** @name tavsAddC with a scale factor
 *  @{ */
/**
 * Adds a constant to an array: dst[i] = (src[i] + val) * 2^-scaleFactor for i from 0 to len - 1.
 *
 * In the 8u form with a factor of -8 or below, and in the 16u form with one of -16 or below, a @p val that is not 0
 * makes every element the highest value. @p dst may be @p src itself.
 *
 * @param src         source, @p len elements.
 * @param val         the constant.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAddC_8u_Sfs(const Tav8u* src, Tav8u val, Tav8u* dst, int len, int scaleFactor);
TavStatus tavsAddC_16s_Sfs(const Tav16s* src, Tav16s val, Tav16s* dst, int len, int scaleFactor);
TavStatus tavsAddC_16u_Sfs(const Tav16u* src, Tav16u val, Tav16u* dst, int len, int scaleFactor);
TavStatus tavsAddC_32s_Sfs(const Tav32s* src, Tav32s val, Tav32s* dst, int len, int scaleFactor);
TavStatus tavsAddC_16sc_Sfs(const Tav16sc* src, Tav16sc val, Tav16sc* dst, int len, int scaleFactor);
TavStatus tavsAddC_32sc_Sfs(const Tav32sc* src, Tav32sc val, Tav32sc* dst, int len, int scaleFactor);
/** @} */

/** @name tavsAddC in place with a scale factor
 *  @{ */
/**
 * Adds a constant to an array: srcDst[i] = (srcDst[i] + val) * 2^-scaleFactor for i from 0 to len - 1, as
 * tavsAddC_8u_Sfs() and its kin.
 *
 * @param val         the constant.
 * @param srcDst      source and destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAddC_8u_ISfs(Tav8u val, Tav8u* srcDst, int len, int scaleFactor);
TavStatus tavsAddC_16s_ISfs(Tav16s val, Tav16s* srcDst, int len, int scaleFactor);
TavStatus tavsAddC_16u_ISfs(Tav16u val, Tav16u* srcDst, int len, int scaleFactor);
TavStatus tavsAddC_32s_ISfs(Tav32s val, Tav32s* srcDst, int len, int scaleFactor);
TavStatus tavsAddC_16sc_ISfs(Tav16sc val, Tav16sc* srcDst, int len, int scaleFactor);
TavStatus tavsAddC_32sc_ISfs(Tav32sc val, Tav32sc* srcDst, int len, int scaleFactor);
/** @} */

/** @name tavsAddC of 64-bit integers
 *  @{ */
/**
 * Adds a constant to an array of 64-bit integers: dst[i] = (src[i] + val) * 2^-scaleFactor for i from 0 to len - 1. The
 * sum is saturated to 64 bits first and then scaled.
 *
 * The length is unsigned: only 0 is refused. @p dst may be @p src itself.
 *
 * @param src         source, @p len elements.
 * @param val         the constant.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @param roundMode   how a positive factor rounds: 0 toward zero, 1 to nearest with ties to even, any other value to
 *                    nearest with ties away from zero.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is 0.
 */
TavStatus tavsAddC_64s_Sfs(const Tav64s* src, Tav64s val, Tav64s* dst, unsigned int len, int scaleFactor,
                           int roundMode);
TavStatus tavsAddC_64u_Sfs(const Tav64u* src, Tav64u val, Tav64u* dst, unsigned int len, int scaleFactor,
                           int roundMode);
/** @} */

/** @name tavsSubC with a scale factor
 *  @{ */
/**
 * Subtracts a constant from an array: dst[i] = (src[i] - val) * 2^-scaleFactor for i from 0 to len - 1.
 *
 * @p dst may be @p src itself.
 *
 * @param src         source, @p len elements.
 * @param val         the constant.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSubC_8u_Sfs(const Tav8u* src, Tav8u val, Tav8u* dst, int len, int scaleFactor);
TavStatus tavsSubC_16s_Sfs(const Tav16s* src, Tav16s val, Tav16s* dst, int len, int scaleFactor);
TavStatus tavsSubC_16u_Sfs(const Tav16u* src, Tav16u val, Tav16u* dst, int len, int scaleFactor);
TavStatus tavsSubC_32s_Sfs(const Tav32s* src, Tav32s val, Tav32s* dst, int len, int scaleFactor);
TavStatus tavsSubC_16sc_Sfs(const Tav16sc* src, Tav16sc val, Tav16sc* dst, int len, int scaleFactor);
TavStatus tavsSubC_32sc_Sfs(const Tav32sc* src, Tav32sc val, Tav32sc* dst, int len, int scaleFactor);
/** @} */

/** @name tavsSubC in place with a scale factor
 *  @{ */
/**
 * Subtracts a constant from an array: srcDst[i] = (srcDst[i] - val) * 2^-scaleFactor for i from 0 to len - 1.
 *
 * @param val         the constant.
 * @param srcDst      source and destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSubC_8u_ISfs(Tav8u val, Tav8u* srcDst, int len, int scaleFactor);
TavStatus tavsSubC_16s_ISfs(Tav16s val, Tav16s* srcDst, int len, int scaleFactor);
TavStatus tavsSubC_16u_ISfs(Tav16u val, Tav16u* srcDst, int len, int scaleFactor);
TavStatus tavsSubC_32s_ISfs(Tav32s val, Tav32s* srcDst, int len, int scaleFactor);
TavStatus tavsSubC_16sc_ISfs(Tav16sc val, Tav16sc* srcDst, int len, int scaleFactor);
TavStatus tavsSubC_32sc_ISfs(Tav32sc val, Tav32sc* srcDst, int len, int scaleFactor);
/** @} */

/** @name tavsSubCRev with a scale factor
 *  @{ */
/**
 * Subtracts an array from a constant: dst[i] = (val - src[i]) * 2^-scaleFactor for i from 0 to len - 1.
 *
 * @p dst may be @p src itself.
 *
 * @param src         source, @p len elements.
 * @param val         the constant.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSubCRev_8u_Sfs(const Tav8u* src, Tav8u val, Tav8u* dst, int len, int scaleFactor);
TavStatus tavsSubCRev_16s_Sfs(const Tav16s* src, Tav16s val, Tav16s* dst, int len, int scaleFactor);
TavStatus tavsSubCRev_16u_Sfs(const Tav16u* src, Tav16u val, Tav16u* dst, int len, int scaleFactor);
TavStatus tavsSubCRev_32s_Sfs(const Tav32s* src, Tav32s val, Tav32s* dst, int len, int scaleFactor);
TavStatus tavsSubCRev_16sc_Sfs(const Tav16sc* src, Tav16sc val, Tav16sc* dst, int len, int scaleFactor);
TavStatus tavsSubCRev_32sc_Sfs(const Tav32sc* src, Tav32sc val, Tav32sc* dst, int len, int scaleFactor);
/** @} */

/** @name tavsSubCRev in place with a scale factor
 *  @{ */
/**
 * Subtracts an array from a constant: srcDst[i] = (val - srcDst[i]) * 2^-scaleFactor for i from 0 to len - 1.
 *
 * @param val         the constant.
 * @param srcDst      source and destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSubCRev_8u_ISfs(Tav8u val, Tav8u* srcDst, int len, int scaleFactor);
TavStatus tavsSubCRev_16s_ISfs(Tav16s val, Tav16s* srcDst, int len, int scaleFactor);
TavStatus tavsSubCRev_16u_ISfs(Tav16u val, Tav16u* srcDst, int len, int scaleFactor);
TavStatus tavsSubCRev_32s_ISfs(Tav32s val, Tav32s* srcDst, int len, int scaleFactor);
TavStatus tavsSubCRev_16sc_ISfs(Tav16sc val, Tav16sc* srcDst, int len, int scaleFactor);
TavStatus tavsSubCRev_32sc_ISfs(Tav32sc val, Tav32sc* srcDst, int len, int scaleFactor);
/** @} */

/** @name tavsMulC with a scale factor
 *  @{ */
/**
 * Multiplies an array by a constant: dst[i] = src[i] * val * 2^-scaleFactor for i from 0 to len - 1.
 *
 * Complex products are formed as in tavsMul_16sc_Sfs(). @p dst may be @p src itself.
 *
 * @param src         source, @p len elements.
 * @param val         the constant.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMulC_8u_Sfs(const Tav8u* src, Tav8u val, Tav8u* dst, int len, int scaleFactor);
TavStatus tavsMulC_16s_Sfs(const Tav16s* src, Tav16s val, Tav16s* dst, int len, int scaleFactor);
TavStatus tavsMulC_16u_Sfs(const Tav16u* src, Tav16u val, Tav16u* dst, int len, int scaleFactor);
TavStatus tavsMulC_32s_Sfs(const Tav32s* src, Tav32s val, Tav32s* dst, int len, int scaleFactor);
TavStatus tavsMulC_16sc_Sfs(const Tav16sc* src, Tav16sc val, Tav16sc* dst, int len, int scaleFactor);
TavStatus tavsMulC_32sc_Sfs(const Tav32sc* src, Tav32sc val, Tav32sc* dst, int len, int scaleFactor);
/** @} */

/** @name tavsMulC in place with a scale factor
 *  @{ */
/**
 * Multiplies an array by a constant: srcDst[i] = srcDst[i] * val * 2^-scaleFactor for i from 0 to len - 1.
 *
 * @param val         the constant.
 * @param srcDst      source and destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMulC_8u_ISfs(Tav8u val, Tav8u* srcDst, int len, int scaleFactor);
TavStatus tavsMulC_16s_ISfs(Tav16s val, Tav16s* srcDst, int len, int scaleFactor);
TavStatus tavsMulC_16u_ISfs(Tav16u val, Tav16u* srcDst, int len, int scaleFactor);
TavStatus tavsMulC_32s_ISfs(Tav32s val, Tav32s* srcDst, int len, int scaleFactor);
TavStatus tavsMulC_16sc_ISfs(Tav16sc val, Tav16sc* srcDst, int len, int scaleFactor);
TavStatus tavsMulC_32sc_ISfs(Tav32sc val, Tav32sc* srcDst, int len, int scaleFactor);
/** @} */

/** @name tavsMulC of 64-bit integers
 *  @{ */
/**
 * Multiplies an array of 64-bit integers by a constant: srcDst[i] = srcDst[i] * val * 2^-scaleFactor for i from 0 to
 * len - 1.
 *
 * It computes in extended precision: @p val is scaled once, each product is rounded to 64 bits of mantissa, limited to
 * the range of the type and rounded to the nearest integer, ties to even. In the 64f64s form a product that is not a
 * number gives the lowest value.
 *
 * The length is unsigned: only 0 is refused.
 *
 * @param val         the constant.
 * @param srcDst      source and destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is 0.
 */
TavStatus tavsMulC_64s_ISfs(Tav64s val, Tav64s* srcDst, unsigned int len, int scaleFactor);
TavStatus tavsMulC_64f64s_ISfs(Tav64f val, Tav64s* srcDst, unsigned int len, int scaleFactor);
/** @} */

/** @name tavsAddProduct with a scale factor
 *  @{ */
/**
 * Adds the product of two arrays to a third: srcDst[i] = (srcDst[i] + src1[i] * src2[i]) * 2^-scaleFactor for i from 0
 * to len - 1.
 *
 * The whole sum is scaled, what the destination held included: a large factor clears it. The 32s form gives 0 at every
 * factor above 62.
 *
 * @param src1        first factor, @p len elements.
 * @param src2        second factor, @p len elements.
 * @param srcDst      source and destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAddProduct_16s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav16s* srcDst, int len, int scaleFactor);
TavStatus tavsAddProduct_16s32s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav32s* srcDst, int len, int scaleFactor);
TavStatus tavsAddProduct_32s_Sfs(const Tav32s* src1, const Tav32s* src2, Tav32s* srcDst, int len, int scaleFactor);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
