// Cascades without a state: the one-sample calls in exact integers, the blocks against the calls that keep a state.
#include "filter/biquad_forms.h"

#include <fenv.h>

#include "harness/layouts.h"
#include "harness/tavcore_fake.h"

using namespace test;

namespace {

using taps_16s = std::vector<Tav16s>;

taps_16s drawn_taps(int sections, source_of_data& data, int exponents) {
  taps_16s taps = data.values<Tav16s>(size_t(6 * sections));
  for (int s = 0; s < sections; ++s) taps[size_t(6 * s + 3)] = Tav16s(data.below(exponents));
  return taps;
}

Tav32s wrap(int64_t v) { return Tav32s(uint32_t(uint64_t(v))); }

// One sample, in 64 bits that are cut to 32 wherever a result is kept.
Tav16s defined_one(Tav16s val, const taps_16s& taps, std::vector<Tav32s>& dly) {
  int64_t x = val;
  for (size_t s = 0; s < taps.size() / 6; ++s) {
    const Tav16s* t   = &taps[6 * s];
    const int     a   = t[3] & 31;
    const Tav32s  v   = wrap(t[0] * x + dly[2 * s]);
    const int64_t odd = (v >> a) & 1, half = a == 0 ? int64_t(1) << 31 : int64_t(1) << (a - 1);
    const int64_t y = wrap(v + odd + half - 1) >> a;
    dly[2 * s]      = wrap(t[1] * x - t[4] * y + dly[2 * s + 1]);
    dly[2 * s + 1]  = wrap(t[2] * x - t[5] * y);
    x               = y;
  }
  return Tav16s(std::max<int64_t>(std::min<int64_t>(x, 32767), -32768));
}

TEST(BiquadDirectOne, IsExact) {
  source_of_data data(1);
  for (int sections = 1; sections <= 6; ++sections)
    for (int exponents : {1, 4, 16, 33, 32768})
      for (int round = 0; round < 40; ++round) {
        const auto taps = drawn_taps(sections, data, exponents);
        auto       want = data.values<Tav32s>(size_t(2 * sections)), dly = want, dly_in_place = want;
        for (int i = 0; i < 12; ++i) {
          const Tav16s x = data.value<Tav16s>(), y = defined_one(x, taps, want);
          Tav16s       got = 0, both = x;
          ASSERT_EQ(call<&tavsIIROne_BiQuadDirect_16s>(x, &got, taps.data(), sections, dly.data()), tavStatusOk);
          ASSERT_EQ(call<&tavsIIROne_BiQuadDirect_16s_I>(&both, taps.data(), sections, dly_in_place.data()),
                    tavStatusOk);
          ASSERT_EQ(got, y);
          ASSERT_EQ(both, y);
          ASSERT_EQ(dly, want);
          ASSERT_EQ(dly_in_place, want);
        }
      }
}

// Without a shift what rounds is 2^31 - 1.
TEST(BiquadDirectOne, NoShift) {
  const taps_16s taps{1, 0, 0, 0, 0, 0};
  for (auto [v, want] : {std::pair<Tav16s, Tav16s>{0, 32767}, {1, -32768}, {-1, 32767}, {2, -32768}}) {
    Tav32s dly[2] = {};
    Tav16s y      = 0;
    ASSERT_EQ(call<&tavsIIROne_BiQuadDirect_16s>(v, &y, taps.data(), 1, dly), tavStatusOk);
    EXPECT_EQ(y, want) << v;
  }
}

TEST(BiquadDirectOne, NegativeExponentEndsTheCall) {
  taps_16s            taps{2, 3, 4, 1, 5, 6, 2, 3, 4, -1, 5, 6, 2, 3, 4, 1, 5, 6};
  std::vector<Tav32s> dly{1, 2, 3, 4, 5, 6}, want = dly;
  Tav16s              y = 99;
  EXPECT_EQ(call<&tavsIIROne_BiQuadDirect_16s>(7, &y, taps.data(), 3, dly.data()), tavStatusBadTapScale);
  defined_one(7, taps_16s(taps.begin(), taps.begin() + 6), want);
  EXPECT_EQ(dly, want) << "the first section has run, the others have not";
  EXPECT_EQ(y, 99);
  EXPECT_EQ(call<&tavsIIROne_BiQuadDirect_16s_I>(&y, taps.data(), 3, dly.data()), tavStatusBadTapScale);
  EXPECT_EQ(y, 99);
}

// Taps that make a stable filter, with the exponent in the place of a0.
taps_16s stable_direct(int sections, source_of_data& data) {
  taps_16s taps;
  for (int s = 0; s < sections; ++s) {
    const int    exponent = 6 + data.below(8);
    const double unit = double(1 << exponent), r = 0.5 + 0.4 * data.below(1000) / 1000,
                 w = 3.1 * data.below(1000) / 1000;
    for (double v : {0.6 * unit, 0.4 * unit, -0.3 * unit, double(exponent), -2 * r * cos(w) * unit, r * r * unit})
      taps.push_back(Tav16s(v));
  }
  return taps;
}

// A block is one of a state with the taps times 2^-a0 and with a delay line that is scaled likewise.
void by_state(const taps_16s& taps, const std::vector<Tav16s>& x, std::vector<Tav16s>& y, std::vector<Tav32s>& dly) {
  std::vector<Tav32f> values, line;
  for (size_t i = 0; i < taps.size(); ++i)
    values.push_back(i % 6 == 3 ? 1 : Tav32f(ldexp(taps[i], -taps[i / 6 * 6 + 3])));
  for (size_t i = 0; i < dly.size(); ++i) line.push_back(Tav32f(ldexp(dly[i], -taps[i / 2 * 6 + 3])));
  const biquad_state<bq32f_16s> state(values, line.data());
  ASSERT_EQ(tavsIIR32f_16s_Sfs(x.data(), y.data(), int(x.size()), state.get(), 0), tavStatusOk);
  const auto last = state.delay(int(dly.size()));
  for (size_t i = 0; i < dly.size(); ++i) {
    const double v = ldexp(last[i], taps[i / 2 * 6 + 3]);
    dly[i]         = v >= 2147483647.0 ? INT32_MAX : v <= -2147483648.0 ? INT32_MIN : Tav32s(v);
  }
}

TEST(BiquadDirect, IsTheBlockOfAState) {
  source_of_data data(2);
  for (int sections : {1, 2, 3, 5})
    for (int len : {1, 2, 3, 4, 5, 8, 9, 12, 13, 20, 21, 100, 1024, 1029, 2500}) {
      const auto          taps = stable_direct(sections, data);
      const auto          x    = noise<bq32f_16s>(size_t(len), data);
      std::vector<Tav32s> dly(size_t(2 * sections));
      for (Tav32s& d : dly) d = Tav32s(data.bits()) >> 10;
      auto want_dly = dly, dly_in_place = dly;
      auto want = x, y = x, both = x;
      by_state(taps, x, want, want_dly);
      ASSERT_EQ(call<&tavsIIR_BiQuadDirect_16s>(x.data(), y.data(), len, taps.data(), sections, dly.data()),
                tavStatusOk);
      ASSERT_EQ(call<&tavsIIR_BiQuadDirect_16s_I>(both.data(), len, taps.data(), sections, dly_in_place.data()),
                tavStatusOk);
      ASSERT_EQ(first_difference(y, want), -1) << sections << " sections, " << len << " samples";
      ASSERT_EQ(first_difference(both, want), -1);
      ASSERT_EQ(dly, want_dly);
      ASSERT_EQ(dly_in_place, want_dly);
    }
}

// The first two outputs of a block by look-ahead are cut off: 37 / 10 would be 3.7, 59 / 16 is.
TEST(BiquadDirect, FirstTwoOutputs) {
  const taps_16s            taps{1, 0, 0, 4, 0, 0};
  const std::vector<Tav16s> x(10, 59), negative(10, -59), few(4, 59);
  std::vector<Tav16s>       y(10), z(4);
  Tav32s                    dly[2] = {};
  ASSERT_EQ(call<&tavsIIR_BiQuadDirect_16s>(x.data(), y.data(), 10, taps.data(), 1, dly), tavStatusOk);
  EXPECT_EQ(y, (std::vector<Tav16s>{3, 3, 4, 4, 4, 4, 4, 4, 4, 4}));
  ASSERT_EQ(call<&tavsIIR_BiQuadDirect_16s>(negative.data(), y.data(), 10, taps.data(), 1, dly), tavStatusOk);
  EXPECT_EQ(y, (std::vector<Tav16s>{-3, -3, -4, -4, -4, -4, -4, -4, -4, -4}));
  ASSERT_EQ(call<&tavsIIR_BiQuadDirect_16s>(few.data(), z.data(), 4, taps.data(), 1, dly), tavStatusOk);
  EXPECT_EQ(z, (std::vector<Tav16s>{4, 4, 4, 4}));
}

// Unlike a state, these may begin with a zero; exponents may be as large as they come; the line goes back cut off.
TEST(BiquadDirect, ZerosAndExponents) {
  const std::vector<Tav16s> x{100, 0, 0, 0, 0, 0};
  std::vector<Tav16s>       y(6);
  Tav32s                    dly[2] = {};
  const taps_16s            late{0, 8, 0, 3, 0, 0};
  ASSERT_EQ(call<&tavsIIR_BiQuadDirect_16s>(x.data(), y.data(), 6, late.data(), 1, dly), tavStatusOk);
  EXPECT_EQ(y, (std::vector<Tav16s>{0, 100, 0, 0, 0, 0}));
  for (Tav16s exponent : {100, 149, 200, 1000, 2000, 32767}) {
    const taps_16s tiny{32767, 32767, -32768, exponent, 0, 0};
    const Tav16s   one[1]  = {32767};
    Tav32s         line[2] = {INT32_MAX, INT32_MIN};
    ASSERT_EQ(call<&tavsIIR_BiQuadDirect_16s>(one, y.data(), 1, tiny.data(), 1, line), tavStatusOk);
    EXPECT_EQ(y[0], 0);
    if (exponent == 100) {  // 32767 * 32767 - 2^31, and what rounding to singles leaves; -32768 * 32767
      EXPECT_NEAR(line[0], 32767.0 * 32767 - 2147483648.0, 256);
      EXPECT_EQ(line[1], -32768 * 32767);
    }
    if (exponent >= 200) {
      EXPECT_TRUE(line[0] == 0 && line[1] == 0) << exponent;
    }
  }
  Tav32s         line[2] = {0, 0};
  const taps_16s up{1, 32767, 32767, 0, 0, 0}, negative{1, -32768, -32768, 0, 0, 0};
  const Tav16s   two[2] = {32767, 32767};
  ASSERT_EQ(call<&tavsIIR_BiQuadDirect_16s>(two, y.data(), 2, up.data(), 1, line), tavStatusOk);
  EXPECT_EQ(line[0], 2147352576);  // 2 * 32767^2 = 2147352578 in a single, saturated only past 2^31
  line[0] = INT32_MIN, line[1] = INT32_MIN;
  ASSERT_EQ(call<&tavsIIR_BiQuadDirect_16s>(two, y.data(), 1, negative.data(), 1, line), tavStatusOk);
  EXPECT_EQ(line[0], INT32_MIN);
  const taps_16s half{1, 1, 0, 1, 0, 1};
  const Tav16s   odd[1] = {3};
  line[0] = line[1] = 0;
  ASSERT_EQ(call<&tavsIIR_BiQuadDirect_16s>(odd, y.data(), 1, half.data(), 1, line), tavStatusOk);
  EXPECT_EQ(line[1], -1);  // of -1.5
}

TEST(BiquadDirect, RefusedMemoryAndBadExponents) {
  const std::vector<Tav16s> x{1, 2, 3};
  std::vector<Tav16s>       y{7, 8, 9}, kept = y;
  taps_16s                  taps{1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0};
  std::vector<Tav32s>       dly{1, 2, 3, 4}, kept_dly = dly;
  tavcore_fake_reset();
  tavcore_fake_refuse_after(0);
  taps[9] = -1;
  EXPECT_EQ(call<&tavsIIR_BiQuadDirect_16s>(x.data(), y.data(), 3, taps.data(), 2, dly.data()), tavStatusNoMemory);
  tavcore_fake_reset();
  EXPECT_EQ(call<&tavsIIR_BiQuadDirect_16s>(x.data(), y.data(), 3, taps.data(), 2, dly.data()), tavStatusBadTapScale);
  EXPECT_EQ(tavcore_fake_read().allocations, 1);
  EXPECT_EQ(tavcore_fake_read().live, 0);
  EXPECT_EQ(call<&tavsIIR_BiQuadDirect_16s_I>(y.data(), 3, taps.data(), 2, dly.data()), tavStatusBadTapScale);
  EXPECT_EQ(y, kept);
  EXPECT_EQ(dly, kept_dly);
  taps[9] = 0;
  ASSERT_EQ(call<&tavsIIR_BiQuadDirect_16s>(x.data(), y.data(), 3, taps.data(), 2, dly.data()), tavStatusOk);
  EXPECT_EQ(tavcore_fake_read().live, 0);
  EXPECT_EQ(tavcore_fake_read().damaged, 0);
  EXPECT_EQ(call<&tavsIIR_BiQuadDirect_16s>(x.data(), y.data(), 3, taps.data(), INT32_MAX, dly.data()),
            tavStatusNoMemory);
}

// At any addresses and in the caller's rounding modes.
TEST(BiquadDirect, LayoutsAndRoundingModes) {
  source_of_data data(11);
  const auto     taps = stable_direct(2, data);
  arena          a(4096), b(4096), c(4096), d(4096);
  for (int len : {1, 2, 7, 8, 9, 30}) {
    const auto                x = noise<bq32f_16s>(size_t(len), data);
    const std::vector<Tav32s> line{1000, -20000, 300000, -4};
    auto                      want      = x;
    auto                      want_line = line;
    ASSERT_EQ(tavsIIR_BiQuadDirect_16s(x.data(), want.data(), len, taps.data(), 2, want_line.data()), tavStatusOk);
    auto         one_line = line;
    const Tav16s want_one = defined_one(x[0], taps, one_line);
    for (const layout& l : all_layouts())
      for (int mode : {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO}) {
        array<Tav16s> src(a, x.size(), l.src), dst(b, x.size(), l.dst), tap(c, taps.size(), l.src);
        array<Tav32s> dly(d, line.size(), l.dst);
        src.assign(x), tap.assign(taps), dly.assign(line);
        fesetround(mode);
        const TavStatus block = call<&tavsIIR_BiQuadDirect_16s>(src.data(), dst.data(), len, tap.data(), 2, dly.data());
        fesetround(FE_TONEAREST);
        ASSERT_EQ(block, tavStatusOk);
        ASSERT_EQ(first_difference(dst.values(), want), -1) << l << ", mode " << mode;
        ASSERT_EQ(dly.values(), want_line) << l << ", mode " << mode;
        dly.assign(line);
        ASSERT_EQ(call<&tavsIIROne_BiQuadDirect_16s>(x[0], dst.data(), tap.data(), 2, dly.data()), tavStatusOk);
        ASSERT_EQ(dst.values()[0], want_one);
        ASSERT_EQ(dly.values(), one_line);
        ASSERT_TRUE(src.guards_intact() && dst.guards_intact() && tap.guards_intact() && dly.guards_intact()) << l;
      }
  }
}

}  // namespace
