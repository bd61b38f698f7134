/**
 * @file fft_real.h
 * Fourier transforms of power-of-two length: contexts and transforms of real floats.
 */
#ifndef TAVS_FFT_REAL_H
#define TAVS_FFT_REAL_H

#include "contexts.h"
#include "fft_flags.h"
#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup fft_real Fourier transforms of real signals
 *
 *  The spectrum X of N real samples comes in one of the three forms described in @ref packed_forms. Perm is what the
 *  transform itself makes, and is the fastest; CCS has N + 2 slots, the others N. Contexts are set up and released as
 *  those of complex transforms (fft.h), with the same flags and the same rules for the work area.
 *  @{ */

/** @name tavsFFTGetSize, real
 *  @{ */
/**
 * Tells the sizes of the memory that a context needs.
 *
 * @param order    log2 of the number of samples, from 0 to 29; of doubles to 28, or 27 in the variant s8.
 * @param flag     one of #fftScaleForward, #fftScaleInverse, #fftScaleBoth, #fftScaleNone.
 * @param hint     any value; records of floats do not use it.
 * @param specSize receives the bytes of the context.
 * @param initSize receives the bytes that only the set-up needs; may be 0.
 * @param workSize receives the bytes of work area that a transform needs; may be 0.
 * @return as of complex transforms, tavsFFTGetSize_C_32fc().
 */
TavStatus tavsFFTGetSize_R_32f(int order, int flag, int hint, int* specSize, int* initSize, int* workSize);
TavStatus tavsFFTGetSize_R_64f(int order, int flag, int hint, int* specSize, int* initSize, int* workSize);
/** @} */

/** @name tavsFFTInit, real
 *  @{ */
/**
 * Sets a context up in memory of the caller's, at any addresses.
 *
 * @param ctx     receives the context, which lies inside @p mem and must not be moved.
 * @param order   log2 of the number of samples.
 * @param flag    one of #fftScaleForward, #fftScaleInverse, #fftScaleBoth, #fftScaleNone.
 * @param hint    any value.
 * @param mem     specSize bytes, as tavsFFTGetSize() tells; they live as long as the context.
 * @param initBuf initSize bytes, not needed afterwards; may be null if that is 0.
 * @return as of complex transforms, tavsFFTInit_C_32fc().
 */
TavStatus tavsFFTInit_R_32f(FftContext_R_32f** ctx, int order, int flag, int hint, Tav8u* mem, Tav8u* initBuf);
TavStatus tavsFFTInit_R_64f(FftContext_R_64f** ctx, int order, int flag, int hint, Tav8u* mem, Tav8u* initBuf);
/** @} */

/** @name tavsFFTInitAlloc, real
 *  @{ */
/**
 * Sets a context up in memory that it allocates; tavsFFTFree() releases it.
 *
 * @param ctx   receives the context.
 * @param order log2 of the number of samples.
 * @param flag  one of #fftScaleForward, #fftScaleInverse, #fftScaleBoth, #fftScaleNone.
 * @param hint  any value.
 * @return as of complex transforms, tavsFFTInitAlloc_C_32fc().
 */
TavStatus tavsFFTInitAlloc_R_32f(FftContext_R_32f** ctx, int order, int flag, int hint);
TavStatus tavsFFTInitAlloc_R_64f(FftContext_R_64f** ctx, int order, int flag, int hint);
/** @} */

/** @name tavsFFTFree, real
 *  @{ */
/**
 * Ends a context, and releases its memory if tavsFFTInitAlloc() took it.
 *
 * @param ctx the context.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadContext if it is no live context of this
 *         type.
 */
TavStatus tavsFFTFree_R_32f(FftContext_R_32f* ctx);
TavStatus tavsFFTFree_R_64f(FftContext_R_64f* ctx);
/** @} */

/** @name tavsFFTGetBufSize, real
 *  @{ */
/**
 * Tells the size of the work area that a transform with this context needs.
 *
 * @param ctx  the context.
 * @param size receives the bytes; 0 if none is needed.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadContext if it is no live context of this
 *         type; #tavStatusNullPointer if @p size is null.
 */
TavStatus tavsFFTGetBufSize_R_32f(const FftContext_R_32f* ctx, int* size);
TavStatus tavsFFTGetBufSize_R_64f(const FftContext_R_64f* ctx, int* size);
/** @} */

/** @name tavsFFTFwd, real
 *  @{ */
/**
 * Spectrum of N real samples, X[k] = sum over n of x[n] exp(-2 pi i n k / N), in the format of the name.
 *
 * @param src N samples.
 * @param dst receives N slots, CCS N + 2 (of one sample 2); may be @p src itself and must not overlap it otherwise.
 * @param ctx a context of this type.
 * @param buf work area of the size that tavsFFTGetBufSize() tells, at any address; null: the call allocates.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadContext if it is no live context of this
 *         type; #tavStatusNullPointer if a data pointer is null; #tavStatusNoMemory, with @p dst as it was.
 */
TavStatus tavsFFTFwd_RToPerm_32f(const Tav32f* src, Tav32f* dst, const FftContext_R_32f* ctx, Tav8u* buf);
TavStatus tavsFFTFwd_RToPack_32f(const Tav32f* src, Tav32f* dst, const FftContext_R_32f* ctx, Tav8u* buf);
TavStatus tavsFFTFwd_RToCCS_32f(const Tav32f* src, Tav32f* dst, const FftContext_R_32f* ctx, Tav8u* buf);
TavStatus tavsFFTFwd_RToPerm_64f(const Tav64f* src, Tav64f* dst, const FftContext_R_64f* ctx, Tav8u* buf);
TavStatus tavsFFTFwd_RToPack_64f(const Tav64f* src, Tav64f* dst, const FftContext_R_64f* ctx, Tav8u* buf);
TavStatus tavsFFTFwd_RToCCS_64f(const Tav64f* src, Tav64f* dst, const FftContext_R_64f* ctx, Tav8u* buf);
/** @} */

/** @name tavsFFTFwd, real, in place
 *  @{ */
/**
 * Spectrum of N real samples in the format of the name, where they stand.
 *
 * @param srcDst N samples, replaced by N slots, CCS N + 2 (of one sample 2).
 * @param ctx    a context of this type.
 * @param buf    work area of the size that tavsFFTGetBufSize() tells, at any address; null: the call allocates.
 * @return as out of place.
 */
TavStatus tavsFFTFwd_RToPerm_32f_I(Tav32f* srcDst, const FftContext_R_32f* ctx, Tav8u* buf);
TavStatus tavsFFTFwd_RToPack_32f_I(Tav32f* srcDst, const FftContext_R_32f* ctx, Tav8u* buf);
TavStatus tavsFFTFwd_RToCCS_32f_I(Tav32f* srcDst, const FftContext_R_32f* ctx, Tav8u* buf);
TavStatus tavsFFTFwd_RToPerm_64f_I(Tav64f* srcDst, const FftContext_R_64f* ctx, Tav8u* buf);
TavStatus tavsFFTFwd_RToPack_64f_I(Tav64f* srcDst, const FftContext_R_64f* ctx, Tav8u* buf);
TavStatus tavsFFTFwd_RToCCS_64f_I(Tav64f* srcDst, const FftContext_R_64f* ctx, Tav8u* buf);
/** @} */

/** @name tavsFFTInv, real
 *  @{ */
/**
 * The N real samples of a spectrum, x[n] = sum over all N bins of X[k] exp(2 pi i n k / N). What CCS holds as imaginary
 * parts of bins 0 and N/2 is not read.
 *
 * @param src the spectrum in the format of the name: N slots, CCS N + 2 (of one sample the first).
 * @param dst receives N samples; may be @p src itself and must not overlap it otherwise. In place, the last two slots
 * of CCS are left unspecified.
 * @param ctx a context of this type.
 * @param buf work area of the size that tavsFFTGetBufSize() tells, at any address; null: the call allocates.
 * @return as forward.
 */
TavStatus tavsFFTInv_PermToR_32f(const Tav32f* src, Tav32f* dst, const FftContext_R_32f* ctx, Tav8u* buf);
TavStatus tavsFFTInv_PackToR_32f(const Tav32f* src, Tav32f* dst, const FftContext_R_32f* ctx, Tav8u* buf);
TavStatus tavsFFTInv_CCSToR_32f(const Tav32f* src, Tav32f* dst, const FftContext_R_32f* ctx, Tav8u* buf);
TavStatus tavsFFTInv_PermToR_64f(const Tav64f* src, Tav64f* dst, const FftContext_R_64f* ctx, Tav8u* buf);
TavStatus tavsFFTInv_PackToR_64f(const Tav64f* src, Tav64f* dst, const FftContext_R_64f* ctx, Tav8u* buf);
TavStatus tavsFFTInv_CCSToR_64f(const Tav64f* src, Tav64f* dst, const FftContext_R_64f* ctx, Tav8u* buf);
/** @} */

/** @name tavsFFTInv, real, in place
 *  @{ */
/**
 * The N real samples of a spectrum in the format of the name, where it stands.
 *
 * @param srcDst the spectrum, replaced by N samples; the last two slots of CCS are left unspecified.
 * @param ctx    a context of this type.
 * @param buf    work area of the size that tavsFFTGetBufSize() tells, at any address; null: the call allocates.
 * @return as out of place.
 */
TavStatus tavsFFTInv_PermToR_32f_I(Tav32f* srcDst, const FftContext_R_32f* ctx, Tav8u* buf);
TavStatus tavsFFTInv_PackToR_32f_I(Tav32f* srcDst, const FftContext_R_32f* ctx, Tav8u* buf);
TavStatus tavsFFTInv_CCSToR_32f_I(Tav32f* srcDst, const FftContext_R_32f* ctx, Tav8u* buf);
TavStatus tavsFFTInv_PermToR_64f_I(Tav64f* srcDst, const FftContext_R_64f* ctx, Tav8u* buf);
TavStatus tavsFFTInv_PackToR_64f_I(Tav64f* srcDst, const FftContext_R_64f* ctx, Tav8u* buf);
TavStatus tavsFFTInv_CCSToR_64f_I(Tav64f* srcDst, const FftContext_R_64f* ctx, Tav8u* buf);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
