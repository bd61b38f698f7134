/**
 * @file fir_direct.h
 * FIR filters without a state: taps and delay line are arguments of each call.
 */
#ifndef TAVS_FIR_DIRECT_H
#define TAVS_FIR_DIRECT_H

#include "contexts.h"
#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup fir_direct FIR filters without a state
 *
 *  A filter of N taps h makes y[n] = sum over k from 0 to N-1 of h[k] x[n-k]. A name ends with the type of the taps and
 *  that of the data, or with the one type of both.
 *
 *  The samples that came before are in a ring of the caller's, which is written twice: a sample goes to dly[i] and
 *  dly[i+N], where i is the index, and i goes on by one, at N back to 0. So the last N samples always lie in one piece,
 *  at dly[i], the newest last. A signal begins with 2 N zeros and the index 0. Calls for blocks and for single samples
 * may follow each other in any order and make the same results.
 *
 *  Singles on their own have products in singles and sums in doubles; all others compute in the type of their taps.
 *  Taps in floats and integer data: results are multiplied by 2^-scaleFactor, of which the low seven bits of the
 *  magnitude count, limited to the type, and rounded to nearest, ties away from zero. Taps in integers: products and
 *  sums have 32 bits and wrap; results are multiplied by 2^(tapsFactor - scaleFactor), within 31 places, rounded to
 *  nearest, ties to even, which wrap too (see @ref fir_integer), and limited to the type. tavsFIR_Direct_16s_Sfs()
 *  differs from all others; see there.
 *  @{ */

/** @name tavsFIR_Direct
 *  @{ */
/**
 * Filters a block of floats.
 *
 * @param src         the samples.
 * @param dst         receives the results.
 * @param len         number of samples, at least 1.
 * @param taps        the N taps, h[0] first.
 * @param tapsLen     number of taps N, at least 1.
 * @param dly         the ring, 2 N entries.
 * @param dlyIndex    the place in the ring for the next sample, 0 to N-1, which is not tested; receives the next.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 * #tavStatusBadFirLength if @p tapsLen is below 1.
 */
TavStatus tavsFIR_Direct_32f(const Tav32f* src, Tav32f* dst, int len, const Tav32f* taps, int tapsLen, Tav32f* dly,
                             int* dlyIndex);
TavStatus tavsFIR_Direct_32fc(const Tav32fc* src, Tav32fc* dst, int len, const Tav32fc* taps, int tapsLen, Tav32fc* dly,
                              int* dlyIndex);
TavStatus tavsFIR_Direct_64f(const Tav64f* src, Tav64f* dst, int len, const Tav64f* taps, int tapsLen, Tav64f* dly,
                             int* dlyIndex);
TavStatus tavsFIR_Direct_64fc(const Tav64fc* src, Tav64fc* dst, int len, const Tav64fc* taps, int tapsLen, Tav64fc* dly,
                              int* dlyIndex);
TavStatus tavsFIR64f_Direct_32f(const Tav32f* src, Tav32f* dst, int len, const Tav64f* taps, int tapsLen, Tav32f* dly,
                                int* dlyIndex);
TavStatus tavsFIR64fc_Direct_32fc(const Tav32fc* src, Tav32fc* dst, int len, const Tav64fc* taps, int tapsLen,
                                  Tav32fc* dly, int* dlyIndex);
/** @} */

/** @name tavsFIR_Direct_I, in place
 *  @{ */
/**
 * Filters a block of floats in place.
 *
 * @param srcDst      the samples; receives the results.
 * @param len         number of samples, at least 1.
 * @param taps        the N taps, h[0] first.
 * @param tapsLen     number of taps N, at least 1.
 * @param dly         the ring, 2 N entries.
 * @param dlyIndex    the place in the ring for the next sample, 0 to N-1, which is not tested; receives the next.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 * #tavStatusBadFirLength if @p tapsLen is below 1.
 */
TavStatus tavsFIR_Direct_32f_I(Tav32f* srcDst, int len, const Tav32f* taps, int tapsLen, Tav32f* dly, int* dlyIndex);
TavStatus tavsFIR_Direct_32fc_I(Tav32fc* srcDst, int len, const Tav32fc* taps, int tapsLen, Tav32fc* dly,
                                int* dlyIndex);
TavStatus tavsFIR_Direct_64f_I(Tav64f* srcDst, int len, const Tav64f* taps, int tapsLen, Tav64f* dly, int* dlyIndex);
TavStatus tavsFIR_Direct_64fc_I(Tav64fc* srcDst, int len, const Tav64fc* taps, int tapsLen, Tav64fc* dly,
                                int* dlyIndex);
TavStatus tavsFIR64f_Direct_32f_I(Tav32f* srcDst, int len, const Tav64f* taps, int tapsLen, Tav32f* dly, int* dlyIndex);
TavStatus tavsFIR64fc_Direct_32fc_I(Tav32fc* srcDst, int len, const Tav64fc* taps, int tapsLen, Tav32fc* dly,
                                    int* dlyIndex);
/** @} */

/** @name tavsFIR_Direct_Sfs
 *  @{ */
/**
 * Filters a block of integers by taps in floats.
 *
 * @param src         the samples.
 * @param dst         receives the results.
 * @param len         number of samples, at least 1.
 * @param taps        the N taps, h[0] first.
 * @param tapsLen     number of taps N, at least 1.
 * @param dly         the ring, 2 N entries.
 * @param dlyIndex    the place in the ring for the next sample, 0 to N-1, which is not tested; receives the next.
 * @param scaleFactor results are multiplied by 2^-@p scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 * #tavStatusBadFirLength if @p tapsLen is below 1.
 */
TavStatus tavsFIR32f_Direct_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, const Tav32f* taps, int tapsLen,
                                    Tav16s* dly, int* dlyIndex, int scaleFactor);
