/**
 * @file fir.h
 * FIR filters of single rate with taps in floats.
 */
#ifndef TAVS_FIR_H
#define TAVS_FIR_H

#include "contexts.h"
#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup fir FIR filters
 *
 *  A filter of N taps h makes y[n] = sum over k from 0 to N-1 of h[k] x[n-k]. Its state remembers the last samples, so
 *  that any number of calls, of blocks and of single samples, filter one long signal.
 *
 *  A name ends with the type of the taps and that of the data: 32f_16s has taps in Tav32f and samples in Tav16s, and
 *  computes in Tav32f; _32f has both in Tav32f. _32s has taps and samples in Tav32s, computes in Tav64f, and shares its
 *  state with 64f_32s.
 *
 *  A state comes from tavsFIRInitAlloc(), which takes the memory it needs and which tavsFIRFree() gives back, or from
 *  tavsFIRInit(), which works in memory of the caller's. It serves one thread at a time.
 *
 *  Blocks of 512 samples and more (complex: 256) run through Fourier transforms where the filter has 64 taps and more
 *  (complex singles 16, complex doubles 32); of 64f_32s and _32s, those from tavsFIRInitAlloc() from 32 taps on, and
 *  those of _32s from tavsFIRInit() never. In place, _32f, _32fc, _64f and _64fc work in pieces of 4096 samples, and
 *  transform a piece only if 512 samples or more (complex: 256) follow it: never in a call of 4096 samples. Results of
 *  the different ways differ by rounding.
 *
 *  Where samples are integers, the factor 2^-scaleFactor is a float of the type that the filter computes in: 0 for a
 *  scaleFactor of 127 and more (doubles: 1023), and infinite for one of -128 and less (-1024), where a result of 0
 *  becomes the highest integer.
 *  @{ */

/** @name tavsFIRGetStateSize, taps in floats
 *  @{ */
/**
 * Tells the size of the memory that tavsFIRInit() needs.
 *
 * @param tapsLen number of taps N, at least 1.
 * @param size    receives the bytes.
 * @return #tavStatusOk; #tavStatusNullPointer if @p size is null; #tavStatusBadFirLength if @p tapsLen is below 1.
 */
TavStatus tavsFIRGetStateSize_32f(int tapsLen, int* size);
TavStatus tavsFIRGetStateSize32f_16s(int tapsLen, int* size);
TavStatus tavsFIRGetStateSize_32fc(int tapsLen, int* size);
TavStatus tavsFIRGetStateSize32fc_16sc(int tapsLen, int* size);
TavStatus tavsFIRGetStateSize_64f(int tapsLen, int* size);
TavStatus tavsFIRGetStateSize64f_32f(int tapsLen, int* size);
TavStatus tavsFIRGetStateSize64f_32s(int tapsLen, int* size);
TavStatus tavsFIRGetStateSize_32s(int tapsLen, int* size);
TavStatus tavsFIRGetStateSize64f_16s(int tapsLen, int* size);
TavStatus tavsFIRGetStateSize_64fc(int tapsLen, int* size);
TavStatus tavsFIRGetStateSize64fc_32fc(int tapsLen, int* size);
TavStatus tavsFIRGetStateSize64fc_32sc(int tapsLen, int* size);
TavStatus tavsFIRGetStateSize64fc_16sc(int tapsLen, int* size);
/** @} */

/** @name tavsFIRInit, taps in floats
 *  @{ */
/**
 * Sets a filter up in memory of the caller's.
 *
 * @param state   receives the filter, which lies inside @p buf and must not be moved.
 * @param taps    the taps, h[0] first; they are copied.
 * @param tapsLen number of taps N, at least 1.
 * @param dly     the samples that came before, N of them, the newest first; null: zeros.
 * @param buf     memory of the size that tavsFIRGetStateSize() tells, at any address; it lives as long as the filter.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state, @p taps or @p buf is null; #tavStatusBadFirLength if @p
 * tapsLen is below 1.
 */
TavStatus tavsFIRInit_32f(FIRState_32f** state, const Tav32f* taps, int tapsLen, const Tav32f* dly, Tav8u* buf);
TavStatus tavsFIRInit32f_16s(FIRState32f_16s** state, const Tav32f* taps, int tapsLen, const Tav16s* dly, Tav8u* buf);
TavStatus tavsFIRInit_32fc(FIRState_32fc** state, const Tav32fc* taps, int tapsLen, const Tav32fc* dly, Tav8u* buf);
TavStatus tavsFIRInit32fc_16sc(FIRState32fc_16sc** state, const Tav32fc* taps, int tapsLen, const Tav16sc* dly,
                               Tav8u* buf);
TavStatus tavsFIRInit_64f(FIRState_64f** state, const Tav64f* taps, int tapsLen, const Tav64f* dly, Tav8u* buf);
TavStatus tavsFIRInit64f_32f(FIRState64f_32f** state, const Tav64f* taps, int tapsLen, const Tav32f* dly, Tav8u* buf);
TavStatus tavsFIRInit64f_32s(FIRState64f_32s** state, const Tav64f* taps, int tapsLen, const Tav32s* dly, Tav8u* buf);
TavStatus tavsFIRInit_32s(FIRState64f_32s** state, const Tav32s* taps, int tapsLen, const Tav32s* dly, Tav8u* buf);
TavStatus tavsFIRInit64f_16s(FIRState64f_16s** state, const Tav64f* taps, int tapsLen, const Tav16s* dly, Tav8u* buf);
TavStatus tavsFIRInit_64fc(FIRState_64fc** state, const Tav64fc* taps, int tapsLen, const Tav64fc* dly, Tav8u* buf);
TavStatus tavsFIRInit64fc_32fc(FIRState64fc_32fc** state, const Tav64fc* taps, int tapsLen, const Tav32fc* dly,
                               Tav8u* buf);
TavStatus tavsFIRInit64fc_32sc(FIRState64fc_32sc** state, const Tav64fc* taps, int tapsLen, const Tav32sc* dly,
                               Tav8u* buf);
TavStatus tavsFIRInit64fc_16sc(FIRState64fc_16sc** state, const Tav64fc* taps, int tapsLen, const Tav16sc* dly,
                               Tav8u* buf);
/** @} */

/** @name tavsFIRInitAlloc, taps in floats
 *  @{ */
/**
 * Sets a filter up in memory that it allocates; tavsFIRFree() releases it.
 *
 * @param state   receives the filter.
 * @param taps    the taps, h[0] first; they are copied.
 * @param tapsLen number of taps N, at least 1.
 * @param dly     the samples that came before, N of them, the newest first; null: zeros.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state or @p taps is null; #tavStatusBadFirLength if @p tapsLen is
 * below 1; #tavStatusNoMemory. On an error @p state is not written.
 */
TavStatus tavsFIRInitAlloc_32f(FIRState_32f** state, const Tav32f* taps, int tapsLen, const Tav32f* dly);
TavStatus tavsFIRInitAlloc32f_16s(FIRState32f_16s** state, const Tav32f* taps, int tapsLen, const Tav16s* dly);
TavStatus tavsFIRInitAlloc_32fc(FIRState_32fc** state, const Tav32fc* taps, int tapsLen, const Tav32fc* dly);
TavStatus tavsFIRInitAlloc32fc_16sc(FIRState32fc_16sc** state, const Tav32fc* taps, int tapsLen, const Tav16sc* dly);
TavStatus tavsFIRInitAlloc_64f(FIRState_64f** state, const Tav64f* taps, int tapsLen, const Tav64f* dly);
TavStatus tavsFIRInitAlloc64f_32f(FIRState64f_32f** state, const Tav64f* taps, int tapsLen, const Tav32f* dly);
TavStatus tavsFIRInitAlloc64f_32s(FIRState64f_32s** state, const Tav64f* taps, int tapsLen, const Tav32s* dly);
TavStatus tavsFIRInitAlloc_32s(FIRState64f_32s** state, const Tav32s* taps, int tapsLen, const Tav32s* dly);
TavStatus tavsFIRInitAlloc64f_16s(FIRState64f_16s** state, const Tav64f* taps, int tapsLen, const Tav16s* dly);
TavStatus tavsFIRInitAlloc_64fc(FIRState_64fc** state, const Tav64fc* taps, int tapsLen, const Tav64fc* dly);
TavStatus tavsFIRInitAlloc64fc_32fc(FIRState64fc_32fc** state, const Tav64fc* taps, int tapsLen, const Tav32fc* dly);
TavStatus tavsFIRInitAlloc64fc_32sc(FIRState64fc_32sc** state, const Tav64fc* taps, int tapsLen, const Tav32sc* dly);
TavStatus tavsFIRInitAlloc64fc_16sc(FIRState64fc_16sc** state, const Tav64fc* taps, int tapsLen, const Tav16sc* dly);
/** @} */

/** @name tavsFIRFree, taps in floats
 *  @{ */
/**
 * Releases a filter of tavsFIRInitAlloc(). One of tavsFIRInit() is left as it is.
 *
 * @param state the filter.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state is null; #tavStatusBadContext if it is no filter of this
 * type.
 */
TavStatus tavsFIRFree_32f(FIRState_32f* state);
TavStatus tavsFIRFree32f_16s(FIRState32f_16s* state);
TavStatus tavsFIRFree_32fc(FIRState_32fc* state);
TavStatus tavsFIRFree32fc_16sc(FIRState32fc_16sc* state);
TavStatus tavsFIRFree_64f(FIRState_64f* state);
TavStatus tavsFIRFree64f_32f(FIRState64f_32f* state);
TavStatus tavsFIRFree64f_32s(FIRState64f_32s* state);
TavStatus tavsFIRFree_32s(FIRState64f_32s* state);
TavStatus tavsFIRFree64f_16s(FIRState64f_16s* state);
TavStatus tavsFIRFree_64fc(FIRState_64fc* state);
TavStatus tavsFIRFree64fc_32fc(FIRState64fc_32fc* state);
TavStatus tavsFIRFree64fc_32sc(FIRState64fc_32sc* state);
TavStatus tavsFIRFree64fc_16sc(FIRState64fc_16sc* state);
/** @} */

/** @name tavsFIR, taps and data in floats
 *  @{ */
/**
 * Filters a block of samples, which continues those of the calls before.
 *
 * @param src   source, @p len samples.
 * @param dst   destination, @p len samples; may be @p src itself and must not overlap it otherwise.
 * @param len   number of samples, at least 1.
 * @param state the filter.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusBadContext if @p state is no filter of this type.
 */
TavStatus tavsFIR_32f(const Tav32f* src, Tav32f* dst, int len, FIRState_32f* state);
TavStatus tavsFIR_32fc(const Tav32fc* src, Tav32fc* dst, int len, FIRState_32fc* state);
TavStatus tavsFIR_64f(const Tav64f* src, Tav64f* dst, int len, FIRState_64f* state);
TavStatus tavsFIR64f_32f(const Tav32f* src, Tav32f* dst, int len, FIRState64f_32f* state);
TavStatus tavsFIR_64fc(const Tav64fc* src, Tav64fc* dst, int len, FIRState_64fc* state);
TavStatus tavsFIR64fc_32fc(const Tav32fc* src, Tav32fc* dst, int len, FIRState64fc_32fc* state);
/** @} */

/** @name tavsFIR, taps in floats, data in integers
 *  @{ */
/**
 * Filters a block of samples, which continues those of the calls before. Results are multiplied by
 * 2^-scaleFactor, rounded to nearest, ties to even, and saturated.
 *
 * @param src         source, @p len samples.
 * @param dst         destination, @p len samples; may be @p src itself and must not overlap it otherwise.
 * @param len         number of samples, at least 1.
 * @param state       the filter.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusBadContext if @p state is no filter of this type.
 */
TavStatus tavsFIR32f_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, FIRState32f_16s* state, int scaleFactor);
TavStatus tavsFIR32fc_16sc_Sfs(const Tav16sc* src, Tav16sc* dst, int len, FIRState32fc_16sc* state, int scaleFactor);
TavStatus tavsFIR64f_32s_Sfs(const Tav32s* src, Tav32s* dst, int len, FIRState64f_32s* state, int scaleFactor);
TavStatus tavsFIR_32s_Sfs(const Tav32s* src, Tav32s* dst, int len, FIRState64f_32s* state, int scaleFactor);
TavStatus tavsFIR64f_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, FIRState64f_16s* state, int scaleFactor);
TavStatus tavsFIR64fc_32sc_Sfs(const Tav32sc* src, Tav32sc* dst, int len, FIRState64fc_32sc* state, int scaleFactor);
TavStatus tavsFIR64fc_16sc_Sfs(const Tav16sc* src, Tav16sc* dst, int len, FIRState64fc_16sc* state, int scaleFactor);
/** @} */

