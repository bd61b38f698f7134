// Filters of arbitrary order without a state: one sample exactly, in integers; blocks within the bound of singles, with
// the rounding of results and of the delay line.
#include <gtest/gtest.h>

#include "filter/iir_calls.h"
#include "harness/forms.h"
#include "harness/layouts.h"

using namespace test;

namespace {

// Taps with a[0] = shift and the sum of the other a below 2^shift, so that nothing grows.
std::vector<Tav16s> quiet_taps(size_t order, int shift, source_of_data& data) {
  std::vector<Tav16s> taps(2 * order + 2);
  const int           limit = std::min(32767, int((1 << std::min(shift, 20)) / int(order)));
  for (size_t k = 0; k < taps.size(); ++k) taps[k] = Tav16s(data.below(limit + 1) - limit / 2);
  taps[order + 1] = Tav16s(shift);
  return taps;
}

template <bool InPlace> Tav16s one(Tav16s x, const std::vector<Tav16s>& taps, std::vector<Tav32s>& delay) {
  Tav16s    y     = InPlace ? x : Tav16s(0x5555);
  const int order = int(delay.size());
  if constexpr (InPlace)
    EXPECT_EQ(call<&::tavsIIROne_Direct_16s_I>(&y, taps.data(), order, delay.data()), tavStatusOk);
  else
    EXPECT_EQ(call<&::tavsIIROne_Direct_16s>(x, &y, taps.data(), order, delay.data()), tavStatusOk);
  return y;
}

template <bool InPlace> void check_one() {
  source_of_data data(1);
  for (size_t order : {1, 2, 3, 4, 5, 8, 9, 17})
    for (int shift : {0, 1, 2, 7, 14, 15, 16, 30, 31, 32, 33, 40, 64, 32767})
      for (bool quiet : {true, false}) {
        std::vector<Tav16s> taps  = quiet ? quiet_taps(order, shift, data) : data.values<Tav16s>(2 * order + 2);
        taps[order + 1]           = Tav16s(shift);
        std::vector<Tav32s> delay = quiet ? std::vector<Tav32s>(order) : data.values<Tav32s>(order);
        oracle::integer_iir filter(taps, delay);
        for (int i = 0; i < 100; ++i) {
          const Tav16s x = data.value<Tav16s>();
          ASSERT_EQ(one<InPlace>(x, taps, delay), filter.next(x)) << "order " << order << ", exponent " << shift;
          ASSERT_EQ(delay, filter.delay()) << "order " << order << ", exponent " << shift;
        }
      }
}
TEST(IirOneDirect, EqualsTheIntegerFilter) { check_one<false>(); }
TEST(IirOneDirect, InPlace) { check_one<true>(); }

// Without a shift the rounding term is 2^31 - 1, and the sum wraps.
TEST(IirOneDirect, ExponentZero) {
  const std::vector<Tav16s> taps{1, 0, 0, 0};
  for (auto [v, y] : {std::pair<Tav32s, Tav16s>{0, 32767}, {1, -32768}, {-1, 32767}, {2, -32768}}) {
    std::vector<Tav32s> delay{v};
    EXPECT_EQ(one<false>(0, taps, delay), y) << v;
  }
}

TEST(IirOneDirect, TiesToEven) {
  const std::vector<Tav16s> taps{1, 0, 2, 0};
  for (auto [x, y] : {std::pair<Tav16s, Tav16s>{1, 0}, {2, 0}, {3, 1}, {6, 2}, {10, 2}, {-2, 0}, {-6, -2}, {-3, -1}}) {
    std::vector<Tav32s> delay{0};
    EXPECT_EQ(one<false>(x, taps, delay), y) << x;
  }
}

enum class way { block, in_place };

TavStatus filter(way how, const Tav16s* src, Tav16s* dst, int len, const std::vector<Tav16s>& taps,
                 std::vector<Tav32s>& delay) {
  const int order = int(delay.size());
  if (how == way::block) return call<&::tavsIIR_Direct_16s>(src, dst, len, taps.data(), order, delay.data());
  memmove(dst, src, size_t(len) * sizeof *dst);
  return call<&::tavsIIR_Direct_16s_I>(dst, len, taps.data(), order, delay.data());
}

// Taps and delay line times 2^-a[0], 1 for a[0].
oracle::iir oracle_for(const std::vector<Tav16s>& taps, const std::vector<Tav32s>& delay) {
  const size_t order = delay.size();
  const int    shift = taps[order + 1];
  auto         t = wide(taps), d = wide(delay);
  for (auto& v : t) v = ldexpl(v.real(), -shift);
  for (auto& v : d) v = ldexpl(v.real(), -shift);
  t[order + 1] = 1;
  oracle::iir f(t, std::numeric_limits<float>::epsilon());
  f.set_delay(d);
  return f;
}

Tav32s rounded_away(long double v) {
  const long double r = roundl(v);
  return r >= 2147483647.0L ? INT32_MAX : r <= -2147483648.0L ? INT32_MIN : Tav32s(r);
}

TEST(IirDirect, EqualsTheDefinition) {
  source_of_data data(2);
  for (size_t order : {1, 2, 3, 4, 5, 6, 12})
    for (int shift : {1, 5, 12, 15, 20})
      for (int len : {1, 4 * int(order), 4 * int(order) + 1, 100, 1100})
        for (way how : {way::block, way::in_place}) {
          const auto taps  = quiet_taps(order, shift, data);
          auto       delay = std::vector<Tav32s>(order);
          for (auto& d : delay) d = data.value<Tav32s>() >> (20 - std::min(shift, 20) + 4);
          const auto          src = data.values<Tav16s>(size_t(len));
          std::vector<Tav16s> dst(src.size());
          oracle::iir         f = oracle_for(taps, delay);
          ASSERT_EQ(filter(how, src.data(), dst.data(), len, taps, delay), tavStatusOk);
          for (size_t i = 0; i < src.size(); ++i)
            ASSERT_TRUE(within(dst[i], f.next(src[i])))
                << "order " << order << ", exponent " << shift << ", sample " << i;
          for (size_t i = 0; i < order; ++i) {
            const auto        d  = f.delay(i);
            const long double lo = ldexpl(d.value.real() - d.error, shift),
                              hi = ldexpl(d.value.real() + d.error, shift);
            ASSERT_TRUE(rounded_away(lo) <= delay[i] && delay[i] <= rounded_away(hi))
                << "order " << order << ", exponent " << shift << ", entry " << i << " of the delay line";
          }
        }
}

TEST(IirDirect, AtAnyAddress) {
  source_of_data data(3);
  const auto     taps  = quiet_taps(3, 12, data);
  const auto     block = [&](const Tav16s* src, Tav16s* dst, int len) {
    std::vector<Tav32s> delay(3, 12345);
    return filter(way::block, src, dst, len, taps, delay);
  };
  check_layouts<&::tavsIIR_Direct_16s, Tav16s, Tav16s>(
      lengths_around({1024, 1040}, 40), [&](Tav16s* dst, int len, const Tav16s* src) { return block(src, dst, len); },
      [&](std::vector<Tav16s>& dst, const std::vector<Tav16s>& src) {
        return block(src.data(), dst.data(), int(src.size()));
      });
  check_layouts<&::tavsIIR_Direct_16s_I, Tav16s>(
      lengths_around({1024, 1040}, 40),
      [&](Tav16s* dst, int len) {
        std::vector<Tav32s> delay(3, 12345);
        return call<&::tavsIIR_Direct_16s_I>(dst, len, taps.data(), 3, delay.data());
      },
      [&](std::vector<Tav16s>& dst) {
        const auto src = dst;
        return block(src.data(), dst.data(), int(src.size()));
      });
}

// Results go to the even neighbour of a tie, the delay line away from 0.
TEST(IirDirect, Ties) {
  for (auto [x, y] : {std::pair<Tav16s, Tav16s>{1, 0}, {3, 2}, {5, 2}, {7, 4}, {-1, 0}, {-3, -2}, {-5, -2}}) {
    std::vector<Tav32s> delay{0};
    Tav16s              out = 0;
    ASSERT_EQ(filter(way::block, &x, &out, 1, {1, 0, 1, 0}, delay), tavStatusOk);
    EXPECT_EQ(out, y) << x;
  }
  // With exponent 1: d = (b x - a y) / 2 in values, y = x * b[0] / 2; the integer is 2 d.
  for (auto [x, d] : {std::pair<Tav16s, Tav32s>{1, 2}, {3, 5}, {-1, -2}, {-3, -5}, {2, 3}}) {
    std::vector<Tav32s> delay{0};
    Tav16s              out = 0;
    ASSERT_EQ(filter(way::block, &x, &out, 1, {1, 1, 1, -1}, delay), tavStatusOk);  // 2d = x + x/2
    EXPECT_EQ(delay[0], d) << x;
  }
}

TEST(IirDirect, DelayLineSaturates) {
  for (auto [b, d] : {std::pair<Tav16s, Tav32s>{32767, INT32_MAX}, {-32768, INT32_MIN}}) {
    const std::vector<Tav16s> src(1, 32767);
    std::vector<Tav16s>       dst(1);
    std::vector<Tav32s>       delay{d, d};
    ASSERT_EQ(filter(way::block, src.data(), dst.data(), 1, {0, b, b, 0, 0, 0}, delay), tavStatusOk);
    EXPECT_EQ(delay[0], d);
  }
}

// Exponents at which taps and delay line leave single precision.
TEST(IirDirect, LargeExponents) {
  for (int shift : {31, 40, 126, 127, 140, 149, 150, 164, 165, 166, 200, 999, 1000, 1001, 2000, 32767}) {
    const std::vector<Tav16s> taps{32767, 1, 0, Tav16s(shift), 0, 0};
    const std::vector<Tav16s> src(20, 1000);
    std::vector<Tav16s>       dst(20);
    std::vector<Tav32s>       delay{INT32_MAX, INT32_MIN};
    oracle::iir               f = oracle_for(taps, delay);
    ASSERT_EQ(filter(way::block, src.data(), dst.data(), 20, taps, delay), tavStatusOk);
    for (size_t i = 0; i < 20; ++i) ASSERT_TRUE(within(dst[i], f.next(src[i]))) << shift;
    const bool kept = shift < 127;  // a tap of 1 is a normal number then
    if (kept || shift > 165) {
      EXPECT_EQ(delay[0], kept ? 1000 : 0) << shift;
    }
    EXPECT_EQ(delay[1], 0) << shift;
  }
}

TEST(IirDirect, NoMemory) {
  const std::vector<Tav16s> taps{1, 0, 1, 0}, src(5, 100);
  std::vector<Tav16s>       dst(5, 7);
  std::vector<Tav32s>       delay{9};
  tavcore_fake_reset();
  tavcore_fake_refuse_after(0);
  EXPECT_EQ(filter(way::block, src.data(), dst.data(), 5, taps, delay), tavStatusNoMemory);
  EXPECT_EQ(dst, std::vector<Tav16s>(5, 7));
  EXPECT_EQ(filter(way::in_place, src.data(), dst.data(), 5, taps, delay), tavStatusNoMemory);
  EXPECT_EQ(dst, src);
  EXPECT_EQ(delay[0], 9);
  tavcore_fake_reset();
  EXPECT_EQ(filter(way::block, src.data(), dst.data(), 5, taps, delay), tavStatusOk);
  EXPECT_EQ(tavcore_fake_read().live, 0);
  EXPECT_EQ(tavcore_fake_read().damaged, 0);
  tavcore_fake_reset();
}

TEST(IirDirect, SameInEveryRoundingMode) {
  source_of_data      data(4);
  const auto          taps = quiet_taps(2, 12, data);
  const auto          src  = data.values<Tav16s>(60);
  std::vector<Tav16s> want(60), dst(60);
  std::vector<Tav32s> line(2);
  ASSERT_EQ(filter(way::block, src.data(), want.data(), 60, taps, line), tavStatusOk);
  for (unsigned mode : rounding_modes) {
    std::vector<Tav32s> delay(2);
    const rounding_mode set(mode);
    ASSERT_EQ(filter(way::block, src.data(), dst.data(), 60, taps, delay), tavStatusOk);
    EXPECT_EQ(dst, want);
    EXPECT_EQ(delay, line);
  }
}

}  // namespace