TavStatus tavsFIR32fc_Direct_16sc_Sfs(const Tav16sc* src, Tav16sc* dst, int len, const Tav32fc* taps, int tapsLen,
                                      Tav16sc* dly, int* dlyIndex, int scaleFactor);
TavStatus tavsFIR64f_Direct_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, const Tav64f* taps, int tapsLen,
                                    Tav16s* dly, int* dlyIndex, int scaleFactor);
TavStatus tavsFIR64fc_Direct_16sc_Sfs(const Tav16sc* src, Tav16sc* dst, int len, const Tav64fc* taps, int tapsLen,
                                      Tav16sc* dly, int* dlyIndex, int scaleFactor);
TavStatus tavsFIR64f_Direct_32s_Sfs(const Tav32s* src, Tav32s* dst, int len, const Tav64f* taps, int tapsLen,
                                    Tav32s* dly, int* dlyIndex, int scaleFactor);
TavStatus tavsFIR64fc_Direct_32sc_Sfs(const Tav32sc* src, Tav32sc* dst, int len, const Tav64fc* taps, int tapsLen,
                                      Tav32sc* dly, int* dlyIndex, int scaleFactor);
/** @} */

/** @name tavsFIR_Direct_ISfs, in place
 *  @{ */
/**
 * Filters a block of integers by taps in floats, in place.
 *
 * @param srcDst      the samples; receives the results.
 * @param len         number of samples, at least 1.
 * @param taps        the N taps, h[0] first.
 * @param tapsLen     number of taps N, at least 1.
 * @param dly         the ring, 2 N entries.
 * @param dlyIndex    the place in the ring for the next sample, 0 to N-1, which is not tested; receives the next.
 * @param scaleFactor results are multiplied by 2^-@p scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 * #tavStatusBadFirLength if @p tapsLen is below 1.
 */
TavStatus tavsFIR32f_Direct_16s_ISfs(Tav16s* srcDst, int len, const Tav32f* taps, int tapsLen, Tav16s* dly,
                                     int* dlyIndex, int scaleFactor);
TavStatus tavsFIR32fc_Direct_16sc_ISfs(Tav16sc* srcDst, int len, const Tav32fc* taps, int tapsLen, Tav16sc* dly,
                                       int* dlyIndex, int scaleFactor);
TavStatus tavsFIR64f_Direct_16s_ISfs(Tav16s* srcDst, int len, const Tav64f* taps, int tapsLen, Tav16s* dly,
                                     int* dlyIndex, int scaleFactor);
TavStatus tavsFIR64fc_Direct_16sc_ISfs(Tav16sc* srcDst, int len, const Tav64fc* taps, int tapsLen, Tav16sc* dly,
                                       int* dlyIndex, int scaleFactor);
