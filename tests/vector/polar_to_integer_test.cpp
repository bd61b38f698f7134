// tavsPolarToCart of integers: 16 bits exactly, 32 bits to the precision of doubles.
#include "harness/faults.h"
#include "harness/forms.h"
#include "harness/scaled.h"
#include "oracle/polar.h"

using namespace test;

namespace {

// Phases out of all, beside magnitudes drawn, and what they stand for.
struct words {
  int                            fraction;
  std::vector<Tav16s>            magn, phase;
  std::vector<oracle::cartesian> value;

  explicit words(int fraction_bits, int step = 1) : fraction(fraction_bits) {
    source_of_data data(uint32_t(fraction + 1000));
    for (int p = -32768; p < 32768; p += step) phase.push_back(Tav16s(p));
    magn = data.values<Tav16s>(phase.size());
    for (size_t i = 0; i < magn.size(); ++i) value.push_back(oracle::from_polar(magn[i], ldexpl(phase[i], -fraction)));
  }
  int size() const { return int(phase.size()); }

  void expect(const std::vector<Tav16sc>& got, int s = 0) const {
    for (size_t i = 0; i < got.size(); ++i) {
      const Tav16sc want{oracle::nearest<Tav16s>(ldexpl(value[i].re, -s)),
                         oracle::nearest<Tav16s>(ldexpl(value[i].im, -s))};
      ASSERT_TRUE(same(got[i], want)) << "magnitude " << magn[i] << ", phase " << phase[i] << ", fraction " << fraction
                                      << ", factor " << s;
    }
  }
};

TEST(PolarToCartInteger, As16sc) {
  const auto check = [](const words& w) {
    std::vector<Tav16sc> got(w.phase.size());
    ASSERT_EQ(call<&::tavsPolarToCart_16sc>(w.magn.data(), w.phase.data(), w.fraction, got.data(), w.size()),
              tavStatusOk);
    w.expect(got);
  };
  for (int f = 0; f < 16; ++f) ASSERT_NO_FATAL_FAILURE(check(words(f, 1 + f % 3)));
  // Negative counts make angles of any size.
  for (int f : {-1, -7, -8, -9, -20, -64, -111, -112, -113, -127, -128, -300, -899, -900})
    ASSERT_NO_FATAL_FAILURE(check(words(f, 17)));
}

TEST(PolarToCartInteger, CountsBelowTheLowestAreTheLowest) {
  const words          w(-900, 17);
  std::vector<Tav16sc> got(w.phase.size());
  for (int f : {-901, -1100, -100000, std::numeric_limits<int>::min()}) {
    EXPECT_EQ(call<&::tavsPolarToCart_16sc>(w.magn.data(), w.phase.data(), f, got.data(), w.size()), tavStatusOk);
    ASSERT_NO_FATAL_FAILURE(w.expect(got)) << f;
  }
}

TEST(PolarToCartInteger, As16scScaled) {
  for (int f : {0, 13, 15, -130}) {
    const words w(f, 7);
    for (int s : scales_between(-22, 18)) {
      std::vector<Tav16sc> got(w.phase.size());
      ASSERT_EQ(call<&::tavsPolarToCart_16sc_Sfs>(w.magn.data(), w.phase.data(), f, got.data(), w.size(), s),
                tavStatusOk);
      // Farther than 1000 a number is zero or limited as well.
      ASSERT_NO_FATAL_FAILURE(w.expect(got, s < -1000 ? -1000 : s > 1000 ? 1000 : s));
    }
  }
}

TEST(PolarToCartInteger, Limits) {
  const Tav16s magn[] = {-32768, 32767, -32768, 32767, 100, 0}, phase[] = {0, 0, 25736, 25736, 0, 5};
  Tav16sc      got[6];
  ASSERT_EQ(call<&::tavsPolarToCart_16sc>(magn, phase, 13, got, 6), tavStatusOk);  // 25736 is nearly pi
  EXPECT_TRUE(same(got[0], {-32768, 0}) && same(got[1], {32767, 0}) && same(got[5], {0, 0}));
  EXPECT_EQ(got[2].re, 32767);
  EXPECT_EQ(got[3].re, -32767);
  const Tav32s large = INT32_MIN, none = 0;
  Tav32sc      wide;
  ASSERT_EQ(call<&::tavsPolarToCart_32sc>(&large, &none, 31, &wide, 1), tavStatusOk);
  EXPECT_TRUE(same(wide, {INT32_MIN, 0}));
}

TEST(PolarToCartInteger, As32sc) {
  source_of_data data(72);
  for (int f : {0, 1, 5, 20, 29, 30, 31, -1, -3, -40, -300, -900}) {
    const auto           magn = data.values<Tav32s>(30000), phase = data.values<Tav32s>(30000);
    std::vector<Tav32sc> got(magn.size());
    ASSERT_EQ(call<&::tavsPolarToCart_32sc>(magn.data(), phase.data(), f, got.data(), int(got.size())), tavStatusOk);
    for (size_t i = 0; i < got.size(); ++i) {
      const auto v = oracle::from_polar(magn[i], ldexpl(phase[i], -f));
      ASSERT_LE(fabsl(got[i].re - oracle::limited<Tav32s>(v.re)), 0.5L + 0x1p-19L)
          << magn[i] << " " << phase[i] << " " << f;
      ASSERT_LE(fabsl(got[i].im - oracle::limited<Tav32s>(v.im)), 0.5L + 0x1p-19L)
          << magn[i] << " " << phase[i] << " " << f;
    }
  }
}

template <auto* Export, class T, class C, class... Scale> void check_integer_layouts(int fraction, Scale... scale) {
  check_layouts<Export, C, T, T>(
      lengths_around({100}, 40),
      [&](C* dst, int len, const T* m, const T* p) { return call<Export>(m, p, fraction, dst, len, scale...); },
      [&](std::vector<C>& dst, const std::vector<T>& m, const std::vector<T>& p) {
        for (size_t i = 0; i < dst.size(); ++i) Export(&m[i], &p[i], fraction, &dst[i], 1, scale...);
        return tavStatusOk;
      });
}

TEST(PolarToCartInteger, Layouts) {
  check_integer_layouts<&::tavsPolarToCart_16sc, Tav16s, Tav16sc>(13);
  check_integer_layouts<&::tavsPolarToCart_16sc_Sfs, Tav16s, Tav16sc>(13, 2);
  check_integer_layouts<&::tavsPolarToCart_32sc, Tav32s, Tav32sc>(29);
  check_integer_layouts<&::tavsPolarToCart_32sc, Tav32s, Tav32sc>(-1);
}

TEST(PolarToCartInteger, InAnyModeOfTheCaller) {
  source_of_data       data(73);
  const auto           magn = data.values<Tav32s>(1000), phase = data.values<Tav32s>(1000);
  const words          w(12, 3);
  std::vector<Tav32sc> want(1000), got(1000);
  std::vector<Tav16sc> got_words(w.phase.size());
  call<&::tavsPolarToCart_32sc>(magn.data(), phase.data(), 29, want.data(), 1000);
  for (unsigned mode : rounding_modes) {
    {
      const rounding_mode set(mode);
      call<&::tavsPolarToCart_32sc>(magn.data(), phase.data(), 29, got.data(), 1000);
      call<&::tavsPolarToCart_16sc>(w.magn.data(), w.phase.data(), 12, got_words.data(), w.size());
    }
    EXPECT_EQ(first_difference(got, want), -1) << mode;
    ASSERT_NO_FATAL_FAILURE(w.expect(got_words));
  }
}

// The count of bits is the last to be looked at.
template <int Limit> void polar_faults(const tested& f) {
  faults(f)
      .null_pointers()
      .below_one(4)
      .value(2, Limit, tavStatusBadSize)
      .value(2, std::numeric_limits<int>::max(), tavStatusBadSize)
      .expect();
}

TEST(PolarToCartInteger, MostBitsOfFraction) {
  const Tav32s magn = 100, phase = 0;
  const Tav16s magn_word = 100, phase_word = 0;
  Tav32sc      wide;
  Tav16sc      word;
  EXPECT_EQ(call<&::tavsPolarToCart_32sc>(&magn, &phase, 31, &wide, 1), tavStatusOk);
  EXPECT_EQ(call<&::tavsPolarToCart_16sc>(&magn_word, &phase_word, 15, &word, 1), tavStatusOk);
  EXPECT_TRUE(same(wide, {100, 0}) && same(word, {100, 0}));
}

}  // namespace

TAV_FAULTS(PolarToCart_16sc, polar_faults<16>)
TAV_FAULTS(PolarToCart_16sc_Sfs, polar_faults<16>)
TAV_FAULTS(PolarToCart_32sc, polar_faults<32>)
