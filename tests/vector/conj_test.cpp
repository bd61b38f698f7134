// tavsConj, tavsConjFlip.
#include "harness/faults.h"
#include "harness/forms.h"
#include "oracle/complex.h"

using namespace test;

namespace {

const auto conjugate = [](auto v) { return oracle::conjugate(v); };

TEST(Conj, As16sc) { check_one_source<&::tavsConj_16sc, &::tavsConj_16sc_I>(conjugate); }
TEST(Conj, As32fc) { check_one_source<&::tavsConj_32fc, &::tavsConj_32fc_I>(conjugate); }
TEST(Conj, As64fc) { check_one_source<&::tavsConj_64fc, &::tavsConj_64fc_I>(conjugate); }

template <auto* Export, class C> void flips(TavStatus (*)(const C*, C*, int)) {
  check_layouts<Export, C, C>(
      usual_lengths(), [](C* dst, int len, const C* src) { return call<Export>(src, dst, len); },
      [](std::vector<C>& dst, const std::vector<C>& src) {
        dst = oracle::conjugates_flipped(src);
        return tavStatusOk;
      });
}

TEST(ConjFlip, As16sc) { flips<&::tavsConjFlip_16sc>(&::tavsConjFlip_16sc); }
TEST(ConjFlip, As32fc) { flips<&::tavsConjFlip_32fc>(&::tavsConjFlip_32fc); }
TEST(ConjFlip, As64fc) { flips<&::tavsConjFlip_64fc>(&::tavsConjFlip_64fc); }

TEST(Conj, LowestImaginaryPart) {
  const std::vector<Tav16sc> src(21, {-32768, -32768});
  std::vector<Tav16sc>       dst(21), flipped(21);
  EXPECT_EQ(call<&::tavsConj_16sc>(src.data(), dst.data(), 21), tavStatusOk);
  EXPECT_EQ(call<&::tavsConjFlip_16sc>(src.data(), flipped.data(), 21), tavStatusOk);
  for (const auto& all : {dst, flipped})
    for (Tav16sc v : all) EXPECT_TRUE(same(v, Tav16sc{-32768, 32767}));
}

// Of words, as nothing but the function may move them: one bit of a pair changes, of NaNs and zeros too.
template <auto* Export, class C, class Word> void check_bits(const std::vector<Word>& parts) {
  constexpr Word    sign = Word(1) << (8 * sizeof(Word) - 1);
  const int         n    = int(parts.size()) / 2;
  std::vector<Word> dst(parts.size()), want = parts;
  for (size_t i = 1; i < want.size(); i += 2) want[i] ^= sign;
  EXPECT_EQ(call<Export>(reinterpret_cast<const C*>(parts.data()), reinterpret_cast<C*>(dst.data()), n), tavStatusOk);
  EXPECT_EQ(dst, want);
}

TEST(Conj, ChangesOnlyTheSignBit) {
  std::vector<uint32_t> singles;
  std::vector<uint64_t> doubles;
  for (int i = 0; i < 19; ++i) {
    for (uint32_t v : {0u, 0x80000000u, 0x7F800001u, 0xFFC01234u, 0x7F800000u, 1u}) singles.push_back(v);
    for (uint64_t v : {0ull, 1ull << 63, 0x7FF0000000000001ull, 0xFFF8000000001234ull}) doubles.push_back(v);
  }
  check_bits<&::tavsConj_32fc, Tav32fc>(singles);
  check_bits<&::tavsConj_64fc, Tav64fc>(doubles);
}

}  // namespace

#define CASE(type)                                  \
  TAV_FAULTS(Conj_##type, pointers_then_length)     \
  TAV_FAULTS(Conj_##type##_I, pointers_then_length) \
  TAV_FAULTS(ConjFlip_##type, pointers_then_length)
CASE(16sc) CASE(32fc) CASE(64fc)
#undef CASE
