/**
 * @file threshold.h
 * Thresholds: clipping to a level, replacing what lies beyond one, and reciprocals with a bound.
 */
#ifndef TAVS_THRESHOLD_H
#define TAVS_THRESHOLD_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup threshold Thresholds
 *
 *  An element fails if it lies below a level (LT), or above it (GT); it is then replaced. All others stay as they are,
 *  bit by bit: those on the level, and NaNs, which fail nowhere. The functions that end in _I work in place: srcDst is
 *  source and destination. In the others @p dst may be the same array as @p src.
 *
 *  Of complex elements, and in the Abs forms and tavsThreshold_LTInv, it is the magnitude that is compared; the level
 *  must then not be negative. Magnitudes of Tav16sc are compared exactly. Those of Tav32fc are computed in double
 *  precision, so that no square leaves the range. Those of Tav64fc are not told from 0 below about 1e-154, nor from
 *  infinity above about 1e154.
 *
 *  At a level that is a NaN nothing fails; in tavsThreshold_LTInv it counts as 0. Floats that are computed follow the
 *  caller's rounding mode.
 *  @{ */

/** @name tavsThreshold, side by argument
 *  @{ */
/**
 * Clips an array to a level from one side, which an argument names: as tavsThreshold_LT_16s() and its kin if @p relOp
 * is 0, as tavsThreshold_GT_16s() if it is 4.
 *
 * @param src   source, @p len elements.
 * @param dst   destination, @p len elements.
 * @param len   number of elements, at least 1.
 * @param level the level; of complex elements that of the magnitude, not negative.
 * @param relOp 0 (less) or 4 (greater).
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusBadArgument if @p relOp is neither 0 nor 4; #tavStatusNegativeLevel if elements are complex and
 *         @p level is below 0.
 */
TavStatus tavsThreshold_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s level, int relOp);
TavStatus tavsThreshold_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f level, int relOp);
TavStatus tavsThreshold_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f level, int relOp);
TavStatus tavsThreshold_16sc(const Tav16sc* src, Tav16sc* dst, int len, Tav16s level, int relOp);
TavStatus tavsThreshold_32fc(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level, int relOp);
TavStatus tavsThreshold_64fc(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level, int relOp);
/** @} */

/** @name tavsThreshold, side by argument, in place
 *  @{ */
/**
 * The same in place, as tavsThreshold_16s() and its kin.
 *
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @param level  the level; of complex elements that of the magnitude, not negative.
 * @param relOp  0 (less) or 4 (greater).
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusBadArgument if @p relOp is neither 0 nor 4; #tavStatusNegativeLevel if elements are complex and
 *         @p level is below 0.
 */
TavStatus tavsThreshold_16s_I(Tav16s* srcDst, int len, Tav16s level, int relOp);
TavStatus tavsThreshold_32f_I(Tav32f* srcDst, int len, Tav32f level, int relOp);
TavStatus tavsThreshold_64f_I(Tav64f* srcDst, int len, Tav64f level, int relOp);
TavStatus tavsThreshold_16sc_I(Tav16sc* srcDst, int len, Tav16s level, int relOp);
TavStatus tavsThreshold_32fc_I(Tav32fc* srcDst, int len, Tav32f level, int relOp);
TavStatus tavsThreshold_64fc_I(Tav64fc* srcDst, int len, Tav64f level, int relOp);
/** @} */

/** @name tavsThreshold_LT, tavsThreshold_GT
 *  @{ */
/**
 * Clips an array to a level: what lies below it (LT) or above it (GT) becomes the level.
 *
 * @param src   source, @p len elements.
 * @param dst   destination, @p len elements.
 * @param len   number of elements, at least 1.
 * @param level the level, of any sign.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsThreshold_LT_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s level);
TavStatus tavsThreshold_LT_32s(const Tav32s* src, Tav32s* dst, int len, Tav32s level);
TavStatus tavsThreshold_LT_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f level);
TavStatus tavsThreshold_LT_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f level);
TavStatus tavsThreshold_GT_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s level);
TavStatus tavsThreshold_GT_32s(const Tav32s* src, Tav32s* dst, int len, Tav32s level);
TavStatus tavsThreshold_GT_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f level);
TavStatus tavsThreshold_GT_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f level);
/** @} */

/** @name tavsThreshold_LT, tavsThreshold_GT, in place
 *  @{ */
