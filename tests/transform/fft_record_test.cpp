// The records of the transforms of floats: the sizes they report, and that set-up and calls keep to them; the order of
// the checks; what a failure leaves behind.
#include <gtest/gtest.h>

#include "transform/fft_calls.h"
#include "transform/fft_faults.h"
#include "transform/fft_records.h"

using namespace test;

namespace {

template <class F> class FftRecord : public testing::Test {};
using families = testing::Types<fft_32fc, fft_32f, fft_64fc, fft_64f, fft_perm_32f, fft_perm_64f>;

// The greatest order of variant v8. A record of real doubles has a lower one than that of singles, and s8 one lower
// yet.
template <class F> constexpr int greatest = (sizeof(typename F::part) == 4 ? 28 : 27) + is_real<F>;
TYPED_TEST_SUITE(FftRecord, families);

template <class F> void check_single_sizes() {
  check_sizes<F>({{0, {152, 0, 0}, {152, 0, 0}},
                  {5, {152, 0, 0}, {152, 0, 0}},
                  {6, {896, 0, 576}, {896, 0, 576}},
                  {10, {9536, 0, 8256}, {9536, 0, 8256}},
                  {11, {18752, 2176, 16448}, {18752, 2176, 16448}},
                  {16, {590144, 65664, 524352}, {360768, 65664, 32832}},
                  {18, {1442112, 262272, 131136}, {1182016, 262272, 131136}}});
}
template <class F> void check_real_single_sizes() {
  check_sizes<F>({{4, {152, 0, 0}, {152, 0, 0}},
                  {5, {320, 0, 0}, {320, 0, 0}},
                  {6, {448, 0, 0}, {448, 0, 0}},
                  {7, {1408, 0, 576}, {1408, 0, 576}},
                  {11, {17728, 2176, 8256}, {17728, 2176, 8256}},
                  {19, {1460544, 524416, 131136}, {1200448, 524416, 131136}}});
}
template <class F> void check_real_double_sizes() {
  check_sizes<F>({{5, {160, 0, 0}, {160, 0, 0}},
                  {6, {704, 0, 0}, {704, 0, 0}},
                  {7, {2432, 0, 1088}, {2432, 0, 0}},
                  {14, {270656, 32896, 131136}, {270656, 32896, 0}}});
}
template <class F> void check_double_sizes() {
  check_sizes<F>({{0, {160, 0, 0}, {160, 0, 0}},
                  {6, {1408, 0, 1088}, {1408, 0, 0}},
                  {12, {69952, 8320, 65600}, {69952, 8320, 0}},
                  {13, {139584, 16512, 131136}, {139584, 16512, 0}},
                  {14, {278848, 32896, 262208}, {279936, 32896, 32832}}});
}

TEST(FftRecordSizes, As32fc) { check_single_sizes<fft_32fc>(); }
TEST(FftRecordSizes, As32f) { check_single_sizes<fft_32f>(); }
TEST(FftRecordSizes, As64fc) { check_double_sizes<fft_64fc>(); }
TEST(FftRecordSizes, As64f) { check_double_sizes<fft_64f>(); }
TEST(FftRecordSizes, AsReal32f) { check_real_single_sizes<fft_perm_32f>(); }
TEST(FftRecordSizes, AsReal64f) { check_real_double_sizes<fft_perm_64f>(); }

template <class F> void check_keeping(int order, unsigned offset) {
  using T = typename F::part;
  check_set_up<F>(order, 0, offset, [&](auto* ctx, Tav8u* work) {
    const size_t   n = size_t(1) << order;
    std::vector<T> x(2 * n, T(1));
    ASSERT_EQ((run_fft<F, false>(x.data(), x.data(), n, ctx, work)), tavStatusOk);
    EXPECT_EQ(x[0], T(n));
  });
}

TYPED_TEST(FftRecord, KeepsToItsSizes) {
  each_build<TypeParam::init>([&] {
    for (int order = 0; order <= 20; ++order)
      for (unsigned offset : {0u, 1u, 8u, 15u}) {
        SCOPED_TRACE(testing::Message() << "order " << order << ", offset " << offset);
        if (order < 16 || offset == 1) check_keeping<TypeParam>(order, offset);
        if (this->HasFatalFailure()) return;
      }
  });
}

TYPED_TEST(FftRecord, SizeQueryChecksInOrder) {
  using F = TypeParam;
  each_build<F::get_size>([&] {
    int        a = -7, b = -7, c = -7;
    int* const null = nullptr;
    for (int order : {-1, 31, 1000, INT32_MIN})
      EXPECT_EQ(call<F::get_size>(order, 3, 0, null, null, null), tavStatusBadOrder);
    for (int order : {3, greatest<F> + 1, 30}) {
      EXPECT_EQ(call<F::get_size>(order, 3, 0, null, &b, &c), tavStatusNullPointer);
      EXPECT_EQ(call<F::get_size>(order, 3, 0, &a, null, &c), tavStatusNullPointer);
      EXPECT_EQ(call<F::get_size>(order, 3, 0, &a, &b, null), tavStatusNullPointer);
      for (int flag : {0, 3, 5, 6, 7, 9, 16, -1})
        EXPECT_EQ(call<F::get_size>(order, flag, 0, &a, &b, &c), tavStatusBadFlag);
    }
    EXPECT_EQ(call<F::get_size>(greatest<F> + 1, fftScaleBoth, 0, &a, &b, &c), tavStatusBadOrder);
    EXPECT_EQ((record_sizes{a, b, c}), (record_sizes{-7, -7, -7}));
    for (int hint : {0, 1, 2, -16}) EXPECT_EQ(call<F::get_size>(4, fftScaleBoth, hint, &a, &b, &c), tavStatusOk);
  });
}

TYPED_TEST(FftRecord, GreatestOrders) {
  using F                 = TypeParam;
  const bool       single = sizeof(typename F::part) == 4;
  std::vector<int> limits;
  each_build<F::get_size>([&] {
    int a, b, c, order = 30;
    while (call<F::get_size>(order, fftScaleNone, 0, &a, &b, &c) != tavStatusOk) --order;
    EXPECT_TRUE(order == greatest<F> || (!single && order == greatest<F> - 1));
    EXPECT_TRUE(a > 0 && b > 0 && c > 0);
    limits.push_back(order);
  });
  EXPECT_TRUE(single || limits.size() == 1 || limits[0] == limits[1] + 1);
}

TYPED_TEST(FftRecord, InitChecksInOrder) {
  using F = TypeParam;
  each_build<F::init>([&] {
    alignas(64) Tav8u          block[256];
    std::vector<Tav8u>         large(size_t(sizes_of<F>(11).spec));
    typename F::record*        ctx  = nullptr;
    typename F::record** const none = nullptr;
    EXPECT_EQ(call<F::init>(none, 31, 3, 0, nullptr, nullptr), tavStatusNullPointer);
    for (int order : {-1, greatest<F> + 1, 31})
      EXPECT_EQ(call<F::init>(&ctx, order, 3, 0, nullptr, nullptr), tavStatusBadOrder);
    EXPECT_EQ(call<F::init>(&ctx, 3, 3, 0, nullptr, nullptr), tavStatusNullPointer);

    memset(block, 0xFF, sizeof block);
    EXPECT_EQ(call<F::init>(&ctx, 3, 3, 0, block + 1, nullptr), tavStatusBadFlag);
    EXPECT_EQ(*reinterpret_cast<uint32_t*>(block + 64), 0u) << "a failed set-up leaves a dead record";
    memset(large.data(), 0xFF, large.size());
    Tav8u* const aligned = large.data() + (-uintptr_t(large.data()) & 63);
    EXPECT_EQ(call<F::init>(&ctx, 11, fftScaleNone, 0, large.data(), nullptr), tavStatusNullPointer);
    EXPECT_EQ(*reinterpret_cast<uint32_t*>(aligned), 0u);
    EXPECT_EQ(ctx, nullptr);
    for (int hint : {0, 1, 7, -1}) EXPECT_EQ(call<F::init>(&ctx, 2, fftScaleNone, hint, block, nullptr), tavStatusOk);
  });
}

TYPED_TEST(FftRecord, InitAllocTakesAndGivesBack) { check_init_alloc<TypeParam>({4, 8, 12}, greatest<TypeParam>); }

TYPED_TEST(FftRecord, SameInEveryRoundingMode) { check_set_up_in_every_mode<TypeParam>(0); }

// Without a work area a call allocates, and gives back; refused, it writes nothing.
TYPED_TEST(FftRecord, CallsAllocateWhereTheyMust) {
  using F = TypeParam;
  each_build<F::forward>([&] {
    for (int order : {5, 6, 9, 14}) {
      fft_context<F>                      context(order, fftScaleNone);
      const size_t                        n = size_t(1) << order;
      std::vector<typename F::part>       x(2 * n, 1), y(2 * n, 2);
      const std::vector<typename F::part> before = y;
      const int                           size   = context.buf_size();
      const bool                          needs  = size != 0;
      tavcore_fake_reset();
      tavcore_fake_refuse_after(0);
      EXPECT_EQ((run_fft<F, false>(x.data(), y.data(), n, context.get(), nullptr)),
                needs ? tavStatusNoMemory : tavStatusOk);
      EXPECT_EQ((run_fft<F, true>(y.data(), y.data(), n, context.get(), nullptr)),
                needs ? tavStatusNoMemory : tavStatusOk);
      EXPECT_TRUE(!needs || y == before);
      tavcore_fake_reset();
      EXPECT_EQ((run_fft<F, true>(x.data(), y.data(), n, context.get(), nullptr)), tavStatusOk);
      EXPECT_EQ(tavcore_fake_read().allocations, needs ? 1 : 0);
      EXPECT_TRUE(!needs || tavcore_fake_read().last_size == size - 64);
      EXPECT_EQ(tavcore_fake_read().live, 1) << "only the context itself";
    }
  });
}

}  // namespace

