/**
 * @file division.h
 * Element-wise division.
 */
#ifndef TAVS_DIVISION_H
#define TAVS_DIVISION_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup division Division
 *
 *  The first source is the divisor: tavsDiv_*() computes src2 / src1.
 *
 *  A zero among the divisors does not stop a call. Its element becomes a fixed value, and the call returns the warning
 *  #tavStatusWarnDivideByZero once all elements are done:
 *
 *  | type             | dividend above 0                | below 0                         | 0   |
 *  |------------------|---------------------------------|---------------------------------|-----|
 *  | unsigned integer | the type's maximum              |                                 | 0   |
 *  | signed integer   | the type's maximum              | the type's minimum              | 0   |
 *  | real float       | infinity, signed by dividend and divisor | the same               | NaN |
 *  | complex float    | for each part: infinity         | minus infinity                  | NaN |
 *
 *  A complex divisor is zero if both of its parts are; each part of the quotient then goes by its part of the dividend.
 *  A zero scalar divisor is an error instead: #tavStatusDivideByZero, and nothing is written.
 *
 *  Integer quotients are scaled by 2^-scaleFactor (a positive factor scales down, a negative one up), rounded once to
 *  nearest with ties to even, and saturated. Each function has a range of factors in which its results depend on the
 *  magnitudes. Above it every result is 0, except over a zero divisor, as told above; below it every quotient other
 *  than 0 saturates by its sign.
 *
 *  | function                | range of scaleFactor | function                 | range of scaleFactor |
 *  |-------------------------|----------------------|--------------------------|----------------------|
 *  | tavsDiv 8u, tavsDivC 8u | -15 to 8             | tavsDiv 16sc             | -32 to 32            |
 *  | tavsDiv, tavsDivC 16s   | -30 to 15            | tavsDivC 16sc            | -16 to 15            |
 *  | tavsDiv, tavsDivC 16u   | -31 to 16            | tavsDiv 32s16s           | -29 to 31            |
 *  |                         |                      | tavsDiv 32s              | -62 to 32            |
 *
 *  Any scaleFactor is accepted. No caller's rounding mode and no unmasked exception has an influence: the functions set
 *  their own mode and put the caller's back. tavsDivC_*() of floats divides to nearest and multiplies in the caller's
 *  mode.
 *  @{ */

/** @name tavsDiv, integers
 *  @{ */
/**
 * Divides two arrays: dst[i] = src2[i] / src1[i] * 2^-scaleFactor for i from 0 to len - 1.
 *
 * Complex quotients are src2 * conj(src1) / |src1|^2; scaling, rounding and saturation work on each part by itself.
 * tavsDiv_32s_Sfs() rounds to double precision on its way, so that at factors below 0 a result next to a tie may be off
 * by 1. @p dst may be the same array as @p src1 or @p src2 if their elements have the same size.
 *
 * @param src1        divisors, @p len elements.
 * @param src2        dividends, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the quotients are multiplied by 2^-scaleFactor.
 * @return #tavStatusOk; #tavStatusWarnDivideByZero if a divisor is 0 (the work is done); #tavStatusNullPointer if a
 *         pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsDiv_8u_Sfs(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len, int scaleFactor);
TavStatus tavsDiv_16s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor);
TavStatus tavsDiv_16u_Sfs(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len, int scaleFactor);
TavStatus tavsDiv_16sc_Sfs(const Tav16sc* src1, const Tav16sc* src2, Tav16sc* dst, int len, int scaleFactor);
TavStatus tavsDiv_32s_Sfs(const Tav32s* src1, const Tav32s* src2, Tav32s* dst, int len, int scaleFactor);
TavStatus tavsDiv_32s16s_Sfs(const Tav16s* src1, const Tav32s* src2, Tav16s* dst, int len, int scaleFactor);
/** @} */

/** @name tavsDiv, integers in place
 *  @{ */
/**
 * Divides an array by another in place: srcDst[i] = srcDst[i] / src[i] * 2^-scaleFactor, as tavsDiv_16s_Sfs() and its
 * kin.
 *
 * @param src         divisors, @p len elements.
 * @param srcDst      dividends, then quotients, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the quotients are multiplied by 2^-scaleFactor.
 * @return #tavStatusOk; #tavStatusWarnDivideByZero if a divisor is 0 (the work is done); #tavStatusNullPointer if a
 *         pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsDiv_8u_ISfs(const Tav8u* src, Tav8u* srcDst, int len, int scaleFactor);
TavStatus tavsDiv_16s_ISfs(const Tav16s* src, Tav16s* srcDst, int len, int scaleFactor);
TavStatus tavsDiv_16u_ISfs(const Tav16u* src, Tav16u* srcDst, int len, int scaleFactor);
TavStatus tavsDiv_16sc_ISfs(const Tav16sc* src, Tav16sc* srcDst, int len, int scaleFactor);
TavStatus tavsDiv_32s_ISfs(const Tav32s* src, Tav32s* srcDst, int len, int scaleFactor);
/** @} */

/** @name tavsDiv, floats
 *  @{ */
/**
 * Divides two arrays: dst[i] = src2[i] / src1[i] for i from 0 to len - 1, rounded to nearest.
 *
 * Complex quotients are src2 * conj(src1) / |src1|^2. The 32fc form computes in double precision, so that no magnitude
 * is too large or too small for it; the 64fc form needs |src1|^2 to stay within the range of a double. @p dst may be
 * the same array as @p src1 or @p src2.
 *
 * @param src1 divisors, @p len elements.
 * @param src2 dividends, @p len elements.
 * @param dst  destination, @p len elements.
 * @param len  number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusWarnDivideByZero if a divisor is 0 (the work is done); #tavStatusNullPointer if a
 *         pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsDiv_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, int len);
TavStatus tavsDiv_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, int len);
TavStatus tavsDiv_32fc(const Tav32fc* src1, const Tav32fc* src2, Tav32fc* dst, int len);
TavStatus tavsDiv_64fc(const Tav64fc* src1, const Tav64fc* src2, Tav64fc* dst, int len);
/** @} */

/** @name tavsDiv, floats in place
 *  @{ */
/**
 * Divides an array by another in place: srcDst[i] = srcDst[i] / src[i], as tavsDiv_32f() and its kin.
 *
 * @param src    divisors, @p len elements.
 * @param srcDst dividends, then quotients, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusWarnDivideByZero if a divisor is 0 (the work is done); #tavStatusNullPointer if a
 *         pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsDiv_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
TavStatus tavsDiv_64f_I(const Tav64f* src, Tav64f* srcDst, int len);
TavStatus tavsDiv_32fc_I(const Tav32fc* src, Tav32fc* srcDst, int len);
TavStatus tavsDiv_64fc_I(const Tav64fc* src, Tav64fc* srcDst, int len);
/** @} */

/** @name tavsDiv_Round
 *  @{ */
/**
 * Divides two arrays with a choice of rounding: dst[i] = src2[i] / src1[i] * 2^-scaleFactor for i from 0 to len - 1.
 *
 * @p roundMode is 0 to cut off toward zero, 1 to round to nearest with ties to even, which is tavsDiv_16s_Sfs() and its
 * kin, or 2 to round to nearest with ties away from zero. @p dst may be the same array as @p src1 or @p src2.
 *
 * @param src1        divisors, @p len elements.
 * @param src2        dividends, @p len elements.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param roundMode   0, 1 or 2.
 * @param scaleFactor the quotients are multiplied by 2^-scaleFactor.
 * @return #tavStatusOk; #tavStatusWarnDivideByZero if a divisor is 0 (the work is done); #tavStatusNullPointer if a
 *         pointer is null; #tavStatusBadSize if @p len is below 1; #tavStatusBadRoundMode if @p roundMode is another
 *         value.
 */
TavStatus tavsDiv_Round_8u_Sfs(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len, int roundMode,
                               int scaleFactor);
TavStatus tavsDiv_Round_16s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int roundMode,
                                int scaleFactor);