/** @name tavsFIR, taps and data in floats, in place
 *  @{ */
/**
 * Filters a block of samples where they stand.
 *
 * @param srcDst @p len samples, replaced by the results.
 * @param len    number of samples, at least 1.
 * @param state  the filter.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusBadContext if @p state is no filter of this type.
 */
TavStatus tavsFIR_32f_I(Tav32f* srcDst, int len, FIRState_32f* state);
TavStatus tavsFIR_32fc_I(Tav32fc* srcDst, int len, FIRState_32fc* state);
TavStatus tavsFIR_64f_I(Tav64f* srcDst, int len, FIRState_64f* state);
TavStatus tavsFIR64f_32f_I(Tav32f* srcDst, int len, FIRState64f_32f* state);
TavStatus tavsFIR_64fc_I(Tav64fc* srcDst, int len, FIRState_64fc* state);
TavStatus tavsFIR64fc_32fc_I(Tav32fc* srcDst, int len, FIRState64fc_32fc* state);
/** @} */

/** @name tavsFIR, taps in floats, data in integers, in place
 *  @{ */
/**
 * Filters a block of samples where they stand. Results are multiplied by 2^-scaleFactor, rounded to nearest, ties to
 * even, and saturated.
 *
 * @param srcDst      @p len samples, replaced by the results.
 * @param len         number of samples, at least 1.
 * @param state       the filter.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusBadContext if @p state is no filter of this type.
 */
