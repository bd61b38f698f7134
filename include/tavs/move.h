/**
 * @file move.h
 * Filling, copying, moving, reversing and byte-swapping arrays, and copying and packing bits.
 */
#ifndef TAVS_MOVE_H
#define TAVS_MOVE_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup move Initialisation and data movement
 *
 *  Fills and copies of blocks that cannot stay in the processor's last-level cache bypass it, so that they are fast and
 *  leave the caller's other data there.
 *  @{ */

/** @name tavsSet
 *  @{ */
/**
 * Fills an array with one value: dst[i] = val for i from 0 to len - 1.
 *
 * @param val the value.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p dst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSet_8u(Tav8u val, Tav8u* dst, int len);
TavStatus tavsSet_16s(Tav16s val, Tav16s* dst, int len);
TavStatus tavsSet_32s(Tav32s val, Tav32s* dst, int len);
TavStatus tavsSet_64s(Tav64s val, Tav64s* dst, int len);
TavStatus tavsSet_32f(Tav32f val, Tav32f* dst, int len);
TavStatus tavsSet_64f(Tav64f val, Tav64f* dst, int len);
TavStatus tavsSet_16sc(Tav16sc val, Tav16sc* dst, int len);
TavStatus tavsSet_32sc(Tav32sc val, Tav32sc* dst, int len);
TavStatus tavsSet_64sc(Tav64sc val, Tav64sc* dst, int len);
TavStatus tavsSet_32fc(Tav32fc val, Tav32fc* dst, int len);
TavStatus tavsSet_64fc(Tav64fc val, Tav64fc* dst, int len);
/** @} */

/** @name tavsZero
 *  @{ */
/**
 * Fills an array with zeros: dst[i] = 0 for i from 0 to len - 1; floats become +0.0.
 *
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p dst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsZero_8u(Tav8u* dst, int len);
TavStatus tavsZero_16s(Tav16s* dst, int len);
TavStatus tavsZero_32s(Tav32s* dst, int len);
TavStatus tavsZero_64s(Tav64s* dst, int len);
TavStatus tavsZero_32f(Tav32f* dst, int len);
TavStatus tavsZero_64f(Tav64f* dst, int len);
TavStatus tavsZero_16sc(Tav16sc* dst, int len);
TavStatus tavsZero_32sc(Tav32sc* dst, int len);
TavStatus tavsZero_64sc(Tav64sc* dst, int len);
TavStatus tavsZero_32fc(Tav32fc* dst, int len);
TavStatus tavsZero_64fc(Tav64fc* dst, int len);
/** @} */

/** @name tavsCopy
 *  @{ */
/**
 * Copies an array: dst[i] = src[i] for i from 0 to len - 1, bit by bit (a NaN keeps its payload).
 *
 * The arrays must not overlap; tavsMove_8u() and its kin allow that.
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsCopy_8u(const Tav8u* src, Tav8u* dst, int len);
TavStatus tavsCopy_16s(const Tav16s* src, Tav16s* dst, int len);
TavStatus tavsCopy_32s(const Tav32s* src, Tav32s* dst, int len);
TavStatus tavsCopy_64s(const Tav64s* src, Tav64s* dst, int len);
TavStatus tavsCopy_32f(const Tav32f* src, Tav32f* dst, int len);
TavStatus tavsCopy_64f(const Tav64f* src, Tav64f* dst, int len);
TavStatus tavsCopy_16sc(const Tav16sc* src, Tav16sc* dst, int len);
TavStatus tavsCopy_32sc(const Tav32sc* src, Tav32sc* dst, int len);
TavStatus tavsCopy_64sc(const Tav64sc* src, Tav64sc* dst, int len);
TavStatus tavsCopy_32fc(const Tav32fc* src, Tav32fc* dst, int len);
TavStatus tavsCopy_64fc(const Tav64fc* src, Tav64fc* dst, int len);
/** @} */

/** @name tavsMove
 *  @{ */
/**
 * Copies an array whose source and destination may overlap in any way: afterwards @p dst holds what @p src held
 * before the call.
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMove_8u(const Tav8u* src, Tav8u* dst, int len);
TavStatus tavsMove_16s(const Tav16s* src, Tav16s* dst, int len);
TavStatus tavsMove_32s(const Tav32s* src, Tav32s* dst, int len);
TavStatus tavsMove_64s(const Tav64s* src, Tav64s* dst, int len);
TavStatus tavsMove_32f(const Tav32f* src, Tav32f* dst, int len);
TavStatus tavsMove_64f(const Tav64f* src, Tav64f* dst, int len);
TavStatus tavsMove_16sc(const Tav16sc* src, Tav16sc* dst, int len);
TavStatus tavsMove_32sc(const Tav32sc* src, Tav32sc* dst, int len);
TavStatus tavsMove_64sc(const Tav64sc* src, Tav64sc* dst, int len);
TavStatus tavsMove_32fc(const Tav32fc* src, Tav32fc* dst, int len);
TavStatus tavsMove_64fc(const Tav64fc* src, Tav64fc* dst, int len);
/** @} */

/** @name tavsFlip
 *  @{ */
/**
 * Reverses the order of an array: dst[i] = src[len - 1 - i] for i from 0 to len - 1. A complex pair moves as a whole.
 *
 * The arrays must not overlap, except that @p dst may be @p src itself.
 *
 * @param src source, @p len elements.
 * @param dst destination, @p len elements.
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsFlip_8u(const Tav8u* src, Tav8u* dst, int len);
TavStatus tavsFlip_16u(const Tav16u* src, Tav16u* dst, int len);
TavStatus tavsFlip_32f(const Tav32f* src, Tav32f* dst, int len);
TavStatus tavsFlip_64f(const Tav64f* src, Tav64f* dst, int len);
TavStatus tavsFlip_32fc(const Tav32fc* src, Tav32fc* dst, int len);
TavStatus tavsFlip_64fc(const Tav64fc* src, Tav64fc* dst, int len);
/** @} */

/** @name tavsFlip in place
 *  @{ */
/**
 * Reverses the order of an array where it stands.
 *
 * @param srcDst source and destination, @p len elements.
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsFlip_8u_I(Tav8u* srcDst, int len);
TavStatus tavsFlip_16u_I(Tav16u* srcDst, int len);
TavStatus tavsFlip_32f_I(Tav32f* srcDst, int len);
TavStatus tavsFlip_64f_I(Tav64f* srcDst, int len);
TavStatus tavsFlip_32fc_I(Tav32fc* srcDst, int len);
TavStatus tavsFlip_64fc_I(Tav64fc* srcDst, int len);
/** @} */

/** @name tavsSwapBytes
 *  @{ */
/**
 * Reverses the order of the bytes within each element. The elements of the 24u form are three bytes each: its first
 * and third change place.
 *
 * The arrays must not overlap, except that @p dst may be @p src itself.
 *
 * @param src source, @p len elements (3 * @p len bytes in the 24u form).
 * @param dst destination, @p len elements (3 * @p len bytes in the 24u form).
 * @param len number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSwapBytes_16u(const Tav16u* src, Tav16u* dst, int len);
TavStatus tavsSwapBytes_24u(const Tav8u* src, Tav8u* dst, int len);
TavStatus tavsSwapBytes_32u(const Tav32u* src, Tav32u* dst, int len);
TavStatus tavsSwapBytes_64u(const Tav64u* src, Tav64u* dst, int len);
/** @} */

/** @name tavsSwapBytes in place
 *  @{ */
/**
 * Reverses the order of the bytes within each element of an array where it stands.
 *
 * @param srcDst source and destination, @p len elements (3 * @p len bytes in the 24u form).
 * @param len    number of elements, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if @p srcDst is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsSwapBytes_16u_I(Tav16u* srcDst, int len);
TavStatus tavsSwapBytes_24u_I(Tav8u* srcDst, int len);
TavStatus tavsSwapBytes_32u_I(Tav32u* srcDst, int len);
TavStatus tavsSwapBytes_64u_I(Tav64u* srcDst, int len);
/** @} */

/** @name tavsCopy of bits
 *  @{ */
/**
 * Copies @p len bits from one bit stream to another, at any bit offsets. The bits of @p dst outside the range keep
 * their values, and no byte that holds no bit of the range is read or written.
 *
 * Bit n of a stream lies in byte n / 8. tavsCopy_1u() and tavsCopyLE_1u() number the bits of a byte from the top: bit
 * n & 7 = 0 has the mask 0x80. tavsCopyBE_1u() numbers them from the bottom: its mask is 1 << (n & 7).
 *
 * The ranges must not overlap.
 *
 * @param src          source stream.
 * @param srcBitOffset bit of @p src at which the range starts, at least 0.
 * @param dst          destination stream.
 * @param dstBitOffset bit of @p dst at which the range starts, at least 0.
 * @param len          number of bits, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1 or an offset
 *         is negative.
 */
TavStatus tavsCopy_1u(const Tav8u* src, int srcBitOffset, Tav8u* dst, int dstBitOffset, int len);
TavStatus tavsCopyBE_1u(const Tav8u* src, int srcBitOffset, Tav8u* dst, int dstBitOffset, int len);
TavStatus tavsCopyLE_1u(const Tav8u* src, int srcBitOffset, Tav8u* dst, int dstBitOffset, int len);
/** @} */

/**
 * Packs numbers of varying width into a bit stream, each with its most significant bit first.
 *
 * The low srcBitLen[i] bits of src[i] follow those of src[i - 1]; the first one starts at bit @p dstBitOffset of
 * @p dst, where bit n lies in byte n / 8 and bit 0 of a byte is its most significant one. Bits ahead of the offset are
 * kept, the unused bits of the last byte are cleared, and no byte behind it is touched. If there is nothing to write
 * (all widths are 0), @p dst is left as it is.
 *
 * @param src          the numbers, @p len elements; bits above the width are ignored.
 * @param srcBitLen    their widths, @p len elements of 0 to 32. A width above 32 counts as 32 and a negative one as 0.
 * @param len          number of elements, at least 1.
 * @param dst          destination stream.
 * @param dstBitOffset bit of @p dst at which to start, at least 0.
 * @param dstBitLen    receives the number of bits written: the sum of the widths, without the offset.
 * @return #tavStatusOk; #tavStatusWarnBitWidth if a width is outside 0 to 32 (the work is done);
 *         #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1 or @p dstBitOffset is
 *         negative.
 */
TavStatus tavsPackBits_32u8u(const Tav32u* src, const Tav32s* srcBitLen, int len, Tav8u* dst, int dstBitOffset,
                             int* dstBitLen);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
