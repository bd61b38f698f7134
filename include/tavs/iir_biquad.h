/**
 * @file iir_biquad.h
 * IIR filters as cascades of biquad sections.
 */
#ifndef TAVS_IIR_BIQUAD_H
#define TAVS_IIR_BIQUAD_H

#include "contexts.h"
#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup iir_biquad IIR filters as cascades of biquads
 *
 *  A cascade is a row of sections of second order, each of which filters what the one before it gives:
 *
 *      y[n] = (b0 x[n] + b1 x[n-1] + b2 x[n-2] - a1 y[n-1] - a2 y[n-2]) / a0
 *
 *  Rounding errors hurt a filter of high order far less in this form than in that of one polynomial. States are set up
 *  here. What filters with them, gives them other taps, reads and writes their delay lines and releases them are the
 *  calls of iir.h: tavsIIR(), tavsIIROne(), tavsIIRSetTaps(), tavsIIRGetDlyLine(), tavsIIRSetDlyLine(), tavsIIRFree().
 *
 *  @par Taps
 *  Six a section: b0, b1, b2, a0, a1, a2. They are stored divided by a0. Neither b0 nor a0 may be 0. Integer taps have
 * a factor: a tap counts as tap * 2^-tapsFactor.
 *
 *  @par Delay line
 *  Two values a section, those of the transposed direct form 2:
 *
 *      y[n] = b0 x[n] + d0;  d0 becomes b1 x[n] - a1 y[n] + d1;  d1 becomes b2 x[n] - a2 y[n]
 *
 *  (the taps divided by a0). They are of the type that the filter computes in; where the taps are integers, the array
 * of 32-bit integers holds the bits of singles. Cascades in direct form 1 (BiQuad_DF1) have four values a section
 * instead: x[n-2], x[n-1], y[n-2], y[n-1].
 *
 *  @par Precision
 *  Each section computes four outputs at a time from those before them, so that results differ from the plain
 *  recursion, and with the split of a stream into blocks, by rounding errors. States for integers, and those that
 *  compute in doubles on singles, do so in a block of more than four samples a section and by the recursion in a
 * shorter one; the others in any block of more than two samples. Four outputs are made of sums that hold all four
 * inputs, so an infinity or a NaN may show up to three samples early. With singles and real 16-bit samples the first
 * two outputs of such a block, and of each 1024 samples of a longer one, are rounded towards zero; all others to
 * nearest, ties to even.
 *  @{ */

/** @name tavsIIRGetStateSize, cascades
 *  @{ */
/**
 * Tells the size of the memory that a state needs.
 *
 * @param numBq number of sections, at least 1.
 * @param size  receives the bytes.
 * @return #tavStatusOk; #tavStatusNullPointer if @p size is null; else #tavStatusBadIirOrder if @p numBq is below 1.
 */
TavStatus tavsIIRGetStateSize32f_BiQuad_16s(int numBq, int* size);
TavStatus tavsIIRGetStateSize32fc_BiQuad_16sc(int numBq, int* size);
TavStatus tavsIIRGetStateSize32s_BiQuad_16s(int numBq, int* size);
TavStatus tavsIIRGetStateSize32s_BiQuad_16s32f(int numBq, int* size);
TavStatus tavsIIRGetStateSize32sc_BiQuad_16sc(int numBq, int* size);
TavStatus tavsIIRGetStateSize32sc_BiQuad_16sc32fc(int numBq, int* size);
TavStatus tavsIIRGetStateSize64f_BiQuad_16s(int numBq, int* size);
TavStatus tavsIIRGetStateSize64f_BiQuad_32f(int numBq, int* size);
TavStatus tavsIIRGetStateSize64f_BiQuad_32s(int numBq, int* size);
TavStatus tavsIIRGetStateSize64f_BiQuad_DF1_32s(int numBq, int* size);
TavStatus tavsIIRGetStateSize64fc_BiQuad_16sc(int numBq, int* size);
TavStatus tavsIIRGetStateSize64fc_BiQuad_32fc(int numBq, int* size);
TavStatus tavsIIRGetStateSize64fc_BiQuad_32sc(int numBq, int* size);
TavStatus tavsIIRGetStateSize_BiQuad_32f(int numBq, int* size);
TavStatus tavsIIRGetStateSize_BiQuad_32fc(int numBq, int* size);
TavStatus tavsIIRGetStateSize_BiQuad_64f(int numBq, int* size);
TavStatus tavsIIRGetStateSize_BiQuad_64fc(int numBq, int* size);
TavStatus tavsIIRGetStateSize_BiQuad_DF1_32f(int numBq, int* size);
/** @} */

/** @name tavsIIRInit, cascades
 *  @{ */
/**
 * Sets a state up in memory of the caller's.
 *
 * @param state receives the state, which lies inside @p buf and must not be moved.
 * @param taps  six taps a section.
 * @param numBq number of sections.
 * @param dly   the delay line; null: zeros.
 * @param buf   as many bytes as tavsIIRGetStateSize() tells, at any address.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state, @p taps or @p buf is null; else #tavStatusBadIirOrder if
 *         @p numBq is below 1; else #tavStatusDivideByZero if b0 or a0 of a section is 0. On an error @p state is not
 *         written.
 */
TavStatus tavsIIRInit32f_BiQuad_16s(IIRState32f_16s** state, const Tav32f* taps, int numBq, const Tav32f* dly,
                                    Tav8u* buf);
TavStatus tavsIIRInit32fc_BiQuad_16sc(IIRState32fc_16sc** state, const Tav32fc* taps, int numBq, const Tav32fc* dly,
                                      Tav8u* buf);
TavStatus tavsIIRInit32s_BiQuad_16s32f(IIRState32s_16s** state, const Tav32f* taps, int numBq, const Tav32s* dly,
                                       Tav8u* buf);
TavStatus tavsIIRInit32sc_BiQuad_16sc32fc(IIRState32sc_16sc** state, const Tav32fc* taps, int numBq, const Tav32sc* dly,
                                          Tav8u* buf);
TavStatus tavsIIRInit64f_BiQuad_16s(IIRState64f_16s** state, const Tav64f* taps, int numBq, const Tav64f* dly,
                                    Tav8u* buf);
TavStatus tavsIIRInit64f_BiQuad_32f(IIRState64f_32f** state, const Tav64f* taps, int numBq, const Tav64f* dly,
                                    Tav8u* buf);
TavStatus tavsIIRInit64f_BiQuad_32s(IIRState64f_32s** state, const Tav64f* taps, int numBq, const Tav64f* dly,
                                    Tav8u* buf);
TavStatus tavsIIRInit64f_BiQuad_DF1_32s(IIRState64f_32s** state, const Tav64f* taps, int numBq, const Tav64f* dly,
                                        Tav8u* buf);
TavStatus tavsIIRInit64fc_BiQuad_16sc(IIRState64fc_16sc** state, const Tav64fc* taps, int numBq, const Tav64fc* dly,
                                      Tav8u* buf);
TavStatus tavsIIRInit64fc_BiQuad_32fc(IIRState64fc_32fc** state, const Tav64fc* taps, int numBq, const Tav64fc* dly,
                                      Tav8u* buf);
TavStatus tavsIIRInit64fc_BiQuad_32sc(IIRState64fc_32sc** state, const Tav64fc* taps, int numBq, const Tav64fc* dly,
                                      Tav8u* buf);
TavStatus tavsIIRInit_BiQuad_32f(IIRState_32f** state, const Tav32f* taps, int numBq, const Tav32f* dly, Tav8u* buf);
TavStatus tavsIIRInit_BiQuad_32fc(IIRState_32fc** state, const Tav32fc* taps, int numBq, const Tav32fc* dly,
                                  Tav8u* buf);
TavStatus tavsIIRInit_BiQuad_64f(IIRState_64f** state, const Tav64f* taps, int numBq, const Tav64f* dly, Tav8u* buf);
TavStatus tavsIIRInit_BiQuad_64fc(IIRState_64fc** state, const Tav64fc* taps, int numBq, const Tav64fc* dly,
                                  Tav8u* buf);
TavStatus tavsIIRInit_BiQuad_DF1_32f(IIRState_32f** state, const Tav32f* taps, int numBq, const Tav32f* dly,
                                     Tav8u* buf);
/** @} */

/** @name tavsIIRInit, cascades with integer taps
 *  @{ */
/**
 * Sets a state up in memory of the caller's, with integer taps. The call allocates memory for the time it lasts.
 *
 * @param state      receives the state, which lies inside @p buf and must not be moved.
 * @param taps       six taps a section.
 * @param numBq      number of sections.
 * @param tapsFactor a tap counts as tap * 2^-tapsFactor.
 * @param dly        the delay line; null: zeros.
 * @param buf        as many bytes as tavsIIRGetStateSize() tells, at any address.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state, @p taps or @p buf is null; else #tavStatusBadIirOrder if
 *         @p numBq is below 1; #tavStatusNoMemory; #tavStatusDivideByZero if b0 or a0 of a section is 0. On an error
 *         @p state is not written.
 */
TavStatus tavsIIRInit32s_BiQuad_16s(IIRState32s_16s** state, const Tav32s* taps, int numBq, int tapsFactor,
                                    const Tav32s* dly, Tav8u* buf);
TavStatus tavsIIRInit32sc_BiQuad_16sc(IIRState32sc_16sc** state, const Tav32sc* taps, int numBq, int tapsFactor,
                                      const Tav32sc* dly, Tav8u* buf);
/** @} */

/** @name tavsIIRInitAlloc, cascades
 *  @{ */
/**
 * Sets a state up in memory that it allocates; tavsIIRFree() releases it.
 *
 * @param state receives the state.
 * @param taps  six taps a section.
 * @param numBq number of sections.
 * @param dly   the delay line; null: zeros.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state or @p taps is null; else #tavStatusBadIirOrder if @p numBq is
 *         below 1; #tavStatusNoMemory; #tavStatusDivideByZero if b0 or a0 of a section is 0. On an error @p state is
 *         not written.
 */
TavStatus tavsIIRInitAlloc32f_BiQuad_16s(IIRState32f_16s** state, const Tav32f* taps, int numBq, const Tav32f* dly);
TavStatus tavsIIRInitAlloc32fc_BiQuad_16sc(IIRState32fc_16sc** state, const Tav32fc* taps, int numBq,
                                           const Tav32fc* dly);
TavStatus tavsIIRInitAlloc32s_BiQuad_16s32f(IIRState32s_16s** state, const Tav32f* taps, int numBq, const Tav32s* dly);
TavStatus tavsIIRInitAlloc32sc_BiQuad_16sc32fc(IIRState32sc_16sc** state, const Tav32fc* taps, int numBq,
                                               const Tav32sc* dly);
TavStatus tavsIIRInitAlloc64f_BiQuad_16s(IIRState64f_16s** state, const Tav64f* taps, int numBq, const Tav64f* dly);
TavStatus tavsIIRInitAlloc64f_BiQuad_32f(IIRState64f_32f** state, const Tav64f* taps, int numBq, const Tav64f* dly);
TavStatus tavsIIRInitAlloc64f_BiQuad_32s(IIRState64f_32s** state, const Tav64f* taps, int numBq, const Tav64f* dly);
TavStatus tavsIIRInitAlloc64f_BiQuad_DF1_32s(IIRState64f_32s** state, const Tav64f* taps, int numBq, const Tav64f* dly);
TavStatus tavsIIRInitAlloc64fc_BiQuad_16sc(IIRState64fc_16sc** state, const Tav64fc* taps, int numBq,
                                           const Tav64fc* dly);
TavStatus tavsIIRInitAlloc64fc_BiQuad_32fc(IIRState64fc_32fc** state, const Tav64fc* taps, int numBq,
                                           const Tav64fc* dly);
TavStatus tavsIIRInitAlloc64fc_BiQuad_32sc(IIRState64fc_32sc** state, const Tav64fc* taps, int numBq,
                                           const Tav64fc* dly);
TavStatus tavsIIRInitAlloc_BiQuad_32f(IIRState_32f** state, const Tav32f* taps, int numBq, const Tav32f* dly);
TavStatus tavsIIRInitAlloc_BiQuad_32fc(IIRState_32fc** state, const Tav32fc* taps, int numBq, const Tav32fc* dly);
TavStatus tavsIIRInitAlloc_BiQuad_64f(IIRState_64f** state, const Tav64f* taps, int numBq, const Tav64f* dly);
TavStatus tavsIIRInitAlloc_BiQuad_64fc(IIRState_64fc** state, const Tav64fc* taps, int numBq, const Tav64fc* dly);
TavStatus tavsIIRInitAlloc_BiQuad_DF1_32f(IIRState_32f** state, const Tav32f* taps, int numBq, const Tav32f* dly);
/** @} */

/** @name tavsIIRInitAlloc, cascades with integer taps
 *  @{ */
/**
 * Sets a state up in memory that it allocates, with integer taps; tavsIIRFree() releases it.
 *
 * @param state      receives the state.
 * @param taps       six taps a section.
 * @param numBq      number of sections.
 * @param tapsFactor a tap counts as tap * 2^-tapsFactor.
 * @param dly        the delay line; null: zeros.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state or @p taps is null; else #tavStatusBadIirOrder if @p numBq is
 *         below 1; #tavStatusNoMemory; #tavStatusDivideByZero if b0 or a0 of a section is 0. On an error @p state is
 *         not written.
 */
TavStatus tavsIIRInitAlloc32s_BiQuad_16s(IIRState32s_16s** state, const Tav32s* taps, int numBq, int tapsFactor,
                                         const Tav32s* dly);
TavStatus tavsIIRInitAlloc32sc_BiQuad_16sc(IIRState32sc_16sc** state, const Tav32sc* taps, int numBq, int tapsFactor,
                                           const Tav32sc* dly);
/** @} */

/** @name tavsIIRGetDlyLine, tavsIIRSetDlyLine, direct form 1
 *  @{ */
/**
 * Tells the delay line of a cascade in direct form 1.
 *
 * @param state the state, from tavsIIRInit64f_BiQuad_DF1_32s() or its InitAlloc twin.
 * @param dly   receives four values a section.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; else #tavStatusBadContext if @p state is no such
 *         state.
 */
TavStatus tavsIIRGetDlyLine64f_DF1_32s(const IIRState64f_32s* state, Tav64f* dly);
/**
 * Gives a cascade in direct form 1 another delay line.
 *
 * @param state the state, from tavsIIRInit64f_BiQuad_DF1_32s() or its InitAlloc twin.
 * @param dly   four values a section; null: zeros.
 * @return #tavStatusOk; #tavStatusNullPointer if @p state is null; #tavStatusBadContext if it is no such state.
 */
TavStatus tavsIIRSetDlyLine64f_DF1_32s(IIRState64f_32s* state, const Tav64f* dly);
/** @} */

/** @name tavsIIR, several channels
 *  @{ */
/**
 * Filters a block of each of several channels. Each channel's outputs are those of tavsIIR_32f().
 *
 * @param src       one source for each channel.
 * @param dst       one destination for each channel; may be the source of that channel.
 * @param len       number of samples of each channel, at least 1.
 * @param nChannels number of channels.
 * @param states    one state for each channel: all cascades, and all in one form.
 * @return #tavStatusOk; #tavStatusNullPointer if @p src, @p dst or @p states is null; else #tavStatusBadSize if @p len
 * is below 1; else #tavStatusBadChannelCount if @p nChannels is below 1; else #tavStatusNullPointer if an entry of an
 * array is null; else #tavStatusBadContext if the first state is no cascade or another one differs in kind.
 */
TavStatus tavsIIR_32f_P(const Tav32f** src, Tav32f** dst, int len, int nChannels, IIRState_32f** states);
/** @} */

/** @name tavsIIR, several channels, in place
 *  @{ */
/**
 * Filters a block of each of several channels where it stands. Each channel's outputs are those of tavsIIR_32f_I().
 *
 * @param srcDst    source and destination for each channel.
 * @param len       number of samples of each channel, at least 1.
 * @param nChannels number of channels.
 * @param states    one state for each channel: all cascades, and all in one form.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst or @p states is null; else #tavStatusBadSize if @p len is
 *         below 1; else #tavStatusBadChannelCount if @p nChannels is below 1; else #tavStatusNullPointer if an entry of
 *         an array is null; else #tavStatusBadContext if the first state is no cascade or another one differs in kind.
 */
TavStatus tavsIIR_32f_IP(Tav32f** srcDst, int len, int nChannels, IIRState_32f** states);
/** @} */

/** @name tavsIIR, several channels of integers
 *  @{ */
/**
 * Filters a block of integer samples of each of several channels. Each channel's outputs are those of
 * tavsIIR64f_32s_Sfs().
 *
 * @param src         one source for each channel.
 * @param dst         one destination for each channel; may be the source of that channel.
 * @param len         number of samples of each channel, at least 1.
 * @param nChannels   number of channels.
 * @param states      one state for each channel, all of one structure, which may be an arbitrary order.
 * @param scaleFactor one for each channel: results are multiplied by 2^-scaleFactor, rounded to nearest, ties to even,
 *                    and saturated.
 * @return #tavStatusOk; #tavStatusNullPointer if @p src, @p dst, @p states or @p scaleFactor is null; else
 *         #tavStatusBadSize if @p len is below 1; else #tavStatusBadChannelCount64 if @p nChannels is below 1; else
 *         #tavStatusNullPointer if an entry of an array is null; else #tavStatusBadContext if the first state is no
 *         state of this type or another one differs in kind.
 */
TavStatus tavsIIR64f_32s_PSfs(const Tav32s** src, Tav32s** dst, int len, int nChannels, IIRState64f_32s** states,
                              const int* scaleFactor);
/** @} */

/** @name tavsIIR, several channels of integers, in place
 *  @{ */
/**
 * Filters a block of integer samples of each of several channels where it stands. Each channel's outputs are those of
 * tavsIIR64f_32s_ISfs().
 *
 * @param srcDst      source and destination for each channel.
 * @param len         number of samples of each channel, at least 1.
 * @param nChannels   number of channels.
 * @param states      one state for each channel, all of one structure, which may be an arbitrary order.
 * @param scaleFactor one for each channel: results are multiplied by 2^-scaleFactor, rounded to nearest, ties to even,
 *                    and saturated.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst, @p states or @p scaleFactor is null; else #tavStatusBadSize
 *         if @p len is below 1; else #tavStatusBadChannelCount64 if @p nChannels is below 1; else #tavStatusNullPointer
 *         if an entry of an array is null; else #tavStatusBadContext if the first state is no state of this type or
 *         another one differs in kind.
 */
TavStatus tavsIIR64f_32s_IPSfs(Tav32s** srcDst, int len, int nChannels, IIRState64f_32s** states,
                               const int* scaleFactor);
/** @} */

/** @name tavsIIR_BiQuadDirect
 *  @{ */
/**
 * Filters a block of 16-bit samples by a cascade without a state, in singles. Taps and delay line are integers; in each
 * section a0 is an exponent: what the section holds counts as value * 2^-a0. The block runs as one of
 * tavsIIR32f_16s_Sfs() with the scale factor 0, in a state that the call allocates.
 *
 * @param src   source.
 * @param dst   destination; may be @p src itself and must not overlap it otherwise.
 * @param len   number of samples, at least 1.
 * @param taps  six a section: b0, b1, b2, a0, a1, a2, with an a0 that is not negative.
 * @param numBq number of sections, at least 1.
 * @param dly   two values a section. They come back rounded towards zero, and saturated.
 * @return #tavStatusOk; #tavStatusBadIirOrder if @p numBq is below 1; else #tavStatusNullPointer if a pointer is null;
 *         else #tavStatusBadSize if @p len is below 1; else #tavStatusNoMemory; else #tavStatusBadTapScale if an a0 is
 *         negative.
 */
TavStatus tavsIIR_BiQuadDirect_16s(const Tav16s* src, Tav16s* dst, int len, const Tav16s* taps, int numBq, Tav32s* dly);
/** @} */

/** @name tavsIIR_BiQuadDirect, in place
 *  @{ */
/**
 * Filters a block of 16-bit samples where they stand, as tavsIIR_BiQuadDirect_16s() does.
 *
 * @param srcDst source and destination.
 * @param len    number of samples, at least 1.
 * @param taps   six a section: b0, b1, b2, a0, a1, a2, with an a0 that is not negative.
 * @param numBq  number of sections, at least 1.
 * @param dly    two values a section. They come back rounded towards zero, and saturated.
 * @return #tavStatusOk; #tavStatusBadIirOrder if @p numBq is below 1; else #tavStatusNullPointer if a pointer is null;
 *         else #tavStatusBadSize if @p len is below 1; else #tavStatusNoMemory; else #tavStatusBadTapScale if an a0 is
 *         negative.
 */
TavStatus tavsIIR_BiQuadDirect_16s_I(Tav16s* srcDst, int len, const Tav16s* taps, int numBq, Tav32s* dly);
/** @} */

/** @name tavsIIROne_BiQuadDirect
 *  @{ */
/**
 * Filters one sample by a cascade without a state, in integers: results may differ in the last bits from those of
 * tavsIIR_BiQuadDirect_16s(). With s the low five bits of a0, a section computes modulo 2^32
 *
 *     v = b0 x + d0;  y = (v + ((v >> s) & 1) + 2^((s + 31) mod 32) - 1) >> s
 *     d0 becomes b1 x - a1 y + d1;  d1 becomes b2 x - a2 y
 *
 * and hands y on as it is; the last one's is saturated. Without a shift (s = 0) the power in it is 2^31: such taps are
 * of no use here, for v = 0 gives 32767.
 *
 * @param val   the sample.
 * @param dst   receives the result.
 * @param taps  six a section: b0, b1, b2, a0, a1, a2, with an a0 that is not negative.
 * @param numBq number of sections, at least 1.
 * @param dly   two values a section.
 * @return #tavStatusOk; #tavStatusBadIirOrder if @p numBq is below 1; else #tavStatusNullPointer if a pointer is null;
 *         #tavStatusBadTapScale if an a0 is negative: the sections before that one have run then, and @p dst is not
 *         written.
 */
TavStatus tavsIIROne_BiQuadDirect_16s(Tav16s val, Tav16s* dst, const Tav16s* taps, int numBq, Tav32s* dly);
/** @} */

/** @name tavsIIROne_BiQuadDirect, in place
 *  @{ */
/**
 * Filters one sample where it stands, as tavsIIROne_BiQuadDirect_16s() does.
 *
 * @param srcDst the sample, and the result.
 * @param taps   six a section: b0, b1, b2, a0, a1, a2, with an a0 that is not negative.
 * @param numBq  number of sections, at least 1.
 * @param dly    two values a section.
 * @return #tavStatusOk; #tavStatusBadIirOrder if @p numBq is below 1; else #tavStatusNullPointer if a pointer is null;
 *         #tavStatusBadTapScale if an a0 is negative: the sections before that one have run then, and @p srcDst is not
 *         written.
 */
TavStatus tavsIIROne_BiQuadDirect_16s_I(Tav16s* srcDst, const Tav16s* taps, int numBq, Tav32s* dly);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
