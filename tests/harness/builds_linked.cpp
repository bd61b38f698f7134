#include "frame/variant_table.h"
#include "harness/builds.h"

namespace test {

const std::vector<build>& builds_of(bool split) {
  static const std::vector<build> both{{"build v8", 0}, {"build s8", 1}}, shared{{"shared build", 0}};
  return split ? both : shared;
}

void select(const build& b) { tav::tav_variant_index = uint32_t(b.index); }

}  // namespace test
