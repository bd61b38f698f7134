// The copies of bits and the packing of numbers, against a walk over single bits.
#include "harness/arena.h"
#include "harness/faults.h"
#include "oracle/move.h"

using namespace test;

namespace {

// Streams that hold the range and no byte more, flush against a page: neither may be left by a bit.
template <auto* Export> void check_copy_bits(bool from_top) {
  arena from(1024), to(1024);
  each_build<Export>([&] {
    source_of_data data(21);
    const auto     check = [&](unsigned src_bit, unsigned dst_bit, unsigned len, placement place) {
      const auto   source = data.values<Tav8u>((src_bit + len + 7) / 8);
      auto         want   = data.values<Tav8u>((dst_bit + len + 7) / 8);
      array<Tav8u> src(from, source.size(), place), dst(to, want.size(), place);
      src.assign(source), dst.assign(want);
      oracle::copy_bits(source, src_bit, want, dst_bit, len, from_top);
      ASSERT_EQ(call<Export>(src.data(), int(src_bit), dst.data(), int(dst_bit), int(len)), tavStatusOk);
      ASSERT_EQ(dst.values(), want) << "bits " << src_bit << " to " << dst_bit << ", length " << len << ", " << place;
      ASSERT_TRUE(dst.guards_intact());
    };
    for (unsigned src_bit = 0; src_bit < 8; ++src_bit)
      for (unsigned dst_bit = 0; dst_bit < 8; ++dst_bit)
        for (unsigned len = 1; len <= 400; len += len < 150 ? 1 : 7)
          for (placement place : {placement{placement::ends_at_page}, placement{placement::begins_at_page},
                                  placement{placement::inside, (src_bit * 3 + dst_bit + len) % 16}}) {
            check(src_bit, dst_bit, len, place);
            if (testing::Test::HasFatalFailure()) return;
          }
    check(1003, 18, 2000, {});
    check(64, 1021, 1500, {});
  });
}

void bits_then_sizes(const tested& f) {
  faults(f).null_pointers().below_one(4).value(1, -1, tavStatusBadSize).value(3, -1, tavStatusBadSize).expect();
}

void four_pointers_then_sizes(const tested& f) {
  faults(f).null_pointers().below_one(2).value(4, -1, tavStatusBadSize).expect();
}

TAV_FAULTS(Copy_1u, bits_then_sizes)
TAV_FAULTS(CopyBE_1u, bits_then_sizes)
TAV_FAULTS(CopyLE_1u, bits_then_sizes)
TAV_FAULTS(PackBits_32u8u, four_pointers_then_sizes)

TEST(CopyBits, FromTheTop) { check_copy_bits<&::tavsCopy_1u>(true); }
TEST(CopyBits, LittleEndian) { check_copy_bits<&::tavsCopyLE_1u>(true); }
TEST(CopyBits, BigEndian) { check_copy_bits<&::tavsCopyBE_1u>(false); }

TEST(CopyBits, OneBitAlone) {
  for (unsigned old : {0x00u, 0xFFu}) {
    const Tav8u src = Tav8u(~old);
    Tav8u       dst = Tav8u(old);
    EXPECT_EQ(call<&::tavsCopy_1u>(&src, 3, &dst, 3, 1), tavStatusOk);
    EXPECT_EQ(dst, old ^ 0x10u);
    dst = Tav8u(old);
    EXPECT_EQ(call<&::tavsCopyBE_1u>(&src, 3, &dst, 3, 1), tavStatusOk);
    EXPECT_EQ(dst, old ^ 0x08u);
  }
}

struct packing {
  arena from{4096}, widths_from{4096}, to{4096};

  void check(const std::vector<Tav32u>& numbers, const std::vector<Tav32s>& widths, unsigned offset) {
    source_of_data     data(31);
    std::vector<Tav8u> want    = data.values<Tav8u>(offset / 8 + 1 + 4 * numbers.size() + 4);
    const auto         before  = want;
    const auto         packed  = oracle::pack_bits(numbers, widths, want, offset);
    const size_t       touched = packed.bits == 0 ? 1 : (offset + packed.bits + 7) / 8;
    want.resize(touched);
    array<Tav32u> src(from, numbers.size(), {placement::ends_at_page});
    array<Tav32s> width(widths_from, widths.size(), {placement::ends_at_page});
    array<Tav8u>  dst(to, touched, {placement::ends_at_page});
    src.assign(numbers), width.assign(widths), dst.assign({before.begin(), before.begin() + long(touched)});
    int bits = -1;
    ASSERT_EQ(
        call<&::tavsPackBits_32u8u>(src.data(), width.data(), int(numbers.size()), dst.data(), int(offset), &bits),
        packed.status);
    ASSERT_EQ(bits, int(packed.bits));
    ASSERT_EQ(dst.values(), want);
    ASSERT_TRUE(dst.guards_intact());
  }
};

TEST(PackBits, EveryWidthAtEveryOffset) {
  packing        p;
  source_of_data data(41);
  for (unsigned offset = 0; offset < 20; ++offset)
    for (int width = 0; width <= 32; ++width)
      for (size_t n : {1u, 2u, 3u, 9u, 40u}) {
        SCOPED_TRACE(testing::Message() << "width " << width << ", offset " << offset << ", numbers " << n);
        p.check(data.values<Tav32u>(n), std::vector<Tav32s>(n, width), offset);
        if (HasFatalFailure()) return;
      }
}

TEST(PackBits, MixedWidths) {
  packing        p;
  source_of_data data(43);
  for (int round = 0; round < 2000; ++round) {
    const size_t        n = size_t(1 + data.below(60));
    std::vector<Tav32s> widths(n);
    for (Tav32s& w : widths) w = data.below(8) == 0 ? data.value<Tav32s>() : data.below(33);
    SCOPED_TRACE(testing::Message() << "round " << round);
    p.check(data.values<Tav32u>(n), widths, unsigned(data.below(8)));
    if (HasFatalFailure()) return;
  }
}

TEST(PackBits, WidthsOutOfRangeWarn) {
  packing p;
  p.check({0xDEADBEEF}, {33}, 0);
  p.check({0xDEADBEEF, 5}, {-1, 3}, 0);
  p.check({0xDEADBEEF}, {-1}, 0);
  p.check({1, 2, 3}, {0x7FFFFFFF, -0x7FFFFFFF - 1, 32}, 5);
}

TEST(PackBits, ThirtyThreeCountsAsThirtyTwo) {
  const Tav32u number = 0x01020304;
  const Tav32s width  = 33;
  Tav8u        dst[5] = {9, 9, 9, 9, 9};
  int          bits   = 0;
  EXPECT_EQ(call<&::tavsPackBits_32u8u>(&number, &width, 1, dst, 0, &bits), tavStatusWarnBitWidth);
  EXPECT_EQ(bits, 32);
  EXPECT_EQ(dst[0], 1);
  EXPECT_EQ(dst[3], 4);
  EXPECT_EQ(dst[4], 9);
}

}  // namespace
