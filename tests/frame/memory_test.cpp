// tavsMalloc_*, tavsFree, tavsGetLibVersion.
#include "harness/builds.h"
#include "harness/faults.h"
#include "harness/tavcore_fake.h"

using namespace test;

namespace {

template <auto* Export> void check_malloc() {
  using T = std::remove_pointer_t<decltype(Export(1))>;
  each_build<Export>([] {
    tavcore_fake_reset();
    for (int len : {0, -1, std::numeric_limits<int>::min()}) EXPECT_EQ(call<Export>(len), nullptr) << len;
    EXPECT_EQ(tavcore_fake_read().allocations, 0) << "a length below 1 must not reach tavMalloc";

    for (int len : {1, 2, 3, 17, 64, 1000}) {
      T* const p = call<Export>(len);
      ASSERT_NE(p, nullptr);
      EXPECT_EQ(reinterpret_cast<uintptr_t>(p) % 64, 0u);
      EXPECT_EQ(tavcore_fake_read().last_size, int32_t(len * sizeof(T)));
      memset(static_cast<void*>(p), 0x11, size_t(len) * sizeof(T));
      call<&::tavsFree>(static_cast<void*>(p));
    }
    EXPECT_EQ(tavcore_fake_read().damaged, 0);

    tavcore_fake_refuse_after(0);
    EXPECT_EQ(call<Export>(5), nullptr);
    EXPECT_EQ(tavcore_fake_read().live, 0);
    tavcore_fake_reset();
  });
}

#define EACH_TYPE(CASE)                                                                                             \
  CASE(8u)                                                                                                          \
  CASE(8s)                                                                                                          \
  CASE(16u)                                                                                                         \
  CASE(16s) CASE(32u) CASE(32s) CASE(64s) CASE(32f) CASE(64f) CASE(8sc) CASE(16sc) CASE(32sc) CASE(64sc) CASE(32fc) \
      CASE(64fc)
#define CASE(type)                                                 \
  TEST(Malloc, As##type) { check_malloc<&::tavsMalloc_##type>(); } \
  TAV_FAULTS(Malloc_##type, no_status)
EACH_TYPE(CASE)
#undef CASE

TAV_FAULTS(Free, no_status)
TAV_FAULTS(GetLibVersion, no_status)

// The size in bytes has the width of size_t: 32 bits wrap and are passed on, 64 bits are refused beyond 2^31 - 1.
TEST(Malloc, SizesBeyondTheCount) {
  tavcore_fake_reset();
  EXPECT_EQ(call<&::tavsMalloc_64fc>(0x10000000), nullptr);
  EXPECT_EQ(call<&::tavsMalloc_16s>(0x40000000), nullptr);
  Tav32s* const wrapped = call<&::tavsMalloc_32s>(0x40000001);
  if (sizeof(size_t) > 4) {
    EXPECT_EQ(tavcore_fake_read().allocations, 0);
    EXPECT_EQ(wrapped, nullptr);
    return;
  }
  EXPECT_EQ(tavcore_fake_read().allocations, 3);
  EXPECT_EQ(tavcore_fake_read().last_size, 4);
  ASSERT_NE(wrapped, nullptr);
  *wrapped = 7;
  call<&::tavsFree>(static_cast<void*>(wrapped));
  EXPECT_EQ(tavcore_fake_read().damaged, 0);
}

TEST(Free, NullDoesNothing) {
  tavcore_fake_reset();
  call<&::tavsFree>(static_cast<void*>(nullptr));
  EXPECT_EQ(tavcore_fake_read().releases, 0);
}

TEST(GetLibVersion, TellsTheRunningVariant) {
  int seen = 0;
  each_build<&::tavsGetLibVersion>([&] {
    const TavLibVersion* const v = call<&::tavsGetLibVersion>();
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(v, call<&::tavsGetLibVersion>());
    EXPECT_EQ(v->major, 8);
    EXPECT_EQ(v->minor, 1);
    EXPECT_EQ(v->majorBuild, 0);
    EXPECT_EQ(v->build, 41664);
    EXPECT_STREQ(v->version, "8.1.0 (r41664)");
    EXPECT_STREQ(v->buildDate, "Jan 15 2014");
    uint32_t code;
    memcpy(&code, v->targetCode, 4);
    ASSERT_TRUE(code == 14454 || code == 14451) << code;
    seen |= code == 14454 ? 1 : 2;
    EXPECT_STREQ(v->name, code == 14454 ? "tavSP SSSE3 (v8)" : "tavSP Wren (s8)");
  });
  // The finished library shows one of the two: what the mask of the environment asks for.
  const char* const mask     = getenv("TAVCORE_MASK");
  const bool        in_order = mask && (strtoul(mask, nullptr, 0) & 0x30) == 0x30;
  EXPECT_EQ(seen, builds_of(true).size() == 2 ? 3 : in_order ? 2 : 1);
}

TEST(GetLibVersion, RecordHasNoPadding) {
  EXPECT_EQ(offsetof(TavLibVersion, targetCode), 16u);
  EXPECT_EQ(offsetof(TavLibVersion, name), sizeof(void*) == 4 ? 20u : 24u);
  EXPECT_EQ(sizeof(TavLibVersion), sizeof(void*) == 4 ? 32u : 48u);
}

}  // namespace
