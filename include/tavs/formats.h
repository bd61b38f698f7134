/**
 * @file formats.h
 * Conversion from and to sample formats that have no C type: 24-bit integers and half floats.
 */
#ifndef TAVS_FORMATS_H
#define TAVS_FORMATS_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup formats Conversion of 24-bit integers and half floats
 *
 *  A 24-bit integer takes three bytes, the lowest first, with nothing between it and the next: code 24s for signed ones
 *  (-8388608 to 8388607), 24u for unsigned ones (0 to 16777215). An array of them is passed as bytes, and a length of
 *  @p len means 3 * @p len bytes. No byte outside them is read or written.
 *
 *  A half float (code 16f, stored in #Tav16u) is an IEEE 754 binary16 number: sign, 5 bits of exponent, 10 of fraction.
 *  Finite ones reach 65504; the lowest subnormal one is 2^-24.
 *
 *  The results of these functions do not depend on the thread's rounding mode, and those of half floats neither on its
 *  treatment of subnormal numbers. The arrays must not overlap.
 *  @{ */

/** @name tavsConvert from 24-bit integers
 *  @{ */
/**
 * Converts 24-bit integers to 32-bit integers or floats, exactly: dst[i] = src[i] for i from 0 to len - 1.
 *
 * @param src source, 3 * @p len bytes.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsConvert_24s32s(const Tav8u* src, Tav32s* dst, int len);
TavStatus tavsConvert_24s32f(const Tav8u* src, Tav32f* dst, int len);
TavStatus tavsConvert_24u32u(const Tav8u* src, Tav32u* dst, int len);
TavStatus tavsConvert_24u32f(const Tav8u* src, Tav32f* dst, int len);
/** @} */

/** @name tavsConvert of integers to 24 bits
 *  @{ */
/**
 * Converts 32-bit integers to 24-bit ones: dst[i] = src[i] * 2^-scaleFactor for i from 0 to len - 1, rounded to nearest
 * with ties to even, and saturated.
 *
 * A scale factor above 31 works like 31, so that the highest unsigned elements do not become 0 but 1 or 2, and one
 * below -31 like -31.
 *
 * @param src         source, @p len elements.
 * @param dst         destination, 3 * @p len bytes.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsConvert_32s24s_Sfs(const Tav32s* src, Tav8u* dst, int len, int scaleFactor);
TavStatus tavsConvert_32u24u_Sfs(const Tav32u* src, Tav8u* dst, int len, int scaleFactor);
/** @} */

/** @name tavsConvert of floats to 24 bits
 *  @{ */
/**
 * Converts floats to 24-bit integers: dst[i] = src[i] * 2^-scaleFactor for i from 0 to len - 1, rounded to nearest with
 * ties to even, and saturated. A NaN gives the highest integer.
 *
 * The multiplier is 0 for factors from 127 on and infinite for factors from -128 down.
 *
 * @param src         source, @p len elements.
 * @param dst         destination, 3 * @p len bytes.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsConvert_32f24s_Sfs(const Tav32f* src, Tav8u* dst, int len, int scaleFactor);
TavStatus tavsConvert_32f24u_Sfs(const Tav32f* src, Tav8u* dst, int len, int scaleFactor);
/** @} */

/**
 * Converts half floats to singles, exactly: dst[i] = src[i] for i from 0 to len - 1. A NaN becomes a quiet NaN.
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsConvert_16f32f(const Tav16u* src, Tav32f* dst, int len);

/** @name tavsConvert to half floats
 *  @{ */
/**
 * Converts singles or 16-bit integers to half floats: dst[i] = src[i], rounded, for i from 0 to len - 1.
 *
 * Rounding holds for subnormal results too. To nearest, magnitudes from 65520 on become infinite; toward zero, finite
 * ones become at most 65504. Infinities stay, and a NaN becomes a quiet NaN of its sign.
 *
 * @param src       source, @p len elements.
 * @param dst       destination, @p len elements.
 * @param len       number of elements, at least 1.
 * @param roundMode 1: to nearest, ties to even; 2 is refused; any other: toward zero.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusBadRoundMode if @p roundMode is 2.
 */
TavStatus tavsConvert_32f16f(const Tav32f* src, Tav16u* dst, int len, int roundMode);
TavStatus tavsConvert_16s16f(const Tav16s* src, Tav16u* dst, int len, int roundMode);
/** @} */

/**
 * Converts half floats to 16-bit integers: dst[i] = src[i] * 2^-scaleFactor for i from 0 to len - 1, rounded and
 * saturated. A NaN gives the highest integer.
 *
 * The multiplier is 0 for factors from 127 on and infinite for factors from -128 down.
 *
 * @param src         source, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param roundMode   1: to nearest, ties to even; 2 is refused; any other: toward zero.
 * @param scaleFactor the scale factor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusBadRoundMode if @p roundMode is 2.
 */
TavStatus tavsConvert_16f16s_Sfs(const Tav16u* src, Tav16s* dst, int len, int roundMode, int scaleFactor);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
