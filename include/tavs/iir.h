/**
 * @file iir.h
 * IIR filters of arbitrary order.
 */
#ifndef TAVS_IIR_H
#define TAVS_IIR_H

#include "contexts.h"
#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup iir IIR filters of arbitrary order
 *
 *  A filter of order N with the taps b[0] ... b[N] and a[0] ... a[N] makes of the samples x the samples
 *
 *      y[n] = (sum over k from 0 to N of b[k] x[n-k] - sum over k from 1 to N of a[k] y[n-k]) / a[0]
 *
 *  The state holds the taps and the delay line, so that a stream may be filtered in blocks of any lengths. It comes
 *  from tavsIIRInitAlloc(), which takes the memory it needs and which tavsIIRFree() gives back, or from tavsIIRInit(),
 *  which works in memory of the caller's. One call at a time may use a state.
 *
 *  @par Names
 *  The types behind a name are those of the taps and of the samples: tavsIIR64f_32s_Sfs() filters 32-bit integers with
 *  taps in doubles. One type alone stands for both. The filter computes in singles, or in doubles where the taps are
 *  doubles; with complex taps it computes complex numbers. Integer taps have a factor of their own: a tap counts as
 *  tap * 2^-tapsFactor. The two forms `32s_16s32f` and `32sc_16sc32fc` give float taps to states of integer taps.
 *
 *  @par Taps
 *  2(N+1) values: b[0], b[1], ..., b[N], a[0], a[1], ..., a[N]. They are stored divided by a[0], which must not be 0.
 *  Nothing tests where the poles are: a filter with one outside the unit circle grows without bound.
 *
 *  @par Delay line
 *  N values d[0] ... d[N-1] of the transposed direct form 2:
 *
 *      y[n] = b[0] x[n] + d[0];  d[i] becomes b[i+1] x[n] - a[i+1] y[n] + d[i+1], with d[N] = 0
 *
 *  (b and a divided by a[0]). They are of the type that the filter computes in; where the taps are integers, the array
 *  of 32-bit integers holds the bits of singles.
 *
 *  @par Precision
 *  A block is computed four outputs at a time from those before them, so that results differ from the plain recursion,
 *  and with the split of a stream into blocks, by rounding errors; these a filter with poles close to the unit circle
 *  amplifies as it does those of the recursion. Computation follows the caller's rounding mode; where samples are
 *  integers it is to nearest.
 *
 *  @par Scale factor
 *  Where samples are integers, a result times 2^-scaleFactor is rounded to nearest, ties to even, and saturated. Only
 *  the low 7 bits of the factor's magnitude count: 128 and -128 act as 0, and a filter in singles gives zeros with
 *  127.
 *  @{ */

/** @name tavsIIRGetStateSize
 *  @{ */
/**
 * Tells the size of the memory that a state needs.
 *
 * @param order the order N, at least 1.
 * @param size  receives the bytes.
 * @return #tavStatusOk; #tavStatusNullPointer if @p size is null; else #tavStatusBadIirOrder if @p order is below 1.
 */
TavStatus tavsIIRGetStateSize_32f(int order, int* size);
TavStatus tavsIIRGetStateSize_32fc(int order, int* size);
TavStatus tavsIIRGetStateSize32f_16s(int order, int* size);
TavStatus tavsIIRGetStateSize32fc_16sc(int order, int* size);
TavStatus tavsIIRGetStateSize32s_16s(int order, int* size);
TavStatus tavsIIRGetStateSize32sc_16sc(int order, int* size);
TavStatus tavsIIRGetStateSize_64f(int order, int* size);
TavStatus tavsIIRGetStateSize_64fc(int order, int* size);
TavStatus tavsIIRGetStateSize64f_32f(int order, int* size);
TavStatus tavsIIRGetStateSize64fc_32fc(int order, int* size);
TavStatus tavsIIRGetStateSize64f_32s(int order, int* size);
TavStatus tavsIIRGetStateSize64fc_32sc(int order, int* size);
TavStatus tavsIIRGetStateSize64f_16s(int order, int* size);
TavStatus tavsIIRGetStateSize64fc_16sc(int order, int* size);
TavStatus tavsIIRGetStateSize32s_16s32f(int order, int* size);
TavStatus tavsIIRGetStateSize32sc_16sc32fc(int order, int* size);
/** @} */

/** @name tavsIIRInit
 *  @{ */
/**
 * Sets a state up in memory of the caller's.
 *
 * @param state receives the state, which lies inside @p buf and must not be moved.
 * @param taps  2(N+1) taps.
 * @param order the order N.
 * @param dly   the delay line, N values; null: zeros.
 * @param buf   the memory, of the size that tavsIIRGetStateSize() tells, at any address; it lives as long as the
 *              state.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state, @p taps or @p buf is null; else #tavStatusBadIirOrder if @p
 *         order is below 1; #tavStatusDivideByZero if a[0] is 0. On an error @p state is not written.
 */
TavStatus tavsIIRInit_32f(IIRState_32f** state, const Tav32f* taps, int order, const Tav32f* dly, Tav8u* buf);
TavStatus tavsIIRInit_32fc(IIRState_32fc** state, const Tav32fc* taps, int order, const Tav32fc* dly, Tav8u* buf);
TavStatus tavsIIRInit32f_16s(IIRState32f_16s** state, const Tav32f* taps, int order, const Tav32f* dly, Tav8u* buf);
TavStatus tavsIIRInit32fc_16sc(IIRState32fc_16sc** state, const Tav32fc* taps, int order, const Tav32fc* dly,
                               Tav8u* buf);
TavStatus tavsIIRInit_64f(IIRState_64f** state, const Tav64f* taps, int order, const Tav64f* dly, Tav8u* buf);
TavStatus tavsIIRInit_64fc(IIRState_64fc** state, const Tav64fc* taps, int order, const Tav64fc* dly, Tav8u* buf);
TavStatus tavsIIRInit64f_32f(IIRState64f_32f** state, const Tav64f* taps, int order, const Tav64f* dly, Tav8u* buf);
TavStatus tavsIIRInit64fc_32fc(IIRState64fc_32fc** state, const Tav64fc* taps, int order, const Tav64fc* dly,
                               Tav8u* buf);
TavStatus tavsIIRInit64f_32s(IIRState64f_32s** state, const Tav64f* taps, int order, const Tav64f* dly, Tav8u* buf);
TavStatus tavsIIRInit64fc_32sc(IIRState64fc_32sc** state, const Tav64fc* taps, int order, const Tav64fc* dly,
                               Tav8u* buf);
TavStatus tavsIIRInit64f_16s(IIRState64f_16s** state, const Tav64f* taps, int order, const Tav64f* dly, Tav8u* buf);
TavStatus tavsIIRInit64fc_16sc(IIRState64fc_16sc** state, const Tav64fc* taps, int order, const Tav64fc* dly,
                               Tav8u* buf);
TavStatus tavsIIRInit32s_16s32f(IIRState32s_16s** state, const Tav32f* taps, int order, const Tav32s* dly, Tav8u* buf);
TavStatus tavsIIRInit32sc_16sc32fc(IIRState32sc_16sc** state, const Tav32fc* taps, int order, const Tav32sc* dly,
                                   Tav8u* buf);
/** @} */

/** @name tavsIIRInit, integer taps
 *  @{ */
/**
 * Sets a state up in memory of the caller's, with integer taps. The call allocates memory for the time it lasts.
 *
 * @param state      receives the state, which lies inside @p buf and must not be moved.
 * @param taps       2(N+1) taps.
 * @param order      the order N.
 * @param tapsFactor a tap counts as tap * 2^-tapsFactor.
 * @param dly        the delay line, N values; null: zeros.
 * @param buf        the memory, of the size that tavsIIRGetStateSize() tells, at any address; it lives as long as the
 *                   state.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state, @p taps or @p buf is null; else #tavStatusBadIirOrder if @p
 *         order is below 1; #tavStatusNoMemory; #tavStatusDivideByZero if a[0] is 0. On an error @p state is not
 *         written.
 */
TavStatus tavsIIRInit32s_16s(IIRState32s_16s** state, const Tav32s* taps, int order, int tapsFactor, const Tav32s* dly,
                             Tav8u* buf);
TavStatus tavsIIRInit32sc_16sc(IIRState32sc_16sc** state, const Tav32sc* taps, int order, int tapsFactor,
                               const Tav32sc* dly, Tav8u* buf);
/** @} */

/** @name tavsIIRInitAlloc
 *  @{ */
/**
 * Sets a state up in memory that it allocates; tavsIIRFree() releases it.
 *
 * @param state receives the state.
 * @param taps  2(N+1) taps.
 * @param order the order N.
 * @param dly   the delay line, N values; null: zeros.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state or @p taps is null; else #tavStatusBadIirOrder if @p order
 *         is below 1; #tavStatusNoMemory; #tavStatusDivideByZero if a[0] is 0. On an error @p state is not written.
 */
TavStatus tavsIIRInitAlloc_32f(IIRState_32f** state, const Tav32f* taps, int order, const Tav32f* dly);
TavStatus tavsIIRInitAlloc_32fc(IIRState_32fc** state, const Tav32fc* taps, int order, const Tav32fc* dly);
TavStatus tavsIIRInitAlloc32f_16s(IIRState32f_16s** state, const Tav32f* taps, int order, const Tav32f* dly);
TavStatus tavsIIRInitAlloc32fc_16sc(IIRState32fc_16sc** state, const Tav32fc* taps, int order, const Tav32fc* dly);
TavStatus tavsIIRInitAlloc_64f(IIRState_64f** state, const Tav64f* taps, int order, const Tav64f* dly);
TavStatus tavsIIRInitAlloc_64fc(IIRState_64fc** state, const Tav64fc* taps, int order, const Tav64fc* dly);
TavStatus tavsIIRInitAlloc64f_32f(IIRState64f_32f** state, const Tav64f* taps, int order, const Tav64f* dly);
TavStatus tavsIIRInitAlloc64fc_32fc(IIRState64fc_32fc** state, const Tav64fc* taps, int order, const Tav64fc* dly);
TavStatus tavsIIRInitAlloc64f_32s(IIRState64f_32s** state, const Tav64f* taps, int order, const Tav64f* dly);
TavStatus tavsIIRInitAlloc64fc_32sc(IIRState64fc_32sc** state, const Tav64fc* taps, int order, const Tav64fc* dly);
TavStatus tavsIIRInitAlloc64f_16s(IIRState64f_16s** state, const Tav64f* taps, int order, const Tav64f* dly);
TavStatus tavsIIRInitAlloc64fc_16sc(IIRState64fc_16sc** state, const Tav64fc* taps, int order, const Tav64fc* dly);
TavStatus tavsIIRInitAlloc32s_16s32f(IIRState32s_16s** state, const Tav32f* taps, int order, const Tav32s* dly);
TavStatus tavsIIRInitAlloc32sc_16sc32fc(IIRState32sc_16sc** state, const Tav32fc* taps, int order, const Tav32sc* dly);
/** @} */

/** @name tavsIIRInitAlloc, integer taps
 *  @{ */
/**
 * Sets a state up in memory that it allocates, with integer taps; tavsIIRFree() releases it.
 *
 * @param state      receives the state.
 * @param taps       2(N+1) taps.
 * @param order      the order N.
 * @param tapsFactor a tap counts as tap * 2^-tapsFactor.
 * @param dly        the delay line, N values; null: zeros.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state or @p taps is null; else #tavStatusBadIirOrder if @p order
 *         is below 1; #tavStatusNoMemory; #tavStatusDivideByZero if a[0] is 0. On an error @p state is not written.
 */
TavStatus tavsIIRInitAlloc32s_16s(IIRState32s_16s** state, const Tav32s* taps, int order, int tapsFactor,
                                  const Tav32s* dly);
TavStatus tavsIIRInitAlloc32sc_16sc(IIRState32sc_16sc** state, const Tav32sc* taps, int order, int tapsFactor,
                                    const Tav32sc* dly);
/** @} */

/** @name tavsIIRFree
 *  @{ */
/**
 * Releases a state that tavsIIRInitAlloc() set up. One in the caller's memory is left as it is. Serves the states of
 * every structure.
 *
 * @param state the state.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state is null; #tavStatusBadContext if it is no state of this
 *         type.
 */
TavStatus tavsIIRFree_32f(IIRState_32f* state);
TavStatus tavsIIRFree_32fc(IIRState_32fc* state);
TavStatus tavsIIRFree32f_16s(IIRState32f_16s* state);
TavStatus tavsIIRFree32fc_16sc(IIRState32fc_16sc* state);
TavStatus tavsIIRFree32s_16s(IIRState32s_16s* state);
TavStatus tavsIIRFree32sc_16sc(IIRState32sc_16sc* state);
TavStatus tavsIIRFree_64f(IIRState_64f* state);
TavStatus tavsIIRFree_64fc(IIRState_64fc* state);
TavStatus tavsIIRFree64f_32f(IIRState64f_32f* state);
TavStatus tavsIIRFree64fc_32fc(IIRState64fc_32fc* state);
TavStatus tavsIIRFree64f_32s(IIRState64f_32s* state);
TavStatus tavsIIRFree64fc_32sc(IIRState64fc_32sc* state);
TavStatus tavsIIRFree64f_16s(IIRState64f_16s* state);
TavStatus tavsIIRFree64fc_16sc(IIRState64fc_16sc* state);
/** @} */

/** @name tavsIIRSetTaps
 *  @{ */
/**
 * Gives a state other taps. The delay line and the order stay. Serves the states of every structure, whose taps are
 * those of its set-up.
 *
 * @param taps  2(N+1) taps.
 * @param state the state.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; else #tavStatusBadContext if @p state is no state
 *         of this type; #tavStatusDivideByZero if a[0] is 0, when a filter of arbitrary order keeps the taps of
 *         before.
 */
TavStatus tavsIIRSetTaps_32f(const Tav32f* taps, IIRState_32f* state);
TavStatus tavsIIRSetTaps_32fc(const Tav32fc* taps, IIRState_32fc* state);
TavStatus tavsIIRSetTaps32f_16s(const Tav32f* taps, IIRState32f_16s* state);
TavStatus tavsIIRSetTaps32fc_16sc(const Tav32fc* taps, IIRState32fc_16sc* state);
TavStatus tavsIIRSetTaps_64f(const Tav64f* taps, IIRState_64f* state);
TavStatus tavsIIRSetTaps_64fc(const Tav64fc* taps, IIRState_64fc* state);
TavStatus tavsIIRSetTaps64f_32f(const Tav64f* taps, IIRState64f_32f* state);
TavStatus tavsIIRSetTaps64fc_32fc(const Tav64fc* taps, IIRState64fc_32fc* state);
TavStatus tavsIIRSetTaps64f_32s(const Tav64f* taps, IIRState64f_32s* state);
TavStatus tavsIIRSetTaps64fc_32sc(const Tav64fc* taps, IIRState64fc_32sc* state);
TavStatus tavsIIRSetTaps64f_16s(const Tav64f* taps, IIRState64f_16s* state);
TavStatus tavsIIRSetTaps64fc_16sc(const Tav64fc* taps, IIRState64fc_16sc* state);
TavStatus tavsIIRSetTaps32s_16s32f(const Tav32f* taps, IIRState32s_16s* state);
TavStatus tavsIIRSetTaps32sc_16sc32fc(const Tav32fc* taps, IIRState32sc_16sc* state);
/** @} */

/** @name tavsIIRSetTaps, integer taps
 *  @{ */
/**
 * Gives a state other taps. The delay line and the order stay. The call allocates memory for the time it lasts.
 *
 * @param taps       2(N+1) taps.
 * @param state      the state.
 * @param tapsFactor a tap counts as tap * 2^-tapsFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; else #tavStatusBadContext if @p state is no state
 *         of this type; #tavStatusNoMemory; #tavStatusDivideByZero if a[0] is 0. On an error a filter of arbitrary
 *         order keeps the taps of before.
 */
TavStatus tavsIIRSetTaps32s_16s(const Tav32s* taps, IIRState32s_16s* state, int tapsFactor);
TavStatus tavsIIRSetTaps32sc_16sc(const Tav32sc* taps, IIRState32sc_16sc* state, int tapsFactor);
/** @} */

/** @name tavsIIRGetDlyLine
 *  @{ */
/**
 * Tells the delay line of a state. Serves the states of every structure but where a structure has a call of its own.
 *
 * @param state the state.
 * @param dly   receives the N values.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; else #tavStatusBadContext if @p state is no state
 *         of this type.
 */
TavStatus tavsIIRGetDlyLine_32f(const IIRState_32f* state, Tav32f* dly);
TavStatus tavsIIRGetDlyLine_32fc(const IIRState_32fc* state, Tav32fc* dly);
TavStatus tavsIIRGetDlyLine32f_16s(const IIRState32f_16s* state, Tav32f* dly);
TavStatus tavsIIRGetDlyLine32fc_16sc(const IIRState32fc_16sc* state, Tav32fc* dly);
TavStatus tavsIIRGetDlyLine32s_16s(const IIRState32s_16s* state, Tav32s* dly);
TavStatus tavsIIRGetDlyLine32sc_16sc(const IIRState32sc_16sc* state, Tav32sc* dly);
TavStatus tavsIIRGetDlyLine_64f(const IIRState_64f* state, Tav64f* dly);
TavStatus tavsIIRGetDlyLine_64fc(const IIRState_64fc* state, Tav64fc* dly);
TavStatus tavsIIRGetDlyLine64f_32f(const IIRState64f_32f* state, Tav64f* dly);
TavStatus tavsIIRGetDlyLine64fc_32fc(const IIRState64fc_32fc* state, Tav64fc* dly);
TavStatus tavsIIRGetDlyLine64f_32s(const IIRState64f_32s* state, Tav64f* dly);
TavStatus tavsIIRGetDlyLine64fc_32sc(const IIRState64fc_32sc* state, Tav64fc* dly);
TavStatus tavsIIRGetDlyLine64f_16s(const IIRState64f_16s* state, Tav64f* dly);
TavStatus tavsIIRGetDlyLine64fc_16sc(const IIRState64fc_16sc* state, Tav64fc* dly);
/** @} */

/** @name tavsIIRSetDlyLine
 *  @{ */
/**
 * Gives a state another delay line. Serves the states of every structure but where a structure has a call of its own.
 *
 * @param state the state.
 * @param dly   the N values; null: zeros.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state is null; #tavStatusBadContext if it is no state of this
 *         type.
 */
TavStatus tavsIIRSetDlyLine_32f(IIRState_32f* state, const Tav32f* dly);
TavStatus tavsIIRSetDlyLine_32fc(IIRState_32fc* state, const Tav32fc* dly);
TavStatus tavsIIRSetDlyLine32f_16s(IIRState32f_16s* state, const Tav32f* dly);
TavStatus tavsIIRSetDlyLine32fc_16sc(IIRState32fc_16sc* state, const Tav32fc* dly);
TavStatus tavsIIRSetDlyLine32s_16s(IIRState32s_16s* state, const Tav32s* dly);
TavStatus tavsIIRSetDlyLine32sc_16sc(IIRState32sc_16sc* state, const Tav32sc* dly);
TavStatus tavsIIRSetDlyLine_64f(IIRState_64f* state, const Tav64f* dly);
TavStatus tavsIIRSetDlyLine_64fc(IIRState_64fc* state, const Tav64fc* dly);
TavStatus tavsIIRSetDlyLine64f_32f(IIRState64f_32f* state, const Tav64f* dly);
TavStatus tavsIIRSetDlyLine64fc_32fc(IIRState64fc_32fc* state, const Tav64fc* dly);
TavStatus tavsIIRSetDlyLine64f_32s(IIRState64f_32s* state, const Tav64f* dly);
TavStatus tavsIIRSetDlyLine64fc_32sc(IIRState64fc_32sc* state, const Tav64fc* dly);
TavStatus tavsIIRSetDlyLine64f_16s(IIRState64f_16s* state, const Tav64f* dly);
TavStatus tavsIIRSetDlyLine64fc_16sc(IIRState64fc_16sc* state, const Tav64fc* dly);
/** @} */

/** @name tavsIIR
 *  @{ */
/**
 * Filters a block of samples. Serves the states of every structure.
 *
 * @param src   source.
 * @param dst   destination; may be @p src itself and must not overlap it otherwise.
 * @param len   number of samples, at least 1.
 * @param state the state.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; else #tavStatusBadSize if @p len is below 1; else
 *         #tavStatusBadContext if @p state is no state of this type.
 */
TavStatus tavsIIR_32f(const Tav32f* src, Tav32f* dst, int len, IIRState_32f* state);
TavStatus tavsIIR_32fc(const Tav32fc* src, Tav32fc* dst, int len, IIRState_32fc* state);
TavStatus tavsIIR_64f(const Tav64f* src, Tav64f* dst, int len, IIRState_64f* state);
TavStatus tavsIIR_64fc(const Tav64fc* src, Tav64fc* dst, int len, IIRState_64fc* state);
TavStatus tavsIIR64f_32f(const Tav32f* src, Tav32f* dst, int len, IIRState64f_32f* state);
TavStatus tavsIIR64fc_32fc(const Tav32fc* src, Tav32fc* dst, int len, IIRState64fc_32fc* state);
/** @} */

/** @name tavsIIR, in place
 *  @{ */
/**
 * Filters a block of samples where they stand. Serves the states of every structure.
 *
 * @param srcDst source and destination.
 * @param len    number of samples, at least 1.
 * @param state  the state.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; else #tavStatusBadSize if @p len is below 1; else
 *         #tavStatusBadContext if @p state is no state of this type.
 */
TavStatus tavsIIR_32f_I(Tav32f* srcDst, int len, IIRState_32f* state);
TavStatus tavsIIR_32fc_I(Tav32fc* srcDst, int len, IIRState_32fc* state);
TavStatus tavsIIR_64f_I(Tav64f* srcDst, int len, IIRState_64f* state);
TavStatus tavsIIR_64fc_I(Tav64fc* srcDst, int len, IIRState_64fc* state);
TavStatus tavsIIR64f_32f_I(Tav32f* srcDst, int len, IIRState64f_32f* state);
TavStatus tavsIIR64fc_32fc_I(Tav32fc* srcDst, int len, IIRState64fc_32fc* state);
/** @} */

/** @name tavsIIR, scaled
 *  @{ */
/**
 * Filters a block of integer samples. Serves the states of every structure.
 *
 * @param src         source.
 * @param dst         destination; may be @p src itself and must not overlap it otherwise.
 * @param len         number of samples, at least 1.
 * @param state       the state.
 * @param scaleFactor results are multiplied by 2^-scaleFactor, rounded to nearest, ties to even, and saturated.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; else #tavStatusBadSize if @p len is below 1; else
 *         #tavStatusBadContext if @p state is no state of this type.
 */
TavStatus tavsIIR32f_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, IIRState32f_16s* state, int scaleFactor);
TavStatus tavsIIR32fc_16sc_Sfs(const Tav16sc* src, Tav16sc* dst, int len, IIRState32fc_16sc* state, int scaleFactor);
TavStatus tavsIIR32s_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, IIRState32s_16s* state, int scaleFactor);
TavStatus tavsIIR32sc_16sc_Sfs(const Tav16sc* src, Tav16sc* dst, int len, IIRState32sc_16sc* state, int scaleFactor);
TavStatus tavsIIR64f_32s_Sfs(const Tav32s* src, Tav32s* dst, int len, IIRState64f_32s* state, int scaleFactor);
TavStatus tavsIIR64fc_32sc_Sfs(const Tav32sc* src, Tav32sc* dst, int len, IIRState64fc_32sc* state, int scaleFactor);
TavStatus tavsIIR64f_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, IIRState64f_16s* state, int scaleFactor);
TavStatus tavsIIR64fc_16sc_Sfs(const Tav16sc* src, Tav16sc* dst, int len, IIRState64fc_16sc* state, int scaleFactor);
/** @} */