TavStatus tavsFIR32f_16s_ISfs(Tav16s* srcDst, int len, FIRState32f_16s* state, int scaleFactor);
TavStatus tavsFIR32fc_16sc_ISfs(Tav16sc* srcDst, int len, FIRState32fc_16sc* state, int scaleFactor);
TavStatus tavsFIR64f_32s_ISfs(Tav32s* srcDst, int len, FIRState64f_32s* state, int scaleFactor);
TavStatus tavsFIR_32s_ISfs(Tav32s* srcDst, int len, FIRState64f_32s* state, int scaleFactor);
TavStatus tavsFIR64f_16s_ISfs(Tav16s* srcDst, int len, FIRState64f_16s* state, int scaleFactor);
TavStatus tavsFIR64fc_32sc_ISfs(Tav32sc* srcDst, int len, FIRState64fc_32sc* state, int scaleFactor);
TavStatus tavsFIR64fc_16sc_ISfs(Tav16sc* srcDst, int len, FIRState64fc_16sc* state, int scaleFactor);
/** @} */

/** @name tavsFIROne, taps and data in floats
 *  @{ */
/**
 * Filters one sample.
 *
 * @param val   the sample.
 * @param dst   receives the result.
 * @param state the filter.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadContext if @p state is no filter of
 * this type and of single rate.
 */
