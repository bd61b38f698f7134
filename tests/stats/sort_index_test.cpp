// tavsSortIndexAscend, tavsSortIndexDescend: against a stable sort by value, and each index at the side of its element.
#include "harness/faults.h"
#include "stats/sort_data.h"

using namespace test;
using oracle::direction;

#define CASE(type)                                                                                                  \
  TEST(SortIndex, SmallUp##type) { check_small_sorts<&::tavsSortIndexAscend_##type##_I>(direction::up); }           \
  TEST(SortIndex, SmallDown##type) { check_small_sorts<&::tavsSortIndexDescend_##type##_I>(direction::down); }      \
  TEST(SortIndex, Up##type) { check_sorts<&::tavsSortIndexAscend_##type##_I>(sort_lengths(), direction::up); }      \
  TEST(SortIndex, Down##type) { check_sorts<&::tavsSortIndexDescend_##type##_I>(sort_lengths(), direction::down); } \
  TEST(SortIndex, LongUp##type) { check_sorts<&::tavsSortIndexAscend_##type##_I>(long_sorts, direction::up); }      \
  TEST(SortIndex, LongDown##type) { check_sorts<&::tavsSortIndexDescend_##type##_I>(long_sorts, direction::down); } \
  TAV_FAULTS(SortIndexAscend_##type##_I, pointers_then_length)                                                      \
  TAV_FAULTS(SortIndexDescend_##type##_I, pointers_then_length)
CASE(8u)
CASE(16s)
CASE(16u)
CASE(32s)
CASE(32f)
CASE(64f)
#undef CASE

namespace {

TEST(SortIndex, AMillion) {
  check_million<&::tavsSortIndexAscend_32s_I>(direction::up);
  check_million<&::tavsSortIndexDescend_32f_I>(direction::down);
  check_million<&::tavsSortIndexAscend_64f_I>(direction::up);
}

TEST(SortIndex, OneElementHasNoIndex) {
  Tav32f value = 3;
  int    index = 9;
  EXPECT_EQ(call<&::tavsSortIndexAscend_32f_I>(&value, &index, 1), tavStatusOk);
  EXPECT_EQ(index, 9);
}

}  // namespace
