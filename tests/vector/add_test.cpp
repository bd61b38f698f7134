// tavsAdd: against the sum of the wider type rounded once, special values included.
#include "harness/faults.h"
#include "harness/layouts.h"

using namespace test;

namespace {

Tav32f rounded_sum(Tav32f a, Tav32f b) {
  return Tav32f(Tav64f(a) + Tav64f(b));
}  // the double holds what rounding needs

const auto sum = [](std::vector<Tav32f>& dst, const std::vector<Tav32f>& a, const std::vector<Tav32f>& b) {
  for (size_t i = 0; i < dst.size(); ++i) dst[i] = rounded_sum(a[i], b[i]);
  return tavStatusOk;
};

TAV_FAULTS(Add_32f, pointers_then_length)

TEST(Add, As32f) {
  check_layouts<&::tavsAdd_32f, Tav32f, Tav32f, Tav32f>(
      lengths_around({11, 256, 1000, 8 * 0x2AAA, 8 * 0x2AAA + 8, 8 * 0x2AAB + 3}),
      [](Tav32f* dst, int len, const Tav32f* a, const Tav32f* b) { return call<&::tavsAdd_32f>(a, b, dst, len); }, sum);
}

TEST(Add, IntoEitherSource32f) {
  const auto lengths = lengths_around({256, 8 * 0x2AAB});
  check_layouts<&::tavsAdd_32f, Tav32f, Tav32f>(
      lengths, [](Tav32f* dst, int len, const Tav32f* b) { return call<&::tavsAdd_32f>(dst, b, dst, len); },
      [](std::vector<Tav32f>& dst, const std::vector<Tav32f>& b) { return sum(dst, std::vector(dst), b); });
  check_layouts<&::tavsAdd_32f, Tav32f, Tav32f>(
      lengths, [](Tav32f* dst, int len, const Tav32f* a) { return call<&::tavsAdd_32f>(a, dst, dst, len); },
      [](std::vector<Tav32f>& dst, const std::vector<Tav32f>& a) { return sum(dst, a, std::vector(dst)); });
  check_layouts<&::tavsAdd_32f, Tav32f>(
      lengths, [](Tav32f* dst, int len) { return call<&::tavsAdd_32f>(dst, dst, dst, len); },
      [](std::vector<Tav32f>& dst) { return sum(dst, std::vector(dst), std::vector(dst)); });
}

// The sum follows the caller's rounding mode, in the scalar parts and in the vectors alike.
TEST(Add, InTheCallersRoundingMode32f) {
  const unsigned callers = _mm_getcsr();
  for (unsigned mode : {0x2000u, 0x4000u, 0x6000u}) {
    std::vector<Tav32f> a(40, 1.0f), b(40, 1e-20f), c(40);
    _mm_setcsr((callers & ~0x6000u) | mode);
    const TavStatus status = call<&::tavsAdd_32f>(a.data(), b.data(), c.data(), 40);
    _mm_setcsr(callers);
    EXPECT_EQ(status, tavStatusOk);
    for (Tav32f v : c) EXPECT_EQ(v, mode == 0x4000u ? 1.00000012f : 1.0f) << std::hex << mode;
  }
}

}  // namespace
