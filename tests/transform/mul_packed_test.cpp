// tavsMulPack, tavsMulPerm, tavsMulPackConj: against products of the values that the slots stand for.
#include "harness/faults.h"
#include "harness/forms.h"
#include "harness/scaled.h"
#include "oracle/spectra.h"

using namespace test;
using oracle::form;

namespace {

template <class T> struct pair_row;
template <> struct pair_row<Tav16s> { using type = Tav16sc; };
template <> struct pair_row<Tav32f> { using type = Tav32fc; };
template <> struct pair_row<Tav64f> { using type = Tav64fc; };
template <class T> using pair_of = typename pair_row<T>::type;

constexpr auto product   = [](auto a, auto b) { return oracle::arithmetic<decltype(a)>::mul(a, b); };
constexpr auto conjugate = [](auto a, auto b) { return oracle::times_conjugate(a, b); };

// expected(dst, a, b) for the layouts.
template <class T, class Real, class Pair> auto products_of(form f, const Real& real, const Pair& pair) {
  return [=](std::vector<T>& dst, const std::vector<T>& a, const std::vector<T>& b) {
    oracle::multiply<pair_of<T>>(f, a, b, dst, real, pair);
    return tavStatusOk;
  };
}

// Runs call(a, b, dst, len) with four arrays: apart, on either source and on both.
template <auto* Export, class T, class Call, class Expected>
void check_sources(const std::set<int>& lengths, const Call& run, const Expected& expected) {
  check_layouts<Export, T, T, T>(
      lengths, [&](T* dst, int len, const T* a, const T* b) { return run(a, b, dst, len); }, expected);
  check_layouts<Export, T, T>(
      few_lengths(), [&](T* dst, int len, const T* b) { return run(dst, b, dst, len); },
      [&](std::vector<T>& dst, const std::vector<T>& b) { return expected(dst, std::vector(dst), b); });
  check_layouts<Export, T, T>(
      few_lengths(), [&](T* dst, int len, const T* a) { return run(a, dst, dst, len); },
      [&](std::vector<T>& dst, const std::vector<T>& a) { return expected(dst, a, std::vector(dst)); });
  check_layouts<Export, T>(
      few_lengths(), [&](T* dst, int len) { return run(dst, dst, dst, len); },
      [&](std::vector<T>& dst) { return expected(dst, std::vector(dst), std::vector(dst)); });
}

template <auto* Export, class T, class Call, class Expected>
void check_second_source(const std::set<int>& lengths, const Call& run, const Expected& expected) {
  check_layouts<Export, T, T>(
      lengths, [&](T* dst, int len, const T* a) { return run(a, dst, len); },
      [&](std::vector<T>& dst, const std::vector<T>& a) { return expected(dst, a, std::vector(dst)); });
  check_layouts<Export, T>(
      few_lengths(), [&](T* dst, int len) { return run(dst, dst, len); },
      [&](std::vector<T>& dst) { return expected(dst, std::vector(dst), std::vector(dst)); });
}

template <auto* Export, class T> void check_floats(form f, TavStatus (*)(const T*, const T*, T*, int)) {
  check_sources<Export, T>(usual_lengths(), call<Export, const T*, const T*, T*, int>,
                           products_of<T>(f, product, product));
}
template <auto* Export, class T, class Pair>
void check_floats_in_place(form f, TavStatus (*)(const T*, T*, int), const Pair& pair) {
  check_second_source<Export, T>(usual_lengths(), call<Export, const T*, T*, int>, products_of<T>(f, product, pair));
}

#define CASE(name, form_of, type)                                                                            \
  TEST(Mul##name, As##type) { check_floats<&::tavsMul##name##_##type>(form_of, &::tavsMul##name##_##type); } \
  TEST(Mul##name##InPlace, As##type) {                                                                       \
    check_floats_in_place<&::tavsMul##name##_##type##_I>(form_of, &::tavsMul##name##_##type##_I, product);   \
  }                                                                                                          \
  TAV_FAULTS(Mul##name##_##type, pointers_then_length)                                                       \
  TAV_FAULTS(Mul##name##_##type##_I, pointers_then_length)
CASE(Pack, form::pack, 32f)
CASE(Pack, form::pack, 64f)
CASE(Perm, form::perm, 32f)
CASE(Perm, form::perm, 64f)
#undef CASE

TEST(MulPackConj, As32f) {
  check_floats_in_place<&::tavsMulPackConj_32f_I>(form::pack, &::tavsMulPackConj_32f_I, conjugate);
}
TEST(MulPackConj, As64f) {
  check_floats_in_place<&::tavsMulPackConj_64f_I>(form::pack, &::tavsMulPackConj_64f_I, conjugate);
}
TAV_FAULTS(MulPackConj_32f_I, pointers_then_length)
TAV_FAULTS(MulPackConj_64f_I, pointers_then_length)

// The spectrum that is overwritten is the one conjugated: i times the conjugate of 1 is i.
TEST(MulPackConj, ConjugatesTheSecond) {
  const Tav32f src[] = {2, 0, 1};
  each_build<&::tavsMulPackConj_32f_I>([&] {
    Tav32f srcDst[] = {3, 1, 0};
    EXPECT_EQ(call<&::tavsMulPackConj_32f_I>(src, srcDst, 3), tavStatusOk);
    EXPECT_EQ(std::vector(srcDst, srcDst + 3), (std::vector<Tav32f>{6, 0, 1}));
  });
}

TEST(MulPack, TwoRealValues) {
  const Tav32f a[] = {2, 3}, b[] = {5, 7};
  each_build<&::tavsMulPack_32f>([&] {
    Tav32f dst[3] = {0, 0, 9};
    EXPECT_EQ(call<&::tavsMulPack_32f>(a, b, dst, 2), tavStatusOk);
    EXPECT_EQ(std::vector(dst, dst + 3), (std::vector<Tav32f>{10, 21, 9}));
  });
}

// Each operation rounds by itself, in the caller's mode, in registers and for the pairs left at the end.
template <class T> T rounded_sum(T a, T b) {
  volatile const T x = a, y = b;
  return x + y;
}
template <class T> T rounded_product(T a, T b) {
  volatile const T x = a, y = b;
  return x * y;
}
constexpr auto rounded      = [](auto a, auto b) { return rounded_product(a, b); };
constexpr auto rounded_pair = [](auto a, auto b) -> decltype(a) {
  return {rounded_sum(rounded_product(a.re, b.re), -rounded_product(a.im, b.im)),
          rounded_sum(rounded_product(a.re, b.im), rounded_product(a.im, b.re))};
};
constexpr auto rounded_conjugate = [](auto a, auto b) -> decltype(a) {
  return {rounded_sum(rounded_product(a.re, b.re), rounded_product(a.im, b.im)),
          rounded_sum(rounded_product(a.im, b.re), -rounded_product(a.re, b.im))};
};

template <auto* Export, class T, class Call, class Pair> void check_modes(form f, const Call& run, const Pair& pair) {
  constexpr int  n = 42;
  source_of_data data(9);
  std::vector<T> a(n), b(n), want(n);
  for (T& v : a) v = T(int(data.bits())) / 3;
  for (T& v : b) v = T(int(data.bits())) / 3;
  for (unsigned mode : rounding_modes)
    each_build<Export>([&] {
      auto dst = b;
      {
        const rounding_mode set(mode);
        oracle::multiply<pair_of<T>>(f, a, b, want, rounded, pair);
        EXPECT_EQ(run(a.data(), dst.data(), n), tavStatusOk);
      }
      EXPECT_EQ(dst, want) << std::hex << mode;
    });
}

TEST(MulPack, InTheCallersRoundingMode) {
  check_modes<&::tavsMulPack_32f, Tav32f>(
      form::pack, [](auto* a, auto* b, int n) { return call<&::tavsMulPack_32f>(a, b, b, n); }, rounded_pair);
  check_modes<&::tavsMulPack_64f_I, Tav64f>(form::pack, call<&::tavsMulPack_64f_I, const Tav64f*, Tav64f*, int>,
                                            rounded_pair);
}
TEST(MulPerm, InTheCallersRoundingMode) {
  check_modes<&::tavsMulPerm_32f_I, Tav32f>(form::perm, call<&::tavsMulPerm_32f_I, const Tav32f*, Tav32f*, int>,
                                            rounded_pair);
}
TEST(MulPackConj, InTheCallersRoundingMode) {
  check_modes<&::tavsMulPackConj_32f_I, Tav32f>(form::pack, call<&::tavsMulPackConj_32f_I, const Tav32f*, Tav32f*, int>,
                                                rounded_conjugate);
  check_modes<&::tavsMulPackConj_64f_I, Tav64f>(form::pack, call<&::tavsMulPackConj_64f_I, const Tav64f*, Tav64f*, int>,
                                                rounded_conjugate);
}

// Integers: layouts with a few scale factors, then all factors over arrays long enough to hold every case.

auto shifted_by(form f, int s) {
  return products_of<Tav16s>(
      f, [s](Tav16s a, Tav16s b) { return oracle::shifted_16s(int64_t(a) * b, s); },
      [s](Tav16sc a, Tav16sc b) { return oracle::shifted_product(a, b, s); });
}

template <class Call>
void check_values(form f, int s, const std::vector<Tav16s>& a, const std::vector<Tav16s>& b, const Call& run) {
  auto dst = b, want = b;
  shifted_by(f, s)(want, a, b);
  ASSERT_EQ(run(a.data(), dst.data(), int(dst.size()), s), tavStatusOk);
  ASSERT_LT(first_difference(dst, want), 0) << "scale factor " << s << ", length " << dst.size();
}

template <class Call> void check_all_scales(form f, const Call& run) {
  source_of_data data(13);
  for (int s : all_scales())
    for (size_t n : {2000u, 2001u}) {
      check_values(f, s, many_of_any_magnitude<Tav16s>(data, n), many_of_any_magnitude<Tav16s>(data, n), run);
      const std::vector<Tav16s> lowest(n % 100 + 20, -32768);  // 2^31 in the imaginary parts
      check_values(f, s, lowest, lowest, run);
      if (testing::Test::HasFatalFailure()) return;
    }
}

template <auto* Export, auto* InPlace> void check_shifted(form f) {
  for (int s : few_scales) {
    SCOPED_TRACE(testing::Message() << "scale factor " << s);
    check_sources<Export, Tav16s>(
        scaled_lengths, [s](auto* a, auto* b, auto* dst, int len) { return call<Export>(a, b, dst, len, s); },
        shifted_by(f, s));
    check_second_source<InPlace, Tav16s>(
        scaled_lengths, [s](auto* a, auto* dst, int len) { return call<InPlace>(a, dst, len, s); }, shifted_by(f, s));
    if (testing::Test::HasFatalFailure()) return;
  }
  check_all_scales(f, [](auto* a, auto* dst, int len, int s) { return call<Export>(a, dst, dst, len, s); });
  check_all_scales(f, call<InPlace, const Tav16s*, Tav16s*, int, int>);
}

TEST(MulPack, As16s) { check_shifted<&::tavsMulPack_16s_Sfs, &::tavsMulPack_16s_ISfs>(form::pack); }
TEST(MulPerm, As16s) { check_shifted<&::tavsMulPerm_16s_Sfs, &::tavsMulPerm_16s_ISfs>(form::perm); }
TAV_FAULTS(MulPack_16s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(MulPack_16s_ISfs, pointers_then_length_scaled)
TAV_FAULTS(MulPerm_16s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(MulPerm_16s_ISfs, pointers_then_length_scaled)

TEST(MulPack, LargestProductIsExact) {
  const std::vector<Tav16s> lowest(11, -32768);
  for (const auto& [s, im] : {std::pair{0, 32767}, {15, 32767}, {16, 32767}, {17, 16384}, {31, 1}, {32, 0}}) {
    std::vector<Tav16s> dst(11);
    EXPECT_EQ(call<&::tavsMulPack_16s_Sfs>(lowest.data(), lowest.data(), dst.data(), 11, s), tavStatusOk);
    for (size_t i = 1; i < 11; i += 2) EXPECT_EQ(dst[i], 0) << s;
    for (size_t i = 2; i < 11; i += 2) EXPECT_EQ(dst[i], im) << s;
  }
}

TEST(MulPerm, NegativeResultsGoDownToMinusOne) {
  const std::vector<Tav16s> a(10, 1), b(10, -1);
  std::vector<Tav16s>       dst(10);
  EXPECT_EQ(call<&::tavsMulPerm_16s_Sfs>(a.data(), b.data(), dst.data(), 10, 1000), tavStatusOk);
  EXPECT_EQ(dst, (std::vector<Tav16s>{-1, -1, 0, -1, 0, -1, 0, -1, 0, -1}));
}

}  // namespace
