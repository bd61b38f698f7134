#include "harness/builds.h"

namespace test {

void each_build_of(bool split, callback<void()> check) {
  for (const build& b : builds_of(split)) {
    SCOPED_TRACE(b.name);
    select(b);
    check();
    if (testing::Test::HasFatalFailure()) return;
  }
}

}  // namespace test
