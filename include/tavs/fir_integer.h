/**
 * @file fir_integer.h
 * FIR filters of words with taps in integers.
 */
#ifndef TAVS_FIR_INTEGER_H
#define TAVS_FIR_INTEGER_H

#include "contexts.h"
#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup fir_integer FIR filters with taps in integers
 *
 *  A filter of N taps h makes y[n] = sum over k from 0 to N-1 of h[k] x[n-k], of 16-bit samples. Its state remembers
 * the last samples, so that any number of calls, of blocks and of single samples, filter one long signal.
 *
 *  Taps have an exponent of their own: a tap means h[k] times 2^tapsFactor. They are kept in 16 bits. Those of Tav32s
 * that do not fit are all shifted right until the largest magnitude is at most 32766; those of Tav16s are all shifted
 * by one if one of them is -32768. The exponent grows by what was shifted. From taps in floats (32s_16s32f,
 *  32sc_16sc32fc) the calls make integers of the largest magnitude that fits, up to 2^33 times as large, and their
 *  exponent; they serve the states of 32s_16s and 32sc_16sc.
 *
 *  Products and sums have 32 bits and wrap. Results are multiplied by 2^(exponent - scaleFactor), within 31 places,
 *  rounded to nearest, ties to even, and limited to 16 bits. The first two of these steps wrap as well: a shift to the
 *  left loses its highest bits, and a sum that half a unit of the result carries to 2^31 becomes negative. Sums below
 *  2^30 that are not shifted to the left are safe.
 *
 *  A state comes from tavsFIRInitAlloc(), which takes the memory it needs and which tavsFIRFree() gives back, or from
 *  tavsFIRInit(), which works in memory of the caller's. It serves one thread at a time.
 *  @{ */

/** @name tavsFIRGetStateSize, taps in integers
 *  @{ */
/**
 * Tells the size of the memory that tavsFIRInit() needs.
 *
 * @param tapsLen number of taps N, at least 1.
 * @param size    receives the bytes.
 * @return #tavStatusOk; #tavStatusNullPointer if @p size is null; #tavStatusBadFirLength if @p tapsLen is below 1.
 */
TavStatus tavsFIRGetStateSize_16s(int tapsLen, int* size);
TavStatus tavsFIRGetStateSize32s_16s(int tapsLen, int* size);
TavStatus tavsFIRGetStateSize32s_16s32f(int tapsLen, int* size);
TavStatus tavsFIRGetStateSize32sc_16sc(int tapsLen, int* size);
TavStatus tavsFIRGetStateSize32sc_16sc32fc(int tapsLen, int* size);
/** @} */

/** @name tavsFIRInit, taps in integers
 *  @{ */
/**
 * Sets a filter up in memory of the caller's.
 *
 * @param state      receives the filter, which lies inside @p buf and must not be moved.
 * @param taps       the taps, h[0] first; they are copied.
 * @param tapsLen    number of taps N, at least 1.
 * @param tapsFactor exponent of the taps.
 * @param dly        the samples that came before, N of them, the newest first; null: zeros.
 * @param buf        memory of the size that tavsFIRGetStateSize() tells, at any address; it lives as long as the
 * filter.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state, @p taps or @p buf is null; #tavStatusBadFirLength if
 * @p tapsLen is below 1.
 */
TavStatus tavsFIRInit_16s(FIRState_16s** state, const Tav16s* taps, int tapsLen, int tapsFactor, const Tav16s* dly,
                          Tav8u* buf);
TavStatus tavsFIRInit32s_16s(FIRState32s_16s** state, const Tav32s* taps, int tapsLen, int tapsFactor,
                             const Tav16s* dly, Tav8u* buf);
TavStatus tavsFIRInit32sc_16sc(FIRState32sc_16sc** state, const Tav32sc* taps, int tapsLen, int tapsFactor,
                               const Tav16sc* dly, Tav8u* buf);
/** @} */

/** @name tavsFIRInit, taps from floats
 *  @{ */
/**
 * Sets an integer filter up from taps in floats, in memory of the caller's.
 *
 * @param state      receives the filter, which lies inside @p buf and must not be moved.
 * @param taps       the taps, h[0] first; they are copied.
 * @param tapsLen    number of taps N, at least 1.
 * @param dly        the samples that came before, N of them, the newest first; null: zeros.
 * @param buf        memory of the size that tavsFIRGetStateSize() tells, at any address; it lives as long as the
 * filter.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state, @p taps or @p buf is null; #tavStatusBadFirLength if
 * @p tapsLen is below 1.
 */
TavStatus tavsFIRInit32s_16s32f(FIRState32s_16s** state, const Tav32f* taps, int tapsLen, const Tav16s* dly,
                                Tav8u* buf);
TavStatus tavsFIRInit32sc_16sc32fc(FIRState32sc_16sc** state, const Tav32fc* taps, int tapsLen, const Tav16sc* dly,
                                   Tav8u* buf);
/** @} */

/** @name tavsFIRInitAlloc, taps in integers
 *  @{ */
/**
 * Sets a filter up in memory that it allocates; tavsFIRFree() releases it.
 *
 * @param state      receives the filter.
 * @param taps       the taps, h[0] first; they are copied.
 * @param tapsLen    number of taps N, at least 1.
 * @param tapsFactor exponent of the taps.
 * @param dly        the samples that came before, N of them, the newest first; null: zeros.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state or @p taps is null; #tavStatusBadFirLength if @p tapsLen is
 * below 1; #tavStatusNoMemory. On an error @p state is not written.
 */
TavStatus tavsFIRInitAlloc_16s(FIRState_16s** state, const Tav16s* taps, int tapsLen, int tapsFactor,
                               const Tav16s* dly);
TavStatus tavsFIRInitAlloc32s_16s(FIRState32s_16s** state, const Tav32s* taps, int tapsLen, int tapsFactor,
                                  const Tav16s* dly);
TavStatus tavsFIRInitAlloc32sc_16sc(FIRState32sc_16sc** state, const Tav32sc* taps, int tapsLen, int tapsFactor,
                                    const Tav16sc* dly);
/** @} */

/** @name tavsFIRInitAlloc, taps from floats
 *  @{ */
/**
 * Sets an integer filter up from taps in floats, in memory that it allocates; tavsFIRFree() releases it.
 *
 * @param state      receives the filter.
 * @param taps       the taps, h[0] first; they are copied.
 * @param tapsLen    number of taps N, at least 1.
 * @param dly        the samples that came before, N of them, the newest first; null: zeros.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state or @p taps is null; #tavStatusBadFirLength if @p tapsLen is
 * below 1; #tavStatusNoMemory. On an error @p state is not written.
 */
TavStatus tavsFIRInitAlloc32s_16s32f(FIRState32s_16s** state, const Tav32f* taps, int tapsLen, const Tav16s* dly);
TavStatus tavsFIRInitAlloc32sc_16sc32fc(FIRState32sc_16sc** state, const Tav32fc* taps, int tapsLen,
                                        const Tav16sc* dly);
/** @} */

/** @name tavsFIRFree, taps in integers
 *  @{ */
/**
 * Releases a filter of tavsFIRInitAlloc(). One of tavsFIRInit() is left as it is.
 *
 * @param state the filter.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state is null; #tavStatusBadContext if it is no filter of this
 * type.
 */
TavStatus tavsFIRFree_16s(FIRState_16s* state);
TavStatus tavsFIRFree32s_16s(FIRState32s_16s* state);
TavStatus tavsFIRFree32sc_16sc(FIRState32sc_16sc* state);
/** @} */

/** @name tavsFIR, taps in integers
 *  @{ */
/**
 * Filters a block.
 *
 * @param src         the samples.
 * @param dst         receives the results.
 * @param len         number of samples, at least 1.
 * @param state       the filter.
 * @param scaleFactor results are multiplied by 2^-@p scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 * #tavStatusBadContext if @p state is no filter of this type.
 */
TavStatus tavsFIR_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, FIRState_16s* state, int scaleFactor);
TavStatus tavsFIR32s_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, FIRState32s_16s* state, int scaleFactor);
TavStatus tavsFIR32sc_16sc_Sfs(const Tav16sc* src, Tav16sc* dst, int len, FIRState32sc_16sc* state, int scaleFactor);
/** @} */

