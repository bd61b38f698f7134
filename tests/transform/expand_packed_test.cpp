// tavsConjCcs, tavsConjPack, tavsConjPerm: against the definition of the three forms.
#include "harness/faults.h"
#include "harness/forms.h"
#include "oracle/spectra.h"

using namespace test;
using oracle::form;

namespace {

template <class C> using part = decltype(C::re);

template <class C> std::vector<part<C>> parts_of(const std::vector<C>& pairs) {
  std::vector<part<C>> all;
  for (C v : pairs) all.push_back(v.re), all.push_back(v.im);
  return all;
}

// One call, from an array of exactly the slots that there are.
template <auto* Export, class C>
void check_one(form f, arena& from, arena& to, source_of_data& data, int len, const layout& l) {
  const auto     slots = data.values<part<C>>(oracle::slots_of(f, len));
  array<part<C>> src(from, slots.size(), l.src);
  array<C>       dst(to, size_t(len), l.dst);
  src.assign(slots);
  const auto where = [&] { return testing::Message() << "length " << len << ", " << l; };
  ASSERT_EQ(call<Export>(reinterpret_cast<const C*>(src.data()), dst.data(), len), tavStatusOk) << where();
  const long wrong = first_difference(dst.values(), oracle::whole_spectrum<C>(f, slots, len));
  ASSERT_LT(wrong, 0) << where();
  ASSERT_TRUE(dst.guards_intact()) << "written outside dst: " << where();
  ASSERT_LT(first_difference(src.values(), slots), 0) << "the source was written: " << where();
}

template <auto* Export, class C> void check_apart(form f) {
  const auto lengths = usual_lengths();
  const auto all = all_layouts(), few = few_layouts();
  arena      from(size_t(*lengths.rbegin() + 2) * sizeof(C)), to(from.capacity());
  each_build<Export>([&] {
    source_of_data data(5);
    for (int len : lengths)
      for (const layout& l : len <= few_layouts_above ? all : few) {
        check_one<Export, C>(f, from, to, data, len, l);
        if (testing::Test::HasFatalFailure()) return;
      }
  });
}

// The packed spectrum in the first slots of the destination, and anything behind it.
template <auto* Export, class C, class Call>
void check_on_itself(form f, const std::set<int>& lengths, Call on_itself) {
  check_layouts<Export, C>(lengths, on_itself, [&](std::vector<C>& dst) {
    dst = oracle::whole_spectrum<C>(f, parts_of(dst), int(dst.size()));
    return tavStatusOk;
  });
}

template <auto* Export, auto* InPlace, class C> void check_expansion(form f, TavStatus (*)(const C*, C*, int)) {
  check_apart<Export, C>(f);
  check_on_itself<Export, C>(f, few_lengths(), [](C* dst, int len) { return call<Export>(dst, dst, len); });
  check_on_itself<InPlace, C>(f, usual_lengths(), [](C* dst, int len) { return call<InPlace>(dst, len); });
}

#define CASE(name, form_of, type)                                                                                     \
  TEST(Expand##name, As##type) {                                                                                      \
    check_expansion<&::tavsConj##name##_##type, &::tavsConj##name##_##type##_I>(form_of, &::tavsConj##name##_##type); \
  }                                                                                                                   \
  TAV_FAULTS(Conj##name##_##type, pointers_then_length)                                                               \
  TAV_FAULTS(Conj##name##_##type##_I, pointers_then_length)
CASE(Ccs, form::ccs, 16sc)
CASE(Ccs, form::ccs, 32fc)
CASE(Ccs, form::ccs, 64fc)
CASE(Pack, form::pack, 16sc)
CASE(Pack, form::pack, 32fc)
CASE(Pack, form::pack, 64fc)
CASE(Perm, form::perm, 16sc)
CASE(Perm, form::perm, 32fc)
CASE(Perm, form::perm, 64fc)
#undef CASE

TEST(ExpandPack, OneValue) {
  const Tav32f  slot      = 3;
  const Tav32fc before[2] = {{7, 7}, {7, 7}};
  each_build<&::tavsConjPack_32fc>([&] {
    Tav32fc dst[2] = {before[0], before[1]};
    EXPECT_EQ(call<&::tavsConjPack_32fc>(reinterpret_cast<const Tav32fc*>(&slot), dst, 1), tavStatusOk);
    EXPECT_TRUE(same(dst[0], Tav32fc{3, 0}));
    EXPECT_TRUE(same(dst[1], before[1]));
  });
}

// The imaginary parts of the two real values are copied as they stand.
TEST(ExpandCcs, CopiesWhatShouldBeZero) {
  const Tav32fc src[] = {{1, 2}, {3, 4}, {5, 6}};
  Tav32fc       dst[4];
  EXPECT_EQ(call<&::tavsConjCcs_32fc>(src, dst, 4), tavStatusOk);
  EXPECT_TRUE(same(dst[0], src[0]));
  EXPECT_TRUE(same(dst[2], src[2]));
  EXPECT_TRUE(same(dst[3], Tav32fc{3, -4}));
}

TEST(ExpandPack, LowestImaginaryPart) {
  const std::vector<Tav16s> slots(40, -32768);
  std::vector<Tav16sc>      dst(40);
  EXPECT_EQ(call<&::tavsConjPack_16sc>(reinterpret_cast<const Tav16sc*>(slots.data()), dst.data(), 40), tavStatusOk);
  for (size_t k = 1; k < 20; ++k) {
    EXPECT_TRUE(same(dst[k], Tav16sc{-32768, -32768})) << k;
    EXPECT_TRUE(same(dst[40 - k], Tav16sc{-32768, 32767})) << k;
  }
}

// Of words, as nothing but the function may move them: NaNs keep their payload, and of a conjugate one bit changes.
template <auto* Export, auto* InPlace, class C, class Word> void check_bits(const std::vector<Word>& patterns) {
  constexpr Word    sign = Word(1) << (8 * sizeof(Word) - 1);
  constexpr int     n    = 41;
  std::vector<Word> slots(n), dst(2 * n), want(2 * n);
  for (size_t i = 0; i < n; ++i) slots[i] = patterns[i % patterns.size()];
  want[0] = slots[0];
  for (size_t k = 1; k <= n / 2; ++k) {
    want[2 * k] = want[2 * (n - k)] = slots[2 * k - 1];
    want[2 * k + 1] = slots[2 * k], want[2 * (n - k) + 1] = slots[2 * k] ^ sign;
  }
  each_build<Export>([&] {
    EXPECT_EQ(call<Export>(reinterpret_cast<const C*>(slots.data()), reinterpret_cast<C*>(dst.data()), n), tavStatusOk);
    EXPECT_EQ(dst, want);
  });
  std::copy(slots.begin(), slots.end(), dst.begin());
  EXPECT_EQ(call<InPlace>(reinterpret_cast<C*>(dst.data()), n), tavStatusOk);
  EXPECT_EQ(dst, want);
}

TEST(ExpandPack, ChangesOnlyTheSignBit) {
  check_bits<&::tavsConjPack_32fc, &::tavsConjPack_32fc_I, Tav32fc, uint32_t>(
      {0x7F800001, 0, 0x80000000, 0xFFC01234, 0x7F800000, 1, 0xFFA00000});
  check_bits<&::tavsConjPack_64fc, &::tavsConjPack_64fc_I, Tav64fc, uint64_t>(
      {0x7FF0000000000001, 0, uint64_t(1) << 63, 0xFFF8000000001234, 1});
}

}  // namespace