TavStatus tavsFIROne_32f(Tav32f val, Tav32f* dst, FIRState_32f* state);
TavStatus tavsFIROne_32fc(Tav32fc val, Tav32fc* dst, FIRState_32fc* state);
TavStatus tavsFIROne_64f(Tav64f val, Tav64f* dst, FIRState_64f* state);
TavStatus tavsFIROne64f_32f(Tav32f val, Tav32f* dst, FIRState64f_32f* state);
TavStatus tavsFIROne_64fc(Tav64fc val, Tav64fc* dst, FIRState_64fc* state);
TavStatus tavsFIROne64fc_32fc(Tav32fc val, Tav32fc* dst, FIRState64fc_32fc* state);
/** @} */

/** @name tavsFIROne, taps in floats, data in integers
 *  @{ */
/**
 * Filters one sample. The result is multiplied by 2^-scaleFactor, rounded to nearest, ties to even, and saturated.
 *
 * @param val         the sample.
 * @param dst         receives the result.
 * @param state       the filter.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadContext if @p state is no filter of
 * this type and of single rate.
 */
TavStatus tavsFIROne32f_16s_Sfs(Tav16s val, Tav16s* dst, FIRState32f_16s* state, int scaleFactor);
TavStatus tavsFIROne32fc_16sc_Sfs(Tav16sc val, Tav16sc* dst, FIRState32fc_16sc* state, int scaleFactor);
TavStatus tavsFIROne64f_32s_Sfs(Tav32s val, Tav32s* dst, FIRState64f_32s* state, int scaleFactor);
TavStatus tavsFIROne_32s_Sfs(Tav32s val, Tav32s* dst, FIRState64f_32s* state, int scaleFactor);
TavStatus tavsFIROne64f_16s_Sfs(Tav16s val, Tav16s* dst, FIRState64f_16s* state, int scaleFactor);
TavStatus tavsFIROne64fc_32sc_Sfs(Tav32sc val, Tav32sc* dst, FIRState64fc_32sc* state, int scaleFactor);
TavStatus tavsFIROne64fc_16sc_Sfs(Tav16sc val, Tav16sc* dst, FIRState64fc_16sc* state, int scaleFactor);
/** @} */