TavStatus tavsDiv_Round_16u_Sfs(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len, int roundMode,
                                int scaleFactor);
/** @} */

/** @name tavsDiv_Round in place
 *  @{ */
/**
 * Divides an array by another in place with a choice of rounding: srcDst[i] = srcDst[i] / src[i] * 2^-scaleFactor, as
 * tavsDiv_Round_16s_Sfs() and its kin.
 *
 * @param src         divisors, @p len elements.
 * @param srcDst      dividends, then quotients, @p len elements.
 * @param len         number of elements, at least 1.
 * @param roundMode   0, 1 or 2.
 * @param scaleFactor the quotients are multiplied by 2^-scaleFactor.
 * @return #tavStatusOk; #tavStatusWarnDivideByZero if a divisor is 0 (the work is done); #tavStatusNullPointer if a
 *         pointer is null; #tavStatusBadSize if @p len is below 1; #tavStatusBadRoundMode if @p roundMode is another
 *         value.
 */
TavStatus tavsDiv_Round_8u_ISfs(const Tav8u* src, Tav8u* srcDst, int len, int roundMode, int scaleFactor);
TavStatus tavsDiv_Round_16s_ISfs(const Tav16s* src, Tav16s* srcDst, int len, int roundMode, int scaleFactor);
TavStatus tavsDiv_Round_16u_ISfs(const Tav16u* src, Tav16u* srcDst, int len, int roundMode, int scaleFactor);
/** @} */

