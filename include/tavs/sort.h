/**
 * @file sort.h
 * Sorting arrays in place, alone or with the places their elements came from.
 */
#ifndef TAVS_SORT_H
#define TAVS_SORT_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup sort Sorting
 *
 *  Sorts in place by comparison. They need no buffer and allocate nothing; the stack they use does not grow with the
 *  array. The time is within len log len whatever the array holds, and proportional to len where it is in order
 *  already, holds few distinct values, or holds bytes without an index.
 *
 *  Floats are compared as numbers. Zeros of both signs are equal and may come in any order; each of them is kept. With
 *  NaNs among them, elements end in an unspecified order; still each element, bit by bit, is in the array as often as
 *  before.
 *
 *  The algorithm is quicksort with an explicit stack, partitioning whole vectors about the middle of a sample; elements
 *  equal to the pivot drop out. Short ranges go through sorting networks, after K. E. Batcher, Sorting networks and
 *  their applications, 1968. Bytes are counted instead, from 128 on.
 *  @{ */

/** @name tavsSortAscend_I, tavsSortDescend_I
 *  @{ */
/**
 * Sorts an array: srcDst[i] <= srcDst[i + 1], or srcDst[i] >= srcDst[i + 1], for i from 0 to len - 2.
 *
 * @param srcDst the array, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSortAscend_8u_I(Tav8u* srcDst, int len);
TavStatus tavsSortAscend_16s_I(Tav16s* srcDst, int len);
TavStatus tavsSortAscend_16u_I(Tav16u* srcDst, int len);
TavStatus tavsSortAscend_32s_I(Tav32s* srcDst, int len);
TavStatus tavsSortAscend_32f_I(Tav32f* srcDst, int len);
TavStatus tavsSortAscend_64f_I(Tav64f* srcDst, int len);
TavStatus tavsSortDescend_8u_I(Tav8u* srcDst, int len);
TavStatus tavsSortDescend_16s_I(Tav16s* srcDst, int len);
TavStatus tavsSortDescend_16u_I(Tav16u* srcDst, int len);
TavStatus tavsSortDescend_32s_I(Tav32s* srcDst, int len);
TavStatus tavsSortDescend_32f_I(Tav32f* srcDst, int len);
TavStatus tavsSortDescend_64f_I(Tav64f* srcDst, int len);
/** @} */

/** @name tavsSortIndexAscend_I, tavsSortIndexDescend_I
 *  @{ */
/**
 * Sorts an array as tavsSortAscend_8u_I() and its kin do, and tells where each element came from: srcDst[i] stood at
 * place dstIndex[i] before. The sort is not stable: the indices of equal elements come in any order.
 *
 * An array of one element is left as it is, and nothing is written to @p dstIndex.
 *
 * @param srcDst the array, @p len elements.
 * @param dstIndex the former places, each from 0 to len - 1 once; @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSortIndexAscend_8u_I(Tav8u* srcDst, int* dstIndex, int len);
TavStatus tavsSortIndexAscend_16s_I(Tav16s* srcDst, int* dstIndex, int len);
TavStatus tavsSortIndexAscend_16u_I(Tav16u* srcDst, int* dstIndex, int len);
TavStatus tavsSortIndexAscend_32s_I(Tav32s* srcDst, int* dstIndex, int len);
TavStatus tavsSortIndexAscend_32f_I(Tav32f* srcDst, int* dstIndex, int len);
TavStatus tavsSortIndexAscend_64f_I(Tav64f* srcDst, int* dstIndex, int len);
TavStatus tavsSortIndexDescend_8u_I(Tav8u* srcDst, int* dstIndex, int len);
TavStatus tavsSortIndexDescend_16s_I(Tav16s* srcDst, int* dstIndex, int len);
TavStatus tavsSortIndexDescend_16u_I(Tav16u* srcDst, int* dstIndex, int len);
TavStatus tavsSortIndexDescend_32s_I(Tav32s* srcDst, int* dstIndex, int len);
TavStatus tavsSortIndexDescend_32f_I(Tav32f* srcDst, int* dstIndex, int len);
TavStatus tavsSortIndexDescend_64f_I(Tav64f* srcDst, int* dstIndex, int len);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