/** @name tavsFIRGetTaps, taps in floats
 *  @{ */
/**
 * Tells the taps. tavsFIRGetTaps_32s() cuts off what is no integer.
 *
 * @param state the filter.
 * @param taps  receives the N taps, h[0] first.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadContext if @p state is no filter of
 * this type.
 */
TavStatus tavsFIRGetTaps_32f(const FIRState_32f* state, Tav32f* taps);
TavStatus tavsFIRGetTaps32f_16s(const FIRState32f_16s* state, Tav32f* taps);
TavStatus tavsFIRGetTaps_32fc(const FIRState_32fc* state, Tav32fc* taps);
TavStatus tavsFIRGetTaps32fc_16sc(const FIRState32fc_16sc* state, Tav32fc* taps);
TavStatus tavsFIRGetTaps_64f(const FIRState_64f* state, Tav64f* taps);
TavStatus tavsFIRGetTaps64f_32f(const FIRState64f_32f* state, Tav64f* taps);
TavStatus tavsFIRGetTaps64f_32s(const FIRState64f_32s* state, Tav64f* taps);
TavStatus tavsFIRGetTaps_32s(const FIRState64f_32s* state, Tav32s* taps);
TavStatus tavsFIRGetTaps64f_16s(const FIRState64f_16s* state, Tav64f* taps);
TavStatus tavsFIRGetTaps_64fc(const FIRState_64fc* state, Tav64fc* taps);
TavStatus tavsFIRGetTaps64fc_32fc(const FIRState64fc_32fc* state, Tav64fc* taps);
TavStatus tavsFIRGetTaps64fc_32sc(const FIRState64fc_32sc* state, Tav64fc* taps);
TavStatus tavsFIRGetTaps64fc_16sc(const FIRState64fc_16sc* state, Tav64fc* taps);
/** @} */

/** @name tavsFIRSetTaps, taps in floats
 *  @{ */
/**
 * Replaces the taps. The delay line stays.
 *
 * @param taps  the N taps, h[0] first; they are copied.
 * @param state the filter.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadContext if @p state is no filter of
 * this type.
 */
TavStatus tavsFIRSetTaps_32f(const Tav32f* taps, FIRState_32f* state);
TavStatus tavsFIRSetTaps32f_16s(const Tav32f* taps, FIRState32f_16s* state);
TavStatus tavsFIRSetTaps_32fc(const Tav32fc* taps, FIRState_32fc* state);
TavStatus tavsFIRSetTaps32fc_16sc(const Tav32fc* taps, FIRState32fc_16sc* state);
TavStatus tavsFIRSetTaps_64f(const Tav64f* taps, FIRState_64f* state);
TavStatus tavsFIRSetTaps64f_32f(const Tav64f* taps, FIRState64f_32f* state);
TavStatus tavsFIRSetTaps64f_32s(const Tav64f* taps, FIRState64f_32s* state);
TavStatus tavsFIRSetTaps_32s(const Tav32s* taps, FIRState64f_32s* state);
TavStatus tavsFIRSetTaps64f_16s(const Tav64f* taps, FIRState64f_16s* state);
TavStatus tavsFIRSetTaps_64fc(const Tav64fc* taps, FIRState_64fc* state);
TavStatus tavsFIRSetTaps64fc_32fc(const Tav64fc* taps, FIRState64fc_32fc* state);
TavStatus tavsFIRSetTaps64fc_32sc(const Tav64fc* taps, FIRState64fc_32sc* state);
TavStatus tavsFIRSetTaps64fc_16sc(const Tav64fc* taps, FIRState64fc_16sc* state);
/** @} */

