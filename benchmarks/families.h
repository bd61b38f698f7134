// The families of contests, in the order in which they are held and reported.
#pragma once

namespace bench {

struct family_facts {
  const char* contests;        // the name given to BENCH_FAMILY
  const char* title;           // in the report; families of one title make one page
  const char* in_cache  = "";  // the heading of docs/performance/limits.md that accounts for missed goals; "": none
  const char* in_memory = "";  // the same where the arrays are far larger than the caches
};

// Ends with an entry without a name.
extern const family_facts families[];

// Accounts for what is missed at 64 elements, in all families.
inline constexpr char short_arrays[] = "Short arrays";

}  // namespace bench
