/**
 * @file companding.h
 * Companding of speech by A-law and mu-law, and the lines of multi-channel sound.
 */
#ifndef TAVS_COMPANDING_H
#define TAVS_COMPANDING_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup companding Companding
 *
 *  A-law and mu-law of ITU-T G.711: samples of 16 bits, or floats from -1 to 1, as codes of 8 bits whose steps grow
 *  with the sample. Every byte is a valid code of either law.
 *  @{ */

/** @name tavsALawToLin, tavsMuLawToLin
 *  @{ */
/**
 * Expands codes: dst[i] = the sample that the code src[i] stands for, for i from 0 to len - 1.
 *
 * The 8u16s forms give the sample in the upper bits of 16: A-law reaches from -32256 to 32256, mu-law from -32124 to
 * 32124. The 8u32f forms give the same, divided by 32768, exactly.
 *
 * @param src codes, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsALawToLin_8u16s(const Tav8u* src, Tav16s* dst, int len);
TavStatus tavsALawToLin_8u32f(const Tav8u* src, Tav32f* dst, int len);
TavStatus tavsMuLawToLin_8u16s(const Tav8u* src, Tav16s* dst, int len);
TavStatus tavsMuLawToLin_8u32f(const Tav8u* src, Tav32f* dst, int len);
/** @} */

/** @name tavsLinToALaw, tavsLinToMuLaw
 *  @{ */
/**
 * Compresses samples: dst[i] = the code of src[i], for i from 0 to len - 1.
 *
 * A-law looks at the upper 13 bits of a sample, mu-law at the upper 14. The magnitude of a negative sample is its
 * complement, ~src[i], so that -1 has that of 0, and mu-law gives it 0x7F beside 0xFF.
 *
 * The 32f8u forms multiply by 32768, limit the product to -32768 and 32767, and round it to an integer, whatever the
 * caller's rounding mode: ties become even in the mu-law form and go away from zero in the A-law form. A NaN gets the
 * code of 32767.
 *
 * @param src samples, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsLinToALaw_16s8u(const Tav16s* src, Tav8u* dst, int len);
TavStatus tavsLinToALaw_32f8u(const Tav32f* src, Tav8u* dst, int len);
TavStatus tavsLinToMuLaw_16s8u(const Tav16s* src, Tav8u* dst, int len);
TavStatus tavsLinToMuLaw_32f8u(const Tav32f* src, Tav8u* dst, int len);
/** @} */

/** @name tavsALawToMuLaw, tavsMuLawToALaw
 *  @{ */
/**
 * Translates codes of one law into codes of the other: dst[i] = the code for src[i], for i from 0 to len - 1.
 *
 * The translation is a fixed table. It differs for a few codes from expanding and compressing again.
 *
 * @param src codes, @p len elements.
 * @param dst destination, @p len elements; it may be @p src itself.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsALawToMuLaw_8u(const Tav8u* src, Tav8u* dst, int len);
TavStatus tavsMuLawToALaw_8u(const Tav8u* src, Tav8u* dst, int len);
/** @} */
/** @} */

/** @defgroup lines Lines of multi-channel sound
 *
 *  Interleaved sound holds frames: one sample of each channel, in turn. A line is one channel by itself, as floats from
 *  -1 to 1. A sample x of n bits and a float y correspond by y = (2 * x + 1) / (2^n - 1): the lowest sample is -1, the
 *  highest one 1. Samples of 24 bits are three bytes each, the lowest one first.
 *  @{ */

/** @name tavsSplitScaled
 *  @{ */
/**
 * Splits frames into lines: dstLines[c][j] = src[j * lineCount + c] * a + b for c from 0 to lineCount - 1 and j from 0
 * to lineLen - 1.
 *
 * The 16s32f form has a = 3.0518044e-5 and b = 1.5259022e-5 and computes in single precision, the 24s32f form has
 * a = 1.19209296656209e-7 and b = 5.96046483281045e-8 and computes in double precision; both in the caller's rounding
 * mode. The order of the checks is that of the list below.
 *
 * @param src       frames, @p lineLen * @p lineCount samples.
 * @param dstLines  @p lineCount pointers to lines of @p lineLen elements, which must not overlap.
 * @param lineCount number of lines, at least 1.
 * @param lineLen   number of frames, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p src is null; #tavStatusBadSize if @p lineCount or @p lineLen is
 *         below 1; #tavStatusNullPointer if @p dstLines or one of its pointers is null: then no line is written.
 */
TavStatus tavsSplitScaled_16s32f_D2L(const Tav16s* src, Tav32f** dstLines, int lineCount, int lineLen);
TavStatus tavsSplitScaled_24s32f_D2L(const Tav8u* src, Tav32f** dstLines, int lineCount, int lineLen);
/** @} */

/** @name tavsJoinScaled
 *  @{ */
/**
 * Joins lines to frames: dst[j * lineCount + c] = (srcLines[c][j] - b) * (1 / a) for c from 0 to lineCount - 1 and j
 * from 0 to lineLen - 1, with the a and b of tavsSplitScaled_16s32f_D2L() and tavsSplitScaled_24s32f_D2L().
 *
 * The 32f16s form computes in single precision, the 32f24s form in double precision. Results are rounded to nearest
 * with ties to even, whatever the caller's rounding mode, and limited to the range of the samples; a NaN becomes the
 * highest one. Samples of 16 bits that were split and joined are what they were. The order of the checks is that of the
 * list below.
 *
 * @param srcLines  @p lineCount pointers to lines of @p lineLen elements.
 * @param lineCount number of lines, at least 1.
 * @param lineLen   number of frames, at least 1.
 * @param dst       frames, @p lineLen * @p lineCount samples.
 * @return #tavStatusOk; #tavStatusNullPointer if @p dst is null; #tavStatusBadSize if @p lineCount or @p lineLen is
 *         below 1; #tavStatusNullPointer if @p srcLines or one of its pointers is null.
 */
TavStatus tavsJoinScaled_32f16s_D2L(const Tav32f** srcLines, int lineCount, int lineLen, Tav16s* dst);
TavStatus tavsJoinScaled_32f24s_D2L(const Tav32f** srcLines, int lineCount, int lineLen, Tav8u* dst);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
