// tavsFlip, tavsSwapBytes: against the definition, and into the array itself.
#include "harness/faults.h"
#include "harness/layouts.h"
#include "oracle/move.h"

using namespace test;

namespace {

const std::set<int> lengths = lengths_around({192, 255, 256, 257, 1000});

template <auto* Export, auto* InPlace, class T> void check_flip() {
  check_layouts<Export, T, T>(
      lengths, [](T* dst, int len, const T* src) { return call<Export>(src, dst, len); },
      [](std::vector<T>& dst, const std::vector<T>& src) { return oracle::flip(dst, src), tavStatusOk; });
  const auto onto_itself = [](std::vector<T>& dst) { return oracle::flip(dst, std::vector<T>(dst)), tavStatusOk; };
  check_layouts<InPlace, T>(
      lengths, [](T* dst, int len) { return call<InPlace>(dst, len); }, onto_itself);
  check_layouts<Export, T>(
      lengths, [](T* dst, int len) { return call<Export>(dst, dst, len); }, onto_itself);
}

template <auto* Export, auto* InPlace, class T> void check_swap() {
  const auto swapped = [](std::vector<T>& dst, const std::vector<T>& src) {
    for (size_t i = 0; i < src.size(); ++i) dst[i] = oracle::swapped_bytes(src[i]);
    return tavStatusOk;
  };
  check_layouts<Export, T, T>(
      lengths, [](T* dst, int len, const T* src) { return call<Export>(src, dst, len); }, swapped);
  const auto onto_itself = [&](std::vector<T>& dst) { return swapped(dst, std::vector<T>(dst)); };
  check_layouts<InPlace, T>(
      lengths, [](T* dst, int len) { return call<InPlace>(dst, len); }, onto_itself);
  check_layouts<Export, T>(
      lengths, [](T* dst, int len) { return call<Export>(dst, dst, len); }, onto_itself);
}

}  // namespace

#define CASE(type)                                                                              \
  TEST(Flip, As##type) { check_flip<&::tavsFlip_##type, &::tavsFlip_##type##_I, Tav##type>(); } \
  TAV_FAULTS(Flip_##type, pointers_then_length)                                                 \
  TAV_FAULTS(Flip_##type##_I, pointers_then_length)
CASE(8u)
CASE(16u)
CASE(32f)
CASE(64f) CASE(32fc) CASE(64fc)
#undef CASE

#define CASE(type) \
  TEST(SwapBytes, As##type) { check_swap<&::tavsSwapBytes_##type, &::tavsSwapBytes_##type##_I, Tav##type>(); }
    CASE(16u) CASE(32u) CASE(64u)
#undef CASE

#define CASE(type)                                   \
  TAV_FAULTS(SwapBytes_##type, pointers_then_length) \
  TAV_FAULTS(SwapBytes_##type##_I, pointers_then_length)
        CASE(16u) CASE(24u) CASE(32u) CASE(64u)
#undef CASE

            TEST(Flip, OneElementStays) {
  Tav32f one = 4;
  EXPECT_EQ(call<&::tavsFlip_32f_I>(&one, 1), tavStatusOk);
  EXPECT_EQ(one, 4);
}

// Three bytes an element: lengths count elements, arrays bytes.
TEST(SwapBytes, As24u) {
  arena          from(2000), to(2000);
  source_of_data data(9);
  const auto     where = [](unsigned k) {
    return k < 16 ? placement{placement::inside, k}
                      : placement{k == 16 ? placement::begins_at_page : placement::ends_at_page};
  };
  for (int len = 1; len <= 200; ++len)
    for (unsigned k = 0; k < 18; ++k) {
      const auto   values = data.values<Tav8u>(size_t(3 * len)), want = oracle::swapped_bytes(values, 3);
      array<Tav8u> src(from, values.size(), where(k)), dst(to, values.size(), where((k * 5 + 1) % 18));
      src.assign(values);
      each_build<&::tavsSwapBytes_24u>([&] { ASSERT_EQ(call<&::tavsSwapBytes_24u>(src.data(), dst.data(), len), 0); });
      ASSERT_EQ(dst.values(), want) << "length " << len << ", place " << k;
      ASSERT_EQ(src.values(), values);
      each_build<&::tavsSwapBytes_24u_I>([&] { ASSERT_EQ(call<&::tavsSwapBytes_24u_I>(src.data(), len), 0); });
      ASSERT_EQ(src.values(), want) << "length " << len << ", place " << k;
      ASSERT_TRUE(src.guards_intact() && dst.guards_intact());
    }
}
