// What holds for the records of all transforms, of floats and of integers: R has their exports.
#pragma once
#include <gtest/gtest.h>

#include <ostream>

#include "harness/arena.h"
#include "harness/builds.h"
#include "harness/tavcore_fake.h"

namespace test {

struct record_sizes {
  int  spec, init, work;
  bool operator==(const record_sizes&) const = default;
};
inline std::ostream& operator<<(std::ostream& out, const record_sizes& s) {
  return out << s.spec << ", " << s.init << ", " << s.work;
}

template <class R> record_sizes sizes_of(int order, int hint = 0) {
  record_sizes s{};
  EXPECT_EQ(call<R::get_size>(order, fftScaleNone, hint, &s.spec, &s.init, &s.work), tavStatusOk);
  return s;
}

struct sizes_row {
  int          order;
  record_sizes v8, s8;
  int          hint = 0;
};

template <class R> void check_sizes(const std::vector<sizes_row>& rows) {
  each_build<R::get_size>([&] {
    int        x;  // the variant shows in the greatest order of the 64-bit records
    const bool v8 = call<&::tavsFFTGetSize_C_64fc>(27, fftScaleNone, 0, &x, &x, &x) == tavStatusOk;
    for (const sizes_row& r : rows)
      EXPECT_EQ(sizes_of<R>(r.order, r.hint), v8 ? r.v8 : r.s8) << "order " << r.order << ", hint " << r.hint;
  });
}

// Set-up and a call, `transform(ctx, work)`, in blocks of just these sizes, between guard bytes and at all kinds of
// addresses.
template <class R, class Transform>
void check_set_up(int order, int hint, unsigned offset, const Transform& transform) {
  const record_sizes size     = sizes_of<R>(order, hint);
  const auto         block_at = [&](arena& home, int bytes) {
    return array<Tav8u>(home, size_t(bytes), {placement::inside, offset});
  };
  arena      spec_home(size_t(size.spec) + 64), init_home(size_t(size.init) + 64), work_home(size_t(size.work) + 64);
  const auto spec = block_at(spec_home, size.spec), init = block_at(init_home, size.init),
             work = block_at(work_home, size.work);

  typename R::record* ctx = nullptr;
  ASSERT_EQ(call<R::init>(&ctx, order, fftScaleNone, hint, spec.data(), size.init == 0 ? nullptr : init.data()), 0);
  ASSERT_TRUE(spec.guards_intact() && init.guards_intact());
  EXPECT_EQ(uintptr_t(ctx) % 64, 0u);
  EXPECT_LT(uintptr_t(ctx) - uintptr_t(spec.data()), 64u);
  const std::vector<Tav8u> record = spec.values();

  int buf_size = -1;
  EXPECT_EQ(call<R::get_buf_size>(ctx, &buf_size), tavStatusOk);
  EXPECT_EQ(buf_size, size.work);
  transform(ctx, work.data());
  EXPECT_TRUE(work.guards_intact());
  EXPECT_EQ(spec.values(), record) << "a call changed the record";

  EXPECT_EQ(call<R::free>(ctx), tavStatusOk);
  EXPECT_EQ(call<R::free>(ctx), tavStatusBadContext);
  EXPECT_TRUE(spec.guards_intact());
}

template <class R> void check_init_alloc(std::initializer_list<int> orders, int greatest) {
  each_build<R::init_alloc>([&] {
    typename R::record*        ctx  = nullptr;
    typename R::record** const none = nullptr;
    EXPECT_EQ(call<R::init_alloc>(none, 31, 3, 0), tavStatusNullPointer);
    EXPECT_EQ(call<R::init_alloc>(&ctx, 31, 3, 0), tavStatusBadOrder);
    EXPECT_EQ(call<R::init_alloc>(&ctx, greatest + 1, 3, 0), tavStatusBadFlag);
    EXPECT_EQ(call<R::init_alloc>(&ctx, greatest + 1, fftScaleNone, 0), tavStatusBadOrder);
    for (int order : orders) {
      const record_sizes size   = sizes_of<R>(order);
      const int          blocks = size.init == 0 ? 1 : 2;
      for (int granted = 0; granted < blocks; ++granted) {
        tavcore_fake_reset();
        tavcore_fake_refuse_after(granted);
        EXPECT_EQ(call<R::init_alloc>(&ctx, order, fftScaleNone, 0), tavStatusNoMemory);
        EXPECT_EQ(tavcore_fake_read().live, 0);
        EXPECT_EQ(ctx, nullptr);
      }
      tavcore_fake_reset();
      ASSERT_EQ(call<R::init_alloc>(&ctx, order, fftScaleNone, 0), tavStatusOk);
      EXPECT_EQ(tavcore_fake_read().allocations, blocks) << "order " << order;
      EXPECT_EQ(tavcore_fake_read().last_size, blocks == 1 ? size.spec : size.init);
      EXPECT_EQ(tavcore_fake_read().live, 1);
      EXPECT_EQ(call<R::free>(ctx), tavStatusOk);
      EXPECT_EQ(tavcore_fake_read().live, 0);
      EXPECT_EQ(tavcore_fake_read().damaged, 0);
      ctx = nullptr;
    }
    tavcore_fake_reset();
  });
}

template <class R> void check_set_up_in_every_mode(int hint) {
  each_build<R::init>([&] {
    for (int order : {3, 7, 11}) {
      const record_sizes              size = sizes_of<R>(order, hint);
      std::vector<Tav8u>              mem(size_t(size.spec)), init(size_t(size.init));
      std::vector<std::vector<Tav8u>> made;
      const uint32_t                  mine = _mm_getcsr();
      for (uint32_t mode : {0x0000u, 0x2000u, 0x4000u, 0x6000u}) {
        typename R::record* ctx = nullptr;
        _mm_setcsr(mine | mode);
        const TavStatus status = call<R::init>(&ctx, order, fftScaleBoth, hint, mem.data(), init.data());
        _mm_setcsr(mine);
        EXPECT_EQ(status, tavStatusOk);
        made.push_back(mem);
        EXPECT_EQ(made.back(), made.front()) << "order " << order << ", mode " << mode;
      }
    }
  });
}

}  // namespace test