TavStatus tavsFIR64f_Direct_32s_ISfs(Tav32s* srcDst, int len, const Tav64f* taps, int tapsLen, Tav32s* dly,
                                     int* dlyIndex, int scaleFactor);
TavStatus tavsFIR64fc_Direct_32sc_ISfs(Tav32sc* srcDst, int len, const Tav64fc* taps, int tapsLen, Tav32sc* dly,
                                       int* dlyIndex, int scaleFactor);
/** @} */

/** @name tavsFIR_Direct_Sfs, taps in integers
 *  @{ */
/**
 * Filters a block of integers by taps in integers.
 *
 * @param src         the samples.
 * @param dst         receives the results.
 * @param len         number of samples, at least 1.
 * @param taps        the N taps, h[0] first.
 * @param tapsLen     number of taps N, at least 1.
 * @param tapsFactor  exponent of the taps: their values are taps times 2^@p tapsFactor.
 * @param dly         the ring, 2 N entries.
 * @param dlyIndex    the place in the ring for the next sample, 0 to N-1, which is not tested; receives the next.
 * @param scaleFactor results are multiplied by 2^-@p scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 * #tavStatusBadFirLength if @p tapsLen is below 1.
 */
TavStatus tavsFIR32s_Direct_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, const Tav32s* taps, int tapsLen,
                                    int tapsFactor, Tav16s* dly, int* dlyIndex, int scaleFactor);
TavStatus tavsFIR32sc_Direct_16sc_Sfs(const Tav16sc* src, Tav16sc* dst, int len, const Tav32sc* taps, int tapsLen,
                                      int tapsFactor, Tav16sc* dly, int* dlyIndex, int scaleFactor);
/** @} */

/** @name tavsFIR_Direct_ISfs, taps in integers, in place
 *  @{ */
/**
 * Filters a block of integers by taps in integers, in place.
 *
 * @param srcDst      the samples; receives the results.
 * @param len         number of samples, at least 1.
 * @param taps        the N taps, h[0] first.
 * @param tapsLen     number of taps N, at least 1.
 * @param tapsFactor  exponent of the taps: their values are taps times 2^@p tapsFactor.
 * @param dly         the ring, 2 N entries.
 * @param dlyIndex    the place in the ring for the next sample, 0 to N-1, which is not tested; receives the next.
 * @param scaleFactor results are multiplied by 2^-@p scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 * #tavStatusBadFirLength if @p tapsLen is below 1.
 */
TavStatus tavsFIR32s_Direct_16s_ISfs(Tav16s* srcDst, int len, const Tav32s* taps, int tapsLen, int tapsFactor,
                                     Tav16s* dly, int* dlyIndex, int scaleFactor);
TavStatus tavsFIR32sc_Direct_16sc_ISfs(Tav16sc* srcDst, int len, const Tav32sc* taps, int tapsLen, int tapsFactor,
                                       Tav16sc* dly, int* dlyIndex, int scaleFactor);
/** @} */

/** @name tavsFIROne_Direct
 *  @{ */
/**
 * Filters one sample of floats.
 *
 * @param val         the sample.
 * @param dst         receives the result.
 * @param taps        the N taps, h[0] first.
 * @param tapsLen     number of taps N, at least 1.
 * @param dly         the ring, 2 N entries.
 * @param dlyIndex    the place in the ring for the next sample, 0 to N-1, which is not tested; receives the next.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadFirLength if @p tapsLen is below 1.
 */
TavStatus tavsFIROne_Direct_32f(Tav32f val, Tav32f* dst, const Tav32f* taps, int tapsLen, Tav32f* dly, int* dlyIndex);
TavStatus tavsFIROne_Direct_32fc(Tav32fc val, Tav32fc* dst, const Tav32fc* taps, int tapsLen, Tav32fc* dly,
                                 int* dlyIndex);
TavStatus tavsFIROne_Direct_64f(Tav64f val, Tav64f* dst, const Tav64f* taps, int tapsLen, Tav64f* dly, int* dlyIndex);
TavStatus tavsFIROne_Direct_64fc(Tav64fc val, Tav64fc* dst, const Tav64fc* taps, int tapsLen, Tav64fc* dly,
                                 int* dlyIndex);
