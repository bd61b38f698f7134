/**
 * @file memory.h
 * Aligned arrays and the identity of the running library.
 */
#ifndef TAVS_MEMORY_H
#define TAVS_MEMORY_H

#include "types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @defgroup memory Memory and library identity
 *  @{ */

/** What tavsGetLibVersion() tells. */
typedef struct {
  int32_t     major;         /**< major number of the version */
  int32_t     minor;         /**< minor number of the version */
  int32_t     majorBuild;    /**< build series */
  int32_t     build;         /**< build number */
  char        targetCode[4]; /**< the running variant: the letters "v8" (general) or "s8" (low-power in-order) */
  const char* name;          /**< the library and variant, as text */
  const char* version;       /**< the version, as text */
  const char* buildDate;     /**< the date of the build, as text */
} TavLibVersion;

/**
 * Tells the version of the library and which of its two variants runs in this process.
 *
 * @return a constant record; neither write to it nor release it. The call cannot fail.
 */
const TavLibVersion* tavsGetLibVersion(void);

/** @name tavsMalloc
 *  @{ */
/**
 * Allocates an array that starts at a 64-byte boundary. Its elements are not initialised.
 *
 * On 32-bit systems the size in bytes is formed in 32 bits: a @p len so large that it wraps yields an array of the
 * wrapped size. Staying below 2^31 bytes is the caller's duty there; on 64-bit systems such a call returns null.
 *
 * @param len number of elements.
 * @return the array, or null if @p len is below 1 or no memory is left. Release it with tavsFree() and nothing else.
 */
Tav8u*   tavsMalloc_8u(int len);
Tav8s*   tavsMalloc_8s(int len);
Tav16u*  tavsMalloc_16u(int len);
Tav16s*  tavsMalloc_16s(int len);
Tav32u*  tavsMalloc_32u(int len);
Tav32s*  tavsMalloc_32s(int len);
Tav64s*  tavsMalloc_64s(int len);
Tav32f*  tavsMalloc_32f(int len);
Tav64f*  tavsMalloc_64f(int len);
Tav8sc*  tavsMalloc_8sc(int len);
Tav16sc* tavsMalloc_16sc(int len);
Tav32sc* tavsMalloc_32sc(int len);
Tav64sc* tavsMalloc_64sc(int len);
Tav32fc* tavsMalloc_32fc(int len);
Tav64fc* tavsMalloc_64fc(int len);
/** @} */

/**
 * Releases an array that a tavsMalloc function returned.
 *
 * @param ptr the array; null does nothing.
 */
void tavsFree(void* ptr);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