/** @name tavsFIR, taps in integers, in place
 *  @{ */
/**
 * Filters a block in place.
 *
 * @param srcDst      the samples; receives the results.
 * @param len         number of samples, at least 1.
 * @param state       the filter.
 * @param scaleFactor results are multiplied by 2^-@p scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 * #tavStatusBadContext if @p state is no filter of this type.
 */
TavStatus tavsFIR_16s_ISfs(Tav16s* srcDst, int len, FIRState_16s* state, int scaleFactor);
TavStatus tavsFIR32s_16s_ISfs(Tav16s* srcDst, int len, FIRState32s_16s* state, int scaleFactor);
TavStatus tavsFIR32sc_16sc_ISfs(Tav16sc* srcDst, int len, FIRState32sc_16sc* state, int scaleFactor);
/** @} */

/** @name tavsFIROne, taps in integers
 *  @{ */
/**
 * Filters one sample.
 *
 * @param val         the sample.
 * @param dst         receives the result.
 * @param state       the filter.
 * @param scaleFactor the result is multiplied by 2^-@p scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadContext if @p state is no filter
 * of this type.
 */
TavStatus tavsFIROne_16s_Sfs(Tav16s val, Tav16s* dst, FIRState_16s* state, int scaleFactor);
TavStatus tavsFIROne32s_16s_Sfs(Tav16s val, Tav16s* dst, FIRState32s_16s* state, int scaleFactor);
TavStatus tavsFIROne32sc_16sc_Sfs(Tav16sc val, Tav16sc* dst, FIRState32sc_16sc* state, int scaleFactor);
/** @} */