TavStatus tavsFIROne64f_Direct_32f(Tav32f val, Tav32f* dst, const Tav64f* taps, int tapsLen, Tav32f* dly,
                                   int* dlyIndex);
TavStatus tavsFIROne64fc_Direct_32fc(Tav32fc val, Tav32fc* dst, const Tav64fc* taps, int tapsLen, Tav32fc* dly,
                                     int* dlyIndex);
/** @} */

/** @name tavsFIROne_Direct_I, in place
 *  @{ */
/**
 * Filters one sample of floats in place.
 *
 * @param srcDst      the sample; receives the result.
 * @param taps        the N taps, h[0] first.
 * @param tapsLen     number of taps N, at least 1.
 * @param dly         the ring, 2 N entries.
 * @param dlyIndex    the place in the ring for the next sample, 0 to N-1, which is not tested; receives the next.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadFirLength if @p tapsLen is below 1.
 */
TavStatus tavsFIROne_Direct_32f_I(Tav32f* srcDst, const Tav32f* taps, int tapsLen, Tav32f* dly, int* dlyIndex);
TavStatus tavsFIROne_Direct_32fc_I(Tav32fc* srcDst, const Tav32fc* taps, int tapsLen, Tav32fc* dly, int* dlyIndex);
TavStatus tavsFIROne_Direct_64f_I(Tav64f* srcDst, const Tav64f* taps, int tapsLen, Tav64f* dly, int* dlyIndex);
TavStatus tavsFIROne_Direct_64fc_I(Tav64fc* srcDst, const Tav64fc* taps, int tapsLen, Tav64fc* dly, int* dlyIndex);
TavStatus tavsFIROne64f_Direct_32f_I(Tav32f* srcDst, const Tav64f* taps, int tapsLen, Tav32f* dly, int* dlyIndex);
TavStatus tavsFIROne64fc_Direct_32fc_I(Tav32fc* srcDst, const Tav64fc* taps, int tapsLen, Tav32fc* dly, int* dlyIndex);
/** @} */

/** @name tavsFIROne_Direct_Sfs
 *  @{ */
/**
 * Filters one sample of integers by taps in floats.
 *
 * @param val         the sample.
 * @param dst         receives the result.
 * @param taps        the N taps, h[0] first.
 * @param tapsLen     number of taps N, at least 1.
 * @param dly         the ring, 2 N entries.
 * @param dlyIndex    the place in the ring for the next sample, 0 to N-1, which is not tested; receives the next.
 * @param scaleFactor results are multiplied by 2^-@p scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadFirLength if @p tapsLen is below 1.
 */
TavStatus tavsFIROne32f_Direct_16s_Sfs(Tav16s val, Tav16s* dst, const Tav32f* taps, int tapsLen, Tav16s* dly,
                                       int* dlyIndex, int scaleFactor);
TavStatus tavsFIROne32fc_Direct_16sc_Sfs(Tav16sc val, Tav16sc* dst, const Tav32fc* taps, int tapsLen, Tav16sc* dly,
                                         int* dlyIndex, int scaleFactor);
TavStatus tavsFIROne64f_Direct_16s_Sfs(Tav16s val, Tav16s* dst, const Tav64f* taps, int tapsLen, Tav16s* dly,
                                       int* dlyIndex, int scaleFactor);
TavStatus tavsFIROne64fc_Direct_16sc_Sfs(Tav16sc val, Tav16sc* dst, const Tav64fc* taps, int tapsLen, Tav16sc* dly,
                                         int* dlyIndex, int scaleFactor);
TavStatus tavsFIROne64f_Direct_32s_Sfs(Tav32s val, Tav32s* dst, const Tav64f* taps, int tapsLen, Tav32s* dly,
                                       int* dlyIndex, int scaleFactor);
TavStatus tavsFIROne64fc_Direct_32sc_Sfs(Tav32sc val, Tav32sc* dst, const Tav64fc* taps, int tapsLen, Tav32sc* dly,
                                         int* dlyIndex, int scaleFactor);
/** @} */

/** @name tavsFIROne_Direct_ISfs, in place
 *  @{ */
