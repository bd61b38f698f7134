// Scaled sums and products of 64 bits, and lengths without a sign.
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>

#include "harness/scaled.h"

using namespace test;
using oracle::exact;
using oracle::ties;

namespace {

template <class T> T sum_then_scaled(T a, T b, int s, ties how) {  // the sum saturates first
  return oracle::scaled<T>(oracle::saturated<T>(exact(a) + exact(b)), s, how);
}

constexpr auto add_c_order = pointers_then_unsigned_length_at<2>;
constexpr auto mul_c_order = pointers_then_unsigned_length_at<1>;

TAV_FAULTS(Add_64s_Sfs, pointers_then_length_scaled)
TAV_FAULTS(AddC_64s_Sfs, add_c_order)
TAV_FAULTS(AddC_64u_Sfs, add_c_order)
TAV_FAULTS(MulC_64s_ISfs, mul_c_order)
TAV_FAULTS(MulC_64f64s_ISfs, mul_c_order)

TEST(LongSum, Add) {
  check_scaled<&::tavsAdd_64s_Sfs>(
      [](Tav64s a, Tav64s b, int s) { return s > 63 ? 0 : sum_then_scaled(a, b, s, ties::to_even); });
}

struct mode {
  int  number;
  ties how;
};
constexpr mode modes[] = {
    {0, ties::no_rounding}, {1, ties::to_even}, {2, ties::away}, {3, ties::away}, {-1, ties::away}};

template <auto* Export, class T> void check_add_c() {
  for (const mode& m : modes)
    for (T val : constants<T>()) {
      SCOPED_TRACE(testing::Message() << "mode " << m.number << ", constant " << val);
      const auto sum = [&](T* dst, int len, int s, const T* src) {
        return call<Export>(src, val, dst, unsigned(len), s, m.number);
      };
      const auto one = [&](T a, T, int s) { return sum_then_scaled(a, val, s, m.how); };
      each_build<Export>([&] { check_values<T, T>(sum, one); });
      if (val == 2) check_scaled_calls<Export, T, T>(sum, one);
      if (testing::Test::HasFatalFailure()) return;
    }
}

TEST(LongSum, AddC64s) { check_add_c<&::tavsAddC_64s_Sfs, Tav64s>(); }
TEST(LongSum, AddC64u) { check_add_c<&::tavsAddC_64u_Sfs, Tav64u>(); }

TEST(LongSum, ByHand) {
  const auto add = [](auto function, auto a, auto val, int s, int round_mode) {
    decltype(a) dst{};
    EXPECT_EQ(checked_call(function, &a, val, &dst, 1, s, round_mode), tavStatusOk);
    return dst;
  };
  const auto s64 = &::tavsAddC_64s_Sfs;
  const auto u64 = &::tavsAddC_64u_Sfs;
  EXPECT_EQ(add(s64, INT64_MAX, INT64_MAX, 1, 1), INT64_MAX / 2 + 1) << "saturated before it is scaled";
  EXPECT_EQ(add(s64, INT64_MIN, Tav64s(-1), 64, 2), -1);
  EXPECT_EQ(add(s64, INT64_MIN, Tav64s(-1), 64, 1), 0);
  EXPECT_EQ(add(s64, INT64_MIN, Tav64s(-1), 65, 2), 0);
  EXPECT_EQ(add(s64, Tav64s(-7), Tav64s(0), 1, 0), -3);
  EXPECT_EQ(add(s64, Tav64s(-7), Tav64s(0), 1, 1), -4);
  EXPECT_EQ(add(s64, Tav64s(-5), Tav64s(0), 1, 1), -2);
  EXPECT_EQ(add(s64, Tav64s(-5), Tav64s(0), 1, 2), -3);
  EXPECT_EQ(add(u64, ~Tav64u(0), Tav64u(1), 0, 0), ~Tav64u(0));
  EXPECT_EQ(add(u64, ~Tav64u(0), Tav64u(0), 64, 1), 1u);
  EXPECT_EQ(add(u64, Tav64u(1), Tav64u(0), -63, 0), Tav64u(1) << 63);
}

// A product rounded to 64 significant bits, as the extended-precision unit has it.
exact significant(exact r) {
  int bits = 0;
  for (exact left = magnitude(r); left != exact(0); left = halved(left)) ++bits;
  if (bits <= 64) return r;
  exact kept = oracle::divided(r, bits - 64);
  for (int k = 64; k < bits; ++k) kept = kept + kept;
  return kept;
}

TEST(LongProduct, MulC64s) {
  check_scaled_calls<&::tavsMulC_64s_ISfs, Tav64s>(
      [](Tav64s* dst, int len, int s) { return call<&::tavsMulC_64s_ISfs>(7, dst, unsigned(len), s); },
      [](Tav64s a, int s) { return oracle::scaled<Tav64s>(significant(exact(a) * exact(7)), s); });
  for (Tav64s val : constants<Tav64s>())
    check_values<Tav64s>(
        [&](Tav64s* dst, int len, int s) { return call<&::tavsMulC_64s_ISfs>(val, dst, unsigned(len), s); },
        [&](Tav64s a, int s) { return oracle::scaled<Tav64s>(significant(exact(a) * exact(val)), s); });
}

// A double is an integer of 53 bits times a power of two.
Tav64s times_double(Tav64s a, Tav64f val, int s) {
  int          exponent;
  const Tav64s digits = Tav64s(ldexp(frexp(val, &exponent), 53));
  const int    limit  = 3000;  // exact products have 117 bits
  s                   = s > limit ? limit : s < -limit ? -limit : s;
  return oracle::scaled<Tav64s>(significant(exact(a) * exact(digits)), s + 53 - exponent);
}

TEST(LongProduct, MulC64f64s) {
  check_scaled_calls<&::tavsMulC_64f64s_ISfs, Tav64s>(
      [](Tav64s* dst, int len, int s) { return call<&::tavsMulC_64f64s_ISfs>(-0.7, dst, unsigned(len), s); },
      [](Tav64s a, int s) { return times_double(a, -0.7, s); });
  auto scales = all_scales();
  for (int s : {-1300, -1200, -1100, -1024, 1024, 1090, 1100, 1200, 1300}) scales.push_back(s);
  for (Tav64f val :
       {1.0, -1.0, 0.5, 3.25, 1e-3, 1e18, -9.3e18, 1e300, 5e-324, -5e-324, 0x1.fffffffffffffp1023, 0.0, -0.0})
    check_values<Tav64s>(
        [&](Tav64s* dst, int len, int s) { return call<&::tavsMulC_64f64s_ISfs>(val, dst, unsigned(len), s); },
        [&](Tav64s a, int s) { return times_double(a, val, s); }, {scales});
}

TEST(LongProduct, ByConstantsWithoutAValue) {
  const auto product = [](Tav64f val, Tav64s a) {
    EXPECT_EQ(call<&::tavsMulC_64f64s_ISfs>(val, &a, 1u, 0), tavStatusOk);
    return a;
  };
  EXPECT_EQ(product(INFINITY, 3), INT64_MAX);
  EXPECT_EQ(product(INFINITY, -3), INT64_MIN);
  EXPECT_EQ(product(INFINITY, 0), INT64_MIN);
  EXPECT_EQ(product(NAN, 5), INT64_MIN);
}

// Neither the precision nor the rounding mode that the caller left on the unit matters.
TEST(LongProduct, InFullPrecision) {
  uint16_t callers;
  __asm__ volatile("fnstcw %0" : "=m"(callers));
  for (unsigned field : {0x000u, 0x200u, 0x300u, 0x400u, 0x800u, 0xC00u}) {
    const uint16_t word = uint16_t((callers & ~0xF00u) | field);
    Tav64s         a[2] = {INT64_MAX - 2, 5}, b[1] = {5};
    __asm__ volatile("fldcw %0" : : "m"(word));
    call<&::tavsMulC_64s_ISfs>(INT64_MAX - 4, a, 2u, 63);
    call<&::tavsMulC_64f64s_ISfs>(0.7, b, 1u, 0);
    __asm__ volatile("fldcw %0" : : "m"(callers));
    EXPECT_EQ(a[0], INT64_MAX - 7) << std::hex << field;
    EXPECT_EQ(a[1], 5) << std::hex << field;
    EXPECT_EQ(b[0], 3) << std::hex << field;  // 0.7 lies below 7/10
  }
}

// What a call gives in a process of its own, or -1 if it runs off its array.
template <class Call> int status_in_child(const Call& call) {
  const pid_t child = fork();
  if (child == 0) {
    close(STDERR_FILENO);
    _exit(call() == tavStatusBadSize ? 42 : 43);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(Long, NegativeLengthsAreVeryLong) {
  arena               home(4096), other(4096);
  const array<Tav64s> a(home, 8, {placement::ends_at_page}), b(other, 8, {placement::ends_at_page});
  EXPECT_EQ(call<&::tavsMulC_64s_ISfs>(1, a.data(), ~0u, 0), tavStatusOk);
  EXPECT_EQ(call<&::tavsMulC_64f64s_ISfs>(1.0, a.data(), ~0u, 0), tavStatusOk);

  auto* const ua = reinterpret_cast<Tav64u*>(a.data());
  auto* const ub = reinterpret_cast<Tav64u*>(b.data());
  for (int s : {0, 3, 99}) {
    EXPECT_NE(status_in_child([&] { return tavsAddC_64s_Sfs(a.data(), 5, b.data(), ~0u, s, 1); }), 42);
    EXPECT_NE(status_in_child([&] { return tavsAddC_64s_Sfs(a.data(), 0, b.data(), ~0u, s, 1); }), 42);
    EXPECT_NE(status_in_child([&] { return tavsAddC_64u_Sfs(ua, 5, ub, ~0u, s, 1); }), 42);
    EXPECT_NE(status_in_child([&] { return tavsMulC_64s_ISfs(3, a.data(), ~0u, s); }), 42);
    EXPECT_NE(status_in_child([&] { return tavsMulC_64s_ISfs(0, a.data(), ~0u, s); }), 42);
    EXPECT_NE(status_in_child([&] { return tavsMulC_64f64s_ISfs(0.25, a.data(), ~0u, s); }), 42);
  }
}

}  // namespace
