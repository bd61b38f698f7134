/**
 * @file phase.h
 * Angles of points, and points as magnitude and angle.
 */
#ifndef TAVS_PHASE_H
#define TAVS_PHASE_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup phase Phase and polar form
 *
 *  Points of the plane come as complex pairs, or as an array of real and one of imaginary parts.
 *
 *  Angles are those of atan2(im, re), in radians from -pi to pi. As floats they are within 2 units in the last place of
 *  the true angle, whatever the rounding mode of the caller, denormal numbers included. Signs of zeros count: the angle
 *  of (0, 0) is 0, that of (-0.0, 0.0) is pi and that of (-0.0, -0.0) is -pi. Infinite parts are alike: the angle of
 *  (infinity, infinity) is pi / 4. The angle of a point with a NaN is a NaN.
 *  @{ */

/** @name tavsPhase
 *  @{ */
/**
 * Computes angles: dst[i] = atan2(im[i], re[i]) for i from 0 to len - 1.
 *
 * @param srcRe real parts, @p len elements.
 * @param srcIm imaginary parts, @p len elements.
 * @param dst   destination, @p len elements.
 * @param len   number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsPhase_16s32f(const Tav16s* srcRe, const Tav16s* srcIm, Tav32f* dst, int len);
TavStatus tavsPhase_32f(const Tav32f* srcRe, const Tav32f* srcIm, Tav32f* dst, int len);
TavStatus tavsPhase_64f(const Tav64f* srcRe, const Tav64f* srcIm, Tav64f* dst, int len);
/** @} */

/** @name tavsPhase of complex arrays
 *  @{ */
/**
 * Computes angles: dst[i] = atan2(src[i].im, src[i].re) for i from 0 to len - 1.
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsPhase_16sc32f(const Tav16sc* src, Tav32f* dst, int len);
TavStatus tavsPhase_32fc(const Tav32fc* src, Tav32f* dst, int len);
TavStatus tavsPhase_64fc(const Tav64fc* src, Tav64f* dst, int len);
/** @} */

/** @name tavsPhase with a scale factor
 *  @{ */
/**
 * Computes angles in fixed point: dst[i] = atan2(im[i], re[i]) * 2^-scaleFactor for i from 0 to len - 1, rounded to
 * nearest and saturated. With @p scaleFactor -13 an angle of pi is 25736.
 *
 * A @p scaleFactor of 2 or more gives zeros. In the 16-bit forms one of -29 or less gives 32767 for each positive angle
 * and -32768 for each negative one. In the 32-bit form a result may be the neighbour of the nearest integer if the
 * scaled angle lies within 2^-50 of its size of the middle between the two.
 *
 * @param srcRe       real parts, @p len elements.
 * @param srcIm       imaginary parts, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsPhase_16s_Sfs(const Tav16s* srcRe, const Tav16s* srcIm, Tav16s* dst, int len, int scaleFactor);
/** @} */

/** @name tavsPhase of complex arrays with a scale factor
 *  @{ */
/**
 * Computes angles in fixed point: dst[i] = atan2(src[i].im, src[i].re) * 2^-scaleFactor for i from 0 to len - 1, as
 * tavsPhase_16s_Sfs().
 *
 * @param src         source, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsPhase_16sc_Sfs(const Tav16sc* src, Tav16s* dst, int len, int scaleFactor);
TavStatus tavsPhase_32sc_Sfs(const Tav32sc* src, Tav32s* dst, int len, int scaleFactor);
/** @} */

/** @name tavsCartToPolar
 *  @{ */
/**
 * Turns points into magnitudes and angles: dstMagn[i] = sqrt(re[i]^2 + im[i]^2), dstPhase[i] = atan2(im[i], re[i]) for
 * i from 0 to len - 1.
 *
 * It runs tavsMagnitude_32f() and tavsPhase_32f(), or their kin, one after the other, and its results are theirs. If
 * only @p dstPhase is null, the magnitudes are written nevertheless, and @p len is tested before it.
 *
 * @param srcRe    real parts, @p len elements.
 * @param srcIm    imaginary parts, @p len elements.
 * @param dstMagn  destination of the magnitudes, @p len elements.
 * @param dstPhase destination of the angles, @p len elements.
 * @param len      number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcRe, @p srcIm or @p dstMagn is null; #tavStatusBadSize if @p len
 *         is below 1; #tavStatusNullPointer if @p dstPhase is null.
 */
TavStatus tavsCartToPolar_32f(const Tav32f* srcRe, const Tav32f* srcIm, Tav32f* dstMagn, Tav32f* dstPhase, int len);
TavStatus tavsCartToPolar_64f(const Tav64f* srcRe, const Tav64f* srcIm, Tav64f* dstMagn, Tav64f* dstPhase, int len);
/** @} */

/** @name tavsCartToPolar of complex arrays
 *  @{ */
/**
 * Turns points into magnitudes and angles, as tavsCartToPolar_32f(), with tavsMagnitude_32fc() and tavsPhase_32fc() or
 * their kin.
 *
 * @param src      source, @p len elements.
 * @param dstMagn  destination of the magnitudes, @p len elements.
 * @param dstPhase destination of the angles, @p len elements.
 * @param len      number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p src or @p dstMagn is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusNullPointer if @p dstPhase is null.
 */
TavStatus tavsCartToPolar_32fc(const Tav32fc* src, Tav32f* dstMagn, Tav32f* dstPhase, int len);
TavStatus tavsCartToPolar_64fc(const Tav64fc* src, Tav64f* dstMagn, Tav64f* dstPhase, int len);
/** @} */

/** @name tavsCartToPolar with scale factors
 *  @{ */
/**
 * Turns points into magnitudes and angles in fixed point, each with a scale factor of its own, by
 * tavsMagnitude_16sc_Sfs() and tavsPhase_16sc_Sfs(). Otherwise as tavsCartToPolar_32fc().
 *
 * @param src              source, @p len elements.
 * @param dstMagn          destination of the magnitudes, @p len elements.
 * @param dstPhase         destination of the angles, @p len elements.
 * @param len              number of elements, at least 1.
 * @param magnScaleFactor  the scale factor of the magnitudes.
 * @param phaseScaleFactor the scale factor of the angles.
 * @return #tavStatusOk; #tavStatusNullPointer if @p src or @p dstMagn is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusNullPointer if @p dstPhase is null.
 */
TavStatus tavsCartToPolar_16sc_Sfs(const Tav16sc* src, Tav16s* dstMagn, Tav16s* dstPhase, int len, int magnScaleFactor,
                                   int phaseScaleFactor);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
