// A work area that takes more than 31 bits: the call says that there is no memory, even if it was given one. No test
// can have such a context made, so a short one is changed.
#include <gtest/gtest.h>

#include "transform/fft/integer_record.h"
#include "transform/fft_integer_calls.h"

using namespace test;

namespace {

template <class F> void check_refusal() {
  using R = typename F::record;
  each_build<F::exported>([&] {
    constexpr int                      order = 6;
    constexpr size_t                   n     = 1 << order;
    const integer_context<R>           context(order, fftScaleNone, 0);
    std::vector<Tav8u>                 work(size_t(context.buf_size()));
    std::vector<typename F::src>       x(elements(F::from, n), 1);
    std::vector<typename F::dst>       y(elements(F::to, n), 2);
    const std::vector<typename F::dst> before = y;

    auto* const record = reinterpret_cast<tav::integer_record*>(context.get());
    for (int size : {INT32_MIN, INT32_MIN + 131136, -1}) {
      record->buf_size = size;
      EXPECT_EQ(context.buf_size(), 0);
      tavcore_fake_reset();
      for (Tav8u* buf : {static_cast<Tav8u*>(nullptr), work.data()})
        EXPECT_EQ(F::run(x.data(), y.data(), n, context.get(), 0, buf), tavStatusNoMemory);
      EXPECT_EQ(tavcore_fake_read().allocations, 0);
      EXPECT_EQ(y, before);
    }
  });
}

TEST(FftIntegerWorkArea, BeyondAWord) {
  check_refusal<fwd_16sc>();
  check_refusal<inv_32s>();
  check_refusal<fwd_pack_32s>();
  check_refusal<inv_32s16s>();
}

}  // namespace
