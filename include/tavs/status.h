/**
 * @file status.h
 * What a call returns: 0 for success, a negative error, or a positive warning.
 */
#ifndef TAVS_STATUS_H
#define TAVS_STATUS_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup status Status codes
 *
 *  An error means that nothing was written and no context changed, except where a function says otherwise. A
 *  warning means that the work is done, every destination holds a defined value, and at least one element met the
 *  condition named. A call with several faults reports the first one in its order of checks. Some codes belong to
 *  families that this version does not have yet.
 *  @{ */

/** The result of nearly every function: one of the codes below. */
typedef int32_t TavStatus;

/** The status codes. */
enum {
  /* warnings */
  tavStatusWarnBitWidth        = 27, /**< a bit width was outside 0 to 32 and was limited */
  tavStatusWarnNanInData       = 9,  /**< a NaN stands among the elements */
  tavStatusLnNegativeWarning   = 8,  /**< a logarithm had a negative argument */
  tavStatusLnZeroWarning       = 7,  /**< a logarithm had the argument zero */
  tavStatusWarnDivideByZero    = 6, /**< a divisor among the elements was zero; its quotient is the limit of its sign */
  tavStatusEvenMedianMask      = 5, /**< an even mask size was reduced by 1 */
  tavStatusWarnInverseOfZero   = 4, /**< the reciprocal of a zero element became infinity */
  tavStatusSqrtNegativeWarning = 3, /**< a square root had a negative argument: 0 for integers, NaN for floats */

  tavStatusOk = 0, /**< success */

  /* errors */
  tavStatusBadArgument          = -5,   /**< a scalar argument is outside its set */
  tavStatusBadSize              = -6,   /**< a length or count is below 1 */
  tavStatusBadZeroCrossingMode  = -7,   /**< the mode of a zero-crossing count is not 0, 1 or 2 */
  tavStatusNullPointer          = -8,   /**< a required pointer is null */
  tavStatusNoMemory             = -9,   /**< an internal allocation failed */
  tavStatusDivideByZero         = -10,  /**< a scalar divisor, or a leading filter coefficient, is zero */
  tavStatusBadCauchyScale       = -11,  /**< the scale of a Cauchy function is not above 0 */
  tavStatusBadDataType          = -12,  /**< a data-type selector is unknown to the query */
  tavStatusBadTapScale          = -13,  /**< the scale word in 16-bit IIR taps is negative */
  tavStatusBadOrder             = -15,  /**< a transform order is out of range */
  tavStatusBadFlag              = -16,  /**< a normalisation flag or hint is not one of the family's values */
  tavStatusBadContext           = -17,  /**< a context record is not of the function's type, or is released */
  tavStatusBadThresholdPair     = -18,  /**< the upper level lies below the lower level */
  tavStatusNegativeLevel        = -19,  /**< a level that is compared with magnitudes is negative */
  tavStatusBadDlyIndex          = -24,  /**< a delay-line index is outside the delay line */
  tavStatusBadIirOrder          = -25,  /**< an IIR order or number of sections is out of range */
  tavStatusBadFirLength         = -26,  /**< a number of taps is below 1 */
  tavStatusBadRelFreq           = -27,  /**< a relative frequency is outside 0 <= f < 1 */
  tavStatusBadPhase             = -28,  /**< an up or down phase is negative or not below its factor */
  tavStatusBadFactor            = -29,  /**< an up or down factor is below 1 */
  tavStatusBadSamplePhase       = -30,  /**< a sampling phase is negative or not below the factor */
  tavStatusBadSampleFactor      = -31,  /**< a sampling factor is below 1 */
  tavStatusBadShift             = -32,  /**< a shift count is negative */
  tavStatusBadMaskSize          = -33,  /**< a window size is below 1 */
  tavStatusBadWaveletOffset     = -35,  /**< the offset of a wavelet filter is below -1 */
  tavStatusJaehneBadMagnitude   = -38,  /**< the magnitude of a Jaehne vector is negative */
  tavStatusBadKaiserAlpha       = -39,  /**< abs(alpha) * (len - 1) / 2 of a Kaiser window is above 308 */
  tavStatusTriangleBadAsymmetry = -40,  /**< a triangle's asymmetry is outside -pi <= a < pi */
  tavStatusTriangleBadPhase     = -41,  /**< a triangle's phase is outside 0 <= p < 2 pi */
  tavStatusTriangleBadFrequency = -42,  /**< a triangle's frequency is outside 0 <= f < 0.5 */
  tavStatusTriangleBadMagnitude = -43,  /**< a triangle's magnitude is not above 0 */
  tavStatusToneBadPhase         = -44,  /**< a tone's phase is outside its range */
  tavStatusToneBadFrequency     = -45,  /**< a tone's frequency is outside its range */
  tavStatusToneBadMagnitude     = -46,  /**< a tone's magnitude is not above 0 */
  tavStatusBadChannelCount64    = -47,  /**< the number of channels of a 64-bit-tap form is below 1 */
  tavStatusBadChannelCount      = -53,  /**< the number of channels is below 1 */
  tavStatusBadGenSize           = -182, /**< a size inside the filter design is out of range */
  tavStatusBadTapSpacing        = -194, /**< the tap positions of a sparse filter do not rise strictly from 0 or more */
  tavStatusIllConditioned       = -195, /**< the equations of a filter design are ill-conditioned */
  tavStatusBadGenOrder          = -206, /**< a design order is outside 1 to 12 */
  tavStatusBadFrequency         = -208, /**< a design frequency is outside 0 < f < 0.5 */
  tavStatusBadRipple            = -209, /**< a Chebyshev ripple is outside 0 < r <= 29 dB */
  tavStatusBadRoundMode         = -213, /**< a rounding-mode selector is not accepted */
  tavStatusBadAlgorithm         = -228  /**< an algorithm selector is above 2 */
};
/** @} */

#ifdef __cplusplus
}
#endif

#endif
