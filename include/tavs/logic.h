/**
 * @file logic.h
 * Bitwise operations on arrays, and shifts by a constant.
 */
#ifndef TAVS_LOGIC_H
#define TAVS_LOGIC_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup logic Logic and shifts
 *
 *  Large results that cannot stay in the processor's last-level cache bypass it, except in place.
 *  @{ */

/** @name tavsAnd
 *  @{ */
/**
 * Bitwise and of two arrays: dst[i] = src1[i] & src2[i] for i from 0 to len - 1.
 *
 * @p dst may be the same array as @p src1, @p src2 or both.
 *
 * @param src1 first source, @p len elements.
 * @param src2 second source, @p len elements.
 * @param dst  destination, @p len elements.
 * @param len  number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAnd_8u(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len);
TavStatus tavsAnd_16u(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len);
TavStatus tavsAnd_32u(const Tav32u* src1, const Tav32u* src2, Tav32u* dst, int len);
/** @} */

/** @name tavsAnd in place
 *  @{ */
/**
 * Bitwise and of two arrays in the second one: srcDst[i] = srcDst[i] & src[i].
 *
 * @param src    source, @p len elements.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAnd_8u_I(const Tav8u* src, Tav8u* srcDst, int len);
TavStatus tavsAnd_16u_I(const Tav16u* src, Tav16u* srcDst, int len);
TavStatus tavsAnd_32u_I(const Tav32u* src, Tav32u* srcDst, int len);
/** @} */

/** @name tavsOr
 *  @{ */
/**
 * Bitwise or of two arrays: dst[i] = src1[i] | src2[i] for i from 0 to len - 1.
 *
 * @p dst may be the same array as @p src1, @p src2 or both.
 *
 * @param src1 first source, @p len elements.
 * @param src2 second source, @p len elements.
 * @param dst  destination, @p len elements.
 * @param len  number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsOr_8u(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len);
TavStatus tavsOr_16u(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len);
TavStatus tavsOr_32u(const Tav32u* src1, const Tav32u* src2, Tav32u* dst, int len);
/** @} */

/** @name tavsOr in place
 *  @{ */
/**
 * Bitwise or of two arrays in the second one: srcDst[i] = srcDst[i] | src[i].
 *
 * @param src    source, @p len elements.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsOr_8u_I(const Tav8u* src, Tav8u* srcDst, int len);
TavStatus tavsOr_16u_I(const Tav16u* src, Tav16u* srcDst, int len);
TavStatus tavsOr_32u_I(const Tav32u* src, Tav32u* srcDst, int len);
/** @} */

/** @name tavsXor
 *  @{ */
/**
 * Bitwise exclusive or of two arrays: dst[i] = src1[i] ^ src2[i] for i from 0 to len - 1.
 *
 * @p dst may be the same array as @p src1, @p src2 or both.
 *
 * @param src1 first source, @p len elements.
 * @param src2 second source, @p len elements.
 * @param dst  destination, @p len elements.
 * @param len  number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsXor_8u(const Tav8u* src1, const Tav8u* src2, Tav8u* dst, int len);
TavStatus tavsXor_16u(const Tav16u* src1, const Tav16u* src2, Tav16u* dst, int len);
TavStatus tavsXor_32u(const Tav32u* src1, const Tav32u* src2, Tav32u* dst, int len);
/** @} */

/** @name tavsXor in place
 *  @{ */
/**
 * Bitwise exclusive or of two arrays in the second one: srcDst[i] = srcDst[i] ^ src[i].
 *
 * @param src    source, @p len elements.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsXor_8u_I(const Tav8u* src, Tav8u* srcDst, int len);
TavStatus tavsXor_16u_I(const Tav16u* src, Tav16u* srcDst, int len);
TavStatus tavsXor_32u_I(const Tav32u* src, Tav32u* srcDst, int len);
/** @} */

/** @name tavsAndC
 *  @{ */
/**
 * Bitwise and of an array and a constant: dst[i] = src[i] & val for i from 0 to len - 1.
 *
 * @p dst may be the same array as @p src.
 *
 * @param src source, @p len elements.
 * @param val the constant.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAndC_8u(const Tav8u* src, Tav8u val, Tav8u* dst, int len);
TavStatus tavsAndC_16u(const Tav16u* src, Tav16u val, Tav16u* dst, int len);
TavStatus tavsAndC_32u(const Tav32u* src, Tav32u val, Tav32u* dst, int len);
/** @} */

/** @name tavsAndC in place
 *  @{ */
/**
 * Bitwise and of an array and a constant, in the array: srcDst[i] = srcDst[i] & val.
 *
 * @param val    the constant.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsAndC_8u_I(Tav8u val, Tav8u* srcDst, int len);
TavStatus tavsAndC_16u_I(Tav16u val, Tav16u* srcDst, int len);
TavStatus tavsAndC_32u_I(Tav32u val, Tav32u* srcDst, int len);
/** @} */

/** @name tavsOrC
 *  @{ */
/**
 * Bitwise or of an array and a constant: dst[i] = src[i] | val for i from 0 to len - 1.
 *
 * @p dst may be the same array as @p src.
 *
 * @param src source, @p len elements.
 * @param val the constant.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsOrC_8u(const Tav8u* src, Tav8u val, Tav8u* dst, int len);
TavStatus tavsOrC_16u(const Tav16u* src, Tav16u val, Tav16u* dst, int len);
TavStatus tavsOrC_32u(const Tav32u* src, Tav32u val, Tav32u* dst, int len);
/** @} */

/** @name tavsOrC in place
 *  @{ */
/**
 * Bitwise or of an array and a constant, in the array: srcDst[i] = srcDst[i] | val.
 *
 * @param val    the constant.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsOrC_8u_I(Tav8u val, Tav8u* srcDst, int len);
TavStatus tavsOrC_16u_I(Tav16u val, Tav16u* srcDst, int len);
TavStatus tavsOrC_32u_I(Tav32u val, Tav32u* srcDst, int len);
/** @} */

/** @name tavsXorC
 *  @{ */
/**
 * Bitwise exclusive or of an array and a constant: dst[i] = src[i] ^ val for i from 0 to len - 1.
 *
 * @p dst may be the same array as @p src.
 *
 * @param src source, @p len elements.
 * @param val the constant.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsXorC_8u(const Tav8u* src, Tav8u val, Tav8u* dst, int len);
TavStatus tavsXorC_16u(const Tav16u* src, Tav16u val, Tav16u* dst, int len);
TavStatus tavsXorC_32u(const Tav32u* src, Tav32u val, Tav32u* dst, int len);
/** @} */

/** @name tavsXorC in place
 *  @{ */
/**
 * Bitwise exclusive or of an array and a constant, in the array: srcDst[i] = srcDst[i] ^ val.
 *
 * @param val    the constant.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsXorC_8u_I(Tav8u val, Tav8u* srcDst, int len);
TavStatus tavsXorC_16u_I(Tav16u val, Tav16u* srcDst, int len);
TavStatus tavsXorC_32u_I(Tav32u val, Tav32u* srcDst, int len);
/** @} */

/** @name tavsNot
 *  @{ */
/**
 * Inverts every bit of an array: dst[i] = ~src[i] for i from 0 to len - 1.
 *
 * @p dst may be the same array as @p src.
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsNot_8u(const Tav8u* src, Tav8u* dst, int len);
TavStatus tavsNot_16u(const Tav16u* src, Tav16u* dst, int len);
TavStatus tavsNot_32u(const Tav32u* src, Tav32u* dst, int len);
/** @} */

/** @name tavsNot in place
 *  @{ */
/**
 * Inverts every bit of an array where it stands.
 *
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsNot_8u_I(Tav8u* srcDst, int len);
TavStatus tavsNot_16u_I(Tav16u* srcDst, int len);
TavStatus tavsNot_32u_I(Tav32u* srcDst, int len);
/** @} */

/** @name tavsLShiftC
 *  @{ */
/**
 * Shifts each element of an array left: dst[i] = src[i] << val for i from 0 to len - 1.
 *
 * Zeros enter from the right and bits that leave on the left are lost: there is no saturation, and signed elements are
 * shifted as unsigned ones. A count at or above the width of an element gives zeros.
 *
 * @p dst may be the same array as @p src.
 *
 * @param src source, @p len elements.
 * @param val number of bits to shift by, at least 0.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusBadShift if @p val is negative, tested in this order.
 */
TavStatus tavsLShiftC_8u(const Tav8u* src, int val, Tav8u* dst, int len);
TavStatus tavsLShiftC_16u(const Tav16u* src, int val, Tav16u* dst, int len);
TavStatus tavsLShiftC_16s(const Tav16s* src, int val, Tav16s* dst, int len);
TavStatus tavsLShiftC_32s(const Tav32s* src, int val, Tav32s* dst, int len);
/** @} */

/** @name tavsLShiftC in place
 *  @{ */
/**
 * Shifts each element of an array left, where it stands: srcDst[i] = srcDst[i] << val, by the same rules.
 *
 * @param val    number of bits to shift by, at least 0. A count of 0 leaves the array as it is.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusBadShift if @p val is negative, tested in this order.
 */
TavStatus tavsLShiftC_8u_I(int val, Tav8u* srcDst, int len);
TavStatus tavsLShiftC_16u_I(int val, Tav16u* srcDst, int len);
TavStatus tavsLShiftC_16s_I(int val, Tav16s* srcDst, int len);
TavStatus tavsLShiftC_32s_I(int val, Tav32s* srcDst, int len);
/** @} */

/** @name tavsRShiftC
 *  @{ */
/**
 * Shifts each element of an array right: dst[i] = src[i] >> val for i from 0 to len - 1.
 *
 * Unsigned elements get zeros from the left, and only zeros from a count at or above their width. Signed elements keep
 * their sign, so that the result is src[i] / 2^val rounded down; from a count at or above their width it is -1 for a
 * negative element and 0 for any other.
 *
 * @p dst may be the same array as @p src.
 *
 * @param src source, @p len elements.
 * @param val number of bits to shift by, at least 0.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusBadShift if @p val is negative, tested in this order.
 */
TavStatus tavsRShiftC_8u(const Tav8u* src, int val, Tav8u* dst, int len);
TavStatus tavsRShiftC_16u(const Tav16u* src, int val, Tav16u* dst, int len);
TavStatus tavsRShiftC_16s(const Tav16s* src, int val, Tav16s* dst, int len);
TavStatus tavsRShiftC_32s(const Tav32s* src, int val, Tav32s* dst, int len);
/** @} */

/** @name tavsRShiftC in place
 *  @{ */
/**
 * Shifts each element of an array right, where it stands: srcDst[i] = srcDst[i] >> val, by the same rules.
 *
 * @param val    number of bits to shift by, at least 0. A count of 0 leaves the array as it is.
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1;
 *         #tavStatusBadShift if @p val is negative, tested in this order.
 */
TavStatus tavsRShiftC_8u_I(int val, Tav8u* srcDst, int len);
TavStatus tavsRShiftC_16u_I(int val, Tav16u* srcDst, int len);
TavStatus tavsRShiftC_16s_I(int val, Tav16s* srcDst, int len);
TavStatus tavsRShiftC_32s_I(int val, Tav32s* srcDst, int len);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
