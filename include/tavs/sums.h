/**
 * @file sums.h
 * Sums, means and standard deviations of an array.
 */
#ifndef TAVS_SUMS_H
#define TAVS_SUMS_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup sums Sums, means and deviations
 *
 *  One number made of an array. What an array gives depends on its elements and its length alone, not on where it lies,
 *  and repeats bit for bit.
 *
 *  **Integers.** Sums are exact for every length. The result is multiplied by 2^-scaleFactor, rounded once and
 *  saturated. Sums and means are rounded in the mode of the SSE unit that the caller has set, which is to nearest, with
 *  ties to even, unless somebody changed it; deviations, and the mean of 32-bit integers, are rounded to nearest
 *  whatever that mode is.
 *
 *  **Floats.** The forms for singles have a @p hint: 1 asks for the fast form, any other value for the accurate one.
 *
 *  - The accurate form adds in extended precision (64 bits of significand) in eight sums that take turns. Whatever the
 *    caller's modes are, it works in full precision and rounds to nearest.
 *  - The fast form adds singles four at a time, in blocks of 0x8000 elements, whose sums are added in extended
 *    precision. Within a block an error of a few units in the last place of the partial sums has to be expected, and
 *    partial sums beyond the range of singles become infinite. It follows the caller's rounding mode.
 *  - Doubles are added as doubles, several sums side by side, in the caller's rounding mode.
 *
 *  An infinity or a NaN among the elements shows in the result as in any sum: an infinity stays, infinities of both
 *  signs or a NaN give NaN. Complex elements are summed by parts, each by itself.
 *  @{ */

/** @name tavsSum
 *  @{ */
/**
 * Adds up an array: result = src[0] + ... + src[len - 1].
 *
 * With singles and the accurate form the result is rounded once, from the extended sum.
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 1.
 * @param result where the sum goes.
 * @param hint   1: fast form; any other value: accurate form.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSum_32f(const Tav32f* src, int len, Tav32f* result, int hint);
TavStatus tavsSum_32fc(const Tav32fc* src, int len, Tav32fc* result, int hint);
/** @} */

/** @name tavsSum of doubles
 *  @{ */
/**
 * Adds up an array: result = src[0] + ... + src[len - 1].
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 1.
 * @param result where the sum goes.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSum_64f(const Tav64f* src, int len, Tav64f* result);
TavStatus tavsSum_64fc(const Tav64fc* src, int len, Tav64fc* result);
/** @} */

/** @name tavsSum, scaled
 *  @{ */
/**
 * Adds up an array of integers: result = (src[0] + ... + src[len - 1]) * 2^-scaleFactor, from the exact sum, rounded in
 * the caller's mode and saturated.
 *
 * @param src         source, @p len elements.
 * @param len         number of elements, at least 1.
 * @param result      where the sum goes.
 * @param scaleFactor scale factor, any value.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSum_16s_Sfs(const Tav16s* src, int len, Tav16s* result, int scaleFactor);
TavStatus tavsSum_16s32s_Sfs(const Tav16s* src, int len, Tav32s* result, int scaleFactor);
TavStatus tavsSum_32s_Sfs(const Tav32s* src, int len, Tav32s* result, int scaleFactor);
TavStatus tavsSum_16sc_Sfs(const Tav16sc* src, int len, Tav16sc* result, int scaleFactor);
TavStatus tavsSum_16sc32sc_Sfs(const Tav16sc* src, int len, Tav32sc* result, int scaleFactor);
/** @} */

/** @name tavsMean
 *  @{ */
/**
 * Makes the mean of an array: result = (src[0] + ... + src[len - 1]) / len.
 *
 * The sum, as tavsSum_32f() makes it by the same @p hint but as a double, is divided in double precision and rounded to
 * the type of the result.
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 1.
 * @param result where the mean goes.
 * @param hint   1: fast form; any other value: accurate form.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMean_32f(const Tav32f* src, int len, Tav32f* result, int hint);
TavStatus tavsMean_32fc(const Tav32fc* src, int len, Tav32fc* result, int hint);
/** @} */

/** @name tavsMean of doubles
 *  @{ */
/**
 * Makes the mean of an array: result = (src[0] + ... + src[len - 1]) / len, with the sum of tavsSum_64f().
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 1.
 * @param result where the mean goes.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMean_64f(const Tav64f* src, int len, Tav64f* result);
TavStatus tavsMean_64fc(const Tav64fc* src, int len, Tav64fc* result);
/** @} */

/** @name tavsMean, scaled
 *  @{ */
/**
 * Makes the mean of an array of integers: result = (src[0] + ... + src[len - 1]) / len * 2^-scaleFactor, rounded once
 * and saturated: in the caller's mode, but the 32s form to nearest, with ties to even, in every mode.
 *
 * @param src         source, @p len elements.
 * @param len         number of elements, at least 1.
 * @param result      where the mean goes.
 * @param scaleFactor scale factor, any value.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMean_16s_Sfs(const Tav16s* src, int len, Tav16s* result, int scaleFactor);
TavStatus tavsMean_16sc_Sfs(const Tav16sc* src, int len, Tav16sc* result, int scaleFactor);
TavStatus tavsMean_32s_Sfs(const Tav32s* src, int len, Tav32s* result, int scaleFactor);
/** @} */

/** @name tavsStdDev
 *  @{ */
/**
 * Makes the unbiased standard deviation of an array: the root of (n * Q - S * S) / (n * (n - 1)), with n = len, S the
 * sum and Q the sum of the squares of the differences src[i] - src[0]. The deviation of a constant array is 0 exactly.
 *
 * The differences and their sums are made in extended precision; in the fast form, and of doubles, in the precision of
 * the elements, in blocks of 0x8000 elements. There a difference whose square leaves the range of the type makes the
 * result infinite or NaN, or counts as 0. The formula is evaluated in extended precision and rounded once, to nearest.
 * An infinity or a NaN among the elements gives NaN.
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 2.
 * @param result where the deviation goes.
 * @param hint   1: fast form; any other value: accurate form.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 2.
 */
TavStatus tavsStdDev_32f(const Tav32f* src, int len, Tav32f* result, int hint);
/** @} */

/** @name tavsStdDev of doubles
 *  @{ */
/**
 * Makes the unbiased standard deviation of an array, as tavsStdDev_32f() does.
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 2.
 * @param result where the deviation goes.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 2.
 */
TavStatus tavsStdDev_64f(const Tav64f* src, int len, Tav64f* result);
/** @} */

/** @name tavsStdDev, scaled
 *  @{ */
/**
 * Makes the unbiased standard deviation of an array of integers, times 2^-scaleFactor, rounded to nearest, with ties to
 * even, and saturated. The sum and the sum of squares are exact, and so is (n * Q - S * S), with n = len, S the sum and
 * Q the sum of the squares; what follows is computed in double precision.
 *
 * @param src         source, @p len elements.
 * @param len         number of elements, at least 2.
 * @param result      where the deviation goes.
 * @param scaleFactor scale factor, any value.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 2.
 */
TavStatus tavsStdDev_16s_Sfs(const Tav16s* src, int len, Tav16s* result, int scaleFactor);
TavStatus tavsStdDev_16s32s_Sfs(const Tav16s* src, int len, Tav32s* result, int scaleFactor);
/** @} */

/** @name tavsMeanStdDev
 *  @{ */
/**
 * Makes the mean and the unbiased standard deviation of an array in one pass.
 *
 * The deviation is that of tavsStdDev_32f() by the same @p hint, bit for bit. The mean comes from the same sums, of
 * differences from src[0], and is rounded once, to nearest: it may differ from that of tavsMean_32f() in the last
 * places, and is the closer one where the elements lie far from 0.
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 2.
 * @param mean   where the mean goes.
 * @param stdDev where the deviation goes.
 * @param hint   1: fast form; any other value: accurate form.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 2.
 */
TavStatus tavsMeanStdDev_32f(const Tav32f* src, int len, Tav32f* mean, Tav32f* stdDev, int hint);
/** @} */

/** @name tavsMeanStdDev of doubles
 *  @{ */
/**
 * Makes the mean and the unbiased standard deviation of an array in one pass: the latter as tavsStdDev_64f() does, the
 * former from the same sums, as tavsMeanStdDev_32f() does.
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 2.
 * @param mean   where the mean goes.
 * @param stdDev where the deviation goes.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 2.
 */
TavStatus tavsMeanStdDev_64f(const Tav64f* src, int len, Tav64f* mean, Tav64f* stdDev);
/** @} */

/** @name tavsMeanStdDev, scaled
 *  @{ */
/**
 * Makes the mean and the unbiased standard deviation of an array of integers, both times 2^-scaleFactor: the mean as
 * tavsMean_16s_Sfs() does, rounded in the caller's mode, the deviation as tavsStdDev_16s_Sfs() does, rounded to
 * nearest.
 *
 * @param src         source, @p len elements.
 * @param len         number of elements, at least 2.
 * @param mean        where the mean goes.
 * @param stdDev      where the deviation goes.
 * @param scaleFactor scale factor, any value.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 2.
 */
TavStatus tavsMeanStdDev_16s_Sfs(const Tav16s* src, int len, Tav16s* mean, Tav16s* stdDev, int scaleFactor);
TavStatus tavsMeanStdDev_16s32s_Sfs(const Tav16s* src, int len, Tav32s* mean, Tav32s* stdDev, int scaleFactor);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