/** @name tavsIIR, scaled, in place
 *  @{ */
/**
 * Filters a block of integer samples where they stand. Serves the states of every structure.
 *
 * @param srcDst      source and destination.
 * @param len         number of samples, at least 1.
 * @param state       the state.
 * @param scaleFactor results are multiplied by 2^-scaleFactor, rounded to nearest, ties to even, and saturated.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; else #tavStatusBadSize if @p len is below 1; else
 *         #tavStatusBadContext if @p state is no state of this type.
 */
TavStatus tavsIIR32f_16s_ISfs(Tav16s* srcDst, int len, IIRState32f_16s* state, int scaleFactor);
TavStatus tavsIIR32fc_16sc_ISfs(Tav16sc* srcDst, int len, IIRState32fc_16sc* state, int scaleFactor);
TavStatus tavsIIR32s_16s_ISfs(Tav16s* srcDst, int len, IIRState32s_16s* state, int scaleFactor);
TavStatus tavsIIR32sc_16sc_ISfs(Tav16sc* srcDst, int len, IIRState32sc_16sc* state, int scaleFactor);
TavStatus tavsIIR64f_32s_ISfs(Tav32s* srcDst, int len, IIRState64f_32s* state, int scaleFactor);
TavStatus tavsIIR64fc_32sc_ISfs(Tav32sc* srcDst, int len, IIRState64fc_32sc* state, int scaleFactor);
TavStatus tavsIIR64f_16s_ISfs(Tav16s* srcDst, int len, IIRState64f_16s* state, int scaleFactor);
TavStatus tavsIIR64fc_16sc_ISfs(Tav16sc* srcDst, int len, IIRState64fc_16sc* state, int scaleFactor);
/** @} */