/** @name tavsDivC, integers
 *  @{ */
/**
 * Divides an array by a constant: dst[i] = src[i] / val * 2^-scaleFactor for i from 0 to len - 1.
 *
 * Below its range of factors the 16u form sets every element to 65535, those whose source is 0 included. @p dst may be
 * the same array as @p src.
 *
 * @param src         dividends, @p len elements.
 * @param val         divisor, not 0.
 * @param dst         destination, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the quotients are multiplied by 2^-scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusDivideByZero if @p val is 0.
 */
TavStatus tavsDivC_8u_Sfs(const Tav8u* src, Tav8u val, Tav8u* dst, int len, int scaleFactor);
TavStatus tavsDivC_16s_Sfs(const Tav16s* src, Tav16s val, Tav16s* dst, int len, int scaleFactor);
TavStatus tavsDivC_16u_Sfs(const Tav16u* src, Tav16u val, Tav16u* dst, int len, int scaleFactor);
TavStatus tavsDivC_16sc_Sfs(const Tav16sc* src, Tav16sc val, Tav16sc* dst, int len, int scaleFactor);
/** @} */

/** @name tavsDivC, integers in place
 *  @{ */
/**
 * Divides an array by a constant in place: srcDst[i] = srcDst[i] / val * 2^-scaleFactor, as tavsDivC_16s_Sfs() and its
 * kin.
 *
 * @param val         divisor, not 0.
 * @param srcDst      dividends, then quotients, @p len elements.
 * @param len         number of elements, at least 1.
 * @param scaleFactor the quotients are multiplied by 2^-scaleFactor.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusDivideByZero if @p val is 0.
 */
TavStatus tavsDivC_8u_ISfs(Tav8u val, Tav8u* srcDst, int len, int scaleFactor);
TavStatus tavsDivC_16s_ISfs(Tav16s val, Tav16s* srcDst, int len, int scaleFactor);
TavStatus tavsDivC_16u_ISfs(Tav16u val, Tav16u* srcDst, int len, int scaleFactor);
TavStatus tavsDivC_16sc_ISfs(Tav16sc val, Tav16sc* srcDst, int len, int scaleFactor);
/** @} */

