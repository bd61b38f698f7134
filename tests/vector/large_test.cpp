// Arrays beyond 4 GiB, where sizes have 64 bits.
#include "harness/builds.h"
#include "harness/long_array.h"

using namespace test;

namespace {

TEST(Large, ReachesBeyond4GiB) {
  if (sizeof(size_t) == 4) GTEST_SKIP() << "such an array does not fit here";
  const long_array a, b;
  ASSERT_TRUE(a.ready() && b.ready());
  constexpr int len    = int(long_array::repeated / 8) + 1;
  const auto    beyond = [](const long_array& x) { return Tav64u(*reinterpret_cast<const Tav64u*>(x.last())); };

  EXPECT_EQ(call<&::tavsSet_64s>(Tav64s(42), static_cast<Tav64s*>(a.data()), len), tavStatusOk);
  EXPECT_EQ(beyond(a), 42u);
  EXPECT_EQ(a.last()[8], 0x11) << "nothing behind the last element";
  EXPECT_EQ(call<&::tavsCopy_64s>(static_cast<const Tav64s*>(a.data()), static_cast<Tav64s*>(b.data()), len),
            tavStatusOk);
  EXPECT_EQ(beyond(b), 42u);
  EXPECT_EQ(b.last()[8], 0x11);
  EXPECT_EQ(call<&::tavsZero_64f>(static_cast<Tav64f*>(a.data()), len), tavStatusOk);
  EXPECT_EQ(beyond(a), 0u);
  EXPECT_EQ(a.last()[8], 0x11);
  EXPECT_EQ(call<&::tavsMove_64s>(static_cast<const Tav64s*>(a.data()), static_cast<Tav64s*>(b.data()), len),
            tavStatusOk);
  EXPECT_EQ(beyond(b), 0u);
}

}  // namespace