/**
 * Filters one sample of integers by taps in floats, in place.
 *
 * @param srcDst      the sample; receives the result.
 * @param taps        the N taps, h[0] first.
 * @param tapsLen     number of taps N, at least 1.
 * @param dly         the ring, 2 N entries.
 * @param dlyIndex    the place in the ring for the next sample, 0 to N-1, which is not tested; receives the next.
 * @param scaleFactor results are multiplied by 2^-@p scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadFirLength if @p tapsLen is below 1.
 */
TavStatus tavsFIROne32f_Direct_16s_ISfs(Tav16s* srcDst, const Tav32f* taps, int tapsLen, Tav16s* dly, int* dlyIndex,
                                        int scaleFactor);
TavStatus tavsFIROne32fc_Direct_16sc_ISfs(Tav16sc* srcDst, const Tav32fc* taps, int tapsLen, Tav16sc* dly,
                                          int* dlyIndex, int scaleFactor);
TavStatus tavsFIROne64f_Direct_16s_ISfs(Tav16s* srcDst, const Tav64f* taps, int tapsLen, Tav16s* dly, int* dlyIndex,
                                        int scaleFactor);
TavStatus tavsFIROne64fc_Direct_16sc_ISfs(Tav16sc* srcDst, const Tav64fc* taps, int tapsLen, Tav16sc* dly,
                                          int* dlyIndex, int scaleFactor);
TavStatus tavsFIROne64f_Direct_32s_ISfs(Tav32s* srcDst, const Tav64f* taps, int tapsLen, Tav32s* dly, int* dlyIndex,
                                        int scaleFactor);
TavStatus tavsFIROne64fc_Direct_32sc_ISfs(Tav32sc* srcDst, const Tav64fc* taps, int tapsLen, Tav32sc* dly,
                                          int* dlyIndex, int scaleFactor);
/** @} */

/** @name tavsFIROne_Direct_Sfs, taps in integers
 *  @{ */
/**
 * Filters one sample of integers by taps in integers.
 *
 * @param val         the sample.
 * @param dst         receives the result.
 * @param taps        the N taps, h[0] first.
 * @param tapsLen     number of taps N, at least 1.
 * @param tapsFactor  exponent of the taps: their values are taps times 2^@p tapsFactor.
 * @param dly         the ring, 2 N entries.
 * @param dlyIndex    the place in the ring for the next sample, 0 to N-1, which is not tested; receives the next.
 * @param scaleFactor results are multiplied by 2^-@p scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadFirLength if @p tapsLen is below 1.
 */
TavStatus tavsFIROne32s_Direct_16s_Sfs(Tav16s val, Tav16s* dst, const Tav32s* taps, int tapsLen, int tapsFactor,
                                       Tav16s* dly, int* dlyIndex, int scaleFactor);
TavStatus tavsFIROne32sc_Direct_16sc_Sfs(Tav16sc val, Tav16sc* dst, const Tav32sc* taps, int tapsLen, int tapsFactor,
                                         Tav16sc* dly, int* dlyIndex, int scaleFactor);
/** @} */

/** @name tavsFIROne_Direct_ISfs, taps in integers, in place
 *  @{ */
/**
 * Filters one sample of integers by taps in integers, in place.
 *
 * @param srcDst      the sample; receives the result.
 * @param taps        the N taps, h[0] first.
 * @param tapsLen     number of taps N, at least 1.
 * @param tapsFactor  exponent of the taps: their values are taps times 2^@p tapsFactor.
 * @param dly         the ring, 2 N entries.
 * @param dlyIndex    the place in the ring for the next sample, 0 to N-1, which is not tested; receives the next.
 * @param scaleFactor results are multiplied by 2^-@p scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadFirLength if @p tapsLen is below 1.
 */
TavStatus tavsFIROne32s_Direct_16s_ISfs(Tav16s* srcDst, const Tav32s* taps, int tapsLen, int tapsFactor, Tav16s* dly,
                                        int* dlyIndex, int scaleFactor);
TavStatus tavsFIROne32sc_Direct_16sc_ISfs(Tav16sc* srcDst, const Tav32sc* taps, int tapsLen, int tapsFactor,
                                          Tav16sc* dly, int* dlyIndex, int scaleFactor);
/** @} */

/** @name tavsFIR_Direct_16s_Sfs
 *  @{ */
