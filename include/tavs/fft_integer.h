/**
 * @file fft_integer.h
 * Fourier transforms of power-of-two length of complex integers: contexts and transforms.
 */
#ifndef TAVS_FFT_INTEGER_H
#define TAVS_FFT_INTEGER_H

#include "contexts.h"
#include "fft_flags.h"
#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup fft_integer Fourier transforms of integers
 *
 *  Contexts and transforms as those of floats (fft.h), with integers on both sides. The factor of the context's flag
 *  and that of the call, 2^-scaleFactor, apply to the exact result, which is then rounded and saturated.
 *
 *  Inside, integers of 16 bits become singles, those of 32 bits doubles; the real transforms between 16 and 32 bits are
 *  done in singles. Results are rounded to nearest, ties to even, in whatever mode the caller is. Next to the exact
 *  transform they are within one unit, as long as the largest of them is within 16 bits, or 32 in doubles; results that
 *  reach far beyond, and those of 32 bits made in singles, carry the relative error of the float. The two variants may
 *  differ by as much. From a scaleFactor of -128 on (doubles: -1024) the factor is infinite: a result that is exactly 0
 *  becomes the highest integer.
 *
 *  Contexts of 16 bits with a @p hint of 0 or 1 transform up to 8 points in fixed point, in both variants with the same
 *  bits: with as many guard bits as fit into 32, 11585 / 2^14 for 1/sqrt(2), which puts large results of 8 points up to
 *  3 units off, and ties upward. There, once the factors together shift to the left, bits that leave the 32 are lost,
 *  and from a scaleFactor of -32 on the result is 0. A single point is only shifted, in this way, whatever the hint.
 *  @{ */

/** @name tavsFFTGetSize, complex integers
 *  @{ */
/**
 * Tells the sizes of the memory that a context needs.
 *
 * @param order    log2 of the number of points, from 0 to 28; of 32 bits to 27, or 26 in the variant s8.
 * @param flag     one of #fftScaleForward, #fftScaleInverse, #fftScaleBoth, #fftScaleNone.
 * @param hint     any value; contexts of 16 bits transform up to 8 points in fixed point if it is 0 or 1.
 * @param specSize receives the bytes of the context.
 * @param initSize receives the bytes that only the set-up needs; may be 0.
 * @param workSize receives the bytes of work area that a transform needs; may be 0. The greatest orders need more than
 *                 31 bits hold: the number wraps, and a transform gives #tavStatusNoMemory.
 * @return #tavStatusOk; #tavStatusBadOrder if @p order is negative or above 30; else #tavStatusNullPointer if a pointer
 *         is null; else #tavStatusBadFlag if @p flag is none of the four; else #tavStatusBadOrder if @p order is above
 *         the greatest one. On an error nothing is written.
 */
TavStatus tavsFFTGetSize_C_16sc(int order, int flag, int hint, int* specSize, int* initSize, int* workSize);
TavStatus tavsFFTGetSize_C_16s(int order, int flag, int hint, int* specSize, int* initSize, int* workSize);
TavStatus tavsFFTGetSize_C_32sc(int order, int flag, int hint, int* specSize, int* initSize, int* workSize);
TavStatus tavsFFTGetSize_C_32s(int order, int flag, int hint, int* specSize, int* initSize, int* workSize);
/** @} */

/** @name tavsFFTInit, complex integers
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
TavStatus tavsFFTInit_C_16sc(FftContext_C_16sc** ctx, int order, int flag, int hint, Tav8u* mem, Tav8u* initBuf);
TavStatus tavsFFTInit_C_16s(FftContext_C_16s** ctx, int order, int flag, int hint, Tav8u* mem, Tav8u* initBuf);
TavStatus tavsFFTInit_C_32sc(FftContext_C_32sc** ctx, int order, int flag, int hint, Tav8u* mem, Tav8u* initBuf);
TavStatus tavsFFTInit_C_32s(FftContext_C_32s** ctx, int order, int flag, int hint, Tav8u* mem, Tav8u* initBuf);
/** @} */

/** @name tavsFFTInitAlloc, complex integers
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
TavStatus tavsFFTInitAlloc_C_16sc(FftContext_C_16sc** ctx, int order, int flag, int hint);
TavStatus tavsFFTInitAlloc_C_16s(FftContext_C_16s** ctx, int order, int flag, int hint);
TavStatus tavsFFTInitAlloc_C_32sc(FftContext_C_32sc** ctx, int order, int flag, int hint);
TavStatus tavsFFTInitAlloc_C_32s(FftContext_C_32s** ctx, int order, int flag, int hint);
/** @} */

/** @name tavsFFTFree, complex integers
 *  @{ */
/**
 * Ends a context, and releases its memory if tavsFFTInitAlloc() took it.
 *
 * @param ctx the context.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadContext if it is no live context of this
 *         type.
 */
TavStatus tavsFFTFree_C_16sc(FftContext_C_16sc* ctx);
TavStatus tavsFFTFree_C_16s(FftContext_C_16s* ctx);
TavStatus tavsFFTFree_C_32sc(FftContext_C_32sc* ctx);
TavStatus tavsFFTFree_C_32s(FftContext_C_32s* ctx);
/** @} */

/** @name tavsFFTGetBufSize, complex integers
 *  @{ */
/**
 * Tells the size of the work area that a transform with this context needs.
 *
 * @param ctx  the context.
 * @param size receives the bytes; 0 if none is needed.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadContext if it is no live context of this
 *         type; #tavStatusNullPointer if @p size is null.
 */
TavStatus tavsFFTGetBufSize_C_16sc(const FftContext_C_16sc* ctx, int* size);
TavStatus tavsFFTGetBufSize_C_16s(const FftContext_C_16s* ctx, int* size);
TavStatus tavsFFTGetBufSize_C_32sc(const FftContext_C_32sc* ctx, int* size);
TavStatus tavsFFTGetBufSize_C_32s(const FftContext_C_32s* ctx, int* size);
/** @} */

/** @name tavsFFTFwd, tavsFFTInv, complex integers
 *  @{ */
/**
 * Forward and inverse transform of N complex points, interleaved.
 *
 * @param src         source, N points.
 * @param dst         destination, N points; may be @p src itself and must not overlap it otherwise.
 * @param ctx         a context of this type.
 * @param scaleFactor the results are multiplied by 2^-scaleFactor.
 * @param buf         work area of the size that tavsFFTGetBufSize() tells, at any address; null: the call allocates.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadContext if it is no live context of this
 *         type; #tavStatusNullPointer if a data pointer is null; #tavStatusNoMemory, with the destination as it was.
 */
TavStatus tavsFFTFwd_CToC_16sc_Sfs(const Tav16sc* src, Tav16sc* dst, const FftContext_C_16sc* ctx, int scaleFactor,
                                   Tav8u* buf);
TavStatus tavsFFTInv_CToC_16sc_Sfs(const Tav16sc* src, Tav16sc* dst, const FftContext_C_16sc* ctx, int scaleFactor,
                                   Tav8u* buf);
TavStatus tavsFFTFwd_CToC_32sc_Sfs(const Tav32sc* src, Tav32sc* dst, const FftContext_C_32sc* ctx, int scaleFactor,
                                   Tav8u* buf);
TavStatus tavsFFTInv_CToC_32sc_Sfs(const Tav32sc* src, Tav32sc* dst, const FftContext_C_32sc* ctx, int scaleFactor,
                                   Tav8u* buf);
/** @} */

/** @name tavsFFTFwd, tavsFFTInv, complex integers, in place
 *  @{ */
/**
 * Forward and inverse transform of N complex points, interleaved, where they stand.
 *
 * @param srcDst      source and destination, N points.
 * @param ctx         a context of this type.
 * @param scaleFactor the results are multiplied by 2^-scaleFactor.
 * @param buf         work area of the size that tavsFFTGetBufSize() tells, at any address; null: the call allocates.
 * @return as out of place.
 */
TavStatus tavsFFTFwd_CToC_16sc_ISfs(Tav16sc* srcDst, const FftContext_C_16sc* ctx, int scaleFactor, Tav8u* buf);
TavStatus tavsFFTInv_CToC_16sc_ISfs(Tav16sc* srcDst, const FftContext_C_16sc* ctx, int scaleFactor, Tav8u* buf);
TavStatus tavsFFTFwd_CToC_32sc_ISfs(Tav32sc* srcDst, const FftContext_C_32sc* ctx, int scaleFactor, Tav8u* buf);
TavStatus tavsFFTInv_CToC_32sc_ISfs(Tav32sc* srcDst, const FftContext_C_32sc* ctx, int scaleFactor, Tav8u* buf);
/** @} */

/** @name tavsFFTFwd, tavsFFTInv, complex integers, split
 *  @{ */
/**
 * Forward and inverse transform of N complex points whose real and imaginary parts lie in two arrays.
 *
 * @param srcRe       real parts, N elements.
 * @param srcIm       imaginary parts, N elements.
 * @param dstRe       receives the real parts; may be a source.
 * @param dstIm       receives the imaginary parts; may be a source.
 * @param ctx         a context of this type.
 * @param scaleFactor the results are multiplied by 2^-scaleFactor.
 * @param buf         work area of the size that tavsFFTGetBufSize() tells, at any address; null: the call allocates.
 * @return #tavStatusOk; #tavStatusNullPointer if @p ctx is null; #tavStatusBadContext if it is no live context of this
 *         type; #tavStatusNullPointer if a data pointer is null; #tavStatusNoMemory, with the destination as it was.
 */
TavStatus tavsFFTFwd_CToC_16s_Sfs(const Tav16s* srcRe, const Tav16s* srcIm, Tav16s* dstRe, Tav16s* dstIm,
                                  const FftContext_C_16s* ctx, int scaleFactor, Tav8u* buf);
TavStatus tavsFFTInv_CToC_16s_Sfs(const Tav16s* srcRe, const Tav16s* srcIm, Tav16s* dstRe, Tav16s* dstIm,
                                  const FftContext_C_16s* ctx, int scaleFactor, Tav8u* buf);
TavStatus tavsFFTFwd_CToC_32s_Sfs(const Tav32s* srcRe, const Tav32s* srcIm, Tav32s* dstRe, Tav32s* dstIm,
                                  const FftContext_C_32s* ctx, int scaleFactor, Tav8u* buf);
TavStatus tavsFFTInv_CToC_32s_Sfs(const Tav32s* srcRe, const Tav32s* srcIm, Tav32s* dstRe, Tav32s* dstIm,
                                  const FftContext_C_32s* ctx, int scaleFactor, Tav8u* buf);
/** @} */

/** @name tavsFFTFwd, tavsFFTInv, complex integers, split, in place
 *  @{ */
/**
 * Forward and inverse transform of N complex points in two arrays, where they stand.
 *
 * @param srcDstRe    real parts, N elements.
 * @param srcDstIm    imaginary parts, N elements.
 * @param ctx         a context of this type.
 * @param scaleFactor the results are multiplied by 2^-scaleFactor.
 * @param buf         work area of the size that tavsFFTGetBufSize() tells, at any address; null: the call allocates.
 * @return as out of place.
 */
TavStatus tavsFFTFwd_CToC_16s_ISfs(Tav16s* srcDstRe, Tav16s* srcDstIm, const FftContext_C_16s* ctx, int scaleFactor,
                                   Tav8u* buf);
TavStatus tavsFFTInv_CToC_16s_ISfs(Tav16s* srcDstRe, Tav16s* srcDstIm, const FftContext_C_16s* ctx, int scaleFactor,
                                   Tav8u* buf);
TavStatus tavsFFTFwd_CToC_32s_ISfs(Tav32s* srcDstRe, Tav32s* srcDstIm, const FftContext_C_32s* ctx, int scaleFactor,
                                   Tav8u* buf);
TavStatus tavsFFTInv_CToC_32s_ISfs(Tav32s* srcDstRe, Tav32s* srcDstIm, const FftContext_C_32s* ctx, int scaleFactor,
                                   Tav8u* buf);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