/** @name tavsIIROne
 *  @{ */
/**
 * Filters one sample, by the recursion as it is defined.
 *
 * @param val   the sample.
 * @param dst   receives the result.
 * @param state the state; cascades in direct form 1 are none of this call's.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; else #tavStatusBadContext if @p state is no state
 *         of this type.
 */
TavStatus tavsIIROne_32f(Tav32f val, Tav32f* dst, IIRState_32f* state);
TavStatus tavsIIROne_32fc(Tav32fc val, Tav32fc* dst, IIRState_32fc* state);
TavStatus tavsIIROne_64f(Tav64f val, Tav64f* dst, IIRState_64f* state);
TavStatus tavsIIROne_64fc(Tav64fc val, Tav64fc* dst, IIRState_64fc* state);
TavStatus tavsIIROne64f_32f(Tav32f val, Tav32f* dst, IIRState64f_32f* state);
TavStatus tavsIIROne64fc_32fc(Tav32fc val, Tav32fc* dst, IIRState64fc_32fc* state);
/** @} */

/** @name tavsIIROne, scaled
 *  @{ */
/**
 * Filters one integer sample, by the recursion as it is defined.
 *
 * @param val         the sample.
 * @param dst         receives the result.
 * @param state       the state; cascades in direct form 1 are none of this call's.
 * @param scaleFactor the result is multiplied by 2^-scaleFactor, rounded to nearest, ties to even, and saturated.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; else #tavStatusBadContext if @p state is no state
 *         of this type.
 */
TavStatus tavsIIROne32f_16s_Sfs(Tav16s val, Tav16s* dst, IIRState32f_16s* state, int scaleFactor);
TavStatus tavsIIROne32fc_16sc_Sfs(Tav16sc val, Tav16sc* dst, IIRState32fc_16sc* state, int scaleFactor);
TavStatus tavsIIROne32s_16s_Sfs(Tav16s val, Tav16s* dst, IIRState32s_16s* state, int scaleFactor);
TavStatus tavsIIROne32sc_16sc_Sfs(Tav16sc val, Tav16sc* dst, IIRState32sc_16sc* state, int scaleFactor);
TavStatus tavsIIROne64f_32s_Sfs(Tav32s val, Tav32s* dst, IIRState64f_32s* state, int scaleFactor);
TavStatus tavsIIROne64fc_32sc_Sfs(Tav32sc val, Tav32sc* dst, IIRState64fc_32sc* state, int scaleFactor);
TavStatus tavsIIROne64f_16s_Sfs(Tav16s val, Tav16s* dst, IIRState64f_16s* state, int scaleFactor);
TavStatus tavsIIROne64fc_16sc_Sfs(Tav16sc val, Tav16sc* dst, IIRState64fc_16sc* state, int scaleFactor);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
