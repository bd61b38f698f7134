// tavsAnd, Or, Xor, AndC, OrC, XorC, Not: against their truth tables, at every length, alignment and page end.
#include "oracle/logic.h"
#include "harness/faults.h"
#include "harness/layouts.h"

using namespace test;

namespace {

const std::set<int> lengths = lengths_around({192, 255, 1000, 4096});

template <class T> auto tabulated(oracle::truth table) {
  return [table](std::vector<T>& dst, const std::vector<T>& a, const std::vector<T>& b) {
    for (size_t i = 0; i < dst.size(); ++i) dst[i] = oracle::logic(table, a[i], b[i]);
    return tavStatusOk;
  };
}

template <auto* Export, class T> void check_two_sources(oracle::truth table) {
  const auto expected = tabulated<T>(table);
  check_layouts<Export, T, T, T>(
      lengths, [](T* dst, int len, const T* a, const T* b) { return call<Export>(a, b, dst, len); }, expected);
  check_layouts<Export, T, T>(  // into either source, and all three alike
      lengths, [](T* dst, int len, const T* a) { return call<Export>(a, dst, dst, len); },
      [&](std::vector<T>& dst, const std::vector<T>& a) { return expected(dst, a, std::vector(dst)); });
  check_layouts<Export, T, T>(
      lengths, [](T* dst, int len, const T* b) { return call<Export>(dst, b, dst, len); },
      [&](std::vector<T>& dst, const std::vector<T>& b) { return expected(dst, std::vector(dst), b); });
  check_layouts<Export, T>(
      lengths, [](T* dst, int len) { return call<Export>(dst, dst, dst, len); },
      [&](std::vector<T>& dst) { return expected(dst, std::vector(dst), std::vector(dst)); });
}

template <auto* Export, class T> void check_in_place(oracle::truth table) {
  const auto expected = tabulated<T>(table);
  check_layouts<Export, T, T>(
      lengths, [](T* dst, int len, const T* a) { return call<Export>(a, dst, len); },
      [&](std::vector<T>& dst, const std::vector<T>& a) { return expected(dst, a, std::vector(dst)); });
}

// One call in four has a constant of 0, and as many one of all ones or next to these.
template <auto* Export, class T> void check_constant(oracle::truth table) {
  const auto     expected = tabulated<T>(table);
  source_of_data data(17);
  T              val;
  const auto     drawn = [&](size_t n) { return val = data.below(4) ? data.value<T>() : T(0), std::vector<T>(n, val); };
  check_layouts<Export, T, T>(
      lengths, [&](T* dst, int len, const T* a) { return call<Export>(a, val, dst, len); },
      [&](std::vector<T>& dst, const std::vector<T>& a) { return expected(dst, a, drawn(a.size())); });
  check_layouts<Export, T>(
      lengths, [&](T* dst, int len) { return call<Export>(dst, val, dst, len); },
      [&](std::vector<T>& dst) { return expected(dst, std::vector(dst), drawn(dst.size())); });
}

template <auto* Export, class T> void check_constant_in_place(oracle::truth table) {
  const auto     expected = tabulated<T>(table);
  source_of_data data(19);
  T              val;
  const auto     drawn = [&](size_t n) { return val = data.below(4) ? data.value<T>() : T(0), std::vector<T>(n, val); };
  check_layouts<Export, T>(
      lengths, [&](T* dst, int len) { return call<Export>(val, dst, len); },
      [&](std::vector<T>& dst) { return expected(dst, std::vector(dst), drawn(dst.size())); });
}

template <auto* Export, auto* InPlace, class T> void check_not() {
  const auto expected = tabulated<T>(oracle::is_not_a);
  check_layouts<Export, T, T>(
      lengths, [](T* dst, int len, const T* a) { return call<Export>(a, dst, len); },
      [&](std::vector<T>& dst, const std::vector<T>& a) { return expected(dst, a, a); });
  check_layouts<InPlace, T>(
      lengths, [](T* dst, int len) { return call<InPlace>(dst, len); },
      [&](std::vector<T>& dst) { return expected(dst, std::vector(dst), std::vector(dst)); });
}

// The usual order, and no constant that would be a shortcut comes before it.
template <int Constant, size_t At> void also_with_constant(const tested& f) {
  faults bad(f);
  bad.null_pointers().below_one(f.count - 1);
  bad.expect();
  bad.expect_after("constant " + std::to_string(Constant), [](arguments& a) { a.set(At, Constant); });
}

#define FAMILY(Name, table, type)                                                                          \
  TEST(Name, As##type) { check_two_sources<&::tavs##Name##_##type, Tav##type>(table); }                    \
  TEST(Name, InPlace##type) { check_in_place<&::tavs##Name##_##type##_I, Tav##type>(table); }              \
  TEST(Name##C, As##type) { check_constant<&::tavs##Name##C_##type, Tav##type>(table); }                   \
  TEST(Name##C, InPlace##type) { check_constant_in_place<&::tavs##Name##C_##type##_I, Tav##type>(table); } \
  TAV_FAULTS(Name##_##type, pointers_then_length)                                                          \
  TAV_FAULTS(Name##_##type##_I, pointers_then_length)                                                      \
  TAV_FAULTS(Name##C_##type, also_with_constant<0, 1>)                                                     \
  TAV_FAULTS(Name##C_##type##_I, also_with_constant<0, 0>)

#define EACH_FAMILY(type)                                                                   \
  FAMILY(And, oracle::is_and, type)                                                         \
  FAMILY(Or, oracle::is_or, type)                                                           \
  FAMILY(Xor, oracle::is_xor, type)                                                         \
  TEST(Not, As##type) { check_not<&::tavsNot_##type, &::tavsNot_##type##_I, Tav##type>(); } \
  TAV_FAULTS(Not_##type, pointers_then_length)                                              \
  TAV_FAULTS(Not_##type##_I, pointers_then_length)

EACH_FAMILY(8u)
EACH_FAMILY(16u)
EACH_FAMILY(32u)

TEST(Not, InvertsEveryBit) {
  each_build<&::tavsNot_8u>([] {
    const Tav8u src = 0xF0;
    Tav8u       dst = 0;
    EXPECT_EQ(call<&::tavsNot_8u>(&src, &dst, 1), tavStatusOk);
    EXPECT_EQ(dst, 0x0F);
  });
}

}  // namespace
