// tavsDiv_Round: each rounding mode at every factor, on the operands of tavsDiv.
#include "harness/division.h"

using namespace test;
using namespace oracle;

namespace {

template <auto* Apart, auto* InPlace, class T> void check_modes(const division& range) {
  source_of_data data(71);
  for (rounding mode : {toward_zero, ties_to_even, ties_away}) {
    SCOPED_TRACE(testing::Message() << "mode " << mode);
    for (int s : factors_of(range)) {
      SCOPED_TRACE(testing::Message() << "factor " << s);
      auto o = hard_operands<T>(s, data);
      if (sizeof(T) == 2 && s % 8 == 0) add_all_dividends(o, data);
      each_build<Apart>([&] {
        expect_quotients<T>(
            o, [&](auto b, auto a, T* d, int n) { return call<Apart>(b, a, d, n, mode, s); },
            [&](T b, T a) { return range.of<T>(a, b, s, mode); });
      });
      if (testing::Test::HasFatalFailure()) return;
    }
    for (int s : {0, -9}) {
      const auto want = [&](T b, T a) { return range.of<T>(a, b, s, mode); };
      check_division_layouts<Apart, T, T, T>(
          [&](auto b, auto a, T* d, int n) { return call<Apart>(b, a, d, n, mode, s); }, want);
      check_division_in_place<InPlace, T, T>([&](auto b, T* d, int n) { return call<InPlace>(b, d, n, mode, s); },
                                             want);
    }
  }
}

TEST(DivRound, As8u) { check_modes<&::tavsDiv_Round_8u_Sfs, &::tavsDiv_Round_8u_ISfs, Tav8u>(div_8u); }
TEST(DivRound, As16s) { check_modes<&::tavsDiv_Round_16s_Sfs, &::tavsDiv_Round_16s_ISfs, Tav16s>(div_16s); }
TEST(DivRound, As16u) { check_modes<&::tavsDiv_Round_16u_Sfs, &::tavsDiv_Round_16u_ISfs, Tav16u>(div_16u); }

TEST(DivRound, SingleValues) {
  const auto rounded = [](Tav16s b, Tav16s a, int mode, int s) {
    Tav16s q = 0;
    EXPECT_EQ(call<&::tavsDiv_Round_16s_Sfs>(&b, &a, &q, 1, mode, s), tavStatusOk);
    return q;
  };
  in_hostile_modes([&] {
    EXPECT_EQ(rounded(2, 5, 0, 0), 2);
    EXPECT_EQ(rounded(2, 5, 1, 0), 2);
    EXPECT_EQ(rounded(2, 5, 2, 0), 3);
    EXPECT_EQ(rounded(2, -5, 0, 0), -2);
    EXPECT_EQ(rounded(2, -5, 2, 0), -3);
    EXPECT_EQ(rounded(1, -32768, 2, 16), 0);  // outside the range: not -1
  });
}

void pointers_length_then_mode(const tested& f) {
  const size_t mode = f.count - 2;
  faults(f)
      .null_pointers()
      .below_one(mode - 1)
      .value(mode, -1, tavStatusBadRoundMode)
      .value(mode, 3, tavStatusBadRoundMode)
      .expect();
}

}  // namespace

TAV_FAULTS(Div_Round_8u_Sfs, pointers_length_then_mode)
TAV_FAULTS(Div_Round_8u_ISfs, pointers_length_then_mode)
TAV_FAULTS(Div_Round_16s_Sfs, pointers_length_then_mode)
TAV_FAULTS(Div_Round_16s_ISfs, pointers_length_then_mode)
TAV_FAULTS(Div_Round_16u_Sfs, pointers_length_then_mode)
TAV_FAULTS(Div_Round_16u_ISfs, pointers_length_then_mode)
