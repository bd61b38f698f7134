// tavsSortRadix: values in their total order, bit for bit, and nothing outside the two arrays touched.
#include "harness/faults.h"
#include "harness/radix_inputs.h"

using namespace test;

namespace {

template <class T> struct homes {
  explicit homes(int longest) : data(size_t(longest) * sizeof(T)), tmp(size_t(longest) * sizeof(T)) {}
  arena data, tmp;
};

template <auto* Export, bool Descending, class T> void check_one(homes<T>& at, const named_input<T>& input, int turn) {
  const int      len   = int(input.values.size());
  const auto     where = radix_placement(turn), tmp_where = radix_placement(turn * 7 + 3);
  array<T>       data(at.data, size_t(len), where), tmp(at.tmp, size_t(len), tmp_where);
  std::vector<T> before(size_t(len), of_bits<T>(0x5A5A5A5A5A5A5A5A));
  data.assign(input.values), tmp.assign(before);

  const auto context = [&] {
    return testing::Message() << input.name << ", length " << len << ", srcDst " << where << ", tmp " << tmp_where;
  };
  ASSERT_EQ(call<Export>(data.data(), tmp.data(), len), tavStatusOk) << context();
  ASSERT_TRUE(same_bits(data.values(), oracle::sorted(input.values, Descending))) << context();
  ASSERT_TRUE(data.guards_intact() && tmp.guards_intact()) << "written outside: " << context();
  if constexpr (sizeof(T) == 1) {
    ASSERT_TRUE(same_bits(tmp.values(), before)) << "tmp written: " << context();
  }
}

// Lengths at which another engine or another set of digits takes over.
template <class T> std::set<int> lengths() {
  std::set<int> all;
  for (int n = 1; n <= 300; ++n) all.insert(n);
  for (int n : {511, 512, 513, 998, 999, 1000, 1001, 1003, 2500, 100000}) all.insert(n);
  if (sizeof(T) >= 4)
    for (int past : {0, 1}) all.insert((1 << 19) + past);
  return all;
}

template <auto* Export, bool Descending, class T> void check(TavStatus (*)(T*, T*, int)) {
  const auto all = lengths<T>();
  homes<T>   at(*all.rbegin());
  each_build<Export>([&] {
    int turn = 0;
    for (int len : all) {
      auto inputs = radix_inputs<T>(len, uint32_t(len));
      if (len > 2500) inputs.resize(len > 100000 ? 1 : 2);
      for (const auto& input : inputs) {
        check_one<Export, Descending>(at, input, turn++);
        if (testing::Test::HasFatalFailure()) return;
      }
    }
    for (int len : {100, 1203})
      for (const auto& input : one_bit_inputs<T>(len)) {
        check_one<Export, Descending>(at, input, turn++);
        if (testing::Test::HasFatalFailure()) return;
      }
  });
}

template <class T> std::vector<T> special(bool descending) {
  using limits         = std::numeric_limits<T>;
  const uint64_t quiet = sizeof(T) == 4 ? 0x7FC00000 : 0x7FF8000000000000;
  const uint64_t top   = sizeof(T) == 4 ? 0x80000000 : 0x8000000000000000;
  std::vector<T> v{of_bits<T>(top | (quiet + 1)),
                   of_bits<T>(top | quiet),
                   -limits::infinity(),
                   limits::lowest(),
                   -limits::min(),
                   -limits::denorm_min(),
                   T(-0.0),
                   T(0.0),
                   limits::denorm_min(),
                   limits::min(),
                   limits::max(),
                   limits::infinity(),
                   of_bits<T>(quiet),
                   of_bits<T>(quiet + 1)};
  if (descending) std::reverse(v.begin(), v.end());
  return v;
}

// Written out, for the definition is wrong if these are not.
template <auto* Export, bool Descending, class T> void check_special(TavStatus (*)(T*, T*, int)) {
  const auto want = special<T>(Descending);
  for (int turn = 0; turn < 50; ++turn) {
    auto v = want, tmp = want;
    std::shuffle(v.begin(), v.end(), std::mt19937(uint32_t(turn)));
    EXPECT_EQ(call<Export>(v.data(), tmp.data(), int(v.size())), tavStatusOk);
    EXPECT_TRUE(same_bits(v, want)) << turn;
  }
}

TEST(SortRadix, SpecialValues) {
  check_special<&::tavsSortRadixAscend_32f_I, false>(&::tavsSortRadixAscend_32f_I);
  check_special<&::tavsSortRadixDescend_32f_I, true>(&::tavsSortRadixDescend_32f_I);
  check_special<&::tavsSortRadixAscend_64f_I, false>(&::tavsSortRadixAscend_64f_I);
  check_special<&::tavsSortRadixDescend_64f_I, true>(&::tavsSortRadixDescend_64f_I);
}

}  // namespace

#define CASE(type)                                                                       \
  TEST(SortRadix, Ascend_##type) {                                                       \
    check<&::tavsSortRadixAscend_##type##_I, false>(&::tavsSortRadixAscend_##type##_I);  \
  }                                                                                      \
  TEST(SortRadix, Descend_##type) {                                                      \
    check<&::tavsSortRadixDescend_##type##_I, true>(&::tavsSortRadixDescend_##type##_I); \
  }                                                                                      \
  TAV_FAULTS(SortRadixAscend_##type##_I, pointers_then_length)                           \
  TAV_FAULTS(SortRadixDescend_##type##_I, pointers_then_length)
CASE(8u)
CASE(16s)
CASE(16u)
CASE(32s)
CASE(32u)
CASE(32f)
CASE(64f)
#undef CASE
