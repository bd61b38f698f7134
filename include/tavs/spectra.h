/**
 * @file spectra.h
 * Spectra of real sequences in packed form: the three forms, the whole spectrum of one, products of two.
 */
#ifndef TAVS_SPECTRA_H
#define TAVS_SPECTRA_H

#include "status.h"
#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup packed_forms Packed forms of a spectrum
 *
 *  The spectrum X of N real values is symmetric: X[N - k] is the conjugate of X[k], X[0] is real, and so is X[N/2] if N
 *  is even. The transforms of real sequences keep one half of it, as an array of real slots in one of three forms.
 *
 *  **CCS**, N + 2 slots for even N, N + 1 for odd N: the complex values X[0], X[1] up to X[N/2] (rounded down), real
 * part first. The imaginary part of X[0] is 0, and so is that of X[N/2] if N is even.
 *
 *  **Pack**, N slots: the same without those zeros. Slot 0 holds X[0], slots 2k - 1 and 2k hold X[k], and the last slot
 *  holds X[N/2] if N is even.
 *
 *  **Perm**, N slots: for even N slot 0 holds X[0], slot 1 holds X[N/2], and slots 2k and 2k + 1 hold X[k]. For odd N
 * it is Pack. It comes straight out of the transform, so it is the form to choose if nothing speaks for another one.
 *
 *  N = 8:
 *
 *  | slot |   0   |   1   |   2   |   3   |   4   |   5   |   6   |   7   |   8   | 9 |
 *  |------|-------|-------|-------|-------|-------|-------|-------|-------|-------|---|
 *  | CCS  | Re X0 |   0   | Re X1 | Im X1 | Re X2 | Im X2 | Re X3 | Im X3 | Re X4 | 0 |
 *  | Pack | Re X0 | Re X1 | Im X1 | Re X2 | Im X2 | Re X3 | Im X3 | Re X4 |       |   |
 *  | Perm | Re X0 | Re X4 | Re X1 | Im X1 | Re X2 | Im X2 | Re X3 | Im X3 |       |   |
 *
 *  N = 5, where CCS has six slots:
 *
 *  | slot       |   0   |   1   |   2   |   3   |   4   |   5   |
 *  |------------|-------|-------|-------|-------|-------|-------|
 *  | CCS        | Re X0 |   0   | Re X1 | Im X1 | Re X2 | Im X2 |
 *  | Pack, Perm | Re X0 | Re X1 | Im X1 | Re X2 | Im X2 |       |
 *
 *  A filter by way of the spectrum is a transform of the signal, a product with the spectrum of the filter and a
 *  transform back, all in one form: tavsMulPerm_32f() between a forward and an inverse transform in Perm form.
 */

/** @defgroup spectra Functions on packed spectra
 *
 *  These functions serve any number of real values, not only powers of two. The forms are described in
 *  @ref packed_forms.
 *  @{ */

/** @name tavsConjCcs, tavsConjPack, tavsConjPerm
 *  @{ */
/**
 * Makes the whole spectrum of a packed one: dst[k] = X[k] and dst[len - k] = conj(X[k]).
 *
 * Values are copied bit by bit, and the conjugate of a float has the other sign bit in its imaginary part, be it zero
 * or NaN. The conjugate of an imaginary part of -32768 is 32767. X[0], and X[len/2] for even @p len, get an imaginary
 * part of 0 from tavsConjPack and tavsConjPerm; tavsConjCcs copies what the source holds there.
 *
 * @param src packed spectrum, @p len slots; CCS: len/2 + 1 complex values (rounded down). It is an array of real values
 *            (Tav32f for Tav32fc) and may be cast to the type of the parameter. It may be @p dst itself and must not
 *            overlap it otherwise.
 * @param dst destination, @p len complex values.
 * @param len number of real values N that the spectrum belongs to, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsConjCcs_16sc(const Tav16sc* src, Tav16sc* dst, int len);
TavStatus tavsConjCcs_32fc(const Tav32fc* src, Tav32fc* dst, int len);
TavStatus tavsConjCcs_64fc(const Tav64fc* src, Tav64fc* dst, int len);
TavStatus tavsConjPack_16sc(const Tav16sc* src, Tav16sc* dst, int len);
TavStatus tavsConjPack_32fc(const Tav32fc* src, Tav32fc* dst, int len);
TavStatus tavsConjPack_64fc(const Tav64fc* src, Tav64fc* dst, int len);
TavStatus tavsConjPerm_16sc(const Tav16sc* src, Tav16sc* dst, int len);
TavStatus tavsConjPerm_32fc(const Tav32fc* src, Tav32fc* dst, int len);
TavStatus tavsConjPerm_64fc(const Tav64fc* src, Tav64fc* dst, int len);
/** @} */

/** @name tavsConjCcs, tavsConjPack, tavsConjPerm, in place
 *  @{ */