/**
 * The same in place, as tavsThreshold_LT_16s() and its kin.
 *
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @param level  the level, of any sign.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsThreshold_LT_16s_I(Tav16s* srcDst, int len, Tav16s level);
TavStatus tavsThreshold_LT_32s_I(Tav32s* srcDst, int len, Tav32s level);
TavStatus tavsThreshold_LT_32f_I(Tav32f* srcDst, int len, Tav32f level);
TavStatus tavsThreshold_LT_64f_I(Tav64f* srcDst, int len, Tav64f level);
TavStatus tavsThreshold_GT_16s_I(Tav16s* srcDst, int len, Tav16s level);
TavStatus tavsThreshold_GT_32s_I(Tav32s* srcDst, int len, Tav32s level);
TavStatus tavsThreshold_GT_32f_I(Tav32f* srcDst, int len, Tav32f level);
TavStatus tavsThreshold_GT_64f_I(Tav64f* srcDst, int len, Tav64f level);
/** @} */

/** @name tavsThreshold_LT, tavsThreshold_GT, complex
 *  @{ */
/**
 * Clips magnitudes: where one lies below the level (LT) or above it (GT), both parts are multiplied by level /
 * magnitude, which keeps the phase. A zero has none and stays zero. Parts of Tav16sc are the nearest integers to the
 * exact products, with ties to even.
 *
 * @param src   source, @p len elements.
 * @param dst   destination, @p len elements.
 * @param len   number of elements, at least 1.
 * @param level the level of the magnitudes, not negative.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusNegativeLevel if @p level is below 0.
 */
TavStatus tavsThreshold_LT_16sc(const Tav16sc* src, Tav16sc* dst, int len, Tav16s level);
TavStatus tavsThreshold_LT_32fc(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level);
TavStatus tavsThreshold_LT_64fc(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level);
TavStatus tavsThreshold_GT_16sc(const Tav16sc* src, Tav16sc* dst, int len, Tav16s level);
TavStatus tavsThreshold_GT_32fc(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level);
TavStatus tavsThreshold_GT_64fc(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level);
/** @} */

/** @name tavsThreshold_LT, tavsThreshold_GT, complex, in place
 *  @{ */
/**
 * The same in place, as tavsThreshold_LT_16sc() and its kin.
 *
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @param level  the level of the magnitudes, not negative.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusNegativeLevel if @p level is below 0.
 */
TavStatus tavsThreshold_LT_16sc_I(Tav16sc* srcDst, int len, Tav16s level);
TavStatus tavsThreshold_LT_32fc_I(Tav32fc* srcDst, int len, Tav32f level);
TavStatus tavsThreshold_LT_64fc_I(Tav64fc* srcDst, int len, Tav64f level);
TavStatus tavsThreshold_GT_16sc_I(Tav16sc* srcDst, int len, Tav16s level);
TavStatus tavsThreshold_GT_32fc_I(Tav32fc* srcDst, int len, Tav32f level);
TavStatus tavsThreshold_GT_64fc_I(Tav64fc* srcDst, int len, Tav64f level);
/** @} */

/** @name tavsThreshold_LTVal, tavsThreshold_GTVal
 *  @{ */
/**
 * Replaces what lies below a level (LT) or above it (GT) by a value.
 *
 * @param src   source, @p len elements.
 * @param dst   destination, @p len elements.
 * @param len   number of elements, at least 1.
 * @param level the level; of complex elements that of the magnitude, not negative.
 * @param value what replaces an element.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusNegativeLevel if elements are complex and @p level is below 0.
 */
TavStatus tavsThreshold_LTVal_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s level, Tav16s value);
TavStatus tavsThreshold_LTVal_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f level, Tav32f value);
TavStatus tavsThreshold_LTVal_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f level, Tav64f value);
TavStatus tavsThreshold_LTVal_16sc(const Tav16sc* src, Tav16sc* dst, int len, Tav16s level, Tav16sc value);
TavStatus tavsThreshold_LTVal_32fc(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level, Tav32fc value);
TavStatus tavsThreshold_LTVal_64fc(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level, Tav64fc value);
TavStatus tavsThreshold_GTVal_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s level, Tav16s value);
TavStatus tavsThreshold_GTVal_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f level, Tav32f value);
TavStatus tavsThreshold_GTVal_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f level, Tav64f value);
TavStatus tavsThreshold_GTVal_16sc(const Tav16sc* src, Tav16sc* dst, int len, Tav16s level, Tav16sc value);
TavStatus tavsThreshold_GTVal_32fc(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level, Tav32fc value);
TavStatus tavsThreshold_GTVal_64fc(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level, Tav64fc value);
/** @} */

/** @name tavsThreshold_LTVal, tavsThreshold_GTVal, in place
 *  @{ */
/**
 * The same in place, as tavsThreshold_LTVal_16s() and its kin.
 *
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @param level  the level; of complex elements that of the magnitude, not negative.
 * @param value  what replaces an element.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusNegativeLevel if elements are complex and @p level is below 0.
 */
