#include "frame/variant_table.h"

namespace tav {

constinit const variant_table tav_variant_table = {
#define TAV_SHARED(name) {&shared::entry<&::tavs##name>::call, &shared::entry<&::tavs##name>::call},
#define TAV_SPLIT(name) {&v8::entry<&::tavs##name>::call, &s8::entry<&::tavs##name>::call},
#include "frame/exports.def"
#undef TAV_SHARED
#undef TAV_SPLIT
};

static_assert(exports == 1439, "the list of exports has gained or lost rows");

static_assert(0
#define TAV_SHARED(name)
#define TAV_SPLIT(name) +1
#include "frame/exports.def"
#undef TAV_SHARED
#undef TAV_SPLIT
                  == 206,
              "an export has changed between one body and two");

constexpr const char* names[] = {
#define TAV_SHARED(name) #name,
#define TAV_SPLIT(name) #name,
#include "frame/exports.def"
#undef TAV_SHARED
#undef TAV_SPLIT
};

constexpr bool before(const char* a, const char* b) {
  while (*a != 0 && *a == *b) ++a, ++b;
  return *a < *b;
}

constexpr bool alphabetical() {
  for (int i = 1; i < exports; ++i)
    if (!before(names[i - 1], names[i])) return false;
  return true;
}
static_assert(alphabetical(), "exports.def is out of order");

}  // namespace tav
