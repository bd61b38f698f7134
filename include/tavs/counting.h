/**
 * @file counting.h
 * What can be counted in an array: the bits of its magnitudes, elements in a range, changes of sign; and the running
 * update of an estimate.
 */
#ifndef TAVS_COUNTING_H
#define TAVS_COUNTING_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup counting Counts and running updates
 *  @{ */

/** @name tavsMaxOrder
 *  @{ */
/**
 * Finds the number of bits that the largest magnitude m of an array has before the binary point: floor(log2(m)) + 1, or
 * 0 if all elements are 0.
 *
 * - Integers: the position of the top bit of m, counted from 1: 1 for 1, 16 for the lowest 16-bit integer, 32 for the
 *   lowest 32-bit one.
 * - Floats: 1 for 1.0, 0 for 0.5, and negative for less than that. An infinity gives 129 in singles and 1025 in
 * doubles. NaNs are skipped, wherever they stand, and raise a warning; nothing but NaNs gives 0. Denormals count by
 * their value, in every floating-point mode.
 *
 * Of several faults a bad length comes first.
 *
 * @param src   source, @p len elements.
 * @param len   number of elements, at least 1.
 * @param order where the result goes.
 * @return #tavStatusOk; #tavStatusBadSize if @p len is below 1; #tavStatusNullPointer if a pointer is null;
 *         #tavStatusWarnNanInData, with the result written, if an element is a NaN.
 */
TavStatus tavsMaxOrder_16s(const Tav16s* src, int len, int* order);
TavStatus tavsMaxOrder_32s(const Tav32s* src, int len, int* order);
TavStatus tavsMaxOrder_32f(const Tav32f* src, int len, int* order);
TavStatus tavsMaxOrder_64f(const Tav64f* src, int len, int* order);
/** @} */

/** @name tavsCountInRange
 *  @{ */
/**
 * Counts the elements x with lower < x < upper. An element equal to a bound does not count; if no integer lies between
 * the bounds, or @p lower is above @p upper, the count is 0.
 *
 * @param src   source, @p len elements.
 * @param len   number of elements, at least 1.
 * @param count where the result goes.
 * @param lower the bound below the range.
 * @param upper the bound above the range.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsCountInRange_32s(const Tav32s* src, int len, int* count, Tav32s lower, Tav32s upper);
/** @} */

/** @name tavsZeroCrossing
 *  @{ */
/**
 * Counts how often an array crosses zero, over its adjacent pairs src[n - 1], src[n] for n from 1 to len - 1:
 *
 * - mode 0 counts the pairs whose product is negative, so that a zero takes part in no crossing;
 * - mode 1 counts the pairs whose sign bits differ, so that 0 counts as positive, and of floats -0.0 as negative;
 * - mode 2 adds up |sgn(src[n]) - sgn(src[n - 1])|, where sgn is -1, 0 or 1, and halves the sum, rounding down: a
 * passage through a zero counts as one crossing, by its two halves.
 *
 * Floats count by the sign of the exact product, so that nothing underflows. In modes 0 and 2 a NaN counts as a zero;
 * in mode 1 by its sign bit.
 *
 * The count is exact and becomes a float at the end; one above 2^24 is rounded to nearest, ties to even, in every
 * floating-point mode. A single element gives 0.
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 1; unsigned.
 * @param result where the count goes.
 * @param mode   0, 1 or 2.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is 0;
 *         #tavStatusBadZeroCrossingMode if @p mode is none of these.
 */
TavStatus tavsZeroCrossing_16s32f(const Tav16s* src, unsigned int len, Tav32f* result, int mode);
TavStatus tavsZeroCrossing_32f(const Tav32f* src, unsigned int len, Tav32f* result, int mode);
/** @} */

/** @name tavsUpdateLinear, tavsUpdatePower
 *  @{ */
/**
 * Updates a running value s by each element of an array in turn, s = alpha * s + (1 - alpha) * v. Here v is
 * src[i] >> shift (Linear) or (src[i] * src[i]) >> shift (Power), shifted arithmetically, and @p alpha an integer. It
 * is computed exactly, however large s becomes on the way, and saturates to 32 bits once, at the end.
 *
 * @param src       source, @p len elements.
 * @param len       number of elements, at least 1.
 * @param srcDst    s, before and after.
 * @param shift     by how much the samples or squares are shifted down. A value below 0 counts as 0, one above the
 * highest (15 for Linear, 31 for Power) as that.
 * @param alpha     the weight of s.
 * @param roundMode makes no difference, for nothing is ever rounded; any value is accepted.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsUpdateLinear_16s32s_I(const Tav16s* src, int len, Tav32s* srcDst, int shift, Tav16s alpha, int roundMode);
TavStatus tavsUpdatePower_16s32s_I(const Tav16s* src, int len, Tav32s* srcDst, int shift, Tav16s alpha, int roundMode);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