/**
 * Makes the whole spectrum of a packed one where it stands: in an array of @p len complex values whose first slots hold
 * the packed spectrum.
 *
 * @param srcDst source and destination, @p len complex values.
 * @param len    number of real values N that the spectrum belongs to, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if the pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsConjCcs_16sc_I(Tav16sc* srcDst, int len);
TavStatus tavsConjCcs_32fc_I(Tav32fc* srcDst, int len);
TavStatus tavsConjCcs_64fc_I(Tav64fc* srcDst, int len);
TavStatus tavsConjPack_16sc_I(Tav16sc* srcDst, int len);
TavStatus tavsConjPack_32fc_I(Tav32fc* srcDst, int len);
TavStatus tavsConjPack_64fc_I(Tav64fc* srcDst, int len);
TavStatus tavsConjPerm_16sc_I(Tav16sc* srcDst, int len);
TavStatus tavsConjPerm_32fc_I(Tav32fc* srcDst, int len);
TavStatus tavsConjPerm_64fc_I(Tav64fc* srcDst, int len);
/** @} */

/** @name tavsMulPack, tavsMulPerm
 *  @{ */
/**
 * Multiplies two packed spectra of one form: X[k] = X1[k] * X2[k]. Real values are multiplied as reals, all others as
 * complex numbers. The products follow the caller's rounding mode.
 *
 * @param src1 first source, @p len slots.
 * @param src2 second source, @p len slots.
 * @param dst  destination, @p len slots; may be one of the sources, or both.
 * @param len  number of slots, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMulPack_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, int len);
TavStatus tavsMulPack_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, int len);
TavStatus tavsMulPerm_32f(const Tav32f* src1, const Tav32f* src2, Tav32f* dst, int len);
TavStatus tavsMulPerm_64f(const Tav64f* src1, const Tav64f* src2, Tav64f* dst, int len);
/** @} */

/** @name tavsMulPack, tavsMulPerm, in place
 *  @{ */
/**
 * Multiplies a packed spectrum by another of the same form: X[k] = X1[k] * X[k], with X1 in @p src and X in @p srcDst.
 *
 * @param src    first source, @p len slots; may be @p srcDst.
 * @param srcDst second source and destination, @p len slots.
 * @param len    number of slots, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMulPack_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
TavStatus tavsMulPack_64f_I(const Tav64f* src, Tav64f* srcDst, int len);
TavStatus tavsMulPerm_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
TavStatus tavsMulPerm_64f_I(const Tav64f* src, Tav64f* srcDst, int len);
/** @} */

/** @name tavsMulPackConj, in place
 *  @{ */
/**
 * Multiplies by the conjugate, as a correlation by way of the spectra does: X[k] = X1[k] * conj(X[k]), with X1 in
 * @p src and X in @p srcDst, both in Pack form. It is the spectrum in @p srcDst that is conjugated. Real values are
 * multiplied as reals.
 *
 * @param src    first source, @p len slots; may be @p srcDst.
 * @param srcDst second source and destination, @p len slots.
 * @param len    number of slots, at least 1.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMulPackConj_32f_I(const Tav32f* src, Tav32f* srcDst, int len);
TavStatus tavsMulPackConj_64f_I(const Tav64f* src, Tav64f* srcDst, int len);
/** @} */

/** @name tavsMulPack, tavsMulPerm, scaled
 *  @{ */
/**
 * Multiplies two packed spectra of integers: X[k] = X1[k] * X2[k] * 2^-scaleFactor, from exact products.
 *
 * Unlike most scaled functions these do not round: with a positive factor each part becomes the next lower integer, so
 * that with large factors every negative part becomes -1. Then it is saturated.
 *
 * @param src1        first source, @p len slots.
 * @param src2        second source, @p len slots.
 * @param dst         destination, @p len slots; may be one of the sources, or both.
 * @param len         number of slots, at least 1.
 * @param scaleFactor scale factor, any value.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMulPack_16s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor);
TavStatus tavsMulPerm_16s_Sfs(const Tav16s* src1, const Tav16s* src2, Tav16s* dst, int len, int scaleFactor);
/** @} */

/** @name tavsMulPack, tavsMulPerm, scaled, in place
 *  @{ */
/**
 * Multiplies a packed spectrum of integers by another: X[k] = X1[k] * X[k] * 2^-scaleFactor, with X1 in @p src and X in
 * @p srcDst. Not rounded, as out of place.
 *
 * @param src         first source, @p len slots; may be @p srcDst.
 * @param srcDst      second source and destination, @p len slots.
 * @param len         number of slots, at least 1.
 * @param scaleFactor scale factor, any value.
 * @return #tavStatusOk; #tavStatusNullPointer if a pointer is null; #tavStatusBadSize if @p len is below 1.
 */
TavStatus tavsMulPack_16s_ISfs(const Tav16s* src, Tav16s* srcDst, int len, int scaleFactor);
TavStatus tavsMulPerm_16s_ISfs(const Tav16s* src, Tav16s* srcDst, int len, int scaleFactor);
/** @} */
/** @} */

#ifdef __cplusplus
}
#endif

#endif
