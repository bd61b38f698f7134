// What all context records share: the id word at their head, their place on a 64-byte boundary, and the ways they are
// allocated and released. The fields behind the id are each family's own.
#pragma once
#include "frame/allocate.h"
#include "frame/record_ids.h"
#include "tavs.h"

namespace tav {

inline constexpr uintptr_t record_alignment = 64;

// The first address at or above p that is a multiple of Boundary: where a record or a work area starts in a caller's
// block.
template <uintptr_t Boundary = record_alignment> Tav8u* align_up(void* p) {
  static_assert((Boundary & (Boundary - 1)) == 0);
  Tav8u* const bytes = static_cast<Tav8u*>(p);
  return bytes + (-reinterpret_cast<uintptr_t>(bytes) & (Boundary - 1));
}

// The only validity test of a record: its first word is one of the ids that the function accepts.
template <record_id... Accepted> bool has_id(const void* record) {
  record_id id;
  __builtin_memcpy(&id, record, sizeof id);
  return ((id == Accepted) || ...);
}

// How a record came by its memory; Free releases only what InitAlloc took.
enum class origin : uint32_t { caller = 0, allocated = 1 };

// InitAlloc: takes `bytes`, lets `build(block)` lay the record out, and hands the block back if that fails. The out
// pointer is written on success only.
template <class Record, class Build> TavStatus allocate_record(Record** out, size_t bytes, const Build& build) {
  void* const block = allocate_bytes(bytes);
  if (!block) return tavStatusNoMemory;
  const TavStatus status = build(block);
  if (status < 0)
    release(block);
  else
    *out = static_cast<Record*>(block);
  return status;
}

// Free of the transforms: the id is cleared before the release, so that a second Free is caught.
template <class Record> TavStatus free_marked(Record* record, origin from) {
  const record_id dead = record_id::none;
  __builtin_memcpy(static_cast<void*>(record), &dead, sizeof dead);
  if (from == origin::allocated) release(record);
  return tavStatusOk;
}

// Free of the filters: the id stays; a record in the caller's memory is left as it is.
template <class Record> TavStatus free_unmarked(Record* record, origin from) {
  if (from == origin::allocated) release(record);
  return tavStatusOk;
}

}  // namespace tav
