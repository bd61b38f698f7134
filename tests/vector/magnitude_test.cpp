// tavsMagnitude: float roots bit for bit, those of words also within 1 ULP of the true root; scaled ones exactly, in
// every rounding mode.
#include "vector/squares_forms.h"

using namespace test;

namespace {

const auto magnitude = [](auto re, auto im) { return oracle::root(oracle::power(re, im)); };
const auto of_words  = [](Tav16s re, Tav16s im) {
  return oracle::root(Tav32f(int64_t(re) * re + int64_t(im) * im));  // exact before it is a float
};
template <class T>
const auto scaled_magnitude = [](T re, T im, int s) { return oracle::scaled_root<T>(oracle::squares(re, im), s); };

TEST(Magnitude, As32f) { check_two_sources<&::tavsMagnitude_32f>(magnitude); }
TEST(Magnitude, As64f) { check_two_sources<&::tavsMagnitude_64f>(magnitude); }
TEST(Magnitude, As32fc) { check_on_pairs<&::tavsMagnitude_32fc>(magnitude); }
TEST(Magnitude, As64fc) { check_on_pairs<&::tavsMagnitude_64fc>(magnitude); }
TEST(Magnitude, As16s32f) { check_two_sources<&::tavsMagnitude_16s32f>(of_words); }
TEST(Magnitude, As16sc32f) { check_on_pairs<&::tavsMagnitude_16sc32f>(of_words); }

TEST(Magnitude, OfWordsWithin1Ulp) {
  const auto          src = pairs_of_words();
  std::vector<Tav32f> dst(src.size());
  ASSERT_EQ(call<&::tavsMagnitude_16sc32f>(src.data(), dst.data(), int(src.size())), tavStatusOk);
  for (size_t i = 0; i < src.size(); ++i) {
    const Tav64f want = sqrt(Tav64f(src[i].re) * src[i].re + Tav64f(src[i].im) * src[i].im);
    const Tav64f ulp  = nextafterf(dst[i], INFINITY) - dst[i];
    ASSERT_LE(fabs(dst[i] - want), ulp) << src[i].re << ", " << src[i].im;
  }
}

// Floats stay in their precision, come what may.
TEST(Magnitude, Overflows) {
  const std::vector<Tav32fc> src(13, {1e30f, 0});
  std::vector<Tav32f>        dst(13);
  EXPECT_EQ(call<&::tavsMagnitude_32fc>(src.data(), dst.data(), 13), tavStatusOk);
  for (Tav32f v : dst) EXPECT_EQ(v, INFINITY);
}

TEST(Magnitude, InTheCallersRoundingMode32f) {
  for (unsigned mode : rounding_modes) {
    std::vector<Tav32f> re(21, 1), im(21, 1), dst(21);  // the root of 2 lies between 1.41421354 and 1.41421366
    {
      const rounding_mode set(mode);
      EXPECT_EQ(call<&::tavsMagnitude_32f>(re.data(), im.data(), dst.data(), 21), tavStatusOk);
    }
    for (Tav32f v : dst) EXPECT_EQ(v, mode == rounding_mode::up ? 1.41421366f : 1.41421354f) << std::hex << mode;
  }
}

TEST(ScaledMagnitude, As16s) { check_scaled_on_parts<&::tavsMagnitude_16s_Sfs>(scaled_magnitude<Tav16s>); }
TEST(ScaledMagnitude, As16sc) { check_scaled_on_pairs<&::tavsMagnitude_16sc_Sfs>(scaled_magnitude<Tav16s>); }
TEST(ScaledMagnitude, As32sc) { check_scaled_on_pairs<&::tavsMagnitude_32sc_Sfs>(scaled_magnitude<Tav32s>); }

template <auto* Export, class C, class T>
void check_pairs(TavStatus (*)(const C*, T*, int, int), const std::vector<C>& src, int s) {
  std::vector<T> dst(src.size());
  ASSERT_EQ(call<Export>(src.data(), dst.data(), int(src.size()), s), tavStatusOk);
  for (size_t i = 0; i < src.size(); ++i)
    ASSERT_EQ(dst[i], scaled_magnitude<T>(src[i].re, src[i].im, s))
        << "factor " << s << ": " << src[i].re << ", " << src[i].im;
}

// Multiples of (3, 4), (5, 12) and single parts have whole magnitudes: the ties of the factors above 0.
template <class C> std::vector<C> whole_magnitudes() {
  using T = decltype(C::re);
  source_of_data data(33);
  std::vector<C> v;
  for (int64_t k = 1; k <= std::numeric_limits<T>::max() / 4; k += k < 300 ? 1 : 1 + int64_t(data.bits()) % (k / 50)) {
    v.push_back({T(3 * (k / 3)), T(-4 * (k / 3))});
    v.push_back({T(-12 * (k / 12)), T(5 * (k / 12))});
    v.push_back({T(4 * k), 0}), v.push_back({0, T(-3 * k)}), v.push_back({1, T(2 * k)});
  }
  return v;
}

TEST(ScaledMagnitude, Ties) {
  for (int s : {1, 2, 3, 5, 8, 12, 14, 15, 16})
    check_pairs<&::tavsMagnitude_16sc_Sfs>(&::tavsMagnitude_16sc_Sfs, whole_magnitudes<Tav16sc>(), s);
  for (int s : {1, 2, 4, 7, 15, 24, 30, 31, 32})
    check_pairs<&::tavsMagnitude_32sc_Sfs>(&::tavsMagnitude_32sc_Sfs, whole_magnitudes<Tav32sc>(), s);
}

TEST(ScaledMagnitude, InEveryRoundingMode) {
  source_of_data data(35);
  const auto     words = pairs_of_words();
  const auto     longs = many_of_any_magnitude<Tav32sc>(data, 3000);
  for (unsigned mode : rounding_modes)
    for (int s : {0, 3, -2}) {
      std::vector<Tav16s> word(words.size()), want_word(words.size());
      std::vector<Tav32s> of_long(longs.size()), want_long(longs.size());
      call<&::tavsMagnitude_16sc_Sfs>(words.data(), want_word.data(), int(words.size()), s);
      call<&::tavsMagnitude_32sc_Sfs>(longs.data(), want_long.data(), int(longs.size()), s);
      {
        const rounding_mode set(mode);
        call<&::tavsMagnitude_16sc_Sfs>(words.data(), word.data(), int(words.size()), s);
        call<&::tavsMagnitude_32sc_Sfs>(longs.data(), of_long.data(), int(longs.size()), s);
      }
      EXPECT_EQ(word, want_word) << std::hex << mode;
      EXPECT_EQ(of_long, want_long) << std::hex << mode;
    }
}

TEST(ScaledMagnitude, Corners) {
  const Tav16sc word[]       = {{-32768, -32768}, {1, 0}, {0, 0}};
  const Tav32sc long_words[] = {{INT_MIN, INT_MIN}, {0, -1}, {0, 0}};
  const auto    of_word      = [&](int s) {
    std::vector<Tav16s> dst(3);
    EXPECT_EQ(call<&::tavsMagnitude_16sc_Sfs>(word, dst.data(), 3, s), tavStatusOk);
    return dst;
  };
  const auto of_long = [&](int s) {
    std::vector<Tav32s> dst(3);
    EXPECT_EQ(call<&::tavsMagnitude_32sc_Sfs>(long_words, dst.data(), 3, s), tavStatusOk);
    return dst;
  };
  EXPECT_EQ(of_word(0), (std::vector<Tav16s>{32767, 1, 0}));
  EXPECT_EQ(of_word(1), (std::vector<Tav16s>{23170, 0, 0}));
  EXPECT_EQ(of_word(16), (std::vector<Tav16s>{1, 0, 0}));
  EXPECT_EQ(of_word(17), (std::vector<Tav16s>{0, 0, 0}));
  EXPECT_EQ(of_word(-14), (std::vector<Tav16s>{32767, 16384, 0}));
  EXPECT_EQ(of_word(INT_MIN), (std::vector<Tav16s>{32767, 32767, 0}));
  EXPECT_EQ(of_long(0), (std::vector<Tav32s>{INT_MAX, 1, 0}));
  EXPECT_EQ(of_long(1), (std::vector<Tav32s>{1518500250, 0, 0}));
  EXPECT_EQ(of_long(32), (std::vector<Tav32s>{1, 0, 0}));
  EXPECT_EQ(of_long(33), (std::vector<Tav32s>{0, 0, 0}));
  EXPECT_EQ(of_long(-30), (std::vector<Tav32s>{INT_MAX, 1 << 30, 0}));
  EXPECT_EQ(of_long(INT_MIN), (std::vector<Tav32s>{INT_MAX, INT_MAX, 0}));
}

}  // namespace

#define CASE(type) TAV_FAULTS(Magnitude_##type, pointers_then_length)
CASE(32f)
CASE(64f)
CASE(32fc) CASE(64fc) CASE(16s32f) CASE(16sc32f)
#undef CASE
#define CASE(type) TAV_FAULTS(Magnitude_##type##_Sfs, pointers_then_length_scaled)
    CASE(16s) CASE(16sc) CASE(32sc)
#undef CASE