#define CASE(type, id)                                    \
  TAV_FAULTS(FFTGetSize_##type, sizes_in_order)           \
  TAV_FAULTS(FFTInit_##type, init_in_order<30>)           \
  TAV_FAULTS(FFTInitAlloc_##type, init_alloc_in_order)    \
  TAV_FAULTS(FFTFree_##type, context_then_data<id, 0, 1>) \
  TAV_FAULTS(FFTGetBufSize_##type, context_then_data<id, 0, 2>)
CASE(C_32fc, 4)
CASE(C_32f, 5)
CASE(R_32f, 6)
CASE(C_64fc, 7)
CASE(C_64f, 8)
CASE(R_64f, 9)
#undef CASE

#define CASE(name, id)                               \
  TAV_FAULTS(FFT##name, context_then_data<id, 2, 3>) \
  TAV_FAULTS(FFT##name##_I, context_then_data<id, 1, 2>)
// clang-format off
CASE(Fwd_CToC_32fc, 4)
CASE(Inv_CToC_32fc, 4)
CASE(Fwd_RToPerm_32f, 6)
CASE(Fwd_RToPack_32f, 6)
CASE(Fwd_RToCCS_32f, 6)
CASE(Inv_PermToR_32f, 6)
CASE(Inv_PackToR_32f, 6)
CASE(Inv_CCSToR_32f, 6)
CASE(Fwd_RToPerm_64f, 9)
CASE(Fwd_RToPack_64f, 9)
CASE(Fwd_RToCCS_64f, 9)
CASE(Inv_PermToR_64f, 9)
CASE(Inv_PackToR_64f, 9)
CASE(Inv_CCSToR_64f, 9)
CASE(Fwd_CToC_64fc, 7)
CASE(Inv_CToC_64fc, 7)
// clang-format on
#undef CASE

#define CASE(name, id)                               \
  TAV_FAULTS(FFT##name, context_then_data<id, 4, 5>) \
  TAV_FAULTS(FFT##name##_I, context_then_data<id, 2, 3>)
// clang-format off
CASE(Fwd_CToC_32f, 5)
CASE(Inv_CToC_32f, 5)
CASE(Fwd_CToC_64f, 8)
CASE(Inv_CToC_64f, 8)
// clang-format on
#undef CASE
