/**
 * @file convert.h
 * Conversion between integers of 8 to 64 bits and floats.
 */
#ifndef TAVS_CONVERT_H
#define TAVS_CONVERT_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup convert Conversion
 *
 *  The name tells the source's type, then the destination's: tavsConvert_32f16s_Sfs() makes 16-bit integers of floats.
 *
 *  A value is multiplied by 2^-scaleFactor (a positive factor scales down, a negative one up), rounded if it must be,
 *  and saturated. Any scaleFactor is accepted. Where floats are involved the power of two is a float of the same type,
 *  and past the ends of its exponent it is 0 or infinity:
 *
 *  | floats           | 0 at a scaleFactor of | infinity at a scaleFactor of |
 *  |------------------|-----------------------|------------------------------|
 *  | single precision | 127 and more          | -128 and less                |
 *  | double precision | 1023 and more         | -1024 and less               |
 *
 *  Infinity times an element of 0 is a NaN.
 *
 *  Where there is a roundMode it is 0 to cut off toward zero, 1 to round to nearest with ties to even, and any other
 *  value to round to nearest with ties away from zero:
 *
 *  | roundMode | 2.5 | 3.5 | -2.5 | 0.49999997 |
 *  |-----------|-----|-----|------|------------|
 *  | 0         | 2   | 3   | -2   | 0          |
 *  | 1         | 2   | 4   | -2   | 0          |
 *  | 2         | 3   | 4   | -3   | 0          |
 *
 *  Conversions to integers do not depend on the caller's rounding mode and leave it as it is. Conversions to floats
 *  round in the caller's mode what the type cannot hold.
 *
 *  Arrays must not overlap, but @p dst may be the same array as @p src if their elements have the same size.
 *  @{ */

/** @name tavsConvert to wider types
 *  @{ */
/**
 * Converts integers to wider ones, integers to floats that hold them, and floats to doubles: dst[i] = src[i] for i from
 * 0 to len - 1, exactly.
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsConvert_8s16s(const Tav8s* src, Tav16s* dst, int len);
TavStatus tavsConvert_16s32s(const Tav16s* src, Tav32s* dst, int len);
TavStatus tavsConvert_8s32f(const Tav8s* src, Tav32f* dst, int len);
TavStatus tavsConvert_8u32f(const Tav8u* src, Tav32f* dst, int len);
TavStatus tavsConvert_16s32f(const Tav16s* src, Tav32f* dst, int len);
TavStatus tavsConvert_16u32f(const Tav16u* src, Tav32f* dst, int len);
TavStatus tavsConvert_32s64f(const Tav32s* src, Tav64f* dst, int len);
TavStatus tavsConvert_32f64f(const Tav32f* src, Tav64f* dst, int len);
/** @} */

/** @name tavsConvert to floats, rounded
 *  @{ */
/**
 * Converts to floats that cannot hold every value: dst[i] = src[i] for i from 0 to len - 1, rounded in the caller's
 * mode. A double beyond the range of singles becomes infinity if rounded to nearest.
 *
 * The length of tavsConvert_64s64f() is unsigned.
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsConvert_32s32f(const Tav32s* src, Tav32f* dst, int len);
TavStatus tavsConvert_64s64f(const Tav64s* src, Tav64f* dst, unsigned int len);
TavStatus tavsConvert_64f32f(const Tav64f* src, Tav32f* dst, int len);
/** @} */

/** @name tavsConvert to floats, scaled
 *  @{ */
/**
 * Converts integers to floats: dst[i] = src[i] * 2^-scaleFactor for i from 0 to len - 1.
 *
 * A 32-bit integer in single precision is rounded in the caller's mode.
 *
 * @param src         source, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the values are multiplied by 2^-scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsConvert_16s32f_Sfs(const Tav16s* src, Tav32f* dst, int len, int scaleFactor);
TavStatus tavsConvert_16s64f_Sfs(const Tav16s* src, Tav64f* dst, int len, int scaleFactor);
TavStatus tavsConvert_32s32f_Sfs(const Tav32s* src, Tav32f* dst, int len, int scaleFactor);
TavStatus tavsConvert_32s64f_Sfs(const Tav32s* src, Tav64f* dst, int len, int scaleFactor);
/** @} */

/** @name tavsConvert, floats to integers
 *  @{ */
/**
 * Converts floats to integers: dst[i] = src[i] * 2^-scaleFactor for i from 0 to len - 1, rounded and saturated.
 *
 * Infinities saturate too. A NaN becomes the type's highest value.
 *
 * @param src         source, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param roundMode   0: toward zero; 1: to nearest, ties to even; any other: to nearest, ties away from zero.
 * @param scaleFactor the values are multiplied by 2^-scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsConvert_32f8s_Sfs(const Tav32f* src, Tav8s* dst, int len, int roundMode, int scaleFactor);
TavStatus tavsConvert_32f8u_Sfs(const Tav32f* src, Tav8u* dst, int len, int roundMode, int scaleFactor);
TavStatus tavsConvert_32f16s_Sfs(const Tav32f* src, Tav16s* dst, int len, int roundMode, int scaleFactor);
TavStatus tavsConvert_32f16u_Sfs(const Tav32f* src, Tav16u* dst, int len, int roundMode, int scaleFactor);
TavStatus tavsConvert_32f32s_Sfs(const Tav32f* src, Tav32s* dst, int len, int roundMode, int scaleFactor);
TavStatus tavsConvert_64f16s_Sfs(const Tav64f* src, Tav16s* dst, int len, int roundMode, int scaleFactor);
TavStatus tavsConvert_64f32s_Sfs(const Tav64f* src, Tav32s* dst, int len, int roundMode, int scaleFactor);
TavStatus tavsConvert_64f64s_Sfs(const Tav64f* src, Tav64s* dst, int len, int roundMode, int scaleFactor);
/** @} */

/**
 * Converts 32-bit integers to 16 bits: dst[i] = src[i] for i from 0 to len - 1, saturated.
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsConvert_32s16s(const Tav32s* src, Tav16s* dst, int len);

/**
 * Converts 32-bit integers to 16 bits: dst[i] = src[i] * 2^-scaleFactor for i from 0 to len - 1, rounded to nearest
 * with ties to even, and saturated.
 *
 * A factor above 31 counts as 31, so that the largest elements give 1 or -1 at any.
 *
 * @param src         source, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the values are multiplied by 2^-scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsConvert_32s16s_Sfs(const Tav32s* src, Tav16s* dst, int len, int scaleFactor);

/** @name tavsConvert, integers to narrower ones, rounded
 *  @{ */
/**
 * Converts integers to narrower ones: dst[i] = src[i] * 2^-scaleFactor for i from 0 to len - 1, rounded and saturated.
 *
 * The length of tavsConvert_16s8s_Sfs() is unsigned.
 *
 * @param src         source, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param roundMode   0: toward zero; 1: to nearest, ties to even; any other: to nearest, ties away from zero. It
 * matters at factors above 0.
 * @param scaleFactor the values are multiplied by 2^-scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsConvert_16s8s_Sfs(const Tav16s* src, Tav8s* dst, unsigned int len, int roundMode, int scaleFactor);
TavStatus tavsConvert_64s32s_Sfs(const Tav64s* src, Tav32s* dst, int len, int roundMode, int scaleFactor);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
