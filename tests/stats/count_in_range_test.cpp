// tavsCountInRange: elements strictly between two bounds, of which any may be the extremes, equal, or the wrong way
// round.
#include "harness/faults.h"
#include "result_runs.h"

using namespace test;

namespace {

struct bounds {
  Tav32s lower, upper;
};

int count(const std::vector<Tav32s>& src, bounds b) {
  return int(std::count_if(src.begin(), src.end(), [&](Tav32s x) { return b.lower < x && x < b.upper; }));
}

TEST(CountInRange, As32s) {
  bounds b{};
  check_result<&::tavsCountInRange_32s, Tav32s, int>(
      lengths_around({256, 1000}),
      [&](source_of_data& data, int len) {
        auto src = data.values<Tav32s>(size_t(len));
        b        = {data.value<Tav32s>(), data.value<Tav32s>()};
        if (b.lower > b.upper && data.below(4) != 0) std::swap(b.lower, b.upper);
        const Tav32s near[] = {b.lower, b.upper, Tav32s(Tav32u(b.lower) + 1), Tav32s(Tav32u(b.upper) - 1)};
        for (Tav32s& x : src)
          if (data.below(2) == 0) x = near[data.below(4)];
        return src;
      },
      [&](const Tav32s* src, int len, int* n) { return call<&::tavsCountInRange_32s>(src, len, n, b.lower, b.upper); },
      [&](const std::vector<Tav32s>& src, int& n) {
        n = count(src, b);
        return tavStatusOk;
      });
}

TEST(CountInRange, EachPairOfBounds) {
  const Tav32s        values[] = {INT32_MIN, INT32_MIN + 1, INT32_MIN + 2, -2,       -1, 0, 1,
                                  2,         INT32_MAX - 2, INT32_MAX - 1, INT32_MAX};
  std::vector<Tav32s> src;
  for (int k = 0; k < 5; ++k) src.insert(src.end(), std::begin(values), std::end(values));
  for (Tav32s lower : values)
    for (Tav32s upper : values) {
      int n = -1;
      EXPECT_EQ(call<&::tavsCountInRange_32s>(src.data(), int(src.size()), &n, lower, upper), tavStatusOk);
      EXPECT_EQ(n, count(src, {lower, upper})) << lower << " to " << upper;
      EXPECT_EQ(call<&::tavsCountInRange_32s>(src.data() + 3, 1, &n, lower, upper), tavStatusOk);
      EXPECT_EQ(n, count({src[3]}, {lower, upper})) << lower << " to " << upper;
    }
}

}  // namespace

TAV_FAULTS(CountInRange_32s, pointers_then_length_at<3>)
