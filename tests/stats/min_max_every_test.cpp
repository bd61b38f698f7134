// tavsMinEvery, tavsMaxEvery: the smaller and the larger element, and the second one where neither is the larger.
#include "harness/faults.h"
#include "harness/forms.h"

using namespace test;

namespace {

const auto smaller = [](auto a, auto b) { return a < b ? a : b; };
const auto larger  = [](auto a, auto b) { return a > b ? a : b; };

const std::set<int> lengths = lengths_around({256, 1000, 4096});

template <auto* Export, class T, class One> void check_unsigned(const One& one) {
  two_sources_of<Export, T, T, T>(nullptr, one, lengths);
}

#define INTEGERS(type)                                                                      \
  TEST(MinEvery, As##type) { check_two_sources<&::tavsMinEvery_##type>(smaller, lengths); } \
  TEST(MaxEvery, As##type) { check_two_sources<&::tavsMaxEvery_##type>(larger, lengths); }  \
  TAV_FAULTS(MinEvery_##type, pointers_then_length)                                         \
  TAV_FAULTS(MaxEvery_##type, pointers_then_length)
#define FLOATS(type)                                                                       \
  TEST(MinEvery, As##type) { check_unsigned<&::tavsMinEvery_##type, Tav##type>(smaller); } \
  TEST(MaxEvery, As##type) { check_unsigned<&::tavsMaxEvery_##type, Tav##type>(larger); }  \
  TAV_FAULTS(MinEvery_##type, pointers_then_unsigned_length_at<0>)                         \
  TAV_FAULTS(MaxEvery_##type, pointers_then_unsigned_length_at<0>)
#define IN_PLACE(type)                                                                              \
  TEST(MinEveryInPlace, As##type) { check_in_place<&::tavsMinEvery_##type##_I>(smaller, lengths); } \
  TEST(MaxEveryInPlace, As##type) { check_in_place<&::tavsMaxEvery_##type##_I>(larger, lengths); }  \
  TAV_FAULTS(MinEvery_##type##_I, pointers_then_length)                                             \
  TAV_FAULTS(MaxEvery_##type##_I, pointers_then_length)

INTEGERS(8u)
INTEGERS(16u)
FLOATS(32f)
FLOATS(64f)
IN_PLACE(8u)
IN_PLACE(16u)
IN_PLACE(16s)
IN_PLACE(32s)
IN_PLACE(32f)
IN_PLACE(64f)

// NaNs of either kind and sign, zeros of either sign: the bits of the second operand, at every place of the array.
template <class T, class Word> void check_second_operand(auto min, auto max, auto min_in_place, auto max_in_place) {
  const int  fraction = sizeof(T) == 4 ? 23 : 52;
  const Word sign = Word(1) << (8 * sizeof(T) - 1), infinity = sign - (Word(1) << fraction),
             quiet     = Word(1) << (fraction - 1);
  const Word one       = infinity >> 1 & ~(quiet - 1) & ~quiet;
  const Word special[] = {
      infinity | quiet | 5, infinity | 7, sign | infinity | quiet | 9, sign | infinity | 3, 0, sign};
  const Word                         other[] = {one, sign | one, infinity, sign | infinity};
  std::vector<std::pair<Word, Word>> pairs{{0, sign}, {sign, 0}};
  for (int k = 0; k < 4; ++k) {
    for (Word b : special) pairs.push_back({special[k], b}), pairs.push_back({b, special[k]});
    for (Word b : other) pairs.push_back({special[k], b}), pairs.push_back({b, special[k]});
  }
  for (const auto& p : pairs)
    for (size_t n : {1, 3, 5, 37}) {
      const std::vector<Word> a(n, p.first), b(n, p.second);
      const auto              check = [&](auto run) {
        std::vector<Word> dst = b;
        EXPECT_EQ(run(reinterpret_cast<const T*>(a.data()), reinterpret_cast<const T*>(b.data()),
                                   reinterpret_cast<T*>(dst.data()), int(n)),
                               tavStatusOk);
        EXPECT_EQ(dst, b) << std::hex << p.first << ", " << p.second;
      };
      check(min), check(max);
      check([&](const T* x, const T*, T* y, int len) { return min_in_place(x, y, len); });
      check([&](const T* x, const T*, T* y, int len) { return max_in_place(x, y, len); });
    }
}

const auto calling = [](auto* function) { return [=](auto... a) { return checked_call(function, a...); }; };

TEST(MinMaxEvery, SecondOperand32f) {
  check_second_operand<Tav32f, uint32_t>(calling(&::tavsMinEvery_32f), calling(&::tavsMaxEvery_32f),
                                         calling(&::tavsMinEvery_32f_I), calling(&::tavsMaxEvery_32f_I));
}
TEST(MinMaxEvery, SecondOperand64f) {
  check_second_operand<Tav64f, uint64_t>(calling(&::tavsMinEvery_64f), calling(&::tavsMaxEvery_64f),
                                         calling(&::tavsMinEvery_64f_I), calling(&::tavsMaxEvery_64f_I));
}

}  // namespace