/**
 * Divides an array of 64-bit integers by a constant in place: srcDst[i] = srcDst[i] / val * 2^-scaleFactor.
 *
 * The quotient is rounded to the 64 bits of extended precision first, which at factors below 0 may show in the last
 * bits. Unlike the other forms, this one takes a @p val of 0 with a warning, as tavsDiv_32s_Sfs() takes zero divisors,
 * and an unsigned length.
 *
 * @param val         divisor.
 * @param srcDst      dividends, then quotients, @p len elements.
 * @param len         number of elements, not 0.
 * @param scaleFactor the quotients are multiplied by 2^-scaleFactor.
 * @return #tavStatusOk; #tavStatusWarnDivideByZero if @p val is 0 (the work is done); #tavStatusNullPointer if
 *         @p srcDst is null; #tavStatusBadSize if @p len is 0.
 */
TavStatus tavsDivC_64s_ISfs(Tav64s val, Tav64s* srcDst, unsigned int len, int scaleFactor);

/** @name tavsDivC, floats
 *  @{ */
/**
 * Divides an array by a constant: dst[i] = src[i] * (1 / val) for i from 0 to len - 1.
 *
 * The reciprocal is rounded once, and the rest is tavsMulC_32f() and its kin: a product, which may differ from the true
 * quotient in the last bit. So an infinite @p val makes all elements of a real array 0, NaN included, and a @p val of 1
 * copies. The reciprocal of a complex @p val is conj(val) / |val|^2, and @p val counts as 0 if |val|^2 is 0 in the
 * precision of its type. @p dst may be the same array as @p src.
 *
 * @param src dividends, @p len elements.
 * @param val divisor, not 0.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusDivideByZero if @p val is 0.
 */
TavStatus tavsDivC_32f(const Tav32f* src, Tav32f val, Tav32f* dst, int len);
TavStatus tavsDivC_64f(const Tav64f* src, Tav64f val, Tav64f* dst, int len);
TavStatus tavsDivC_32fc(const Tav32fc* src, Tav32fc val, Tav32fc* dst, int len);
TavStatus tavsDivC_64fc(const Tav64fc* src, Tav64fc val, Tav64fc* dst, int len);
/** @} */

/** @name tavsDivC, floats in place
 *  @{ */
/**
 * Divides an array by a constant in place: srcDst[i] = srcDst[i] * (1 / val), as tavsDivC_32f() and its kin.
 *
 * @param val    divisor, not 0.
 * @param srcDst dividends, then quotients, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusDivideByZero if @p val is 0.
 */
TavStatus tavsDivC_32f_I(Tav32f val, Tav32f* srcDst, int len);
TavStatus tavsDivC_64f_I(Tav64f val, Tav64f* srcDst, int len);
TavStatus tavsDivC_32fc_I(Tav32fc val, Tav32fc* srcDst, int len);
TavStatus tavsDivC_64fc_I(Tav64fc val, Tav64fc* srcDst, int len);
/** @} */

/** @name tavsDivCRev
 *  @{ */
/**
 * Divides a constant by each element: dst[i] = val / src[i] for i from 0 to len - 1.
 *
 * The 16u form rounds to nearest with ties to even. @p dst may be the same array as @p src.
 *
 * @param src divisors, @p len elements.
 * @param val dividend.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusWarnDivideByZero if a divisor is 0 (the work is done); #tavStatusNullPointer if a
 *         pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsDivCRev_16u(const Tav16u* src, Tav16u val, Tav16u* dst, int len);
TavStatus tavsDivCRev_32f(const Tav32f* src, Tav32f val, Tav32f* dst, int len);
/** @} */

/** @name tavsDivCRev in place
 *  @{ */
/**
 * Divides a constant by each element in place: srcDst[i] = val / srcDst[i], as tavsDivCRev_16u() and tavsDivCRev_32f().
 *
 * @param val    dividend.
 * @param srcDst divisors, then quotients, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusWarnDivideByZero if a divisor is 0 (the work is done); #tavStatusNullPointer if
 *         @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsDivCRev_16u_I(Tav16u val, Tav16u* srcDst, int len);
TavStatus tavsDivCRev_32f_I(Tav32f val, Tav32f* srcDst, int len);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
