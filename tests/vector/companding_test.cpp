// Companding against the definition of the laws: every code, every sample, floats on and beside every tie.
#include "oracle/companding.h"

#include "harness/faults.h"
#include "harness/forms.h"

using namespace test;

namespace {

using oracle::law;

// All in one call, in vectors, and each by itself, in the scalar part.
template <auto* Export, class S, class D, class One>
void check_each(TavStatus (*)(const S*, D*, int), const std::vector<S>& src, const One& one) {
  std::vector<D> dst(src.size());
  ASSERT_EQ(call<Export>(src.data(), dst.data(), int(src.size())), tavStatusOk);
  for (size_t i = 0; i < src.size(); ++i) {
    D alone;
    ASSERT_EQ(call<Export>(&src[i], &alone, 1), tavStatusOk);
    ASSERT_TRUE(same(dst[i], one(src[i]))) << +src[i] << " becomes " << +dst[i] << ", not " << +one(src[i]);
    ASSERT_TRUE(same(alone, dst[i])) << +src[i] << " becomes " << +alone << " in the scalar part";
  }
}

template <auto* Export, class S, class D, class One>
void check_everywhere(TavStatus (*)(const S*, D*, int), const One& one) {
  check_layouts<Export, D, S>(
      usual_lengths(), [](D* dst, int len, const S* src) { return call<Export>(src, dst, len); },
      [&](std::vector<D>& dst, const std::vector<S>& src) {
        for (size_t i = 0; i < dst.size(); ++i) dst[i] = one(src[i]);
        return tavStatusOk;
      });
}

template <class T> std::vector<T> all_of(int lowest, int highest) {
  std::vector<T> v;
  for (int x = lowest; x <= highest; ++x) v.push_back(T(x));
  return v;
}
const auto codes   = all_of<Tav8u>(0, 255);
const auto samples = all_of<Tav16s>(-32768, 32767);

template <law Law> const auto expand       = [](Tav8u c) { return Tav16s(oracle::expanded(Law, c)); };
template <law Law> const auto expand_float = [](Tav8u c) { return Tav32f(oracle::expanded(Law, c) / 32768.0); };
template <law Law> const auto compress     = [](Tav16s x) { return oracle::compressed(Law, x); };
template <law Law>
const auto compress_float = [](Tav32f x) { return oracle::compressed(Law, oracle::sample_of(Law, x)); };

template <auto* Export, class One> void check_codes(const One& one) {
  check_each<Export>(Export, codes, one);
  check_everywhere<Export>(Export, one);
}

TEST(Companding, ALawToLin) {
  check_codes<&::tavsALawToLin_8u16s>(expand<law::a>);
  check_codes<&::tavsALawToLin_8u32f>(expand_float<law::a>);
}
TEST(Companding, MuLawToLin) {
  check_codes<&::tavsMuLawToLin_8u16s>(expand<law::mu>);
  check_codes<&::tavsMuLawToLin_8u32f>(expand_float<law::mu>);
}

TEST(Companding, LinToALaw) {
  check_each<&::tavsLinToALaw_16s8u>(&::tavsLinToALaw_16s8u, samples, compress<law::a>);
  check_everywhere<&::tavsLinToALaw_16s8u>(&::tavsLinToALaw_16s8u, compress<law::a>);
}
TEST(Companding, LinToMuLaw) {
  check_each<&::tavsLinToMuLaw_16s8u>(&::tavsLinToMuLaw_16s8u, samples, compress<law::mu>);
  check_everywhere<&::tavsLinToMuLaw_16s8u>(&::tavsLinToMuLaw_16s8u, compress<law::mu>);
}

TEST(Companding, CodesOfTheOtherLaw) {
  const auto to_mu = [](Tav8u c) { return oracle::recoded(oracle::in_mu_law, c); };
  const auto to_a  = [](Tav8u c) { return oracle::recoded(oracle::in_a_law, c); };
  check_codes<&::tavsALawToMuLaw_8u>(to_mu);
  check_codes<&::tavsMuLawToALaw_8u>(to_a);
  check_layouts<&::tavsALawToMuLaw_8u, Tav8u>(
      few_lengths(), [](Tav8u* dst, int len) { return call<&::tavsALawToMuLaw_8u>(dst, dst, len); },
      [&](std::vector<Tav8u>& dst) {
        for (Tav8u& c : dst) c = to_mu(c);
        return tavStatusOk;
      });
}

// Each integer and each tie, from below the lowest sample to above the highest one, with the floats beside them.
std::vector<Tav32f> floats_at_ties() {
  std::vector<Tav32f> v;
  const auto          with_neighbours = [&](float x) {
    for (float y : {nextafterf(x, -2.0f), x, nextafterf(x, 2.0f)}) v.push_back(y);
  };
  for (int twice = -65540; twice <= 65540; ++twice) with_neighbours(Tav32f(twice) / 65536);
  using limits = std::numeric_limits<Tav32f>;
  for (float x : {-0.0f, limits::denorm_min(), limits::min(), 1.0f, 2.0f, limits::max(), limits::infinity()})
    v.push_back(x), v.push_back(-x);
  v.push_back(limits::quiet_NaN()), v.push_back(-limits::quiet_NaN());
  return v;
}

template <auto* Export, class One> void check_floats(const One& one) {
  const auto at_ties = floats_at_ties();
  check_each<Export>(Export, at_ties, one);
  check_everywhere<Export>(Export, one);
  for (unsigned mode : rounding_modes) {
    std::vector<Tav8u> dst(at_ties.size()), alone(64);
    {
      const rounding_mode set(mode);
      ASSERT_EQ(call<Export>(at_ties.data(), dst.data(), int(dst.size())), tavStatusOk);
      for (size_t i = 0; i < alone.size(); ++i) ASSERT_EQ(call<Export>(&at_ties[i * 97], &alone[i], 1), tavStatusOk);
    }
    for (size_t i = 0; i < dst.size(); ++i) ASSERT_EQ(dst[i], one(at_ties[i])) << at_ties[i] << std::hex << mode;
    for (size_t i = 0; i < alone.size(); ++i) ASSERT_EQ(alone[i], one(at_ties[i * 97])) << std::hex << mode;
  }
}

TEST(Companding, FloatsToALaw) { check_floats<&::tavsLinToALaw_32f8u>(compress_float<law::a>); }
TEST(Companding, FloatsToMuLaw) { check_floats<&::tavsLinToMuLaw_32f8u>(compress_float<law::mu>); }

template <auto* Export, class S> auto result(S src) {
  const auto of = []<class D>(TavStatus (*)(const S*, D*, int), S one) {
    std::vector<S> all(40, one);
    std::vector<D> dst(40);
    EXPECT_EQ(call<Export>(all.data(), dst.data(), 40), tavStatusOk);
    EXPECT_EQ(dst, std::vector<D>(40, dst[0]));
    return dst[0];
  };
  return of(Export, src);
}

TEST(Companding, Landmarks) {
  EXPECT_EQ(result<&::tavsALawToLin_8u16s>(Tav8u(0xD5)), 8);
  EXPECT_EQ(result<&::tavsALawToLin_8u16s>(Tav8u(0x55)), -8);
  EXPECT_EQ(result<&::tavsALawToLin_8u16s>(Tav8u(0xAA)), 32256);
  EXPECT_EQ(result<&::tavsMuLawToLin_8u16s>(Tav8u(0xFF)), 0);
  EXPECT_EQ(result<&::tavsMuLawToLin_8u16s>(Tav8u(0x7F)), 0);
  EXPECT_EQ(result<&::tavsMuLawToLin_8u16s>(Tav8u(0x00)), -32124);
  EXPECT_EQ(result<&::tavsMuLawToLin_8u32f>(Tav8u(0x00)), -32124 / 32768.0f);
  EXPECT_EQ(result<&::tavsLinToMuLaw_16s8u>(Tav16s(0)), 0xFF);
  EXPECT_EQ(result<&::tavsLinToMuLaw_16s8u>(Tav16s(-1)), 0x7F);
  EXPECT_EQ(result<&::tavsLinToMuLaw_16s8u>(Tav16s(-32768)), 0x00);
  EXPECT_EQ(result<&::tavsLinToALaw_16s8u>(Tav16s(-32768)), 0x2A);
  EXPECT_EQ(result<&::tavsLinToALaw_32f8u>(2.0f), 0xAA);
  EXPECT_EQ(result<&::tavsLinToALaw_32f8u>(NAN), 0xAA);
  EXPECT_EQ(result<&::tavsLinToMuLaw_32f8u>(NAN), 0x80);
  // Half a sample below zero: the even 0 in the one law, -1 in the other; and less than half, 0 in both.
  EXPECT_EQ(result<&::tavsLinToMuLaw_32f8u>(-0.5f / 32768), 0xFF);
  EXPECT_EQ(result<&::tavsLinToALaw_32f8u>(-0.5f / 32768), 0x55);
  EXPECT_EQ(result<&::tavsLinToALaw_32f8u>(-0.49999997f / 32768), 0xD5);
}

// A code stands for a sample that has this code; only mu-law has two codes for 0.
TEST(Companding, CodesReturn) {
  std::vector<Tav16s> linear(256);
  std::vector<Tav8u>  back(256);
  ASSERT_EQ(call<&::tavsALawToLin_8u16s>(codes.data(), linear.data(), 256), tavStatusOk);
  ASSERT_EQ(call<&::tavsLinToALaw_16s8u>(linear.data(), back.data(), 256), tavStatusOk);
  EXPECT_EQ(back, codes);
  ASSERT_EQ(call<&::tavsMuLawToLin_8u16s>(codes.data(), linear.data(), 256), tavStatusOk);
  ASSERT_EQ(call<&::tavsLinToMuLaw_16s8u>(linear.data(), back.data(), 256), tavStatusOk);
  EXPECT_EQ(back[0x7F], 0xFF);
  back[0x7F] = 0x7F;
  EXPECT_EQ(back, codes);
}

}  // namespace

#define CASE(form) TAV_FAULTS(form, pointers_then_length)
CASE(ALawToLin_8u16s)
CASE(ALawToLin_8u32f)
CASE(MuLawToLin_8u16s)
CASE(MuLawToLin_8u32f)
CASE(LinToALaw_16s8u)
CASE(LinToALaw_32f8u)
CASE(LinToMuLaw_16s8u)
CASE(LinToMuLaw_32f8u)
CASE(ALawToMuLaw_8u)
CASE(MuLawToALaw_8u)
#undef CASE
