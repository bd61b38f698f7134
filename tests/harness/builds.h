// Runs a check on every build of an export that this program holds: the shared body once, or v8's and s8's.
//
//   each_build<&::tavsCopy_8u>([&] { ... call<&::tavsCopy_8u>(src, dst, len) ... });
//
// A test program comes in two links of the same objects. The one with the bodies linked in (builds_linked.cpp) switches
// the variant index itself, so that one process sees both variants, always through the stubs. The one that uses the
// finished library (builds_library.cpp) sees the variant that the feature mask chose.
#pragma once
#include <gtest/gtest.h>

#include <vector>

#include "frame/entry.h"
#include "harness/call.h"
#include "harness/callback.h"

namespace test {

struct build {
  const char* name;
  int         index;
};

const std::vector<build>& builds_of(bool split);
void                      select(const build& b);
void                      each_build_of(bool split, callback<void()> check);

template <auto* Export, class Check> void each_build(const Check& check) {
  each_build_of(tav::is_split<Export>, check);
}

}  // namespace test