TavStatus tavsThreshold_LTVal_16s_I(Tav16s* srcDst, int len, Tav16s level, Tav16s value);
TavStatus tavsThreshold_LTVal_32f_I(Tav32f* srcDst, int len, Tav32f level, Tav32f value);
TavStatus tavsThreshold_LTVal_64f_I(Tav64f* srcDst, int len, Tav64f level, Tav64f value);
TavStatus tavsThreshold_LTVal_16sc_I(Tav16sc* srcDst, int len, Tav16s level, Tav16sc value);
TavStatus tavsThreshold_LTVal_32fc_I(Tav32fc* srcDst, int len, Tav32f level, Tav32fc value);
TavStatus tavsThreshold_LTVal_64fc_I(Tav64fc* srcDst, int len, Tav64f level, Tav64fc value);
TavStatus tavsThreshold_GTVal_16s_I(Tav16s* srcDst, int len, Tav16s level, Tav16s value);
TavStatus tavsThreshold_GTVal_32f_I(Tav32f* srcDst, int len, Tav32f level, Tav32f value);
TavStatus tavsThreshold_GTVal_64f_I(Tav64f* srcDst, int len, Tav64f level, Tav64f value);
TavStatus tavsThreshold_GTVal_16sc_I(Tav16sc* srcDst, int len, Tav16s level, Tav16sc value);
TavStatus tavsThreshold_GTVal_32fc_I(Tav32fc* srcDst, int len, Tav32f level, Tav32fc value);
TavStatus tavsThreshold_GTVal_64fc_I(Tav64fc* srcDst, int len, Tav64f level, Tav64fc value);
/** @} */

/** @name tavsThreshold_LTValGTVal
 *  @{ */
/**
 * Replaces what lies below one level by one value, and what lies above another by another. A value may lie anywhere: it
 * is not compared itself.
 *
 * @param src     source, @p len elements.
 * @param dst     destination, @p len elements.
 * @param len     number of elements, at least 1.
 * @param levelLT the level below which elements are replaced.
 * @param valueLT what replaces them.
 * @param levelGT the level above which elements are replaced, at least @p levelLT.
 * @param valueGT what replaces them.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusBadThresholdPair if @p levelLT is above @p levelGT.
 */
TavStatus tavsThreshold_LTValGTVal_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s levelLT, Tav16s valueLT,
                                       Tav16s levelGT, Tav16s valueGT);
TavStatus tavsThreshold_LTValGTVal_32s(const Tav32s* src, Tav32s* dst, int len, Tav32s levelLT, Tav32s valueLT,
                                       Tav32s levelGT, Tav32s valueGT);
TavStatus tavsThreshold_LTValGTVal_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f levelLT, Tav32f valueLT,
                                       Tav32f levelGT, Tav32f valueGT);
TavStatus tavsThreshold_LTValGTVal_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f levelLT, Tav64f valueLT,
                                       Tav64f levelGT, Tav64f valueGT);
/** @} */

/** @name tavsThreshold_LTValGTVal, in place
 *  @{ */
/**
 * The same in place, as tavsThreshold_LTValGTVal_16s() and its kin.
 *
 * @param srcDst  source and destination, @p len elements.
 * @param len     number of elements, at least 1.
 * @param levelLT the level below which elements are replaced.
 * @param valueLT what replaces them.
 * @param levelGT the level above which elements are replaced, at least @p levelLT.
 * @param valueGT what replaces them.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusBadThresholdPair if @p levelLT is above @p levelGT.
 */
TavStatus tavsThreshold_LTValGTVal_16s_I(Tav16s* srcDst, int len, Tav16s levelLT, Tav16s valueLT, Tav16s levelGT,
                                         Tav16s valueGT);
TavStatus tavsThreshold_LTValGTVal_32s_I(Tav32s* srcDst, int len, Tav32s levelLT, Tav32s valueLT, Tav32s levelGT,
                                         Tav32s valueGT);
TavStatus tavsThreshold_LTValGTVal_32f_I(Tav32f* srcDst, int len, Tav32f levelLT, Tav32f valueLT, Tav32f levelGT,
                                         Tav32f valueGT);
TavStatus tavsThreshold_LTValGTVal_64f_I(Tav64f* srcDst, int len, Tav64f levelLT, Tav64f valueLT, Tav64f levelGT,
                                         Tav64f valueGT);
/** @} */

/** @name tavsThreshold_LTAbs, tavsThreshold_GTAbs
 *  @{ */
