// The records of the transforms of integers: the sizes they report, and that set-up and calls keep to them; the order
// of the checks; what a failure leaves behind; what the calls allocate.
#include <gtest/gtest.h>

#include "transform/fft_faults.h"
#include "transform/fft_integer_calls.h"
#include "transform/fft_records.h"

using namespace test;

namespace {

// By record, with one of its calls.
template <class F> class FftIntegerRecord : public testing::Test {};
using forms = testing::Types<fwd_16sc, fwd_16s, fwd_32sc, fwd_32s, fwd_ccs_16s, fwd_ccs_32s, fwd_16s32s>;
TYPED_TEST_SUITE(FftIntegerRecord, forms);

sizes_row alike(int order, int hint, record_sizes both) { return {order, both, both, hint}; }

TEST(FftIntegerSizes, C_16sc) {
  for (int hint : {0, 1, 2, -1, -16}) check_sizes<record_16sc>({alike(0, hint, {116, 0, 0})});
  for (int hint : {0, 1})
    check_sizes<record_16sc>({alike(1, hint, {256, 128, 80}), alike(2, hint, {256, 128, 96}),
                              alike(3, hint, {256, 128, 128}), alike(4, hint, {280, 64, 192})});
  for (int hint : {2, -1, -16})
    check_sizes<record_16sc>({alike(2, hint, {280, 64, 96}), alike(4, hint, {280, 64, 192})});
  check_sizes<record_16sc>({alike(6, 0, {1024, 64, 1152}), alike(11, 0, {18880, 2240, 32896})});
}
TEST(FftIntegerSizes, C_16s) {
  check_sizes<record_16s>({alike(0, 2, {116, 0, 0}), alike(1, 0, {256, 128, 88}), alike(3, 0, {256, 128, 160}),
                           alike(3, 2, {280, 64, 128}), alike(4, 0, {280, 64, 192})});
}
TEST(FftIntegerSizes, R_16s) {
  check_sizes<record_r16s>({alike(0, -16, {116, 0, 0}), alike(1, 1, {320, 128, 80}), alike(3, 0, {320, 128, 104}),
                            alike(3, 2, {280, 64, 104}), alike(4, 0, {280, 64, 136}), alike(7, 0, {1536, 64, 1160})});
}
TEST(FftIntegerSizes, C_32sc) {
  check_sizes<record_32sc>({alike(0, 0, {288, 0, 80}),
                            alike(3, 0, {288, 0, 192}),
                            {6, {1536, 0, 2176}, {1536, 0, 1088}},
                            {12, {70080, 8384, 131200}, {70080, 8384, 65600}}});
}
TEST(FftIntegerSizes, C_32s) {
  check_sizes<record_32s>({alike(3, 5, {288, 0, 192}), {6, {1536, 0, 2176}, {1536, 0, 1088}}});
}
TEST(FftIntegerSizes, R_32s) {
  check_sizes<record_r32s>(
      {alike(0, 0, {288, 0, 88}), alike(3, 0, {288, 0, 144}), {7, {2560, 0, 2192}, {2560, 0, 1104}}});
}
TEST(FftIntegerSizes, R_16s32s) {
  check_sizes<record_r16s32s>({alike(0, 0, {280, 0, 76}), alike(6, 0, {576, 0, 328})});
}

template <class F> void check_keeping(int order, int hint, unsigned offset) {
  check_set_up<typename F::record>(order, hint, offset, [&](auto* ctx, Tav8u* work) {
    const size_t                 n = size_t(1) << order;
    std::vector<typename F::src> x(elements(F::from, n), 1);
    std::vector<typename F::dst> y(elements(F::to, n));
    ASSERT_EQ(F::run(x.data(), y.data(), n, ctx, 0, work), tavStatusOk);
    EXPECT_EQ(y[0], std::min<long>(long(n), std::numeric_limits<typename F::dst>::max()));
  });
}

TYPED_TEST(FftIntegerRecord, KeepsToItsSizes) {
  each_build<TypeParam::record::init>([&] {
    for (int order = 0; order <= 17; ++order)
      for (int hint : {0, 1, 2, -16})
        for (unsigned offset : {0u, 1u, 8u, 15u}) {
          SCOPED_TRACE(testing::Message() << "order " << order << ", hint " << hint << ", offset " << offset);
          if (order < 8 || (offset == 1 && hint == 0)) check_keeping<TypeParam>(order, hint, offset);
          if (this->HasFatalFailure()) return;
        }
  });
}

// Of variant v8; the doubles of s8 end one order earlier.
template <class R> constexpr int greatest = (sizeof(inner_float<R>) == 4 ? 28 : 27) + real_record<R>;

TYPED_TEST(FftIntegerRecord, SizeQueryChecksInOrder) {
  using R = typename TypeParam::record;
  each_build<R::get_size>([&] {
    int        a = -7, b = -7, c = -7;
    int* const null = nullptr;
    for (int order : {-1, 31, 1000, INT32_MIN})
      EXPECT_EQ(call<R::get_size>(order, 3, 0, null, null, null), tavStatusBadOrder);
    for (int order : {0, 3, greatest<R> + 1, 30}) {
      EXPECT_EQ(call<R::get_size>(order, 3, 0, null, &b, &c), tavStatusNullPointer);
      EXPECT_EQ(call<R::get_size>(order, 3, 0, &a, null, &c), tavStatusNullPointer);
      EXPECT_EQ(call<R::get_size>(order, 3, 0, &a, &b, null), tavStatusNullPointer);
      for (int flag : {0, 3, 5, 6, 7, 9, 16, -1})
        EXPECT_EQ(call<R::get_size>(order, flag, 0, &a, &b, &c), tavStatusBadFlag);
    }
    EXPECT_EQ(call<R::get_size>(greatest<R> + 1, fftScaleBoth, 0, &a, &b, &c), tavStatusBadOrder);
    EXPECT_EQ((record_sizes{a, b, c}), (record_sizes{-7, -7, -7}));
  });
}

// The work areas of the greatest orders take more than 31 bits, and their sizes wrap; the limits stand.
TYPED_TEST(FftIntegerRecord, GreatestOrders) {
  using R = typename TypeParam::record;
  std::vector<int> limits;
  each_build<R::get_size>([&] {
    int a, b, c, order = 30;
    while (call<R::get_size>(order, fftScaleNone, 0, &a, &b, &c) != tavStatusOk) --order;
    EXPECT_TRUE(order == greatest<R> || (sizeof(inner_float<R>) == 8 && order == greatest<R> - 1)) << order;
    EXPECT_TRUE(a > 0 && b > 0);
    EXPECT_EQ(c < 0, order == greatest<R>);
    limits.push_back(order);
  });
  EXPECT_TRUE(limits.size() == 1 || limits[0] == limits[1] + (sizeof(inner_float<R>) == 8));
}

uint32_t first_word(const Tav8u* p) {
  uint32_t word;
  memcpy(&word, p, sizeof word);
  return word;
}

TYPED_TEST(FftIntegerRecord, InitChecksInOrder) {
  using R = typename TypeParam::record;
  each_build<R::init>([&] {
    alignas(64) Tav8u          block[4096], init[64];
    typename R::record*        ctx   = nullptr;
    typename R::record** const none  = nullptr;
    const auto                 fails = [&](int order, int flag, Tav8u* initBuf, TavStatus status) {
      memset(block, 0xFF, sizeof block);
      EXPECT_EQ(call<R::init>(&ctx, order, flag, 0, block + 1, initBuf), status)
          << "order " << order << ", flag " << flag;
      EXPECT_EQ(first_word(block + 64), 0u) << "a failed set-up leaves a dead record";
      EXPECT_EQ(ctx, nullptr);
    };
    EXPECT_EQ(call<R::init>(none, 31, 3, 0, nullptr, nullptr), tavStatusNullPointer);
    for (int order : {-1, 31, INT32_MIN})
      EXPECT_EQ(call<R::init>(&ctx, order, 3, 0, nullptr, nullptr), tavStatusBadOrder);
    for (int order : {3, 30}) EXPECT_EQ(call<R::init>(&ctx, order, 3, 0, nullptr, nullptr), tavStatusNullPointer);

    const int beyond = greatest<R> + 1;
    for (int order : {0, 1, 3, 4}) fails(order, 3, nullptr, tavStatusBadFlag);
    if (has_fixed_point<R>) {
      fails(beyond, 3, nullptr, tavStatusBadFlag);
      for (int order : {1, 3, 4, beyond}) fails(order, fftScaleNone, nullptr, tavStatusNullPointer);
      fails(beyond, fftScaleNone, init, tavStatusBadOrder);
      EXPECT_EQ(call<R::init>(&ctx, 0, fftScaleNone, 0, block, nullptr), tavStatusOk);
    } else {
      fails(beyond, 3, nullptr, tavStatusBadOrder);
      EXPECT_EQ(call<R::init>(&ctx, 4, fftScaleNone, 0, block, nullptr), tavStatusOk);
    }
  });
}

TYPED_TEST(FftIntegerRecord, InitWantsItsSetUpArea) {
  using R = typename TypeParam::record;
  each_build<R::init>([&] {
    std::vector<Tav8u>  large(size_t(sizes_of<R>(11, 0).spec), 0xFF);
    Tav8u* const        aligned = large.data() + (-uintptr_t(large.data()) & 63);
    typename R::record* ctx     = nullptr;
    EXPECT_EQ(call<R::init>(&ctx, 11, fftScaleNone, 0, large.data(), nullptr), tavStatusNullPointer);
    EXPECT_EQ(first_word(aligned), 0u);
    EXPECT_EQ(call<R::init>(&ctx, 11, 3, 0, large.data(), nullptr), tavStatusBadFlag);
    EXPECT_EQ(ctx, nullptr);
  });
}

TYPED_TEST(FftIntegerRecord, InitAllocTakesAndGivesBack) {
  using R = typename TypeParam::record;
  check_init_alloc<R>({0, 2, 4, 8, 12}, greatest<R>);
}

// Without a work area a call allocates once, and gives back; refused, it writes nothing. With one it allocates nothing.
TYPED_TEST(FftIntegerRecord, CallsAllocateWhereTheyMust) {
  using F = TypeParam;
  using R = typename F::record;
  each_build<F::exported>([&] {
    for (int order : {0, 1, 3, 5, 6, 9, 13}) {
      const integer_context<R>           context(order, fftScaleNone, 0);
      const size_t                       n = size_t(1) << order;
      std::vector<typename F::src>       x(elements(F::from, n), 1);
      std::vector<typename F::dst>       y(elements(F::to, n), 2);
      const std::vector<typename F::dst> before = y;
      const int                          size   = context.buf_size();
      const bool                         needs  = size != 0;
      EXPECT_EQ(needs, order != 0 || !has_fixed_point<R>);
      tavcore_fake_reset();
      tavcore_fake_refuse_after(0);
      EXPECT_EQ(F::run(x.data(), y.data(), n, context.get(), 0, nullptr), needs ? tavStatusNoMemory : tavStatusOk);
      EXPECT_TRUE(!needs || y == before);
      std::vector<Tav8u> work(size_t(size) + 1);
      tavcore_fake_reset();
      tavcore_fake_refuse_after(0);
      EXPECT_EQ(F::run(x.data(), y.data(), n, context.get(), 0, work.data()), tavStatusOk);
      EXPECT_EQ(tavcore_fake_read().allocations, 0);
      tavcore_fake_reset();
      EXPECT_EQ(F::run(x.data(), y.data(), n, context.get(), 0, nullptr), tavStatusOk);
      EXPECT_EQ(tavcore_fake_read().allocations, needs ? 1 : 0);
      EXPECT_TRUE(!needs || tavcore_fake_read().last_size == size - 64);
      EXPECT_EQ(tavcore_fake_read().live, 1) << "only the context itself";
      EXPECT_EQ(tavcore_fake_read().damaged, 0);
    }
  });
}

TYPED_TEST(FftIntegerRecord, SetUpInEveryRoundingMode) { check_set_up_in_every_mode<typename TypeParam::record>(2); }

}  // namespace

