#include "harness/faults.h"

#include <algorithm>

namespace test {

std::vector<fault_row>& fault_rows() {
  static std::vector<fault_row> rows;
  return rows;
}

TEST(Faults, EveryRow) {
  for (const fault_row& row : fault_rows()) {
    SCOPED_TRACE(row.name);
    row.run();
  }
}

TEST(Faults, EveryExportHasOneRow) {
  std::vector<std::string> have, want;
  for (const fault_row& row : fault_rows()) have.push_back(row.name);
#define TAV_SHARED(name) want.push_back("tavs" #name);
#define TAV_SPLIT(name) want.push_back("tavs" #name);
#include "frame/exports.def"
#undef TAV_SHARED
#undef TAV_SPLIT
  std::sort(have.begin(), have.end());
  std::sort(want.begin(), want.end());
  EXPECT_EQ(have, want);
}

}  // namespace test
