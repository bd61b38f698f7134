/**
 * @file arithmetic.h
 * Element-wise sums, differences, products and magnitudes without a scale factor; scaled.h has those with one.
 */
#ifndef TAVS_ARITHMETIC_H
#define TAVS_ARITHMETIC_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup arithmetic Arithmetic
 *
 *  Integer results that the destination cannot hold saturate: they become the highest or the lowest value of its type.
 *  Floats are computed in their own precision and in the caller's rounding mode, each operation rounded by itself; a
 * NaN gives a NaN in that element alone. The product of complex elements a and b is (a.re * b.re - a.im * b.im, a.re *
 * b.im + a.im * b.re).
 *  @{ */

/** @name tavsAdd
 *  @{ */
/**
 * Adds two arrays: dst[i] = src1[i] + src2[i] for i from 0 to len - 1.
 *
 * The 16s, 16u and 32u forms saturate. The 8u16u form widens and cannot overflow. The 16s32f form converts its sources
 * to floats and adds these. @p dst may be the same array as @p src1, @p src2 or both, where the types are the same.
 *
 * The complex forms test @p len before the pointers.
 *
 * @param src1 first source, @p len elements.
 * @param src2 second source, @p len elements.
 * @param dst  destination, @p len elements.
 * @param len  number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAdd_8u16u(const Tav8u* src1, const Tav8u* src2, Tav16u* dst, int len);
TavStatus tavsAdd_16s(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len);
TavStatus tavsAdd_16u(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len);
TavStatus tavsAdd_32u(const Tav32u* src1, const Tav32u* src2, Tav32u* dst, int len);
TavStatus tavsAdd_16s32f(const Tav16s* src1, const Tav16s* src2, Tav32f* dst, int len);
TavStatus tavsAdd_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, int len);
TavStatus tavsAdd_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, int len);
TavStatus tavsAdd_32fc(const Tav32fc* src1, const Tav32fc* src2, Tav32fc* dst, int len);
TavStatus tavsAdd_64fc(const Tav64fc* src1, const Tav64fc* src2, Tav64fc* dst, int len);
/** @} */

/** @name tavsAdd in place
 *  @{ */
/**
 * Adds an array to another one: srcDst[i] = srcDst[i] + src[i] for i from 0 to len - 1.
 *
 * The 16s form saturates. The 16s32s form, alone among all, wraps: its sums are those modulo 2^32.
 *
 * The complex forms test @p len before the pointers.
 *
 * @param src    what is added, @p len elements.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAdd_16s_I(const Tav16s* src, Tav16s* srcDst, int len);
TavStatus tavsAdd_16s32s_I(const Tav16s* src, Tav32s* srcDst, int len);
TavStatus tavsAdd_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
TavStatus tavsAdd_64f_I(const Tav64f* src, Tav64f* srcDst, int len);
TavStatus tavsAdd_32fc_I(const Tav32fc* src, Tav32fc* srcDst, int len);
TavStatus tavsAdd_64fc_I(const Tav64fc* src, Tav64fc* srcDst, int len);
/** @} */

/** @name tavsSub
 *  @{ */
/**
 * Subtracts the first array from the second: dst[i] = src2[i] - src1[i] for i from 0 to len - 1.
 *
 * The 16s form saturates. The 16s32f form converts its sources to floats and subtracts these. @p dst may be the same
 * array as @p src1, @p src2 or both, where the types are the same.
 *
 * The complex forms test @p len before the pointers.
 *
 * @param src1 what is subtracted, @p len elements.
 * @param src2 what it is subtracted from, @p len elements.
 * @param dst  destination, @p len elements.
 * @param len  number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSub_16s(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len);
TavStatus tavsSub_16s32f(const Tav16s* src1, const Tav16s* src2, Tav32f* dst, int len);
TavStatus tavsSub_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, int len);
TavStatus tavsSub_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, int len);
TavStatus tavsSub_32fc(const Tav32fc* src1, const Tav32fc* src2, Tav32fc* dst, int len);
TavStatus tavsSub_64fc(const Tav64fc* src1, const Tav64fc* src2, Tav64fc* dst, int len);
/** @} */

/** @name tavsSub in place
 *  @{ */
/**
 * Subtracts an array from another one: srcDst[i] = srcDst[i] - src[i] for i from 0 to len - 1.
 *
 * The 16s form saturates. The complex forms test @p len before the pointers.
 *
 * @param src    what is subtracted, @p len elements.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSub_16s_I(const Tav16s* src, Tav16s* srcDst, int len);
TavStatus tavsSub_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
TavStatus tavsSub_64f_I(const Tav64f* src, Tav64f* srcDst, int len);
TavStatus tavsSub_32fc_I(const Tav32fc* src, Tav32fc* srcDst, int len);
TavStatus tavsSub_64fc_I(const Tav64fc* src, Tav64fc* srcDst, int len);
/** @} */

/** @name tavsMul
 *  @{ */
/**
 * Multiplies two arrays: dst[i] = src1[i] * src2[i] for i from 0 to len - 1.
 *
 * The 16s form saturates. The 8u16u form widens and cannot overflow. The 16s32f form converts its sources to floats and
 * multiplies these. The 32f32fc form scales complex elements by real ones. @p dst may be the same array as a source of
 * its type.
 *
 * @param src1 first source, @p len elements.
 * @param src2 second source, @p len elements.
 * @param dst  destination, @p len elements.
 * @param len  number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMul_8u16u(const Tav8u* src1, const Tav8u* src2, Tav16u* dst, int len);
TavStatus tavsMul_16s(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len);
TavStatus tavsMul_16s32f(const Tav16s* src1, const Tav16s* src2, Tav32f* dst, int len);
TavStatus tavsMul_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, int len);
TavStatus tavsMul_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, int len);
TavStatus tavsMul_32f32fc(const Tav32f* src1, const Tav32fc* src2, Tav32fc* dst, int len);
TavStatus tavsMul_32fc(const Tav32fc* src1, const Tav32fc* src2, Tav32fc* dst, int len);
TavStatus tavsMul_64fc(const Tav64fc* src1, const Tav64fc* src2, Tav64fc* dst, int len);
/** @} */

/** @name tavsMul in place
 *  @{ */
/**
 * Multiplies an array by another one: srcDst[i] = srcDst[i] * src[i] for i from 0 to len - 1.
 *
 * The 16s form saturates. The 32f32fc form scales complex elements by real ones.
 *
 * @param src    factors, @p len elements.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMul_16s_I(const Tav16s* src, Tav16s* srcDst, int len);
TavStatus tavsMul_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
TavStatus tavsMul_64f_I(const Tav64f* src, Tav64f* srcDst, int len);
TavStatus tavsMul_32f32fc_I(const Tav32f* src, Tav32fc* srcDst, int len);
TavStatus tavsMul_32fc_I(const Tav32fc* src, Tav32fc* srcDst, int len);
TavStatus tavsMul_64fc_I(const Tav64fc* src, Tav64fc* srcDst, int len);
/** @} */

/** @name tavsAddC
 *  @{ */
/**
 * Adds a constant to an array: dst[i] = src[i] + val for i from 0 to len - 1.
 *
 * If @p val is 0, -0.0 included, the array is copied as it is, bit by bit. @p dst may be @p src itself.
 *
 * @param src source, @p len elements.
 * @param val the constant.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAddC_32f(const Tav32f* src, Tav32f val, Tav32f* dst, int len);
TavStatus tavsAddC_64f(const Tav64f* src, Tav64f val, Tav64f* dst, int len);
TavStatus tavsAddC_32fc(const Tav32fc* src, Tav32fc val, Tav32fc* dst, int len);
TavStatus tavsAddC_64fc(const Tav64fc* src, Tav64fc val, Tav64fc* dst, int len);
/** @} */

/** @name tavsAddC in place
 *  @{ */
/**
 * Adds a constant to an array: srcDst[i] = srcDst[i] + val for i from 0 to len - 1.
 *
 * The 16s form saturates. If @p val is 0, -0.0 included, the real forms write nothing. The complex forms add such a
 * constant too, so that -0.0 may become 0.0.
 *
 * @param val    the constant.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAddC_16s_I(Tav16s val, Tav16s* srcDst, int len);
TavStatus tavsAddC_32f_I(Tav32f val, Tav32f* srcDst, int len);
TavStatus tavsAddC_64f_I(Tav64f val, Tav64f* srcDst, int len);
TavStatus tavsAddC_32fc_I(Tav32fc val, Tav32fc* srcDst, int len);
TavStatus tavsAddC_64fc_I(Tav64fc val, Tav64fc* srcDst, int len);
/** @} */

/** @name tavsSubC
 *  @{ */
/**
 * Subtracts a constant from an array: dst[i] = src[i] - val for i from 0 to len - 1.
 *
 * If @p val is 0, -0.0 included, the array is copied as it is, bit by bit. @p dst may be @p src itself.
 *
 * @param src source, @p len elements.
 * @param val the constant.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSubC_32f(const Tav32f* src, Tav32f val, Tav32f* dst, int len);
TavStatus tavsSubC_64f(const Tav64f* src, Tav64f val, Tav64f* dst, int len);
TavStatus tavsSubC_32fc(const Tav32fc* src, Tav32fc val, Tav32fc* dst, int len);
TavStatus tavsSubC_64fc(const Tav64fc* src, Tav64fc val, Tav64fc* dst, int len);
/** @} */

/** @name tavsSubC in place
 *  @{ */
/**
 * Subtracts a constant from an array: srcDst[i] = srcDst[i] - val for i from 0 to len - 1.
 *
 * The 16s form saturates. If @p val is 0, -0.0 included, the real forms write nothing. The complex forms subtract such
 * a constant too, so that -0.0 may become 0.0.
 *
 * @param val    the constant.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSubC_16s_I(Tav16s val, Tav16s* srcDst, int len);
TavStatus tavsSubC_32f_I(Tav32f val, Tav32f* srcDst, int len);
TavStatus tavsSubC_64f_I(Tav64f val, Tav64f* srcDst, int len);
TavStatus tavsSubC_32fc_I(Tav32fc val, Tav32fc* srcDst, int len);
TavStatus tavsSubC_64fc_I(Tav64fc val, Tav64fc* srcDst, int len);
/** @} */

/** @name tavsSubCRev
 *  @{ */
/**
 * Subtracts an array from a constant: dst[i] = val - src[i] for i from 0 to len - 1.
 *
 * No value of @p val is special. @p dst may be @p src itself.
 *
 * @param src source, @p len elements.
 * @param val the constant.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSubCRev_32f(const Tav32f* src, Tav32f val, Tav32f* dst, int len);
TavStatus tavsSubCRev_64f(const Tav64f* src, Tav64f val, Tav64f* dst, int len);
TavStatus tavsSubCRev_32fc(const Tav32fc* src, Tav32fc val, Tav32fc* dst, int len);
TavStatus tavsSubCRev_64fc(const Tav64fc* src, Tav64fc val, Tav64fc* dst, int len);
/** @} */

/** @name tavsSubCRev in place
 *  @{ */
/**
 * Subtracts an array from a constant: srcDst[i] = val - srcDst[i] for i from 0 to len - 1.
 *
 * @param val    the constant.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSubCRev_32f_I(Tav32f val, Tav32f* srcDst, int len);
TavStatus tavsSubCRev_64f_I(Tav64f val, Tav64f* srcDst, int len);
TavStatus tavsSubCRev_32fc_I(Tav32fc val, Tav32fc* srcDst, int len);
TavStatus tavsSubCRev_64fc_I(Tav64fc val, Tav64fc* srcDst, int len);
/** @} */

/** @name tavsMulC
 *  @{ */
/**
 * Multiplies an array by a constant: dst[i] = src[i] * val for i from 0 to len - 1.
 *
 * If @p val is 1, or (1, 0), the array is copied as it is, bit by bit. If a real @p val is 0, -0.0 included, all of
 * @p dst becomes 0.0, even where the source holds an infinity or a NaN. @p dst may be @p src itself.
 *
 * @param src source, @p len elements.
 * @param val the constant.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMulC_32f(const Tav32f* src, Tav32f val, Tav32f* dst, int len);
TavStatus tavsMulC_64f(const Tav64f* src, Tav64f val, Tav64f* dst, int len);
TavStatus tavsMulC_32fc(const Tav32fc* src, Tav32fc val, Tav32fc* dst, int len);
TavStatus tavsMulC_64fc(const Tav64fc* src, Tav64fc val, Tav64fc* dst, int len);
/** @} */

/** @name tavsMulC in place
 *  @{ */
/**
 * Multiplies an array by a constant: srcDst[i] = srcDst[i] * val for i from 0 to len - 1.
 *
 * The 16s form saturates. If @p val is 1, or (1, 0), nothing is written. If a real @p val is 0, -0.0 included, all
 * elements become 0, even infinities and NaNs.
 *
 * @param val    the constant.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMulC_16s_I(Tav16s val, Tav16s* srcDst, int len);
TavStatus tavsMulC_32f_I(Tav32f val, Tav32f* srcDst, int len);
TavStatus tavsMulC_64f_I(Tav64f val, Tav64f* srcDst, int len);
TavStatus tavsMulC_32fc_I(Tav32fc val, Tav32fc* srcDst, int len);
TavStatus tavsMulC_64fc_I(Tav64fc val, Tav64fc* srcDst, int len);
/** @} */

/**
 * Multiplies floats by a constant and by 2^-scaleFactor, and makes 16-bit integers of them: each product is limited to
 * -32768 to 32767 and rounded to nearest, ties to even, whatever the caller's rounding mode.
 *
 * A NaN gives 32767. If @p val is 0, all of @p dst becomes 0, even where the source holds an infinity or a NaN.
 *
 * @param src         source, @p len elements.
 * @param val         the constant.
 * @param dst         destination, @p len elements; apart from @p src.
 * @param len         number of elements, at least 1.
 * @param scaleFactor any value; below -127 it counts as -127, above 126 as 126.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMulC_32f16s_Sfs(const Tav32f* src, Tav32f val, Tav16s* dst, int len, int scaleFactor);

/**
 * Multiplies floats by a constant and makes 16-bit integers of them in the caller's rounding mode, with saturation.
 *
 * Nothing is limited before the conversion: a product outside the range of 32-bit integers, of either sign, gives
 * -32768, and so does a NaN. Products within it saturate as usual. If @p val is 0, all of @p dst becomes 0, even where
 * the source holds an infinity or a NaN.
 *
 * @param src source, @p len elements.
 * @param val the constant.
 * @param dst destination, @p len elements; apart from @p src.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMulC_Low_32f16s(const Tav32f* src, Tav32f val, Tav16s* dst, int len);

/** @name tavsAddProduct
 *  @{ */
/**
 * Adds the product of two arrays to a third: srcDst[i] = srcDst[i] + src1[i] * src2[i] for i from 0 to len - 1.
 *
 * The product is rounded before it is added.
 *
 * @param src1   first factor, @p len elements.
 * @param src2   second factor, @p len elements.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAddProduct_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* srcDst, int len);
TavStatus tavsAddProduct_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* srcDst, int len);
TavStatus tavsAddProduct_32fc(const Tav32fc* src1, const Tav32fc* src2, Tav32fc* srcDst, int len);
TavStatus tavsAddProduct_64fc(const Tav64fc* src1, const Tav64fc* src2, Tav64fc* srcDst, int len);
/** @} */

/**
 * Adds the product of an array and a constant to another array: srcDst[i] = srcDst[i] + src[i] * val for i from 0 to
 * len - 1.
 *
 * The product is rounded before it is added. No value of @p val is special.
 *
 * @param src    source, @p len elements.
 * @param val    the constant.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAddProductC_32f(const Tav32f* src, Tav32f val, Tav32f* srcDst, int len);

/** @name tavsAbs
 *  @{ */
/**
 * Takes magnitudes: dst[i] = |src[i]| for i from 0 to len - 1.
 *
 * The lowest integer, -32768 or -2147483648, has no magnitude in its type and gives the highest one. In floats the sign
 * bit is cleared, that of -0.0 and of NaNs too. @p dst may be @p src itself.
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAbs_16s(const Tav16s* src, Tav16s* dst, int len);
TavStatus tavsAbs_32s(const Tav32s* src, Tav32s* dst, int len);
TavStatus tavsAbs_32f(const Tav32f* src, Tav32f* dst, int len);
TavStatus tavsAbs_64f(const Tav64f* src, Tav64f* dst, int len);
/** @} */

/** @name tavsAbs in place
 *  @{ */
/**
 * Takes magnitudes where they stand: srcDst[i] = |srcDst[i]| for i from 0 to len - 1, as tavsAbs_16s() and its kin.
 *
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAbs_16s_I(Tav16s* srcDst, int len);
TavStatus tavsAbs_32s_I(Tav32s* srcDst, int len);
TavStatus tavsAbs_32f_I(Tav32f* srcDst, int len);
TavStatus tavsAbs_64f_I(Tav64f* srcDst, int len);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
