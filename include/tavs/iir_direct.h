/**
 * @file iir_direct.h
 * IIR filters without a state.
 */
#ifndef TAVS_IIR_DIRECT_H
#define TAVS_IIR_DIRECT_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup iir_direct IIR filters without a state
 *
 *  Taps of 16 bits: b[0] ... b[N], a[0] ... a[N]. Here a[0] is no divisor but an exponent, at least 0: every other
 *  tap, and every value of the delay line, counts as value * 2^-a[0]. The delay line, N integers of 32 bits, is the
 *  caller's and is updated by each call.
 *
 *  A block is filtered in singles, a single sample in integers, so that their results may differ in the low bits.
 *  @{ */

/** @name tavsIIR_Direct
 *  @{ */
/**
 * Filters a block of samples. The call allocates memory for the time it lasts. Results are rounded to nearest, ties to
 * even, and saturated; the values of the delay line are rounded to nearest, ties away from 0, and saturated.
 *
 * @param src   source.
 * @param dst   destination; may be @p src itself and must not overlap it otherwise.
 * @param len   number of samples, at least 1.
 * @param taps  2(N+1) taps.
 * @param order the order N.
 * @param dly   the delay line, N values.
 * @return #tavStatusOk; #tavStatusBadIirOrder if @p order is below 1; else #tavStatusNullPointer if a pointer is null;
 *         else #tavStatusBadTapScale if a[0] is negative; else #tavStatusBadSize if @p len is below 1;
 *         #tavStatusNoMemory.
 */
TavStatus tavsIIR_Direct_16s(const Tav16s* src, Tav16s* dst, int len, const Tav16s* taps, int order, Tav32s* dly);
/** @} */

/** @name tavsIIR_Direct, in place
 *  @{ */
/**
 * Filters a block of samples where they stand, otherwise as tavsIIR_Direct_16s().
 *
 * @param srcDst source and destination.
 * @param len    number of samples, at least 1.
 * @param taps   2(N+1) taps.
 * @param order  the order N.
 * @param dly    the delay line, N values.
 * @return #tavStatusOk; #tavStatusBadIirOrder if @p order is below 1; else #tavStatusNullPointer if a pointer is null;
 *         else #tavStatusBadTapScale if a[0] is negative; else #tavStatusBadSize if @p len is below 1;
 *         #tavStatusNoMemory.
 */
TavStatus tavsIIR_Direct_16s_I(Tav16s* srcDst, int len, const Tav16s* taps, int order, Tav32s* dly);
/** @} */

/** @name tavsIIROne_Direct
 *  @{ */
/**
 * Filters one sample in integers of 32 bits, which wrap. With s = a[0] & 31 and v = b[0] x + d[0] the result is
 *
 *     y = (v + (v >> s & 1) + 2^(s-1) - 1) >> s
 *
 * where for s = 0 the power is 2^31; d[i] becomes b[i+1] x - a[i+1] y + d[i+1], with d[N] = 0. The result is saturated
 * on its way out only. So taps whose a[0] is a multiple of 32 are of no use here: v = 0 gives 32767.
 *
 * @param val   the sample.
 * @param dst   receives the result.
 * @param taps  2(N+1) taps.
 * @param order the order N.
 * @param dly   the delay line, N values.
 * @return #tavStatusOk; #tavStatusBadIirOrder if @p order is below 1; else #tavStatusNullPointer if a pointer is null;
 *         else #tavStatusBadTapScale if a[0] is negative.
 */
TavStatus tavsIIROne_Direct_16s(Tav16s val, Tav16s* dst, const Tav16s* taps, int order, Tav32s* dly);
/** @} */

/** @name tavsIIROne_Direct, in place
 *  @{ */
/**
 * Filters one sample where it stands, otherwise as tavsIIROne_Direct_16s().
 *
 * @param srcDst the sample, which becomes the result.
 * @param taps   2(N+1) taps.
 * @param order  the order N.
 * @param dly    the delay line, N values.
 * @return #tavStatusOk; #tavStatusBadIirOrder if @p order is below 1; else #tavStatusNullPointer if a pointer is null;
 *         else #tavStatusBadTapScale if a[0] is negative.
 */
TavStatus tavsIIROne_Direct_16s_I(Tav16s* srcDst, const Tav16s* taps, int order, Tav32s* dly);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
