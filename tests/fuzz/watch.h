// What is known of each export while it is fuzzed: its name, its address, and how its calls ended. watched_table.cpp
// puts itself between the exported names and the bodies, so that no call goes unseen, whoever makes it.
#pragma once
#include <stdint.h>

#include <typeinfo>

namespace fuzz {

struct export_notes {
  const char* name;
  void (*function)();
  const std::type_info* type;  // of a pointer to it
  bool                  has_status, is_split;
  uint64_t              done[2] = {}, refused = 0;  // calls, those that were done by variant
};

export_notes* notes_begin();
export_notes* notes_end();

// By name, or null.
export_notes* notes_named(const char* name);

// How many exports were never done, in either of their variants, or never refused though they have a status; by name if
// that is to be told.
int count_gaps(bool tell);

}  // namespace fuzz
