// tavsConvert of half floats: every half, and singles on and beside every value, tie and limit, in each mode of the
// thread: the four roundings, and subnormal numbers taken as zeros.
#include "harness/faults.h"
#include "harness/forms.h"
#include "oracle/half.h"
using namespace test;

namespace {

constexpr int toward_zero = 0, to_nearest = 1, ties_away = 2;
// All but 1 and 2 mean toward zero.
constexpr int round_modes[] = {toward_zero, to_nearest, 3, -1, INT_MAX, INT_MIN};

// The thread's control word with other fields; the calls shall neither heed nor change them.
struct thread_mode {
  static constexpr unsigned subnormals_are_zeros = 0x8040, fields = 0x6000 | subnormals_are_zeros;

  explicit thread_mode(unsigned mode) : callers_(_mm_getcsr()) { _mm_setcsr((callers_ & ~fields) | mode); }
  ~thread_mode() { _mm_setcsr(callers_); }
  thread_mode(const thread_mode&)            = delete;
  thread_mode& operator=(const thread_mode&) = delete;

 private:
  unsigned callers_;
};

template <class Check> void in_each_thread_mode(const Check& check) {
  for (unsigned zeros : {0u, thread_mode::subnormals_are_zeros})
    for (unsigned rounding = 0; rounding <= 0x6000; rounding += 0x2000) {
      SCOPED_TRACE(testing::Message() << "control word " << std::hex << (rounding | zeros));
      check(rounding | zeros);
      if (testing::Test::HasFatalFailure()) return;
    }
}

template <class S, class D, class Call, class One>
void expect_all(const std::vector<S>& src, const Call& make, const One& one) {
  std::vector<D> want(src.size());
  for (size_t i = 0; i < src.size(); ++i) want[i] = one(src[i]);
  in_each_thread_mode([&](unsigned mode) {
    std::vector<D> dst(src.size());
    TavStatus      status;
    {
      const thread_mode set(mode);
      status = make(src.data(), dst.data(), int(src.size()));
    }
    ASSERT_EQ(status, tavStatusOk);
    if (const long i = first_difference(dst, want); i >= 0)
      FAIL() << "element " << i << ": " << testing::PrintToString(src[size_t(i)]) << " gives "
             << testing::PrintToString(dst[size_t(i)]) << ", not " << testing::PrintToString(want[size_t(i)]);
  });
}

template <class T> std::vector<T> every_16_bits() {
  std::vector<T> all;
  for (int v = 0; v < 0x10000; ++v) all.push_back(T(v));
  return all;
}

Tav32f single_of(Tav32u bits) {
  Tav32f v;
  memcpy(&v, &bits, sizeof v);
  return v;
}

const auto float_of = [](Tav16u h) { return Tav32f(oracle::value_of_half(h)); };

TEST(ConvertHalf, As16f32f) {
  check_layouts<&::tavsConvert_16f32f, Tav32f, Tav16u>(
      usual_lengths(),
      [](Tav32f* dst, int len, const Tav16u* src) { return call<&::tavsConvert_16f32f>(src, dst, len); },
      [](std::vector<Tav32f>& dst, const std::vector<Tav16u>& src) {
        for (size_t i = 0; i < dst.size(); ++i) dst[i] = float_of(src[i]);
        return tavStatusOk;
      });
}

TEST(ConvertHalf, EveryHalfAs32f) {
  expect_all<Tav16u, Tav32f>(
      every_16_bits<Tav16u>(), [](auto... a) { return call<&::tavsConvert_16f32f>(a...); }, float_of);
}

TEST(ConvertHalf, NansBecomeQuietOnesOfTheirSign) {
  for (Tav16u h : {0x7C01, 0x7DFF, 0x7E00, 0x7FFF, 0xFC01, 0xFFFF}) {
    const std::vector<Tav16u> src(21, h);
    std::vector<Tav32f>       dst(21);
    EXPECT_EQ(call<&::tavsConvert_16f32f>(src.data(), dst.data(), 21), tavStatusOk);
    for (const Tav32f& v : dst) {
      Tav32u bits;
      memcpy(&bits, &v, sizeof bits);
      EXPECT_EQ(bits, Tav32u(h & 0x8000) << 16 | 0x7FC00000 | Tav32u(h & 0x3FF) << 13) << std::hex << h;
    }
  }
}

// Each value of a half, the middle between it and the next, and the singles beside both.
std::vector<Tav32f> floats_around_halves() {
  std::vector<Tav32f> all;
  for (int code = 0; code < oracle::half::infinity; ++code) {
    const double value = oracle::magnitude_of_half(code), next = oracle::magnitude_of_half(code + 1);
    for (double v : {value, (value + next) / 2}) {
      const Tav32f f = Tav32f(v);
      for (Tav32f beside : {nextafterf(f, -1), f, nextafterf(f, HUGE_VALF)})
        all.push_back(beside), all.push_back(-beside);
    }
  }
  return all;
}

std::vector<Tav32f> floats_of_all_sizes() {
  source_of_data      data(41);
  std::vector<Tav32f> all;
  for (Tav32u bits :
       {0x47FFFFFFu, 0x47800000u, 0x477FFFFFu, 0x477FF000u, 0x477FEFFFu, 0x7F7FFFFFu, 0x7F800000u, 0x7F800001u,
        0x7FBFFFFFu, 0x7FC00000u, 0x7FFFFFFFu, 0x00000001u, 0x007FFFFFu, 0x00800000u, 0x33000000u, 0x33000001u})
    all.push_back(single_of(bits)), all.push_back(single_of(bits | 0x80000000u));
  for (int i = 0; i < 200000; ++i) {
    const Tav32u bits = data.bits();
    all.push_back(single_of(bits));
    all.push_back(single_of((bits & 0x81FFFFFF) + 0x32000000 + 0x01000000 * Tav32u(data.below(22))));  // around halves
  }
  return all;
}

const auto half_of = [](int mode) { return [mode](double v) { return oracle::half_of(v, mode == to_nearest); }; };

TEST(ConvertHalf, As32f16f) {
  for (int mode : round_modes)
    check_layouts<&::tavsConvert_32f16f, Tav16u, Tav32f>(
        mode > 1 ? few_lengths() : usual_lengths(),
        [&](Tav16u* dst, int len, const Tav32f* src) { return call<&::tavsConvert_32f16f>(src, dst, len, mode); },
        [&](std::vector<Tav16u>& dst, const std::vector<Tav32f>& src) {
          for (size_t i = 0; i < dst.size(); ++i) dst[i] = half_of(mode)(src[i]);
          return tavStatusOk;
        });
}

TEST(ConvertHalf, Around32f16f) {
  for (int mode : {toward_zero, to_nearest})
    for (const auto& src : {floats_around_halves(), floats_of_all_sizes()})
      expect_all<Tav32f, Tav16u>(
          src, [&](auto... a) { return call<&::tavsConvert_32f16f>(a..., mode); }, half_of(mode));
}

TEST(ConvertHalf, EveryHalfComesBack) {
  const auto          halves = every_16_bits<Tav16u>();
  std::vector<Tav32f> floats(halves.size());
  std::vector<Tav16u> back(halves.size());
  EXPECT_EQ(call<&::tavsConvert_16f32f>(halves.data(), floats.data(), 0x10000), tavStatusOk);
  for (int mode : {toward_zero, to_nearest}) {
    EXPECT_EQ(call<&::tavsConvert_32f16f>(floats.data(), back.data(), 0x10000, mode), tavStatusOk);
    for (Tav16u h : halves)
      ASSERT_TRUE(back[h] == h || (oracle::is_nan_half(h) && (back[h] | 0x8000) == 0xFE00)) << std::hex << h;
  }
}

TEST(ConvertHalf, As16s16f) {
  for (int mode : round_modes) {
    check_layouts<&::tavsConvert_16s16f, Tav16u, Tav16s>(
        few_lengths(),
        [&](Tav16u* dst, int len, const Tav16s* src) { return call<&::tavsConvert_16s16f>(src, dst, len, mode); },
        [&](std::vector<Tav16u>& dst, const std::vector<Tav16s>& src) {
          for (size_t i = 0; i < dst.size(); ++i) dst[i] = half_of(mode)(src[i]);
          return tavStatusOk;
        });
    expect_all<Tav16s, Tav16u>(
        every_16_bits<Tav16s>(), [&](auto... a) { return call<&::tavsConvert_16s16f>(a..., mode); }, half_of(mode));
  }
}

TEST(ConvertHalf, As16f16s) {
  for (int mode : round_modes)
    for (int s : {0, 3, -5})
      check_layouts<&::tavsConvert_16f16s_Sfs, Tav16s, Tav16u>(
          few_lengths(),
          [&](Tav16s* dst, int len, const Tav16u* src) {
            return call<&::tavsConvert_16f16s_Sfs>(src, dst, len, mode, s);
          },
          [&](std::vector<Tav16s>& dst, const std::vector<Tav16u>& src) {
            for (size_t i = 0; i < dst.size(); ++i) dst[i] = oracle::scaled_16s_of_half(src[i], mode == to_nearest, s);
            return tavStatusOk;
          });
}

// Every half at every factor, but for the products of zero and infinity, which are no numbers.
TEST(ConvertHalf, EveryHalfAs16s) {
  std::vector<int> factors{INT_MIN, INT_MAX, -1000, 1000, -129, -128, -127, -126, 125, 126, 127, 128};
  for (int s = -42; s <= 20; ++s) factors.push_back(s);
  const auto halves = every_16_bits<Tav16u>();
  for (int mode : {toward_zero, to_nearest})
    for (int s : factors) {
      std::vector<Tav16s> dst(halves.size());
      {
        const rounding_mode set(mode == to_nearest ? rounding_mode::down : rounding_mode::up);
        ASSERT_EQ(call<&::tavsConvert_16f16s_Sfs>(halves.data(), dst.data(), 0x10000, mode, s), tavStatusOk);
      }
      for (Tav16u h : halves) {
        const int code = h & 0x7FFF;
        if ((code == 0 && s <= -128) || (code == oracle::half::infinity && s >= 127)) continue;
        ASSERT_EQ(dst[h], oracle::scaled_16s_of_half(h, mode == to_nearest, s))
            << std::hex << h << std::dec << ", " << s;
      }
    }
}

TEST(ConvertHalf, ThreadModesDoNotCountFor16s) {
  for (int mode : {toward_zero, to_nearest})
    for (int s : {-20, -3, 0, 4})
      expect_all<Tav16u, Tav16s>(
          every_16_bits<Tav16u>(), [&](auto... a) { return call<&::tavsConvert_16f16s_Sfs>(a..., mode, s); },
          [&](Tav16u h) { return oracle::scaled_16s_of_half(h, mode == to_nearest, s); });
}

// Pointers, length, and the round mode last.
void pointers_length_mode(const tested& f) {
  faults(f).null_pointers().below_one(2).value(3, ties_away, tavStatusBadRoundMode).expect();
}

// The rows above hold the round mode 2 throughout; the other faults do not need it.
TEST(ConvertHalf, FaultsInOtherRoundModes) {
  Tav16u half[4]   = {};
  Tav32f single[4] = {};
  Tav16s word[4]   = {};
  for (int mode : round_modes) {
    EXPECT_EQ(call<&::tavsConvert_32f16f>(single, nullptr, 4, mode), tavStatusNullPointer);
    EXPECT_EQ(call<&::tavsConvert_32f16f>(single, half, 0, mode), tavStatusBadSize);
    EXPECT_EQ(call<&::tavsConvert_16s16f>(nullptr, half, 4, mode), tavStatusNullPointer);
    EXPECT_EQ(call<&::tavsConvert_16s16f>(word, half, -1, mode), tavStatusBadSize);
    EXPECT_EQ(call<&::tavsConvert_16f16s_Sfs>(half, nullptr, 0, mode, 0), tavStatusNullPointer);
    EXPECT_EQ(call<&::tavsConvert_16f16s_Sfs>(half, word, INT_MIN, mode, 0), tavStatusBadSize);
  }
}

}  // namespace

TAV_FAULTS(Convert_16f32f, pointers_then_length)
TAV_FAULTS(Convert_32f16f, pointers_length_mode)
TAV_FAULTS(Convert_16s16f, pointers_length_mode)
TAV_FAULTS(Convert_16f16s_Sfs, pointers_length_mode)
