/**
 * @file types.h
 * The sample types. A function's name carries their codes, source first: tavsConvert_16s32f() reads Tav16s and
 * writes Tav32f.
 */
#ifndef TAVS_TYPES_H
#define TAVS_TYPES_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup types Sample types
 *  Integers of 8 to 64 bits, floats of 32 and 64 bits, and complex pairs of them, real part first.
 *  @{ */
typedef uint8_t  Tav8u;  /**< code 8u: unsigned, 8 bits */
typedef int8_t   Tav8s;  /**< code 8s: signed, 8 bits */
typedef uint16_t Tav16u; /**< code 16u: unsigned, 16 bits; also the storage of half floats (code 16f) */
typedef int16_t  Tav16s; /**< code 16s: signed, 16 bits */
typedef uint32_t Tav32u; /**< code 32u: unsigned, 32 bits */
typedef int32_t  Tav32s; /**< code 32s: signed, 32 bits */
typedef uint64_t Tav64u; /**< code 64u: unsigned, 64 bits */
typedef int64_t  Tav64s; /**< code 64s: signed, 64 bits */
typedef float    Tav32f; /**< code 32f: IEEE 754 single */
typedef double   Tav64f; /**< code 64f: IEEE 754 double */

/** code 8sc: complex pair of 8-bit integers */
typedef struct {
  Tav8s re; /**< real part */
  Tav8s im; /**< imaginary part */
} Tav8sc;

/** code 16sc: complex pair of 16-bit integers */
typedef struct {
  Tav16s re; /**< real part */
  Tav16s im; /**< imaginary part */
} Tav16sc;

/** code 32sc: complex pair of 32-bit integers */
typedef struct {
  Tav32s re; /**< real part */
  Tav32s im; /**< imaginary part */
} Tav32sc;

/** code 64sc: complex pair of 64-bit integers */
typedef struct {
  Tav64s re; /**< real part */
  Tav64s im; /**< imaginary part */
} Tav64sc;

/** code 32fc: complex pair of singles */
typedef struct {
  Tav32f re; /**< real part */
  Tav32f im; /**< imaginary part */
} Tav32fc;

/** code 64fc: complex pair of doubles */
typedef struct {
  Tav64f re; /**< real part */
  Tav64f im; /**< imaginary part */
} Tav64fc;
/** @} */

#ifdef __cplusplus
}
#endif

#endif
