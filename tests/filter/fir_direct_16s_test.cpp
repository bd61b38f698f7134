// The Direct FIR calls with taps of 16 bits: two kinds of delay line.
#include <limits.h>

#include "harness/arena.h"
#include "harness/builds.h"
#include "harness/data.h"
#include "harness/tavcore_fake.h"
#include "oracle/fir_direct.h"

using namespace test;

namespace {

std::vector<Tav16s> words(source_of_data& data, size_t n) { return data.values<Tav16s>(n); }

int some_scale(source_of_data& data) { return data.below(4) ? data.below(6) : data.below(80) - 40; }

// The whole signal from the oldest sample on, which the newest-first delay line begins.
struct history {
  std::vector<Tav16s> signal;

  Tav16s add(const std::vector<Tav16s>& h, Tav16s val, int scale) {
    signal.push_back(val);
    return oracle::word_of(oracle::wrapped_sum(h, signal, signal.size() - 1).re, -15 - int64_t(scale));
  }
};

TEST(FirDirect16s, Block) {
  source_of_data data(1);
  for (int n = 1; n <= 70; ++n)
    for (int index : {0, n / 2, n - 1}) {
      const auto          h   = words(data, size_t(n));
      std::vector<Tav16s> dly = words(data, size_t(index + n));
      history             past{{dly.rbegin(), dly.rend() - index}};
      for (int len : {1, 2, 7, 8, 100, 700}) {
        const int           scale = some_scale(data);
        const auto          x     = words(data, size_t(len));
        std::vector<Tav16s> y(x.size()), expected;
        for (Tav16s v : x) expected.push_back(past.add(h, v, scale));
        const auto behind = std::vector<Tav16s>(dly.begin() + n, dly.end());
        if (len % 2 != 0) {
          ASSERT_EQ(call<&::tavsFIR_Direct_16s_Sfs>(x.data(), y.data(), len, h.data(), n, dly.data(), &index, scale),
                    tavStatusOk);
        } else {
          y = x;
          ASSERT_EQ(call<&::tavsFIR_Direct_16s_ISfs>(y.data(), len, h.data(), n, dly.data(), &index, scale),
                    tavStatusOk);
        }
        ASSERT_EQ(first_difference(y, expected), -1) << n << " taps, length " << len;
        ASSERT_EQ(index, 0);
        ASSERT_TRUE(std::equal(dly.begin(), dly.begin() + n, past.signal.rbegin())) << "the newest first";
        ASSERT_TRUE(std::equal(behind.begin(), behind.end(), dly.begin() + n)) << "more was written";
      }
    }
}

TEST(FirDirect16s, One) {
  source_of_data data(2);
  for (int n = 1; n <= 40; ++n) {
    const auto           h = words(data, size_t(n));
    oracle::ring<Tav16s> ring{words(data, size_t(n) * 2), data.below(n)};
    std::vector<Tav16s>  dly   = ring.places;
    int                  index = ring.index;
    for (int i = 0; i < 3 * n + 5; ++i) {
      const Tav16s val    = data.value<Tav16s>();
      const int    scale  = some_scale(data);
      const auto   window = ring.window_after(val);
      const auto   sum    = oracle::wrapped_sum(h, window, window.size() - 1);
      Tav16s       y      = val;
      if (i % 2 == 0)
        ASSERT_EQ(call<&::tavsFIROne_Direct_16s_Sfs>(val, &y, h.data(), n, dly.data(), &index, scale), tavStatusOk);
      else
        ASSERT_EQ(call<&::tavsFIROne_Direct_16s_ISfs>(&y, h.data(), n, dly.data(), &index, scale), tavStatusOk);
      ASSERT_EQ(y, oracle::word_of(sum.re, -15 - int64_t(scale)));
      ASSERT_EQ(dly, ring.places);
      ASSERT_EQ(index, ring.index);
    }
  }
}

TEST(FirDirect16s, ExtremeFactors) {
  for (int scale : {INT_MIN, INT_MIN + 15, INT_MIN + 16, INT_MAX, -15, -16, -46, -47, 15, 16, 17}) {
    const Tav16s h = 32767;
    Tav16s       x = -12345, y = 0, z = 0, dly[2] = {};
    int          index    = 0;
    const Tav16s expected = oracle::word_of(-12345 * 32767, -15 - int64_t(scale));
    ASSERT_EQ(call<&::tavsFIR_Direct_16s_Sfs>(&x, &y, 1, &h, 1, dly, &index, scale), tavStatusOk);
    ASSERT_EQ(call<&::tavsFIROne_Direct_16s_Sfs>(x, &z, &h, 1, dly, &index, scale), tavStatusOk);
    EXPECT_EQ(y, expected) << scale;
    EXPECT_EQ(z, expected) << scale;
  }
}

// The largest products, which a pair of them adds to 2^31.
TEST(FirDirect16s, SumsWrap) {
  const std::vector<Tav16s> h(6, -32768), x(40, -32768);
  std::vector<Tav16s>       y(40), dly(12), expected;
  history                   past;
  int                       index = 0;
  for (Tav16s v : x) expected.push_back(past.add(h, v, 2));
  ASSERT_EQ(call<&::tavsFIR_Direct_16s_Sfs>(x.data(), y.data(), 40, h.data(), 6, dly.data(), &index, 2), tavStatusOk);
  EXPECT_EQ(y, expected);
}

TEST(FirDirect16s, IndexOutOfRange) {
  const Tav16s h[3] = {1, 2, 3};
  for (int bad : {-1, 3, 4, INT_MIN, INT_MAX}) {
    Tav16s x = 5, y = 9, dly[6] = {};
    int    index = bad;
    EXPECT_EQ(call<&::tavsFIR_Direct_16s_Sfs>(&x, &y, 1, h, 3, dly, &index, 0), tavStatusBadDlyIndex);
    EXPECT_EQ(call<&::tavsFIR_Direct_16s_ISfs>(&y, 1, h, 3, dly, &index, 0), tavStatusBadDlyIndex);
    EXPECT_EQ(call<&::tavsFIROne_Direct_16s_Sfs>(x, &y, h, 3, dly, &index, 0), tavStatusBadDlyIndex);
    EXPECT_EQ(call<&::tavsFIROne_Direct_16s_ISfs>(&y, h, 3, dly, &index, 0), tavStatusBadDlyIndex);
    EXPECT_EQ(index, bad);
    EXPECT_EQ(y, 9);
  }
}

TEST(FirDirect16s, NoMemory) {
  const Tav16s h[3] = {1, 2, 3};
  Tav16s       x = 5, y = 9, dly[3] = {7, 8, 9};
  int          index = 0;
  tavcore_fake_reset();
  tavcore_fake_refuse_after(0);
  EXPECT_EQ(call<&::tavsFIR_Direct_16s_Sfs>(&x, &y, 1, h, 3, dly, &index, 0), tavStatusNoMemory);
  EXPECT_EQ(call<&::tavsFIR_Direct_16s_ISfs>(&y, 1, h, 3, dly, &index, 0), tavStatusNoMemory);
  EXPECT_EQ(y, 9);
  EXPECT_EQ(dly[0], 7);
  tavcore_fake_reset();
  EXPECT_EQ(call<&::tavsFIR_Direct_16s_Sfs>(&x, &y, 1, h, 3, dly, &index, 0), tavStatusOk);
  EXPECT_EQ(tavcore_fake_read().live, 0);
  EXPECT_EQ(tavcore_fake_read().damaged, 0);
}

}  // namespace
