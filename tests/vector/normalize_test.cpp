// tavsNormalize: floats bit by bit in any mode, words against the one product that makes them.
#include "harness/faults.h"
#include "harness/forms.h"
#include "harness/scaled.h"

using namespace test;

namespace {

// Singles by way of doubles, which hold what a single rounding needs.
Tav32f normalized(Tav32f x, Tav32f sub, Tav32f div) {
  const Tav64f difference = Tav32f(Tav64f(x) - Tav64f(sub)), reciprocal = Tav32f(1 / Tav64f(div));
  return Tav32f(difference * reciprocal);
}
Tav64f  normalized(Tav64f x, Tav64f sub, Tav64f div) { return (x - sub) * (1 / div); }
Tav32fc normalized(Tav32fc x, Tav32fc sub, Tav32f div) {
  return {normalized(x.re, sub.re, div), normalized(x.im, sub.im, div)};
}
Tav64fc normalized(Tav64fc x, Tav64fc sub, Tav64f div) {
  return {normalized(x.re, sub.re, div), normalized(x.im, sub.im, div)};
}

template <auto* Export, class T, class R> void check_floats(TavStatus (*)(const T*, T*, int, T, R)) {
  using limits = std::numeric_limits<R>;
  source_of_data data(81);
  T              sub;
  for (R div : {R(3), R(-0.7), R(1e30), limits::min(), -limits::min(), limits::max(), limits::infinity(),
                limits::quiet_NaN()}) {
    const auto each = [&](std::vector<T>& dst, const std::vector<T>& src) {
      sub = data.value<T>();
      for (size_t i = 0; i < dst.size(); ++i) dst[i] = normalized(src[i], sub, div);
      return tavStatusOk;
    };
    check_layouts<Export, T, T>(
        lengths_around({100}, 40), [&](T* dst, int len, const T* src) { return call<Export>(src, dst, len, sub, div); },
        each);
    check_layouts<Export, T>(
        lengths_around({}, 20), [&](T* dst, int len) { return call<Export>(dst, dst, len, sub, div); },
        [&](std::vector<T>& dst) { return each(dst, std::vector(dst)); });
  }
}

TEST(Normalize, As32f) { check_floats<&::tavsNormalize_32f>(&::tavsNormalize_32f); }
TEST(Normalize, As64f) { check_floats<&::tavsNormalize_64f>(&::tavsNormalize_64f); }
TEST(Normalize, As32fc) { check_floats<&::tavsNormalize_32fc>(&::tavsNormalize_32fc); }
TEST(Normalize, As64fc) { check_floats<&::tavsNormalize_64fc>(&::tavsNormalize_64fc); }

// The reciprocal is rounded to nearest always, the difference and the product as the caller wants.
TEST(Normalize, InTheCallersRoundingMode32f) {
  const Tav32f third = 1 / 3.0f;
  for (unsigned mode : rounding_modes) {
    const std::vector<Tav32f> src(30, 1.0f);
    std::vector<Tav32f>       sums(30), halves(30);
    {
      const rounding_mode set(mode);
      EXPECT_EQ(call<&::tavsNormalize_32f>(src.data(), sums.data(), 30, -1e-20f, 1.0f), tavStatusOk);
      EXPECT_EQ(call<&::tavsNormalize_32f>(src.data(), halves.data(), 30, 0.5f, 3.0f), tavStatusOk);
    }
    for (Tav32f v : sums) EXPECT_EQ(v, mode == rounding_mode::up ? 1.00000012f : 1.0f) << std::hex << mode;
    for (Tav32f v : halves) EXPECT_EQ(v, third / 2) << std::hex << mode;
  }
}

// A reciprocal that is no whole number, or too small, must not trap in a caller who has unmasked those exceptions.
TEST(Normalize, ReciprocalThatUnderflows) {
  const unsigned inexact_and_underflow = 0x1800;
  const Tav32f   src                   = 0;
  Tav32f         dst                   = 1;
  const unsigned callers               = _mm_getcsr();
  _mm_setcsr(callers & ~inexact_and_underflow);
  const TavStatus status = call<&::tavsNormalize_32f>(&src, &dst, 1, 0.0f, std::numeric_limits<Tav32f>::max());
  _mm_setcsr(callers);
  EXPECT_EQ(status, tavStatusOk);
  EXPECT_EQ(dst, 0);
}

// Words. Factors below 0 count modulo 128; above, the power ends in 0 where a single cannot be normal any more.
Tav16s normalized(Tav16s x, Tav16s sub, int div, int s) {
  const int    up      = s < 0 ? int(-int64_t(s) % 128) : 0;
  const Tav64f power   = s >= 127 ? 0 : s < 0 ? ldexp(1.0, up) : ldexp(1.0, -s);
  const Tav64f product = Tav32f(Tav64f(int(x) - int(sub)) * Tav64f(Tav32f(power / div)));
  return product > 32767 ? 32767 : product < -32768 ? -32768 : Tav16s(nearbyint(product));
}
Tav16sc normalized(Tav16sc x, Tav16sc sub, int div, int s) {
  return {normalized(x.re, sub.re, div, s), normalized(x.im, sub.im, div, s)};
}

template <class T> std::vector<T> words_to_normalize(source_of_data& data) {
  if constexpr (enumerable<T>)
    return all_values<T>();
  else
    return data.values<T>(20000);
}

const int divisors[] = {1, -1, 2, 3, 6, -7, 1000, -32768, 65535, 0x1000001, INT32_MAX, INT32_MIN};

template <auto* Export, class T> void check_words() {
  source_of_data   data(82);
  const auto       src     = words_to_normalize<T>(data);
  std::vector<int> factors = scales_between(-20, 20);
  for (int s : {-256, -255, -130, -129, -128, -127, -126, -100, -64, 100, 125, 126, 127, 128}) factors.push_back(s);
  std::vector<T> got(src.size());
  for (int s : factors)
    for (int div : {divisors[data.below(6)], divisors[6 + data.below(6)]}) {
      const T sub = data.value<T>();
      ASSERT_EQ(call<Export>(src.data(), got.data(), int(src.size()), sub, div, s), tavStatusOk);
      for (size_t i = 0; i < src.size(); ++i)
        ASSERT_TRUE(same(got[i], normalized(src[i], sub, div, s))) << i << ", divisor " << div << ", factor " << s;
    }
  T          sub;
  int        div, s;
  const auto each = [&](std::vector<T>& dst, const std::vector<T>& from) {
    sub = data.value<T>(), div = divisors[data.below(6)], s = data.below(12) - 6;
    for (size_t i = 0; i < dst.size(); ++i) dst[i] = normalized(from[i], sub, div, s);
    return tavStatusOk;
  };
  check_layouts<Export, T, T>(
      lengths_around({100}, 40),
      [&](T* dst, int len, const T* from) { return call<Export>(from, dst, len, sub, div, s); }, each);
  check_layouts<Export, T>(
      lengths_around({}, 20), [&](T* dst, int len) { return call<Export>(dst, dst, len, sub, div, s); },
      [&](std::vector<T>& dst) { return each(dst, std::vector(dst)); });
}

TEST(NormalizeScaled, As16s) { check_words<&::tavsNormalize_16s_Sfs, Tav16s>(); }
TEST(NormalizeScaled, As16sc) { check_words<&::tavsNormalize_16sc_Sfs, Tav16sc>(); }

// Next to the true quotient in any case.
TEST(NormalizeScaled, NearTheQuotient) {
  const auto          src = all_values<Tav16s>();
  std::vector<Tav16s> got(src.size());
  for (int div : divisors)
    for (int s : {-3, 0, 4}) {
      ASSERT_EQ(call<&::tavsNormalize_16s_Sfs>(src.data(), got.data(), int(src.size()), 1234, div, s), tavStatusOk);
      for (size_t i = 0; i < src.size(); ++i) {
        const Tav64f exact = ldexp((src[i] - 1234.0) / div, -s);
        const Tav64f want  = exact > 32767 ? 32767 : exact < -32768 ? -32768 : exact;
        ASSERT_LE(fabs(got[i] - want), 0.5 + 0x1p-8) << src[i] << " over " << div << ", factor " << s;
      }
    }
}

TEST(NormalizeScaled, InAnyModeOfTheCaller) {
  const auto          src = all_values<Tav16s>();
  std::vector<Tav16s> got(src.size());
  for (unsigned mode : rounding_modes)
    for (int div : {2, 3, 7}) {
      {
        const rounding_mode set(mode);
        ASSERT_EQ(call<&::tavsNormalize_16s_Sfs>(src.data(), got.data(), int(src.size()), 5, div, 0), tavStatusOk);
      }
      for (size_t i = 0; i < src.size(); ++i)
        ASSERT_EQ(got[i], normalized(src[i], Tav16s(5), div, 0)) << mode << ", divisor " << div;
    }
}

// The smallest divisor that counts is a normal number.
void divisor_last(const tested& f) {
  faults bad(f);
  bad.null_pointers().below_one(2).value(4, 0, tavStatusDivideByZero);
  if (f.parameters[4].kind == parameter::real) {
    const double below_normal = f.is<Tav32f>(4) ? double(std::nextafter(std::numeric_limits<Tav32f>::min(), 0.0f))
                                                : std::nextafter(std::numeric_limits<Tav64f>::min(), 0.0);
    for (double divisor : {-0.0, below_normal, -below_normal}) bad.value(4, divisor, tavStatusDivideByZero);
  }
  bad.expect();
}

}  // namespace

#define CASE(form) TAV_FAULTS(Normalize_##form, divisor_last)
CASE(16s_Sfs) CASE(16sc_Sfs) CASE(32f) CASE(32fc) CASE(64f) CASE(64fc)
#undef CASE
