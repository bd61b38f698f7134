// tavsAdd: against the sum of the wider type rounded or saturated once, special values included.
#include "harness/faults.h"
#include "harness/forms.h"
#include "oracle/arithmetic.h"

using namespace test;

namespace {

template <class D> const auto sum = [](auto a, auto b) { return oracle::arithmetic<D>::add(a, b); };

const std::set<int> around_streaming = lengths_around({11, 256, 1000, 8 * 0x2AAA, 8 * 0x2AAA + 8, 8 * 0x2AAB + 3});

TEST(Add, As32f) { check_two_sources<&::tavsAdd_32f>(sum<Tav32f>, around_streaming); }
TEST(Add, As64f) { check_two_sources<&::tavsAdd_64f>(sum<Tav64f>); }
TEST(Add, As32fc) { check_two_sources<&::tavsAdd_32fc>(sum<Tav32fc>); }
TEST(Add, As64fc) { check_two_sources<&::tavsAdd_64fc>(sum<Tav64fc>); }
TEST(Add, As16s) { check_two_sources<&::tavsAdd_16s>(sum<Tav16s>); }
TEST(Add, As16u) { check_two_sources<&::tavsAdd_16u>(sum<Tav16u>); }
TEST(Add, As32u) { check_two_sources<&::tavsAdd_32u>(sum<Tav32u>); }
TEST(Add, As8u16u) { check_two_sources<&::tavsAdd_8u16u>(sum<Tav16u>); }
TEST(Add, As16s32f) { check_two_sources<&::tavsAdd_16s32f>(sum<Tav32f>); }

TEST(AddInPlace, As32f) { check_in_place<&::tavsAdd_32f_I>(sum<Tav32f>, around_streaming); }
TEST(AddInPlace, As64f) { check_in_place<&::tavsAdd_64f_I>(sum<Tav64f>); }
TEST(AddInPlace, As32fc) { check_in_place<&::tavsAdd_32fc_I>(sum<Tav32fc>); }
TEST(AddInPlace, As64fc) { check_in_place<&::tavsAdd_64fc_I>(sum<Tav64fc>); }
TEST(AddInPlace, As16s) { check_in_place<&::tavsAdd_16s_I>(sum<Tav16s>); }
TEST(AddInPlace, As16s32sWraps) {
  check_in_place<&::tavsAdd_16s32s_I>([](Tav16s a, Tav32s b) { return Tav32s(Tav32u(int64_t(a) + b)); });
}

TEST(Add, IntoEitherSourceWhereItStreams) {
  const auto lengths = lengths_around({8 * 0x2AAB}, 0);
  check_layouts<&::tavsAdd_32f, Tav32f, Tav32f>(
      lengths, [](Tav32f* dst, int len, const Tav32f* b) { return call<&::tavsAdd_32f>(dst, b, dst, len); },
      [](std::vector<Tav32f>& dst, const std::vector<Tav32f>& b) {
        for (size_t i = 0; i < dst.size(); ++i) dst[i] = sum<Tav32f>(dst[i], b[i]);
        return tavStatusOk;
      });
}

// The sum follows the caller's rounding mode, in the scalar parts and in the vectors alike.
TEST(Add, InTheCallersRoundingMode32f) {
  for (unsigned mode : rounding_modes) {
    std::vector<Tav32f> a(40, 1.0f), b(40, 1e-20f), c(40);
    {
      const rounding_mode set(mode);
      EXPECT_EQ(call<&::tavsAdd_32f>(a.data(), b.data(), c.data(), 40), tavStatusOk);
    }
    for (Tav32f v : c) EXPECT_EQ(v, mode == rounding_mode::up ? 1.00000012f : 1.0f) << std::hex << mode;
  }
}

TEST(Add, TopOf32u) {
  const Tav32u a[] = {0xFFFFFFFF, 0xFFFFFFFE, 0x80000000, 0x7FFFFFFF}, b[] = {1, 1, 0x80000000, 0x7FFFFFFF};
  Tav32u       c[4];
  EXPECT_EQ(call<&::tavsAdd_32u>(a, b, c, 4), tavStatusOk);
  EXPECT_EQ(std::vector(c, c + 4), (std::vector<Tav32u>{0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFE}));
}

// Twice such a length does not fit: the form of the parts tests its pointers, then refuses.
TEST(Add, LengthThatCannotBeDoubled) {
  Tav32fc x[1] = {};
  EXPECT_EQ(call<&::tavsAdd_32fc>(x, x, x, 0x40000000), tavStatusBadSize);
  EXPECT_EQ(call<&::tavsAdd_32fc>(x, x, x, 0x7FFFFFFF), tavStatusBadSize);
  EXPECT_EQ(call<&::tavsAdd_32fc_I>(x, nullptr, 0x40000000), tavStatusNullPointer);
}

}  // namespace

#define CASE(form) TAV_FAULTS(Add_##form, pointers_then_length)
CASE(8u16u)
CASE(16s)
CASE(16u) CASE(32u) CASE(16s32f) CASE(32f) CASE(64f) CASE(16s_I) CASE(16s32s_I) CASE(32f_I) CASE(64f_I)
#undef CASE

#define CASE(form) TAV_FAULTS(Add_##form, length_then_pointers)
    CASE(32fc) CASE(64fc) CASE(32fc_I) CASE(64fc_I)
#undef CASE
