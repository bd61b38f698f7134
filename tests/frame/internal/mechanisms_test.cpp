// Work buffers, records, orders of checks and rounding scopes.
#include <gtest/gtest.h>

#include <fenv.h>

#include <vector>

#include "frame/checks.h"
#include "frame/rounding.h"
#include "frame/work_buffer.h"
#include "harness/arena.h"
#include "harness/call.h"
#include "harness/tavcore_fake.h"

using namespace test;

namespace tav::TAV_VARIANT {
namespace {

TEST(WorkBuffer, CallersBlockIsAlignedUp) {
  alignas(64) Tav8u block[256];
  tavcore_fake_reset();
  EXPECT_EQ(work_buffer(block, 100).data(), block);
  for (int k = 1; k <= 64; ++k) EXPECT_EQ(work_buffer(block + k, 100).data(), block + 64);
  EXPECT_EQ(work_buffer(block + 65, 100).data(), block + 128);
  EXPECT_EQ(tavcore_fake_read().allocations, 0);
}

TEST(WorkBuffer, NullAllocatesForTheScope) {
  tavcore_fake_reset();
  {
    const work_buffer work(nullptr, 1000);
    EXPECT_FALSE(work.failed());
    EXPECT_EQ(reinterpret_cast<uintptr_t>(work.data()) % 64, 0u);
    EXPECT_EQ(tavcore_fake_read().last_size, 1000);
    EXPECT_EQ(tavcore_fake_read().live, 1);
  }
  EXPECT_EQ(tavcore_fake_read().live, 0);
}

TEST(WorkBuffer, NotNeededNotTaken) {
  tavcore_fake_reset();
  Tav8u block[1];
  for (int none : {0, -1}) {
    EXPECT_FALSE(work_buffer(nullptr, none).failed());
    EXPECT_FALSE(work_buffer(block, none).failed());
  }
  EXPECT_EQ(tavcore_fake_read().allocations, 0);
}

TEST(WorkBuffer, RefusalShows) {
  tavcore_fake_reset();
  tavcore_fake_refuse_after(0);
  EXPECT_TRUE(work_buffer(nullptr, 64).failed());
  EXPECT_EQ(tavcore_fake_read().releases, 0);
  tavcore_fake_reset();
}

struct record {
  record_id id;
  origin    from;
};

TEST(Record, IdWords) {
  EXPECT_EQ(uint32_t(record_id::fft_c_16sc), 1u);
  EXPECT_EQ(uint32_t(record_id::wt_inv_32f16s), 54u);
  EXPECT_EQ(uint32_t(record_id::hilbert_32f32fc), 0x434D4145u);
  EXPECT_EQ(uint32_t(record_id::fft_r_16s32s), 0x434D414Fu);
  EXPECT_EQ(uint32_t(record_id::lms_32f), 0x4C4D5331u);
  EXPECT_EQ(uint32_t(record_id::lms32f_16s), 0x4C4D5300u);
  EXPECT_EQ(uint32_t(record_id::fir_sr_32f), 0x46493031u);
  EXPECT_EQ(uint32_t(record_id::fir_mr_stream_32f), 0x46493334u);
  EXPECT_EQ(uint32_t(record_id::iir_ar_32f), 0x49493031u);
  EXPECT_EQ(uint32_t(record_id::iir_df1_64f_32s), 0x49493330u);
}

TEST(Record, AlignUp) {
  for (uintptr_t a : {64u, 1u, 31u, 33u, 63u, 65u, 127u, 128u}) {
    void* const p = reinterpret_cast<void*>(a);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(align_up(p)), (a + 63) / 64 * 64);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(align_up<16>(p)), (a + 15) / 16 * 16);
  }
}

TEST(Record, AllocateBuildFree) {
  tavcore_fake_reset();
  record*    r     = nullptr;
  const auto build = [](TavStatus result) {
    return [result](void* block) {
      const record fresh{record_id::dft_c_32f, origin::allocated};
      memcpy(block, &fresh, sizeof fresh);
      return result;
    };
  };
  EXPECT_EQ(allocate_record(&r, sizeof(record), build(tavStatusBadFlag)), tavStatusBadFlag);
  EXPECT_EQ(r, nullptr) << "the out pointer is written on success only";
  EXPECT_EQ(tavcore_fake_read().live, 0) << "a half-built record is handed back";
  tavcore_fake_refuse_after(0);
  EXPECT_EQ(allocate_record(&r, sizeof(record), build(tavStatusOk)), tavStatusNoMemory);
  EXPECT_EQ(r, nullptr);
  tavcore_fake_reset();
  ASSERT_EQ(allocate_record(&r, sizeof(record), build(tavStatusOk)), tavStatusOk);
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(free_marked(r, r->from), tavStatusOk);
  EXPECT_EQ(tavcore_fake_read().live, 0);

  record mine{record_id::fir_sr_16s, origin::caller};
  EXPECT_EQ(free_unmarked(&mine, mine.from), tavStatusOk);
  EXPECT_EQ(mine.id, record_id::fir_sr_16s);
  EXPECT_EQ(free_marked(&mine, mine.from), tavStatusOk);
  EXPECT_EQ(mine.id, record_id::none);
  EXPECT_EQ(tavcore_fake_read().releases, 1);
}