/** @name tavsFIRGetTaps, taps in integers
 *  @{ */
/**
 * Tells the taps as they are kept.
 *
 * @param state      the filter.
 * @param taps       receives the N taps, h[0] first.
 * @param tapsFactor receives their exponent.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadContext if @p state is no filter
 * of this type.
 */
TavStatus tavsFIRGetTaps_16s(const FIRState_16s* state, Tav16s* taps, int* tapsFactor);
TavStatus tavsFIRGetTaps32s_16s(const FIRState32s_16s* state, Tav32s* taps, int* tapsFactor);
TavStatus tavsFIRGetTaps32sc_16sc(const FIRState32sc_16sc* state, Tav32sc* taps, int* tapsFactor);
/** @} */

/** @name tavsFIRGetTaps, taps from floats
 *  @{ */
/**
 * Tells the taps as they are kept, as floats.
 *
 * @param state the filter.
 * @param taps  receives the N taps, h[0] first.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadContext if @p state is no filter
 * of this type.
 */
TavStatus tavsFIRGetTaps32s_16s32f(const FIRState32s_16s* state, Tav32f* taps);
TavStatus tavsFIRGetTaps32sc_16sc32fc(const FIRState32sc_16sc* state, Tav32fc* taps);
/** @} */

/** @name tavsFIRSetTaps, taps in integers
 *  @{ */
/**
 * Replaces the taps. The delay line stays.
 *
 * @param taps       the N taps, h[0] first; they are copied.
 * @param state      the filter.
 * @param tapsFactor their exponent.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadContext if @p state is no filter
 * of this type.
 */
TavStatus tavsFIRSetTaps_16s(const Tav16s* taps, FIRState_16s* state, int tapsFactor);
TavStatus tavsFIRSetTaps32s_16s(const Tav32s* taps, FIRState32s_16s* state, int tapsFactor);
TavStatus tavsFIRSetTaps32sc_16sc(const Tav32sc* taps, FIRState32sc_16sc* state, int tapsFactor);
/** @} */

/** @name tavsFIRSetTaps, taps from floats
 *  @{ */
/**
 * Replaces the taps by integers made of floats. The delay line stays.
 *
 * @param taps  the N taps, h[0] first; they are copied.
 * @param state the filter.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadContext if @p state is no filter
 * of this type.
 */
TavStatus tavsFIRSetTaps32s_16s32f(const Tav32f* taps, FIRState32s_16s* state);
TavStatus tavsFIRSetTaps32sc_16sc32fc(const Tav32fc* taps, FIRState32sc_16sc* state);
/** @} */

/** @name tavsFIRGetDlyLine, taps in integers
 *  @{ */
/**
 * Tells the samples that a filter remembers.
 *
 * @param state the filter.
 * @param dly   receives the last N samples, the newest first.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadContext if @p state is no filter
 * of this type.
 */
TavStatus tavsFIRGetDlyLine_16s(const FIRState_16s* state, Tav16s* dly);
TavStatus tavsFIRGetDlyLine32s_16s(const FIRState32s_16s* state, Tav16s* dly);
TavStatus tavsFIRGetDlyLine32sc_16sc(const FIRState32sc_16sc* state, Tav16sc* dly);
/** @} */

/** @name tavsFIRSetDlyLine, taps in integers
 *  @{ */
/**
 * Replaces the samples that a filter remembers.
 *
 * @param state the filter.
 * @param dly   N samples, the newest first; null: zeros.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state is null; #tavStatusBadContext if it is no filter
 * of this type.
 */
TavStatus tavsFIRSetDlyLine_16s(FIRState_16s* state, const Tav16s* dly);
TavStatus tavsFIRSetDlyLine32s_16s(FIRState32s_16s* state, const Tav16s* dly);
TavStatus tavsFIRSetDlyLine32sc_16sc(FIRState32sc_16sc* state, const Tav16sc* dly);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
