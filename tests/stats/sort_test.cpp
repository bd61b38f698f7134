// tavsSortAscend, tavsSortDescend: against a stable sort by value; no element is lost, whatever the floats are.
#include "stats/sort_data.h"

using namespace test;
using oracle::sort_way;

TAV_SORT_CASES(Sort)

namespace {

TEST(Sort, AMillion) {
  check_million<&::tavsSortAscend_8u_I>(sort_way::up);
  check_million<&::tavsSortDescend_16s_I>(sort_way::down);
  check_million<&::tavsSortAscend_32f_I>(sort_way::up);
  check_million<&::tavsSortDescend_64f_I>(sort_way::down);
}

// Where a thread counts denormals as zeros, doubles among them have no order; none may be lost.
TEST(Sort, DenormalsAsZeros) {
  constexpr unsigned as_zeros  = 0x8040;
  const auto         denormals = by_place<Tav64f>(1000, [](size_t i) { return 5e-324 * double(i * 7919 % 1000); });
  auto               v         = denormals;
  const unsigned     before    = _mm_getcsr();
  _mm_setcsr(before | as_zeros);
  const TavStatus status = call<&::tavsSortAscend_64f_I>(v.data(), int(v.size()));
  _mm_setcsr(before);
  EXPECT_EQ(status, tavStatusOk);
  EXPECT_TRUE(oracle::collection::of(v) == oracle::collection::of(denormals));
}

// All but a few are in order behind NaNs.
TEST(Sort, NansOnly) {
  for (size_t n : {2, 10, 100, 1000}) {
    std::vector<Tav64f> doubles(n, std::numeric_limits<Tav64f>::quiet_NaN());
    std::vector<Tav32f> singles(n, -std::numeric_limits<Tav32f>::quiet_NaN());
    const auto          kept = oracle::collection::of(doubles), kept_singles = oracle::collection::of(singles);
    EXPECT_EQ(call<&::tavsSortDescend_64f_I>(doubles.data(), int(n)), tavStatusOk);
    EXPECT_EQ(call<&::tavsSortAscend_32f_I>(singles.data(), int(n)), tavStatusOk);
    EXPECT_TRUE(oracle::collection::of(doubles) == kept && oracle::collection::of(singles) == kept_singles);
  }
}

}  // namespace
