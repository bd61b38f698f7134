// Arrays beyond 4 GiB, where sizes have 64 bits: all but the last page of an array lies over one small piece of memory.
#include <gtest/gtest.h>
#include <string.h>
#include <sys/mman.h>
#include <unistd.h>

#include "harness/builds.h"

using namespace test;

namespace {

constexpr uint64_t repeated = uint64_t(4) << 30, piece = 4 << 20, last_page = 4096;

class long_array {
 public:
  long_array() {
    const int file = memfd_create("long_array", 0);
    if (file < 0 || ftruncate(file, piece) != 0) return;
    void* const all = mmap(nullptr, size_t(repeated + last_page), PROT_READ | PROT_WRITE,
                           MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (all == MAP_FAILED) return;
    begin_ = static_cast<char*>(all);
    for (uint64_t at = 0; at < repeated; at += piece)
      if (mmap(begin_ + at, piece, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED, file, 0) == MAP_FAILED) abort();
    close(file);
    memset(begin_, 0x11, piece);
    memset(last(), 0x11, last_page);
  }
  ~long_array() {
    if (begin_) munmap(begin_, size_t(repeated + last_page));
  }

  bool  ready() const { return begin_ != nullptr; }
  void* data() const { return begin_; }
  char* last() const { return begin_ + size_t(repeated); }  // the first byte beyond 4 GiB

 private:
  char* begin_ = nullptr;
};

TEST(Large, ReachesBeyond4GiB) {
  if (sizeof(size_t) == 4) GTEST_SKIP() << "such an array does not fit here";
  const long_array a, b;
  ASSERT_TRUE(a.ready() && b.ready());
  constexpr int len    = int(repeated / 8) + 1;
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
