/**
 * @file fft_real_integer.h
 * Fourier transforms of power-of-two length of real integers: contexts and transforms.
 */
#ifndef TAVS_FFT_REAL_INTEGER_H
#define TAVS_FFT_REAL_INTEGER_H

#include "contexts.h"
#include "fft_flags.h"
#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @addtogroup fft_integer
 *
 *  The spectrum of N real samples comes in one of the formats of fft_real.h: Perm and Pack in N slots, CCS in N + 2
 *  (one sample: 2), whose slots for the imaginary parts of X[0] and X[N/2] are 0 after a forward transform and are not
 *  looked at by an inverse one.
 *  @{ */

/** @name tavsFFTGetSize, real integers
 *  @{ */
/**
 * Tells the sizes of the memory that a context needs.
 *
 * @param order    log2 of the number of points, from 0 to 29; of 32 bits alone to 28, or 27 in the variant s8.
 * @param flag     one of #fftScaleForward, #fftScaleInverse, #fftScaleBoth, #fftScaleNone.
 * @param hint     any value; tavsFFTInit_R_16s() transforms up to 8 samples in fixed point if it is 0 or 1.
 * @param specSize receives the bytes of the context.
 * @param initSize receives the bytes that only the set-up needs; may be 0.
 * @param workSize receives the bytes of work area that a transform needs; may be 0. The greatest orders need more than
 *                 31 bits hold: the number wraps, and a transform gives #tavStatusNoMemory.
 * @return #tavStatusOk; #tavStatusBadOrder if @p order is negative or above 30; else #tavStatusNullPointer if a pointer
 *         is null; else #tavStatusBadFlag if @p flag is none of the four; else #tavStatusBadOrder if @p order is above
 *         the greatest one. On an error nothing is written.
 */
TavStatus tavsFFTGetSize_R_16s(int order, int flag, int hint, int* specSize, int* initSize, int* workSize);
TavStatus tavsFFTGetSize_R_32s(int order, int flag, int hint, int* specSize, int* initSize, int* workSize);
TavStatus tavsFFTGetSize_R_16s32s(int order, int flag, int hint, int* specSize, int* initSize, int* workSize);
/** @} */

/** @name tavsFFTInit, real integers
 *  @{ */
/**
 * Sets a context up in memory of the caller's, at any addresses.
 *
 * @param ctx     receives the context, which lies inside @p mem and must not be moved.
 * @param order   log2 of the number of points.
 * @param flag    one of #fftScaleForward, #fftScaleInverse, #fftScaleBoth, #fftScaleNone.
 * @param hint    as tavsFFTGetSize() was asked with.
 * @param mem     specSize bytes, as tavsFFTGetSize() tells; they live as long as the context.
 * @param initBuf initSize bytes, not needed afterwards; may be null if that is 0.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; else #tavStatusBadOrder if @p order is negative or
 *         above 30; else #tavStatusNullPointer if @p mem is null; else #tavStatusBadFlag if @p flag is none of the
 *         four, #tavStatusNullPointer if @p initBuf is needed and null, #tavStatusBadOrder if @p order is above the
 *         greatest one: so in contexts of 16 bits, which need @p initBuf at any order but 0; in the others the order
 *         comes first. On an error @p ctx is not written.
 */
TavStatus tavsFFTInit_R_16s(FftContext_R_16s** ctx, int order, int flag, int hint, Tav8u* mem, Tav8u* initBuf);
TavStatus tavsFFTInit_R_32s(FftContext_R_32s** ctx, int order, int flag, int hint, Tav8u* mem, Tav8u* initBuf);
TavStatus tavsFFTInit_R_16s32s(FftContext_R_16s32s** ctx, int order, int flag, int hint, Tav8u* mem, Tav8u* initBuf);
/** @} */

/** @name tavsFFTInitAlloc, real integers
 *  @{ */
/**
 * Sets a context up in memory that it allocates; tavsFFTFree() releases it.
 *
 * @param ctx   receives the context.
 * @param order log2 of the number of points.
 * @param flag  one of #fftScaleForward, #fftScaleInverse, #fftScaleBoth, #fftScaleNone.
 * @param hint  as tavsFFTGetSize().
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadOrder or #tavStatusBadFlag as
 *         tavsFFTGetSize(); #tavStatusNoMemory. On an error @p ctx is not written.
 */
TavStatus tavsFFTInitAlloc_R_16s(FftContext_R_16s** ctx, int order, int flag, int hint);
TavStatus tavsFFTInitAlloc_R_32s(FftContext_R_32s** ctx, int order, int flag, int hint);
TavStatus tavsFFTInitAlloc_R_16s32s(FftContext_R_16s32s** ctx, int order, int flag, int hint);
/** @} */

/** @name tavsFFTFree, real integers
 *  @{ */
/**
 * Ends a context, and releases its memory if tavsFFTInitAlloc() took it.
 *
 * @param ctx the context.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadContext if it is no live context of this
 *         type.
 */
TavStatus tavsFFTFree_R_16s(FftContext_R_16s* ctx);
TavStatus tavsFFTFree_R_32s(FftContext_R_32s* ctx);
TavStatus tavsFFTFree_R_16s32s(FftContext_R_16s32s* ctx);
/** @} */

/** @name tavsFFTGetBufSize, real integers
 *  @{ */
/**
 * Tells the size of the work area that a transform with this context needs.
 *
 * @param ctx  the context.
 * @param size receives the bytes; 0 if none is needed.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadContext if it is no live context of this
 *         type; #tavStatusNullPointer if @p size is null.
 */
TavStatus tavsFFTGetBufSize_R_16s(const FftContext_R_16s* ctx, int* size);
TavStatus tavsFFTGetBufSize_R_32s(const FftContext_R_32s* ctx, int* size);
TavStatus tavsFFTGetBufSize_R_16s32s(const FftContext_R_16s32s* ctx, int* size);
/** @} */

/** @name tavsFFTFwd, real integers
 *  @{ */
/**
 * Forward transform of N real samples.
 *
 * @param src         source, N samples.
 * @param dst         receives the spectrum; may be @p src itself and must not overlap it otherwise.
 * @param ctx         a context of this type.
 * @param scaleFactor the results are multiplied by 2^-scaleFactor.
 * @param buf         work area of the size that tavsFFTGetBufSize() tells, at any address; null: the call allocates.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadContext if it is no live context of this
 *         type; #tavStatusNullPointer if a data pointer is null; #tavStatusNoMemory, with the destination as it was.
 */
TavStatus tavsFFTFwd_RToPerm_16s_Sfs(const Tav16s* src, Tav16s* dst, const FftContext_R_16s* ctx, int scaleFactor,
                                     Tav8u* buf);
TavStatus tavsFFTFwd_RToPack_16s_Sfs(const Tav16s* src, Tav16s* dst, const FftContext_R_16s* ctx, int scaleFactor,
                                     Tav8u* buf);
TavStatus tavsFFTFwd_RToCCS_16s_Sfs(const Tav16s* src, Tav16s* dst, const FftContext_R_16s* ctx, int scaleFactor,
                                    Tav8u* buf);
TavStatus tavsFFTFwd_RToPerm_32s_Sfs(const Tav32s* src, Tav32s* dst, const FftContext_R_32s* ctx, int scaleFactor,
                                     Tav8u* buf);
TavStatus tavsFFTFwd_RToPack_32s_Sfs(const Tav32s* src, Tav32s* dst, const FftContext_R_32s* ctx, int scaleFactor,
                                     Tav8u* buf);
TavStatus tavsFFTFwd_RToCCS_32s_Sfs(const Tav32s* src, Tav32s* dst, const FftContext_R_32s* ctx, int scaleFactor,
                                    Tav8u* buf);
TavStatus tavsFFTFwd_RToCCS_16s32s_Sfs(const Tav16s* src, Tav32s* dst, const FftContext_R_16s32s* ctx, int scaleFactor,
                                       Tav8u* buf);
/** @} */

/** @name tavsFFTFwd, real integers, in place
 *  @{ */
/**
 * Forward transform of N real samples, where they stand.
 *
 * @param srcDst      N samples, and room for the spectrum, which is N + 2 elements in CCS order.
 * @param ctx         a context of this type.
 * @param scaleFactor the results are multiplied by 2^-scaleFactor.
 * @param buf         work area of the size that tavsFFTGetBufSize() tells, at any address; null: the call allocates.
 * @return as out of place.
 */
TavStatus tavsFFTFwd_RToPerm_16s_ISfs(Tav16s* srcDst, const FftContext_R_16s* ctx, int scaleFactor, Tav8u* buf);
TavStatus tavsFFTFwd_RToPack_16s_ISfs(Tav16s* srcDst, const FftContext_R_16s* ctx, int scaleFactor, Tav8u* buf);
TavStatus tavsFFTFwd_RToCCS_16s_ISfs(Tav16s* srcDst, const FftContext_R_16s* ctx, int scaleFactor, Tav8u* buf);
TavStatus tavsFFTFwd_RToPerm_32s_ISfs(Tav32s* srcDst, const FftContext_R_32s* ctx, int scaleFactor, Tav8u* buf);
TavStatus tavsFFTFwd_RToPack_32s_ISfs(Tav32s* srcDst, const FftContext_R_32s* ctx, int scaleFactor, Tav8u* buf);
TavStatus tavsFFTFwd_RToCCS_32s_ISfs(Tav32s* srcDst, const FftContext_R_32s* ctx, int scaleFactor, Tav8u* buf);
/** @} */

/** @name tavsFFTInv, real integers
 *  @{ */
/**
 * Inverse transform to N real samples.
 *
 * @param src         the spectrum.
 * @param dst         receives N samples; may be @p src itself and must not overlap it otherwise.
 * @param ctx         a context of this type.
 * @param scaleFactor the results are multiplied by 2^-scaleFactor.
 * @param buf         work area of the size that tavsFFTGetBufSize() tells, at any address; null: the call allocates.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadContext if it is no live context of this
 *         type; #tavStatusNullPointer if a data pointer is null; #tavStatusNoMemory, with the destination as it was.
 */
TavStatus tavsFFTInv_PermToR_16s_Sfs(const Tav16s* src, Tav16s* dst, const FftContext_R_16s* ctx, int scaleFactor,
                                     Tav8u* buf);
TavStatus tavsFFTInv_PackToR_16s_Sfs(const Tav16s* src, Tav16s* dst, const FftContext_R_16s* ctx, int scaleFactor,
                                     Tav8u* buf);
TavStatus tavsFFTInv_CCSToR_16s_Sfs(const Tav16s* src, Tav16s* dst, const FftContext_R_16s* ctx, int scaleFactor,
                                    Tav8u* buf);
TavStatus tavsFFTInv_PermToR_32s_Sfs(const Tav32s* src, Tav32s* dst, const FftContext_R_32s* ctx, int scaleFactor,
                                     Tav8u* buf);
TavStatus tavsFFTInv_PackToR_32s_Sfs(const Tav32s* src, Tav32s* dst, const FftContext_R_32s* ctx, int scaleFactor,
                                     Tav8u* buf);
TavStatus tavsFFTInv_CCSToR_32s_Sfs(const Tav32s* src, Tav32s* dst, const FftContext_R_32s* ctx, int scaleFactor,
                                    Tav8u* buf);
TavStatus tavsFFTInv_CCSToR_32s16s_Sfs(const Tav32s* src, Tav16s* dst, const FftContext_R_16s32s* ctx, int scaleFactor,
                                       Tav8u* buf);
/** @} */

/** @name tavsFFTInv, real integers, in place
 *  @{ */
/**
 * Inverse transform to N real samples, where the spectrum stands.
 *
 * @param srcDst      the spectrum; receives N samples.
 * @param ctx         a context of this type.
 * @param scaleFactor the results are multiplied by 2^-scaleFactor.
 * @param buf         work area of the size that tavsFFTGetBufSize() tells, at any address; null: the call allocates.
 * @return as out of place.
 */
TavStatus tavsFFTInv_PermToR_16s_ISfs(Tav16s* srcDst, const FftContext_R_16s* ctx, int scaleFactor, Tav8u* buf);
TavStatus tavsFFTInv_PackToR_16s_ISfs(Tav16s* srcDst, const FftContext_R_16s* ctx, int scaleFactor, Tav8u* buf);
TavStatus tavsFFTInv_CCSToR_16s_ISfs(Tav16s* srcDst, const FftContext_R_16s* ctx, int scaleFactor, Tav8u* buf);
TavStatus tavsFFTInv_PermToR_32s_ISfs(Tav32s* srcDst, const FftContext_R_32s* ctx, int scaleFactor, Tav8u* buf);
TavStatus tavsFFTInv_PackToR_32s_ISfs(Tav32s* srcDst, const FftContext_R_32s* ctx, int scaleFactor, Tav8u* buf);
TavStatus tavsFFTInv_CCSToR_32s_ISfs(Tav32s* srcDst, const FftContext_R_32s* ctx, int scaleFactor, Tav8u* buf);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