/**
 * Clips magnitudes and keeps signs: a magnitude below the level (LT) or above it (GT) becomes the level. The sign is
 * that of the sign bit: of an integer 0 and of 0.0 it is positive, of -0.0 negative. The magnitude of the lowest
 * integer is exact, above every level.
 *
 * @param src   source, @p len elements.
 * @param dst   destination, @p len elements.
 * @param len   number of elements, at least 1.
 * @param level the level of the magnitudes, not negative.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusNegativeLevel if @p level is below 0.
 */
TavStatus tavsThreshold_LTAbs_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s level);
TavStatus tavsThreshold_LTAbs_32s(const Tav32s* src, Tav32s* dst, int len, Tav32s level);
TavStatus tavsThreshold_LTAbs_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f level);
TavStatus tavsThreshold_LTAbs_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f level);
TavStatus tavsThreshold_GTAbs_16s(const Tav16s* src, Tav16s* dst, int len, Tav16s level);
TavStatus tavsThreshold_GTAbs_32s(const Tav32s* src, Tav32s* dst, int len, Tav32s level);
TavStatus tavsThreshold_GTAbs_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f level);
TavStatus tavsThreshold_GTAbs_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f level);
/** @} */

/** @name tavsThreshold_LTAbs, tavsThreshold_GTAbs, in place
 *  @{ */
/**
 * The same in place, as tavsThreshold_LTAbs_16s() and its kin.
 *
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @param level  the level of the magnitudes, not negative.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusNegativeLevel if @p level is below 0.
 */
TavStatus tavsThreshold_LTAbs_16s_I(Tav16s* srcDst, int len, Tav16s level);
TavStatus tavsThreshold_LTAbs_32s_I(Tav32s* srcDst, int len, Tav32s level);
TavStatus tavsThreshold_LTAbs_32f_I(Tav32f* srcDst, int len, Tav32f level);
TavStatus tavsThreshold_LTAbs_64f_I(Tav64f* srcDst, int len, Tav64f level);
TavStatus tavsThreshold_GTAbs_16s_I(Tav16s* srcDst, int len, Tav16s level);
TavStatus tavsThreshold_GTAbs_32s_I(Tav32s* srcDst, int len, Tav32s level);
TavStatus tavsThreshold_GTAbs_32f_I(Tav32f* srcDst, int len, Tav32f level);
TavStatus tavsThreshold_GTAbs_64f_I(Tav64f* srcDst, int len, Tav64f level);
/** @} */

/** @name tavsThreshold_LTInv
 *  @{ */
/**
 * Computes reciprocals of a bounded magnitude: 1 / x, with the magnitude of x raised to the level first, so that no
 * result is larger than 1 / level. Signs are those of the sign bits.
 *
 * Complex elements become conj(x) / (|x| * max(|x|, level)); a zero counts as positive and becomes 1 / level.
 *
 * At a level of 0 an element 0 becomes an infinity: of the sign of a real one, and (infinity, 0) of a complex one. The
 * other elements are computed, and the call returns a warning. It never traps, whichever exceptions the caller has
 * unmasked.
 *
 * @param src   source, @p len elements.
 * @param dst   destination, @p len elements.
 * @param len   number of elements, at least 1.
 * @param level the least magnitude, not negative.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusNegativeLevel if @p level is below 0; #tavStatusWarnInverseOfZero, with all elements done, if @p
 * level is 0 and an element is 0.
 */
TavStatus tavsThreshold_LTInv_32f(const Tav32f* src, Tav32f* dst, int len, Tav32f level);
TavStatus tavsThreshold_LTInv_64f(const Tav64f* src, Tav64f* dst, int len, Tav64f level);
TavStatus tavsThreshold_LTInv_32fc(const Tav32fc* src, Tav32fc* dst, int len, Tav32f level);
TavStatus tavsThreshold_LTInv_64fc(const Tav64fc* src, Tav64fc* dst, int len, Tav64f level);
/** @} */

/** @name tavsThreshold_LTInv, in place
 *  @{ */
/**
 * The same in place, as tavsThreshold_LTInv_32f() and its kin.
 *
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @param level  the least magnitude, not negative.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusNegativeLevel if @p level is below 0; #tavStatusWarnInverseOfZero, with all elements done, if @p
 * level is 0 and an element is 0.
 */
TavStatus tavsThreshold_LTInv_32f_I(Tav32f* srcDst, int len, Tav32f level);
TavStatus tavsThreshold_LTInv_64f_I(Tav64f* srcDst, int len, Tav64f level);
TavStatus tavsThreshold_LTInv_32fc_I(Tav32fc* srcDst, int len, Tav32f level);
TavStatus tavsThreshold_LTInv_64fc_I(Tav64fc* srcDst, int len, Tav64f level);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