/**
 * Filters a block of Tav16s by taps of Tav16s. The delay line is not the ring of the other calls: it is read and
 * written the newest sample first. A delay line must not be used with tavsFIROne_Direct_16s_Sfs() as well. The call
 * allocates memory for the time it lasts.
 *
 * @param src         the samples.
 * @param dst         receives the results.
 * @param len         number of samples, at least 1.
 * @param taps        the N taps, h[0] first: fractions, 2^15 of which are 1.
 * @param tapsLen     number of taps N, at least 1.
 * @param dly         N samples from the index on, the newest first; receives the last N samples at 0, the newest first.
 * @param dlyIndex    where in @p dly the samples begin; receives 0.
 * @param scaleFactor results are multiplied by 2^-@p scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 * #tavStatusBadFirLength if @p tapsLen is below 1; #tavStatusBadDlyIndex
 * if the index is not 0 to N-1; #tavStatusNoMemory.
 */
TavStatus tavsFIR_Direct_16s_Sfs(const Tav16s* src, Tav16s* dst, int len, const Tav16s* taps, int tapsLen, Tav16s* dly,
                                 int* dlyIndex, int scaleFactor);
/** @} */

/** @name tavsFIR_Direct_16s_ISfs, in place
 *  @{ */
/**
 * Filters a block of Tav16s by taps of Tav16s in place. The delay line is not the ring of the other calls: it is read
 * and written the newest sample first. A delay line must not be used with tavsFIROne_Direct_16s_Sfs() as well. The
 * call allocates memory for the time it lasts.
 *
 * @param srcDst      the samples; receives the results.
 * @param len         number of samples, at least 1.
 * @param taps        the N taps, h[0] first: fractions, 2^15 of which are 1.
 * @param tapsLen     number of taps N, at least 1.
 * @param dly         N samples from the index on, the newest first; receives the last N samples at 0, the newest first.
 * @param dlyIndex    where in @p dly the samples begin; receives 0.
 * @param scaleFactor results are multiplied by 2^-@p scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 * #tavStatusBadFirLength if @p tapsLen is below 1; #tavStatusBadDlyIndex
 * if the index is not 0 to N-1; #tavStatusNoMemory.
 */
TavStatus tavsFIR_Direct_16s_ISfs(Tav16s* srcDst, int len, const Tav16s* taps, int tapsLen, Tav16s* dly, int* dlyIndex,
                                  int scaleFactor);
/** @} */

/** @name tavsFIROne_Direct_16s_Sfs
 *  @{ */
/**
 * Filters one sample of Tav16s by taps of Tav16s. The delay line is the usual ring, and must
 * not be used with tavsFIR_Direct_16s_Sfs() as well.
 *
 * @param val         the sample.
 * @param dst         receives the result.
 * @param taps        the N taps, h[0] first: fractions, 2^15 of which are 1.
 * @param tapsLen     number of taps N, at least 1.
 * @param dly         the ring, 2 N entries.
 * @param dlyIndex    the place in the ring for the next sample; receives the next.
 * @param scaleFactor results are multiplied by 2^-@p scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadFirLength if @p tapsLen is below 1;
 * #tavStatusBadDlyIndex if the index is not 0 to N-1.
 */
TavStatus tavsFIROne_Direct_16s_Sfs(Tav16s val, Tav16s* dst, const Tav16s* taps, int tapsLen, Tav16s* dly,
                                    int* dlyIndex, int scaleFactor);
/** @} */

/** @name tavsFIROne_Direct_16s_ISfs, in place
 *  @{ */
/**
 * Filters one sample of Tav16s by taps of Tav16s in place. The delay line is the usual ring, and must
 * not be used with tavsFIR_Direct_16s_Sfs() as well.
 *
 * @param srcDst      the sample; receives the result.
 * @param taps        the N taps, h[0] first: fractions, 2^15 of which are 1.
 * @param tapsLen     number of taps N, at least 1.
 * @param dly         the ring, 2 N entries.
 * @param dlyIndex    the place in the ring for the next sample; receives the next.
 * @param scaleFactor results are multiplied by 2^-@p scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadFirLength if @p tapsLen is below 1;
 * #tavStatusBadDlyIndex if the index is not 0 to N-1.
 */
TavStatus tavsFIROne_Direct_16s_ISfs(Tav16s* srcDst, const Tav16s* taps, int tapsLen, Tav16s* dly, int* dlyIndex,
                                     int scaleFactor);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
