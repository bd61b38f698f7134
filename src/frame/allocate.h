// All memory that the library takes for itself comes through here.
#pragma once
#include <stddef.h>
#include <stdint.h>

#include "tavcore.h"

namespace tav {

// tavMalloc's count is a signed 32-bit word. Where size_t has 32 bits the word is passed on as it stands, so that a
// product that wrapped asks for what it wrapped to; where it has 64, a size beyond the word cannot be had.
inline void* allocate_bytes(size_t bytes) {
  if constexpr (sizeof(size_t) > sizeof(int32_t))
    if (bytes > size_t(INT32_MAX)) return nullptr;
  return tavMalloc(int32_t(bytes));
}

// An array of len elements, or null: the rule for a length below 1 is the public one.
template <class T> T* allocate(int len) {
  return len < 1 ? nullptr : static_cast<T*>(allocate_bytes(size_t(len) * sizeof(T)));
}

inline void release(void* p) { tavFree(p); }

}  // namespace tav
