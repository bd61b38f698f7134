// tavsConvert of 24-bit integers: each byte pattern that matters, every factor, and no byte beyond the arrays.
#include "oracle/convert_24.h"

#include "harness/faults.h"
#include "harness/forms.h"
using namespace test;
using oracle::int_24;
using oracle::limits_24;

template <> int_24 source_of_data::value<int_24>() { return oracle::of_value_24(value<Tav32s>() >> below(9)); }

namespace {

const Tav8u* bytes_of(const int_24* p) { return reinterpret_cast<const Tav8u*>(p); }
Tav8u*       bytes_of(int_24* p) { return reinterpret_cast<Tav8u*>(p); }

template <auto* Export, class D> void check_from_24(Tav32s (*value)(int_24)) {
  check_layouts<Export, D, int_24>(
      usual_lengths(), [](D* dst, int len, const int_24* src) { return call<Export>(bytes_of(src), dst, len); },
      [&](std::vector<D>& dst, const std::vector<int_24>& src) {
        for (size_t i = 0; i < dst.size(); ++i) dst[i] = D(value(src[i]));
        return tavStatusOk;
      });
  std::vector<int_24> all;  // each value of each byte beside many of the others
  for (Tav32s v = 0; v < 0x1000000; v += 37) all.push_back(oracle::of_value_24(v));
  for (Tav32s v : {0x7FFFFF, 0x800000, 0xFFFFFF}) all.push_back(oracle::of_value_24(v));
  std::vector<D> dst(all.size());
  each_build<Export>([&] {
    ASSERT_EQ(call<Export>(bytes_of(all.data()), dst.data(), int(all.size())), tavStatusOk);
    for (size_t i = 0; i < all.size(); ++i) ASSERT_EQ(dst[i], D(value(all[i]))) << "element " << i;
  });
}

TEST(Convert24, As24s32s) { check_from_24<&::tavsConvert_24s32s, Tav32s>(oracle::value_24s); }
TEST(Convert24, As24u32u) { check_from_24<&::tavsConvert_24u32u, Tav32u>(oracle::value_24u); }
TEST(Convert24, As24s32f) { check_from_24<&::tavsConvert_24s32f, Tav32f>(oracle::value_24s); }
TEST(Convert24, As24u32f) { check_from_24<&::tavsConvert_24u32f, Tav32f>(oracle::value_24u); }

const std::vector<int> few_factors{0, 1, 8, 9, 40, -3, -9};

std::vector<int> all_factors() {
  std::vector<int> all{INT_MIN, INT_MIN + 1, -1000, 1000, INT_MAX - 1, INT_MAX};
  for (int s = -160; s <= 160; ++s) all.push_back(s);
  return all;
}

template <auto* Export, class S> void expect_scaled(const std::vector<S>& src, int s, limits_24 limits) {
  std::vector<int_24> dst(src.size());
  ASSERT_EQ(call<Export>(src.data(), bytes_of(dst.data()), int(src.size()), s), tavStatusOk);
  for (size_t i = 0; i < src.size(); ++i)
    ASSERT_EQ(dst[i], oracle::scaled_24(src[i], s, limits)) << "factor " << s << ", element " << i << ": " << src[i];
}

// Around each limit and tie of the factor, where `spread` lies between neighbours.
std::vector<double> values_around_steps(int s, double spread) {
  std::vector<double> all;
  for (double v :
       {-8388608.0, -8388607.0, -2.0, -1.0, 0.0, 1.0, 2.0, 3.0, 8388606.0, 8388607.0, 16777214.0, 16777215.0})
    for (double half : {-0.5, 0.0, 0.5})
      for (double beside : {-spread, 0.0, spread}) all.push_back(ldexp(v + half, s) + beside);
  return all;
}

template <class S> std::vector<S> values_for(source_of_data& data, int s) {
  std::vector<S> all;
  const double   spread = std::is_integral_v<S> ? 1 : 0;
  for (double v : values_around_steps(s, spread)) {
    if constexpr (std::is_integral_v<S>) {
      using limits = std::numeric_limits<S>;
      if (v >= limits::min() && v <= limits::max()) all.push_back(S(v));
    } else {
      const Tav32f f = Tav32f(v);
      if (s <= -128 && f == 0) continue;  // 0 times infinity is no number
      all.insert(all.end(), {f, nextafterf(f, HUGE_VALF), nextafterf(f, -HUGE_VALF)});
    }
  }
  for (int i = 0; i < 100; ++i)
    if constexpr (std::is_integral_v<S>)
      all.push_back(S(data.value<S>() >> data.below(32)));
    else if (const Tav32f f = ldexpf(data.value<Tav32f>(), s < 100 && s > -100 ? s + data.below(26) : 0); f != 0)
      all.push_back(f);
  return all;
}

template <auto* Export, class S> void check_to_24(limits_24 limits) {
  for (int s : few_factors) {
    SCOPED_TRACE(testing::Message() << "factor " << s);
    check_layouts<Export, int_24, S>(
        lengths_around({256}, 70),
        [&](int_24* dst, int len, const S* src) { return call<Export>(src, bytes_of(dst), len, s); },
        [&](std::vector<int_24>& dst, const std::vector<S>& src) {
          for (size_t i = 0; i < dst.size(); ++i) dst[i] = oracle::scaled_24(src[i], s, limits);
          return tavStatusOk;
        });
    if (testing::Test::HasFatalFailure()) return;
  }
  each_build<Export>([&] {
    source_of_data data(31);
    for (int s : all_factors()) expect_scaled<Export>(values_for<S>(data, s), s, limits);
  });
}

TEST(Convert24, As32s24s) { check_to_24<&::tavsConvert_32s24s_Sfs, Tav32s>(oracle::limits_24s); }
TEST(Convert24, As32u24u) { check_to_24<&::tavsConvert_32u24u_Sfs, Tav32u>(oracle::limits_24u); }
TEST(Convert24, As32f24s) { check_to_24<&::tavsConvert_32f24s_Sfs, Tav32f>(oracle::limits_24s); }
TEST(Convert24, As32f24u) { check_to_24<&::tavsConvert_32f24u_Sfs, Tav32f>(oracle::limits_24u); }

TEST(Convert24, FactorsPast31Are31) {
  const Tav32u high[] = {0xFFFFFFFF, 0xC0000000, 0xBFFFFFFF, 0x40000001, 0x40000000};
  int_24       dst[5];
  const Tav32s expected[] = {2, 2, 1, 1, 0};
  for (int s : {31, 32, 40, INT_MAX}) {
    EXPECT_EQ(call<&::tavsConvert_32u24u_Sfs>(high, bytes_of(dst), 5, s), tavStatusOk);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(oracle::value_24u(dst[i]), expected[i]) << s;
  }
}

// To nearest, ties to even, whatever the thread's mode; and that stays as it was.
template <auto* Export> void check_any_rounding_mode(limits_24 limits) {
  const Tav32f        edges[] = {0.5f, 1.5f, 2.5f, 0.75f, 2.25f, -0.5f, -1.5f, -2.5f, -0.75f, -2.25f, 3.4999998f};
  std::vector<Tav32f> src;
  for (int i = 0; i < 4; ++i) src.insert(src.end(), std::begin(edges), std::end(edges));
  for (unsigned mode : rounding_modes) {
    std::vector<int_24> dst(src.size());
    {
      const rounding_mode set(mode);
      EXPECT_EQ(call<Export>(src.data(), bytes_of(dst.data()), int(src.size()), 0), tavStatusOk);
    }
    for (size_t i = 0; i < src.size(); ++i) EXPECT_EQ(dst[i], oracle::scaled_24(src[i], 0, limits)) << src[i];
  }
}

TEST(Convert24, FloatsInAnyRoundingMode) {
  check_any_rounding_mode<&::tavsConvert_32f24s_Sfs>(oracle::limits_24s);
  check_any_rounding_mode<&::tavsConvert_32f24u_Sfs>(oracle::limits_24u);
}

}  // namespace

TAV_FAULTS(Convert_24s32s, pointers_then_length)
TAV_FAULTS(Convert_24u32u, pointers_then_length)
TAV_FAULTS(Convert_24s32f, pointers_then_length)
TAV_FAULTS(Convert_24u32f, pointers_then_length)
TAV_FAULTS(Convert_32s24s_Sfs, pointers_then_length_at<1>)
TAV_FAULTS(Convert_32u24u_Sfs, pointers_then_length_at<1>)
TAV_FAULTS(Convert_32f24s_Sfs, pointers_then_length_at<1>)
TAV_FAULTS(Convert_32f24u_Sfs, pointers_then_length_at<1>)
