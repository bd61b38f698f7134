// tavsSortIndexAscend, tavsSortIndexDescend: against a stable sort by value, and each index at the side of its element.
#include "stats/sort_data.h"

using namespace test;
using oracle::sort_way;

TAV_SORT_CASES(SortIndex)

namespace {

TEST(SortIndex, AMillion) {
  check_million<&::tavsSortIndexAscend_32s_I>(sort_way::up);
  check_million<&::tavsSortIndexDescend_32f_I>(sort_way::down);
  check_million<&::tavsSortIndexAscend_64f_I>(sort_way::up);
}

TEST(SortIndex, OneElementHasNoIndex) {
  Tav32f value = 3;
  int    index = 9;
  EXPECT_EQ(call<&::tavsSortIndexAscend_32f_I>(&value, &index, 1), tavStatusOk);
  EXPECT_EQ(index, 9);
}

}  // namespace