TEST(Checks, FirstFaultOfEachOrder) {
  const record        good{record_id::fir_sr_32f, {}}, pair{record_id::fir_mr_32f, {}}, bad{record_id::fft_c_32f, {}};
  const record* const none = nullptr;
  const int           x    = 0;
  const int* const    null = nullptr;
  constexpr auto      sr = record_id::fir_sr_32f, mr = record_id::fir_mr_32f;

  EXPECT_EQ(check_vector(0, null, &x), tavStatusNullPointer);
  EXPECT_EQ(check_vector(0, &x, &x), tavStatusBadSize);
  EXPECT_EQ(check_vector(1, &x, &x), tavStatusOk);

  EXPECT_EQ(check_length_first(0, null), tavStatusBadSize);
  EXPECT_EQ(check_length_first(1, null), tavStatusNullPointer);
  EXPECT_EQ(check_length_first(1, &x), tavStatusOk);

  EXPECT_EQ((check_record<sr, mr>(none)), tavStatusNullPointer);
  EXPECT_EQ((check_record<sr, mr>(&bad)), tavStatusBadContext);
  EXPECT_EQ((check_record<sr, mr>(&pair)), tavStatusOk);

  EXPECT_EQ((check_transform<sr>(none, null)), tavStatusNullPointer);
  EXPECT_EQ((check_transform<sr>(&bad, null)), tavStatusBadContext);
  EXPECT_EQ((check_transform<sr>(&good, null, &x)), tavStatusNullPointer);
  EXPECT_EQ((check_transform<sr>(&good, &x, &x)), tavStatusOk);

  EXPECT_EQ((check_filter<sr, mr>(&bad, 0, null)), tavStatusNullPointer);
  EXPECT_EQ((check_filter<sr, mr>(none, 0, &x)), tavStatusNullPointer);
  EXPECT_EQ((check_filter<sr, mr>(&bad, 0, &x)), tavStatusBadSize);
  EXPECT_EQ((check_filter<sr, mr>(&bad, 1, &x)), tavStatusBadContext);
  EXPECT_EQ((check_filter<sr, mr>(&good, 1, &x)), tavStatusOk);
}

// A caller's SSE word: rounding, masks, flags that are already up, denormals as zero.
const uint32_t callers_words[] = {0x1F80, 0x3F80, 0x5F80, 0x7F80, 0x0000, 0x1F80 | 0x21, 0x5F80 | 0x8040 | 0x20};

uint32_t under(uint32_t word, uint32_t (*f)()) {
  const uint32_t mine = _mm_getcsr();
  _mm_setcsr(word);
  const uint32_t inside = f();
  const uint32_t after  = _mm_getcsr();
  _mm_setcsr(mine);
  EXPECT_EQ(after, word) << "the caller's word must come back as it was";
  return inside;
}

TEST(Rounding, SseScopesSetAndRestore) {
  for (uint32_t word : callers_words) {
    const uint32_t nearest = under(word, [] {
      const round_to_nearest scope;
      return _mm_getcsr();
    });
    EXPECT_EQ(nearest, word & ~0x6000u);
    const uint32_t chopped = under(word, [] {
      const round_toward_zero scope;
      return _mm_getcsr();
    });
    EXPECT_EQ(chopped, word | 0x6000u);
    const uint32_t masked = under(word, [] {
      const round_to_nearest_masked scope;
      return _mm_getcsr();
    });
    EXPECT_EQ(masked, (word & ~0x6000u) | 0x1F80u);
  }
}

TEST(Rounding, MaskedScopeKeepsExceptionsFromTheCaller) {
  const uint32_t mine = _mm_getcsr();
  _mm_setcsr(0x0000);  // every exception would trap
  {
    const round_to_nearest_masked scope;
    volatile float                zero = 0;
    volatile float                inf  = 1 / zero;
    (void)inf;
  }
  EXPECT_EQ(_mm_getcsr(), 0u);
  _mm_setcsr(mine);
}

}  // namespace
}  // namespace tav::TAV_VARIANT
