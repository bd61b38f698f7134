/**
 * @file polar.h
 * Polar coordinates to Cartesian ones.
 */
#ifndef TAVS_POLAR_H
#define TAVS_POLAR_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup polar Polar coordinates
 *
 *  Phases are in radians, of any size. Everything is rounded to nearest, whatever the caller's rounding mode.
 *  @{ */

/** @name tavsPolarToCart
 *  @{ */
/**
 * Turns magnitudes and phases into real and imaginary parts: dst[i].re = srcMagn[i] * cos(srcPhase[i]),
 * dst[i].im = srcMagn[i] * sin(srcPhase[i]) for i from 0 to len - 1.
 *
 * Sine and cosine are within 2 units in the last place for every phase, also for huge ones, which are slower; the
 * product with the magnitude is rounded once more. The sine of a zero has its sign. An infinite phase or a NaN gives
 * NaNs.
 *
 * @param srcMagn  magnitudes, @p len elements.
 * @param srcPhase phases, @p len elements.
 * @param dst      destination, @p len elements, apart from the sources.
 * @param len      number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsPolarToCart_32fc(const Tav32f* srcMagn, const Tav32f* srcPhase, Tav32fc* dst, int len);
TavStatus tavsPolarToCart_64fc(const Tav64f* srcMagn, const Tav64f* srcPhase, Tav64fc* dst, int len);
/** @} */

/** @name tavsPolarToCart, parts apart
 *  @{ */
/**
 * The same with the parts in arrays of their own: dstRe[i] = srcMagn[i] * cos(srcPhase[i]),
 * dstIm[i] = srcMagn[i] * sin(srcPhase[i]). The parts are those that tavsPolarToCart_32fc() and tavsPolarToCart_64fc()
 * give.
 *
 * The two destinations must not overlap each other; each may be one of the sources.
 *
 * @param srcMagn  magnitudes, @p len elements.
 * @param srcPhase phases, @p len elements.
 * @param dstRe    real parts, @p len elements.
 * @param dstIm    imaginary parts, @p len elements.
 * @param len      number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsPolarToCart_32f(const Tav32f* srcMagn, const Tav32f* srcPhase, Tav32f* dstRe, Tav32f* dstIm, int len);
TavStatus tavsPolarToCart_64f(const Tav64f* srcMagn, const Tav64f* srcPhase, Tav64f* dstRe, Tav64f* dstIm, int len);
/** @} */

/** @name tavsPolarToCart, integers
 *  @{ */
/**
 * The same of integers, whose phases are fixed-point numbers: with p = srcPhase[i] * 2^-phaseFixedPoint,
 * dst[i].re = srcMagn[i] * cos(p) and dst[i].im = srcMagn[i] * sin(p), each rounded to the nearest integer and limited
 * to the type.
 *
 * Results of 16 bits are the nearest integers to the true values; only a value within 2^-35 of the middle between two
 * integers may go to the other one. For 32 bits that is so within 2^-19. A negative @p phaseFixedPoint scales the
 * phases up, by 2^900 at most: counts below -900 are as -900.
 *
 * @param srcMagn         magnitudes, @p len elements.
 * @param srcPhase        phases, @p len elements.
 * @param phaseFixedPoint number of fractional bits of a phase: below 16, in tavsPolarToCart_32sc() below 32.
 * @param dst             destination, @p len elements, apart from the sources.
 * @param len             number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1 or
 *         @p phaseFixedPoint is too large.
 */
TavStatus tavsPolarToCart_16sc(const Tav16s* srcMagn, const Tav16s* srcPhase, int phaseFixedPoint, Tav16sc* dst,
                               int len);
TavStatus tavsPolarToCart_32sc(const Tav32s* srcMagn, const Tav32s* srcPhase, int phaseFixedPoint, Tav32sc* dst,
                               int len);
/** @} */

/** @name tavsPolarToCart, integers scaled
 *  @{ */
/**
 * As tavsPolarToCart_16sc(), with results scaled by 2^-scaleFactor before they are rounded and limited. With a factor
 * below 0 the wrong neighbour may come out within 2^-16 of the middle.
 *
 * @param srcMagn         magnitudes, @p len elements.
 * @param srcPhase        phases, @p len elements.
 * @param phaseFixedPoint number of fractional bits of a phase, below 16.
 * @param dst             destination, @p len elements, apart from the sources.
 * @param len             number of elements, at least 1.
 * @param scaleFactor     the results are multiplied by 2^-scaleFactor; any value.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1 or
 *         @p phaseFixedPoint is 16 or more.
 */
TavStatus tavsPolarToCart_16sc_Sfs(const Tav16s* srcMagn, const Tav16s* srcPhase, int phaseFixedPoint, Tav16sc* dst,
                                   int len, int scaleFactor);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
