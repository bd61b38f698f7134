// tavsUpdateLinear, tavsUpdatePower: against integers of any size, which saturate at the end alone.
#include "harness/faults.h"
#include "oracle/counting.h"
#include "result_runs.h"

using namespace test;

namespace {

const Tav16s alphas[] = {-32768, -32767, -181, -180, -7, -6, -4, -3, -2, -1, 0, 1, 2, 3, 4, 8, 9, 181, 182, 32767};

struct arguments_of_update {
  int    shift;
  Tav16s alpha;
};

// What one element adds. Shifts beyond the limits count as these.
Tav32s linear(Tav16s x, int shift) { return Tav32s(floor(ldexp(Tav64f(x), -std::clamp(shift, 0, 15)))); }
Tav32s power(Tav16s x, int shift) { return Tav32s(floor(ldexp(Tav64f(x) * x, -std::clamp(shift, 0, 31)))); }

Tav16s some_alpha(source_of_data& data) {
  return data.below(4) ? alphas[data.below(int(std::size(alphas)))] : data.value<Tav16s>();
}
int some_shift(source_of_data& data) {
  return data.below(4) ? data.below(34) - 1 : data.below(2) ? INT32_MIN : INT32_MAX;
}

template <auto* Export> void check_update(Tav32s (*value)(Tav16s, int)) {
  arguments_of_update given{};
  check_result<Export, Tav16s, Tav32s>(
      lengths_around({200}),
      [&](source_of_data& data, int len) {
        given             = {some_shift(data), some_alpha(data)};
        auto         src  = data.values<Tav16s>(size_t(len));
        const Tav16s same = data.value<Tav16s>();
        const int    kind = data.below(3);  // as they come, few changes, extremes
        for (Tav16s& x : src) {
          if (kind == 1 && data.below(20) != 0) x = same;
          if (kind == 2) x = data.below(2) ? -32768 : 0;
        }
        return src;
      },
      [&](const Tav16s* src, int len, Tav32s* s) {
        return call<Export>(src, len, s, given.shift, given.alpha, len % 5);
      },
      [&](const std::vector<Tav16s>& src, Tav32s& s) {
        s = oracle::updated(src, s, given.alpha, [&](Tav16s x) { return value(x, given.shift); });
        return tavStatusOk;
      });
}

TEST(UpdateLinear, As16s32s) { check_update<&::tavsUpdateLinear_16s32s_I>(linear); }
TEST(UpdatePower, As16s32s) { check_update<&::tavsUpdatePower_16s32s_I>(power); }

// Sources by which s neither settles nor grows, for as long as one likes: with v = s + k it moves by (1 - alpha) k.
TEST(UpdateLinear, StaysWithinBounds) {
  source_of_data data(3);
  for (Tav16s alpha : alphas) {
    const Tav32s        s0 = data.below(2001) - 1000;
    Tav32s              s  = s0;
    std::vector<Tav16s> src(500);
    for (Tav16s& x : src) {
      const int k = data.below(2) ? 0 : data.below(3) - 1, moved = s + k * (1 - alpha);
      x = Tav16s(std::abs(moved) < 32000 ? s + k : s);
      s = alpha * s + (1 - alpha) * x;
    }
    for (size_t n : {500u, 499u, 493u}) {
      src.resize(n);
      Tav32s got = s0;
      EXPECT_EQ(call<&::tavsUpdateLinear_16s32s_I>(src.data(), int(n), &got, 0, alpha, 1), tavStatusOk);
      EXPECT_EQ(got, oracle::updated(src, s0, alpha, [](Tav16s x) { return Tav32s(x); })) << alpha << ", " << n;
      EXPECT_LT(std::abs(got), 33000);
    }
  }
}

Tav32s update_by_power(std::vector<Tav16s> src, Tav32s s, Tav16s alpha) {
  EXPECT_EQ(call<&::tavsUpdatePower_16s32s_I>(src.data(), int(src.size()), &s, 0, alpha, 0), tavStatusOk);
  return s;
}

// Beyond 32 bits and back, and for ever beyond.
TEST(UpdatePower, ReturnsFromBeyond32Bits) {
  constexpr Tav32s unit = 1 << 30;
  EXPECT_EQ(update_by_power({0}, -(unit + unit / 8), -2), INT32_MAX);
  EXPECT_EQ(update_by_power({0, -32768}, -(unit + unit / 8), -2), -(unit + unit / 2));
  EXPECT_EQ(update_by_power({0, -32768, 0}, -(unit + unit / 2), -2), INT32_MAX);
  EXPECT_EQ(update_by_power({0, 0, -32768, 0}, -unit, -2), INT32_MIN);
}

TEST(UpdatePower, SignOfWhatGrows) {
  for (size_t n = 1; n < 80; ++n) {
    EXPECT_EQ(update_by_power(std::vector<Tav16s>(n), 1, -32768), n == 1   ? -32768
                                                                  : n == 2 ? 1 << 30
                                                                  : n % 2  ? INT32_MIN
                                                                           : INT32_MAX);
    EXPECT_EQ(update_by_power(std::vector<Tav16s>(n), -3, 16384), n == 1   ? -3 * 16384
                                                                  : n == 2 ? -3 * (1 << 28)
                                                                           : INT32_MIN);
  }
}

// An alpha of -1 takes s far beyond 32 bits without growing by itself.
TEST(UpdateLinear, AlternatingSum) {
  std::vector<Tav16s> src(100000);
  for (size_t i = 0; i < src.size(); ++i) src[i] = i % 2 ? 32767 : -32768;
  for (size_t i = src.size() / 2 + 1; i < src.size(); ++i) src[i] = Tav16s(-1 - src[i]);
  for (size_t n : {50000u, 75000u, 99999u, 100000u}) {
    Tav32s s = -7;
    src.resize(100000), src.resize(n);
    EXPECT_EQ(call<&::tavsUpdateLinear_16s32s_I>(src.data(), int(n), &s, 0, Tav16s(-1), 0), tavStatusOk);
    EXPECT_EQ(s, oracle::updated(src, -7, -1, [](Tav16s x) { return Tav32s(x); })) << n;
  }
}

}  // namespace

TAV_FAULTS(UpdateLinear_16s32s_I, pointers_then_length_at<4>)
TAV_FAULTS(UpdatePower_16s32s_I, pointers_then_length_at<4>)
