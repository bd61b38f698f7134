/**
 * @file fft_flags.h
 * What all Fourier transforms of power-of-two length are told at set-up.
 */
#ifndef TAVS_FFT_FLAGS_H
#define TAVS_FFT_FLAGS_H

#ifdef __cplusplus
extern "C" {
#endif

/** @addtogroup fft
 *  @{ */

/** Where the factor of a transform of N points is applied: the @p flag of a context. */
enum {
  fftScaleForward = 1, /**< forward, 1/N */
  fftScaleInverse = 2, /**< inverse, 1/N */
  fftScaleBoth    = 4, /**< both, 1/sqrt(N) */
  fftScaleNone    = 8  /**< neither */
};
/** @} */

#ifdef __cplusplus
}
#endif

#endif
