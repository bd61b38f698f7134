/**
 * @file fft.h
 * Fourier transforms of power-of-two length: contexts and complex transforms of floats.
 */
#ifndef TAVS_FFT_H
#define TAVS_FFT_H

#include "contexts.h"
#include "fft_flags.h"
#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup fft Fourier transforms of power-of-two length
 *
 *  A context is set up once for a length N = 2^order and a normalisation, and then serves any number of calls, from any
 *  number of threads at once. It comes from tavsFFTInitAlloc(), which takes the memory it needs and which tavsFFTFree()
 *  gives back, or from tavsFFTInit(), which works in memory of the caller's.
 *
 *  With @p x the source, the forward transform is X[k] = sum over n of x[n] exp(-2 pi i n k / N), the inverse one has
 * the other sign of the exponent; the flag of the context tells which of them multiplies by what.
 *
 *  A transform may need a work area. tavsFFTGetBufSize() tells its size; at any address will do, and it belongs to one
 *  call at a time. Without one (a null pointer) the call allocates.
 *  @{ */

/** @name tavsFFTGetSize, complex
 *  @{ */
/**
 * Tells the sizes of the memory that a context needs.
 *
 * @param order    log2 of the number of points, from 0 to 28; of doubles to 27, or 26 in the variant s8.
 * @param flag     one of #fftScaleForward, #fftScaleInverse, #fftScaleBoth, #fftScaleNone.
 * @param hint     any value; records of floats do not use it.
 * @param specSize receives the bytes of the context.
 * @param initSize receives the bytes that only the set-up needs; may be 0.
 * @param workSize receives the bytes of work area that a transform needs; may be 0.
 * @return #tavStatusOk; #tavStatusBadOrder if @p order is negative or above 30; else #tavStatusNullPointer if a pointer
 *         is null; else #tavStatusBadFlag if @p flag is none of the four; else #tavStatusBadOrder if @p order is above
 *         the greatest one. On an error nothing is written.
 */
TavStatus tavsFFTGetSize_C_32fc(int order, int flag, int hint, int* specSize, int* initSize, int* workSize);
TavStatus tavsFFTGetSize_C_32f(int order, int flag, int hint, int* specSize, int* initSize, int* workSize);
TavStatus tavsFFTGetSize_C_64fc(int order, int flag, int hint, int* specSize, int* initSize, int* workSize);
TavStatus tavsFFTGetSize_C_64f(int order, int flag, int hint, int* specSize, int* initSize, int* workSize);
/** @} */

/** @name tavsFFTInit, complex
 *  @{ */
/**
 * Sets a context up in memory of the caller's, at any addresses.
 *
 * @param ctx     receives the context, which lies inside @p mem and must not be moved.
 * @param order   log2 of the number of points.
 * @param flag    one of #fftScaleForward, #fftScaleInverse, #fftScaleBoth, #fftScaleNone.
 * @param hint    any value.
 * @param mem     specSize bytes, as tavsFFTGetSize() tells; they live as long as the context.
 * @param initBuf initSize bytes, not needed afterwards; may be null if that is 0.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; else #tavStatusBadOrder if @p order is out of range;
 *         else #tavStatusNullPointer if @p mem is null; else #tavStatusBadFlag if @p flag is none of the four; else
 *         #tavStatusNullPointer if @p initBuf is needed and null. On an error @p ctx is not written.
 */
TavStatus tavsFFTInit_C_32fc(FftContext_C_32fc** ctx, int order, int flag, int hint, Tav8u* mem, Tav8u* initBuf);
TavStatus tavsFFTInit_C_32f(FftContext_C_32f** ctx, int order, int flag, int hint, Tav8u* mem, Tav8u* initBuf);
TavStatus tavsFFTInit_C_64fc(FftContext_C_64fc** ctx, int order, int flag, int hint, Tav8u* mem, Tav8u* initBuf);
TavStatus tavsFFTInit_C_64f(FftContext_C_64f** ctx, int order, int flag, int hint, Tav8u* mem, Tav8u* initBuf);
/** @} */

/** @name tavsFFTInitAlloc, complex
 *  @{ */
/**
 * Sets a context up in memory that it allocates; tavsFFTFree() releases it.
 *
 * @param ctx   receives the context.
 * @param order log2 of the number of points.
 * @param flag  one of #fftScaleForward, #fftScaleInverse, #fftScaleBoth, #fftScaleNone.
 * @param hint  any value.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadOrder or #tavStatusBadFlag as
 *         tavsFFTGetSize(); #tavStatusNoMemory. On an error @p ctx is not written.
 */
TavStatus tavsFFTInitAlloc_C_32fc(FftContext_C_32fc** ctx, int order, int flag, int hint);
TavStatus tavsFFTInitAlloc_C_32f(FftContext_C_32f** ctx, int order, int flag, int hint);
TavStatus tavsFFTInitAlloc_C_64fc(FftContext_C_64fc** ctx, int order, int flag, int hint);
TavStatus tavsFFTInitAlloc_C_64f(FftContext_C_64f** ctx, int order, int flag, int hint);
/** @} */

/** @name tavsFFTFree, complex
 *  @{ */
/**
 * Ends a context, and releases its memory if tavsFFTInitAlloc() took it.
 *
 * @param ctx the context.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadContext if it is no live context of this
 *         type.
 */
TavStatus tavsFFTFree_C_32fc(FftContext_C_32fc* ctx);
TavStatus tavsFFTFree_C_32f(FftContext_C_32f* ctx);
TavStatus tavsFFTFree_C_64fc(FftContext_C_64fc* ctx);
TavStatus tavsFFTFree_C_64f(FftContext_C_64f* ctx);
/** @} */

/** @name tavsFFTGetBufSize, complex
 *  @{ */
/**
 * Tells the size of the work area that a transform with this context needs.
 *
 * @param ctx  the context.
 * @param size receives the bytes; 0 if none is needed.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadContext if it is no live context of this
 *         type; #tavStatusNullPointer if @p size is null.
 */
TavStatus tavsFFTGetBufSize_C_32fc(const FftContext_C_32fc* ctx, int* size);
TavStatus tavsFFTGetBufSize_C_32f(const FftContext_C_32f* ctx, int* size);
TavStatus tavsFFTGetBufSize_C_64fc(const FftContext_C_64fc* ctx, int* size);
TavStatus tavsFFTGetBufSize_C_64f(const FftContext_C_64f* ctx, int* size);
/** @} */

/** @name tavsFFTFwd, tavsFFTInv, complex
 *  @{ */
/**
 * Forward and inverse transform of N complex points, interleaved.
 *
 * @param src source, N points.
 * @param dst destination, N points; may be @p src itself and must not overlap it otherwise.
 * @param ctx a context of this type.
 * @param buf work area of the size that tavsFFTGetBufSize() tells, at any address; null: the call allocates.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadContext if it is no live context of this
 *         type; #tavStatusNullPointer if a data pointer is null; #tavStatusNoMemory, with @p dst as it was.
 */
TavStatus tavsFFTFwd_CToC_32fc(const Tav32fc* src, Tav32fc* dst, const FftContext_C_32fc* ctx, Tav8u* buf);
TavStatus tavsFFTInv_CToC_32fc(const Tav32fc* src, Tav32fc* dst, const FftContext_C_32fc* ctx, Tav8u* buf);
TavStatus tavsFFTFwd_CToC_64fc(const Tav64fc* src, Tav64fc* dst, const FftContext_C_64fc* ctx, Tav8u* buf);
TavStatus tavsFFTInv_CToC_64fc(const Tav64fc* src, Tav64fc* dst, const FftContext_C_64fc* ctx, Tav8u* buf);
/** @} */

/** @name tavsFFTFwd, tavsFFTInv, complex, in place
 *  @{ */
/**
 * Forward and inverse transform of N complex points, interleaved, where they stand.
 *
 * @param srcDst source and destination, N points.
 * @param ctx    a context of this type.
 * @param buf    work area of the size that tavsFFTGetBufSize() tells, at any address; null: the call allocates.
 * @return as out of place.
 */
TavStatus tavsFFTFwd_CToC_32fc_I(Tav32fc* srcDst, const FftContext_C_32fc* ctx, Tav8u* buf);
TavStatus tavsFFTInv_CToC_32fc_I(Tav32fc* srcDst, const FftContext_C_32fc* ctx, Tav8u* buf);
TavStatus tavsFFTFwd_CToC_64fc_I(Tav64fc* srcDst, const FftContext_C_64fc* ctx, Tav8u* buf);
TavStatus tavsFFTInv_CToC_64fc_I(Tav64fc* srcDst, const FftContext_C_64fc* ctx, Tav8u* buf);
/** @} */

/** @name tavsFFTFwd, tavsFFTInv, complex, split
 *  @{ */
/**
 * Forward and inverse transform of N complex points whose real and imaginary parts lie in two arrays.
 *
 * @param srcRe real parts, N elements.
 * @param srcIm imaginary parts, N elements.
 * @param dstRe receives the real parts; may be @p srcRe itself if @p dstIm is @p srcIm.
 * @param dstIm receives the imaginary parts. The destination must not overlap the source otherwise.
 * @param ctx   a context of this type.
 * @param buf   work area of the size that tavsFFTGetBufSize() tells, at any address; null: the call allocates.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadContext if it is no live context of this
 *         type; #tavStatusNullPointer if a data pointer is null; #tavStatusNoMemory, with the destination as it was.
 */
TavStatus tavsFFTFwd_CToC_32f(const Tav32f* srcRe, const Tav32f* srcIm, Tav32f* dstRe, Tav32f* dstIm,
                              const FftContext_C_32f* ctx, Tav8u* buf);
TavStatus tavsFFTInv_CToC_32f(const Tav32f* srcRe, const Tav32f* srcIm, Tav32f* dstRe, Tav32f* dstIm,
                              const FftContext_C_32f* ctx, Tav8u* buf);
TavStatus tavsFFTFwd_CToC_64f(const Tav64f* srcRe, const Tav64f* srcIm, Tav64f* dstRe, Tav64f* dstIm,
                              const FftContext_C_64f* ctx, Tav8u* buf);
TavStatus tavsFFTInv_CToC_64f(const Tav64f* srcRe, const Tav64f* srcIm, Tav64f* dstRe, Tav64f* dstIm,
                              const FftContext_C_64f* ctx, Tav8u* buf);
/** @} */

/** @name tavsFFTFwd, tavsFFTInv, complex, split, in place
 *  @{ */
/**
 * Forward and inverse transform of N complex points in two arrays, where they stand.
 *
 * @param srcDstRe real parts, N elements.
 * @param srcDstIm imaginary parts, N elements.
 * @param ctx      a context of this type.
 * @param buf      work area of the size that tavsFFTGetBufSize() tells, at any address; null: the call allocates.
 * @return as out of place.
 */
TavStatus tavsFFTFwd_CToC_32f_I(Tav32f* srcDstRe, Tav32f* srcDstIm, const FftContext_C_32f* ctx, Tav8u* buf);
TavStatus tavsFFTInv_CToC_32f_I(Tav32f* srcDstRe, Tav32f* srcDstIm, const FftContext_C_32f* ctx, Tav8u* buf);
TavStatus tavsFFTFwd_CToC_64f_I(Tav64f* srcDstRe, Tav64f* srcDstIm, const FftContext_C_64f* ctx, Tav8u* buf);
TavStatus tavsFFTInv_CToC_64f_I(Tav64f* srcDstRe, Tav64f* srcDstIm, const FftContext_C_64f* ctx, Tav8u* buf);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