/** @name tavsFIRGetDlyLine, taps in floats
 *  @{ */
/**
 * Tells the samples that a filter remembers.
 *
 * @param state the filter.
 * @param dly   receives the last N samples, the newest first.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadContext if @p state is no filter of
 * this type.
 */
TavStatus tavsFIRGetDlyLine_32f(const FIRState_32f* state, Tav32f* dly);
TavStatus tavsFIRGetDlyLine32f_16s(const FIRState32f_16s* state, Tav16s* dly);
TavStatus tavsFIRGetDlyLine_32fc(const FIRState_32fc* state, Tav32fc* dly);
TavStatus tavsFIRGetDlyLine32fc_16sc(const FIRState32fc_16sc* state, Tav16sc* dly);
TavStatus tavsFIRGetDlyLine_64f(const FIRState_64f* state, Tav64f* dly);
TavStatus tavsFIRGetDlyLine64f_32f(const FIRState64f_32f* state, Tav32f* dly);
TavStatus tavsFIRGetDlyLine64f_32s(const FIRState64f_32s* state, Tav32s* dly);
TavStatus tavsFIRGetDlyLine_32s(const FIRState64f_32s* state, Tav32s* dly);
TavStatus tavsFIRGetDlyLine64f_16s(const FIRState64f_16s* state, Tav16s* dly);
TavStatus tavsFIRGetDlyLine_64fc(const FIRState_64fc* state, Tav64fc* dly);
TavStatus tavsFIRGetDlyLine64fc_32fc(const FIRState64fc_32fc* state, Tav32fc* dly);
TavStatus tavsFIRGetDlyLine64fc_32sc(const FIRState64fc_32sc* state, Tav32sc* dly);
TavStatus tavsFIRGetDlyLine64fc_16sc(const FIRState64fc_16sc* state, Tav16sc* dly);
/** @} */

/** @name tavsFIRSetDlyLine, taps in floats
 *  @{ */
/**
 * Replaces the samples that a filter remembers.
 *
 * @param state the filter.
 * @param dly   N samples, the newest first; null: zeros.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state is null; #tavStatusBadContext if it is no filter of this
 * type.
 */
TavStatus tavsFIRSetDlyLine_32f(FIRState_32f* state, const Tav32f* dly);
TavStatus tavsFIRSetDlyLine32f_16s(FIRState32f_16s* state, const Tav16s* dly);
TavStatus tavsFIRSetDlyLine_32fc(FIRState_32fc* state, const Tav32fc* dly);
TavStatus tavsFIRSetDlyLine32fc_16sc(FIRState32fc_16sc* state, const Tav16sc* dly);
TavStatus tavsFIRSetDlyLine_64f(FIRState_64f* state, const Tav64f* dly);
TavStatus tavsFIRSetDlyLine64f_32f(FIRState64f_32f* state, const Tav32f* dly);
TavStatus tavsFIRSetDlyLine64f_32s(FIRState64f_32s* state, const Tav32s* dly);
TavStatus tavsFIRSetDlyLine_32s(FIRState64f_32s* state, const Tav32s* dly);
TavStatus tavsFIRSetDlyLine64f_16s(FIRState64f_16s* state, const Tav16s* dly);
TavStatus tavsFIRSetDlyLine_64fc(FIRState_64fc* state, const Tav64fc* dly);
TavStatus tavsFIRSetDlyLine64fc_32fc(FIRState64fc_32fc* state, const Tav32fc* dly);
TavStatus tavsFIRSetDlyLine64fc_32sc(FIRState64fc_32sc* state, const Tav32sc* dly);
TavStatus tavsFIRSetDlyLine64fc_16sc(FIRState64fc_16sc* state, const Tav16sc* dly);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
