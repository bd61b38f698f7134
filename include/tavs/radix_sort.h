/**
 * @file radix_sort.h
 * Sorting in linear time by the digits of the keys, with a buffer of the caller's.
 */
#ifndef TAVS_RADIX_SORT_H
#define TAVS_RADIX_SORT_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup radix_sort Radix sorts
 *
 *  The keys are cut into digits and sorted from the lowest digit to the highest, so the time is proportional to
 *  the length, whatever the keys are. Keys with digits that are the same everywhere, such as small integers, take less.
 *  Nothing is allocated; up to 41 kilobytes of stack are used.
 *
 *  Integers are ordered by their values. Floats are ordered totally, by sign and magnitude of their bits, in the
 *  ascending sense: -NaN, -infinity, negative numbers, -0.0, +0.0, positive numbers, +infinity, +NaN, and NaNs of one
 *  sign by their payloads. Every element keeps its bits.
 *  @{ */

/** @name tavsSortRadixAscend
 *  @{ */
/**
 * Sorts an array in place: afterwards srcDst[i] <= srcDst[i + 1] for i from 0 to len - 2.
 *
 * @param srcDst source and destination, @p len elements.
 * @param tmp    a buffer of @p len elements apart from @p srcDst, whose contents afterwards are undefined. The 8u form
 *               does not touch it, but it must not be null there either.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSortRadixAscend_8u_I(Tav8u* srcDst, Tav8u* tmp, int len);
TavStatus tavsSortRadixAscend_16s_I(Tav16s* srcDst, Tav16s* tmp, int len);
TavStatus tavsSortRadixAscend_16u_I(Tav16u* srcDst, Tav16u* tmp, int len);
TavStatus tavsSortRadixAscend_32s_I(Tav32s* srcDst, Tav32s* tmp, int len);
TavStatus tavsSortRadixAscend_32u_I(Tav32u* srcDst, Tav32u* tmp, int len);
TavStatus tavsSortRadixAscend_32f_I(Tav32f* srcDst, Tav32f* tmp, int len);
TavStatus tavsSortRadixAscend_64f_I(Tav64f* srcDst, Tav64f* tmp, int len);
/** @} */

/** @name tavsSortRadixDescend
 *  @{ */
/**
 * Sorts an array in place: afterwards srcDst[i] >= srcDst[i + 1] for i from 0 to len - 2.
 *
 * @param srcDst source and destination, @p len elements.
 * @param tmp    a buffer of @p len elements apart from @p srcDst, whose contents afterwards are undefined. The 8u form
 *               does not touch it, but it must not be null there either.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSortRadixDescend_8u_I(Tav8u* srcDst, Tav8u* tmp, int len);
TavStatus tavsSortRadixDescend_16s_I(Tav16s* srcDst, Tav16s* tmp, int len);
TavStatus tavsSortRadixDescend_16u_I(Tav16u* srcDst, Tav16u* tmp, int len);
TavStatus tavsSortRadixDescend_32s_I(Tav32s* srcDst, Tav32s* tmp, int len);
TavStatus tavsSortRadixDescend_32u_I(Tav32u* srcDst, Tav32u* tmp, int len);
TavStatus tavsSortRadixDescend_32f_I(Tav32f* srcDst, Tav32f* tmp, int len);
TavStatus tavsSortRadixDescend_64f_I(Tav64f* srcDst, Tav64f* tmp, int len);
/** @} */

/** @name tavsSortRadixIndexAscend
 *  @{ */
/**
 * Sorts the positions of keys, which may be fields of records: dstIndex[0] is the position of the least key, and so on
 * upward. The key at position i lies i * srcStrideBytes bytes behind @p src. The keys stay where they are. The sort is
 * stable: positions of equal keys rise.
 *
 * @param src            the first key.
 * @param srcStrideBytes bytes from one key to the next, at least the size of a key; any such number will do.
 * @param dstIndex       the positions, from 0 to @p len - 1, in the order of their keys.
 * @param tmpIndex       a buffer of @p len integers apart from @p dstIndex, whose contents afterwards are undefined.
 *                       The 8u form does not touch it, but it must not be null there either.
 * @param len            number of keys, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1 or
 *         @p srcStrideBytes is below the size of a key.
 */
TavStatus tavsSortRadixIndexAscend_8u(const Tav8u* src, int srcStrideBytes, int* dstIndex, int* tmpIndex, int len);
TavStatus tavsSortRadixIndexAscend_16s(const Tav16s* src, int srcStrideBytes, int* dstIndex, int* tmpIndex, int len);
TavStatus tavsSortRadixIndexAscend_16u(const Tav16u* src, int srcStrideBytes, int* dstIndex, int* tmpIndex, int len);
TavStatus tavsSortRadixIndexAscend_32s(const Tav32s* src, int srcStrideBytes, int* dstIndex, int* tmpIndex, int len);
TavStatus tavsSortRadixIndexAscend_32u(const Tav32u* src, int srcStrideBytes, int* dstIndex, int* tmpIndex, int len);
TavStatus tavsSortRadixIndexAscend_32f(const Tav32f* src, int srcStrideBytes, int* dstIndex, int* tmpIndex, int len);
/** @} */

/** @name tavsSortRadixIndexDescend
 *  @{ */
/**
 * Sorts the positions of keys, which may be fields of records: dstIndex[0] is the position of the greatest key, and so
 * on downward. The key at position i lies i * srcStrideBytes bytes behind @p src. The keys stay where they are. The
 * sort is stable: positions of equal keys rise here too.
 *
 * @param src            the first key.
 * @param srcStrideBytes bytes from one key to the next, at least the size of a key; any such number will do.
 * @param dstIndex       the positions, from 0 to @p len - 1, in the order of their keys.
 * @param tmpIndex       a buffer of @p len integers apart from @p dstIndex, whose contents afterwards are undefined.
 *                       The 8u form does not touch it, but it must not be null there either.
 * @param len            number of keys, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1 or
 *         @p srcStrideBytes is below the size of a key.
 */
TavStatus tavsSortRadixIndexDescend_8u(const Tav8u* src, int srcStrideBytes, int* dstIndex, int* tmpIndex, int len);
TavStatus tavsSortRadixIndexDescend_16s(const Tav16s* src, int srcStrideBytes, int* dstIndex, int* tmpIndex, int len);
TavStatus tavsSortRadixIndexDescend_16u(const Tav16u* src, int srcStrideBytes, int* dstIndex, int* tmpIndex, int len);
TavStatus tavsSortRadixIndexDescend_32s(const Tav32s* src, int srcStrideBytes, int* dstIndex, int* tmpIndex, int len);
TavStatus tavsSortRadixIndexDescend_32u(const Tav32u* src, int srcStrideBytes, int* dstIndex, int* tmpIndex, int len);
TavStatus tavsSortRadixIndexDescend_32f(const Tav32f* src, int srcStrideBytes, int* dstIndex, int* tmpIndex, int len);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
