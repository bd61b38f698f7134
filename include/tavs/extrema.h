/**
 * @file extrema.h
 * The largest and the smallest element of an array, and where they are.
 */
#ifndef TAVS_EXTREMA_H
#define TAVS_EXTREMA_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup extrema Extrema
 *
 *  Searches over one array. Of several equal extrema the first one counts: an index is the lowest at which the extreme
 *  stands, and the element reported is the one at that place.
 *
 *  Floats: NaNs are skipped wherever they stand; an array of nothing but NaNs gives its first element, at index 0. -0.0
 *  and 0.0 are equal, so the first of them is reported, with its sign. Nothing is computed: the rounding mode is
 *  without effect, and denormals count as what they are unless the caller's mode has them count as zeros.
 *
 *  The functions run in one pass and their results do not depend on how the array is aligned.
 *  @{ */

/** @name tavsMax
 *  @{ */
/**
 * The largest element of an array: result = max(src[i]) for i from 0 to len - 1.
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 1.
 * @param result receives the largest element.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMax_16s(const Tav16s* src, int len, Tav16s* result);
TavStatus tavsMax_32s(const Tav32s* src, int len, Tav32s* result);
TavStatus tavsMax_32f(const Tav32f* src, int len, Tav32f* result);
TavStatus tavsMax_64f(const Tav64f* src, int len, Tav64f* result);
/** @} */

/** @name tavsMin
 *  @{ */
/**
 * The smallest element of an array: result = min(src[i]) for i from 0 to len - 1.
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 1.
 * @param result receives the smallest element.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMin_16s(const Tav16s* src, int len, Tav16s* result);
TavStatus tavsMin_32s(const Tav32s* src, int len, Tav32s* result);
TavStatus tavsMin_32f(const Tav32f* src, int len, Tav32f* result);
TavStatus tavsMin_64f(const Tav64f* src, int len, Tav64f* result);
/** @} */

/** @name tavsMaxIndx
 *  @{ */
/**
 * The largest element of an array and the lowest index at which it stands.
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 1.
 * @param result receives the largest element, src[index].
 * @param index  receives the index; may be null, and the call is then that of tavsMax_16s() and its kin.
 * @return #tavStatusOk; #tavStatusNullPointer if @p src or @p result is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMaxIndx_16s(const Tav16s* src, int len, Tav16s* result, int* index);
TavStatus tavsMaxIndx_32s(const Tav32s* src, int len, Tav32s* result, int* index);
TavStatus tavsMaxIndx_32f(const Tav32f* src, int len, Tav32f* result, int* index);
TavStatus tavsMaxIndx_64f(const Tav64f* src, int len, Tav64f* result, int* index);
/** @} */

/** @name tavsMinIndx
 *  @{ */
/**
 * The smallest element of an array and the lowest index at which it stands.
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 1.
 * @param result receives the smallest element, src[index].
 * @param index  receives the index; may be null, and the call is then that of tavsMin_16s() and its kin.
 * @return #tavStatusOk; #tavStatusNullPointer if @p src or @p result is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMinIndx_16s(const Tav16s* src, int len, Tav16s* result, int* index);
TavStatus tavsMinIndx_32s(const Tav32s* src, int len, Tav32s* result, int* index);
TavStatus tavsMinIndx_32f(const Tav32f* src, int len, Tav32f* result, int* index);
TavStatus tavsMinIndx_64f(const Tav64f* src, int len, Tav64f* result, int* index);
/** @} */

/** @name tavsMaxAbs, tavsMinAbs
 *  @{ */
/**
 * The largest (tavsMaxAbs) or the smallest (tavsMinAbs) magnitude of an array: result = max(|src[i]|) or min(|src[i]|)
 * for i from 0 to len - 1. The magnitude of the lowest integer exceeds the type: it is compared as it is and reported
 * as the highest integer.
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 1.
 * @param result receives the magnitude.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMaxAbs_16s(const Tav16s* src, int len, Tav16s* result);
TavStatus tavsMaxAbs_32s(const Tav32s* src, int len, Tav32s* result);
TavStatus tavsMinAbs_16s(const Tav16s* src, int len, Tav16s* result);
TavStatus tavsMinAbs_32s(const Tav32s* src, int len, Tav32s* result);
/** @} */

/** @name tavsMaxAbsIndx, tavsMinAbsIndx
 *  @{ */
/**
 * The largest (tavsMaxAbsIndx) or the smallest (tavsMinAbsIndx) magnitude of an array, and the lowest index at which
 * it stands. The magnitude of the lowest integer exceeds the type: it is compared as it is, so that {32767, -32768}
 * has its largest at index 1, and reported as the highest integer.
 *
 * @param src    source, @p len elements.
 * @param len    number of elements, at least 1.
 * @param result receives the magnitude.
 * @param index  receives the index; may be null, and the call is then that of tavsMaxAbs_16s() and its kin.
 * @return #tavStatusOk; #tavStatusNullPointer if @p src or @p result is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMaxAbsIndx_16s(const Tav16s* src, int len, Tav16s* result, int* index);
TavStatus tavsMaxAbsIndx_32s(const Tav32s* src, int len, Tav32s* result, int* index);
TavStatus tavsMinAbsIndx_16s(const Tav16s* src, int len, Tav16s* result, int* index);
TavStatus tavsMinAbsIndx_32s(const Tav32s* src, int len, Tav32s* result, int* index);
/** @} */

/** @name tavsMinMax
 *  @{ */
/**
 * The smallest and the largest element of an array, in one pass.
 *
 * @param src source, @p len elements.
 * @param len number of elements, at least 1.
 * @param min receives the smallest element.
 * @param max receives the largest element.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMinMax_8u(const Tav8u* src, int len, Tav8u* min, Tav8u* max);
TavStatus tavsMinMax_16u(const Tav16u* src, int len, Tav16u* min, Tav16u* max);
TavStatus tavsMinMax_16s(const Tav16s* src, int len, Tav16s* min, Tav16s* max);
TavStatus tavsMinMax_32u(const Tav32u* src, int len, Tav32u* min, Tav32u* max);
TavStatus tavsMinMax_32s(const Tav32s* src, int len, Tav32s* min, Tav32s* max);
TavStatus tavsMinMax_32f(const Tav32f* src, int len, Tav32f* min, Tav32f* max);
TavStatus tavsMinMax_64f(const Tav64f* src, int len, Tav64f* min, Tav64f* max);
/** @} */

/** @name tavsMinMaxIndx
 *  @{ */
/**
 * The smallest and the largest element of an array, and for each the lowest index at which it stands.
 *
 * @param src      source, @p len elements.
 * @param len      number of elements, at least 1.
 * @param min      receives the smallest element, src[minIndex].
 * @param minIndex receives its index.
 * @param max      receives the largest element, src[maxIndex].
 * @param maxIndex receives its index.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null, that of an index included; #tavStatusBadSize if
 *         @p len is below 1.
 */
TavStatus tavsMinMaxIndx_8u(const Tav8u* src, int len, Tav8u* min, int* minIndex, Tav8u* max, int* maxIndex);
TavStatus tavsMinMaxIndx_16u(const Tav16u* src, int len, Tav16u* min, int* minIndex, Tav16u* max, int* maxIndex);
TavStatus tavsMinMaxIndx_16s(const Tav16s* src, int len, Tav16s* min, int* minIndex, Tav16s* max, int* maxIndex);
TavStatus tavsMinMaxIndx_32u(const Tav32u* src, int len, Tav32u* min, int* minIndex, Tav32u* max, int* maxIndex);
TavStatus tavsMinMaxIndx_32s(const Tav32s* src, int len, Tav32s* min, int* minIndex, Tav32s* max, int* maxIndex);
TavStatus tavsMinMaxIndx_32f(const Tav32f* src, int len, Tav32f* min, int* minIndex, Tav32f* max, int* maxIndex);
TavStatus tavsMinMaxIndx_64f(const Tav64f* src, int len, Tav64f* min, int* minIndex, Tav64f* max, int* maxIndex);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