#define CASE(type, id)                                    \
  TAV_FAULTS(FFTGetSize_##type, sizes_in_order)           \
  TAV_FAULTS(FFTInit_##type, init_in_order<31>)           \
  TAV_FAULTS(FFTInitAlloc_##type, init_alloc_in_order)    \
  TAV_FAULTS(FFTFree_##type, context_then_data<id, 0, 1>) \
  TAV_FAULTS(FFTGetBufSize_##type, context_then_data<id, 0, 2>)
// clang-format off
CASE(C_16sc, 1)
CASE(C_16s, 2)
CASE(R_16s, 3)
CASE(C_32sc, 0x434D414C)
CASE(C_32s, 0x434D414D)
CASE(R_32s, 0x434D414E)
CASE(R_16s32s, 0x434D414F)
// clang-format on
#undef CASE

#define CASE(name, id)                                     \
  TAV_FAULTS(FFT##name##_Sfs, context_then_data<id, 2, 3>) \
  TAV_FAULTS(FFT##name##_ISfs, context_then_data<id, 1, 2>)
// clang-format off
CASE(Fwd_CToC_16sc, 1)
CASE(Inv_CToC_16sc, 1)
CASE(Fwd_CToC_32sc, 0x434D414C)
CASE(Inv_CToC_32sc, 0x434D414C)
CASE(Fwd_RToPerm_16s, 3)
CASE(Fwd_RToPack_16s, 3)
CASE(Fwd_RToCCS_16s, 3)
CASE(Inv_PermToR_16s, 3)
CASE(Inv_PackToR_16s, 3)
CASE(Inv_CCSToR_16s, 3)
CASE(Fwd_RToPerm_32s, 0x434D414E)
CASE(Fwd_RToPack_32s, 0x434D414E)
CASE(Fwd_RToCCS_32s, 0x434D414E)
CASE(Inv_PermToR_32s, 0x434D414E)
CASE(Inv_PackToR_32s, 0x434D414E)
CASE(Inv_CCSToR_32s, 0x434D414E)
// clang-format on
#undef CASE

TAV_FAULTS(FFTFwd_RToCCS_16s32s_Sfs, context_then_data<0x434D414F, 2, 3>)
TAV_FAULTS(FFTInv_CCSToR_32s16s_Sfs, context_then_data<0x434D414F, 2, 3>)

#define CASE(name, id)                                     \
  TAV_FAULTS(FFT##name##_Sfs, context_then_data<id, 4, 5>) \
  TAV_FAULTS(FFT##name##_ISfs, context_then_data<id, 2, 3>)
// clang-format off
CASE(Fwd_CToC_16s, 2)
CASE(Inv_CToC_16s, 2)
CASE(Fwd_CToC_32s, 0x434D414D)
CASE(Inv_CToC_32s, 0x434D414D)
// clang-format on
#undef CASE
