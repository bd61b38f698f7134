// tavsAbs: magnitudes; the lowest integer saturates, and of floats only the sign bit changes.
#include "harness/faults.h"
#include "harness/forms.h"
#include "oracle/arithmetic.h"

using namespace test;

namespace {

const auto magnitude = [](auto a) { return oracle::magnitude(a); };

TEST(Abs, As16s) { check_one_source<&::tavsAbs_16s, &::tavsAbs_16s_I>(magnitude); }
TEST(Abs, As32s) { check_one_source<&::tavsAbs_32s, &::tavsAbs_32s_I>(magnitude); }
TEST(Abs, As32f) { check_one_source<&::tavsAbs_32f, &::tavsAbs_32f_I>(magnitude); }
TEST(Abs, As64f) { check_one_source<&::tavsAbs_64f, &::tavsAbs_64f_I>(magnitude); }

// Also where a comparison cannot tell: in vectors and in the scalar parts, the sign of a NaN is cleared.
template <auto* Export, class T> void check_signs(std::initializer_list<T> all) {
  for (T v : all) {
    const std::vector<T> src(37, v);
    std::vector<T>       dst(37, T(-1));
    EXPECT_EQ(call<Export>(src.data(), dst.data(), 37), tavStatusOk);
    for (T d : dst) EXPECT_FALSE(std::signbit(d)) << v;
  }
}

TEST(Abs, SignsOfZerosAndNans) {
  using f = std::numeric_limits<Tav32f>;
  using d = std::numeric_limits<Tav64f>;
  check_signs<&::tavsAbs_32f, Tav32f>({-0.0f, -f::quiet_NaN(), f::quiet_NaN(), -f::infinity()});
  check_signs<&::tavsAbs_64f, Tav64f>({-0.0, -d::quiet_NaN(), d::quiet_NaN(), -d::infinity()});
}

}  // namespace

#define CASE(type)                             \
  TAV_FAULTS(Abs_##type, pointers_then_length) \
  TAV_FAULTS(Abs_##type##_I, pointers_then_length)
CASE(16s) CASE(32s) CASE(32f) CASE(64f)
#undef CASE
