/**
 * @file arithmetic.h
 * Element-wise arithmetic.
 */
#ifndef TAVS_ARITHMETIC_H
#define TAVS_ARITHMETIC_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup arithmetic Arithmetic
 *  @{ */

/** @name tavsAdd
 *  @{ */
/**
 * Adds two arrays: dst[i] = src1[i] + src2[i] for i from 0 to len - 1.
 *
 * Floats are added in their own precision and in the caller's rounding mode. A NaN in either source gives a NaN in
 * that element alone. @p dst may be the same array as @p src1, @p src2 or both.
 *
 * @param src1 first source, @p len elements.
 * @param src2 second source, @p len elements.
 * @param dst  destination, @p len elements.
 * @param len  number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAdd_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, int len);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
