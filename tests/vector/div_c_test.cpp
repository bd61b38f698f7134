// tavsDivC of integers, tavsDivCRev_16u.
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "harness/division.h"

using namespace test;
using namespace oracle;

namespace {

template <class T> std::vector<T> divisors_to_try(source_of_data& data) {
  using limits = std::numeric_limits<T>;
  std::vector<T> all{1, 2, 3, T(-1), 6, 100, limits::max(), limits::min(), T(data.bits() | 1), T(data.bits() & ~1u)};
  if (sizeof(T) == 1)
    for (int d = 1; d < 256; ++d) all.push_back(T(d));
  std::erase(all, T(0));
  return all;
}

template <auto* Apart, auto* InPlace, class T, class Want> void check_constant_layouts(T val, int s, const Want& want) {
  check_layouts<Apart, T, T>(
      lengths_around({200}, 70), [&](T* dst, int len, const T* src) { return call<Apart>(src, val, dst, len, s); },
      [&](std::vector<T>& dst, const std::vector<T>& src) {
        for (size_t i = 0; i < dst.size(); ++i) dst[i] = want(src[i], val, s);
        return tavStatusOk;
      });
  check_layouts<InPlace, T>(
      lengths_around({200}, 70), [&](T* dst, int len) { return call<InPlace>(val, dst, len, s); },
      [&](std::vector<T>& dst) {
        for (T& v : dst) v = want(v, val, s);
        return tavStatusOk;
      });
}

template <auto* Export, class T, class Want>
void check_values(const std::vector<T>& values, T val, int s, const Want& want) {
  SCOPED_TRACE(testing::Message() << "factor " << s);
  std::vector<T> dst(values.size()), expected(values.size());
  for (size_t i = 0; i < dst.size(); ++i) expected[i] = want(values[i], val, s);
  each_build<Export>([&] {
    ASSERT_EQ(call<Export>(values.data(), val, dst.data(), int(dst.size()), s), tavStatusOk);
    if (const long i = first_difference(dst, expected); i >= 0) FAIL() << "first wrong element: " << i;
  });
}

template <auto* Apart, auto* InPlace, class T, class Want>
void check_integers(const division& range, const Want& want) {
  source_of_data data(91);
  std::vector<T> all(sizeof(T) == 1 ? 256 : 65536);
  for (size_t i = 0; i < all.size(); ++i) all[i] = T(i);
  for (int s : factors_of(range))
    for (T val : divisors_to_try<T>(data)) {
      check_values<Apart>(all, val, s, want);
      if (testing::Test::HasFatalFailure()) return;
    }
  for (int s : {0, 2, -9, range.low - 1, range.high + 1})
    for (T val : {T(6), T(251)}) check_constant_layouts<Apart, InPlace>(val, s, want);
}

TEST(DivC, As8u) {
  check_integers<&::tavsDivC_8u_Sfs, &::tavsDivC_8u_ISfs, Tav8u>(
      div_8u, [](Tav8u a, Tav8u b, int s) { return div_8u.of<Tav8u>(a, b, s); });
}
TEST(DivC, As16s) {
  check_integers<&::tavsDivC_16s_Sfs, &::tavsDivC_16s_ISfs, Tav16s>(
      div_16s, [](Tav16s a, Tav16s b, int s) { return div_16s.of<Tav16s>(a, b, s); });
}
// Below the range zeros go to the maximum as well.
TEST(DivC, As16u) {
  check_integers<&::tavsDivC_16u_Sfs, &::tavsDivC_16u_ISfs, Tav16u>(
      div_16u, [](Tav16u a, Tav16u b, int s) { return s < div_16u.low ? Tav16u(65535) : div_16u.of<Tav16u>(a, b, s); });
}

TEST(DivC, As16sc) {
  const auto     want = [](Tav16sc a, Tav16sc b, int s) { return div_c_16sc.of(a, b, s); };
  source_of_data data(92);
  const auto     values = data.values<Tav16sc>(5000);
  for (int s : factors_of(div_c_16sc)) {
    std::vector<Tav16sc> divisors{{-32768, -32768}, {-32768, 32767}, {32767, 0}, {0, 1}, {1, 0}, {2, 0}, {3, -1}};
    for (int i = 0; i < 5; ++i) divisors.push_back({Tav16s(data.bits() | 1), Tav16s(data.bits())});
    for (Tav16sc val : divisors) {
      check_values<&::tavsDivC_16sc_Sfs>(values, val, s, want);
      if (HasFatalFailure()) return;
    }
  }
  check_values<&::tavsDivC_16sc_Sfs>({{3, 0}}, Tav16sc{32767, 32767}, -17, [](Tav16sc, Tav16sc, int) {
    return Tav16sc{32767, -32768};
  });
  for (int s : {0, 2, -9})
    check_constant_layouts<&::tavsDivC_16sc_Sfs, &::tavsDivC_16sc_ISfs>(Tav16sc{-7, 20}, s, want);
}

TEST(DivC, InAnyModeOfTheCaller) {
  in_hostile_modes([] {
    const Tav16s src[2] = {7, -5};
    Tav16s       dst[2];
    EXPECT_EQ(call<&::tavsDivC_16s_Sfs>(src, Tav16s(2), dst, 2, 0), tavStatusOk);
    EXPECT_EQ(dst[0], 4);
    EXPECT_EQ(dst[1], -2);
    EXPECT_EQ(call<&::tavsDivC_16s_Sfs>(src, Tav16s(3), dst, 2, 0), tavStatusOk);
    EXPECT_EQ(dst[0], 2);
    EXPECT_EQ(dst[1], -2);
    Tav64s wide[2] = {7, -5};
    EXPECT_EQ(call<&::tavsDivC_64s_ISfs>(Tav64s(2), wide, 2u, 0), tavStatusOk);
    EXPECT_EQ(wide[0], 4);
    EXPECT_EQ(wide[1], -2);
  });
}

TEST(DivCRev, As16u) {
  for (Tav16u val : {0, 1, 7, 40000, 65535}) {
    std::vector<Tav16u> all(65536), dst(65536);
    for (size_t i = 0; i < all.size(); ++i) all[i] = Tav16u(i);
    ASSERT_EQ(call<&::tavsDivCRev_16u>(all.data(), val, dst.data(), 65536), tavStatusWarnDivideByZero);
    for (size_t i = 0; i < all.size(); ++i) ASSERT_EQ(dst[i], div_16u.of<Tav16u>(val, all[i], 0)) << val << " / " << i;

    const auto fill = [&](std::vector<Tav16u>& to, const std::vector<Tav16u>& src) {
      for (size_t i = 0; i < to.size(); ++i) to[i] = div_16u.of<Tav16u>(val, src[i], 0);
      return status_of_division(any_zero(src));
    };
    check_layouts<&::tavsDivCRev_16u, Tav16u, Tav16u>(
        lengths_around({}, 40),
        [&](Tav16u* to, int len, const Tav16u* src) { return call<&::tavsDivCRev_16u>(src, val, to, len); }, fill);
    check_layouts<&::tavsDivCRev_16u_I, Tav16u>(
        lengths_around({}, 40), [&](Tav16u* to, int len) { return call<&::tavsDivCRev_16u_I>(val, to, len); },
        [&](std::vector<Tav16u>& to) { return fill(to, std::vector(to)); });
  }
  const Tav16u no_zero[3] = {1, 2, 3};
  Tav16u       q[3]       = {9, 9, 9};
  EXPECT_EQ(call<&::tavsDivCRev_16u>(no_zero, Tav16u(0), q, 3), tavStatusOk);
  EXPECT_EQ(q[0] | q[1] | q[2], 0);
}

Tav64s one_64s(Tav64s n, Tav64s d, int s) {
  EXPECT_EQ(call<&::tavsDivC_64s_ISfs>(d, &n, 1u, s), d == 0 ? tavStatusWarnDivideByZero : tavStatusOk);
  return n;
}

TEST(DivC64s, IsExactFromFactor0On) {
  source_of_data data(93);
  for (int s = 0; s < 70; ++s)
    for (int i = 0; i < 400; ++i) {
      const int    shorter = data.below(63);
      const Tav64s drawn = data.value<Tav64s>() >> shorter, d = drawn == 0 ? 1 : drawn;
      Tav64s       n = data.value<Tav64s>();
      if (i % 4 == 0 && d % 2 == 0 && d > 0) n = n / (d / 2) * (d / 2);  // a tie, or whole
      ASSERT_EQ(one_64s(n, d, s), quotient_64s(n, d, s)) << n << " / " << d << ", factor " << s;
    }
  EXPECT_EQ(one_64s(1, 1, INT32_MAX), 0);
}

TEST(DivC64s, ScalesUpAndSaturates) {
  EXPECT_EQ(one_64s(3, 7, -10), 439);  // 438.86
  EXPECT_EQ(one_64s(-3, 2, -1), -3);
  EXPECT_EQ(one_64s(1, -3, -40), -366503875925);
  EXPECT_EQ(one_64s(1, 2, -64), INT64_MAX);
  EXPECT_EQ(one_64s(-1, 2, -64), INT64_MIN);
  EXPECT_EQ(one_64s(-1, 2, -63), -(INT64_C(1) << 62));
  EXPECT_EQ(one_64s(1, INT64_MAX, -1000), INT64_MAX);
  EXPECT_EQ(one_64s(-1, INT64_MAX, INT32_MIN), INT64_MIN);
  EXPECT_EQ(one_64s(0, 5, INT32_MIN), 0);
  EXPECT_EQ(one_64s(INT64_MIN, -1, 0), INT64_MAX);
  EXPECT_EQ(one_64s(INT64_MIN, INT64_MIN, 0), 1);
}

TEST(DivC64s, OverZeroGoesBySign) {
  for (int s : {0, 100, -100}) {
    EXPECT_EQ(one_64s(5, 0, s), INT64_MAX);
    EXPECT_EQ(one_64s(-5, 0, s), INT64_MIN);
    EXPECT_EQ(one_64s(0, 0, s), 0);
  }
}

TEST(DivC64s, InAllLayouts) {
  for (Tav64s val : {Tav64s(6), Tav64s(0)})
    check_layouts<&::tavsDivC_64s_ISfs, Tav64s>(
        lengths_around({}, 40),
        [&](Tav64s* dst, int len) { return call<&::tavsDivC_64s_ISfs>(val, dst, unsigned(len), 1); },
        [&](std::vector<Tav64s>& dst) {
          for (Tav64s& v : dst) v = val == 0 ? by_sign<Tav64s>(v > 0, v < 0) : quotient_64s(v, val, 1);
          return status_of_division(val == 0);
        });
}

// The extended-precision unit rounds up and traps at every inexact result: the call must not mind.
TEST(DivC64s, InAnyModeOfTheExtendedUnit) {
  Tav64s         n = 7;
  uint16_t       callers;
  const uint16_t hostile = 0x0800;  // single precision, upward, nothing masked
  __asm__ volatile("fnstcw %0\n\tfnclex\n\tfldcw %1" : "=m"(callers) : "m"(hostile));
  const TavStatus status = call<&::tavsDivC_64s_ISfs>(Tav64s(3), &n, 1u, 0);
  __asm__ volatile("fldcw %0" : : "m"(callers));
  EXPECT_EQ(status, tavStatusOk);
  EXPECT_EQ(n, 2);
}

// The length is unsigned: what would be -1 runs off the end of any memory instead of being refused.
TEST(DivC64s, LengthHasNoSign) {
  arena         home(4096);
  array<Tav64s> data(home, 16, {placement::ends_at_page});
  const pid_t   child = fork();
  if (child == 0) {
    dup2(open("/dev/null", O_WRONLY), STDERR_FILENO);
    _exit(tavsDivC_64s_ISfs(3, data.data(), 0xFFFFFFFFu, 0) == tavStatusBadSize ? 99 : 0);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_FALSE(WIFEXITED(status) && WEXITSTATUS(status) == 99);
}

void pointers_length_then_zero(const tested& f) {
  const size_t constant = f.count == 5 ? 1 : 0;
  faults(f)
      .null_pointers()
      .below_one(f.count - 2)
      .add("constant 0", tavStatusDivideByZero, [=](arguments& a) { a.spoil(constant); })
      .expect();
}

}  // namespace

TAV_FAULTS(DivC_8u_Sfs, pointers_length_then_zero)
TAV_FAULTS(DivC_8u_ISfs, pointers_length_then_zero)
TAV_FAULTS(DivC_16s_Sfs, pointers_length_then_zero)
TAV_FAULTS(DivC_16s_ISfs, pointers_length_then_zero)
TAV_FAULTS(DivC_16u_Sfs, pointers_length_then_zero)
TAV_FAULTS(DivC_16u_ISfs, pointers_length_then_zero)
TAV_FAULTS(DivC_16sc_Sfs, pointers_length_then_zero)
TAV_FAULTS(DivC_16sc_ISfs, pointers_length_then_zero)
TAV_FAULTS(DivC_64s_ISfs, pointers_then_unsigned_length_at<1>)
TAV_FAULTS(DivCRev_16u, pointers_then_length)
TAV_FAULTS(DivCRev_16u_I, pointers_then_length)
