// Logic and shifts whose results bypass the cache: the same as the others. The cache size is injected.
#include "frame/cache.h"
#include "harness/layouts.h"
#include "oracle/logic.h"

using namespace test;

namespace {

struct small_cache {
  small_cache() : before(tav::tav_cache_bytes) { tav::tav_cache_bytes = 1000; }
  ~small_cache() { tav::tav_cache_bytes = before; }
  uint32_t before;
};

const std::set<int> sizes = lengths_around({0x20000, 0x20010, 0x20040, 0x20077}, 0);

TEST(LanewiseStreaming, AndTheSame) {
  const small_cache small;
  const auto        both = [](auto& dst, const auto& a, const auto& b) {
    for (size_t i = 0; i < dst.size(); ++i) dst[i] = a[i] & b[i];
    return tavStatusOk;
  };
  check_layouts<&::tavsAnd_8u, Tav8u, Tav8u, Tav8u>(
      sizes, [](Tav8u* dst, int len, const Tav8u* a, const Tav8u* b) { return call<&::tavsAnd_8u>(a, b, dst, len); },
      both);
  check_layouts<&::tavsAnd_8u_I, Tav8u, Tav8u>(
      sizes, [](Tav8u* dst, int len, const Tav8u* a) { return call<&::tavsAnd_8u_I>(a, dst, len); },
      [&](auto& dst, const auto& a) { return both(dst, a, std::vector(dst)); });
}

TEST(LanewiseStreaming, XorCTheSame) {
  const small_cache small;
  check_layouts<&::tavsXorC_16u, Tav16u, Tav16u>(
      sizes, [](Tav16u* dst, int len, const Tav16u* src) { return call<&::tavsXorC_16u>(src, 0x1234, dst, len); },
      [](auto& dst, const auto& src) {
        for (size_t i = 0; i < dst.size(); ++i) dst[i] = src[i] ^ 0x1234;
        return tavStatusOk;
      });
}

TEST(LanewiseStreaming, ShiftedTheSame) {
  const small_cache small;
  check_layouts<&::tavsRShiftC_32s, Tav32s, Tav32s>(
      sizes, [](Tav32s* dst, int len, const Tav32s* src) { return call<&::tavsRShiftC_32s>(src, 5, dst, len); },
      [](auto& dst, const auto& src) {
        for (size_t i = 0; i < dst.size(); ++i) dst[i] = oracle::shifted_right(src[i], 5);
        return tavStatusOk;
      });
}

}  // namespace
