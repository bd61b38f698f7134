/**
 * @file norms.h
 * Norms of an array, and of the difference of two.
 */
#ifndef TAVS_NORMS_H
#define TAVS_NORMS_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup norms Norms
 *
 *  With e[i] = src[i] in tavsNorm and e[i] = src1[i] - src2[i] in tavsNormDiff, i from 0 to len - 1:
 *
 *  | name  | norm                           |
 *  |-------|--------------------------------|
 *  | Inf   | the largest of abs(e[i])       |
 *  | L1    | sum of abs(e[i])               |
 *  | L2    | square root of sum abs(e[i])^2 |
 *  | L2Sqr | sum of abs(e[i])^2             |
 *
 *  The magnitude of a complex element is sqrt(re^2 + im^2). A name has the type of the arrays, then that of the result,
 *  if it is another one.
 *
 *  16-bit integers are added up exactly, at any length. Neither differences nor magnitudes saturate: that of -32768 is
 *  32768, that of -32768 - 32767 is 65535.
 *
 *  Float sums run in several partial ones, whose order depends on the length alone, in the caller's rounding mode: a
 *  result repeats bit for bit wherever the arrays lie. A NaN in an array gives a NaN.
 *  @{ */

/** @name tavsNorm, floats
 *  @{ */
/**
 * Finds a norm of an array of floats.
 *
 * Inf forms of real elements are exact; those of complex ones take the root in double. Sums of tavsNorm_L1_32f() and
 * tavsNorm_L2_32f() run in single precision, blocks of 32768 elements add up in double; the sum and then the root are
 * rounded to single, so that squares beyond the range of singles give an infinity. All other forms work in double; a
 * square beyond the range of doubles gives an infinity.
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 1.
 * @param result the norm.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsNorm_Inf_32f(const Tav32f* src, int len, Tav32f* result);
TavStatus tavsNorm_Inf_64f(const Tav64f* src, int len, Tav64f* result);
TavStatus tavsNorm_Inf_32fc32f(const Tav32fc* src, int len, Tav32f* result);
TavStatus tavsNorm_Inf_64fc64f(const Tav64fc* src, int len, Tav64f* result);
TavStatus tavsNorm_L1_32f(const Tav32f* src, int len, Tav32f* result);
TavStatus tavsNorm_L1_64f(const Tav64f* src, int len, Tav64f* result);
TavStatus tavsNorm_L1_32fc64f(const Tav32fc* src, int len, Tav64f* result);
TavStatus tavsNorm_L1_64fc64f(const Tav64fc* src, int len, Tav64f* result);
TavStatus tavsNorm_L2_32f(const Tav32f* src, int len, Tav32f* result);
TavStatus tavsNorm_L2_64f(const Tav64f* src, int len, Tav64f* result);
TavStatus tavsNorm_L2_32fc64f(const Tav32fc* src, int len, Tav64f* result);
TavStatus tavsNorm_L2_64fc64f(const Tav64fc* src, int len, Tav64f* result);
/** @} */

/** @name tavsNorm, integers to floats
 *  @{ */
/**
 * Finds a norm of 16-bit integers as a float. Inf is exact. L1 is the exact sum, rounded once. L2 is the root in double
 * of the exact sum, rounded to single.
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 1.
 * @param result the norm.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsNorm_Inf_16s32f(const Tav16s* src, int len, Tav32f* result);
TavStatus tavsNorm_L1_16s32f(const Tav16s* src, int len, Tav32f* result);
TavStatus tavsNorm_L2_16s32f(const Tav16s* src, int len, Tav32f* result);
/** @} */

/** @name tavsNorm, integers scaled
 *  @{ */
/**
 * Finds a norm of 16-bit integers, scaled by 2^-scaleFactor and limited to the highest value of the result's type.
 *
 * Unlike other functions with a scale factor these cut off the fraction: 1 with a factor of 1 gives 0. A factor as
 * large as the result has bits, 32 or 64, and any larger one, gives 0. Only tavsNorm_L2_16s32s_Sfs() rounds, to nearest
 * with ties to even, whatever the caller's rounding mode: the root in double of the exact sum, times 2^-scaleFactor.
 *
 * @param src         source, @p len elements.
 * @param len         number of elements, at least 1.
 * @param result      the norm.
 * @param scaleFactor the norm is multiplied by 2^-scaleFactor; any value.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsNorm_Inf_16s32s_Sfs(const Tav16s* src, int len, Tav32s* result, int scaleFactor);
TavStatus tavsNorm_L1_16s32s_Sfs(const Tav16s* src, int len, Tav32s* result, int scaleFactor);
TavStatus tavsNorm_L1_16s64s_Sfs(const Tav16s* src, int len, Tav64s* result, int scaleFactor);
TavStatus tavsNorm_L2_16s32s_Sfs(const Tav16s* src, int len, Tav32s* result, int scaleFactor);
TavStatus tavsNorm_L2Sqr_16s64s_Sfs(const Tav16s* src, int len, Tav64s* result, int scaleFactor);
/** @} */

/** @name tavsNormDiff, floats
 *  @{ */
/**
 * Finds a norm of the difference of two arrays of floats: as tavsNorm_Inf_32f() and its kin, of src1[i] - src2[i].
 *
 * The differences of singles are singles in the three forms with the name 32f, and doubles in those of complex singles.
 * Two infinities of one sign differ by a NaN.
 *
 * @param src1   first source, @p len elements.
 * @param src2   second source, which is subtracted, @p len elements; may be the first one.
 * @param len    number of elements, at least 1.
 * @param result the norm.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsNormDiff_Inf_32f(const Tav32f* src1, const Tav32f* src2, int len, Tav32f* result);
TavStatus tavsNormDiff_Inf_64f(const Tav64f* src1, const Tav64f* src2, int len, Tav64f* result);
TavStatus tavsNormDiff_Inf_32fc32f(const Tav32fc* src1, const Tav32fc* src2, int len, Tav32f* result);
TavStatus tavsNormDiff_Inf_64fc64f(const Tav64fc* src1, const Tav64fc* src2, int len, Tav64f* result);
TavStatus tavsNormDiff_L1_32f(const Tav32f* src1, const Tav32f* src2, int len, Tav32f* result);
TavStatus tavsNormDiff_L1_64f(const Tav64f* src1, const Tav64f* src2, int len, Tav64f* result);
TavStatus tavsNormDiff_L1_32fc64f(const Tav32fc* src1, const Tav32fc* src2, int len, Tav64f* result);
TavStatus tavsNormDiff_L1_64fc64f(const Tav64fc* src1, const Tav64fc* src2, int len, Tav64f* result);
TavStatus tavsNormDiff_L2_32f(const Tav32f* src1, const Tav32f* src2, int len, Tav32f* result);
TavStatus tavsNormDiff_L2_64f(const Tav64f* src1, const Tav64f* src2, int len, Tav64f* result);
TavStatus tavsNormDiff_L2_32fc64f(const Tav32fc* src1, const Tav32fc* src2, int len, Tav64f* result);
TavStatus tavsNormDiff_L2_64fc64f(const Tav64fc* src1, const Tav64fc* src2, int len, Tav64f* result);
/** @} */

/** @name tavsNormDiff, integers to floats
 *  @{ */
/**
 * Finds a norm of the difference of two arrays of 16-bit integers as a float: as tavsNorm_Inf_16s32f() and its kin, of
 * src1[i] - src2[i], which takes 17 bits and does not saturate.
 *
 * @param src1   first source, @p len elements.
 * @param src2   second source, which is subtracted, @p len elements; may be the first one.
 * @param len    number of elements, at least 1.
 * @param result the norm.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsNormDiff_Inf_16s32f(const Tav16s* src1, const Tav16s* src2, int len, Tav32f* result);
TavStatus tavsNormDiff_L1_16s32f(const Tav16s* src1, const Tav16s* src2, int len, Tav32f* result);
TavStatus tavsNormDiff_L2_16s32f(const Tav16s* src1, const Tav16s* src2, int len, Tav32f* result);
/** @} */

/** @name tavsNormDiff, integers scaled
 *  @{ */
/**
 * Finds a norm of the difference of two arrays of 16-bit integers, scaled: as tavsNorm_Inf_16s32s_Sfs() and its kin, of
 * src1[i] - src2[i], which takes 17 bits and does not saturate. The fraction is cut off, in tavsNormDiff_L2_16s32s_Sfs()
 * rounded.
 *
 * @param src1        first source, @p len elements.
 * @param src2        second source, which is subtracted, @p len elements; may be the first one.
 * @param len         number of elements, at least 1.
 * @param result      the norm.
 * @param scaleFactor the norm is multiplied by 2^-scaleFactor; any value.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsNormDiff_Inf_16s32s_Sfs(const Tav16s* src1, const Tav16s* src2, int len, Tav32s* result, int scaleFactor);
TavStatus tavsNormDiff_L1_16s32s_Sfs(const Tav16s* src1, const Tav16s* src2, int len, Tav32s* result, int scaleFactor);
TavStatus tavsNormDiff_L1_16s64s_Sfs(const Tav16s* src1, const Tav16s* src2, int len, Tav64s* result, int scaleFactor);
TavStatus tavsNormDiff_L2_16s32s_Sfs(const Tav16s* src1, const Tav16s* src2, int len, Tav32s* result, int scaleFactor);
TavStatus tavsNormDiff_L2Sqr_16s64s_Sfs(const Tav16s* src1, const Tav16s* src2, int len, Tav64s* result,
                                        int scaleFactor);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
