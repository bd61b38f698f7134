// A libtavcore for tests: it reports a mask of the test's choice, counts, refuses, and watches the edges of its blocks.
//
// The mask comes from the environment (TAVCORE_MASK, default 0x10), because the library asks for it before main().
#pragma once
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

// What the fake has seen since the last tavcore_fake_reset().
struct tavcore_fake_log {
  int     mask_queries;  // since the start of the process: a reset leaves it
  int     allocations;   // calls of tavMalloc, refused ones included
  int     releases;      // calls of tavFree with a block
  int32_t last_size;     // as the last tavMalloc was asked
  int     live;          // blocks not yet released
  int     damaged;       // blocks whose guard bytes were found overwritten at release
};

struct tavcore_fake_log tavcore_fake_read(void);
void                    tavcore_fake_reset(void);

// Lets `allocations` calls of tavMalloc succeed from now on and refuses all that follow; -1: never refuses.
void tavcore_fake_refuse_after(int allocations);

void tavcore_fake_set_mask(uint32_t mask);

#ifdef __cplusplus
}
#endif
