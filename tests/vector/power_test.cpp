// tavsPowerSpectr, tavsMagSquared.
#include "vector/squares_forms.h"

using namespace test;

namespace {

const auto power    = [](auto re, auto im) { return oracle::power(re, im); };
const auto of_words = [](Tav16s re, Tav16s im) { return Tav32f(int64_t(re) * re + int64_t(im) * im); };
template <class T>
const auto scaled_power = [](T re, T im, int s) { return oracle::scaled<T>(oracle::squares(re, im), s); };

TEST(PowerSpectr, As32f) { check_two_sources<&::tavsPowerSpectr_32f>(power); }
TEST(PowerSpectr, As64f) { check_two_sources<&::tavsPowerSpectr_64f>(power); }
TEST(PowerSpectr, As32fc) { check_on_pairs<&::tavsPowerSpectr_32fc>(power); }
TEST(PowerSpectr, As64fc) { check_on_pairs<&::tavsPowerSpectr_64fc>(power); }
TEST(PowerSpectr, As16s32f) { check_two_sources<&::tavsPowerSpectr_16s32f>(of_words); }
TEST(PowerSpectr, As16sc32f) { check_on_pairs<&::tavsPowerSpectr_16sc32f>(of_words); }
TEST(PowerSpectr, As16s_Sfs) { check_scaled_on_parts<&::tavsPowerSpectr_16s_Sfs>(scaled_power<Tav16s>); }
TEST(PowerSpectr, As16sc_Sfs) { check_scaled_on_pairs<&::tavsPowerSpectr_16sc_Sfs>(scaled_power<Tav16s>); }

TEST(MagSquared, As32fc64f) {
  check_on_pairs<&::tavsMagSquared_32fc64f>([](Tav32f re, Tav32f im) { return power(Tav64f(re), Tav64f(im)); });
}
TEST(MagSquared, As32sc32s_Sfs) { check_scaled_on_pairs<&::tavsMagSquared_32sc32s_Sfs>(scaled_power<Tav32s>); }

// Widened first: neither overflow nor a lost bit.
TEST(MagSquared, BeyondSingles) {
  const std::vector<Tav32fc> src(11, {1e30f, 16777215});
  std::vector<Tav64f>        dst(11);
  EXPECT_EQ(call<&::tavsMagSquared_32fc64f>(src.data(), dst.data(), 11), tavStatusOk);
  for (Tav64f v : dst) EXPECT_EQ(v, Tav64f(1e30f) * 1e30f + 16777215.0 * 16777215.0);
}

TEST(PowerSpectr, AllWordsAtFactorsOfInterest) {
  const auto          src = pairs_of_words();
  std::vector<Tav16s> dst(src.size());
  for (int s : {-15, -14, 0, 1, 15, 16, 17, 30, 31, 32}) {
    ASSERT_EQ(call<&::tavsPowerSpectr_16sc_Sfs>(src.data(), dst.data(), int(src.size()), s), tavStatusOk);
    for (size_t i = 0; i < src.size(); ++i)
      ASSERT_EQ(dst[i], scaled_power<Tav16s>(src[i].re, src[i].im, s)) << s << ": " << src[i].re << ", " << src[i].im;
  }
}

TEST(PowerSpectr, OfTheLowestParts) {
  const std::vector<Tav16sc> words(9, {-32768, -32768});
  std::vector<Tav32f>        floats(9);
  EXPECT_EQ(call<&::tavsPowerSpectr_16sc32f>(words.data(), floats.data(), 9), tavStatusOk);
  for (Tav32f v : floats) EXPECT_EQ(v, 2147483648.0f);
  const std::vector<Tav32sc> longs(9, {INT_MIN, INT_MIN});
  std::vector<Tav32s>        dst(9);
  for (const auto& [s, want] : {std::pair{0, INT_MAX}, {32, INT_MAX}, {33, 1 << 30}, {63, 1}, {64, 0}}) {
    EXPECT_EQ(call<&::tavsMagSquared_32sc32s_Sfs>(longs.data(), dst.data(), 9, s), tavStatusOk);
    for (Tav32s v : dst) EXPECT_EQ(v, want) << s;
  }
}

// Floats follow the caller's mode: 1 + 2^-30 is no single, nor is 32767^2 + 1.
TEST(PowerSpectr, InTheCallersRoundingMode) {
  for (unsigned mode : rounding_modes) {
    const bool                 up = mode == rounding_mode::up;
    const std::vector<Tav32fc> singles(17, {1, 0x1p-15f});
    const std::vector<Tav16sc> words(17, {32767, 1});
    std::vector<Tav32f>        of_singles(17), of_words(17);
    {
      const rounding_mode set(mode);
      EXPECT_EQ(call<&::tavsPowerSpectr_32fc>(singles.data(), of_singles.data(), 17), tavStatusOk);
      EXPECT_EQ(call<&::tavsPowerSpectr_16sc32f>(words.data(), of_words.data(), 17), tavStatusOk);
    }
    for (Tav32f v : of_singles) EXPECT_EQ(v, up ? 1 + 0x1p-23f : 1) << std::hex << mode;
    for (Tav32f v : of_words) EXPECT_EQ(v, up ? 1073676352.0f : 1073676288.0f) << std::hex << mode;
  }
}

}  // namespace

#define CASE(type) TAV_FAULTS(PowerSpectr_##type, pointers_then_length)
CASE(32f)
CASE(64f)
CASE(32fc) CASE(64fc) CASE(16s32f) CASE(16sc32f)
#undef CASE
    TAV_FAULTS(PowerSpectr_16s_Sfs, pointers_then_length_scaled)
        TAV_FAULTS(PowerSpectr_16sc_Sfs, pointers_then_length_scaled)
            TAV_FAULTS(MagSquared_32fc64f, pointers_then_length)
                TAV_FAULTS(MagSquared_32sc32s_Sfs, pointers_then_length_scaled)
