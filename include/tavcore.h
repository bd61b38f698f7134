/**
 * @file tavcore.h
 * The companion core library of tavSP: processor features and aligned memory.
 *
 * libtavs imports these four functions and nothing else of its own. A program may put another libtavcore in
 * their place, for instance to count allocations or to draw them from a pool.
 */
#ifndef TAVCORE_H
#define TAVCORE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Tells which processor features tavSP may use.
 *
 * libtavs reads the mask once, when it is loaded: bits 0x10 and 0x20 both set choose the variant tuned for the
 * low-power in-order line (s8), anything else the general one (v8).
 *
 * @return the mask. Bit 0x10: the processor has SSSE3. Bit 0x20: the processor is of the low-power in-order line;
 *         this library never sets it by itself, a build with -DTAVCORE_FEATURES=MASK does.
 */
uint32_t tavGetEnabledCpuFeatures(void);

/**
 * Allocates memory that starts at a 64-byte boundary.
 *
 * @param size bytes, at least 1.
 * @return the block, or null if @p size is below 1 or no memory is left. Release it with tavFree().
 */
void* tavMalloc(int32_t size);

/**
 * Releases a block that tavMalloc() returned.
 *
 * @param ptr the block; null does nothing.
 */
void tavFree(void* ptr);

/**
 * Rounds a pointer up.
 *
 * @param ptr       any pointer.
 * @param alignment a power of two, in bytes.
 * @return the first address at or above @p ptr that is a multiple of @p alignment.
 */
void* tavAlignPtr(void* ptr, int32_t alignment);

#ifdef __cplusplus
}
#endif

#endif
