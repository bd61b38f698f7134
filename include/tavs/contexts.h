/**
 * @file contexts.h
 * The context records of the stateful families, all opaque.
 *
 * A record is made by the family's Init function in memory that the caller gives (of the size that the family's size
 * query told, at any alignment), or by its InitAlloc function in memory of its own, which the family's Free function
 * releases. Transform contexts do not change after set-up and may serve any number of threads at once; a filter state
 * or generator state changes with each call and serves one thread at a time.
 *
 * Records of families that this version does not have yet are declared already.
 */
#ifndef TAVS_CONTEXTS_H
#define TAVS_CONTEXTS_H

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup contexts Context records
 *  @{ */

/** @name Fourier transforms of power-of-two length
 *  @{ */
/** A Fourier transform of one power-of-two length. */
typedef struct FftContext_C_16s    FftContext_C_16s;
typedef struct FftContext_C_16sc   FftContext_C_16sc;
typedef struct FftContext_C_32f    FftContext_C_32f;
typedef struct FftContext_C_32fc   FftContext_C_32fc;
typedef struct FftContext_C_32s    FftContext_C_32s;
typedef struct FftContext_C_32sc   FftContext_C_32sc;
typedef struct FftContext_C_64f    FftContext_C_64f;
typedef struct FftContext_C_64fc   FftContext_C_64fc;
typedef struct FftContext_R_16s    FftContext_R_16s;
typedef struct FftContext_R_16s32s FftContext_R_16s32s;
typedef struct FftContext_R_32f    FftContext_R_32f;
typedef struct FftContext_R_32s    FftContext_R_32s;
typedef struct FftContext_R_64f    FftContext_R_64f;
/** @} */

/** @name Fourier transforms of any length
 *  @{ */
/** A Fourier transform of one length. */
typedef struct DftContext_C_16s        DftContext_C_16s;
typedef struct DftContext_C_16sc       DftContext_C_16sc;
typedef struct DftContext_C_32f        DftContext_C_32f;
typedef struct DftContext_C_32fc       DftContext_C_32fc;
typedef struct DftContext_C_64f        DftContext_C_64f;
typedef struct DftContext_C_64fc       DftContext_C_64fc;
typedef struct DftContext_R_16s        DftContext_R_16s;
typedef struct DftContext_R_32f        DftContext_R_32f;
typedef struct DftContext_R_64f        DftContext_R_64f;
typedef struct DftOutOrdContext_C_32fc DftOutOrdContext_C_32fc;
typedef struct DftOutOrdContext_C_64fc DftOutOrdContext_C_64fc;
/** @} */

/** @name Cosine transforms
 *  @{ */
/** A cosine transform of one length and direction. */
typedef struct DctFwdContext_16s DctFwdContext_16s;
typedef struct DctFwdContext_32f DctFwdContext_32f;
typedef struct DctFwdContext_64f DctFwdContext_64f;
typedef struct DctInvContext_16s DctInvContext_16s;
typedef struct DctInvContext_32f DctInvContext_32f;
typedef struct DctInvContext_64f DctInvContext_64f;
/** @} */

/** @name Hilbert transforms
 *  @{ */
/** A Hilbert transform of one length. */
typedef struct HilbertState_16s16sc HilbertState_16s16sc;
typedef struct HilbertState_16s32fc HilbertState_16s32fc;
typedef struct HilbertState_32f32fc HilbertState_32f32fc;
/** @} */

/** @name Wavelet transforms
 *  @{ */
/** One level of a wavelet transform: its filters and delay lines. */
typedef struct WTFwdState_16s32f WTFwdState_16s32f;
typedef struct WTFwdState_16u32f WTFwdState_16u32f;
typedef struct WTFwdState_32f    WTFwdState_32f;
typedef struct WTFwdState_8s32f  WTFwdState_8s32f;
typedef struct WTFwdState_8u32f  WTFwdState_8u32f;
typedef struct WTInvState_32f    WTInvState_32f;
typedef struct WTInvState_32f16s WTInvState_32f16s;
typedef struct WTInvState_32f16u WTInvState_32f16u;
typedef struct WTInvState_32f8s  WTInvState_32f8s;
typedef struct WTInvState_32f8u  WTInvState_32f8u;
/** @} */

/** @name FIR filters
 *  @{ */
/** A FIR filter: its taps and delay line. */
typedef struct FIRState32f_16s   FIRState32f_16s;
typedef struct FIRState32fc_16sc FIRState32fc_16sc;
typedef struct FIRState32s_16s   FIRState32s_16s;
typedef struct FIRState32sc_16sc FIRState32sc_16sc;
typedef struct FIRState64f_16s   FIRState64f_16s;
typedef struct FIRState64f_32f   FIRState64f_32f;
typedef struct FIRState64f_32s   FIRState64f_32s;
typedef struct FIRState64fc_16sc FIRState64fc_16sc;
typedef struct FIRState64fc_32fc FIRState64fc_32fc;
typedef struct FIRState64fc_32sc FIRState64fc_32sc;
typedef struct FIRState_16s      FIRState_16s;
typedef struct FIRState_32f      FIRState_32f;
typedef struct FIRState_32fc     FIRState_32fc;
typedef struct FIRState_64f      FIRState_64f;
typedef struct FIRState_64fc     FIRState_64fc;
/** @} */

/** @name FIR streams
 *  @{ */
/** A FIR filter that runs over a stream. */
typedef struct FIRStreamState_16s FIRStreamState_16s;
typedef struct FIRStreamState_32f FIRStreamState_32f;
/** @} */

/** @name FIR filters of single rate without an id word
 *  @{ */
/** A single-rate FIR filter. */
typedef struct FIRSRSpec FIRSRSpec;
/** @} */

/** @name Sparse filters
 *  @{ */
/** A filter with few taps that are not zero. */
typedef struct FIRSparseState_32f FIRSparseState_32f;
typedef struct IIRSparseState_32f IIRSparseState_32f;
/** @} */

/** @name Adaptive FIR filters
 *  @{ */
/** An adaptive FIR filter: its taps and delay line. */
typedef struct FIRLMSMRState32s_16s   FIRLMSMRState32s_16s;
typedef struct FIRLMSMRState32sc_16sc FIRLMSMRState32sc_16sc;
typedef struct FIRLMSState32f_16s     FIRLMSState32f_16s;
typedef struct FIRLMSState_32f        FIRLMSState_32f;
/** @} */

/** @name IIR filters
 *  @{ */
/** An IIR filter: its taps and delay line. */
typedef struct IIRState32f_16s   IIRState32f_16s;
typedef struct IIRState32fc_16sc IIRState32fc_16sc;
typedef struct IIRState32s_16s   IIRState32s_16s;
typedef struct IIRState32sc_16sc IIRState32sc_16sc;
typedef struct IIRState64f_16s   IIRState64f_16s;
typedef struct IIRState64f_32f   IIRState64f_32f;
typedef struct IIRState64f_32s   IIRState64f_32s;
typedef struct IIRState64fc_16sc IIRState64fc_16sc;
typedef struct IIRState64fc_32fc IIRState64fc_32fc;
typedef struct IIRState64fc_32sc IIRState64fc_32sc;
typedef struct IIRState_32f      IIRState_32f;
typedef struct IIRState_32fc     IIRState_32fc;
typedef struct IIRState_64f      IIRState_64f;
typedef struct IIRState_64fc     IIRState_64fc;
/** @} */

/** @name Polyphase resamplers
 *  @{ */
/** A resampler: its filters by phase. */
typedef struct ResamplePolyphaseFixedState_16s ResamplePolyphaseFixedState_16s;
typedef struct ResamplePolyphaseFixedState_32f ResamplePolyphaseFixedState_32f;
typedef struct ResamplePolyphaseState_16s      ResamplePolyphaseState_16s;
typedef struct ResamplePolyphaseState_32f      ResamplePolyphaseState_32f;
/** @} */

/** @name Tone and triangle generators
 *  @{ */
/** A generator: its wave and where it stands. */
typedef struct ToneStateQ15_16s     ToneStateQ15_16s;
typedef struct TriangleStateQ15_16s TriangleStateQ15_16s;
/** @} */

/** @name Random generators
 *  @{ */
/** A random generator: its distribution and where it stands. */
typedef struct RandGaussState_16s   RandGaussState_16s;
typedef struct RandGaussState_32f   RandGaussState_32f;
typedef struct RandGaussState_8u    RandGaussState_8u;
typedef struct RandUniformState_16s RandUniformState_16s;
typedef struct RandUniformState_32f RandUniformState_32f;
typedef struct RandUniformState_8u  RandUniformState_8u;
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
