#include "harness/tavcore_fake.h"

#include <stdlib.h>
#include <string.h>

#include <mutex>

#include "tavcore.h"

#define FAKE_EXPORT extern "C" __attribute__((visibility("default")))

namespace {

constexpr size_t   guard      = 64;
constexpr uint8_t  guard_byte = 0xA7, fresh_byte = 0x5C;
constexpr uint32_t live_mark = 0x4C495645;

struct header {  // in the guard bytes ahead of a block
  uint32_t mark;
  int32_t  size;
};

std::mutex       lock;
tavcore_fake_log seen;
int              still_allowed = -1;
uint32_t         chosen_mask;
bool             mask_is_chosen = false;

// Read late: the library asks from its own start-up code, before this file's initialisers have run.
uint32_t mask() {
  if (mask_is_chosen) return chosen_mask;
  const char* const text = getenv("TAVCORE_MASK");
  return text ? uint32_t(strtoul(text, nullptr, 0)) : 0x10;
}

size_t padded(int32_t size) { return (size_t(size) + guard - 1) / guard * guard; }

bool intact(const uint8_t* p, size_t n) {
  for (size_t i = 0; i < n; ++i)
    if (p[i] != guard_byte) return false;
  return true;
}

}  // namespace

FAKE_EXPORT uint32_t tavGetEnabledCpuFeatures() {
  const std::lock_guard hold(lock);
  ++seen.mask_queries;
  return mask();
}

FAKE_EXPORT void* tavMalloc(int32_t size) {
  const std::lock_guard hold(lock);
  ++seen.allocations;
  seen.last_size = size;
  if (still_allowed == 0 || size < 1) return nullptr;
  if (still_allowed > 0) --still_allowed;
  const auto block = static_cast<uint8_t*>(aligned_alloc(guard, padded(size) + 2 * guard));
  if (!block) return nullptr;
  memset(block, guard_byte, padded(size) + 2 * guard);
  memset(block + guard, fresh_byte, size_t(size));
  const header h{live_mark, size};
  memcpy(block, &h, sizeof h);
  ++seen.live;
  return block + guard;
}

FAKE_EXPORT void tavFree(void* ptr) {
  if (!ptr) return;
  const std::lock_guard hold(lock);
  ++seen.releases;
  uint8_t* const block = static_cast<uint8_t*>(ptr) - guard;
  header         h;
  memcpy(&h, block, sizeof h);
  if (h.mark != live_mark) abort();  // not ours, or released before
  if (!intact(block + sizeof h, guard - sizeof h)
      || !intact(block + guard + h.size, padded(h.size) - size_t(h.size) + guard))
    ++seen.damaged;
  --seen.live;
  memset(block, 0, sizeof h);
  free(block);
}

FAKE_EXPORT void* tavAlignPtr(void* ptr, int32_t alignment) {
  const uintptr_t below = uintptr_t(alignment) - 1;
  return reinterpret_cast<void*>((reinterpret_cast<uintptr_t>(ptr) + below) & ~below);
}

FAKE_EXPORT tavcore_fake_log tavcore_fake_read() {
  const std::lock_guard hold(lock);
  return seen;
}

FAKE_EXPORT void tavcore_fake_reset() {
  const std::lock_guard hold(lock);
  seen.allocations = seen.releases = seen.last_size = seen.damaged = 0;
  still_allowed                                                    = -1;
}

FAKE_EXPORT void tavcore_fake_refuse_after(int allocations) {
  const std::lock_guard hold(lock);
  still_allowed = allocations;
}

FAKE_EXPORT void tavcore_fake_set_mask(uint32_t value) {
  const std::lock_guard hold(lock);
  chosen_mask    = value;
  mask_is_chosen = true;
}
